// The manual is one with itself and with the program.
#include "manual/ManualPages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

using namespace skeldon::manual;

namespace fs = std::filesystem;

namespace {

constexpr std::array Languages = {English, Japanese};

/// Width or height of a PNG picture, which stand at fixed places of its header.
unsigned Extent(std::string_view png, std::size_t place)
{
    unsigned extent = 0;
    for (std::size_t i = 0; i < 4; ++i)
        extent = extent << 8U | static_cast<unsigned char>(png.at(place + i));
    return extent;
}

unsigned Width(std::string_view png)
{
    return Extent(png, 16);
}

unsigned Height(std::string_view png)
{
    return Extent(png, 20);
}

std::string Navigation(std::string_view page)
{
    const auto found = Between(page, "<nav", "</nav>");
    return found.empty() ? std::string() : found.front();
}

/// The pages that a navigation leads to, as paths from the manual's folder, without the last, which
/// leads to the other language.
std::vector<fs::path> Targets(const fs::path& page, const std::string& navigation)
{
    std::vector<fs::path> targets;
    for (const std::string& target : Attributes(navigation, "href")) {
        const fs::path path = (page.parent_path() / target).lexically_normal();
        targets.push_back(path.lexically_relative(Folder()));
    }
    if (!targets.empty())
        targets.pop_back();
    return targets;
}

/// What is told by both languages at a page's place: everything but words.
struct Shape
{
    std::vector<std::string> ids;
    std::vector<std::string> pictures;

    bool operator==(const Shape&) const = default;
};

Shape ShapeOf(const fs::path& page)
{
    const std::string text = ReadAll(page);
    Shape shape{Attributes(text, "id"), {}};
    for (const std::string& picture : Attributes(text, "src"))
        shape.pictures.push_back(fs::path(picture).filename().string());
    return shape;
}

std::vector<std::string> NamesOfPictures(const Language& language)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(Folder() / language.folder / "pictures"))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

/// The buttons of the toolkit's own boxes, whose texts come with the toolkit.
bool IsOfTheToolkit(const std::string& text)
{
    const std::set<std::string> texts = {"Yes", "No", "はい", "いいえ"};
    return texts.contains(text);
}

std::vector<std::string> Unknown(const std::vector<std::string>& quotations,
                                 const Language& language)
{
    static const std::vector<ProgramText> Texts = ProgramTexts();
    const bool isJapanese = language.folder == std::string_view(Japanese.folder);
    std::vector<std::string> unknown;
    for (const std::string& quoted : quotations) {
        const bool isSaid = std::any_of(Texts.begin(), Texts.end(), [&](const ProgramText& text) {
            return Says(isJapanese ? text.japanese : text.english, quoted);
        });
        if (!isSaid && !IsOfTheToolkit(quoted))
            unknown.push_back(quoted);
    }
    return unknown;
}

TEST(Manual, EveryLinkLeadsToAPlaceInTheManual)
{
    for (const Language& language : Languages) {
        for (const fs::path& page : Pages(language)) {
            const auto links = Attributes(ReadAll(page), "href");
            EXPECT_FALSE(links.empty()) << page;
            for (const std::string& link : links) {
                const auto hash = std::min(link.find('#'), link.size());
                const std::string file = link.substr(0, hash);
                const fs::path target = file.empty() ? page : page.parent_path() / file;
                ASSERT_TRUE(fs::is_regular_file(target)) << page << ": " << link;
                if (hash < link.size()) {
                    EXPECT_THAT(Attributes(ReadAll(target), "id"),
                                testing::Contains(link.substr(hash + 1)))
                        << page << ": " << link;
                }
            }
        }
    }
}

TEST(Manual, EveryPictureIsThereInItsSizeAndHasWords)
{
    for (const Language& language : Languages) {
        for (const fs::path& page : Pages(language)) {
            for (const std::string& tag : Between(ReadAll(page), "<img", ">")) {
                const auto sources = Attributes(tag, "src");
                ASSERT_EQ(sources.size(), 1U) << page << ": " << tag;
                const fs::path file = page.parent_path() / sources.front();
                ASSERT_TRUE(fs::is_regular_file(file)) << page << ": " << sources.front();
                const std::string picture = ReadAll(file);
                EXPECT_THAT(Attributes(tag, "width"),
                            testing::ElementsAre(std::to_string(Width(picture))))
                    << file;
                EXPECT_THAT(Attributes(tag, "height"),
                            testing::ElementsAre(std::to_string(Height(picture))))
                    << file;
                EXPECT_THAT(Attributes(tag, "alt"),
                            testing::ElementsAre(testing::Not(testing::IsEmpty())))
                    << file;
            }
        }
    }
}

