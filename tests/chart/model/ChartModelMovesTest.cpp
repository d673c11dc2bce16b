#include "chart/model/ModelInWindow.h"

#include <utility>

namespace skeldon::test {
namespace {

TEST(ChartModelMoves, ZoomsInAndBackInTime)
{
    Chart chart(Ramp(101));
    EXPECT_FALSE(chart.model.CanDisplayAllArea());
    EXPECT_TRUE(chart.model.ZoomInTime());
    EXPECT_EQ(chart.Work(), ChartWork::Chart);
    EXPECT_EQ(chart.Seconds(), Seconds(25.0, 75.0));
    EXPECT_TRUE(chart.model.m_centerable);
    EXPECT_TRUE(chart.model.CanDisplayAllArea());
    EXPECT_TRUE(chart.model.ZoomInTime());
    EXPECT_EQ(chart.Seconds(), Seconds(37.5, 62.5));
    EXPECT_EQ(chart.model.m_drawn, (LineSpan{37, 63}));
    EXPECT_TRUE(chart.model.ZoomBack());
    EXPECT_TRUE(chart.model.ZoomBack());
    EXPECT_EQ(chart.Seconds(), Seconds(0.0, 100.0));
    EXPECT_FALSE(chart.model.ZoomBack());
}

TEST(ChartModelMoves, WidensANarrowSelectionAndZoomsNoFurther)
{
    Chart chart(Ramp(101));
    for (int i = 0; i < 8; ++i)
        ASSERT_TRUE(chart.model.ZoomInTime());
    const double perMs = chart.model.m_window.m_pixelsPerMs;
    const std::int64_t start = chart.model.m_window.m_viewStart;
    const int left = static_cast<int>(chart.model.m_window.Column(start + 100));
    chart.model.ZoomToColumns(left + static_cast<int>(40 * perMs), left);
    EXPECT_TRUE(chart.model.m_window.m_atMaxZoom);
    EXPECT_EQ(chart.model.m_window.View().Width(), 100);
    EXPECT_FALSE(chart.model.ZoomInTime());
    int windows = 0;
    while (chart.model.ZoomBack()) {
        EXPECT_FALSE(chart.model.m_window.m_atMaxZoom);
        ++windows;
    }
    EXPECT_EQ(windows, 9);
}

TEST(ChartModelMoves, CutsASelectionToTheData)
{
    Chart chart(Ramp(101));
    chart.model.ZoomToColumns(0, 266);
    EXPECT_EQ(chart.Seconds().first, 0.0);
    EXPECT_NEAR(chart.Seconds().second, 50.0, 0.01);
}

TEST(ChartModelMoves, ForgetsEarlierWindowsWhenAllIsShown)
{
    Chart chart(Ramp(101));
    chart.model.ZoomInTime();
    chart.model.m_centerable = false;
    chart.model.DisplayAllArea();
    EXPECT_EQ(chart.Seconds(), Seconds(0.0, 100.0));
    EXPECT_FALSE(chart.model.CanDisplayAllArea());
    EXPECT_TRUE(chart.model.m_centerable);
}

TEST(ChartModelMoves, CentresOnWhatIsDrawn)
{
    std::vector<double> x(101, 0.0);
    x[10] = 40.0;
    x[50] = 2.0;
    Chart chart(x);
    chart.ShowOnlyX();
    EXPECT_TRUE(chart.model.m_centerable);
    chart.model.ZoomInTime();
    chart.model.DisplayInCenter();
    // Only 0 to 2 lie in the window: 9 * 2 / 320 = 0.05625.
    EXPECT_EQ(chart.model.Step(), 5);
    EXPECT_EQ(chart.model.m_scale.m_scrollY, 4524 - 90 - 160);
    EXPECT_FALSE(chart.model.m_centerable);
    EXPECT_FALSE(chart.model.CanDisplayInCenter());
}

TEST(ChartModelMoves, KeepsTheMiddleForTheGaugeAndForCommands)
{
    Chart chart(std::vector<double>{-1.0, 1.5, 0.0});
    chart.ShowOnlyX();
    chart.model.ResetData();
    chart.model.ChangeScaleStep(6);
    const int byCommand = chart.model.m_scale.m_scrollY;
    // The middle was content row 4342 + 160, so 4478 from the plot's top.
    EXPECT_EQ(byCommand, 2 * 4478 - 160 + 24);
    EXPECT_TRUE(chart.model.m_centerable);
    EXPECT_EQ(chart.model.m_gauge.m_step, 6U);
    chart.model.ResetData();
    ASSERT_EQ(chart.model.Step(), 5);
    // The gauge has taken the step before the chart hears of it.
    ASSERT_TRUE(chart.model.m_gauge.Release(chart.model.m_gauge.RowOfStep(6) + 12));
    chart.model.SetScaleStep(6);
    EXPECT_EQ(chart.model.m_scale.m_scrollY, byCommand);
    EXPECT_EQ(chart.model.m_gauge.m_previousStep, 6U);
}

TEST(ChartModelMoves, MovesOnlyTheCursorWhileAllIsShown)
{
    Chart chart(Ramp(101));
    chart.model.FollowLine(70);
    EXPECT_EQ(chart.Work(), ChartWork::Compose);
    EXPECT_EQ(chart.model.m_currentLine, 70);
    EXPECT_EQ(chart.model.m_cursorX, chart.ColumnOf(70));
    EXPECT_EQ(chart.model.m_followX, chart.ColumnOf(70));
    EXPECT_EQ(chart.Seconds(), Seconds(0.0, 100.0));
}

TEST(ChartModelMoves, RecentresOnALineFromTheList)
{
    Chart chart(Ramp(101));
    chart.model.ZoomInTime();
    (void)chart.Work();
    chart.model.FollowLine(60);
    EXPECT_EQ(chart.Work(), ChartWork::Chart);
    EXPECT_EQ(chart.Seconds(), Seconds(35.0, 85.0));
    EXPECT_EQ(chart.model.m_cursorX, chart.ColumnOf(60));
    EXPECT_EQ(chart.model.m_followX, chart.model.m_cursorX);
    // Where the column stays as it is, so does the window.
    chart.model.FollowLine(60);
    EXPECT_EQ(chart.Work(), ChartWork::Compose);
    chart.model.FollowLine(61);
    EXPECT_EQ(chart.Work(), ChartWork::Chart);
    EXPECT_EQ(chart.Seconds(), Seconds(36.0, 86.0));
    // At the ends it stays in the data.
    chart.model.FollowLine(2);
    EXPECT_EQ(chart.Seconds(), Seconds(0.0, 50.0));
    chart.model.FollowLine(99);
    EXPECT_EQ(chart.Seconds(), Seconds(50.0, 100.0));
}

TEST(ChartModelMoves, KeepsTheWindowForALineFromTheMouse)
{
    Chart chart(Ramp(101));
    chart.model.ZoomInTime();
    chart.model.m_lineFromMouse = true;
    (void)chart.Work();
    chart.model.FollowLine(74);
    EXPECT_EQ(chart.Work(), ChartWork::Compose);
    EXPECT_EQ(chart.Seconds(), Seconds(25.0, 75.0));
    EXPECT_EQ(chart.model.m_cursorX, chart.ColumnOf(74));
    EXPECT_FALSE(chart.model.m_lineFromMouse);
}

TEST(ChartModelMoves, RecentresOnTheMousesLineOnceTheListSetsIt)
{
    Chart chart(Ramp(101));
    chart.model.ZoomInTime();
    chart.model.m_lineFromMouse = true;
    chart.model.FollowLine(60);
    EXPECT_EQ(chart.Seconds(), Seconds(25.0, 75.0));
    chart.model.FollowLine(60);
    EXPECT_EQ(chart.Seconds(), Seconds(35.0, 85.0));
}

TEST(ChartModelMoves, LosesTheCursorOfASingleLineAtARepaint)
{
    // In line form it is left by the stretches, of which there is none.
    const auto change = [](auto operation) {
        Chart chart(std::vector<double>{3.0});
        chart.model.FollowLine(0);
        EXPECT_EQ(chart.model.m_cursorX, chart.ColumnOf(0));
        operation(chart.model);
        return chart.model.m_cursorX;
    };
    EXPECT_EQ(change([](CChartModel& model) { model.Repaint(); }), 0);
    EXPECT_EQ(change([](CChartModel& model) { model.SetLineWeight(2); }), 0);
    EXPECT_NE(change([](CChartModel& model) { model.SetBarChart(true); }), 0);
}

TEST(ChartModelMoves, IgnoresLinesThatThereAreNot)
{
    Chart chart(Ramp(101));
    chart.model.FollowLine(5);
    const int cursor = chart.model.m_cursorX;
    chart.model.m_lineFromMouse = true;
    (void)chart.Work();
    for (const int line : {-1, 101, 5000}) {
        chart.model.FollowLine(line);
        EXPECT_EQ(chart.model.m_currentLine, 5);
        EXPECT_EQ(chart.model.m_cursorX, cursor);
        EXPECT_TRUE(chart.model.m_lineFromMouse);
        EXPECT_EQ(chart.Work(), ChartWork::None);
    }
}

TEST(ChartModelMoves, ForgetsTheCurrentLineWithItsData)
{
    Chart chart(Ramp(101));
    chart.model.FollowLine(5);
    chart.model.ResetData();
    EXPECT_EQ(chart.model.m_currentLine, -1);
    EXPECT_EQ(chart.model.m_cursorX, 0);
    EXPECT_EQ(chart.model.m_followX, 0);
}

TEST(ChartModelMoves, ScrollsAndTellsThatItCanBeCentred)
{
    Chart chart(std::vector<double>{-1.0, 1.5, 0.0});
    chart.model.m_centerable = false;
    const int position = chart.model.m_scale.m_scrollY;
    chart.model.ScrollVertically(ScrollRequest::LineForward, 0, false);
    EXPECT_EQ(chart.model.m_scale.m_scrollY, position + 16);
    EXPECT_TRUE(chart.model.m_centerable);
    EXPECT_EQ(chart.Work(), ChartWork::Chart);
    chart.model.ScrollVertically(ScrollRequest::Begin, 0, false);
    (void)chart.Work();
    chart.model.ScrollVertically(ScrollRequest::LineBack, 0, false);
    EXPECT_EQ(chart.Work(), ChartWork::None);
}

TEST(ChartModelMoves, ScrollsTheTimeWindowWithinTheData)
{
    Chart chart(Ramp(101));
    chart.model.ZoomInTime();
    chart.model.m_centerable = false;
    chart.model.ScrollHorizontally(ScrollRequest::Thumb, 10'000, false);
    EXPECT_EQ(chart.Seconds(), Seconds(10.0, 60.0));
    EXPECT_TRUE(chart.model.m_centerable);
    chart.model.ScrollHorizontally(ScrollRequest::End, 0, false);
    EXPECT_EQ(chart.Seconds(), Seconds(50.0, 100.0));
    EXPECT_EQ(chart.model.HorzScroll(), (ScrollBarState{true, 100'000, 50'000, 50'000}));
    (void)chart.Work();
    chart.model.m_centerable = false;
    chart.model.ScrollHorizontally(ScrollRequest::Thumb, 50'000, false);
    EXPECT_EQ(chart.Work(), ChartWork::None);
    EXPECT_FALSE(chart.model.m_centerable);
    // At the end a request for more changes no window, and yet the view counts as moved.
    chart.model.ScrollHorizontally(ScrollRequest::LineForward, 0, false);
    EXPECT_EQ(chart.Seconds(), Seconds(50.0, 100.0));
    EXPECT_TRUE(chart.model.m_centerable);
}

TEST(ChartModelMoves, ScrollsNoWindowThatShowsAll)
{
    Chart chart(Ramp(101));
    chart.model.m_centerable = false;
    (void)chart.Work();
    chart.model.ScrollHorizontally(ScrollRequest::LineForward, 0, false);
    EXPECT_EQ(chart.Work(), ChartWork::None);
    EXPECT_FALSE(chart.model.m_centerable);
}

TEST(ChartModelMoves, CanBeCentredAfterItsHeightChanged)
{
    Chart chart(Ramp(101));
    EXPECT_FALSE(chart.model.m_centerable);
    chart.model.Resize({600, 300, 16, 16, 16, 30, 12});
    EXPECT_TRUE(chart.model.m_centerable);
    EXPECT_EQ(chart.Work(), ChartWork::Chart);
    EXPECT_EQ(chart.model.ContentRoom(), 220);
    chart.model.m_centerable = false;
    chart.model.Resize({700, 300, 16, 16, 16, 30, 12});
    EXPECT_FALSE(chart.model.m_centerable);
    EXPECT_EQ(chart.model.PlotRect().right, 552);
    EXPECT_EQ(chart.ColumnOf(0), 80 + 1);
}

} // namespace
} // namespace skeldon::test
