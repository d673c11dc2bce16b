#pragma once

#include "ChartApp.h"

#include <QColor>
#include <QImage>
#include <QSet>

#include <array>

namespace skeldon::test {

inline const QColor White(Qt::white);
inline const QColor GridGrey(0xC0, 0xC0, 0xC0);
/// The usual colour of the cursor; that of labels, too.
inline const QColor Black(0, 0, 0);
inline const QColor SelectionEdge(0x40, 0x40, 0x80);
/// The usual colours of the series.
inline const std::array<QColor, SeriesCount> SeriesColours{
    QColor(0xC5, 0x0C, 0xC5), QColor(0x00, 0x00, 0x80), QColor(0x00, 0x80, 0x00),
    QColor(0x80, 0x80, 0x00), QColor(0xC1, 0x02, 0x02), QColor(0x49, 0x8B, 0xF9)};

/// The pixels of a row, or of a column, that have a colour.
[[nodiscard]] QSet<int> ColumnsOf(const QImage& picture, int row, const QColor& colour);
[[nodiscard]] QSet<int> RowsOf(const QImage& picture, int column, const QColor& colour);
/// The numbers from `first` up to but without `end`.
[[nodiscard]] QSet<int> Span(int first, int end);
/// Whether two colours differ by no more than a rounding in each channel.
[[nodiscard]] bool IsNear(const QColor& one, const QColor& other);
/// White under the veil of a selection.
[[nodiscard]] QColor TintedWhite();

/// No series at the coarsest step: grid, cursor and selection alone are left.
void HideAll(CChartApp& app);

} // namespace skeldon::test
