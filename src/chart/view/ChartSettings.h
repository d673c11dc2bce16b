#pragma once

#include "app/Settings.h"
#include "chart/model/ChartProperties.h"

#include <QString>

namespace skeldon {

/// How the user wants the chart to look.
struct ChartProperties
{
    ChartColourValues colours = StandardColours();
    int screenWeight = ThinWeight; ///< as the store has it: any number
    int printWeight = ThickWeight; ///< likewise
    bool isElapsed = false;        ///< the time axis counts from the first line
    QString title;                 ///< over the chart on paper and in a picture; may be empty
};

/// What the store holds, with the default of each value that it lacks.
[[nodiscard]] ChartProperties ReadChartProperties(const CSettings& settings);
/// Writes all of it.
void WriteChartProperties(CSettings& settings, const ChartProperties& properties);

} // namespace skeldon
