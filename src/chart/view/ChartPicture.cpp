#include "chart/view/ChartPicture.h"

#include "app/DataText.h"
#include "chart/model/Rounding.h"
#include "resources/StringTable.h"

#include <QFontMetrics>

#include <algorithm>
#include <array>
#include <cmath>

namespace skeldon {

namespace {

constexpr int LegendLabelHeights = 5;
constexpr int LegendMargin = 8;
constexpr int TitleGap = 8;

constexpr std::array<StringId, SeriesCount> LegendNames{
    StringId::ColumnX,         StringId::ColumnY,           StringId::ColumnZ,
    StringId::ColumnResultant, StringId::ColumnTemperature, StringId::ColumnHumidity};

int LegendWidth(int labelHeight)
{
    return LegendLabelHeights * (labelHeight + LegendMargin);
}

int TitleHeight(int labelHeight)
{
    return 2 * labelHeight + TitleGap;
}

/// Makes the painter's font so narrow that all names fit into `room` device pixels, as far as they
/// can still be read. Gives the length of the longest.
int FitNames(CScaledPainter& scaled, int room)
{
    QPainter& painter = scaled.Painter();
    constexpr int Narrowest = 60;
    constexpr int Plain = 100;
    const auto longest = [&scaled] {
        int length = 1;
        for (const StringId name : LegendNames)
            length = std::max(length, scaled.TextWidth(Text(name)));
        return length;
    };
    if (const int length = longest(); length > room) {
        QFont font = painter.font();
        font.setStretch(std::clamp(Plain * room / length, Narrowest, Plain));
        painter.setFont(font);
    }
    return longest();
}

/// The chart without scroll bars and gauge.
QSize ViewSize(const ChartSizes& sizes)
{
    return {sizes.PlotBitmapWidth(), sizes.clientHeight - sizes.horzScrollHeight};
}

QSize DeviceSize(QSize size, double ratio)
{
    return {static_cast<int>(std::ceil(size.width() * ratio)),
            static_cast<int>(std::ceil(size.height() * ratio))};
}

} // namespace

QSize ChartPictureSize(QSize chart, int labelHeight)
{
    return chart + QSize(LegendWidth(labelHeight), TitleHeight(labelHeight));
}

QSize ChartInPicture(QSize picture, int labelHeight)
{
    return picture - QSize(LegendWidth(labelHeight), TitleHeight(labelHeight));
}

QString ChartTitle(const QString& title, const CMeasureData& data)
{
    if (data.m_fileName.empty())
        return title;
    return title + QStringLiteral(" : ") + FromDataText(data.m_fileName);
}

void PaintTitle(CScaledPainter& painter, const QString& title, int right, int top, int bottom)
{
    painter.DrawTextScaled(title, 0, top, right, bottom, Qt::AlignRight, ChartColour::Text);
}

void PaintLegend(CScaledPainter& painter, const ChartRect& rect, const ChartColours& colours,
                 int labelHeight)
{
    constexpr int RowGap = 4;
    constexpr int LineGap = 8;
    constexpr int ShortestLine = 20;
    painter.Painter().save();
    const int longest =
        FitNames(painter, painter.DeviceX(rect.right - rect.left - LineGap - ShortestLine));
    const int lineLeft = rect.left + RoundPixel(longest / painter.ScaleX()) + LineGap;
    int top = rect.top;
    for (const Series series : AllSeries) {
        const ColourRef colour = colours.series[Index(series)];
        const int middle = top + (labelHeight + RowGap) / 2;
        painter.DrawTextScaled(Text(LegendNames[Index(series)]), rect.left, middle - 1, rect.right,
                               middle, Qt::AlignLeft, ChartColour::Text);
        painter.FillRectScaled(lineLeft, middle, rect.right, middle + 1, colour);
        top += labelHeight + RowGap;
    }
    painter.Painter().restore();
}

QImage FrameChart(const ChartSizes& sizes, const ChartColours& colours, const QFont& font,
                  const QString& title, double ratio,
                  const std::function<void(QPainter&)>& paintView)
{
    const int labelHeight = sizes.labelHeight;
    const QSize chart = ViewSize(sizes);
    QImage picture(DeviceSize(ChartPictureSize(chart, labelHeight), ratio), QImage::Format_RGB32);
    if (picture.isNull())
        return {};
    picture.fill(Qt::white);
    CScaledPainter outer(picture, font, ratio, ratio);
    const int right = chart.width() + LegendLabelHeights * labelHeight + 4 * LegendMargin;
    const int top = TitleHeight(labelHeight);
    PaintTitle(outer, title, right, TitleGap, labelHeight + TitleGap);
    PaintLegend(outer, {chart.width(), top, right, top + chart.height()}, colours, labelHeight);
    outer.Painter().translate(0, outer.DeviceY(top));
    paintView(outer.Painter());
    return picture;
}

QImage ChartPicture(const CChartModel& model, const ChartColours& colours, const QFont& font,
                    const QString& title, double ratio)
{
    const ChartSizes sizes = model.Sizes();
    const QSize chart = ViewSize(sizes);
    QImage layer(DeviceSize(chart, ratio), QImage::Format_RGB32);
    QImage strip(
        DeviceSize({chart.width(), std::max(TimeStripHeight, sizes.timeStripHeight)}, ratio),
        QImage::Format_RGB32);
    if (layer.isNull() || strip.isNull())
        return {};
    layer.fill(Qt::white);
    strip.fill(Qt::white);
    CChartPainter painter(model, colours, font);
    painter.SetRatio(ratio);
    painter.PaintChart(layer);
    painter.DrawTimeStrip(strip, 0);
    return FrameChart(sizes, colours, font, title, ratio,
                      [&](QPainter& view) { painter.Compose(view, layer, strip, std::nullopt); });
}

} // namespace skeldon
