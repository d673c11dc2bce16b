// Help, manual page and completion tell of the same commands and options.
#include "support/CommandHelp.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

namespace skeldon::test {

namespace {

using Words = std::set<std::string>;

const std::filesystem::path Packaging = SKELDON_PACKAGING;
const Completion ForBash{Packaging / "completion/bash/skeldonctl", "skeldonctl", "_skeldonctl"};
const Words Commands{"status", "get", "online", "start", "info", "convert", "csv", "chart"};

TEST(Completion, OffersEveryCommand)
{
    EXPECT_EQ(Offered(ForBash, {""}), Commands);
    EXPECT_EQ(Offered(ForBash, {"st"}), (Words{"status", "start"}));
}

TEST(Completion, OffersTheOptionsOfEachCommand)
{
    EXPECT_EQ(Offered(ForBash, {"-"}), LongOptions(SKELDONCTL, {"--help"}));
    for (const std::string& command : Commands) {
        const Words options = LongOptions(SKELDONCTL, {command, "--help"});
        EXPECT_GE(options.size(), 2U) << command;
        EXPECT_EQ(Offered(ForBash, {command, "-"}), options) << command;
    }
}

TEST(Completion, OffersUnits)
{
    EXPECT_EQ(Offered(ForBash, {"csv", "a.skd", "--unit", ""}), (Words{"g", "ms2", "gal"}));
    EXPECT_EQ(Offered(ForBash, {"chart", "a.skd", "--unit", "g"}), (Words{"g", "gal"}));
}

TEST(ManualPage, TellsEveryCommandAndOption)
{
    const std::string page = ReadText(Packaging / "man/skeldonctl.1");
    for (const std::string& command : Commands) {
        EXPECT_NE(page.find(".It Cm " + command), std::string::npos) << command;
        for (const std::string& option : LongOptions(SKELDONCTL, {command, "--help"})) {
            // The page names this one by its letter.
            const std::string flag = option == "--output" ? "Fl o" : "Fl Fl " + option.substr(2);
            EXPECT_NE(page.find(flag), std::string::npos) << command << ' ' << option;
        }
    }
}

} // namespace

} // namespace skeldon::test
