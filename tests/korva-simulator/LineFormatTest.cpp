#include "SimulatedSupport.h"

namespace skeldon::test {

namespace {

std::string Line(LineKind kind, const Measurement& measurement)
{
    std::string text;
    AppendLine(text, kind, measurement);
    return text;
}

Measurement MeasuredAt(std::string_view time, int hundredths)
{
    Measurement measurement;
    measurement.centiseconds = At(time) * 100 + hundredths;
    return measurement;
}

TEST(LineKindOf, FollowsTypeAndFirmware)
{
    EXPECT_EQ(LineKindOf(0, false), LineKind::Oldest);
    EXPECT_EQ(LineKindOf(0, true), LineKind::Alpha);
    EXPECT_EQ(LineKindOf(10, false), LineKind::Standard);
    EXPECT_EQ(LineKindOf(7, false), LineKind::Standard);
    EXPECT_EQ(LineKindOf(50, true), LineKind::Alpha);
}

TEST(AppendLine, PacksMonthDayAndHourIntoTheFirstFourDigits)
{
    // Month 4, day 1, hour 0.
    EXPECT_EQ(Line(LineKind::Alpha, MeasuredAt("2024-04-01 00:00:00", 0)).substr(0, 4), "4020");
    // Month 12 is C, day 31 is 3 and 7, hour 23 is 17 hexadecimal.
    EXPECT_EQ(Line(LineKind::Alpha, MeasuredAt("2024-12-31 23:00:00", 0)).substr(0, 4), "C3F7");
}

TEST(AppendLine, PacksMinuteAndSecondIntoTheNextThreeDigits)
{
    // 59 minutes and 59 seconds: 111011 11 | 1011.
    EXPECT_EQ(Line(LineKind::Alpha, MeasuredAt("2024-04-01 00:59:59", 0)).substr(4, 3), "EFB");
    EXPECT_EQ(Line(LineKind::Alpha, MeasuredAt("2024-04-01 00:01:16", 0)).substr(4, 3), "050");
}

TEST(AppendLine, WritesTheStandardLineAsNineBytes)
{
    Measurement measurement = MeasuredAt("2024-04-01 00:00:00", 99);
    measurement.x = 1;
    measurement.y = -1;
    measurement.z = -127;
    measurement.temperature = 215;
    measurement.humidity = 40;
    EXPECT_EQ(Line(LineKind::Standard, measurement), "4020000501FF811563");
}

TEST(AppendLine, AddsTheHumidityToAnAlphaLine)
{
    Measurement measurement = MeasuredAt("2024-04-01 00:00:00", 0);
    measurement.humidity = 100;
    EXPECT_EQ(Line(LineKind::Alpha, measurement), "40200000000000000064");
}

TEST(AppendLine, CountsANegativeTemperatureFromTheNextLowerDegree)
{
    const auto temperature = [](int tenths) {
        Measurement measurement = MeasuredAt("2024-04-01 00:00:00", 0);
        measurement.temperature = tenths;
        const std::string line = Line(LineKind::Standard, measurement);
        return line.substr(7, 1) + " " + line.substr(14, 2);
    };
    EXPECT_EQ(temperature(-5), "5 FF");
    EXPECT_EQ(temperature(-15), "5 FE");
    EXPECT_EQ(temperature(-10), "0 FE");
    EXPECT_EQ(temperature(0), "0 00");
    EXPECT_EQ(temperature(9), "9 00");
}

TEST(AppendLine, GivesTheOldestLineSixteenthsAndWholeDegrees)
{
    Measurement measurement = MeasuredAt("2024-04-01 00:00:00", 94);
    measurement.x = 10;
    measurement.temperature = -15;
    measurement.humidity = 50;
    EXPECT_EQ(Line(LineKind::Oldest, measurement), "4020000F0A0000FE");
}

TEST(LineDigits, AreThoseOfTheWrittenLine)
{
    for (const LineKind kind : {LineKind::Oldest, LineKind::Standard, LineKind::Alpha})
        EXPECT_EQ(Line(kind, {}).size(), LineDigits(kind));
}

TEST(LineTime, ReadsWhatAppendLineWrote)
{
    const auto time = LineTime(Line(LineKind::Alpha, MeasuredAt("2024-12-31 23:59:58", 7)));
    ASSERT_TRUE(time);
    EXPECT_EQ(*time,
              (CalendarFields{
                  .year = 0, .month = 12, .day = 31, .hour = 23, .minute = 59, .second = 58}));
}

TEST(LineTime, IsNothingForALineWithoutADate)
{
    EXPECT_FALSE(LineTime("00000000000000000000"));
    EXPECT_FALSE(LineTime("4020"));
    EXPECT_FALSE(LineTime("40?00000"));
    EXPECT_FALSE(LineTime("403F0000")) << "hour 31";
    EXPECT_FALSE(LineTime("D0200000")) << "month 13";
    EXPECT_FALSE(LineTime("40000000")) << "day 0";
}

TEST(ShiftLine, MovesTheDateAndKeepsTheRest)
{
    std::string line = "C3F7EFB51122334455";
    ShiftLine(line, 2024, 1);
    EXPECT_EQ(line, "1020000"
                    "51122334455");
    std::string bad = "00000000112233445566";
    ShiftLine(bad, 2024, 1);
    EXPECT_EQ(bad, "00000000112233445566");
}

TEST(RecorderCalendar, KnowsNoDaylightSaving)
{
    EXPECT_EQ(At("2024-04-01 00:00:00") - At("2024-03-30 00:00:00"), 2 * SecondsPerDay);
    EXPECT_EQ(At("1970-01-01"), 0);
    EXPECT_EQ(RecorderTimeText(At("2024-02-29 23:59") + 59), "2024-02-29 23:59:59");
    EXPECT_EQ(RecorderTimeText(-1), "1969-12-31 23:59:59");
}

TEST(ParseRecorderTime, RefusesWhatIsNoDate)
{
    for (const char* const text :
         {"", "2024", "2024-02-30", "2023-02-29 00:00", "2024-01-01 24:00", "2024-01-01 00:60",
          "2024-01-01 00:00:60", "2024-01-01 00:00:0", "2024/01/01", "2024-13-01", "x024-01-01",
          "2024-01-01 00:00:00 "})
        EXPECT_FALSE(ParseRecorderTime(text)) << text;
}

TEST(RecordMemory, LosesItsOldestLineOnly)
{
    CRecordMemory memory;
    memory.DropOldest();
    for (const char* const line : {"A", "BB", "", "DDDD"})
        memory.Append(line);
    memory.DropOldest();
    EXPECT_EQ(memory.Wire(), "BB\r\n\r\nDDDD\r\n");
    memory.DropOldest();
    memory.DropOldest();
    EXPECT_EQ(memory.First(), "DDDD");
    EXPECT_EQ(memory.Count(), 1U);
    memory.Clear();
    EXPECT_EQ(memory.Wire(), "");
    EXPECT_EQ(memory.First(), "");
}

} // namespace

} // namespace skeldon::test
