#include "chart/model/TimeWindow.h"

#include "chart/model/Rounding.h"
#include "chart/model/ZoomHistory.h"

namespace skeldon {
namespace {

/// A window over 100 seconds of data from one million seconds on, a bar of 1000 ms, 101 columns
/// from 100 on: a column a second.
CTimeWindow Window()
{
    CTimeWindow window;
    window.SetBarWidth(1000);
    window.SetData(1'000'000'000, 1'000'100'000);
    window.ShowAll();
    window.SetPlot(100, 201);
    return window;
}

TEST(TimeWindow, IsPaddedByHalfABarAtEachSide)
{
    CTimeWindow window = Window();
    EXPECT_EQ(window.m_paddedStart, 999'999'500);
    EXPECT_EQ(window.m_paddedEnd, 1'000'100'500);
    window.SetBarWidth(7);
    EXPECT_EQ(window.m_paddedStart, 1'000'000'000 - 3);
    EXPECT_EQ(window.m_paddedEnd, 1'000'100'000 + 3);
}

TEST(TimeWindow, HalvesABarOfOddWidthToWholeMilliseconds)
{
    CTimeWindow window = Window();
    window.SetBarWidth(5);
    window.m_pixelsPerMs = 8.0;
    EXPECT_EQ(window.HalfBar(), 16);
}

TEST(TimeWindow, MapsTimesToColumnsTowardZero)
{
    const CTimeWindow window = Window();
    EXPECT_DOUBLE_EQ(window.m_pixelsPerMs, 0.001);
    EXPECT_EQ(window.Column(999'999'500), 100);
    EXPECT_EQ(window.Column(999'999'999), 100);
    EXPECT_EQ(window.Column(1'000'000'001), 101);
    EXPECT_EQ(window.Column(1'000'100'500), 201);
    // Left of the plot a column is lost to the cutting off.
    EXPECT_EQ(window.Column(999'998'500), 100);
    EXPECT_EQ(window.Column(999'997'900), 99);
    EXPECT_EQ(window.Column(999'996'900), 98);
}

TEST(TimeWindow, MapsFarTimesBeyondSixteenBits)
{
    const CTimeWindow window = Window();
    EXPECT_EQ(window.Column(999'999'500 + 5'000'000'000'000), 5'000'000'100);
    EXPECT_FALSE(FitsShort(window.Column(999'999'500 - 40'000'000)));
}

TEST(TimeWindow, IsNeverNarrowerThan100Ms)
{
    CTimeWindow window = Window();
    window.SetView(1'000'050'000, 1'000'050'040);
    window.SetPlot(100, 1200);
    EXPECT_TRUE(window.m_atMaxZoom);
    EXPECT_EQ(window.m_viewEnd, 1'000'050'100);
    EXPECT_EQ(window.m_paddedEnd, 1'000'050'600);
    EXPECT_DOUBLE_EQ(window.m_pixelsPerMs, 1.0);
    // 100 ms themselves count as the narrowest, 101 do not.
    window.SetView(1'000'050'000, 1'000'050'100);
    window.SetPlot(100, 1200);
    EXPECT_TRUE(window.m_atMaxZoom);
    window.SetView(1'000'050'000, 1'000'050'101);
    window.SetPlot(100, 1200);
    EXPECT_FALSE(window.m_atMaxZoom);
    EXPECT_EQ(window.m_viewEnd, 1'000'050'101);
}

TEST(TimeWindow, DrawsAWindowWithoutExtentAsIfFiveSecondsWide)
{
    CTimeWindow window;
    window.SetBarWidth(2500);
    window.SetData(5000, 5000);
    window.ShowAll();
    window.SetPlot(50, 550);
    EXPECT_DOUBLE_EQ(window.m_pixelsPerMs, 500 * 0.0002);
    EXPECT_FALSE(window.m_atMaxZoom);
    EXPECT_EQ(window.m_viewEnd, 5000);
    EXPECT_EQ(window.Column(5000), 50 + 125);
    EXPECT_EQ(window.HalfBar(), 125);
}

TEST(TimeWindow, HasAPlotOfAtLeastOneColumn)
{
    CTimeWindow window = Window();
    window.SetPlot(100, 40);
    EXPECT_EQ(window.m_plotRight, 101);
    EXPECT_GT(window.m_pixelsPerMs, 0.0);
}

TEST(TimeWindow, ScrollsInUnitsThatFit32Bits)
{
    CTimeWindow window;
    window.SetBarWidth(1);
    window.SetData(0, 0x7FFFFFFE);
    EXPECT_EQ(window.m_scrollUnit, 1.0);
    window.SetData(0, 0x7FFFFFFF);
    EXPECT_EQ(window.m_scrollUnit, double(0x80000000) * 4.656612875245797e-10);
    window.SetData(0, 4 * std::int64_t{0x7FFFFFFF});
    window.SetView(0x7FFFFFFF, 3 * std::int64_t{0x7FFFFFFF});
    const ScrollBarState bar = window.HorzScroll(true);
    EXPECT_TRUE(bar.isEnabled);
    EXPECT_EQ(bar.maximum, 0x7FFFFFFF);
    EXPECT_NEAR(bar.page, 0x3FFFFFFF, 1);
    EXPECT_NEAR(bar.position, 0x1FFFFFFF, 1);
}

TEST(TimeWindow, HasNoScrollBarWhereAllIsShown)
{
    CTimeWindow window = Window();
    EXPECT_FALSE(window.HorzScroll(true).isEnabled);
    window.SetView(1'000'010'000, 1'000'050'000);
    EXPECT_EQ(window.HorzScroll(true), (ScrollBarState{true, 100'000, 40'000, 10'000}));
    EXPECT_FALSE(window.HorzScroll(false).isEnabled);
}

TEST(TimeWindow, ScrollsAndKeepsItsWidth)
{
    CTimeWindow window = Window();
    window.SetView(1'000'020'000, 1'000'059'000);
    window.SetPlot(100, 140); // 0.001 pixels a millisecond
    const auto start = [&window](ScrollRequest request, bool isCtrlDown = false, int tracked = 0) {
        const auto range = window.Scrolled(request, tracked, isCtrlDown);
        EXPECT_EQ(range.value_or(CChartRange{}).Width(), 39'000);
        return range.value_or(CChartRange{}).start - 1'000'000'000;
    };
    EXPECT_EQ(start(ScrollRequest::LineBack), 4'000);
    EXPECT_EQ(start(ScrollRequest::LineForward), 36'000);
    EXPECT_EQ(start(ScrollRequest::LineForward, true), 24'000);
    EXPECT_EQ(start(ScrollRequest::PageBack, true), 4'000);
    EXPECT_EQ(start(ScrollRequest::PageForward, true), 36'000);
    EXPECT_EQ(start(ScrollRequest::PageBack), 0);
    EXPECT_EQ(start(ScrollRequest::PageForward), 61'000);
    EXPECT_EQ(start(ScrollRequest::Begin), 0);
    EXPECT_EQ(start(ScrollRequest::End), 61'000);
    EXPECT_EQ(start(ScrollRequest::Thumb, false, 33'333), 33'333);
    EXPECT_EQ(start(ScrollRequest::Thumb, false, 99'000), 61'000);
    EXPECT_FALSE(window.Scrolled(ScrollRequest::Thumb, 20'000, false).has_value());
}

TEST(TimeWindow, ScrollsAtTheDataEndToWhereItIs)
{
    CTimeWindow window = Window();
    window.SetView(1'000'000'000, 1'000'040'000);
    window.SetPlot(100, 140);
    EXPECT_EQ(window.Scrolled(ScrollRequest::LineBack, 0, false), window.View());
    EXPECT_EQ(window.Scrolled(ScrollRequest::PageBack, 0, true), window.View());
    EXPECT_FALSE(window.Scrolled(ScrollRequest::Begin, 0, false).has_value());
    window.SetView(1'000'060'000, 1'000'100'000);
    EXPECT_EQ(window.Scrolled(ScrollRequest::LineForward, 0, false), window.View());
    EXPECT_EQ(window.Scrolled(ScrollRequest::End, 0, false), window.View());
}

TEST(TimeWindow, ScrollsAWindowWiderThanTheDataToTheData)
{
    CTimeWindow window = Window();
    window.SetView(999'000'000, 1'000'200'000);
    EXPECT_EQ(window.Scrolled(ScrollRequest::Begin, 0, false),
              (CChartRange{1'000'000'000, 1'000'100'000}));
}

TEST(TimeWindow, CutsAQuarterOffEachEnd)
{
    CTimeWindow window = Window();
    EXPECT_EQ(window.ZoomedIn(), (CChartRange{1'000'025'000, 1'000'075'000}));
    window.SetView(1000, 1007);
    EXPECT_EQ(window.ZoomedIn(), (CChartRange{1001, 1006}));
}

TEST(TimeWindow, CentresOnATimeWithinTheData)
{
    CTimeWindow window = Window();
    window.SetView(1'000'000'000, 1'000'020'001);
    EXPECT_EQ(window.CentredOn(1'000'050'000), (CChartRange{1'000'040'000, 1'000'060'000}));
    EXPECT_EQ(window.CentredOn(1'000'009'999), (CChartRange{1'000'000'000, 1'000'020'001}));
    EXPECT_EQ(window.CentredOn(1'000'095'000), (CChartRange{1'000'079'999, 1'000'100'000}));
    window.SetView(999'000'000, 1'000'200'000);
    EXPECT_EQ(window.CentredOn(1'000'050'000), (CChartRange{1'000'000'000, 1'000'100'000}));
}

TEST(TimeWindow, TakesTheTimeBetweenTwoColumns)
{
    CTimeWindow window = Window();
    EXPECT_EQ(window.Between(120, 110), (CChartRange{1'000'009'500, 1'000'019'500}));
    // Limited to the data at both ends.
    EXPECT_EQ(window.Between(100, 201), (CChartRange{1'000'000'000, 1'000'100'000}));
    EXPECT_EQ(window.Between(40, 110).start, 1'000'000'000);
}

TEST(TimeWindow, CutsFractionsOffTimesOfColumns)
{
    CTimeWindow window = Window();
    window.SetPlot(100, 100 + 3 * 101); // 3 columns a second
    EXPECT_EQ(window.TimeAt(101), 999'999'500 + 333);
    EXPECT_EQ(window.TimeAt(99), 999'999'500 - 333);
}

TEST(TimeWindow, IsLimitedToNewDataAndNotWidened)
{
    CTimeWindow window = Window();
    window.SetData(1'000'010'000, 1'000'200'000);
    window.LimitToData();
    EXPECT_EQ(window.View(), (CChartRange{1'000'010'000, 1'000'100'000}));
    EXPECT_EQ(window.m_paddedStart, 1'000'009'500);
    EXPECT_FALSE(window.ShowsAll());
    EXPECT_TRUE(window.HorzScroll(true).isEnabled);
}

TEST(ZoomHistory, GivesTheLatestWindowFirst)
{
    CZoomHistory history;
    EXPECT_TRUE(history.IsEmpty());
    EXPECT_FALSE(history.Pop().has_value());
    history.Push({1, 2});
    history.Push({3, 4});
    EXPECT_EQ(history.Pop(), (CChartRange{3, 4}));
    EXPECT_FALSE(history.IsEmpty());
    EXPECT_EQ(history.Pop(), (CChartRange{1, 2}));
    EXPECT_TRUE(history.IsEmpty());
    history.Push({1, 2});
    history.Clear();
    EXPECT_TRUE(history.IsEmpty());
}

} // namespace
} // namespace skeldon
