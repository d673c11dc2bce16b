#include "chart/model/ChartLayout.h"

namespace skeldon {
namespace {

/// A window of 600 by 400 with bars and gauge of 16, labels of 30 by 12, a strip of 64; the plot
/// from 80 to 452 at the scale of 18 pixels a unit.
ChartSizes Sizes(int scrollY = 500)
{
    return {600, 400, 16, 16, 16, 64, 30, 12, 1830, scrollY, {80, 24, 452, 1824}};
}

/// The coarsest scale in a window of 800 rows: the content ends early.
ChartSizes LowContent()
{
    return {600, 800, 16, 16, 16, 64, 30, 12, 330, 0, {80, 24, 452, 324}};
}

TEST(ChartLayout, GroundsTheLayerAsFarAsThereIsContent)
{
    EXPECT_EQ(LayerGround(Sizes()), (ChartRect{0, 0, 568, 400}));
    EXPECT_EQ(LayerGround(LowContent()), (ChartRect{0, 0, 568, 330}));
}

TEST(ChartLayout, ClipsCurvesALittleOutsideThePlot)
{
    EXPECT_EQ(CurveClip(Sizes(0)), (ChartRect{78, 21, 454, 1826}));
    EXPECT_EQ(CurveClip(Sizes(20)), (ChartRect{78, 1, 454, 1806}));
    EXPECT_EQ(CurveClip(Sizes(500)), (ChartRect{78, 0, 454, 1326}));
}

TEST(ChartLayout, EndsTimeGridLinesTwoRowsAboveThePlotsBottom)
{
    EXPECT_EQ(TimeGridLine(Sizes(10), 200), (ChartRect{200, 14, 201, 1812}));
}

TEST(ChartLayout, PlacesAValueTickAboveItsRow)
{
    const ValueTickPlace place = PlaceValueTick(Sizes(500), 600);
    EXPECT_EQ(place.gridLine, (ChartRect{80, 99, 452, 100}));
    EXPECT_EQ(place.labelTop, 99);
    EXPECT_EQ(place.labelBottom, 100);
    EXPECT_EQ(place.accelerationRight, 74);
    EXPECT_EQ(place.temperatureRight, 488);
    EXPECT_EQ(place.humidityRight, 524);
}

TEST(ChartLayout, PlacesTheStripAndItsName)
{
    EXPECT_EQ(StripGround(Sizes(), 320), (ChartRect{0, 320, 568, 388}));
    EXPECT_EQ(AxisNameRect(Sizes(), 320), (ChartRect{456, 328, 568, 340}));
    ChartSizes tall = Sizes();
    tall.timeStripHeight = 90;
    EXPECT_EQ(StripGround(tall, 0).bottom, 90);
}

TEST(ChartLayout, ComposesAWindowFullOfContent)
{
    const ComposeLayout layout = Composed(Sizes(500));
    EXPECT_EQ(layout.chartRows, 320);
    // The plot's top row is off the window: the hit area starts at row 0.
    EXPECT_EQ(layout.plotHit, (ChartRect{96, 0, 468, 319}));
    EXPECT_TRUE(layout.hasStrip);
    EXPECT_EQ(layout.stripTop, 320);
    EXPECT_EQ(layout.band, (ChartRect{78, 318, 454, 320}));
    EXPECT_FALSE(layout.ground.has_value());
    EXPECT_EQ(layout.titleRow, 160);
    EXPECT_EQ(layout.leftTitleColumn, 16);
    EXPECT_EQ(layout.rightTitleColumn, 540);
    EXPECT_EQ(Composed(Sizes(10)).plotHit, (ChartRect{96, 14, 468, 319}));
    EXPECT_EQ(Composed(Sizes(1510)).plotHit.bottom, 314);
}

TEST(ChartLayout, ComposesAWindowTallerThanItsContent)
{
    const ComposeLayout layout = Composed(LowContent());
    EXPECT_EQ(layout.chartRows, 330);
    EXPECT_EQ(layout.plotHit, (ChartRect{96, 24, 468, 324}));
    EXPECT_EQ(layout.stripTop, 330);
    EXPECT_EQ(layout.band, (ChartRect{78, 328, 454, 330}));
    EXPECT_EQ(layout.ground, (ChartRect{0, 394, 568, 784}));
    EXPECT_EQ(layout.titleRow, 165);
}

TEST(ChartLayout, HasNoStripWithoutLines)
{
    ChartSizes sizes = Sizes();
    sizes.timeStripHeight = 0;
    const ComposeLayout layout = Composed(sizes);
    EXPECT_FALSE(layout.hasStrip);
    EXPECT_FALSE(layout.band.has_value());
    EXPECT_EQ(layout.chartRows, 384);
}

TEST(ChartLayout, DrawsTheCursorWithItsCaps)
{
    const ChartRect hit{96, 0, 468, 319};
    // Both ends of the plot are off the window.
    EXPECT_EQ(CursorFills(Sizes(500), hit, 200, std::nullopt),
              (std::vector<ChartRect>{{200, 2, 201, 318}, {198, 0, 203, 2}, {198, 316, 203, 318}}));
    // The top is on it.
    EXPECT_EQ(
        CursorFills(Sizes(10), {96, 14, 468, 319}, 200, std::nullopt),
        (std::vector<ChartRect>{{200, 16, 201, 318}, {198, 11, 203, 16}, {198, 316, 203, 318}}));
    // As is the last row of it at a scroll position of the plot's top itself.
    EXPECT_EQ(CursorFills(Sizes(24), {96, 0, 468, 319}, 200, std::nullopt)[1],
              (ChartRect{198, -3, 203, 2}));
    EXPECT_EQ(CursorFills(Sizes(25), {96, 0, 468, 319}, 200, std::nullopt)[1],
              (ChartRect{198, 0, 203, 2}));
    // The bottom is on it: 1824 - 1510 is 314.
    EXPECT_EQ(CursorFills(Sizes(1510), {96, 0, 468, 314}, 200, std::nullopt)[2],
              (ChartRect{198, 310, 203, 315}));
}

TEST(ChartLayout, DrawsNoCursorOffThePlot)
{
    const ChartRect hit{96, 0, 468, 319};
    EXPECT_TRUE(CursorFills(Sizes(), hit, 0, std::nullopt).empty());
    EXPECT_TRUE(CursorFills(Sizes(), hit, 79, std::nullopt).empty());
    EXPECT_FALSE(CursorFills(Sizes(), hit, 80, std::nullopt).empty());
    EXPECT_FALSE(CursorFills(Sizes(), hit, 452, std::nullopt).empty());
    EXPECT_TRUE(CursorFills(Sizes(), hit, 453, std::nullopt).empty());
}

TEST(ChartLayout, LeavesAThinBarVisibleThroughTheCursor)
{
    const ChartRect hit{96, 0, 468, 319};
    const auto parts = [&](int top, int bottom) {
        std::vector<ChartRect> fills = CursorFills(Sizes(), hit, 200, BarExtent{top, bottom});
        fills.resize(fills.size() - 2); // less the caps
        return fills;
    };
    EXPECT_EQ(parts(100, 200), (std::vector<ChartRect>{{200, 2, 201, 100}, {200, 200, 201, 318}}));
    EXPECT_EQ(parts(2, 200), (std::vector<ChartRect>{{200, 200, 201, 318}}));
    EXPECT_EQ(parts(3, 318), (std::vector<ChartRect>{{200, 2, 201, 3}}));
    EXPECT_TRUE(parts(-50, 900).empty());
}

TEST(ChartLayout, MarksTheSelectionByEdgesAndTint)
{
    const ChartRect hit{96, 5, 468, 319};
    const SelectionFills wide = SelectionBetween(Sizes(), hit, 216, 116);
    EXPECT_EQ(wide.edges, (std::vector<ChartRect>{{200, 5, 201, 319}, {100, 5, 101, 319}}));
    EXPECT_EQ(wide.tint, (ChartRect{101, 5, 200, 319}));
    const SelectionFills next = SelectionBetween(Sizes(), hit, 116, 117);
    EXPECT_EQ(next.edges.size(), 2U);
    EXPECT_FALSE(next.tint.has_value());
    EXPECT_EQ(SelectionBetween(Sizes(), hit, 116, 118).tint, (ChartRect{101, 5, 102, 319}));
    const SelectionFills none = SelectionBetween(Sizes(), hit, 116, 116);
    EXPECT_EQ(none.edges, (std::vector<ChartRect>{{100, 5, 101, 319}}));
    EXPECT_FALSE(none.tint.has_value());
}

TEST(ChartLayout, PutsTheButtonsIntoTheCorners)
{
    EXPECT_EQ(CenterButtonRect(Sizes()), (ChartRect{0, 368, 16, 384}));
    EXPECT_EQ(AllAreaButtonRect(Sizes()), (ChartRect{0, 384, 16, 400}));
    EXPECT_EQ(BarButtonRect(Sizes()), (ChartRect{584, 384, 600, 400}));
}

/// The colour that the fills leave at a pixel.
std::uint32_t At(const std::vector<ColouredRect>& fills, int x, int y)
{
    std::uint32_t colour = 0xDEADBEEF;
    for (const ColouredRect& fill : fills) {
        if (fill.rect.Contains(x, y))
            colour = fill.colour;
    }
    return colour;
}

constexpr std::uint32_t Face = 0x123456;
constexpr ChartRect Button{0, 0, 16, 16};

TEST(ChartLayout, FramesAButtonWithLightFromTheTopLeft)
{
    const std::vector<ColouredRect> fills = CenterButtonFills(Button, true, Face);
    EXPECT_EQ(At(fills, 0, 0), Face);
    EXPECT_EQ(At(fills, 0, 5), Face);
    EXPECT_EQ(At(fills, 1, 1), ChartColour::Background);
    EXPECT_EQ(At(fills, 1, 13), ChartColour::Background);
    EXPECT_EQ(At(fills, 13, 1), ChartColour::Background);
    EXPECT_EQ(At(fills, 14, 1), ChartColour::ButtonShadow);
    EXPECT_EQ(At(fills, 14, 14), ChartColour::ButtonShadow);
    EXPECT_EQ(At(fills, 1, 14), ChartColour::ButtonShadow);
    EXPECT_EQ(At(fills, 15, 0), ChartColour::ButtonDark);
    EXPECT_EQ(At(fills, 0, 15), ChartColour::ButtonDark);
    EXPECT_EQ(At(fills, 15, 15), ChartColour::ButtonDark);
}

TEST(ChartLayout, ShowsWhetherTheViewCanBeCentred)
{
    const std::vector<ColouredRect> on = CenterButtonFills(Button, true, Face);
    EXPECT_EQ(At(on, 6, 5), 0x404040U);
    EXPECT_EQ(At(on, 7, 5), 0x0000FFU);
    EXPECT_EQ(At(on, 8, 11), 0x0000FFU);
    EXPECT_EQ(At(on, 9, 5), 0xFFFFFFU);
    EXPECT_EQ(At(on, 4, 3), 0x404040U);
    EXPECT_EQ(At(on, 11, 12), 0x404040U);
    EXPECT_EQ(At(on, 12, 12), Face);
    const std::vector<ColouredRect> off = CenterButtonFills(Button, false, Face);
    EXPECT_EQ(At(off, 6, 5), 0x808080U);
    EXPECT_EQ(At(off, 7, 5), Face);
    EXPECT_EQ(At(off, 9, 5), 0xFFFFFFU);
    EXPECT_EQ(At(off, 4, 3), 0x808080U);
}

TEST(ChartLayout, ShowsWhetherTheWholeAreaCanBeDisplayed)
{
    const std::vector<ColouredRect> on = AllAreaButtonFills(Button, true, Face);
    EXPECT_EQ(At(on, 5, 6), 0x404040U);
    EXPECT_EQ(At(on, 5, 7), 0x0000FFU);
    EXPECT_EQ(At(on, 5, 9), 0xFFFFFFU);
    EXPECT_EQ(At(on, 3, 4), 0x404040U);
    EXPECT_EQ(At(on, 12, 11), 0x404040U);
    const std::vector<ColouredRect> off = AllAreaButtonFills(Button, false, Face);
    EXPECT_EQ(At(off, 5, 6), 0x808080U);
    EXPECT_EQ(At(off, 5, 7), Face);
}

TEST(ChartLayout, ShowsTheFormThatThereIs)
{
    const std::vector<ColouredRect> bars = BarButtonFills(Button, true, Face);
    EXPECT_EQ(At(bars, 6, 3), 0x404040U);
    EXPECT_EQ(At(bars, 7, 12), 0x00FF00U);
    EXPECT_EQ(At(bars, 9, 3), 0xFFFFFFU);
    EXPECT_EQ(At(bars, 3, 6), Face);
    const std::vector<ColouredRect> lines = BarButtonFills(Button, false, Face);
    EXPECT_EQ(At(lines, 3, 6), 0x404040U);
    EXPECT_EQ(At(lines, 12, 7), 0x00FF00U);
    EXPECT_EQ(At(lines, 3, 9), 0xFFFFFFU);
    EXPECT_EQ(At(lines, 6, 3), Face);
}

} // namespace
} // namespace skeldon
