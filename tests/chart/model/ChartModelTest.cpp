#include "chart/model/ModelInWindow.h"

#include "chart/model/BarWalk.h"
#include "chart/model/LineWalk.h"

#include <algorithm>
#include <utility>

namespace skeldon::test {
namespace {

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

TEST(ChartModel, KeepsAPlotInAWindowThatIsTooNarrow)
{
    Chart chart(Ramp(101));
    chart.model.Resize({100, 300, 16, 16, 16, 30, 12});
    EXPECT_EQ(chart.model.PlotRect().left, 80);
    EXPECT_EQ(chart.model.PlotRect().right, 81);
}

} // namespace
} // namespace skeldon::test
