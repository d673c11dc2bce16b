#include "chart/model/LineIndex.h"

#include "chart/model/RandomCharts.h"

#include <cmath>
#include <limits>

namespace skeldon {
namespace {

using Limits = std::numeric_limits<double>;

TEST(LineIndex, GivesTheExtremesOfAnyLines)
{
    CRandomCharts random(11);
    for (const int count : {1, 15, 16, 17, 127, 128, 129, 1024, 2500}) {
        const Lines lines = random.MakeLines(count, false);
        CLineIndex index;
        index.Build(lines);
        for (int round = 0; round < 200; ++round) {
            const int first = static_cast<int>(random.Below(count));
            const int last = first + static_cast<int>(random.Below(count - first));
            const CValueRange range = index.Range(first, last);
            for (const Series series : AllSeries) {
                double low = Limits::infinity();
                double high = -Limits::infinity();
                for (int line = first; line <= last; ++line) {
                    low = std::min(low, AxisValue(index.Line(line), series));
                    high = std::max(high, AxisValue(index.Line(line), series));
                }
                ASSERT_EQ(range.Low(series), low) << first << " to " << last << " of " << count;
                ASSERT_EQ(range.High(series), high) << first << " to " << last << " of " << count;
            }
        }
    }
}

TEST(LineIndex, CountsWhatIsNoNumberAsZero)
{
    Lines lines(20, CMeasureRecord(CalendarSeconds{0}));
    for (CMeasureRecord& line : lines)
        line.SetValues(0, 0, 5.0, -3.0, 0.0, 0.0, 0.0);
    lines[7].SetValues(0, 0, Limits::quiet_NaN(), 0.0, Limits::infinity(), 0.0, 0.0);
    CLineIndex index;
    index.Build(lines);
    EXPECT_EQ(index.Range(0, 19).Low(Series::X), 0.0);
    EXPECT_EQ(index.Range(0, 19).High(Series::X), 5.0);
    EXPECT_EQ(index.Range(0, 6).Low(Series::X), 5.0);
    EXPECT_EQ(index.Range(0, 19).High(Series::Z), Limits::infinity());
    EXPECT_FALSE(std::isnan(index.Range(0, 19).High(Series::Resultant)));
}

CLineIndex IndexOf(Lines& lines, const std::vector<int>& seconds)
{
    lines.assign(seconds.size(), CMeasureRecord(CalendarSeconds{0}));
    for (std::size_t i = 0; i < seconds.size(); ++i)
        lines[i].SetValues(seconds[i], 0, 0, 0, 0, 0, 0);
    CLineIndex index;
    index.Build(lines);
    return index;
}

TEST(LineIndex, KnowsTheRunsOfRisingTimes)
{
    Lines lines;
    const CLineIndex index = IndexOf(lines, {1, 2, 2, 5, 4, 4, 9, 3});
    EXPECT_EQ(index.RunEnd(0), 4);
    EXPECT_EQ(index.RunEnd(3), 4);
    EXPECT_EQ(index.RunEnd(4), 7);
    EXPECT_EQ(index.RunEnd(7), 8);
    EXPECT_EQ(index.RunStart(3), 0);
    EXPECT_EQ(index.RunStart(4), 4);
    EXPECT_EQ(index.RunStart(7), 7);
}

TEST(LineIndex, FindsTimesThroughTheRuns)
{
    Lines lines;
    const CLineIndex index = IndexOf(lines, {1, 2, 2, 5, 4, 4, 9, 3});
    EXPECT_EQ(index.FirstAtOrAfter(2000, 0, 8), 1);
    EXPECT_EQ(index.FirstAtOrAfter(6000, 0, 8), 6);
    EXPECT_EQ(index.FirstAtOrAfter(4000, 4, 8), 4);
    EXPECT_EQ(index.FirstAtOrAfter(9001, 0, 8), 8);
    EXPECT_EQ(index.LastAtOrBefore(2000, 8), 2);
    EXPECT_EQ(index.LastAtOrBefore(3000, 8), 7);
    EXPECT_EQ(index.LastAtOrBefore(4000, 7), 5);
    EXPECT_EQ(index.LastAtOrBefore(999, 8), -1);
}

TEST(LineIndex, FindsTheLastLineThatReachesAHeight)
{
    CRandomCharts random(5);
    Lines lines(3000, CMeasureRecord(CalendarSeconds{0}));
    for (CMeasureRecord& line : lines)
        line.SetValues(0, 0, static_cast<double>(random.Below(100000)), 0, 0, 0, 0);
    CLineIndex index;
    index.Build(lines);
    for (int round = 0; round < 3000; ++round) {
        const double height = 100000.0 - std::pow(10.0, static_cast<double>(random.Below(6)));
        const int begin = static_cast<int>(random.Below(3000));
        const int end = begin + static_cast<int>(random.Below(3001 - begin));
        int expected = end - 1;
        while (expected >= begin && lines[static_cast<std::size_t>(expected)].m_x < height)
            --expected;
        ASSERT_EQ(index.LastReaching(
                      begin, end,
                      [&](const CValueRange& range) { return range.High(Series::X) >= height; }),
                  expected < begin ? -1 : expected);
    }
}

TEST(LineIndex, HoldsNothingWithoutLines)
{
    CLineIndex index;
    EXPECT_TRUE(index.IsEmpty());
    EXPECT_EQ(index.FirstAtOrAfter(0, 0, 0), 0);
    EXPECT_EQ(index.LastAtOrBefore(0, 0), -1);
    Lines lines;
    index = IndexOf(lines, {1, 2, 3});
    EXPECT_EQ(index.Count(), 3);
    index.Clear();
    EXPECT_TRUE(index.IsEmpty());
}

TEST(LineIndex, CostsAtMost15PercentOfTheLines)
{
    CRandomCharts random(3);
    for (const bool mayFall : {false, true}) {
        const Lines lines = random.MakeLines(100000, mayFall);
        CLineIndex index;
        index.Build(lines);
        EXPECT_LE(index.MemoryUse() * 100, lines.size() * sizeof(CMeasureRecord) * 15);
    }
}

} // namespace
} // namespace skeldon
