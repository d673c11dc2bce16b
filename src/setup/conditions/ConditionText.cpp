#include "setup/conditions/ConditionText.h"

#include "base/NumberFormat.h"
#include "setup/tables/IntervalTable.h"
#include "setup/tables/SamplingTable.h"

namespace skeldon {

std::string SamplingListText(int row)
{
    constexpr double SecondsPerCount = 0.0001; // of the table's period
    std::string text = FixedText(SamplingTable::Period(row) * SecondsPerCount, 4);
    text += " sec";
    if (SamplingTable::IsTrace(row))
        text += " Trace mode";
    return text;
}

std::string IntervalListText(int row)
{
    return std::to_string(IntervalTable::Length(row)) +
           (IntervalTable::InSeconds(row) ? " sec" : " minute");
}

std::string LevelText(int tenths)
{
    constexpr double TenthsPerG = 10.0;
    return FixedText(tenths / TenthsPerG, 1);
}

} // namespace skeldon
