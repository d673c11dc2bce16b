#pragma once

#include "chart/model/ChartModel.h"
#include "chart/view/ChartPainter.h"

#include <QFont>
#include <QImage>
#include <QString>

#include <functional>

namespace skeldon {

/// Size in logical pixels of the picture that shows a chart of `chart` with title and legend.
[[nodiscard]] QSize ChartPictureSize(QSize chart, int labelHeight);
/// The chart's share of such a picture; may be empty.
[[nodiscard]] QSize ChartInPicture(QSize picture, int labelHeight);

/// What a chart is called: its own title, and the name of the file that the data came from.
[[nodiscard]] QString ChartTitle(const QString& title, const CMeasureData& data);

/// Title, right aligned in the rectangle.
void PaintTitle(CScaledPainter& painter, const QString& title, int right, int top, int bottom);

/// All six series, shown or not: name and a line in the series' colour, from the rectangle's top.
void PaintLegend(CScaledPainter& painter, const ChartRect& rect, const ChartColours& colours,
                 int labelHeight);

/// A picture with title and legend round what `paintView` paints: the chart without scroll bars and
/// gauge, from the painter's origin on, in device pixels. No picture if memory does not allow it.
[[nodiscard]] QImage FrameChart(const ChartSizes& sizes, const ChartColours& colours,
                                const QFont& font, const QString& title, double ratio,
                                const std::function<void(QPainter&)>& paintView);

/// The view image of a chart with title and legend, as it goes to the clipboard and into a file.
/// `model` is sized for the chart's share; `ratio` is device pixels per logical pixel.
[[nodiscard]] QImage ChartPicture(const CChartModel& model, const ChartColours& colours,
                                  const QFont& font, const QString& title, double ratio);

} // namespace skeldon
