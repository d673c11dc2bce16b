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

QImage ChartPicture(const CChartModel& model, const ChartColours& colours, const QFont& font,
                    const QString& title, double ratio)
{
    const ChartSizes sizes = model.Sizes();
    const int labelHeight = sizes.labelHeight;
    const QSize chart(sizes.PlotBitmapWidth(), sizes.clientHeight - sizes.horzScrollHeight);
    const auto device = [ratio](QSize size) {
        return QSize(static_cast<int>(std::ceil(size.width() * ratio)),
                     static_cast<int>(std::ceil(size.height() * ratio)));
    };
    QImage picture(device(ChartPictureSize(chart, labelHeight)), QImage::Format_RGB32);
    QImage layer(device(chart), QImage::Format_RGB32);
    QImage strip(device({chart.width(), std::max(TimeStripHeight, sizes.timeStripHeight)}),
                 QImage::Format_RGB32);
    if (picture.isNull() || layer.isNull() || strip.isNull())
        return {};
    for (QImage* const image : {&picture, &layer, &strip})
        image->fill(Qt::white);
    CChartPainter painter(model, colours, font);
    painter.SetScale(ratio, ratio);
    painter.PaintChart(layer);
    painter.PaintTimeStrip(strip, 0);

    CScaledPainter outer(picture, font, ratio, ratio);
    const int right = chart.width() + LegendLabelHeights * labelHeight + 4 * LegendMargin;
    const int top = TitleHeight(labelHeight);
    PaintTitle(outer, title, right, TitleGap, labelHeight + TitleGap);
    PaintLegend(outer, {chart.width(), top, right, top + chart.height()}, colours, labelHeight);
    outer.Painter().translate(0, outer.DeviceY(top));
    painter.Compose(outer.Painter(), layer, strip, std::nullopt);
    return picture;
}

} // namespace skeldon