TEST(Manual, EveryPictureIsShown)
{
    for (const Language& language : Languages) {
        std::set<std::string> shown;
        for (const fs::path& page : Pages(language)) {
            for (const std::string& picture : ShapeOf(page).pictures)
                shown.insert(picture);
        }
        EXPECT_THAT(NamesOfPictures(language), testing::ElementsAreArray(shown));
    }
}

TEST(Manual, LanguagesHaveTheSamePagesPlacesAndPictures)
{
    const auto english = Pages(English);
    const auto japanese = Pages(Japanese);
    ASSERT_EQ(english.size(), japanese.size());
    for (std::size_t i = 0; i < english.size(); ++i) {
        if (i > 0) {
            EXPECT_EQ(english[i].filename(), japanese[i].filename());
        }
        EXPECT_EQ(ShapeOf(english[i]), ShapeOf(japanese[i])) << english[i].filename();
    }
}

TEST(Manual, PlacesOfAPageHaveNamesOfTheirOwn)
{
    for (const Language& language : Languages) {
        for (const fs::path& page : Pages(language)) {
            const auto ids = ShapeOf(page).ids;
            EXPECT_EQ(std::set<std::string>(ids.begin(), ids.end()).size(), ids.size()) << page;
        }
    }
}

TEST(Manual, EveryPageLeadsToAllPagesAndToItselfInTheOtherLanguage)
{
    for (const Language& language : Languages) {
        const auto pages = Pages(language);
        std::set<fs::path> all;
        for (const fs::path& page : pages)
            all.insert(page.lexically_relative(Folder()));
        const auto order = Targets(pages.front(), Navigation(ReadAll(pages.front())));
        EXPECT_EQ(std::set<fs::path>(order.begin(), order.end()), all);
        const auto others = Pages(language.folder == std::string_view("en") ? Japanese : English);
        for (std::size_t i = 0; i < pages.size(); ++i) {
            const std::string navigation = Navigation(ReadAll(pages[i]));
            EXPECT_EQ(Targets(pages[i], navigation), order) << pages[i];
            const fs::path last = Attributes(navigation, "href").back();
            EXPECT_EQ((pages[i].parent_path() / last).lexically_normal(), others[i]);
        }
    }
}

TEST(Manual, NothingComesFromTheNetwork)
{
    for (const Language& language : Languages) {
        for (const fs::path& page : Pages(language)) {
            const std::string text = ReadAll(page);
            EXPECT_THAT(text, testing::Not(testing::HasSubstr("://"))) << page;
            EXPECT_THAT(text, testing::Not(testing::HasSubstr("<script"))) << page;
        }
    }
    EXPECT_THAT(ReadAll(Folder() / "style.css"), testing::Not(testing::HasSubstr("url(")));
}

TEST(Manual, TextsOfTheProgramStandAsItShowsThem)
{
    for (const Language& language : Languages) {
        std::size_t count = 0;
        for (const fs::path& page : Pages(language)) {
            const std::string text = ReadAll(page);
            for (const char* const open : {"<b class=\"ui\">", "<q class=\"msg\">"}) {
                const auto quotations = Between(text, open, "</");
                count += quotations.size();
                EXPECT_THAT(Unknown(quotations, language), testing::IsEmpty()) << page;
            }
        }
        EXPECT_GT(count, 100U);
    }
}

TEST(Quotation, StandsForWhatTheProgramFillsIn)
{
    EXPECT_TRUE(Says("Host number (ID) %d is in use", "Host number (ID) 7 is in use"));
    EXPECT_FALSE(Says("Host number (ID) %d is in use", "Host number (ID) 7 is free"));
    EXPECT_FALSE(Says("Host number (ID) %d is in use", "Host number 7 is in use"));
    EXPECT_TRUE(Says("%sFailed to write.", "Failed to write."));
    EXPECT_TRUE(Says("Open...", "Open"));
    EXPECT_FALSE(Says("Open", "Open it"));
    EXPECT_FALSE(Says("%s", "anything"));
}

} // namespace
