#include "setup/conditions/ProfileFile.h"
#include "setup/tables/IntervalTable.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <random>

namespace skeldon::test {
namespace {

CMeasureCondition Read(const std::string& text)
{
    CMeasureCondition condition;
    ReadProfileText(text, condition);
    return condition;
}

CMeasureCondition ReadKey(const std::string& line)
{
    return Read("[Configuration]\r\n" + line + "\r\n[KeepMode]\r\n" + line + "\r\n");
}

/// No field has the value of a new object.
CMeasureCondition Unusual()
{
    CMeasureCondition condition;
    condition.ProfileName = "A";
    condition.SerialNo = 42;
    condition.SetSampling(7);
    condition.SetInterval(11);
    condition.Threshold = 105;
    condition.StartOpt = 90;
    condition.Alarm = true;
    condition.OverThreshold = true;
    condition.Hazard = 495;
    condition.Endless = true;
    condition.Buzzer = true;
    condition.SaveFileType = 1;
    condition.SaveFileSpecify = "Bridge \x83\x5C";
    condition.Extract = {{0x10, 1.5, true, -2.0, false}, {0x800, 45.0, false, 60.0, true}};
    condition.ExtractSave = true;
    condition.LoadProfType = 2;
    condition.LoadProfName = "Other";
    condition.ClearData = 2;
    return condition;
}

constexpr const char* UnusualText = "[Configuration]\r\n"
                                    "ProfileName=\"A\"\r\n"
                                    "SerialNo=42\r\n"
                                    "Sampling=5\r\n"
                                    "Interval=14\r\n"
                                    "Threshold=105\r\n"
                                    "StartOpt=90\r\n"
                                    "Alarm=yes\r\n"
                                    "OverThreshold=yes\r\n"
                                    "Hazard=495\r\n"
                                    "Endless=yes\r\n"
                                    "Buzzer=yes\r\n"
                                    "[KeepMode]\r\n"
                                    "SaveFileType=1\r\n"
                                    "SaveFileSpecify=Bridge \x83\x5C\r\n"
                                    "Extract=16,1.500000,1,-2.000000,0,"
                                    "2048,45.000000,0,60.000000,1,\r\n"
                                    "ExtractSave=yes\r\n"
                                    "LoadProfType=2\r\n"
                                    "LoadProfName=Other\r\n"
                                    "ClearData=2\r\n";

TEST(WriteProfileText, WritesEveryKeyInItsOrder)
{
    EXPECT_EQ(WriteProfileText(Unusual(), ""), UnusualText);
}

TEST(ReadProfileText, ReadsWhatWasWritten)
{
    const CMeasureCondition read = Read(UnusualText);
    EXPECT_TRUE(read.SameConditions(Unusual()));
    EXPECT_TRUE(read.SameKeepMode(Unusual()));
    EXPECT_EQ(read.Extract, Unusual().Extract);
}

TEST(ReadProfileText, GivesAnEmptyFileItsOwnDefaults)
{
    CMeasureCondition condition = Unusual();
    ReadProfileText("", condition);
    EXPECT_EQ(condition.GetSampling(), 6); // not the row of a new object
    EXPECT_EQ(condition.GetInterval(), 0);
    EXPECT_EQ(condition.Threshold, 0);
    EXPECT_EQ(condition.StartOpt, 5);
    EXPECT_EQ(condition.SerialNo, 0);
    EXPECT_FALSE(condition.Alarm || condition.OverThreshold || condition.Endless ||
                 condition.Buzzer);
    EXPECT_EQ(condition.Hazard, 0);
    EXPECT_TRUE(condition.SameKeepMode(CMeasureCondition()));
}

TEST(ReadProfileText, TurnsCodesIntoRows)
{
    EXPECT_EQ(ReadKey("Sampling=20").GetSampling(), 0);
    EXPECT_EQ(ReadKey("Sampling=0").GetSampling(), 2);
    EXPECT_EQ(ReadKey("Sampling=4").GetSampling(), 6);
    EXPECT_EQ(ReadKey("Sampling=").GetSampling(), 2); // an empty number is 0
    EXPECT_EQ(ReadKey("Interval=14").GetInterval(), 11);
    EXPECT_EQ(ReadKey("Interval=13").GetInterval(), 14);
    for (const char* code : {"99", "-1", "8", "22", "2147483648"})
        EXPECT_EQ(ReadKey(std::string("Sampling=") + code).GetSampling(), 4) << code;
    for (const char* code : {"99", "-1", "15", "2147483648"})
        EXPECT_EQ(ReadKey(std::string("Interval=") + code).GetInterval(), 0) << code;
}

TEST(ReadProfileText, ClampsNumbers)
{
    struct Case
    {
        const char* key;
        int CMeasureCondition::*field;
        int highest;
    };
    for (const Case& c : {Case{"SerialNo", &CMeasureCondition::SerialNo, 99},
                          Case{"Threshold", &CMeasureCondition::Threshold, 490},
                          Case{"StartOpt", &CMeasureCondition::StartOpt, 90},
                          Case{"Hazard", &CMeasureCondition::Hazard, 495},
                          Case{"SaveFileType", &CMeasureCondition::SaveFileType, 2},
                          Case{"LoadProfType", &CMeasureCondition::LoadProfType, 2},
                          Case{"ClearData", &CMeasureCondition::ClearData, 2}}) {
        const auto read = [&c](const std::string& value) {
            return ReadKey(std::string(c.key) + "=" + value).*c.field;
        };
        EXPECT_EQ(read("-3"), 0) << c.key;
        EXPECT_EQ(read("0"), 0) << c.key;
        EXPECT_EQ(read("1"), 1) << c.key;
        EXPECT_EQ(read(""), 0) << c.key;
        EXPECT_EQ(read("abc"), 0) << c.key;
        EXPECT_EQ(read(std::to_string(c.highest)), c.highest) << c.key;
        EXPECT_EQ(read(std::to_string(c.highest + 1)), c.highest) << c.key;
        EXPECT_EQ(read("1000"), c.highest) << c.key;
        EXPECT_EQ(read("99999999999999999999"), c.highest) << c.key;
        EXPECT_EQ(read("-99999999999999999999"), 0) << c.key;
    }
}

TEST(ReadProfileText, TakesFlagsAsSetByYesAlone)
{
    for (const char* key : {"Alarm", "OverThreshold", "Endless", "Buzzer", "ExtractSave"}) {
        const auto read = [key](const std::string& value) {
            const CMeasureCondition c = ReadKey(std::string(key) + "=" + value);
            return int{c.Alarm} + int{c.OverThreshold} + int{c.Endless} + int{c.Buzzer} +
                   int{c.ExtractSave};
        };
        EXPECT_EQ(read("yes"), 1) << key;
        EXPECT_EQ(read("YES"), 1) << key;
        EXPECT_EQ(read("1"), 0) << key;
        EXPECT_EQ(read("no"), 0) << key;
        EXPECT_EQ(read(""), 0) << key;
    }
}

TEST(ReadProfileText, ReadsEachKeyFromItsSectionOnly)
{
    std::string swapped = UnusualText;
    swapped.replace(swapped.find("Configuration"), 13, "Nothing");
    swapped.replace(swapped.find("KeepMode"), 8, "Configuration");
    const CMeasureCondition standard = Read("");
    const CMeasureCondition read = Read(swapped);
    EXPECT_TRUE(read.SameConditions(standard));
    EXPECT_TRUE(read.SameKeepMode(standard));
}

TEST(ReadProfileText, EndsTextsAfter127Bytes)
{
    for (const auto& [key, field] :
         {std::pair{"SaveFileSpecify", &CMeasureCondition::SaveFileSpecify},
          std::pair{"LoadProfName", &CMeasureCondition::LoadProfName}}) {
        const std::string start = std::string(key) + "=";
        EXPECT_EQ(ReadKey(start + std::string(127, 'a')).*field, std::string(127, 'a'));
        EXPECT_EQ(ReadKey(start + std::string(128, 'a')).*field, std::string(127, 'a'));
        EXPECT_EQ(ReadKey(start + std::string(1 << 20, 'a')).*field, std::string(127, 'a'));
    }
    // The cut falls into the fifth entry here: what is missing of it counts as 0.
    std::string extract = "Extract=";
    for (int i = 0; i < 5; ++i)
        extract += "16,11.000000,1,22.000000,1,";
    const CMeasureCondition read = ReadKey(extract);
    ASSERT_EQ(read.Extract.size(), 5U);
    EXPECT_EQ(read.Extract[3], (ExtractCondition{16, 11.0, true, 22.0, true}));
    EXPECT_EQ(read.Extract[4], (ExtractCondition{16, 11.0, true, 22.0, false}));
}

TEST(WriteProfileText, MayWriteTextsLongerThanTheyAreRead)
{
    CMeasureCondition condition;
    condition.LoadProfName = std::string(300, 'x');
    const std::string text = WriteProfileText(condition, "");
    EXPECT_NE(text.find("LoadProfName=" + condition.LoadProfName + "\r\n"), std::string::npos);
    EXPECT_EQ(Read(text).LoadProfName, std::string(127, 'x'));
}

TEST(WriteProfileText, LetsLevelsOutAsTheyAre)
{
    CMeasureCondition condition;
    condition.Threshold = 1000;
    condition.Hazard = -5;
    condition.StartOpt = 255;
    condition.SerialNo = -1;
    const std::string text = WriteProfileText(condition, "");
    for (const char* line :
         {"\nThreshold=1000\r", "\nHazard=-5\r", "\nStartOpt=255\r", "\nSerialNo=-1\r"})
        EXPECT_NE(text.find(line), std::string::npos) << line;
    const CMeasureCondition read = Read(text);
    EXPECT_EQ(read.Threshold, 490);
    EXPECT_EQ(read.Hazard, 0);
    EXPECT_EQ(read.StartOpt, 90);
    EXPECT_EQ(read.SerialNo, 0);
}

TEST(WriteProfileText, KeepsWhatElseTheFileHolds)
{
    const std::string before = "; mine\n[Own]\nA=1\n\n[configuration]\n; level\nTHRESHOLD = 7\n"
                               "Unknown=keep\n\n[KEEPMODE]\nClearData=0\n";
    CMeasureCondition condition = Unusual();
    const std::string text = WriteProfileText(condition, before);
    for (const char* kept : {"; mine\n[Own]\nA=1\n\n[configuration]\n; level\nTHRESHOLD =105\n"
                             "Unknown=keep\n",
                             "\n[KEEPMODE]\nClearData=2\n"})
        EXPECT_NE(text.find(kept), std::string::npos) << text;
    const CMeasureCondition read = Read(text);
    EXPECT_TRUE(read.SameConditions(condition));
    EXPECT_TRUE(read.SameKeepMode(condition));
    EXPECT_EQ(WriteProfileText(condition, text), text);
}

TEST(WriteProfileText, LetsNoTextOpenALineOfItsOwn)
{
    CMeasureCondition condition;
    condition.ProfileName = "A\r\n[KeepMode]\r\nClearData=2";
    condition.SaveFileSpecify = "a\nLoadProfType=2";
    condition.LoadProfName = "b\r\n[Configuration]";
    const CMeasureCondition read = Read(WriteProfileText(condition, ""));
    EXPECT_EQ(read.ClearData, 0);
    EXPECT_EQ(read.LoadProfType, 0);
    EXPECT_EQ(read.SaveFileSpecify, "a");
    EXPECT_EQ(read.LoadProfName, "b");
}

/// A text as a person may type it: blanks within, no quotes round it.
std::string RandomName(std::mt19937& random)
{
    std::string text;
    for (auto n = random() % 100; n > 0; --n)
        text += static_cast<char>(random() % 223 + 33);
    while (!text.empty() && (text.front() == '"' || text.back() == '"'))
        text.erase(text.front() == '"' ? 0 : text.size() - 1, 1);
    if (text.size() > 2)
        text[1] = ' ';
    return text;
}

CMeasureCondition RandomCondition(std::mt19937& random)
{
    const auto upTo = [&random](unsigned highest) {
        return static_cast<int>(random() % (highest + 1));
    };
    CMeasureCondition c;
    c.SetSampling(upTo(9));
    c.SetInterval(upTo(14));
    c.SerialNo = upTo(99);
    c.Threshold = upTo(490);
    c.StartOpt = upTo(90);
    c.Hazard = upTo(495);
    c.Alarm = upTo(1) != 0;
    c.OverThreshold = upTo(1) != 0;
    c.Endless = upTo(1) != 0;
    c.Buzzer = upTo(1) != 0;
    c.SaveFileType = upTo(2);
    c.SaveFileSpecify = RandomName(random);
    if (upTo(1) != 0)
        c.Extract = {{0x40, upTo(1000) / 8.0, upTo(1) != 0, -upTo(1000) / 8.0, upTo(1) != 0}};
    c.ExtractSave = upTo(1) != 0;
    c.LoadProfType = upTo(2);
    c.LoadProfName = RandomName(random);
    c.ClearData = upTo(2);
    return c;
}

TEST(ProfileText, GivesBackAnyConditions)
{
    std::mt19937 random(11); // NOLINT(cert-msc51-cpp)
    std::string text;
    for (int round = 0; round < 500; ++round) {
        const CMeasureCondition condition = RandomCondition(random);
        text = WriteProfileText(condition, text); // over what the last one left
        const CMeasureCondition read = Read(text);
        ASSERT_TRUE(read.SameConditions(condition)) << text;
        ASSERT_TRUE(read.SameKeepMode(condition)) << text;
        ASSERT_EQ(text, WriteProfileText(condition, "")); // nothing has piled up
    }
}

TEST(ReadProfileText, KeepsEveryValueWithinItsLimitsForAnyBytes)
{
    std::mt19937 random(12); // NOLINT(cert-msc51-cpp)
    const std::string written = UnusualText;
    for (int round = 0; round < 700; ++round) {
        std::string text = written;
        for (auto n = random() % 20; n > 0; --n)
            text[random() % text.size()] = static_cast<char>(random() % 256);
        text.resize(random() % (text.size() + 1));
        const CMeasureCondition c = Read(text);
        ASSERT_TRUE(c.SerialNo >= 0 && c.SerialNo <= 99);
        ASSERT_TRUE(c.Threshold >= 0 && c.Threshold <= 490);
        ASSERT_TRUE(c.Hazard >= 0 && c.Hazard <= 495);
        ASSERT_TRUE(c.StartOpt >= 0 && c.StartOpt <= 90);
        ASSERT_TRUE(c.SaveFileType >= 0 && c.SaveFileType <= 2);
        ASSERT_LE(c.SaveFileSpecify.size(), 127U);
        const CMeasureCondition again = Read(WriteProfileText(c, text));
        ASSERT_TRUE(again.SameConditions(c)) << testing::PrintToString(text);
    }
}

} // namespace
} // namespace skeldon::test
