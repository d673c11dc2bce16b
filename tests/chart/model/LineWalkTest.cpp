#include "chart/model/LineWalk.h"

#include "chart/model/PlainWalk.h"

namespace skeldon {
namespace {

struct Sample
{
    std::int64_t time;
    double x;
    std::uint16_t flags = 0;
};

/// Lines with an X value alone. The window is one column a millisecond from column 100 on, the
/// scale 9 pixels a unit about row 474.
struct Chart
{
    Lines lines;
    CLineIndex index;
    WalkView view;

    explicit Chart(const std::vector<Sample>& samples, std::int64_t width = 200)
    {
        for (const Sample& sample : samples) {
            CMeasureRecord line{CalendarSeconds{0}};
            const std::int64_t msec = (sample.time % 1000 + 1000) % 1000;
            line.SetValues((sample.time - msec) / 1000, static_cast<std::uint32_t>(msec), sample.x,
                           0, 0, 0, 0);
            line.SetFlags(sample.flags);
            lines.push_back(line);
        }
        index.Build(lines);
        view.window.SetBarWidth(0);
        view.window.SetData(0, width);
        view.window.ShowAll();
        view.window.SetPlot(100, 100 + static_cast<int>(width));
        view.scale.SetStep(2, 14);
        view.drawn[0] = true;
        view.lastLine = static_cast<int>(lines.size()) - 1;
    }
    std::vector<ChartStroke> Walk() const
    {
        std::vector<ChartStroke> strokes;
        CLineWalk(index, view).Walk(strokes);
        return strokes;
    }
};

constexpr auto Column = StrokeKind::Column;
constexpr auto Stretch = StrokeKind::Stretch;

TEST(LineWalk, JoinsLinesOfDifferentColumns)
{
    const Chart chart({{0, 0.0}, {10, 1.0}, {20, -1.0}});
    EXPECT_EQ(chart.Walk(),
              (std::vector<ChartStroke>{{100, 474, 110, 465, Series::X, Stretch, false},
                                        {110, 465, 120, 482, Series::X, Stretch, false}}));
}

TEST(LineWalk, MergesTheLinesOfAColumnIntoOneStroke)
{
    const Chart chart({{0, 0.0}, {10, 1.0}, {10, 5.0}, {10, -3.0}, {10, 2.0}, {20, 0.0}});
    EXPECT_EQ(chart.Walk(),
              (std::vector<ChartStroke>{{100, 474, 110, 465, Series::X, Stretch, false},
                                        {110, 474 - 45, 110, 474 + 26, Series::X, Column, false},
                                        {110, 474 - 18, 120, 474, Series::X, Stretch, false}}));
}

TEST(LineWalk, DropsTheStrokeOfTheLastColumn)
{
    const Chart chart({{0, 0.0}, {10, 1.0}, {10, 5.0}, {10, -3.0}});
    EXPECT_EQ(chart.Walk(),
              (std::vector<ChartStroke>{{100, 474, 110, 465, Series::X, Stretch, false}}));
}

TEST(LineWalk, DrawsNothingForASingleLine)
{
    EXPECT_TRUE(Chart({{0, 1.0}}).Walk().empty());
    EXPECT_TRUE(Chart({}).Walk().empty());
}

TEST(LineWalk, TakesColumnsOfTheDevice)
{
    // Chart columns 110 and 111 are one column at half size and two at double size.
    Chart chart({{0, 0.0}, {10, 1.0}, {11, 3.0}, {12, 0.0}});
    chart.view.scaleX = 0.5;
    chart.view.scaleY = 2.0;
    // 110 * 0.5 + 0.5 = 55.5, 111 * 0.5 + 0.5 = 56, 112 * 0.5 + 0.5 = 56.5
    const std::vector<ChartStroke> half = chart.Walk();
    ASSERT_EQ(half.size(), 2U);
    EXPECT_EQ(half[0], (ChartStroke{50, 948, 55, 930, Series::X, Stretch, false}));
    EXPECT_EQ(half[1], (ChartStroke{55, 930, 56, 894, Series::X, Stretch, false}));
    chart.view.scaleX = 2.0;
    EXPECT_EQ(chart.Walk().size(), 3U);
}

TEST(LineWalk, TakesRowsLessWhatIsScrolledOff)
{
    Chart chart({{0, 0.0}, {10, 1.0}});
    chart.view.scale.m_scrollY = 400;
    EXPECT_EQ(chart.Walk(),
              (std::vector<ChartStroke>{{100, 74, 110, 65, Series::X, Stretch, false}}));
    // Rows above the surface lose a pixel to the cutting off.
    chart.view.scale.m_scrollY = 484;
    EXPECT_EQ(chart.Walk(),
              (std::vector<ChartStroke>{{100, -9, 110, -18, Series::X, Stretch, false}}));
}

TEST(LineWalk, DimsBothStretchesOfALineWithATopBit)
{
    for (const std::uint16_t flag :
         {RecordFlag::BehindBreak, RecordFlag::Abnormal, RecordFlag::Deleted}) {
        const Chart chart({{0, 0.0}, {10, 0.0}, {20, 0.0, flag}, {30, 0.0}, {40, 0.0}});
        std::vector<bool> dimmed;
        for (const ChartStroke& stroke : chart.Walk())
            dimmed.push_back(stroke.isDimmed);
        EXPECT_EQ(dimmed, (std::vector<bool>{false, true, true, false}));
    }
    const Chart marked({{0, 0.0}, {10, 0.0, 0x1FFF}});
    EXPECT_FALSE(marked.Walk()[0].isDimmed);
}

TEST(LineWalk, GivesAColumnTheColourOfTheStretchThatLeavesIt)
{
    const Chart inside({{10, 1.0}, {10, 5.0, 0x4000}, {10, 0.0}, {20, 0.0}});
    EXPECT_EQ(inside.Walk()[0].kind, Column);
    EXPECT_FALSE(inside.Walk()[0].isDimmed);
    const Chart leaving({{10, 1.0}, {10, 5.0}, {20, 0.0, 0x4000}});
    EXPECT_EQ(leaving.Walk()[0].kind, Column);
    EXPECT_TRUE(leaving.Walk()[0].isDimmed);
}

TEST(LineWalk, DrawsTheSeriesOfAStretchInTableOrder)
{
    Chart chart({{10, 1.0}, {10, 5.0}, {20, 0.0}});
    chart.view.drawn = {true, false, false, true, false, true};
    std::vector<std::pair<Series, StrokeKind>> order;
    for (const ChartStroke& stroke : chart.Walk())
        order.emplace_back(stroke.series, stroke.kind);
    EXPECT_EQ(order, (std::vector<std::pair<Series, StrokeKind>>{{Series::X, Column},
                                                                 {Series::X, Stretch},
                                                                 {Series::Resultant, Column},
                                                                 {Series::Resultant, Stretch},
                                                                 {Series::Humidity, Column},
                                                                 {Series::Humidity, Stretch}}));
}

TEST(LineWalk, MovesAFarEndToTheLimitAlongTheLine)
{
    EXPECT_EQ(InShortColumns({0, 0, 65534, 100}), (LineEnds{0, 0, 32767, 50}));
    EXPECT_EQ(InShortColumns({-65536, 100, 0, 0}), (LineEnds{-32768, 50, 0, 0}));
    // 0.5 is added before the fraction is cut off, below zero as well.
    EXPECT_EQ(InShortColumns({0, 0, 65534, 3}), (LineEnds{0, 0, 32767, 2}));
    EXPECT_EQ(InShortColumns({0, 0, 65534, -3}), (LineEnds{0, 0, 32767, -1}));
    EXPECT_EQ(InShortColumns({-32768, 7, 32767, 9}), (LineEnds{-32768, 7, 32767, 9}));
}

TEST(LineWalk, MovesTwoFarEndsToBothLimitsWithoutTheirSlope)
{
    EXPECT_EQ(InShortColumns({-50000, 10, 90000, 300}), (LineEnds{-32768, 10, 32767, 300}));
    EXPECT_EQ(InShortColumns({40000, 10, 90000, 300}), (LineEnds{-32768, 10, 32767, 300}));
}

TEST(LineWalk, DrawsTheStretchBetweenTwoFarLines)
{
    const Chart chart({{-100'000, 0.0}, {100'000, 10.0}});
    EXPECT_EQ(chart.Walk(),
              (std::vector<ChartStroke>{{-32767, 474, 32767, 384, Series::X, Stretch, false}}));
}

TEST(LineWalk, LeavesAColumnOpenThatLiesAboveAllRows)
{
    // No row of the column is above the empty span's, so nothing opens it.
    const Chart chart({{10, 1e5}, {10, 1e5}, {20, 0.0}});
    const std::vector<ChartStroke> strokes = chart.Walk();
    ASSERT_EQ(strokes.size(), 1U);
    EXPECT_EQ(strokes[0].kind, Stretch);
}

} // namespace
} // namespace skeldon
