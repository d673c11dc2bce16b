#include "manual/ManualPages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <iterator>
#include <utility>

namespace skeldon::manual {

namespace {

void ReplaceAll(std::string& text, std::string_view from, std::string_view to)
{
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

std::string Resolved(std::string text)
{
    constexpr std::array<std::pair<const char*, const char*>, 5> Entities = {
        {{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&apos;", "'"}, {"&amp;", "&"}}};
    for (const auto& [entity, character] : Entities)
        ReplaceAll(text, entity, character);
    return text;
}

/// "データの取得(&G)\tCtrl+D" is seen as "データの取得", "&Date :" as "Date".
std::string Seen(std::string text)
{
    text.resize(std::min(text.size(), text.find('\t')));
    const auto mnemonic = text.find("(&");
    if (mnemonic != std::string::npos && text.find(')', mnemonic) == mnemonic + 3)
        text.erase(mnemonic, 4);
    ReplaceAll(text, "&", "");
    ReplaceAll(text, "<byte value=\"xd\"/>", "");
    ReplaceAll(text, "\n", " ");
    const auto isTrimmed = [](char c) { return c == ' ' || c == ':' || c == '<' || c == '>'; };
    while (!text.empty() && isTrimmed(text.back()))
        text.pop_back();
    while (!text.empty() && isTrimmed(text.front()))
        text.erase(0, 1);
    ReplaceAll(text, "  ", " ");
    return text;
}

/// The constant parts of a text, of which the program fills in what lies between.
std::vector<std::string> Constants(std::string_view text)
{
    std::vector<std::string> parts(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%' || i + 1 == text.size()) {
            parts.back() += text[i];
            continue;
        }
        auto end = i + 1;
        while (end < text.size() &&
               (std::isdigit(static_cast<unsigned char>(text[end])) != 0 || text[end] == '.'))
            ++end;
        if (end < text.size() && (text[end] == 'd' || text[end] == 'f' || text[end] == 's')) {
            parts.emplace_back();
            i = end;
        } else {
            parts.back() += text[i];
        }
    }
    return parts;
}

} // namespace

std::filesystem::path Folder()
{
    return MANUAL_FOLDER;
}

std::string ReadAll(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::filesystem::path> Pages(const Language& language)
{
    std::vector<std::filesystem::path> pages;
    for (const auto& entry : std::filesystem::directory_iterator(Folder() / language.folder)) {
        if (entry.path().extension() == ".html" && entry.path().filename() != language.first)
            pages.push_back(entry.path());
    }
    std::sort(pages.begin(), pages.end());
    pages.insert(pages.begin(), Folder() / language.folder / language.first);
    return pages;
}

std::vector<std::string> Attributes(std::string_view page, std::string_view name)
{
    return Between(page, ' ' + std::string(name) + "=\"", "\"");
}

std::vector<std::string> Between(std::string_view text, std::string_view open,
                                 std::string_view close)
{
    std::vector<std::string> found;
    for (auto at = text.find(open); at != std::string_view::npos; at = text.find(open, at)) {
        at += open.size();
        const auto end = text.find(close, at);
        if (end == std::string_view::npos)
            break;
        found.push_back(Resolved(std::string(text.substr(at, end - at))));
        at = end;
    }
    return found;
}

std::vector<ProgramText> ProgramTexts()
{
    const std::string all = ReadAll(TRANSLATION_FILE);
    const auto english = Between(all, "<source>", "</source>");
    const auto japanese = Between(all, "<translation>", "</translation>");
    EXPECT_EQ(english.size(), japanese.size());
    std::vector<ProgramText> texts;
    for (std::size_t i = 0; i < std::min(english.size(), japanese.size()); ++i)
        texts.push_back({Seen(english[i]), Seen(japanese[i])});
    return texts;
}

bool Says(std::string_view text, std::string_view quoted)
{
    const auto dots = std::string_view("...");
    if (text.ends_with(dots) && !quoted.ends_with(dots))
        text.remove_suffix(dots.size());
    const auto parts = Constants(text);
    if (parts.size() == 1)
        return text == quoted;
    if (!quoted.starts_with(parts.front()) || !quoted.ends_with(parts.back()))
        return false;
    std::size_t at = 0;
    std::size_t letters = 0;
    for (const std::string& part : parts) {
        at = quoted.find(part, at);
        if (at == std::string_view::npos)
            return false;
        at += part.size();
        letters += part.size();
    }
    return letters > 0;
}

} // namespace skeldon::manual
