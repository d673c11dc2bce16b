#include "chart/model/Series.h"

#include <limits>

namespace skeldon {
namespace {

TEST(Series, HaveTheirMasksFactorsKeysAndColours)
{
    const std::vector<std::uint16_t> masks{0x0010, 0x0020, 0x0040, 0x0100, 0x0080, 0x0800};
    const std::vector<double> factors{1.0, 1.0, 1.0, 1.0, 0.5, 0.25};
    const std::vector<std::string> keys{"IconColorX", "IconColorY", "IconColorZ",
                                        "IconColorG", "IconColorC", "IconColorH"};
    const std::vector<std::uint32_t> colours{0xC50CC5, 0x800000, 0x008000,
                                             0x008080, 0x0202C1, 0xF98B49};
    for (const Series series : AllSeries) {
        EXPECT_EQ(Info(series).mask, masks[Index(series)]);
        EXPECT_EQ(Info(series).factor, factors[Index(series)]);
        EXPECT_EQ(Info(series).colourKey, keys[Index(series)]);
        EXPECT_EQ(Info(series).defaultColour, colours[Index(series)]);
    }
    EXPECT_STREQ(ItemColourKey, "IconColorItem");
    EXPECT_STREQ(MarkColourKey, "IconColorMark");
    EXPECT_EQ(DefaultItemColour, 0x000000U);
    EXPECT_EQ(DefaultMarkColour, 0x0000FFU);
}

TEST(Series, PutTemperatureAndHumidityOnTheAxisByTheirFactors)
{
    CMeasureRecord line{CalendarSeconds{0}};
    line.SetValues(0, 0, 1.0, 2.0, -2.0, 25.0, 60.0);
    EXPECT_EQ(AxisValue(line, Series::X), 1.0);
    EXPECT_EQ(AxisValue(line, Series::Y), 2.0);
    EXPECT_EQ(AxisValue(line, Series::Z), -2.0);
    EXPECT_EQ(AxisValue(line, Series::Resultant), 3.0);
    EXPECT_EQ(AxisValue(line, Series::Temperature), 12.5);
    EXPECT_EQ(AxisValue(line, Series::Humidity), 15.0);
}

TEST(Series, CountNoNumberAsZero)
{
    CMeasureRecord line{CalendarSeconds{0}};
    line.SetValues(0, 0, std::numeric_limits<double>::quiet_NaN(), 0, 0, 0, 0);
    EXPECT_EQ(AxisValue(line, Series::X), 0.0);
    EXPECT_EQ(AxisValue(line, Series::Resultant), 0.0);
}

TEST(Series, LightenEachChannelByItself)
{
    // (0 + 1020) / 5 = 204, (255 + 1020) / 5 = 255, (0xC5 + 1020) / 5 = 243, (0x0C + 1020) / 5 =
    // 206
    EXPECT_EQ(Lightened(0x000000), 0xCCCCCCU);
    EXPECT_EQ(Lightened(0xFFFFFF), 0xFFFFFFU);
    EXPECT_EQ(Lightened(0xC50CC5), 0xF3CEF3U);
    // 4 is lost: (4 + 1020) / 5 = 204.8
    EXPECT_EQ(Lightened(0x000004), 0xCCCCCCU);
    EXPECT_EQ(Lightened(0x000005), 0xCCCCCDU);
}

TEST(Series, AreDimmedByTheThreeTopBits)
{
    EXPECT_EQ(DimmedFlags, 0xE000);
}

} // namespace
} // namespace skeldon
