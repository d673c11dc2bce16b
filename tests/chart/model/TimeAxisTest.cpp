#include "chart/model/TimeAxis.h"

#include "base/CalendarTime.h"
#include "base/ZoneScope.h"

#include <random>

namespace skeldon {
namespace {

std::int64_t Local(int year, int month, int day, int hour = 0, int minute = 0, int second = 0,
                   int msec = 0)
{
    return FromLocalFields({year, month, day, hour, minute, second}) * 1000 + msec;
}

constexpr std::int64_t Second = 1000;
constexpr std::int64_t Minute = 60 * Second;
constexpr std::int64_t Hour = 60 * Minute;
constexpr std::int64_t Day = 24 * Hour;

CTimeTicks Plan(std::int64_t start, std::int64_t span)
{
    return PlanTimeTicks(start, start + span, std::nullopt);
}

TEST(TimeAxis, HasTicksOfMillisecondsBelowFiveSeconds)
{
    const std::int64_t start = Local(2012, 5, 6, 7, 8, 9, 777);
    const auto interval = [start](std::int64_t span) {
        const CTimeTicks ticks = Plan(start, span);
        EXPECT_EQ(ticks.m_tickSeconds, 0);
        EXPECT_EQ(ticks.m_firstTick % ticks.m_tickMs, 0);
        EXPECT_LE(ticks.m_firstTick, start);
        EXPECT_GT(ticks.m_firstTick + ticks.m_tickMs, start);
        return ticks.m_tickMs;
    };
    EXPECT_EQ(interval(4999), 500);
    EXPECT_EQ(interval(2500), 500);
    EXPECT_EQ(interval(2499), 200);
    EXPECT_EQ(interval(1000), 200);
    EXPECT_EQ(interval(999), 100);
    EXPECT_EQ(interval(500), 100);
    EXPECT_EQ(interval(499), 50);
    EXPECT_EQ(interval(250), 50);
    EXPECT_EQ(interval(249), 20);
    EXPECT_EQ(interval(100), 20);
}

TEST(TimeAxis, TakesTheStepFromTheTableOfItsSpan)
{
    const std::int64_t start = Local(2012, 5, 6, 7, 8, 9);
    const auto interval = [start](std::int64_t span) {
        EXPECT_EQ(Plan(start, span).m_tickMs, 0);
        return Plan(start, span).m_tickSeconds;
    };
    EXPECT_EQ(interval(5000), 1);
    EXPECT_EQ(interval(9999), 1);
    EXPECT_EQ(interval(10 * Second), 2);
    EXPECT_EQ(interval(24 * Second), 2);
    EXPECT_EQ(interval(25 * Second), 5);
    EXPECT_EQ(interval(50 * Second), 10);
    EXPECT_EQ(interval(75 * Second), 15);
    EXPECT_EQ(interval(100 * Second), 20);
    EXPECT_EQ(interval(150 * Second), 30);
    // 60 seconds are never picked.
    EXPECT_EQ(interval(300 * Second - 1), 30);
    EXPECT_EQ(interval(5 * Minute), 60);
    EXPECT_EQ(interval(10 * Minute), 120);
    EXPECT_EQ(interval(5 * Hour - 1), 30 * 60);
    EXPECT_EQ(interval(5 * Hour), 3600);
    EXPECT_EQ(interval(10 * Hour), 2 * 3600);
    EXPECT_EQ(interval(15 * Hour), 3 * 3600);
    EXPECT_EQ(interval(30 * Hour), 6 * 3600);
    EXPECT_EQ(interval(60 * Hour), 12 * 3600);
    // Nor are 24 hours.
    EXPECT_EQ(interval(120 * Hour - 1), 12 * 3600);
    EXPECT_EQ(interval(5 * Day), 86400);
    EXPECT_EQ(interval(10 * Day), 2 * 86400);
    EXPECT_EQ(interval(25 * Day), 5 * 86400);
    EXPECT_EQ(interval(35 * Day - 1), 5 * 86400);
    EXPECT_EQ(interval(35 * Day), 604800);
    EXPECT_EQ(interval(70 * Day), 2 * 604800);
    EXPECT_EQ(interval(150 * Day - 1), 2 * 604800);
    EXPECT_EQ(interval(150 * Day), 2592000);
    EXPECT_EQ(interval(300 * Day), 2 * 2592000);
    EXPECT_EQ(interval(750 * Day), 5 * 2592000);
    EXPECT_EQ(interval(1500 * Day), 10 * 2592000);
    EXPECT_EQ(interval(4500 * Day), 30 * 2592000);
    EXPECT_EQ(interval(40000 * Day), 30 * 2592000);
}

TEST(TimeAxis, RoundsTheFirstTickDownOnTheLocalClock)
{
    const std::int64_t start = Local(2012, 5, 27, 17, 38, 49, 123);
    EXPECT_EQ(Plan(start, 5 * Second).m_firstTick, Local(2012, 5, 27, 17, 38, 49));
    EXPECT_EQ(Plan(start, 75 * Second).m_firstTick, Local(2012, 5, 27, 17, 38, 45));
    EXPECT_EQ(Plan(start, 5 * Minute).m_firstTick, Local(2012, 5, 27, 17, 38));
    EXPECT_EQ(Plan(start, 75 * Minute).m_firstTick, Local(2012, 5, 27, 17, 30));
    EXPECT_EQ(Plan(start, 5 * Hour).m_firstTick, Local(2012, 5, 27, 17));
    EXPECT_EQ(Plan(start, 30 * Hour).m_firstTick, Local(2012, 5, 27, 12));
    EXPECT_EQ(Plan(start, 5 * Day).m_firstTick, Local(2012, 5, 27));
    EXPECT_EQ(Plan(start, 25 * Day).m_firstTick, Local(2012, 5, 25));
    // Steps of weeks and months round the day of the month as well.
    EXPECT_EQ(Plan(start, 70 * Day).m_firstTick, Local(2012, 5, 26));
    EXPECT_EQ(Plan(start, 1500 * Day).m_firstTick, Local(2012, 5, 20));
}

TEST(TimeAxis, GoesToTheLastDayOfTheMonthBeforeWhereTheDayRoundsToZero)
{
    EXPECT_EQ(Plan(Local(2012, 5, 1, 3), 10 * Day).m_firstTick, Local(2012, 4, 30));
    EXPECT_EQ(Plan(Local(2012, 3, 4, 3), 25 * Day).m_firstTick, Local(2012, 2, 29));
    EXPECT_EQ(Plan(Local(2012, 5, 29), 4500 * Day).m_firstTick, Local(2012, 4, 30));
    // 86,400 seconds and not a calendar day: the clock was put forward on March 25th.
    EXPECT_EQ(Plan(Local(2012, 4, 1), 10 * Day).m_firstTick, Local(2012, 3, 31));
}

TEST(TimeAxis, CountsElapsedTicksFromTheFirstLine)
{
    const std::int64_t line = Local(2012, 5, 6, 7, 8, 9, 321);
    EXPECT_EQ(PlanTimeTicks(line + 5000, line + 15000, line), (CTimeTicks{line, 2, 0}));
    EXPECT_EQ(PlanTimeTicks(line - 50, line + 50, line), (CTimeTicks{line, 0, 20}));
}

CTimeWindow WindowOf(std::int64_t start, std::int64_t end, int left, int right)
{
    CTimeWindow window;
    window.SetBarWidth(0);
    window.SetData(start, end);
    window.ShowAll();
    window.SetPlot(left, right);
    return window;
}

TEST(TimeAxis, ShowsTheTicksOnThePlotWithBothEdges)
{
    const std::int64_t start = Local(2012, 5, 6, 7, 8, 10);
    const CTimeWindow window = WindowOf(start, start + 10 * Second, 100, 200);
    const std::vector<TimeTick> ticks =
        VisibleTicks(Plan(window.m_paddedStart, 10 * Second), window);
    ASSERT_EQ(ticks.size(), 6U);
    EXPECT_EQ(ticks[0], (TimeTick{start, 100}));
    EXPECT_EQ(ticks[1], (TimeTick{start + 2000, 120}));
    EXPECT_EQ(ticks[5], (TimeTick{start + 10000, 200}));
}

TEST(TimeAxis, PassesOverEarlierTicksLikeAWalkFromTheFirstOne)
{
    std::mt19937_64 random(7);
    for (int round = 0; round < 2000; ++round) {
        const std::int64_t line = Local(2010, 1, 1) + static_cast<std::int64_t>(random() % Day);
        const std::int64_t start = line + static_cast<std::int64_t>(random() % (50 * Minute));
        const std::int64_t span = 101 + static_cast<std::int64_t>(random() % (20 * Minute));
        const CTimeWindow window =
            WindowOf(start, start + span, 60, 61 + static_cast<int>(random() % 300));
        const CTimeTicks plan = PlanTimeTicks(window.m_paddedStart, window.m_paddedEnd, line);
        std::vector<TimeTick> expected;
        for (std::int64_t time = line;; time += plan.Interval()) {
            const std::int64_t column = window.Column(time);
            if (column > window.m_plotRight)
                break;
            if (column >= window.m_plotLeft)
                expected.push_back({time, static_cast<int>(column)});
        }
        ASSERT_EQ(VisibleTicks(plan, window), expected) << round;
    }
}

TEST(TimeAxis, LabelsTheTimeOfDayWithADateAtTheFirstTickAndWhereTheDayChanges)
{
    const std::int64_t start = Local(2012, 12, 31, 22);
    const std::vector<TimeTick> ticks{{start, 100}, {start + Hour, 200}, {start + 2 * Hour, 300}};
    EXPECT_EQ(
        TimeLabels(ticks, {start, 3600, 0}, std::nullopt, 15),
        (std::vector<TimeLabel>{
            {"12/31", 85}, {"22:00:00", 100}, {"23:00:00", 200}, {"1/1", 285}, {"00:00:00", 300}}));
}

TEST(TimeAxis, LabelsMillisecondsOfFineTicks)
{
    const std::int64_t start = Local(2012, 5, 6, 7, 8, 9, 980);
    const std::vector<TimeTick> ticks{{start, 100}, {start + 20, 200}};
    EXPECT_EQ(
        TimeLabels(ticks, {start, 0, 20}, std::nullopt, 12),
        (std::vector<TimeLabel>{
            {"5/6", 88}, {"07:08:09", 100}, {".980", 112}, {"07:08:10", 200}, {".000", 212}}));
}

TEST(TimeAxis, LabelsElapsedHoursWithoutWrappingThemAtADay)
{
    const std::int64_t start = Local(2012, 5, 6, 7, 8, 9, 50);
    const std::vector<TimeTick> ticks{
        {start, 100}, {start + 61 * Second, 200}, {start + 30 * Hour + 5 * Second, 300}};
    EXPECT_EQ(
        TimeLabels(ticks, {start, 61, 0}, start, 12),
        (std::vector<TimeLabel>{
            {"5/6", 88}, {"07:08:09", 100}, {".050", 112}, {"+0:01:01", 200}, {"+30:00:05", 300}}));
}

TEST(TimeAxis, LabelsElapsedMillisecondsOfFineTicks)
{
    const std::int64_t start = Local(2012, 5, 6, 7, 8, 9, 50);
    const std::vector<TimeTick> ticks{{start + 1200, 100}, {start + 1400, 200}};
    EXPECT_EQ(TimeLabels(ticks, {start, 0, 200}, start, 12),
              (std::vector<TimeLabel>{
                  {"+0:00:01", 100}, {".200", 112}, {"+0:00:01", 200}, {".400", 212}}));
}

TEST(TimeAxis, FollowsTheLocalZone)
{
    const CZoneScope zone("JST-9");
    const std::int64_t midnight = Local(2012, 5, 6);
    EXPECT_EQ(midnight, 1'336'230'000'000);
    EXPECT_EQ(Plan(midnight + 3 * Hour, 6 * Day).m_firstTick, midnight);
}

} // namespace
} // namespace skeldon
