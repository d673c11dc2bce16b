#include "korva-simulator/RecorderState.h"

#include "setup/tables/IntervalTable.h"

namespace skeldon {

RecorderSeconds IntervalSeconds(char interval)
{
    const int row = IntervalTable::RowOfCharacter(interval);
    const RecorderSeconds length = IntervalTable::Length(row);
    return IntervalTable::InSeconds(row) ? length : length * 60;
}

} // namespace skeldon
