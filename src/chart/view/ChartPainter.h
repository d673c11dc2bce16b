#pragma once

#include "app/Colour.h"
#include "chart/model/BarWalk.h"
#include "chart/model/ChartModel.h"
#include "chart/model/PagePlan.h"
#include "chart/model/PlotRaster.h"
#include "chart/view/ScaledPainter.h"

#include <QFont>
#include <QImage>

#include <array>
#include <vector>

namespace skeldon {

/// Colours of the chart that a user can change.
struct ChartColours
{
    std::array<ColourRef, SeriesCount> series{};
    ColourRef item = DefaultItemColour; ///< the cursor

    ChartColours();
};

/// Paints the layers of a chart into pictures: value axis, grid and curves; the time strip; and the
/// composition of both with cursor, titles and selection. The same for the screen at any pixel
/// ratio, a picture and paper: only the factors differ.
class CChartPainter
{
public:
    /// `model` and `colours` must outlive the painter.
    CChartPainter(const CChartModel& model, const ChartColours& colours, const QFont& font);

    /// For paper, where every edge is rounded to a dot.
    void SetScale(double scaleX, double scaleY);
    /// For the screen and pictures: at a ratio such as 1.25, too, all lines of one logical pixel
    /// are as thick as each other.
    void SetRatio(double ratio);
    /// Curves are drawn so many device pixels wide, whatever the chart's own line weight is.
    void SetPenWidth(int pixels) { m_penWidth = pixels; }

    /// The chart layer from row `m_scrollY` on. The picture must be as wide as the chart and at
    /// least as high as the rows that are shown.
    void PaintChart(QImage& target);
    /// The bars of the lines that share the current line's time, over what is there.
    void PaintEqualRun(QImage& target);
    /// The time strip, from row `top` on.
    void DrawTimeStrip(QImage& target, int top);
    /// Puts the layers together and paints what lies over them: cursor, titles, and the selection
    /// between two columns of the client area where there is one. `painter` goes by device pixels
    /// from the picture's left top on.
    void Compose(QPainter& painter, const QImage& chart, const QImage& strip,
                 const std::optional<std::pair<int, int>>& selection);

    // --- the parts of it, for a page that needs no layers ---

    /// The chart layer's ground and value axis.
    void PaintAxis(CScaledPainter& painter);
    /// Grid and curves down to above the device row `bottom`, through pictures that take no more
    /// than `bandBytes`. False if such a picture can not be made.
    [[nodiscard]] bool PaintCurves(CScaledPainter& painter, int bottom,
                                   std::int64_t bandBytes = PageBandBytes);
    void DrawTimeStrip(CScaledPainter& painter, int top);
    /// What lies over the layers.
    void PaintOver(CScaledPainter& painter, const std::optional<std::pair<int, int>>& selection);

private:
    void PaintCurves(QImage& target, bool equalRunAlone);
    void WalkLines(const ChartRect& area, bool equalRunAlone);
    [[nodiscard]] bool IsMuch(const ChartRect& area) const;
    void PaintGrid();
    void PaintStrokes();
    void PaintFills();
    [[nodiscard]] ChartRect Device(const ChartRect& rect) const;
    /// The same of what is one logical pixel wide or high.
    [[nodiscard]] ChartRect DeviceLine(const ChartRect& line) const;
    void FillLine(CScaledPainter& painter, const ChartRect& line, ColourRef colour) const;
    [[nodiscard]] std::uint32_t Pixel(Series series, bool isDimmed) const;

    const CChartModel& m_model;
    const ChartColours& m_colours;
    QFont m_font;
    double m_scaleX = 1.0;
    double m_scaleY = 1.0;
    bool m_hasEvenLines = true;
    std::optional<int> m_penWidth;
    CPlotRaster m_raster;
    std::vector<ChartStroke> m_strokes;
    std::vector<ChartBarFill> m_fills;
};

} // namespace skeldon
