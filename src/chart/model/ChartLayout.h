#pragma once

#include "chart/model/ChartTypes.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace skeldon {

// Where everything but curves and bars is drawn. Rows are rows of the surface drawn on, with what
// is scrolled off taken away; a factor to device pixels is the painter's matter.

/// Fixed colours of the chart, 0x00BBGGRR.
namespace ChartColour {
inline constexpr std::uint32_t Background = 0xFFFFFF;
inline constexpr std::uint32_t Text = 0x000000;
inline constexpr std::uint32_t Grid = 0xC0C0C0;
inline constexpr std::uint32_t Selection = 0x804040;
inline constexpr std::uint32_t ButtonDark = 0x404040;
inline constexpr std::uint32_t ButtonShadow = 0x808080; ///< also what is disabled
inline constexpr std::uint32_t AreaGlyph = 0x0000FF;
inline constexpr std::uint32_t FormGlyph = 0x00FF00;
} // namespace ChartColour

/// The share of the selection's colour in its tint, of 255.
inline constexpr int SelectionAlpha = 25;
/// Height of the time strip's surface where no label needs more.
inline constexpr int TimeStripHeight = 68;
/// What the time strip is higher than its longest label.
inline constexpr int TimeStripMargin = 8;

/// An area filled with one colour.
struct ColouredRect
{
    ChartRect rect;
    std::uint32_t colour = 0;

    bool operator==(const ColouredRect&) const = default;
};

/// The sizes that the layout hangs on, in pixels.
struct ChartSizes
{
    int clientWidth = 0;
    int clientHeight = 0;
    int gaugeWidth = 0;
    int vertScrollWidth = 0;
    int horzScrollHeight = 0;
    int timeStripHeight = 0;
    int labelWidth = 0; ///< of "-99.9"
    int labelHeight = 12;
    int contentHeight = 0;
    int scrollY = 0;
    ChartRect plot; ///< `m_plotRect`, in content coordinates

    /// Room above the time strip.
    [[nodiscard]] int Hgt() const { return clientHeight - horzScrollHeight - timeStripHeight; }
    /// `m_plotBitmapWidth`
    [[nodiscard]] int PlotBitmapWidth() const { return clientWidth - vertScrollWidth - gaugeWidth; }
};

// --- the chart layer ---

/// The white ground of the layer.
[[nodiscard]] ChartRect LayerGround(const ChartSizes& sizes);
/// What grid, curves and bars are clipped to: a little more than the plot.
[[nodiscard]] ChartRect CurveClip(const ChartSizes& sizes);
/// The vertical grid line of a time tick at a content column.
[[nodiscard]] ChartRect TimeGridLine(const ChartSizes& sizes, int column);

/// A value tick at a content row. Its three labels are right aligned and vertically centred in the
/// row `label`, each ending at its own column.
struct ValueTickPlace
{
    ChartRect gridLine;
    int labelTop = 0;
    int labelBottom = 0;
    int accelerationRight = 0;
    int temperatureRight = 0;
    int humidityRight = 0;
};
[[nodiscard]] ValueTickPlace PlaceValueTick(const ChartSizes& sizes, int row);

// --- the time strip, from row `top` on ---

[[nodiscard]] ChartRect StripGround(const ChartSizes& sizes, int top);
/// The axis name's rectangle: left aligned, vertically centred.
[[nodiscard]] ChartRect AxisNameRect(const ChartSizes& sizes, int top);

// --- the composed picture ---

struct ComposeLayout
{
    int chartRows = 0;               ///< rows copied from the chart layer
    ChartRect plotHit;               ///< `m_plotHitRect`, in client coordinates
    int stripTop = 0;                ///< where the time strip is copied to
    bool hasStrip = false;           ///< without lines there is none
    std::optional<ChartRect> band;   ///< white, cuts curve ends off above the strip
    std::optional<ChartRect> ground; ///< white, below the strip where the content ends early
    int titleRow = 0;                ///< middle row of the vertical axis titles
    int leftTitleColumn = 0;         ///< of the acceleration title, centred on the row
    int rightTitleColumn = 0;        ///< of temperature, down from the row, and humidity, up
};
[[nodiscard]] ComposeLayout Composed(const ChartSizes& sizes);

/// Rows of the current bar, less what is scrolled off.
struct BarExtent
{
    int top = 0;
    int bottom = 0;

    bool operator==(const BarExtent&) const = default;
};

/// What is filled for the cursor at a content column, in the item colour: nothing at column 0 or
/// outside the plot. A thin bar of the current line, if its extent is given, stays visible.
[[nodiscard]] std::vector<ChartRect> CursorFills(const ChartSizes& sizes, const ChartRect& plotHit,
                                                 int column, std::optional<BarExtent> bar);

/// The selection between two client columns: its edges, and the area to tint where there is any.
struct SelectionFills
{
    std::vector<ChartRect> edges;
    std::optional<ChartRect> tint;
};
[[nodiscard]] SelectionFills SelectionBetween(const ChartSizes& sizes, const ChartRect& plotHit,
                                              int start, int end);

// --- the corner buttons, in client coordinates ---

[[nodiscard]] ChartRect CenterButtonRect(const ChartSizes& sizes);
[[nodiscard]] ChartRect AllAreaButtonRect(const ChartSizes& sizes);
[[nodiscard]] ChartRect BarButtonRect(const ChartSizes& sizes);

// The fills of each, to be painted in their order. `face` is the application's face colour.
[[nodiscard]] std::vector<ColouredRect> CenterButtonFills(const ChartRect& rect, bool isEnabled,
                                                          std::uint32_t face);
[[nodiscard]] std::vector<ColouredRect> AllAreaButtonFills(const ChartRect& rect, bool isEnabled,
                                                           std::uint32_t face);
[[nodiscard]] std::vector<ColouredRect> BarButtonFills(const ChartRect& rect, bool isBarChart,
                                                       std::uint32_t face);

} // namespace skeldon
