#include "data/ExtractConditions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace skeldon {
namespace {

ExtractCondition Entry(int channel, double first, bool firstOn, double second, bool secondOn)
{
    return {static_cast<std::uint16_t>(channel), first, firstOn, second, secondOn};
}

TEST(ExtractConditions, WriteEachEntryWithItsOwnComma)
{
    EXPECT_EQ(ExtractConditionsToString({}), "");
    EXPECT_EQ(ExtractConditionsToString({Entry(0x10, 1.5, true, -2.25, false)}),
              "16,1.500000,1,-2.250000,0,");
    EXPECT_EQ(ExtractConditionsToString(
                  {Entry(0x800, 0.0, false, 1e6, true), Entry(0x20, 0.1, true, 0.2, true)}),
              "2048,0.000000,0,1000000.000000,1,32,0.100000,1,0.200000,1,");
}

TEST(ExtractConditions, ReadWhatTheyWrite)
{
    const ExtractConditions list = {Entry(0x10, 1.5, true, -2.25, false),
                                    Entry(0x100, 0.000001, false, 49.5, true)};
    EXPECT_EQ(ExtractConditionsFromString(ExtractConditionsToString(list)), list);
}

TEST(ExtractConditions, TakeEachOfTheSixChannels)
{
    for (const int channel : {0x10, 0x20, 0x40, 0x80, 0x100, 0x800}) {
        const auto list =
            ExtractConditionsFromString(std::to_string(channel) + ",1.000000,1,2.000000,1,");
        ASSERT_EQ(list.size(), 1U) << channel;
        EXPECT_EQ(list[0], Entry(channel, 1.0, true, 2.0, true));
    }
}

TEST(ExtractConditions, DropAnEntryOfAnyOtherChannelAndGoOn)
{
    for (const int channel : {0, 1, 0x200, 0x400, 0x30, 0x9F0, 0x1000, 0x8000, -1, 65535}) {
        const std::string text = std::to_string(channel) + ",9.0,1,9.0,1,16,1.0,1,2.0,0,";
        const auto list = ExtractConditionsFromString(text);
        ASSERT_EQ(list.size(), 1U) << channel;
        EXPECT_EQ(list[0], Entry(0x10, 1.0, true, 2.0, false)) << channel;
    }
}

TEST(ExtractConditions, AreMissingAfterSavingWhatWasDroppedOnReading)
{
    const auto list = ExtractConditionsFromString("512,1.0,1,2.0,1,32,3.0,0,4.0,1,");
    EXPECT_EQ(ExtractConditionsToString(list), "32,3.000000,0,4.000000,1,");
}

TEST(ExtractConditions, CountAMissingTokenAsZero)
{
    struct Case
    {
        const char* text = "";
        ExtractCondition entry;
    };
    const Case cases[] = {
        {"16", Entry(16, 0, false, 0, false)},
        {"16,", Entry(16, 0, false, 0, false)},
        {"16,1.5", Entry(16, 1.5, false, 0, false)},
        {"16,,,,,", Entry(16, 0, false, 0, false)},
        {"16,1.5,1,2", Entry(16, 1.5, true, 2, false)},
        {"16,abc,x,2.5,7,", Entry(16, 0, false, 2.5, true)},
        {"16,1e1,-1, 2,01,", Entry(16, 10, true, 2, true)},
    };
    for (const Case& c : cases) {
        const auto list = ExtractConditionsFromString(c.text);
        ASSERT_EQ(list.size(), 1U) << c.text;
        EXPECT_EQ(list[0], c.entry) << c.text;
    }
}

TEST(ExtractConditions, SkipTheBlanksOfBothCodePagesBeforeAToken)
{
    const ExtractConditions expected = {Entry(16, 1, true, 2, true)};
    for (const std::string blank : {" ", "\xA0", "\t", "\x81\x40", "\n", "\r", "\x1A", " \t\r\n"}) {
        std::string text;
        for (const char* token : {"16", "1", "1", "2", "1"})
            text += blank + token + ",";
        EXPECT_EQ(ExtractConditionsFromString(text), expected);
        EXPECT_EQ(ExtractConditionsFromString(text + blank), expected);
        EXPECT_EQ(ExtractConditionsFromString(blank), ExtractConditions{});
    }
}

TEST(ExtractConditions, RemoveLineEndsBehindAToken)
{
    EXPECT_EQ(ExtractConditionsFromString("16\r\n,1\n,1\x1A,2\r,1\n,"),
              (ExtractConditions{Entry(16, 1, true, 2, true)}));
}

TEST(ExtractConditions, AreEmptyForAnEmptyText)
{
    EXPECT_TRUE(ExtractConditionsFromString("").empty());
    EXPECT_TRUE(ExtractConditionsFromString(",,,,,,,,,,").empty());
}

TEST(ExtractConditions, KeepTheChannelsLowBitsOnly)
{
    // The channel is a 16-bit value: what lies above is cut.
    const auto list = ExtractConditionsFromString("65552,1,1,2,1,");
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(list[0].channel, 0x10);
}

TEST(ExtractConditions, SurviveAnyText)
{
    std::mt19937 random(20090203); // NOLINT(cert-msc51-cpp)
    std::string alphabet = "0123456789,,,,.-+eE \t\r\n\x1A\x81\x40\xA0naifx";
    alphabet += '\0';
    for (int round = 0; round < 2000; ++round) {
        std::string text;
        for (auto n = random() % 60; n > 0; --n)
            text += alphabet[random() % alphabet.size()];
        const auto list = ExtractConditionsFromString(text);
        // Each entry takes at least one byte, and what was read reads the same again once written.
        EXPECT_LE(list.size(), text.size());
        const std::string written = ExtractConditionsToString(list);
        EXPECT_EQ(ExtractConditionsToString(ExtractConditionsFromString(written)), written);
    }
}

TEST(ExtractConditions, WriteLevelsOfAnySize)
{
    const double huge = std::numeric_limits<double>::max();
    const auto text = ExtractConditionsToString({Entry(16, huge, true, -huge, true)});
    const auto list = ExtractConditionsFromString(text);
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(list[0].firstLevel, huge);
    EXPECT_EQ(list[0].secondLevel, -huge);
    EXPECT_EQ(ExtractConditionsToString({Entry(16, std::nan(""), true, HUGE_VAL, true)}),
              "16,nan,1,inf,1,");
}

} // namespace
} // namespace skeldon
