#include "base/ZoneScope.h"
#include "data/Lines.h"

#include <gtest/gtest.h>

namespace skeldon {
namespace {

using testing::ElementsAre;

constexpr std::uint16_t Broken = RecordFlag::Abnormal | RecordFlag::BehindBreak;

/// A line with one of its quantities set.
CMeasureRecord LineWith(CalendarSeconds time, double temperature, double humidity,
                        std::uint32_t msec = 0)
{
    CMeasureRecord line{CalendarSeconds{0}};
    line.SetValues(time, msec, 0.0, 0.0, 0.0, temperature, humidity);
    return line;
}

CMeasureData AsFile(CMeasureData data)
{
    data.m_fromFile = true;
    return data;
}

TEST(Analyse, OfNoLinesResetsEverything)
{
    CMeasureData data = DataOf({LineAt(5, 2000, 0x0811), LineAt(3)});
    data.Analyse({});
    data.SetSize(0);
    data.Analyse({});
    EXPECT_EQ(data.m_firstBreak, -1);
    EXPECT_EQ(data.m_abnormalCount, 0);
    EXPECT_TRUE(data.m_marks.empty());
    EXPECT_EQ(data.m_maxAbs, 0.0);
    EXPECT_EQ(data.m_minStepMs, 5000);
    EXPECT_EQ(data.m_extractCount, 0);
    EXPECT_FALSE(data.m_badMsec || data.m_badTime || data.m_badTemperature || data.m_badHumidity ||
                 data.m_yearRepairable);
}

TEST(Analyse, OfOneLineFindsNoBreakAndNoStep)
{
    CMeasureData data = DataOf({LineAt(5)});
    data.Analyse({});
    EXPECT_EQ(data.m_firstBreak, 1);
    EXPECT_EQ(data.m_minStepMs, 5000);
    EXPECT_EQ(data.m_abnormalCount, 0);
}

TEST(Analyse, TakesTheLargestAbsoluteValueOfAnyAxis)
{
    CMeasureRecord line = LineAt(5);
    line.SetValues(5, 0, 1.0, -7.5, 3.0, 0.0, 0.0);
    CMeasureData data = DataOf({LineAt(4), line, LineAt(6)});
    data.Analyse({});
    EXPECT_EQ(data.m_maxAbs, 7.5);
}

TEST(Analyse, CountsLinesWithAnyExtractionBit)
{
    CMeasureData data =
        DataOf({LineAt(1, 0, 0x0810), LineAt(2, 0, 0x0200), LineAt(3, 0, 0x0080), LineAt(4)});
    data.Analyse({});
    EXPECT_EQ(data.m_extractCount, 2);
}

TEST(Analyse, LinesOfEqualTimeAreNoBreakAndNoStep)
{
    CMeasureData data = DataOf({LineAt(5, 100), LineAt(5, 100), LineAt(5, 400)});
    data.Analyse({});
    EXPECT_EQ(data.m_firstBreak, 3);
    EXPECT_EQ(data.m_minStepMs, 300);
    EXPECT_FALSE(data.m_badTime);
}

TEST(Analyse, FlagsEveryLineFromTheFirstBreakOn)
{
    CMeasureData data = DataOf({LineAt(10), LineAt(20), LineAt(15), LineAt(30), LineAt(29)});
    data.Analyse({});
    EXPECT_THAT(FlagsOf(data), ElementsAre(0, 0, Broken, Broken, Broken));
    EXPECT_EQ(data.m_firstBreak, 2);
    EXPECT_EQ(data.m_abnormalCount, 3);
    EXPECT_TRUE(data.m_badTime);
    EXPECT_EQ(data.GetRecord(2).m_checkKey, std::int64_t{15001} * 0x6001);
}

TEST(Analyse, SeesABreakOfOneMillisecond)
{
    CMeasureData data = DataOf({LineAt(10, 500), LineAt(10, 499)});
    data.Analyse({});
    EXPECT_EQ(data.m_firstBreak, 1);
}

TEST(Analyse, KeepsFlagsAndOnlyAddsToThem)
{
    CMeasureData data = DataOf({LineAt(10, 0, 0x8000), LineAt(9, 0, 0x0001)});
    data.Analyse({});
    EXPECT_THAT(FlagsOf(data), ElementsAre(0x8000, Broken | 0x0001));
    data.SetRecord(1, LineAt(11, 0, Broken));
    data.Analyse({});
    EXPECT_THAT(FlagsOf(data), ElementsAre(0x8000, Broken));
    EXPECT_EQ(data.m_abnormalCount, 0);
}

TEST(Analyse, TakesExactlyHundredAsNormalAndMoreAsAbnormal)
{
    CMeasureData data =
        DataOf({LineWith(1, 100.0, 100.0), LineWith(2, -100.0, 0.0), LineWith(3, 100.1, 0.0),
                LineWith(4, -100.1, 0.0), LineWith(5, 0.0, 100.1), LineWith(6, 0.0, -0.1)});
    data.Analyse({});
    EXPECT_THAT(FlagsOf(data), ElementsAre(0, 0, 0x4000, 0x4000, 0x4000, 0x4000));
    EXPECT_EQ(data.m_abnormalCount, 4);
    EXPECT_TRUE(data.m_badTemperature);
    EXPECT_TRUE(data.m_badHumidity);
    EXPECT_FALSE(data.m_badTime);
    EXPECT_FALSE(data.m_badMsec);
}

TEST(Analyse, TestsQuantitiesThatTheDataSetDoesNotCarry)
{
    CMeasureData data = DataOf({LineWith(1, 150.0, -5.0)});
    data.m_hasTemperature = false;
    data.m_hasHumidity = false;
    data.Analyse({});
    EXPECT_TRUE(data.m_badTemperature);
    EXPECT_TRUE(data.m_badHumidity);
}

TEST(Analyse, CutsMillisecondsAt999)
{
    CMeasureData data =
        DataOf({LineAt(1, 999), LineAt(2, 1000), LineAt(3, 0xFFFFFFFFU), LineAt(4, 0)});
    data.Analyse({});
    EXPECT_EQ(data.GetRecord(0).m_msec, 999U);
    EXPECT_EQ(data.GetRecord(1).m_msec, 999U);
    EXPECT_EQ(data.GetRecord(2).m_msec, 999U);
    EXPECT_THAT(FlagsOf(data), ElementsAre(0, 0x4000, 0x4000, 0));
    EXPECT_TRUE(data.m_badMsec);
    EXPECT_FALSE(data.m_badTime);
    EXPECT_EQ(data.GetRecord(1).m_checkKey, std::int64_t{3000} * 0x4001);
}

TEST(Analyse, BreaksAtAFirstLineWhoseMillisecondsAreTooLarge)
{
    // Its own time is taken before its milliseconds are cut.
    CMeasureData data = DataOf({LineAt(1, 1000), LineAt(9)});
    data.Analyse({});
    EXPECT_EQ(data.m_firstBreak, 0);
    EXPECT_THAT(FlagsOf(data), ElementsAre(Broken, Broken));
}

TEST(Analyse, TakesStepsOnlyBeforeTheFirstAbnormalLine)
{
    CMeasureData data =
        DataOf({LineAt(10), LineAt(13), LineAt(15), LineWith(16, 200.0, 0.0), LineAt(16, 1)});
    data.Analyse({});
    EXPECT_EQ(data.m_minStepMs, 2000);
}

TEST(Analyse, StartsTheSmallestStepAtFiveSeconds)
{
    CMeasureData data = DataOf({LineAt(10), LineAt(100), LineAt(200)});
    data.Analyse({});
    EXPECT_EQ(data.m_minStepMs, 5000);
}

TEST(Analyse, LeavesLinesThatTheDecoderFlaggedOutOfItsCounts)
{
    CMeasureData data = DataOf({LineAt(1, 0, 0x4000), LineAt(2, 0, 0x4000)});
    data.Analyse({});
    EXPECT_EQ(data.m_abnormalCount, 0);
    EXPECT_THAT(FlagsOf(data), ElementsAre(0x4000, 0x4000));
    EXPECT_EQ(data.m_minStepMs, 1000);
    EXPECT_FALSE(data.m_badMsec || data.m_badTime || data.m_badTemperature || data.m_badHumidity);
}

TEST(Analyse, PutsLinesBeforeTheReportsDayIntoTheNextYear)
{
    CMeasureData data =
        DataOf({LineOn(2008, 12, 30), LineOn(2008, 12, 31), LineOn(2008, 1, 1, 6, 7, 8)});
    data.Analyse({12, 30, FromLocalFields({2009, 1, 2, 0, 0, 0})});
    EXPECT_THAT(YearsOf(data), ElementsAre(2008, 2008, 2009));
    EXPECT_EQ(data.GetRecord(2).m_time, FromLocalFields({2009, 1, 1, 6, 7, 8}));
    EXPECT_EQ(data.m_firstBreak, 3);
    EXPECT_FALSE(data.m_badTime);
}

TEST(Analyse, BreaksAtTheNewYearWithoutTheReportsDay)
{
    CMeasureData data = DataOf({LineOn(2008, 12, 30), LineOn(2008, 12, 31), LineOn(2008, 1, 1)});
    data.Analyse({0, 0, FromLocalFields({2009, 1, 2, 0, 0, 0})});
    EXPECT_EQ(data.m_firstBreak, 2);
    EXPECT_TRUE(data.m_badTime);
    EXPECT_FALSE(data.m_yearRepairable);
    EXPECT_THAT(FlagsOf(data), ElementsAre(0, 0, Broken));
}

TEST(Analyse, TakesAStartOfHundredOrLessAsNone)
{
    CMeasureData data = DataOf({LineOn(2008, 1, 1)});
    for (const auto& [month, day] : {std::pair{0, 31}, std::pair{1, 0}, std::pair{0, 100}}) {
        data.Analyse({month, day, 0});
        EXPECT_THAT(YearsOf(data), ElementsAre(2008));
    }
    data.SetRecord(0, LineOn(2008, 1, 1));
    data.Analyse({1, 2, 0});
    EXPECT_THAT(YearsOf(data), ElementsAre(2009));
}

TEST(Analyse, LeavesTheYearsOfAFile)
{
    CMeasureData data = AsFile(DataOf({LineOn(2008, 1, 1)}));
    data.Analyse({12, 30, 0});
    EXPECT_THAT(YearsOf(data), ElementsAre(2008));
}

TEST(Analyse, MovesTheYearAgainInASecondPass)
{
    CMeasureData data = DataOf({LineOn(2008, 1, 1)});
    data.Analyse({12, 30, 0});
    data.Analyse({12, 30, 0});
    EXPECT_THAT(YearsOf(data), ElementsAre(2010));
}

TEST(Analyse, BreaksInTheHourThatComesTwice)
{
    const CZoneScope zone(Zone::Berlin);
    CMeasureData data = DataOf({LineOn(2008, 10, 26, 2, 30), LineOn(2008, 10, 26, 2, 50),
                                LineOn(2008, 10, 26, 2, 10), LineOn(2008, 10, 26, 3, 10)});
    data.Analyse({});
    EXPECT_EQ(data.m_firstBreak, 2);
}

} // namespace
} // namespace skeldon
