#pragma once

#include "chart/model/ChartModel.h"

#include <QString>

namespace skeldon {

/// The current line in words, for who can not see the chart: its number, its instant, and the
/// values of the series that are drawn, in the unit shown.
[[nodiscard]] QString CurrentLineWords(const CChartModel& model);

} // namespace skeldon
