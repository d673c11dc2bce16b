#include "base/TextScan.h"
#include "base/DecimalScan.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <random>

#include <gtest/gtest.h>

namespace skeldon {
namespace {

/// Same number to the last bit; of what is no number the kind alone counts.
void ExpectSameDouble(double found, double expected, const std::string& text)
{
    if (std::isnan(expected))
        EXPECT_TRUE(std::isnan(found)) << text;
    else
        EXPECT_EQ(std::bit_cast<std::uint64_t>(found), std::bit_cast<std::uint64_t>(expected))
            << text;
}

void ExpectAsRuntime(const std::string& text)
{
    EXPECT_EQ(ScanInt(text), std::atoi(text.c_str())) << text;
    ExpectSameDouble(ScanDouble(text), std::strtod(text.c_str(), nullptr), text);
}

TEST(TextScan, ReadsOddNumbersAsTheRuntimeDoes)
{
    for (const char* const text : {"",
                                   " ",
                                   "0",
                                   "-0",
                                   "+7",
                                   "--7",
                                   "+-7",
                                   "- 7",
                                   " \t\v\f\r\n12 34",
                                   "12.5",
                                   "-.5",
                                   ".5",
                                   "5.",
                                   ".",
                                   "-",
                                   "-.",
                                   "1,5",
                                   "1e3",
                                   "1E-3",
                                   "1e",
                                   "1e+",
                                   "1e999",
                                   "-1e999",
                                   "1e-999",
                                   "nan",
                                   "-nan",
                                   "nan(1)",
                                   "inf",
                                   "-Infinity",
                                   "0x10",
                                   "0x1.8p1",
                                   "0x",
                                   "1x",
                                   "1.5.5",
                                   "1.5abc",
                                   "2147483647",
                                   "2147483648",
                                   "-2147483648",
                                   "-2147483649",
                                   "4294967295",
                                   "9223372036854775807",
                                   "9223372036854775808",
                                   "-9223372036854775808",
                                   "-9223372036854775809",
                                   "99999999999999999999999999",
                                   "000000000000000000000000000000012.5",
                                   "0.30000000000000004",
                                   "123456789012345",
                                   "1234567890123456",
                                   "0.000000000000001",
                                   "9007199254740993",
                                   "1.7976931348623159e308",
                                   "4.9e-324",
                                   "2.2250738585072011e-308"})
        ExpectAsRuntime(text);
}

TEST(TextScan, EndsAtAZeroByte)
{
    EXPECT_EQ(ScanInt(std::string_view("12\0"
                                       "34",
                                       5)),
              12);
    EXPECT_EQ(ScanDouble(std::string_view("1.5\0"
                                          "5",
                                          5)),
              1.5);
    EXPECT_EQ(ScanDouble(std::string_view(" 1e1\0"
                                          "5",
                                          6)),
              10.0);
    EXPECT_EQ(ScanDouble(std::string_view("\0"
                                          "5",
                                          2)),
              0.0);
}

TEST(TextScan, ReadsRandomDecimalsToTheLastBit)
{
    std::mt19937_64 random(3);
    for (int i = 0; i < 200000; ++i) {
        std::string text = random() % 2 == 0 ? "-" : "";
        const std::uint64_t digits = random() % 19;
        const std::uint64_t point = random() % 19;
        for (std::uint64_t at = 0; at < digits; ++at) {
            if (at == point)
                text += '.';
            text += static_cast<char>('0' + random() % 10);
        }
        ASSERT_NO_FATAL_FAILURE(ExpectAsRuntime(text));
    }
}

TEST(TextScan, ReadsRandomTextAsTheRuntimeDoes)
{
    constexpr std::string_view Alphabet = "0123456789..--++eExX aA\t,nifNI";
    std::mt19937_64 random(4);
    for (int i = 0; i < 200000; ++i) {
        std::string text;
        for (std::uint64_t length = random() % 10; length > 0; --length)
            text += Alphabet[random() % Alphabet.size()];
        ASSERT_NO_FATAL_FAILURE(ExpectAsRuntime(text));
    }
}

TEST(ScanPlainDecimal, GivesTheEndOfTheNumber)
{
    const std::string_view text = "-12.50</x>";
    double value = 0.0;
    const char* const end = ScanPlainDecimal(text.data(), text.data() + text.size(), value);
    ASSERT_NE(end, nullptr);
    EXPECT_EQ(std::string_view(end), "</x>");
    EXPECT_EQ(value, -12.5);
}

TEST(ScanPlainDecimal, LeavesWhatItCanNotReadExactly)
{
    for (const std::string_view text : {"", "-", ".", " 1", "+1", "1e3", "1.5E3", "0x1",
                                        "1234567890123456", "0.1234567890123456", "nan"}) {
        double value = 0.0;
        EXPECT_EQ(ScanPlainDecimal(text.data(), text.data() + text.size(), value), nullptr) << text;
    }
}

TEST(TrimWhite, TakesTheSixBlanksOffBothEnds)
{
    EXPECT_EQ(TrimWhite(" \t\r\n\v\fa b\f\v\n\r\t "), "a b");
    EXPECT_EQ(TrimWhite(" \t "), "");
    EXPECT_EQ(TrimWhite(""), "");
}

TEST(TrimWhite, LeavesHalfACharacterAndControlBytes)
{
    EXPECT_EQ(TrimWhite("\xA0"
                        "a\xA0"),
              "\xA0"
              "a\xA0");
    EXPECT_EQ(TrimWhite("\x1A"
                        "a\x1A"),
              "\x1A"
              "a\x1A");
    EXPECT_EQ(TrimWhite(std::string_view("\0a\0", 3)).size(), 3U);
}

TEST(CompareNoCase, FoldsAsciiLettersOnly)
{
    EXPECT_TRUE(EqualNoCase("<Record>", "<rECORD>"));
    EXPECT_FALSE(EqualNoCase("[", "{"));
    EXPECT_FALSE(EqualNoCase("@", "`"));
    EXPECT_FALSE(EqualNoCase("\xC4", "\xE4"));
    EXPECT_LT(CompareNoCase("a", "B"), 0);
    EXPECT_GT(CompareNoCase("ab", "A"), 0);
    EXPECT_LT(CompareNoCase("z", "\xE4"), 0);
    EXPECT_EQ(CompareNoCase("", ""), 0);
}

TEST(StartsWithNoCase, IsFalseForAShorterText)
{
    EXPECT_TRUE(StartsWithNoCase("</RECORD> x", "</record>"));
    EXPECT_FALSE(StartsWithNoCase("</recor", "</record>"));
    EXPECT_TRUE(EndsWithNoCase("x</T>", "</t>"));
    EXPECT_FALSE(EndsWithNoCase("/t>", "</t>"));
    EXPECT_TRUE(StartsWithNoCase("", ""));
}

} // namespace
} // namespace skeldon
