#include "setup/conditions/ConditionText.h"
#include "base/CalendarTime.h"
#include "setup/conditions/SaveFileName.h"
#include "setup/conditions/StartOption.h"

#include <gtest/gtest.h>

namespace skeldon::test {
namespace {

TEST(SamplingListText, ShowsThePeriodInSecondsAndTheTraceMode)
{
    const char* texts[] = {"0.5000 sec", "0.1600 sec",
                           "0.1250 sec", "0.0625 sec",
                           "0.0312 sec", "0.0312 sec Trace mode",
                           "0.0200 sec", "0.0200 sec Trace mode",
                           "0.0100 sec", "0.0100 sec Trace mode"};
    for (int row = 0; row < 10; ++row)
        EXPECT_EQ(SamplingListText(row), texts[row]);
}

TEST(IntervalListText, ShowsTheLengthAndItsUnit)
{
    const char* texts[] = {"30 minute", "20 minute", "15 minute", "10 minute", "5 minute",
                           "4 minute",  "3 minute",  "2 minute",  "1 minute",  "30 sec",
                           "20 sec",    "15 sec",    "10 sec",    "5 sec",     "1 sec"};
    for (int row = 0; row < 15; ++row)
        EXPECT_EQ(IntervalListText(row), texts[row]);
}

TEST(LevelText, ShowsGWithOneDecimal)
{
    EXPECT_EQ(LevelText(0), "0.0");
    EXPECT_EQ(LevelText(7), "0.7");
    EXPECT_EQ(LevelText(102), "10.2");
    EXPECT_EQ(LevelText(495), "49.5");
}

TEST(StartOptionText, NamesTheFiveModes)
{
    EXPECT_EQ(StartOptionText(0), "Promptly, start measuring");
    EXPECT_EQ(StartOptionText(1), "Magnet trigger only on start measuring");
    EXPECT_EQ(StartOptionText(2),
              "Magnet on start measuring. After start, measuring stop on magnet");
    EXPECT_EQ(StartOptionText(3), "Magnet on start measuring. After start, measuring pause on "
                                  "magnet. Restart on releasing magnet");
    EXPECT_EQ(StartOptionText(4), "Magnet on start measuring. After start, measuring pause on "
                                  "releasing magnet. Restart on magnet");
}

TEST(StartOptionText, TakesAnyOtherValueAsSeconds)
{
    EXPECT_EQ(StartOptionText(5), "Start measuring in 5 seconds");
    EXPECT_EQ(StartOptionText(90), "Start measuring in 90 seconds");
    EXPECT_EQ(StartOptionText(-1), "Start measuring in -1 seconds");
    EXPECT_EQ(StartOptionText(1000), "Start measuring in 1000 seconds");
}

const CalendarSeconds Afternoon = FromLocalFields({2009, 2, 3, 14, 5, 9});

TEST(MakeTimeStamp, ShowsTheLocalTime)
{
    EXPECT_EQ(MakeTimeStamp(Afternoon), "20090203_140509");
    EXPECT_EQ(MakeTimeStamp(FromLocalFields({2038, 12, 31, 23, 59, 58})), "20381231_235958");
    EXPECT_EQ(MakeTimeStamp(FromLocalFields({987, 1, 2, 3, 4, 5})), "09870102_030405");
}

TEST(MakeTimeStamp, TakesThePresentTimeByItself)
{
    const CalendarSeconds before = Now();
    const std::string stamp = MakeTimeStamp();
    const CalendarSeconds after = Now();
    EXPECT_GE(stamp, MakeTimeStamp(before));
    EXPECT_LE(stamp, MakeTimeStamp(after));
}

TEST(MakeSaveFileName, HasAFormForEachSaveType)
{
    EXPECT_EQ(MakeSaveFileName(0, 7, "", Afternoon), "07_20090203_140509.skd");
    EXPECT_EQ(MakeSaveFileName(0, 7, "Bridge", Afternoon), "07_20090203_140509.skd");
    EXPECT_EQ(MakeSaveFileName(1, 7, "Bridge", Afternoon), "07_Bridge_20090203_140509.skd");
    EXPECT_EQ(MakeSaveFileName(2, 7, "Bridge", Afternoon), "Bridge_07_20090203_140509.skd");
}

TEST(MakeSaveFileName, LeavesOutAnEmptyTextAndTheTextOfAnyOtherType)
{
    EXPECT_EQ(MakeSaveFileName(1, 7, "", Afternoon), "07_20090203_140509.skd");
    EXPECT_EQ(MakeSaveFileName(2, 7, "", Afternoon), "07_20090203_140509.skd");
    EXPECT_EQ(MakeSaveFileName(3, 7, "Bridge", Afternoon), "07_20090203_140509.skd");
    EXPECT_EQ(MakeSaveFileName(-1, 7, "Bridge", Afternoon), "07_20090203_140509.skd");
}

TEST(MakeSaveFileName, ClampsTheHostNumber)
{
    for (const auto& [number, start] :
         {std::pair{0, "00_"}, std::pair{-1, "00_"}, std::pair{-2147483647 - 1, "00_"},
          std::pair{1, "01_"}, std::pair{98, "98_"}, std::pair{99, "99_"}, std::pair{120, "99_"},
          std::pair{2147483647, "99_"}})
        EXPECT_EQ(MakeSaveFileName(0, number, "", Afternoon),
                  std::string(start) + "20090203_140509.skd");
}

TEST(MakeSaveFileName, TakesTheTextAsItIs)
{
    EXPECT_EQ(MakeSaveFileName(1, 1, "a/b:%d\xE9", Afternoon), "01_a/b:%d\xE9_20090203_140509.skd");
}

} // namespace
} // namespace skeldon::test
