#include "chart/view/ChartPage.h"

#include "chart/view/ChartPicture.h"

#include <algorithm>

namespace skeldon {

namespace {

constexpr int LegendLabelHeights = 5;
constexpr int LegendMargins = 32;
constexpr int TitleRows = 2;

int LegendWidth(const ChartSizes& sizes)
{
    return LegendLabelHeights * sizes.labelHeight + LegendMargins;
}

/// Row of the time strip.
int StripRow(const ChartSizes& sizes)
{
    return std::min(sizes.Hgt(), sizes.contentHeight);
}

/// Sets back what was changed of the painter.
class CPainterState
{
public:
    explicit CPainterState(QPainter& painter)
        : m_painter(painter)
    {
        m_painter.save();
    }
    CPainterState(const CPainterState&) = delete;
    CPainterState& operator=(const CPainterState&) = delete;
    ~CPainterState() { m_painter.restore(); }

private:
    QPainter& m_painter;
};

/// All but the title, from the device's left top on.
bool PaintBody(CScaledPainter& body, CChartPainter& chart, const ChartSizes& sizes,
               const ChartColours& colours)
{
    const QSize natural = NaturalPageSize(sizes);
    const int strip = StripRow(sizes);
    {
        // What the window has below the strip's row would lie hidden under it.
        const CPainterState unclipped(body.Painter());
        body.Painter().setClipRect(QRect(0, 0, body.DeviceX(natural.width()), body.DeviceY(strip)),
                                   Qt::IntersectClip);
        chart.PaintAxis(body);
    }
    if (!chart.PaintCurves(body, body.DeviceY(strip)))
        return false;
    chart.DrawTimeStrip(body, strip);
    if (const auto band = Composed(sizes).band)
        body.FillRectScaled(band->left, band->top, band->right, band->bottom,
                            ChartColour::Background);
    chart.PaintOver(body, std::nullopt);
    PaintLegend(body, {natural.width() - LegendWidth(sizes), 0, natural.width(), natural.height()},
                colours, sizes.labelHeight);
    return true;
}

} // namespace

QSize NaturalPageSize(const ChartSizes& sizes)
{
    return {sizes.PlotBitmapWidth() + LegendWidth(sizes),
            StripRow(sizes) + sizes.timeStripHeight + TitleRows * sizes.labelHeight};
}

bool PaintChartPage(QPainter& device, const ChartPage& page, const CChartModel& model,
                    const ChartColours& colours, const QFont& font)
{
    const ChartSizes sizes = model.Sizes();
    const QSize natural = NaturalPageSize(sizes);
    if (page.size.isEmpty() || natural.isEmpty())
        return false;
    const CPainterState unchanged(device);
    // Colours and hairlines would not outlive a compression that loses something.
    device.setRenderHint(QPainter::LosslessImageRendering);
    const double scaleX = static_cast<double>(page.size.width()) / natural.width();
    const double scaleY = static_cast<double>(page.size.height()) / natural.height();
    CScaledPainter painter(device, font, scaleX, scaleY);
    CChartPainter chart(model, colours, font);
    chart.SetScale(scaleX, scaleY);
    chart.SetPenWidth(page.penWidth);
    {
        const CPainterState unmoved(device);
        const int head = painter.DeviceY(TitleRows * sizes.labelHeight);
        device.translate(0, head);
        device.setClipRect(QRect(0, 0, page.size.width(), page.size.height() - head),
                           Qt::IntersectClip);
        if (!PaintBody(painter, chart, sizes, colours))
            return false;
    }
    PaintTitle(painter, page.title, natural.width(), 0, sizes.labelHeight);
    return true;
}

} // namespace skeldon
