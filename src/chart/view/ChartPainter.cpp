#include "chart/view/ChartPainter.h"

#include "chart/model/Rounding.h"
#include "resources/StringTable.h"

#include <algorithm>
#include <cstdlib>

namespace skeldon {

namespace {

constexpr std::uint32_t Opaque = 0xFF000000;
constexpr std::uint32_t WhitePixel = 0xFFFFFFFF;

/// A colour 0x00BBGGRR as images hold it.
std::uint32_t ToPixel(ColourRef colour)
{
    constexpr std::uint32_t LowByte = 0xFF;
    return Opaque | (colour & LowByte) << 16 | (colour & LowByte << 8) | (colour >> 16 & LowByte);
}

StringId UnitText(DisplayUnit unit)
{
    switch (unit) {
    case DisplayUnit::MetresPerSecond2:
        return StringId::ChartUnitMs2;
    case DisplayUnit::Gal:
        return StringId::ChartUnitGal;
    case DisplayUnit::G:
        break;
    }
    return StringId::ChartUnitG;
}

void Fill(CScaledPainter& painter, const ChartRect& rect, ColourRef colour)
{
    painter.FillRectScaled(rect.left, rect.top, rect.right, rect.bottom, colour);
}

/// Where a line of one logical pixel ends that begins at device pixel `first`.
int EndOfLine(int first, double scale)
{
    return first + std::max(Truncate(scale), 1);
}

/// Right aligned text that ends at a column, in the middle of a few rows.
void Label(CScaledPainter& painter, const std::string& text, int right, const ValueTickPlace& place,
           ColourRef colour)
{
    painter.DrawTextScaled(QString::fromStdString(text), 0, place.labelTop, right,
                           place.labelBottom, Qt::AlignRight, colour);
}

} // namespace

ChartColours::ChartColours()
{
    for (const Series each : AllSeries)
        series[Index(each)] = Info(each).defaultColour;
}

CChartPainter::CChartPainter(const CChartModel& model, const ChartColours& colours,
                             const QFont& font)
    : m_model(model)
    , m_colours(colours)
    , m_font(font)
{}

void CChartPainter::SetScale(double scaleX, double scaleY)
{
    m_scaleX = scaleX;
    m_scaleY = scaleY;
    m_hasEvenLines = false;
}

void CChartPainter::SetRatio(double ratio)
{
    SetScale(ratio, ratio);
    m_hasEvenLines = true;
}

ChartRect CChartPainter::Device(const ChartRect& rect) const
{
    return {RoundPixel(rect.left * m_scaleX), RoundPixel(rect.top * m_scaleY),
            RoundPixel(rect.right * m_scaleX), RoundPixel(rect.bottom * m_scaleY)};
}

ChartRect CChartPainter::DeviceLine(const ChartRect& line) const
{
    ChartRect device = Device(line);
    if (!m_hasEvenLines)
        return device;
    if (line.right - line.left == 1)
        device.right = EndOfLine(device.left, m_scaleX);
    if (line.bottom - line.top == 1)
        device.bottom = EndOfLine(device.top, m_scaleY);
    return device;
}

void CChartPainter::FillLine(CScaledPainter& painter, const ChartRect& line, ColourRef colour) const
{
    const ChartRect device = DeviceLine(line);
    painter.Painter().fillRect(device.left, device.top, device.right - device.left,
                               device.bottom - device.top, ToColour(colour));
}

std::uint32_t CChartPainter::Pixel(Series series, bool isDimmed) const
{
    const ColourRef colour = m_colours.series[Index(series)];
    return ToPixel(isDimmed ? Lightened(colour) : colour);
}

void CChartPainter::PaintChart(QImage& target)
{
    {
        CScaledPainter painter(target, m_font, m_scaleX, m_scaleY);
        PaintAxis(painter);
    }
    if (m_model.Count() >= 1)
        PaintCurves(target, false);
}

void CChartPainter::PaintEqualRun(QImage& target)
{
    PaintCurves(target, true);
}

void CChartPainter::PaintAxis(CScaledPainter& painter)
{
    const ChartSizes sizes = m_model.Sizes();
    Fill(painter, LayerGround(sizes), ChartColour::Background);
    for (const ValueTick& tick : ValueTicks(m_model.m_scale, sizes.clientHeight, m_model.m_unit)) {
        const ValueTickPlace place = PlaceValueTick(sizes, tick.row);
        FillLine(painter, place.gridLine, ChartColour::Grid);
        Label(painter, tick.acceleration, place.accelerationRight, place, ChartColour::Text);
        Label(painter, tick.temperature, place.temperatureRight, place,
              m_colours.series[Index(Series::Temperature)]);
        Label(painter, tick.humidity, place.humidityRight, place,
              m_colours.series[Index(Series::Humidity)]);
    }
}

/// The part of the layer within the clip of the curves, made column by column.
void CChartPainter::PaintCurves(QImage& target, bool equalRunAlone)
{
    const ChartSizes sizes = m_model.Sizes();
    ChartRect area = Device(CurveClip(sizes));
    area.left = std::max(area.left, 0);
    area.top = std::max(area.top, 0);
    area.right = std::min(area.right, target.width());
    area.bottom = std::min(area.bottom, target.height());
    const auto stride = static_cast<std::size_t>(target.bytesPerLine()) / sizeof(std::uint32_t);
    auto* const pixels = reinterpret_cast<std::uint32_t*>(target.bits());
    WalkLines(area, equalRunAlone);
    const bool isFull = !equalRunAlone && IsMuch(area);
    if (isFull)
        m_raster.Reset(area, WhitePixel);
    else
        m_raster.DrawOn(area, pixels, stride);
    if (!equalRunAlone)
        PaintGrid();
    PaintStrokes();
    PaintFills();
    if (isFull)
        m_raster.CopyTo(pixels, stride);
}

/// Finds what is drawn of the lines.
void CChartPainter::WalkLines(const ChartRect& area, bool equalRunAlone)
{
    const WalkView view = m_model.View(m_scaleX, m_scaleY);
    m_strokes.clear();
    m_fills.clear();
    if (m_model.m_barChart || equalRunAlone) {
        const LineSpan& lines = equalRunAlone ? m_model.m_equalRun : m_model.m_drawn;
        CBarWalk(m_model.m_index, view, m_model.m_currentLine, area.top, area.bottom)
            .WalkLines(lines.first, lines.last, m_fills);
    } else {
        CLineWalk(m_model.m_index, view).Walk(m_strokes);
    }
}

bool CChartPainter::PaintCurves(CScaledPainter& painter, int bottom, std::int64_t bandBytes)
{
    constexpr int PixelBytes = sizeof(std::uint32_t);
    constexpr int Overlap = 16;
    if (m_model.Count() < 1)
        return true;
    ChartRect area = Device(CurveClip(m_model.Sizes()));
    area.left = std::max(area.left, 0);
    area.bottom = std::min(area.bottom, bottom);
    const int width = area.right - area.left;
    if (width < 1)
        return true;
    WalkLines(area, false);
    for (const RowBand& band :
         PlanBands({area.top, area.bottom}, std::int64_t{width} * PixelBytes, bandBytes, Overlap)) {
        QImage picture(width, band.bottom - band.top, QImage::Format_RGB32);
        if (picture.isNull())
            return false;
        picture.fill(Qt::white);
        m_raster.DrawAt({area.left, band.top, area.right, band.bottom},
                        reinterpret_cast<std::uint32_t*>(picture.bits()),
                        static_cast<std::size_t>(picture.bytesPerLine()) / PixelBytes);
        PaintGrid();
        PaintStrokes();
        PaintFills();
        painter.Painter().drawImage(area.left, band.top, picture);
    }
    return true;
}

/// Whether so much is drawn that holding the area column by column pays.
bool CChartPainter::IsMuch(const ChartRect& area) const
{
    const std::int64_t pixels =
        std::int64_t{area.right - area.left} * std::int64_t{area.bottom - area.top};
    std::int64_t drawn = 0;
    for (const ChartStroke& stroke : m_strokes)
        drawn += std::abs(stroke.y2 - stroke.y1);
    for (const ChartBarFill& fill : m_fills)
        drawn += fill.rect.bottom - fill.rect.top;
    return drawn > pixels;
}

void CChartPainter::PaintGrid()
{
    const ChartSizes sizes = m_model.Sizes();
    for (const ValueGridLine& line : ValueGrid(m_model.m_scale, sizes.clientHeight))
        m_raster.Fill(DeviceLine(PlaceValueTick(sizes, line.row).gridLine),
                      ToPixel(ChartColour::Grid));
    for (const TimeTick& tick : m_model.m_strip.Ticks())
        m_raster.Fill(DeviceLine(TimeGridLine(sizes, tick.column)), ToPixel(ChartColour::Grid));
}

void CChartPainter::PaintStrokes()
{
    const int width = m_penWidth.value_or(std::max(1, RoundPixel(m_model.m_lineWeight * m_scaleX)));
    std::array<std::array<std::uint32_t, 2>, SeriesCount> pixels{};
    for (const Series series : AllSeries)
        pixels[Index(series)] = {Pixel(series, false), Pixel(series, true)};
    for (const ChartStroke& stroke : m_strokes)
        m_raster.Line(stroke.x1, stroke.y1, stroke.x2, stroke.y2, width,
                      pixels[Index(stroke.series)][stroke.isDimmed ? 1 : 0]);
}

void CChartPainter::PaintFills()
{
    for (const ChartBarFill& fill : m_fills)
        m_raster.Fill(fill.rect, fill.kind == BarFillKind::Edge
                                     ? WhitePixel
                                     : Pixel(fill.series, fill.isDimmed));
}

void CChartPainter::DrawTimeStrip(QImage& target, int top)
{
    CScaledPainter painter(target, m_font, m_scaleX, m_scaleY);
    DrawTimeStrip(painter, top);
}

void CChartPainter::DrawTimeStrip(CScaledPainter& painter, int top)
{
    const ChartSizes sizes = m_model.Sizes();
    Fill(painter, StripGround(sizes, top), ChartColour::Background);
    if (m_model.Count() < 1)
        return;
    for (const TimeLabel& label : m_model.m_strip.Labels())
        painter.DrawRotatedText(label.column, top, CScaledPainter::Vertical::Column,
                                QString::fromStdString(label.text), ChartColour::Text);
    const ChartRect name = AxisNameRect(sizes, top);
    painter.DrawTextScaled(
        Text(m_model.m_elapsedAxis ? StringId::ChartElapsedTime : StringId::ChartTime), name.left,
        name.top, name.right, name.bottom, Qt::AlignLeft, ChartColour::Text);
}

void CChartPainter::PaintOver(CScaledPainter& painter,
                              const std::optional<std::pair<int, int>>& selection)
{
    const ChartSizes sizes = m_model.Sizes();
    const ComposeLayout layout = Composed(sizes);
    const auto bar = m_model.m_barChart ? m_model.CurrentBar() : std::nullopt;
    for (const ChartRect& part : CursorFills(sizes, layout.plotHit, m_model.m_cursorX, bar))
        FillLine(painter, part, m_colours.item);
    using Vertical = CScaledPainter::Vertical;
    painter.DrawRotatedText(layout.leftTitleColumn, layout.titleRow, Vertical::Centred,
                            Text(StringId::ChartAxes) + Text(UnitText(m_model.m_unit)),
                            ChartColour::Text);
    painter.DrawRotatedText(layout.rightTitleColumn, layout.titleRow, Vertical::Downward,
                            Text(StringId::ChartTemperature),
                            m_colours.series[Index(Series::Temperature)]);
    painter.DrawRotatedText(layout.rightTitleColumn, layout.titleRow, Vertical::Upward,
                            Text(StringId::ChartHumidity),
                            m_colours.series[Index(Series::Humidity)]);
    if (!selection)
        return;
    const SelectionFills fills =
        SelectionBetween(sizes, layout.plotHit, selection->first, selection->second);
    for (const ChartRect& edge : fills.edges)
        Fill(painter, edge, ChartColour::Selection);
    if (fills.tint)
        painter.BlendRectScaled(fills.tint->left, fills.tint->top, fills.tint->right,
                                fills.tint->bottom, ChartColour::Selection, SelectionAlpha);
}

void CChartPainter::Compose(QPainter& target, const QImage& chart, const QImage& strip,
                            const std::optional<std::pair<int, int>>& selection)
{
    const ChartSizes sizes = m_model.Sizes();
    const ComposeLayout layout = Composed(sizes);
    const int width = RoundPixel(sizes.PlotBitmapWidth() * m_scaleX);
    const auto copyRows = [&](const QImage& from, int rows, int to) {
        const int first = RoundPixel(to * m_scaleY);
        target.drawImage(0, first, from, 0, 0, width, RoundPixel((to + rows) * m_scaleY) - first);
    };
    copyRows(chart, layout.chartRows, 0);
    CScaledPainter painter(target, m_font, m_scaleX, m_scaleY);
    if (layout.ground)
        Fill(painter, *layout.ground, ChartColour::Background);
    if (layout.band)
        Fill(painter, *layout.band, ChartColour::Background);
    if (layout.hasStrip)
        copyRows(strip, m_model.m_strip.m_timeStripHeight, layout.stripTop);
    PaintOver(painter, selection);
}

} // namespace skeldon
