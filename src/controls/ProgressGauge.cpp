#include "controls/ProgressGauge.h"

#include <algorithm>
#include <limits>

namespace skeldon {

namespace {

int Absolute(int value)
{
    constexpr std::int64_t Largest = std::numeric_limits<int>::max();
    const std::int64_t wide = value;
    return static_cast<int>(std::min(wide < 0 ? -wide : wide, Largest));
}

} // namespace

void ProgressGauge::SetRange(int value)
{
    range = Absolute(value);
    SetPosition(position);
}

void ProgressGauge::SetPosition(int value)
{
    position = std::min(Absolute(value), range);
}

int ProgressGauge::FilledColumns(int columns) const
{
    if (range == 0)
        return 0;
    return static_cast<int>(std::int64_t{columns} * position / range);
}

} // namespace skeldon
