#include "chart/model/BarWalk.h"

#include "chart/model/PlainWalk.h"

namespace skeldon {
namespace {

struct Sample
{
    std::int64_t time; ///< milliseconds
    double x;
    double y = 0.0;
    double z = 0.0;
    std::uint16_t flags = 0;
};

/// X, Y and Z alone. A column a millisecond from column 100 on, bars of 2 columns at each side,
/// 9 pixels a unit about row 474.
struct Chart
{
    Lines lines;
    CLineIndex index;
    WalkView view;

    explicit Chart(const std::vector<Sample>& samples)
    {
        for (const Sample& sample : samples) {
            CMeasureRecord line{CalendarSeconds{0}};
            line.SetValues(0, static_cast<std::uint32_t>(sample.time), sample.x, sample.y, sample.z,
                           0, 0);
            line.SetFlags(sample.flags);
            lines.push_back(line);
        }
        index.Build(lines);
        view.window.SetBarWidth(4);
        view.window.SetData(2, 198);
        view.window.ShowAll();
        view.window.SetPlot(100, 300);
        view.scale.SetStep(2, 14);
        view.drawn = {true, true, true, false, false, false};
        view.lastLine = static_cast<int>(lines.size()) - 1;
    }
    std::vector<ChartBarFill> Walk(int current = -1) const
    {
        std::vector<ChartBarFill> fills;
        CBarWalk(index, view, current).Walk(fills);
        return fills;
    }
};

ChartBarFill Bar(int left, int top, int right, int bottom, Series series, bool isDimmed = false)
{
    return {{left, top, right, bottom}, series, BarFillKind::Bar, isDimmed};
}

ChartBarFill Edge(int left, int row, int right)
{
    return {{left, row, right, row + 1}, Series::X, BarFillKind::Edge, false};
}

TEST(BarWalk, DrawsABarAboutItsColumn)
{
    EXPECT_EQ(Chart({{10, 2.0}}).Walk(), std::vector{Bar(108, 456, 113, 474, Series::X)});
    EXPECT_EQ(Chart({{10, -2.0}}).Walk(), std::vector{Bar(108, 474, 113, 491, Series::X)});
}

TEST(BarWalk, ShowsWhatALongerSeriesHasBehindAShorterOne)
{
    EXPECT_EQ(Chart({{10, 2.0, 5.0, -1.0}}).Walk(),
              (std::vector{Bar(108, 474, 113, 482, Series::Z), Bar(108, 456, 113, 474, Series::X),
                           Bar(108, 429, 113, 456, Series::Y)}));
}

TEST(BarWalk, PutsTheLaterOfTwoEqualSeriesInFront)
{
    EXPECT_EQ(Chart({{10, 3.0, 3.0, 3.0}}).Walk(), std::vector{Bar(108, 447, 113, 474, Series::Z)});
}

TEST(BarWalk, PaintsNothingForAnOffsetOfZero)
{
    EXPECT_EQ(Chart({{10, 0.0, 1.0, -0.1}}).Walk(),
              std::vector{Bar(108, 465, 113, 474, Series::Y)});
    EXPECT_TRUE(Chart({{10, 0.0}}).Walk().empty());
}

TEST(BarWalk, LeavesOutWhatLaterBarsOfTheColumnCover)
{
    EXPECT_EQ(Chart({{10, 5.0}, {10, 2.0}, {10, 4.0}, {10, 3.0}}).Walk(),
              (std::vector{Bar(108, 447, 113, 474, Series::X), Bar(108, 438, 113, 447, Series::X),
                           Bar(108, 429, 113, 438, Series::X)}));
}

TEST(BarWalk, DrawsTheCurrentLineLastAndInFullWithWhiteEdges)
{
    EXPECT_EQ(Chart({{10, 2.0}, {10, 5.0}, {10, 4.0}}).Walk(0),
              (std::vector{Bar(108, 438, 113, 474, Series::X), Bar(108, 429, 113, 438, Series::X),
                           Bar(108, 456, 113, 474, Series::X), Edge(108, 455, 113),
                           Edge(108, 474, 113)}));
}

TEST(BarWalk, TakesTheZeroLineIntoTheEdges)
{
    EXPECT_EQ(Chart({{10, -1.0, -2.0, -3.0}}).Walk(0).back(), Edge(108, 500, 113));
    const std::vector<ChartBarFill> fills = Chart({{10, -1.0, -2.0, -3.0}}).Walk(0);
    EXPECT_EQ(fills[fills.size() - 2], Edge(108, 473, 113));
    // Without any height there are the edges alone.
    EXPECT_EQ(Chart({{10, 0.0}}).Walk(0), (std::vector{Edge(108, 473, 113), Edge(108, 474, 113)}));
}

TEST(BarWalk, DimsABarByItsOwnLineAlone)
{
    EXPECT_EQ(
        Chart({{10, 1.0}, {20, 1.0, 0.0, 0.0, 0x8000}, {30, 1.0, 0.0, 0.0, 0x0001}}).Walk(),
        (std::vector{Bar(108, 465, 113, 474, Series::X), Bar(118, 465, 123, 474, Series::X, true),
                     Bar(128, 465, 133, 474, Series::X)}));
}

TEST(BarWalk, FillsNoRowsButThoseAskedFor)
{
    const Chart chart({{10, 5.0, -5.0}});
    std::vector<ChartBarFill> fills;
    CBarWalk(chart.index, chart.view, 0, 440, 480).Walk(fills);
    EXPECT_EQ(fills, (std::vector{Bar(108, 474, 113, 480, Series::Y),
                                  Bar(108, 440, 113, 474, Series::X)}));
}

TEST(BarWalk, DrawsARunOfLinesAlone)
{
    const Chart chart({{10, 1.0}, {20, 2.0}, {20, 3.0}, {30, 4.0}});
    std::vector<ChartBarFill> fills;
    CBarWalk(chart.index, chart.view, 1).WalkLines(1, 2, fills);
    EXPECT_EQ(fills,
              (std::vector{Bar(118, 447, 123, 474, Series::X), Bar(118, 456, 123, 474, Series::X),
                           Edge(118, 455, 123), Edge(118, 474, 123)}));
}

TEST(BarWalk, ScalesToTheDevice)
{
    Chart chart({{10, 2.0}});
    chart.view.scaleX = 2.0;
    chart.view.scaleY = 1.5;
    EXPECT_EQ(chart.Walk(), std::vector{Bar(216, 684, 226, 711, Series::X)});
}

} // namespace
} // namespace skeldon
