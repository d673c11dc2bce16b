#include "Pixels.h"

#include <cstdlib>

namespace skeldon::test {

QSet<int> ColumnsOf(const QImage& picture, int row, const QColor& colour)
{
    QSet<int> columns;
    for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixelColor(x, row) == colour)
            columns.insert(x);
    }
    return columns;
}

QSet<int> RowsOf(const QImage& picture, int column, const QColor& colour)
{
    QSet<int> rows;
    for (int y = 0; y < picture.height(); ++y) {
        if (picture.pixelColor(column, y) == colour)
            rows.insert(y);
    }
    return rows;
}

QSet<int> Span(int first, int end)
{
    QSet<int> numbers;
    for (int i = first; i < end; ++i)
        numbers.insert(i);
    return numbers;
}

bool IsNear(const QColor& one, const QColor& other)
{
    constexpr int Rounding = 1;
    return std::abs(one.red() - other.red()) <= Rounding &&
           std::abs(one.green() - other.green()) <= Rounding &&
           std::abs(one.blue() - other.blue()) <= Rounding;
}

QColor TintedWhite()
{
    const auto tinted = [](int tint) { return (255 * 230 + tint * 25) / 255; };
    return {tinted(0x40), tinted(0x40), tinted(0x80)};
}

void HideAll(CChartApp& app)
{
    for (const Series each : AllSeries)
        app.Chart().SetSeriesShown(Info(each).mask, false);
    app.Chart().ChangeScaleStep(0);
}

} // namespace skeldon::test
