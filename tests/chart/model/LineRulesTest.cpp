#include "chart/model/LineRules.h"

#include "chart/model/PlainWalk.h"

namespace skeldon {
namespace {

/// Lines at milliseconds, each with its index as X value. A column a millisecond from column 100
/// on; a bar of 20 ms.
struct Chart
{
    Lines lines;
    CLineIndex index;
    CTimeWindow window;

    Chart(const std::vector<std::uint32_t>& times, std::int64_t start, std::int64_t end)
    {
        for (const std::uint32_t time : times) {
            CMeasureRecord line{CalendarSeconds{0}};
            line.SetValues(0, time, static_cast<double>(lines.size()), 0, 0, 0, 0);
            lines.push_back(line);
        }
        index.Build(lines);
        window.SetBarWidth(20);
        window.SetData(0, 10000);
        window.SetView(start, end);
        window.SetPlot(100, 120 + static_cast<int>(end - start));
    }
    [[nodiscard]] WalkView View() const
    {
        WalkView view;
        view.window = window;
        view.scale.SetStep(2, 14);
        view.drawn[0] = true;
        const LineSpan drawn = DrawnLines(index, window);
        view.firstLine = drawn.first;
        view.lastLine = drawn.last;
        return view;
    }
};

TEST(LineRules, DrawOneLineMoreAtEachSideOfTheWindow)
{
    // The padded window runs from 490 to 1010.
    const Chart chart({100, 300, 480, 600, 700, 1009, 1011, 1500}, 500, 1000);
    EXPECT_EQ(DrawnLines(chart.index, chart.window), (LineSpan{2, 6}));
    // A line on the padded start is the first, one on the padded end the last.
    const Chart exact({480, 490, 600, 1010, 1011}, 500, 1000);
    EXPECT_EQ(DrawnLines(exact.index, exact.window), (LineSpan{1, 3}));
    const Chart inside({600, 700}, 500, 1000);
    EXPECT_EQ(DrawnLines(inside.index, inside.window), (LineSpan{0, 1}));
    const Chart none({}, 500, 1000);
    EXPECT_TRUE(DrawnLines(none.index, none.window).IsEmpty());
}

TEST(LineRules, TouchTheWindowWithTheirBars)
{
    // A bar of a line at 480 ends at 490, one at 1019 begins at 1009.
    const Chart chart({479, 480, 600, 1019, 1020}, 500, 1000);
    EXPECT_EQ(GetVisibleLines(chart.index, chart.window), (LineSpan{1, 3}));
    const Chart beside({100, 2000}, 500, 1000);
    EXPECT_TRUE(GetVisibleLines(beside.index, beside.window).IsEmpty());
    const Chart before({100, 200}, 500, 1000);
    EXPECT_TRUE(GetVisibleLines(before.index, before.window).IsEmpty());
}

TEST(LineRules, PickTheFirstLineAtOrRightOfAColumn)
{
    const Chart chart({480, 600, 600, 700, 1500, 1600}, 500, 1000);
    const LineSpan drawn = DrawnLines(chart.index, chart.window);
    const auto pick = [&](std::int64_t time, bool isBarChart) {
        return PickLine(chart.index, chart.window, drawn,
                        static_cast<int>(chart.window.Column(time)), isBarChart);
    };
    EXPECT_EQ(pick(500, false), 1);
    EXPECT_EQ(pick(600, false), 1);
    EXPECT_EQ(pick(601, false), 3);
    // In bar form up to the right edge of its bar.
    EXPECT_EQ(pick(601, true), 1);
    EXPECT_EQ(pick(610, true), 1);
    EXPECT_EQ(pick(611, true), 3);
    EXPECT_EQ(pick(1000, false), 4);
    // Right of the last drawn line it is the index behind it.
    EXPECT_EQ(pick(1501, false), 5);
}

TEST(LineRules, FindALineLessThanTwoColumnsOff)
{
    const Chart chart({600, 700, 700, 703}, 500, 1000);
    const LineSpan drawn = DrawnLines(chart.index, chart.window);
    const auto near = [&](std::int64_t time) {
        return LineNear(chart.index, chart.window, drawn,
                        static_cast<int>(chart.window.Column(time)));
    };
    EXPECT_EQ(near(598), -1);
    EXPECT_EQ(near(599), 0);
    EXPECT_EQ(near(601), 0);
    EXPECT_EQ(near(602), -1);
    EXPECT_EQ(near(701), 1);
    EXPECT_EQ(near(702), 3);
    EXPECT_EQ(near(900), -1);
}

TEST(LineRules, FindTheLinesOfOneTime)
{
    const Chart chart({600, 700, 700, 700, 800}, 500, 1000);
    const LineSpan drawn{0, 4};
    EXPECT_EQ(EqualTimes(chart.index, drawn, 2), (LineSpan{1, 3}));
    EXPECT_EQ(EqualTimes(chart.index, drawn, 4), (LineSpan{4, 4}));
    EXPECT_EQ(EqualTimes(chart.index, {2, 4}, 3), (LineSpan{2, 3}));
    EXPECT_TRUE(EqualTimes(chart.index, {2, 4}, 1).IsEmpty());
}

TEST(LineRules, LeaveTheCursorAtTheCurrentLine)
{
    const Chart chart({480, 600, 700, 1100}, 500, 1000);
    const LineSpan drawn = DrawnLines(chart.index, chart.window);
    EXPECT_EQ(CursorColumn(chart.index, chart.window, drawn, 1, false), 210);
    EXPECT_EQ(CursorColumn(chart.index, chart.window, drawn, 0, false), 91);
    EXPECT_EQ(CursorColumn(chart.index, chart.window, drawn, 3, false), 710);
    EXPECT_EQ(CursorColumn(chart.index, chart.window, drawn, -1, false), 0);
    EXPECT_EQ(CursorColumn(chart.index, chart.window, {0, 1}, 2, false), 0);
    // A single line has no stretch that would set it, but a bar.
    EXPECT_EQ(CursorColumn(chart.index, chart.window, {1, 1}, 1, false), 0);
    EXPECT_EQ(CursorColumn(chart.index, chart.window, {1, 1}, 1, true), 210);
}

TEST(LineRules, LeaveNoCursorBehindALineBeyondSixteenBits)
{
    const Chart chart({0, 40000, 40100}, 39950, 40150);
    const LineSpan drawn = DrawnLines(chart.index, chart.window);
    EXPECT_EQ(CursorColumn(chart.index, chart.window, drawn, 1, false), 0);
    EXPECT_NE(CursorColumn(chart.index, chart.window, drawn, 2, false), 0);
    EXPECT_NE(CursorColumn(chart.index, chart.window, drawn, 1, true), 0);
}

TEST(LineRules, TakeTheExtremesOfTheStretchesOnThePlot)
{
    // Values are the indices. The first stretch comes from left of the plot, the last leaves it.
    const Chart chart({100, 300, 600, 700, 1100, 1500}, 500, 1000);
    EXPECT_EQ(DrawnLineExtremes(chart.index, chart.View()), (ValueSpan{1.0, 4.0}));
    // From a line beyond 16 bits nothing counts.
    const Chart far({0, 40000, 40100, 40600}, 39950, 40150);
    EXPECT_EQ(DrawnLineExtremes(far.index, far.View()), (ValueSpan{1.0, 3.0}));
    const Chart single({600}, 500, 1000);
    EXPECT_EQ(DrawnLineExtremes(single.index, single.View()),
              (ValueSpan{CValueScale::NoMinimum, CValueScale::NoMaximum}));
}

TEST(LineRules, TakeTheZeroLineIntoTheExtremesOfBars)
{
    const Chart chart({100, 300, 600, 700, 1100, 1500}, 500, 1000);
    EXPECT_EQ(DrawnBarExtremes(chart.index, chart.View()), (ValueSpan{0.0, 3.0}));
    const Chart none({}, 500, 1000);
    EXPECT_EQ(DrawnBarExtremes(none.index, none.View()), (ValueSpan{0.0, 0.0}));
}

TEST(LineRules, TellRisingTimesByTheFirstChange)
{
    const auto rises = [](const std::vector<std::uint32_t>& times) {
        return RisesAtFirstChange(Chart(times, 0, 1000).lines);
    };
    EXPECT_FALSE(rises({}));
    EXPECT_FALSE(rises({5}));
    EXPECT_FALSE(rises({5, 5, 5}));
    EXPECT_TRUE(rises({5, 5, 6, 1}));
    EXPECT_FALSE(rises({5, 5, 4, 9}));
}

} // namespace
} // namespace skeldon
