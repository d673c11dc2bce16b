#include "files/FileTexts.h"

#include <gtest/gtest.h>

namespace skeldon::test {
namespace {

TEST(ReadFile, AcceptsARootLineInAnyLetterCase)
{
    CMeasureData data;
    EXPECT_TRUE(ReadDataText(data, "<RAVELIN_DATA VERSION=\"skeldon 1.0\">\n"));
    EXPECT_TRUE(ReadDataText(data, "junk\n\n \t<Ravelin_Data Version=\"1.0\"> \r\n"));
}

TEST(ReadFile, RefusesWhatHasNoRootLine)
{
    for (const std::string_view text :
         {"", "\n\n", "<ravelin_data>\n", "x<ravelin_data version=\"1.0\">\n", "<record>\n"}) {
        CMeasureData data;
        EXPECT_EQ(ReadDataText(data, text).error, DataFileError::NotADataFile) << text;
    }
}

TEST(ReadFile, RefusesAnotherVersion)
{
    for (const std::string_view end :
         {"\"2.0\">", "\"SKELDON 1.0\"", "\"SKELDON 1.0\">x", "1.0>"}) {
        CMeasureData data;
        const std::string text = "<ravelin_data version=" + std::string(end) + "\n" +
                                 std::string(NewRoot) + std::string(EndOfConfiguration);
        EXPECT_EQ(ReadDataText(data, text).error, DataFileError::UnknownVersion) << end;
    }
}

TEST(ReadFile, TakesAnyEndThatNamesTheOlderVersionAsOlder)
{
    // The version with its quotes is what counts.
    CMeasureData data;
    EXPECT_EQ(ReadDataText(data, "<ravelin_data version=\"OTHER 1.0\">\n").error,
              DataFileError::UnknownVersion);
    EXPECT_TRUE(ReadDataText(data, "<ravelin_data version=\"x\" y=\"1.0\">\n"));
}

TEST(ReadFile, ReadsEveryKeyOfTheConfiguration)
{
    const CMeasureData data = DataOfText(
        NewFile("<date_version>1</date_version>\n<korva_type>QM70</korva_type>\n"
                "<korva_rls>1.20</korva_rls>\n<sampling>3</sampling>\n<interval>14</interval>\n"
                "<threshold>25</threshold>\n<serial_no>17</serial_no>\n"
                "<extract>16,1.500000,1,2.500000,0,</extract>\n<hazard>300</hazard>\n"
                "<endless>yes</endless>\n<type_num>50</type_num>\n"
                "<temp_nothing>yes</temp_nothing>\n"));
    EXPECT_EQ(data.m_dateVersion, 1);
    EXPECT_EQ(data.m_modelName, "QM70");
    EXPECT_EQ(data.m_release, "1.20");
    EXPECT_EQ(data.GetSampling(), 5);  // the row whose code is 3
    EXPECT_EQ(data.GetInterval(), 11); // the row whose code is 14
    EXPECT_EQ(data.m_threshold, 25);
    EXPECT_EQ(data.m_hostNumber, 17);
    EXPECT_EQ(data.m_extract, (ExtractConditions{{16, 1.5, true, 2.5, false}}));
    EXPECT_EQ(data.m_hazard, 300);
    EXPECT_TRUE(data.m_endless);
    EXPECT_EQ(data.m_typeNumber, 50);
    EXPECT_FALSE(data.m_hasTemperature);
    EXPECT_TRUE(data.m_fromFile);
}

TEST(ReadFile, ReadsTheFirstAndTheLastCodeOfTheTables)
{
    const CMeasureData first =
        DataOfText(NewFile("<sampling>20</sampling>\n<interval>0</interval>\n"));
    EXPECT_EQ(first.GetSampling(), 0);
    EXPECT_EQ(first.GetInterval(), 0);
    const CMeasureData last =
        DataOfText(NewFile("<sampling>7</sampling>\n<interval>13</interval>\n"));
    EXPECT_EQ(last.GetSampling(), 9);
    EXPECT_EQ(last.GetInterval(), 14);
    const CMeasureData none =
        DataOfText(NewFile("<sampling>8</sampling>\n<interval>15</interval>\n"));
    EXPECT_EQ(none.GetSampling(), -1);
    EXPECT_EQ(none.GetInterval(), -1);
}

TEST(ReadFile, ClampsLevelsAndNumbersOfTheConfiguration)
{
    struct Case
    {
        const char* text;
        int threshold;
        int hostNumber;
        int hazard;
    };
    for (const Case& test : {Case{"600", 490, 99, 495}, Case{"490", 490, 99, 490},
                             Case{"-5", -1, -1, -1}, Case{"99", 99, 99, 99}, Case{"x", 0, 0, 0},
                             Case{"0x10", 0, 0, 0}, Case{"2147483647", 490, 99, 495}}) {
        const std::string value(test.text);
        const CMeasureData data =
            DataOfText(NewFile("<threshold>" + value + "</threshold>\n" + "<serial_no>" + value +
                               "</serial_no>\n" + "<hazard>" + value + "</hazard>\n"));
        EXPECT_EQ(data.m_threshold, test.threshold) << value;
        EXPECT_EQ(data.m_hostNumber, test.hostNumber) << value;
        EXPECT_EQ(data.m_hazard, test.hazard) << value;
    }
}

TEST(ReadFile, LeavesUnknownWhatTheConfigurationDoesNotSay)
{
    CMeasureData data = DataOfText(NewFile("<threshold>1</threshold>\n<hazard>2</hazard>\n"
                                           "<endless>\n<temp_nothing>\n<type_num>3</type_num>\n"
                                           "<date_version>1</date_version>\n"
                                           "<korva_type>QM70</korva_type>\n"
                                           "<korva_rls>1.23</korva_rls>\n"
                                           "<extract>16,1.0,1,2.0,0,</extract>\n",
                                           Record("1", "<h>4</h>\n")));
    ASSERT_EQ(data.m_extract.size(), 1U);
    ASSERT_TRUE(ReadDataText(data, NewFile("")));
    EXPECT_EQ(data.m_modelName, "");
    EXPECT_EQ(data.m_release, "");
    EXPECT_TRUE(data.m_extract.empty());
    EXPECT_EQ(data.m_threshold, -1);
    EXPECT_EQ(data.m_hazard, -1);
    EXPECT_FALSE(data.m_endless);
    EXPECT_TRUE(data.m_hasTemperature);
    EXPECT_FALSE(data.m_hasHumidity);
    EXPECT_EQ(data.m_typeNumber, 0);
    EXPECT_EQ(data.m_dateVersion, 0);
    EXPECT_TRUE(data.IsEmpty());
}

TEST(ReadFile, TakesTheOpeningTagOfEndlessAlone)
{
    const CMeasureData data = DataOfText(NewFile("<ENDLESS>no, not at all\n<temp_nothing>\n"));
    EXPECT_TRUE(data.m_endless);
    EXPECT_FALSE(data.m_hasTemperature);
}

TEST(ReadFile, RefusesTheTypesOneAndTwenty)
{
    struct Case
    {
        const char* type;
        const char* model;
        int expected;
    };
    for (const Case& test :
         {Case{"20", "PL20", 10}, Case{"1", "PL04", 2}, Case{"20", "QM70", 50}, Case{"7", "X", 0},
          Case{"-1", "pl20", 0}, Case{"0", "QM70", 0}, Case{"2", "QM70", 2}, Case{"3", "QM70", 3},
          Case{"5", "QM70", 5}, Case{"10", "QM70", 10}, Case{"50", "PL04", 50}}) {
        const CMeasureData data =
            DataOfText(NewFile("<type_num>" + std::string(test.type) + "</type_num>\n<korva_type>" +
                               test.model + "</korva_type>\n"));
        EXPECT_EQ(data.m_typeNumber, test.expected) << test.type << ' ' << test.model;
    }
}

TEST(ReadFile, ReadsATitleBeforeTheEndOfTheConfiguration)
{
    EXPECT_EQ(DataOfText(NewFile("<title>Truck</title>\n")).m_title, "Truck");
    EXPECT_EQ(DataOfText(NewFile("<title>a<b></title>\n")).m_title, "a<b>");
    // Only while there is none.
    EXPECT_EQ(DataOfText(NewFile("<title>One</title>\n<title>Two</title>\n")).m_title, "One");
    EXPECT_EQ(DataOfText(NewFile("<title></title>\n<title>Two</title>\n")).m_title, "Two");
}

TEST(ReadFile, KeepsTheTitleOfAnEarlierFile)
{
    CMeasureData data = DataOfText(NewFile("<title>One</title>\n"));
    ASSERT_TRUE(ReadDataText(data, NewFile("<title>Two</title>\n")));
    EXPECT_EQ(data.m_title, "One");
}

TEST(ReadFile, DoesNotReadTheTitleBehindTheConfiguration)
{
    const CMeasureData data =
        DataOfText(NewFile("", "<GraphSetting>\n<title>Late</title>\n</GraphSetting>\n"));
    EXPECT_EQ(data.m_title, "");
}

TEST(ReadFile, TakesTheEndOfTheFileAsTheEndOfTheConfiguration)
{
    const CMeasureData data =
        DataOfText(std::string(NewRoot) + "<hazard>5</hazard>\n" + Record() + Record());
    EXPECT_EQ(data.m_hazard, 5);
    EXPECT_TRUE(data.IsEmpty()); // nothing is left to count
}

TEST(ReadFile, KnowsNoAttributesAndNoElementsThatShareALine)
{
    const CMeasureData data =
        DataOfText(NewFile("<hazard unit=\"G\">5</hazard>\n"
                           "<threshold>6</threshold><serial_no>7</serial_no>\n"
                           "<korva_type>\nQM70\n</korva_type>\n"));
    EXPECT_EQ(data.m_hazard, -1);
    EXPECT_EQ(data.m_threshold, -1);
    EXPECT_EQ(data.m_hostNumber, -1);
    EXPECT_EQ(data.m_modelName, "");
}

TEST(ReadFile, TakesTheNameOfTheFileWithoutItsFolder)
{
    const CTemporaryFolder folder;
    WriteText(folder / "Road Test.SKD", NewFile(""));
    CMeasureData data;
    ASSERT_TRUE(ReadFile(data, folder / "Road Test.SKD"));
    EXPECT_EQ(data.m_fileName, "Road Test.SKD");
}

TEST(ReadOlderFile, ReadsNoKeyButTheTitle)
{
    const CMeasureData data =
        DataOfText(OldFile("<korva_type>QM70</korva_type>\n<hazard>5</hazard>\n<title>Old</title>\n"
                           "<endless>\n<type_num>50</type_num>\n",
                           Record("10", "<flag>1</flag>\n")));
    EXPECT_EQ(data.m_title, "Old");
    EXPECT_EQ(data.m_modelName, "");
    EXPECT_EQ(data.m_hazard, -1);
    EXPECT_FALSE(data.m_endless);
    EXPECT_EQ(data.m_typeNumber, 0);
    ASSERT_EQ(data.GetSize(), 1U);
    EXPECT_EQ(data.GetRecord(0).m_flags, 0);
    EXPECT_EQ(data.GetRecord(0).m_x, 1.0);
}

TEST(ReadOlderFile, EndsItsHeaderAtTheGraphSetting)
{
    const CMeasureData data = DataOfText(
        std::string(OldRoot) + "<GraphSetting>\n<title>Late</title>\n</GraphSetting>\n" + Record());
    EXPECT_EQ(data.m_title, "");
    EXPECT_EQ(data.GetSize(), 1U);
}

TEST(ReadOlderFile, IsToldByItsRootLineAndNotByItsName)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", OldFile("<hazard>5</hazard>\n"));
    WriteText(folder / "b.sks", NewFile("<hazard>5</hazard>\n"));
    CMeasureData data;
    ASSERT_TRUE(ReadFile(data, folder / "a.skd"));
    EXPECT_EQ(data.m_hazard, -1);
    ASSERT_TRUE(ReadFile(data, folder / "b.sks"));
    EXPECT_EQ(data.m_hazard, 5);
}

TEST(ReadFile, DoesNotEndANewHeaderAtTheGraphSetting)
{
    const CMeasureData data =
        DataOfText(NewFile("<GraphSetting>\n<title>In</title>\n<hazard>5</hazard>\n"));
    EXPECT_EQ(data.m_title, "In");
    EXPECT_EQ(data.m_hazard, 5);
}

} // namespace
} // namespace skeldon::test
