#include "chart/model/ChartModel.h"

#include "chart/model/BarWalk.h"
#include "chart/model/LineWalk.h"

#include <algorithm>
#include <utility>

namespace skeldon {
namespace {

/// An instant without a fraction of an hour.
constexpr std::int64_t Start = 1'300'000'000LL / 3600 * 3600;

/// One line a second with `x` as X value and nothing else.
CMeasureData DataOf(const std::vector<double>& x)
{
    CMeasureData data;
    for (std::size_t i = 0; i < x.size(); ++i) {
        CMeasureRecord line{CalendarSeconds{0}};
        line.SetValues(Start + static_cast<std::int64_t>(i), 0, x[i], 0, 0, 0, 0);
        data.AddRecord(line);
    }
    data.Analyse({0, 0, 0});
    return data;
}

std::vector<double> Ramp(int count)
{
    std::vector<double> x;
    for (int i = 0; i < count; ++i)
        x.push_back(i * 0.01);
    return x;
}

/// A chart in a window of 600 by 400. The plot runs from column 80 to 452; labels of the time strip
/// make it 64 rows high, so that 320 are left above it.
struct Chart
{
    CMeasureData data;
    CChartModel model;

    explicit Chart(CMeasureData shown)
        : data(std::move(shown))
    {
        model.Resize({600, 400, 16, 16, 16, 30, 12});
        model.Create(data,
                     [](const std::string& text) { return static_cast<int>(text.size()) * 7; });
        model.RescaleAndRepaint();
        model.ResetData();
        model.m_work = ChartWork::None;
    }
    explicit Chart(const std::vector<double>& x)
        : Chart(DataOf(x))
    {}

