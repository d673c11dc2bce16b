#include "base/CodePage.h"

#include <cstdlib>

#include <gtest/gtest.h>

namespace skeldon {
namespace {

constexpr const char* Variables[] = {"LC_ALL", "LC_CTYPE", "LANG"};

/// Sets the language of the system for one test.
class LanguageTest : public ::testing::Test
{
protected:
    LanguageTest()
    {
        for (std::size_t i = 0; i < std::size(Variables); ++i) {
            const char* const value = std::getenv(Variables[i]);
            m_wasSet[i] = value != nullptr;
            m_before[i] = value == nullptr ? "" : value;
        }
        SetLanguage(nullptr, nullptr, nullptr);
    }
    ~LanguageTest() override
    {
        for (std::size_t i = 0; i < std::size(Variables); ++i)
            Set(Variables[i], m_wasSet[i] ? m_before[i].c_str() : nullptr);
    }

    static void Set(const char* name, const char* value)
    {
        if (value == nullptr)
            ::unsetenv(name);
        else
            ::setenv(name, value, 1);
    }
    static void SetLanguage(const char* all, const char* type, const char* language)
    {
        Set("LC_ALL", all);
        Set("LC_CTYPE", type);
        Set("LANG", language);
    }

private:
    std::string m_before[std::size(Variables)];
    bool m_wasSet[std::size(Variables)] = {};
};

TEST_F(LanguageTest, IsJapaneseWhereTheSystemLanguageIs)
{
    for (const char* const name : {"ja_JP.UTF-8", "ja_JP.SJIS", "ja", "ja.UTF-8", "JA_JP"}) {
        SetLanguage(nullptr, nullptr, name);
        EXPECT_EQ(DataCodePage(), CodePage::Japanese) << name;
    }
}

TEST_F(LanguageTest, IsWesternElse)
{
    EXPECT_EQ(DataCodePage(), CodePage::Western);
    for (const char* const name : {"C", "en_US.UTF-8", "jam_JM", "de_DE"}) {
        SetLanguage(nullptr, nullptr, name);
        EXPECT_EQ(DataCodePage(), CodePage::Western) << name;
    }
}

TEST_F(LanguageTest, TheStrongerVariableDecidesAndAnEmptyOneDoesNotCount)
{
    SetLanguage("C.UTF-8", "ja_JP", "ja_JP");
    EXPECT_EQ(DataCodePage(), CodePage::Western);
    SetLanguage("", "ja_JP", "en_US");
    EXPECT_EQ(DataCodePage(), CodePage::Japanese);
}

TEST(CodePageName, IsWhatConversionsKnow)
{
    EXPECT_EQ(CodePageName(CodePage::Japanese), "CP932");
    EXPECT_EQ(CodePageName(CodePage::Western), "WINDOWS-1252");
}

TEST(ToUtf8, DecodesTheCodePage)
{
    EXPECT_EQ(ToUtf8("M\xFCnchen", CodePage::Western), "M\xC3\xBCnchen");
    EXPECT_EQ(ToUtf8("\x80", CodePage::Western), "\xE2\x82\xAC");
    EXPECT_EQ(ToUtf8("\x93\x8C\x8B\x9E", CodePage::Japanese), "\xE6\x9D\xB1\xE4\xBA\xAC");
}

TEST(ToUtf8, LeavesWhatIsUtf8Already)
{
    EXPECT_EQ(ToUtf8("plain", CodePage::Japanese), "plain");
    EXPECT_EQ(ToUtf8("M\xC3\xBCnchen", CodePage::Western), "M\xC3\xBCnchen");
    EXPECT_EQ(ToUtf8("", CodePage::Western), "");
}

TEST(ToUtf8, ReplacesBytesThatThePageDoesNotKnow)
{
    EXPECT_EQ(ToUtf8("a\x81"
                     "b",
                     CodePage::Western),
              "a\xEF\xBF\xBD"
              "b");
    // A lead byte at the very end.
    EXPECT_EQ(ToUtf8("a\x93", CodePage::Japanese), "a\xEF\xBF\xBD");
}

TEST(ToUtf8, DecodesTextLongerThanAnyBuffer)
{
    const std::string utf8 = ToUtf8(std::string(10001, '\xFC'), CodePage::Western);
    ASSERT_EQ(utf8.size(), 20002U);
    for (std::size_t i = 0; i < utf8.size(); i += 2)
        ASSERT_EQ(utf8.substr(i, 2), "\xC3\xBC");
}

TEST(FromUtf8, EncodesForTheCodePage)
{
    EXPECT_EQ(FromUtf8("M\xC3\xBCller", CodePage::Western), "M\xFCller");
    EXPECT_EQ(FromUtf8("\xE5\x8A\xA0\xE9\x80\x9F", CodePage::Japanese), "\x89\xC1\x91\xAC");
}

TEST(FromUtf8, ReplacesEachCharacterThatThePageDoesNotHoldByOneMark)
{
    EXPECT_EQ(FromUtf8("a\xE5\x8A\xA0\xF0\x9F\x98\x80z", CodePage::Western), "a??z");
    EXPECT_EQ(FromUtf8("a\xFFz", CodePage::Western), "a?z");
    EXPECT_EQ(FromUtf8("a\xE5", CodePage::Western), "a?");
}

TEST(FromUtf8, EncodesTextLongerThanAnyBuffer)
{
    std::string text;
    for (int i = 0; i < 1000; ++i)
        text += "\xC3\xBC";
    EXPECT_EQ(FromUtf8(text, CodePage::Western), std::string(1000, '\xFC'));
}

TEST(IsUtf8, RefusesWhatIsNotWellFormed)
{
    for (const std::string_view good :
         {"", "a", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
          "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(IsUtf8(good)) << good;
    for (const std::string_view bad :
         {"\x80", "\xC0\x80", "\xC1\xBF", "\xC2",
          "\xC2"
          "a",
          "\xE0\x9F\xBF", "\xED\xA0\x80", "\xE2\x82", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80",
          "\xF5\x80\x80\x80", "\xFF", "a\xBF"})
        EXPECT_FALSE(IsUtf8(bad)) << bad;
}

} // namespace
} // namespace skeldon
