#include "base/ZoneScope.h"
#include "files/CsvFile.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <limits>

#include <gtest/gtest.h>

namespace skeldon::test {
namespace {

/// The line of the examples: 2009/05/01 12:30:15.250.
CMeasureRecord Line(double x, double y, double z, double temperature, double humidity,
                    std::uint16_t flags = 0)
{
    CMeasureRecord line{CalendarSeconds{0}};
    line.SetValues(FromLocalFields({2009, 5, 1, 12, 30, 15}), 250, x, y, z, temperature, humidity);
    line.SetFlags(flags);
    return line;
}

CMeasureData Sample()
{
    CMeasureData data;
    data.m_hasHumidity = true;
    data.AddRecord(Line(1.2, 0.5, -0.25, 23.5, 45.0));
    return data;
}

std::string HeaderOf(const CsvOptions& options, bool hasHumidity)
{
    return CCsvText(options, hasHumidity).Header();
}

TEST(CsvHeader, NamesAllColumnsByDefault)
{
    EXPECT_EQ(HeaderOf({}, true), "Date/Time,X axis(G),Y axis(G),Z axis(G),Rsltnt(G),"
                                  "Temperature(C),Humidity(%)");
}

TEST(CsvHeader, LeavesOutWhatIsOff)
{
    CsvOptions options;
    options.accel = false;
    options.temperature = false;
    options.humidity = false;
    options.dateTime = false;
    EXPECT_EQ(HeaderOf(options, true), "Date,Time,X axis(G),Y axis(G),Z axis(G)");
}

TEST(CsvHeader, HasNoHumidityWhereTheDataHasNone)
{
    EXPECT_EQ(HeaderOf({}, false),
              "Date/Time,X axis(G),Y axis(G),Z axis(G),Rsltnt(G),Temperature(C)");
}

TEST(CsvHeader, NamesTheUnit)
{
    CsvOptions options;
    options.temperature = false;
    options.unit = CsvUnit::MetresPerSecondSquared;
    EXPECT_EQ(HeaderOf(options, false),
              "Date/Time,X axis(m/s^2),Y axis(m/s^2),Z axis(m/s^2),Rsltnt(m/s^2)");
    options.unit = CsvUnit::Gal;
    EXPECT_EQ(HeaderOf(options, false),
              "Date/Time,X axis(Gal),Y axis(Gal),Z axis(Gal),Rsltnt(Gal)");
}

TEST(CsvHeader, TakesItsNamesFromTheCaller)
{
    CsvNames names;
    names.dateTime = "when";
    names.x = "a";
    names.humidity = "wet";
    EXPECT_EQ(CCsvText({}, true).Header(names),
              "when,a(G),Y axis(G),Z axis(G),Rsltnt(G),Temperature(C),wet(%)");
}

TEST(CsvHeader, OfTheRavelinFormIsFixed)
{
    CsvOptions options;
    options.ravelin = true;
    options.unit = CsvUnit::Gal;
    options.dateTime = false;
    CsvNames names;
    names.x = "a";
    EXPECT_EQ(CCsvText(options, true).Header(names), "date time,x(G),y(G),z(G),temperature(C)");
}

TEST(CsvUnitOf, TakesAnyOtherNumberAsG)
{
    EXPECT_EQ(CsvUnitOf(0), CsvUnit::G);
    EXPECT_EQ(CsvUnitOf(1), CsvUnit::MetresPerSecondSquared);
    EXPECT_EQ(CsvUnitOf(2), CsvUnit::Gal);
    EXPECT_EQ(CsvUnitOf(3), CsvUnit::G);
    EXPECT_EQ(CsvUnitOf(-1), CsvUnit::G);
}

TEST(CsvRow, HasABlankBehindEachNumber)
{
    EXPECT_EQ(CsvRow(Sample(), 0, {}),
              "2009/05/01 12.30.15.250,1.200 ,0.500 ,-0.250 ,1.324 ,23.5 ,45.0 ");
}

TEST(CsvRow, HasDateAndTimeInTwoFieldsWhereAsked)
{
    CsvOptions options;
    options.dateTime = false;
    options.accel = false;
    options.temperature = false;
    options.humidity = false;
    EXPECT_EQ(CsvRow(Sample(), 0, options), "2009/05/01,12.30.15.250,1.200 ,0.500 ,-0.250 ");
}

TEST(CsvRow, TurnsAxesAndResultantIntoTheUnit)
{
    CsvOptions options;
    options.temperature = false;
    options.humidity = false;
    options.unit = CsvUnit::MetresPerSecondSquared;
    EXPECT_EQ(CsvRow(Sample(), 0, options),
              "2009/05/01 12.30.15.250,11.7600 ,4.9000 ,-2.4500 ,12.9734 ");
    options.unit = CsvUnit::Gal;
    EXPECT_EQ(CsvRow(Sample(), 0, options),
              "2009/05/01 12.30.15.250,1176.00 ,490.00 ,-245.00 ,1297.34 ");
}

TEST(CsvRow, PadsGalToSixPlaces)
{
    CMeasureData data;
    data.AddRecord(Line(0.0, 0.001, -0.001, 0.0, 0.0));
    CsvOptions options;
    options.unit = CsvUnit::Gal;
    EXPECT_EQ(CsvRow(data, 0, options),
              "2009/05/01 12.30.15.250,  0.00 ,  0.98 , -0.98 ,  1.39 ,0.0 ");
}

TEST(CsvRow, HasTheTemperatureWhetherTheDataHasOneOrNot)
{
    CMeasureData data = Sample();
    data.m_hasTemperature = false;
    data.m_hasHumidity = false;
    EXPECT_EQ(CsvRow(data, 0, {}), "2009/05/01 12.30.15.250,1.200 ,0.500 ,-0.250 ,1.324 ,23.5 ");
}

TEST(CsvRow, OfTheRavelinFormHoldsWholeTenthsOfG)
{
    CsvOptions options;
    options.ravelin = true;
    EXPECT_EQ(CsvRow(Sample(), 0, options), "2009/05/01 12:30:15.250,    12,     5,    -2,  23");
}

TEST(CsvRow, OfTheRavelinFormCutsTowardZero)
{
    CMeasureData data;
    data.AddRecord(Line(-0.19, 0.19, -0.05, 23.9, 0.0));
    data.AddRecord(Line(0.0, 0.0, 0.0, -23.9, 0.0));
    CsvOptions options;
    options.ravelin = true;
    EXPECT_EQ(CsvRow(data, 0, options), "2009/05/01 12:30:15.250,    -1,     1,     0,  23");
    EXPECT_EQ(CsvRow(data, 1, options), "2009/05/01 12:30:15.250,     0,     0,     0, -23");
}

TEST(CsvRow, OfTheRavelinFormIgnoresAllOtherOptions)
{
    CsvOptions options;
    options.ravelin = true;
    const std::string row = CsvRow(Sample(), 0, options);
    options = {false, false, false, false, true, CsvUnit::Gal};
    EXPECT_EQ(CsvRow(Sample(), 0, options), row);
}

TEST(CsvRow, OfTheRavelinFormHoldsNumbersBeyondAnInt)
{
    using Limits = std::numeric_limits<double>;
    CMeasureData data;
    data.AddRecord(Line(1e300, -Limits::infinity(), Limits::quiet_NaN(), 1e10, 0.0));
    CsvOptions options;
    options.ravelin = true;
    EXPECT_EQ(CsvRow(data, 0, options),
              "2009/05/01 12:30:15.250,2147483647,-2147483648,     0,2147483647");
}

TEST(CsvRow, OutsideTheDataIsEmpty)
{
    EXPECT_EQ(CsvRow(Sample(), 1, {}), "");
    EXPECT_EQ(CsvRow(CMeasureData(), 0, {}), "");
}

TEST(ExportCsv, WritesHeaderAndRowsWithCrLf)
{
    const CTemporaryFolder folder;
    ASSERT_FALSE(ExportCsv(Sample(), folder / "a.csv", {}));
    EXPECT_EQ(ReadText(folder / "a.csv"),
              "Date/Time,X axis(G),Y axis(G),Z axis(G),Rsltnt(G),Temperature(C),Humidity(%)\r\n"
              "2009/05/01 12.30.15.250,1.200 ,0.500 ,-0.250 ,1.324 ,23.5 ,45.0 \r\n");
}

TEST(ExportCsv, ReplacesTheExtension)
{
    const CTemporaryFolder folder;
    for (const char* const name : {"a.txt", "b", "c.CSV", "d.e.f"})
        ASSERT_FALSE(ExportCsv(Sample(), folder / name, {}));
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"a.csv", "b.csv", "c.CSV", "d.e.csv"}));
}

