#include "base/Version.h"
#include "base/ZoneScope.h"
#include "files/FileTexts.h"
#include "files/MeasuredLines.h"

#include <cmath>

#include <gtest/gtest.h>

namespace skeldon::test {
namespace {

using testing::HasSubstr;
using testing::Not;

CMeasureRecord Line(double x = 1.0, std::uint16_t flags = 0)
{
    CMeasureRecord line{CalendarSeconds{0}};
    line.SetValues(FromLocalFields({2009, 5, 1, 2, 3, 4}), 7, x, -0.25, 0.0, 21.46, 45.0);
    line.SetFlags(flags);
    return line;
}

TEST(WriteFile, WritesTheWholeFormat)
{
    const CZoneScope zone(Zone::Berlin);
    CMeasureData data;
    data.m_modelName = "QM70";
    data.m_release = "1.20";
    data.SetSampling(0);
    data.SetInterval(11);
    data.m_threshold = 25;
    data.m_hostNumber = 17;
    data.m_extract = {{0x0010, 1.5, true, -2.0, false}, {0x0800, 0.0, false, 0.0, true}};
    data.m_hazard = 300;
    data.m_endless = true;
    data.m_typeNumber = 50;
    data.m_hasTemperature = false;
    data.m_hasHumidity = true;
    data.m_title = "Truck <1> & more";
    data.AddRecord(Line(1.0, 0x2064));
    const std::string expected =
        "<?xml version=\"1.0\" encoding=\"Shift_JIS\" ?>\r\n"
        "<ravelin_data version=\"SKELDON 1.0\">\r\n"
        "\t<Configuration>\r\n"
        "\t\t<date_version>1</date_version>\r\n"
        "\t\t<skeldon_light>" +
        std::string(ProgramVersion) +
        "</skeldon_light>\r\n"
        "\t\t<save_date>2026/01/02 03:04:05</save_date>\r\n"
        "\t\t<korva_type>QM70</korva_type>\r\n"
        "\t\t<korva_rls>1.20</korva_rls>\r\n"
        "\t\t<sampling>20</sampling>\r\n"
        "\t\t<interval>14</interval>\r\n"
        "\t\t<threshold>25</threshold>\r\n"
        "\t\t<serial_no>17</serial_no>\r\n"
        "\t\t<extract>16,1.500000,1,-2.000000,0,2048,0.000000,0,0.000000,1,</extract>\r\n"
        "\t\t<hazard>300</hazard>\r\n"
        "\t\t<endless>yes</endless>\r\n"
        "\t\t<type_num>50</type_num>\r\n"
        "\t\t<temp_nothing>yes</temp_nothing>\r\n"
        "\t</Configuration>\r\n"
        "\t<GraphSetting>\r\n"
        "\t\t<title>Truck <1> & more</title>\r\n"
        "\t</GraphSetting>\r\n"
        "\t<data>\r\n"
        "\t\t<record>\r\n"
        "\t\t\t<date_time>2009/05/01 02:03:04</date_time>\r\n"
        "\t\t\t<msec>007</msec>\r\n"
        "\t\t\t<x>10.000</x>\r\n"
        "\t\t\t<y>-2.500</y>\r\n"
        "\t\t\t<z>0.000</z>\r\n"
        "\t\t\t<t>21.5</t>\r\n"
        "\t\t\t<h>45.0</h>\r\n"
        "\t\t\t<flag>8292</flag>\r\n"
        "\t\t</record>\r\n"
        "\t</data>\r\n"
        "</ravelin_data>\r\n";
    EXPECT_EQ(TextOf(data, FromLocalFields({2026, 1, 2, 3, 4, 5})), expected);
}

TEST(WriteFile, LeavesOutWhatTheDataDoesNotHave)
{
    CMeasureData data;
    data.m_hazard = 0;
    data.AddRecord(Line());
    const std::string text = TextOf(data);
    EXPECT_THAT(text, Not(HasSubstr("<hazard>")));
    EXPECT_THAT(text, Not(HasSubstr("<endless>")));
    EXPECT_THAT(text, Not(HasSubstr("<temp_nothing>")));
    EXPECT_THAT(text, Not(HasSubstr("<h>")));
    EXPECT_THAT(text, HasSubstr("<extract></extract>"));
    EXPECT_THAT(text, HasSubstr("<title></title>"));
}

TEST(WriteFile, WritesUnknownValuesAsMinusOne)
{
    const std::string text = TextOf(CMeasureData());
    for (const char* const line :
         {"<sampling>-1</sampling>", "<interval>-1</interval>", "<threshold>-1</threshold>",
          "<serial_no>-1</serial_no>", "<hazard>-1</hazard>", "<type_num>-1</type_num>"})
        EXPECT_THAT(text, HasSubstr(line));
}

TEST(WriteFile, AlwaysWritesDateVersionOne)
{
    CMeasureData data;
    data.m_dateVersion = 7;
    EXPECT_THAT(TextOf(data), HasSubstr("<date_version>1</date_version>"));
}

TEST(WriteFile, NamesFourNumbersAsItsVersion)
{
    EXPECT_THAT(std::string(ProgramVersion),
                testing::MatchesRegex("[0-9]+\\.[0-9]+\\.[0-9]+\\.[0-9]+"));
}

TEST(WriteFile, LeavesDeletedLinesOutAndTheMarksMoveAlong)
{
    CMeasureData data;
    data.AddRecord(Line(1.0));
    data.AddRecord(Line(2.0, RecordFlag::Deleted));
    data.AddRecord(Line(3.0, RecordFlag::Marked));
    CMeasureData read = DataOfText(TextOf(data));
    read.Analyse({});
    ASSERT_EQ(read.GetSize(), 2U);
    EXPECT_EQ(read.GetRecord(1).m_x, 3.0);
    EXPECT_EQ(read.m_marks, std::vector<std::uint32_t>{1});
    EXPECT_EQ(data.GetSize(), 3U);
}

TEST(WriteFile, KeepsValuesToATenThousandthOfG)
{
    CMeasureData data;
    for (int i = -2000; i <= 2000; ++i)
        data.AddRecord(Line(i * 0.0373));
    const CMeasureData read = DataOfText(TextOf(data));
    ASSERT_EQ(read.GetSize(), data.GetSize());
    for (std::size_t i = 0; i < data.GetSize(); ++i) {
        const CMeasureRecord before = data.GetRecord(i);
        const CMeasureRecord after = read.GetRecord(i);
        EXPECT_NEAR(after.m_x, before.m_x, 0.0001);
        EXPECT_EQ(after.m_time, before.m_time);
        EXPECT_EQ(after.m_msec, before.m_msec);
        EXPECT_EQ(after.m_temperature, 21.5);
    }
}

TEST(WriteFile, KeepsMarksExtractionFlagsAndConditions)
{
    CMeasureData data;
    data.m_extract = {{0x0100, 2.5, true, 3.5, true}};
    data.AddRecord(Line(1.0, 0x0811));
    const CMeasureData read = DataOfText(TextOf(data));
    EXPECT_EQ(read.GetRecord(0).m_flags, 0x0811);
    EXPECT_EQ(read.m_extract, data.m_extract);
}

TEST(WriteFile, LosesTheHazardOfZero)
{
    CMeasureData data;
    data.m_hazard = 0;
    EXPECT_EQ(DataOfText(TextOf(data)).m_hazard, -1);
}

TEST(WriteFile, WritesMillisecondsOfAnySize)
{
    CMeasureData data;
    for (const std::uint32_t msec : {0U, 5U, 1000U, 2147483647U, 0xFFFFFFFFU, 0x80000000U}) {
        CMeasureRecord line = Line();
        line.m_msec = msec;
        data.AddRecord(line);
    }
    const std::string text = TextOf(data);
    for (const char* const line : {"<msec>000<", "<msec>005<", "<msec>1000<", "<msec>2147483647<",
                                   "<msec>-01<", "<msec>-2147483648<"})
        EXPECT_THAT(text, HasSubstr(line));
}

TEST(WriteFile, WritesLongTextsWhole)
{
    CMeasureData data;
    data.m_title = std::string(1'000'000, 't');
    const std::string text = TextOf(data);
    EXPECT_NE(text.find("<title>" + data.m_title + "</title>"), std::string::npos);
}

TEST(WriteFile, DoesNotTouchTheDataSet)
{
    const CTemporaryFolder folder;
    CMeasureData data;
    data.AddRecord(Line(1.0, RecordFlag::Deleted));
    data.m_fileName = "before.skd";
    data.m_signature = 77;
    ASSERT_FALSE(WriteFile(data, folder / "a.skd"));
    EXPECT_EQ(data.m_fileName, "before.skd");
    EXPECT_EQ(data.m_signature, 77);
    EXPECT_FALSE(data.m_fromFile);
}

TEST(WriteFile, GoesOnWithoutWritingAfterAFailure)
{
    class CBrokenOutput final : public COutput
    {
    public:
        std::error_code Write(std::string_view) override
        {
            ++m_calls;
            return std::make_error_code(std::errc::io_error);
        }
        int m_calls = 0;
    };
    CMeasureData data;
    for (int i = 0; i < 10000; ++i)
        data.AddRecord(Line());
    CBrokenOutput output;
    EXPECT_EQ(FormatDataFile(data, 0, output), std::errc::io_error);
    EXPECT_EQ(output.m_calls, 1);
}

} // namespace
} // namespace skeldon::test
