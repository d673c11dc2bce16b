#include "setup/conditions/IniFile.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace skeldon::test {
namespace {

using namespace std::string_literals;

std::string Get(const std::string& text, const std::string& key = "Key")
{
    return CIniFile(text).GetString("Section", key, "fallback");
}

int Number(const std::string& value)
{
    return CIniFile("[Section]\r\nKey=" + value + "\r\n").GetInt("Section", "Key", -7);
}

std::string Set(const std::string& text, const std::string& key, const std::string& value)
{
    CIniFile file(text);
    file.Set("Section", key, value);
    return file.Text();
}

TEST(IniFile, FindsAKeyOfItsSection)
{
    EXPECT_EQ(Get("[Section]\r\nKey=value\r\n"), "value");
    EXPECT_EQ(Get("[Other]\r\nKey=a\r\n[Section]\r\nKey=b\r\n"), "b");
    EXPECT_EQ(Get("[Other]\r\nKey=a\r\n[Section]\r\n[Third]\r\nKey=b\r\n"), "fallback");
    EXPECT_EQ(Get("Key=a\r\n[Section]\r\n"), "fallback");
    EXPECT_EQ(Get("[Section]\r\nKey2=a\r\nMyKey=b\r\n"), "fallback");
    EXPECT_EQ(Get(""), "fallback");
}

TEST(IniFile, MatchesNamesWithoutRegardToCase)
{
    EXPECT_EQ(Get("[SECTION]\nkEY=value\n"), "value");
    EXPECT_EQ(Get("[section]\nKEY=value\n", "key"), "value");
}

TEST(IniFile, LetsTheFirstOfSeveralCount)
{
    EXPECT_EQ(Get("[Section]\nKey=1\nKEY=2\n"), "1");
    EXPECT_EQ(Get("[Section]\nKey=1\n[SECTION]\nKey=2\n"), "1");
    EXPECT_EQ(Get("[Section]\n[Section]\nKey=2\n"), "fallback");
}

TEST(IniFile, LeavesBlanksRoundNamesAndValuesOut)
{
    EXPECT_EQ(Get("  [ Section ]  \r\n \t Key \t = \t two words \t \r\n"), "two words");
    EXPECT_EQ(Get("[Section]\nKey=\xA0v\n"), "\xA0v"); // half a character of the Japanese page
}

TEST(IniFile, PassesOverComments)
{
    EXPECT_EQ(Get("[Section]\n;Key=no\n ; Key=no\nKey=yes\n"), "yes");
    EXPECT_EQ(Get(";[Other]\n[Section]\n;[Other]\nKey=yes\n"), "yes");
    EXPECT_EQ(Get("[Section]\nKey=a;b\n"), "a;b");
    EXPECT_EQ(Get("[Section] ; what follows\nKey=a\n"), "a");
}

TEST(IniFile, ReadsEachKindOfLineEnd)
{
    for (const char* end : {"\n", "\r\n", "\r"})
        EXPECT_EQ(Get("[Section]"s + end + "A=1" + end + end + "Key=value" + end + "B=2"), "value");
    EXPECT_EQ(Get("[Section]\nKey=value"), "value");
}

TEST(IniFile, PassesOverAByteOrderMarkAndKeepsIt)
{
    EXPECT_EQ(Get("\xEF\xBB\xBF[Section]\nKey=value\n"), "value");
    EXPECT_EQ(Set("\xEF\xBB\xBF[Section]\nKey=value\n", "Key", "b"),
              "\xEF\xBB\xBF[Section]\nKey=b\n");
}

TEST(IniFile, RemovesSurroundingDoubleQuotes)
{
    EXPECT_EQ(Get("[Section]\nKey=\"a b\"\n"), "a b");
    EXPECT_EQ(Get("[Section]\nKey= \" a \" \n"), " a ");
    EXPECT_EQ(Get("[Section]\nKey=\"\"\n"), "");
    EXPECT_EQ(Get("[Section]\nKey=\"\n"), "\"");
    EXPECT_EQ(Get("[Section]\nKey=\"a\n"), "\"a");
    EXPECT_EQ(Get("[Section]\nKey=a\"b\"\n"), "a\"b\"");
    EXPECT_EQ(Get("[Section]\nKey=\"\"a\"\"\n"), "\"a\"");
}

TEST(IniFile, TakesAnEmptyValueForOne)
{
    EXPECT_EQ(Get("[Section]\nKey=\n"), "");
    EXPECT_EQ(Get("[Section]\nKey= \t\n"), "");
    EXPECT_EQ(Get("[Section]\nKey="), "");
    EXPECT_EQ(Number(""), 0);
}

TEST(IniFile, TakesALineWithoutEqualsSignForNoKey)
{
    EXPECT_EQ(Get("[Section]\nKey\nKey=value\n"), "value");
    EXPECT_EQ(Get("[Section]\nKey\n"), "fallback");
}

TEST(IniFile, TakesAHeadThatIsNotClosedForNoHead)
{
    EXPECT_EQ(Get("[Section]\n[Other\nKey=value\n"), "value");
    EXPECT_EQ(Get("[Section\nKey=value\n"), "fallback");
}

TEST(IniFile, LetsAValueHoldAnything)
{
    EXPECT_EQ(Get("[Section]\nKey=a=b=[c]\n"), "a=b=[c]");
    EXPECT_EQ(Get("[Section]\nKey=\x83\x5C\x95\x5C\n"), "\x83\x5C\x95\x5C");
}

TEST(IniFile, EndsAValueAtAZeroByte)
{
    EXPECT_EQ(Get("[Section]\nKey=ab\0cd\nOther=1\n"s), "ab");
    EXPECT_EQ(Get("[Section]\nKey=ab\0cd\nOther=1\n"s, "Other"), "1");
}

TEST(IniFile, CutsALongValueAtTheLimit)
{
    const CIniFile file("[Section]\nKey=\"" + std::string(200, 'a') + "\"\nShort=abc\n");
    EXPECT_EQ(file.GetString("Section", "Key", "", 127), std::string(127, 'a'));
    EXPECT_EQ(file.GetString("Section", "Short", "", 3), "abc");
    EXPECT_EQ(file.GetString("Section", "None", "abcdef", 3), "abc");
}

TEST(IniFile, FindsWhatStandsBehindAValueOfAMegabyte)
{
    const std::string huge(1 << 20, '9');
    const CIniFile file("[Section]\nHuge=" + huge + "\nKey=value\n");
    EXPECT_EQ(file.GetString("Section", "Key", ""), "value");
    EXPECT_EQ(file.GetInt("Section", "Huge", 0), 2147483647);
    EXPECT_EQ(file.GetString("Section", "Huge", "", 127), std::string(127, '9'));
}

TEST(IniFileNumber, IsReadFromTheLeadingDigits)
{
    EXPECT_EQ(Number("42"), 42);
    EXPECT_EQ(Number(" 42 "), 42);
    EXPECT_EQ(Number("007"), 7);
    EXPECT_EQ(Number("-3"), -3);
    EXPECT_EQ(Number("+3"), 3);
    EXPECT_EQ(Number("12abc"), 12);
    EXPECT_EQ(Number("12.9"), 12);
    EXPECT_EQ(Number("\"12\""), 12);
    EXPECT_EQ(Number("0x10"), 0);
    EXPECT_EQ(Number("1 2"), 1);
}

TEST(IniFileNumber, IsZeroWithoutDigitsAndTheFallbackWithoutKey)
{
    for (const char* value : {"", "abc", "-", "+", "--5", "- 5", "yes", "\"\"", "\xEF\xBC\x91"})
        EXPECT_EQ(Number(value), 0) << value;
    EXPECT_EQ(CIniFile("[Section]\nOther=1\n").GetInt("Section", "Key", -7), -7);
    EXPECT_EQ(CIniFile("").GetInt("Section", "Key", 5), 5);
}

TEST(IniFileNumber, StopsAtTheEndsOfItsRange)
{
    EXPECT_EQ(Number("2147483647"), 2147483647);
    EXPECT_EQ(Number("2147483648"), 2147483647);
    EXPECT_EQ(Number("99999999999999999999999"), 2147483647);
    EXPECT_EQ(Number("-2147483648"), -2147483647 - 1);
    EXPECT_EQ(Number("-99999999999999999999999"), -2147483647 - 1);
}

TEST(IniFileFlag, IsSetByYesInAnyCaseAlone)
{
    const auto flag = [](const std::string& value) {
        return CIniFile("[Section]\nKey=" + value + "\n").GetFlag("Section", "Key");
    };
    for (const char* value : {"yes", "YES", "Yes", " yes ", "\"yes\""})
        EXPECT_TRUE(flag(value)) << value;
    for (const char* value : {"", "no", "1", "true", "y", "yes!", "yess", "on"})
        EXPECT_FALSE(flag(value)) << value;
    EXPECT_FALSE(CIniFile("").GetFlag("Section", "Key"));
}

TEST(IniFileSet, MakesSectionAndKeyAtNeed)
{
    EXPECT_EQ(Set("", "Key", "v"), "[Section]\r\nKey=v\r\n");
    EXPECT_EQ(Set("[Section]\r\n", "Key", "v"), "[Section]\r\nKey=v\r\n");
    EXPECT_EQ(Set("[Section]", "Key", "v"), "[Section]\r\nKey=v\r\n");
    EXPECT_EQ(Set("[Other]\nA=1", "Key", "v"), "[Other]\nA=1\r\n[Section]\r\nKey=v\r\n");
    EXPECT_EQ(Set("[Section]\nA=1", "Key", "v"), "[Section]\nA=1\r\nKey=v\r\n");
}

TEST(IniFileSet, ReplacesOnlyTheValue)
{
    EXPECT_EQ(Set("[section]\n ; c\n kEY =  old \nOther=1\n", "Key", "new"),
              "[section]\n ; c\n kEY =new\nOther=1\n");
    EXPECT_EQ(Set("[Section]\rKey=old\rKey=second\r", "Key", "new"),
              "[Section]\rKey=new\rKey=second\r");
    EXPECT_EQ(Set("[Section]\r\nKey=old", "Key", ""), "[Section]\r\nKey=");
    EXPECT_EQ(Set("[Section]\r\nKey\r\n", "Key", "v"), "[Section]\r\nKey\r\nKey=v\r\n");
}

TEST(IniFileSet, PutsANewKeyBehindTheLastLineOfItsSection)
{
    EXPECT_EQ(Set("[Section]\nA=1\n\n\n[Other]\nB=2\n", "Key", "v"),
              "[Section]\nA=1\nKey=v\r\n\n\n[Other]\nB=2\n");
    EXPECT_EQ(Set("[Section]\n\n[Other]\n", "Key", "v"), "[Section]\nKey=v\r\n\n[Other]\n");
    EXPECT_EQ(Set("[Section]\nA=1\n;end\n", "Key", "v"), "[Section]\nA=1\n;end\nKey=v\r\n");
    // Not into a second section of the name, which does not count.
    EXPECT_EQ(Set("[Section]\n[Section]\nKey=2\n", "Key", "v"),
              "[Section]\nKey=v\r\n[Section]\nKey=2\n");
}

TEST(IniFileSet, CutsAValueAtItsFirstLineBreakOrZeroByte)
{
    EXPECT_EQ(Set("", "Key", "a\nThreshold=5"), "[Section]\r\nKey=a\r\n");
    EXPECT_EQ(Set("", "Key", "a\rb"), "[Section]\r\nKey=a\r\n");
    EXPECT_EQ(Set("", "Key", "\r\n[Other]"), "[Section]\r\nKey=\r\n");
    EXPECT_EQ(Set("", "Key", "a\0b"s), "[Section]\r\nKey=a\r\n");
}

TEST(IniFileSet, KeepsEveryByteThatItIsNotAskedToChange)
{
    const std::string text = "junk\0 line\r\n\xFF\xFE=1\n\n;c\r[Section]x\nA=1 \nKey= old\r\n==\n"s;
    std::string expected = text;
    expected.replace(expected.find(" old"), 4, "new");
    EXPECT_EQ(Set(text, "Key", "new"), expected);
    EXPECT_EQ(CIniFile(text).Text(), text);
}

/// A text out of pieces that matter to an INI file.
std::string RandomText(std::mt19937& random)
{
    static const std::vector<std::string> pieces = {
        "[Section]", "[section ]", "[Other]", "[",        "]",           "Key",  "KEY", "A",
        "B",         "=",          "=",       "=",        ";",           " ",    "\t",  "\"",
        "x",         "yes",        "12",      "-",        "\r\n",        "\r\n", "\n",  "\r",
        "\n",        "\0"s,        "\xA0",    "\x83\x5C", "\xEF\xBB\xBF"};
    std::string text;
    for (auto n = random() % 40; n > 0; --n)
        text += pieces[random() % pieces.size()];
    return text;
}

TEST(IniFileSet, GivesBackWhatWasSetInAnyText)
{
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp)
    for (int round = 0; round < 1500; ++round) {
        const std::string text = RandomText(random);
        CIniFile file(text);
        ASSERT_EQ(file.Text(), text);
        std::map<std::string, std::string> values;
        for (const char* key : {"Key", "A", "B", "New"}) {
            values[key] = "v" + std::to_string(random() % 1000) + "=;[]w";
            file.Set("Section", key, values[key]);
        }
        const CIniFile again(file.Text());
        for (const auto& [key, value] : values)
            ASSERT_EQ(again.GetString("Section", key, "none"), value)
                << testing::PrintToString(text);
        // Setting it all again changes nothing.
        CIniFile twice(file.Text());
        for (const auto& [key, value] : values)
            twice.Set("Section", key, value);
        ASSERT_EQ(twice.Text(), file.Text());
    }
}

TEST(IniFileSet, LeavesTheOtherKeysOfAnyTextAlone)
{
    std::mt19937 random(8); // NOLINT(cert-msc51-cpp)
    for (int round = 0; round < 1500; ++round) {
        const std::string text = RandomText(random);
        const CIniFile before(text);
        CIniFile file(text);
        file.Set("Section", "New", "value");
        for (const char* section : {"Section", "Other"}) {
            for (const char* key : {"Key", "A", "B", ""})
                ASSERT_EQ(file.GetString(section, key, "none"),
                          before.GetString(section, key, "none"))
                    << testing::PrintToString(text);
        }
    }
}

} // namespace
} // namespace skeldon::test