TEST(WriteCsvFile, KeepsTheNameItIsGiven)
{
    const CTemporaryFolder folder;
    ASSERT_FALSE(WriteCsvFile(Sample(), folder / "a.txt", {}));
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"a.txt"});
}

TEST(ExportCsv, WritesMarkedOrExtractedLinesAlone)
{
    const CTemporaryFolder folder;
    CMeasureData data;
    constexpr std::uint16_t All[] = {0x0000, 0x0001, 0x0010, 0x0801, 0x8000, 0x0200};
    for (const std::uint16_t flags : All)
        data.AddRecord(Line(flags, 0.0, 0.0, 0.0, 0.0, flags));
    CsvOptions options;
    options.ravelin = true;
    const auto lines = [&](const CsvFilter& filter) {
        EXPECT_FALSE(ExportCsv(data, folder / "a.csv", options, {}, filter));
        const std::string text = ReadText(folder / "a.csv");
        return std::count(text.begin(), text.end(), '\n') - 1;
    };
    EXPECT_EQ(lines({}), 6); // deleted lines among them
    EXPECT_EQ(lines({true, false}), 2);
    EXPECT_EQ(lines({false, true}), 2);
    EXPECT_EQ(lines({true, true}), 1);
}

TEST(ExportCsv, OfNoLinesHoldsTheHeader)
{
    const CTemporaryFolder folder;
    CsvOptions options;
    options.ravelin = true;
    ASSERT_FALSE(ExportCsv(CMeasureData(), folder / "a.csv", options));
    EXPECT_EQ(ReadText(folder / "a.csv"), "date time,x(G),y(G),z(G),temperature(C)\r\n");
}

TEST(ExportCsv, SaysWhyItFailed)
{
    const CTemporaryFolder folder;
    EXPECT_EQ(ExportCsv(Sample(), folder / "none/a.csv", {}), std::errc::no_such_file_or_directory);
    std::filesystem::create_directory(folder / "b.csv");
    EXPECT_EQ(ExportCsv(Sample(), folder / "b.txt", {}), std::errc::is_a_directory);
}

} // namespace
} // namespace skeldon::test
