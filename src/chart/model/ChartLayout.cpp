#include "chart/model/ChartLayout.h"

#include <algorithm>
#include <cstdlib>

namespace skeldon {

namespace {

using Fills = std::vector<ColouredRect>;

// Gaps between the plot's edge and the labels that end there.
constexpr int LabelGap = 6;
/// Curves may stick out of the plot by so much.
constexpr int ClipMargin = 2;
/// From the edge of the picture to the vertical axis titles.
constexpr int TitleGap = 16;

/// The button's face and its three edges, light from the top left.
Fills ButtonFrame(const ChartRect& r, std::uint32_t face)
{
    using namespace ChartColour;
    return {{r, face},
            {{r.left + 1, r.top + 1, r.left + 2, r.bottom - 2}, Background},
            {{r.left + 2, r.top + 1, r.right - 2, r.top + 2}, Background},
            {{r.right - 2, r.top + 1, r.right - 1, r.bottom - 1}, ButtonShadow},
            {{r.left + 1, r.bottom - 2, r.right - 2, r.bottom - 1}, ButtonShadow},
            {{r.right - 1, r.top, r.right, r.bottom}, ButtonDark},
            {{r.left, r.bottom - 1, r.right - 1, r.bottom}, ButtonDark}};
}

} // namespace

ChartRect LayerGround(const ChartSizes& sizes)
{
    return {0, 0, sizes.PlotBitmapWidth(), std::min(sizes.contentHeight, sizes.clientHeight)};
}

ChartRect CurveClip(const ChartSizes& sizes)
{
    const ChartRect& plot = sizes.plot;
    return {plot.left - ClipMargin, std::max(plot.top - ClipMargin - 1 - sizes.scrollY, 0),
            plot.right + ClipMargin, plot.bottom + ClipMargin - sizes.scrollY};
}

ChartRect TimeGridLine(const ChartSizes& sizes, int column)
{
    return {column, sizes.plot.top - sizes.scrollY, column + 1,
            sizes.plot.bottom - sizes.scrollY - 2};
}

ValueTickPlace PlaceValueTick(const ChartSizes& sizes, int row)
{
    const int r = row - sizes.scrollY;
    const ChartRect& plot = sizes.plot;
    return {{plot.left, r - 1, plot.right, r},
            r - 1,
            r,
            plot.left - LabelGap,
            plot.right + sizes.labelWidth + LabelGap,
            plot.right + 2 * sizes.labelWidth + 2 * LabelGap};
}

ChartRect StripGround(const ChartSizes& sizes, int top)
{
    return {0, top, sizes.PlotBitmapWidth(),
            top + std::max(TimeStripHeight, sizes.timeStripHeight)};
}

ChartRect AxisNameRect(const ChartSizes& sizes, int top)
{
    return {sizes.plot.right + 4, top + 8, sizes.PlotBitmapWidth(), top + 20};
}

ComposeLayout Composed(const ChartSizes& sizes)
{
    const int hgt = sizes.Hgt();
    const ChartRect& plot = sizes.plot;
    ComposeLayout layout;
    layout.plotHit = {plot.left + sizes.gaugeWidth, plot.top, plot.right + sizes.gaugeWidth,
                      plot.bottom};
    layout.hasStrip = sizes.timeStripHeight != 0;
    if (hgt <= sizes.contentHeight) {
        layout.chartRows = hgt;
        layout.plotHit.top = std::max(0, plot.top - sizes.scrollY);
        layout.plotHit.bottom = std::min(plot.bottom - sizes.scrollY, hgt - 1);
    } else {
        layout.chartRows = sizes.contentHeight;
        layout.ground = {0, sizes.contentHeight + sizes.timeStripHeight, sizes.PlotBitmapWidth(),
                         sizes.clientHeight - sizes.horzScrollHeight};
    }
    layout.stripTop = layout.chartRows;
    if (layout.hasStrip)
        layout.band = {plot.left - ClipMargin, layout.stripTop - 2, plot.right + ClipMargin,
                       layout.stripTop};
    layout.titleRow = std::min(hgt, sizes.contentHeight) / 2;
    layout.leftTitleColumn = TitleGap;
    layout.rightTitleColumn = sizes.PlotBitmapWidth() - sizes.labelHeight - TitleGap;
    return layout;
}

std::vector<ChartRect> CursorFills(const ChartSizes& sizes, const ChartRect& plotHit, int column,
                                   std::optional<BarExtent> bar)
{
    const ChartRect& plot = sizes.plot;
    if (column == 0 || column < plot.left || column > plot.right)
        return {};
    const int top = plotHit.top;
    const int bottom = plotHit.bottom + 1;
    std::vector<ChartRect> fills;
    if (!bar) {
        fills.push_back({column, top + 2, column + 1, bottom - 2});
    } else {
        if (bar->top > top + 2)
            fills.push_back({column, top + 2, column + 1, bar->top});
        if (bar->bottom < bottom - 2)
            fills.push_back({column, bar->bottom, column + 1, bottom - 2});
    }
    const int capLeft = column - 2;
    const int capRight = column + 3;
    const int plotTop = plot.top - sizes.scrollY;
    if (sizes.scrollY <= plot.top)
        fills.push_back({capLeft, plotTop - 3, capRight, plotTop + 2});
    else
        fills.push_back({capLeft, 0, capRight, 2});
    const int plotBottom = plot.bottom - sizes.scrollY;
    if (sizes.scrollY + bottom > plot.bottom)
        fills.push_back({capLeft, plotBottom - 4, capRight, plotBottom + 1});
    else
        fills.push_back({capLeft, bottom - 4, capRight, bottom - 2});
    return fills;
}

SelectionFills SelectionBetween(const ChartSizes& sizes, const ChartRect& plotHit, int start,
                                int end)
{
    const int a = start - sizes.gaugeWidth;
    const int b = end - sizes.gaugeWidth;
    SelectionFills fills;
    fills.edges.push_back({a, plotHit.top, a + 1, plotHit.bottom});
    if (a != b)
        fills.edges.push_back({b, plotHit.top, b + 1, plotHit.bottom});
    if (std::abs(a - b) >= 2)
        fills.tint = {std::min(a, b) + 1, plotHit.top, std::max(a, b), plotHit.bottom};
    return fills;
}

ChartRect CenterButtonRect(const ChartSizes& sizes)
{
    return {0, sizes.clientHeight - 2 * sizes.horzScrollHeight, sizes.gaugeWidth,
            sizes.clientHeight - sizes.horzScrollHeight};
}

ChartRect AllAreaButtonRect(const ChartSizes& sizes)
{
    return {0, sizes.clientHeight - sizes.horzScrollHeight, sizes.gaugeWidth, sizes.clientHeight};
}

ChartRect BarButtonRect(const ChartSizes& sizes)
{
    return {sizes.clientWidth - sizes.vertScrollWidth, sizes.clientHeight - sizes.horzScrollHeight,
            sizes.clientWidth, sizes.clientHeight};
}

std::vector<ColouredRect> CenterButtonFills(const ChartRect& r, bool isEnabled, std::uint32_t face)
{
    using namespace ChartColour;
    const std::uint32_t dark = isEnabled ? ButtonDark : ButtonShadow;
    Fills fills = ButtonFrame(r, face);
    fills.push_back({{r.left + 6, r.top + 4, r.left + 7, r.bottom - 3}, dark});
    if (isEnabled)
        fills.push_back({{r.left + 7, r.top + 4, r.right - 6, r.bottom - 4}, AreaGlyph});
    fills.push_back({{r.right - 7, r.top + 4, r.right - 6, r.bottom - 4}, Background});
    fills.push_back({{r.left + 4, r.top + 3, r.right - 4, r.top + 4}, dark});
    fills.push_back({{r.left + 4, r.bottom - 4, r.right - 4, r.bottom - 3}, dark});
    return fills;
}

std::vector<ColouredRect> AllAreaButtonFills(const ChartRect& r, bool isEnabled, std::uint32_t face)
{
    using namespace ChartColour;
    const std::uint32_t dark = isEnabled ? ButtonDark : ButtonShadow;
    Fills fills = ButtonFrame(r, face);
    fills.push_back({{r.left + 4, r.top + 6, r.right - 4, r.top + 7}, dark});
    if (isEnabled)
        fills.push_back({{r.left + 4, r.top + 7, r.right - 4, r.bottom - 7}, AreaGlyph});
    fills.push_back({{r.left + 4, r.bottom - 7, r.right - 4, r.bottom - 6}, Background});
    fills.push_back({{r.left + 3, r.top + 4, r.left + 4, r.bottom - 4}, dark});
    fills.push_back({{r.right - 4, r.top + 4, r.right - 3, r.bottom - 4}, dark});
    return fills;
}

std::vector<ColouredRect> BarButtonFills(const ChartRect& r, bool isBarChart, std::uint32_t face)
{
    using namespace ChartColour;
    Fills fills = ButtonFrame(r, face);
    if (isBarChart) {
        fills.push_back({{r.left + 6, r.top + 3, r.left + 7, r.bottom - 3}, ButtonDark});
        fills.push_back({{r.left + 7, r.top + 3, r.right - 6, r.bottom - 3}, FormGlyph});
        fills.push_back({{r.right - 7, r.top + 3, r.right - 6, r.bottom - 3}, Background});
    } else {
        fills.push_back({{r.left + 3, r.top + 6, r.right - 3, r.top + 7}, ButtonDark});
        fills.push_back({{r.left + 3, r.top + 7, r.right - 3, r.bottom - 7}, FormGlyph});
        fills.push_back({{r.left + 3, r.bottom - 7, r.right - 3, r.bottom - 6}, Background});
    }
    return fills;
}

} // namespace skeldon