    /// What an operation left to be painted.
    ChartWork Work() { return std::exchange(model.m_work, ChartWork::None); }
    /// The window from and to so many seconds behind the first line.
    [[nodiscard]] std::pair<double, double> Seconds() const
    {
        const auto seconds = [](std::int64_t time) {
            return static_cast<double>(time - Start * 1000) / 1000.0;
        };
        return {seconds(model.m_window.m_viewStart), seconds(model.m_window.m_viewEnd)};
    }
    [[nodiscard]] int ColumnOf(int line) const
    {
        return static_cast<int>(model.m_window.Column(model.m_index.Time(line)));
    }
    void ShowOnlyX()
    {
        model.SetSeriesShown(0x09F0, false);
        model.SetSeriesShown(0x0010, true);
    }
};

using Seconds = std::pair<double, double>;

TEST(ChartModel, LaysTheWindowOut)
{
    const Chart chart(Ramp(101));
    EXPECT_EQ(chart.model.PlotBitmapWidth(), 568);
    EXPECT_EQ(chart.model.PlotRect().left, 12 + 30 + 38);
    EXPECT_EQ(chart.model.PlotRect().right, 568 - 80 - 30 - 6);
    EXPECT_EQ(chart.model.PlotRect().top, 24);
    EXPECT_EQ(chart.model.m_strip.m_timeStripHeight, 8 * 7 + 8);
    EXPECT_EQ(chart.model.ContentRoom(), 320);
    EXPECT_EQ(chart.model.m_gauge.m_height, 400 - 2 * 16);
}

TEST(ChartModel, ShowsAllLinesWithBarsOfHalfTheLeastStep)
{
    const Chart chart(Ramp(101));
    EXPECT_EQ(chart.data.m_minStepMs, 1000);
    EXPECT_EQ(chart.model.m_window.m_barWidthMs, 500);
    EXPECT_EQ(chart.Seconds(), Seconds(0.0, 100.0));
    EXPECT_EQ(chart.model.m_window.m_paddedStart, Start * 1000 - 250);
    EXPECT_EQ(chart.model.m_drawn, (LineSpan{0, 100}));
    EXPECT_DOUBLE_EQ(chart.model.m_window.m_pixelsPerMs, 372.0 / 100'500.0);
    EXPECT_FALSE(chart.model.HorzScroll().isEnabled);
}

TEST(ChartModel, DrawsASingleLineAsOneBarAndNoStretch)
{
    Chart chart(std::vector<double>{3.0});
    EXPECT_EQ(chart.model.m_window.m_dataStart, chart.model.m_window.m_dataEnd);
    EXPECT_EQ(chart.model.m_window.m_barWidthMs, 2500);
    EXPECT_DOUBLE_EQ(chart.model.m_window.m_pixelsPerMs, 372 * 0.0002);
    chart.ShowOnlyX();
    const WalkView view = chart.model.View(1.0, 1.0);
    std::vector<ChartStroke> strokes;
    CLineWalk(chart.model.m_index, view).Walk(strokes);
    EXPECT_TRUE(strokes.empty());
    std::vector<ChartBarFill> fills;
    CBarWalk(chart.model.m_index, view, -1).Walk(fills);
    EXPECT_EQ(fills.size(), 1U);
}

TEST(ChartModel, TakesPlainBarsWhereTimesDoNotRise)
{
    CMeasureData data;
    for (int i = 0; i < 3; ++i) {
        CMeasureRecord line{CalendarSeconds{0}};
        line.SetValues(Start, 0, i, 0, 0, 0, 0);
        data.AddRecord(line);
    }
    data.Analyse({0, 0, 0});
    const Chart chart(data);
    EXPECT_EQ(chart.model.m_window.m_barWidthMs, 2500);
    EXPECT_FALSE(chart.model.HasRisingTime());
}

TEST(ChartModel, ShowsNoLineFromTheFirstBreakOn)
{
    CMeasureData data = DataOf(Ramp(20));
    CMeasureRecord early{CalendarSeconds{0}};
    early.SetValues(Start - 5000, 0, 40.0, 0, 0, 0, 0);
    data.AddRecord(early);
    data.AddRecord(early);
    data.Analyse({0, 0, 0});
    ASSERT_EQ(data.m_firstBreak, 20);
    const Chart chart(data);
    EXPECT_EQ(chart.model.Count(), 20);
    EXPECT_EQ(chart.Seconds(), Seconds(0.0, 19.0));
    EXPECT_TRUE(chart.model.HasRisingTime());
}

TEST(ChartModel, ShowsNothingWithoutLines)
{
    Chart chart(std::vector<double>{});
    EXPECT_TRUE(chart.model.m_drawn.IsEmpty());
    EXPECT_EQ(chart.model.m_strip.m_timeStripHeight, 0);
    EXPECT_EQ(chart.model.Step(), 8);
    EXPECT_FALSE(chart.model.HorzScroll().isEnabled);
    EXPECT_FALSE(chart.model.HasRisingTime());
    EXPECT_FALSE(chart.model.CanDisplayInCenter());
    chart.model.FollowLine(0);
    EXPECT_EQ(chart.model.m_currentLine, -1);
}

TEST(ChartModel, ScalesToAllLinesOfTheShownSeries)
{
    Chart chart(std::vector<double>{-1.0, 1.5, 0.0});
    chart.ShowOnlyX();
    chart.model.ResetData();
    // 2.5 units need 9 * 2.5 / 320 = 0.0703 units per 9 pixels.
    EXPECT_EQ(chart.model.Step(), 5);
    // Centred on 0.25: 22 of 22.5 pixels above the zero line at 4524.
    EXPECT_EQ(chart.model.m_scale.m_scrollY, 4524 - 22 - 160);
    EXPECT_FALSE(chart.model.m_centerable);
}

TEST(ChartModel, ScalesToTheFinestStepWithNoSeriesShown)
{
    Chart chart(std::vector<double>{-1.0, 1.5, 0.0});
    chart.model.SetSeriesShown(0x09F0, false);
    chart.model.ResetData();
    EXPECT_EQ(chart.model.Step(), 8);
    EXPECT_EQ(chart.model.m_scale.m_scrollY, 22524 - 160);
}

TEST(ChartModel, CountsAShownTemperatureWithoutItsFlagButNoHumidity)
{
    CMeasureData data;
    for (int i = 0; i < 2; ++i) {
        CMeasureRecord line{CalendarSeconds{0}};
        line.SetValues(Start + i, 0, 0, 0, 0, 20.0 + 20.0 * i, 50.0 * i);
        data.AddRecord(line);
    }
    data.Analyse({0, 0, 0});
    data.m_hasTemperature = false;
    data.m_hasHumidity = false;
    Chart chart(data);
    chart.model.SetSeriesShown(0x09F0, false);
    chart.model.SetSeriesShown(0x0080, true);
    chart.model.ResetData();
    // 10 axis units need 0.28.
    EXPECT_EQ(chart.model.Step(), 3);
    EXPECT_FALSE(chart.model.DrawnSeries()[Index(Series::Temperature)]);
    chart.model.SetSeriesShown(0x0080, false);
    chart.model.SetSeriesShown(0x0800, true);
    chart.model.ResetData();
    EXPECT_EQ(chart.model.Step(), 8);
    chart.data.m_hasHumidity = true;
    chart.model.ResetData();
    EXPECT_EQ(chart.model.Step(), 3);
    EXPECT_TRUE(chart.model.DrawnSeries()[Index(Series::Humidity)]);
}

TEST(ChartModel, TellsRisingTimesByTheFirstChangeInTheWholeDataSet)
{
    const auto rises = [](const std::vector<int>& seconds) {
        CMeasureData data;
        for (const int second : seconds) {
            CMeasureRecord line{CalendarSeconds{0}};
            line.SetValues(Start + second, 0, 0, 0, 0, 0, 0);
            data.AddRecord(line);
        }
        data.Analyse({0, 0, 0});
        return Chart(data).model.HasRisingTime();
    };
    EXPECT_TRUE(rises({0, 0, 1, 0}));
    EXPECT_FALSE(rises({1, 1, 0, 9}));
    EXPECT_FALSE(rises({1}));
}

TEST(ChartModel, ZoomsInAndBackInTime)
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

TEST(ChartModel, WidensANarrowSelectionAndZoomsNoFurther)
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

TEST(ChartModel, CutsASelectionToTheData)
{
    Chart chart(Ramp(101));
    chart.model.ZoomToColumns(0, 266);
    EXPECT_EQ(chart.Seconds().first, 0.0);
    EXPECT_NEAR(chart.Seconds().second, 50.0, 0.01);
}

TEST(ChartModel, ForgetsEarlierWindowsWhenAllIsShown)
{
    Chart chart(Ramp(101));
    chart.model.ZoomInTime();
    chart.model.m_centerable = false;
    chart.model.DisplayAllArea();
    EXPECT_EQ(chart.Seconds(), Seconds(0.0, 100.0));
    EXPECT_FALSE(chart.model.CanDisplayAllArea());
    EXPECT_TRUE(chart.model.m_centerable);
}

TEST(ChartModel, CentresOnWhatIsDrawn)
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

TEST(ChartModel, KeepsTheMiddleForTheGaugeAndForCommands)
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

TEST(ChartModel, RefusesCommandsDuringADrag)
{
    Chart chart(Ramp(101));
    const int step = chart.model.Step();
    chart.model.ZoomInTime();
    chart.model.m_isDragging = true;
    EXPECT_FALSE(chart.model.CanRedraw());
    chart.model.ChangeScaleStep(step - 1);
    chart.model.DisplayAllArea();
    EXPECT_EQ(chart.model.Step(), step);
    EXPECT_EQ(chart.Seconds(), Seconds(25.0, 75.0));
}

TEST(ChartModel, RebuildsNothingDuringADrag)
{
    Chart chart(Ramp(101));
    chart.model.ZoomInTime();
    chart.model.FollowLine(40);
    const auto shown = chart.Seconds();
    (void)chart.Work();
    chart.model.m_isDragging = true;
    chart.model.ResetData();
    chart.model.RescaleAndRepaint();
    chart.model.SetDisplayUnit(DisplayUnit::Gal);
    EXPECT_EQ(chart.Work(), ChartWork::None);
    EXPECT_EQ(chart.Seconds(), shown);
    EXPECT_EQ(chart.model.m_currentLine, -1);
    chart.model.m_isDragging = false;
    chart.model.ResetData();
    EXPECT_EQ(chart.Seconds(), Seconds(0.0, 100.0));
}

TEST(ChartModel, CanNotBeRedrawnFromWithinARebuild)
{
    Chart chart(Ramp(101));
    std::vector<bool> could;
    // Labels are measured in the middle of every change of the horizontal scale.
    chart.model.Create(chart.data, [&](const std::string&) {
        could.push_back(chart.model.CanRedraw());
        return 50;
    });
    const auto couldDuring = [&](auto operation) {
        could.clear();
        operation();
        EXPECT_FALSE(could.empty());
        EXPECT_TRUE(chart.model.CanRedraw());
        return std::ranges::find(could, true) != could.end();
    };
    EXPECT_FALSE(couldDuring([&] { chart.model.ResetData(); }));
    EXPECT_FALSE(couldDuring([&] { chart.model.RescaleAndRepaint(); }));
    EXPECT_FALSE(couldDuring([&] { chart.model.DisplayAllArea(); }));
    EXPECT_TRUE(couldDuring([&] { chart.model.ZoomInTime(); }));
}

TEST(ChartModel, MovesOnlyTheCursorWhileAllIsShown)
{
    Chart chart(Ramp(101));
    chart.model.FollowLine(70);
    EXPECT_EQ(chart.Work(), ChartWork::Compose);
    EXPECT_EQ(chart.model.m_currentLine, 70);
    EXPECT_EQ(chart.model.m_cursorX, chart.ColumnOf(70));
    EXPECT_EQ(chart.model.m_followX, chart.ColumnOf(70));
    EXPECT_EQ(chart.Seconds(), Seconds(0.0, 100.0));
}

TEST(ChartModel, RecentresOnALineFromTheList)
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

TEST(ChartModel, KeepsTheWindowForALineFromTheMouse)
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

TEST(ChartModel, RecentresOnTheMousesLineOnceTheListSetsIt)
{
    Chart chart(Ramp(101));
    chart.model.ZoomInTime();
    chart.model.m_lineFromMouse = true;
    chart.model.FollowLine(60);
    EXPECT_EQ(chart.Seconds(), Seconds(25.0, 75.0));
    chart.model.FollowLine(60);
    EXPECT_EQ(chart.Seconds(), Seconds(35.0, 85.0));
}

TEST(ChartModel, LosesTheCursorOfASingleLineAtARepaint)
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

TEST(ChartModel, IgnoresLinesThatThereAreNot)
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

TEST(ChartModel, ForgetsTheCurrentLineWithItsData)
{
    Chart chart(Ramp(101));
    chart.model.FollowLine(5);
    chart.model.ResetData();
    EXPECT_EQ(chart.model.m_currentLine, -1);
    EXPECT_EQ(chart.model.m_cursorX, 0);
    EXPECT_EQ(chart.model.m_followX, 0);
}

TEST(ChartModel, DrawsBarsOfOneTimeAnewForTheCurrentLine)
{
    CMeasureData data;
    for (int i = 0; i < 30; ++i) {
        CMeasureRecord line{CalendarSeconds{0}};
        line.SetValues(Start + i / 3, 0, i, 0, 0, 0, 0);
        data.AddRecord(line);
    }
    CMeasureRecord alone{CalendarSeconds{0}};
    alone.SetValues(Start + 20, 0, 1, 0, 0, 0, 0);
    data.AddRecord(alone);
    data.Analyse({0, 0, 0});
    Chart chart(data);
    chart.model.FollowLine(13);
    EXPECT_EQ(chart.Work(), ChartWork::Compose);
    chart.model.SetBarChart(true);
    (void)chart.Work();
    chart.model.FollowLine(13);
    EXPECT_EQ(chart.Work(), ChartWork::EqualRun);
    EXPECT_EQ(chart.model.m_equalRun, (LineSpan{12, 14}));
    chart.model.FollowLine(30);
    EXPECT_EQ(chart.Work(), ChartWork::Compose);
}

TEST(ChartModel, MeasuresTheCurrentBarWithHumidityWhereTemperatureIsShown)
{
    CMeasureData data;
    for (int i = 0; i < 1000; ++i) {
        CMeasureRecord line{CalendarSeconds{0}};
        line.SetValues(Start + i, 0, 1.0, -2.0, 0.0, 20.0, 80.0);
        data.AddRecord(line);
    }
    data.Analyse({0, 0, 0});
    Chart chart(data);
    CValueScale& scale = chart.model.m_scale;
    EXPECT_FALSE(chart.model.CurrentBar().has_value());
    chart.model.FollowLine(5);
    chart.ShowOnlyX();
    EXPECT_EQ(chart.model.CurrentBar(),
              (BarExtent{scale.Row(1.0) - scale.m_scrollY, scale.m_zeroY - scale.m_scrollY}));
    chart.model.SetSeriesShown(0x0080, true);
    EXPECT_EQ(chart.model.CurrentBar()->top, scale.Row(20.0) - scale.m_scrollY);
    chart.model.SetSeriesShown(0x0080, false);
    chart.model.SetSeriesShown(0x0800, true);
    EXPECT_EQ(chart.model.CurrentBar()->top, scale.Row(1.0) - scale.m_scrollY);
    chart.model.SetSeriesShown(0x0020, true);
    EXPECT_EQ(chart.model.CurrentBar()->bottom, scale.Row(-2.0) - scale.m_scrollY);
    // A bar of 2 columns at each side is seen beside the cursor.
    for (int i = 0; i < 8; ++i)
        chart.model.ZoomInTime();
    EXPECT_FALSE(chart.model.CurrentBar().has_value());
}

TEST(ChartModel, RepaintsWhereASeriesChanges)
{
    Chart chart(Ramp(20));
    chart.model.m_centerable = false;
    chart.model.SetSeriesShown(0x0030, true);
    EXPECT_EQ(chart.Work(), ChartWork::None);
    EXPECT_FALSE(chart.model.m_centerable);
    chart.model.SetSeriesShown(0x0030, false);
    EXPECT_EQ(chart.Work(), ChartWork::Chart);
    EXPECT_TRUE(chart.model.m_centerable);
    EXPECT_EQ(chart.model.m_seriesShown, (SeriesFlags{false, false, true, true, true, true}));
}

TEST(ChartModel, HoldsTheLineWeightWithinOneToFour)
{
    Chart chart(Ramp(20));
    for (const auto& [given, kept] : {std::pair{-1, 1}, {0, 1}, {1, 1}, {3, 3}, {4, 4}, {9, 4}}) {
        chart.model.SetLineWeight(given);
        EXPECT_EQ(chart.model.m_lineWeight, kept);
    }
}

TEST(ChartModel, ScrollsAndTellsThatItCanBeCentred)
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

TEST(ChartModel, ScrollsTheTimeWindowWithinTheData)
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

TEST(ChartModel, ScrollsNoWindowThatShowsAll)
{
    Chart chart(Ramp(101));
    chart.model.m_centerable = false;
    (void)chart.Work();
    chart.model.ScrollHorizontally(ScrollRequest::LineForward, 0, false);
    EXPECT_EQ(chart.Work(), ChartWork::None);
    EXPECT_FALSE(chart.model.m_centerable);
}

TEST(ChartModel, IsClosedForGood)
{
    Chart chart(Ramp(101));
    chart.model.ZoomInTime();
    chart.model.Close();
    EXPECT_FALSE(chart.model.IsCreated());
    EXPECT_FALSE(chart.model.CanRedraw());
    EXPECT_FALSE(chart.model.CanDisplayAllArea());
    EXPECT_FALSE(chart.model.CanDisplayInCenter());
    EXPECT_FALSE(chart.model.HasRisingTime());
    EXPECT_FALSE(chart.model.ZoomBack());
    EXPECT_EQ(chart.model.Count(), 0);
    chart.model.ResetData();
    chart.model.FollowLine(3);
    EXPECT_EQ(chart.model.m_currentLine, -1);
    EXPECT_EQ(chart.Work(), ChartWork::None);
}

TEST(ChartModel, KeepsTheWindowWhenItsDataGrows)
{
    Chart chart(Ramp(101));
    for (int i = 101; i <= 200; ++i) {
        CMeasureRecord line{CalendarSeconds{0}};
        line.SetValues(Start + i, 0, 0, 0, 0, 0, 0);
        chart.data.AddRecord(line);
    }
    chart.data.Analyse({0, 0, 0});
    chart.model.RefreshData();
    EXPECT_EQ(chart.Seconds(), Seconds(0.0, 100.0));
    EXPECT_EQ(chart.model.m_window.m_dataEnd, (Start + 200) * 1000);
    EXPECT_TRUE(chart.model.HorzScroll().isEnabled);
}

TEST(ChartModel, CountsElapsedTicksFromTheFirstLine)
{
    Chart chart(Ramp(101));
    chart.model.SetElapsedAxis(true);
    EXPECT_EQ(chart.Work(), ChartWork::Chart);
    ASSERT_FALSE(chart.model.m_strip.Ticks().empty());
    EXPECT_EQ(chart.model.m_strip.Ticks()[0].time, Start * 1000);
    EXPECT_EQ(chart.model.m_strip.Ticks()[1].time, (Start + 20) * 1000);
    EXPECT_EQ(chart.model.m_strip.Labels().back().text, "+0:01:40");
    chart.model.SetElapsedAxis(false);
    EXPECT_EQ(chart.model.m_strip.Labels()[1].text.size(), 8U);
}

TEST(ChartModel, CanBeCentredAfterItsHeightChanged)
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

TEST(ChartModel, KeepsAPlotInAWindowThatIsTooNarrow)
{
    Chart chart(Ramp(101));
    chart.model.Resize({100, 300, 16, 16, 16, 30, 12});
    EXPECT_EQ(chart.model.PlotRect().left, 80);
    EXPECT_EQ(chart.model.PlotRect().right, 81);
}

} // namespace
} // namespace skeldon
