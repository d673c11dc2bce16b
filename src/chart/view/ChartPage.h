#pragma once

#include "chart/model/ChartModel.h"
#include "chart/view/ChartPainter.h"

#include <QFont>
#include <QPainter>
#include <QSize>
#include <QString>

namespace skeldon {

/// Size of the printed chart before it is scaled, in pixels of the screen: what the window shows of
/// it, and beside that title and legend.
[[nodiscard]] QSize NaturalPageSize(const ChartSizes& sizes);

/// A chart's page.
struct ChartPage
{
    QSize size; ///< device pixels
    QString title;
    int penWidth = 1; ///< of the curves, device pixels
};

/// Draws the view image of a chart with title and legend from the device's left top on. `device`
/// goes by device pixels. False if memory does not allow it.
[[nodiscard]] bool PaintChartPage(QPainter& device, const ChartPage& page, const CChartModel& model,
                                  const ChartColours& colours, const QFont& font);

} // namespace skeldon
