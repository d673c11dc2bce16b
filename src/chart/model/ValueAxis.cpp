#include "chart/model/ValueAxis.h"

#include "base/AccelerationUnits.h"
#include "base/NumberFormat.h"

#include <cmath>

namespace skeldon {

namespace {

// The axis ends at 50 both ways. Upward the rounding of the sum of the steps is allowed for,
// downward it is not.
constexpr double HighestTick = 50.0001;
constexpr double LowestTick = -50.0;

constexpr double DegreesPerUnit = 2.0;
constexpr double HighestDegrees = 50.001;
constexpr double PercentPerUnit = 4.0;
constexpr double HighestPercent = 100.001;

} // namespace

std::string AccelerationLabel(double value, DisplayUnit unit)
{
    switch (unit) {
    case DisplayUnit::G:
        break;
    case DisplayUnit::MetresPerSecond2:
        return FixedText(value * MetresPerSecond2PerG, 1);
    case DisplayUnit::Gal:
        return FixedText(value * GalPerG, 0);
    }
    return FixedText(value, 1);
}

std::string TemperatureLabel(double value)
{
    const double degrees = DegreesPerUnit * value;
    return std::fabs(degrees) <= HighestDegrees ? FixedText(degrees, 1) : std::string();
}

std::string HumidityLabel(double value)
{
    const double percent = PercentPerUnit * value;
    if (!(percent >= 0.0 && percent <= HighestPercent))
        return {};
    const std::string text = FixedText(percent, 1);
    return text.back() == '0' ? text.substr(0, text.size() - 2) : std::string();
}

std::vector<ValueGridLine> ValueGrid(const CValueScale& scale, int clientHeight)
{
    const double interval = CValueScale::GridInterval(scale.GetStep());
    const int top = scale.m_scrollY;
    const int bottom = scale.m_scrollY + clientHeight;
    std::vector<ValueGridLine> lines;
    double value = 0.0;
    while (value <= HighestTick) {
        const int row = scale.Row(value);
        if (row < top)
            break;
        if (row < bottom)
            lines.push_back({value, row});
        value += interval;
    }
    value = -interval;
    while (value >= LowestTick) {
        const int row = scale.Row(value);
        if (row > bottom)
            break;
        lines.push_back({value, row});
        value -= interval;
    }
    return lines;
}

std::vector<ValueTick> ValueTicks(const CValueScale& scale, int clientHeight, DisplayUnit unit)
{
    std::vector<ValueTick> ticks;
    for (const auto& [value, row] : ValueGrid(scale, clientHeight))
        ticks.push_back({value, row, AccelerationLabel(value, unit), TemperatureLabel(value),
                         HumidityLabel(value)});
    return ticks;
}

} // namespace skeldon
