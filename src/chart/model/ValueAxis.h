#pragma once

#include "chart/model/ValueScale.h"

#include <string>
#include <vector>

namespace skeldon {

/// The unit in which accelerations are shown; the number is the one of the settings. The chart
/// computes in G whatever it is.
enum class DisplayUnit
{
    G = 0,
    MetresPerSecond2 = 1,
    Gal = 2,
};

/// One grid line of the value axis.
struct ValueGridLine
{
    double value = 0.0; ///< axis value
    int row = 0;        ///< content row
};

/// The same with its labels.
struct ValueTick
{
    double value = 0.0; ///< axis value
    int row = 0;        ///< content row
    std::string acceleration;
    std::string temperature; ///< empty where the axis means no temperature
    std::string humidity;    ///< empty outside 0 to 100 percent and where it is no whole percent
};

/// The grid lines that a window of `clientHeight` rows shows: from 0 upward, then from below 0
/// downward.
[[nodiscard]] std::vector<ValueGridLine> ValueGrid(const CValueScale& scale, int clientHeight);
[[nodiscard]] std::vector<ValueTick> ValueTicks(const CValueScale& scale, int clientHeight,
                                                DisplayUnit unit);

/// An axis value in the unit shown: one decimal, none in Gal.
[[nodiscard]] std::string AccelerationLabel(double value, DisplayUnit unit);
/// The temperature column at an axis value; empty outside -50 to 50 degrees.
[[nodiscard]] std::string TemperatureLabel(double value);
/// The humidity column likewise.
[[nodiscard]] std::string HumidityLabel(double value);

} // namespace skeldon
