#pragma once

#include "data/MeasureData.h"

#include <vector>

namespace skeldon {

/// A line at `seconds` and `msec` with ordinary values.
inline CMeasureRecord LineAt(CalendarSeconds seconds, std::uint32_t msec = 0,
                             std::uint16_t flags = 0)
{
    CMeasureRecord line{CalendarSeconds{0}};
    line.SetValues(seconds, msec, 1.0, -2.0, 0.5, 21.5, 0.0);
    line.SetFlags(flags);
    return line;
}

/// A line at a local date and time.
inline CMeasureRecord LineOn(int year, int month, int day, int hour = 12, int minute = 0,
                             int second = 0)
{
    return LineAt(FromLocalFields({year, month, day, hour, minute, second}));
}

inline CMeasureData DataOf(const std::vector<CMeasureRecord>& lines)
{
    CMeasureData data;
    data.AddRecords(lines);
    return data;
}

inline std::vector<int> YearsOf(const CMeasureData& data)
{
    std::vector<int> years;
    for (const CMeasureRecord& record : data.Records())
        years.push_back(record.GetYear());
    return years;
}

inline std::vector<std::uint16_t> FlagsOf(const CMeasureData& data)
{
    std::vector<std::uint16_t> flags;
    for (const CMeasureRecord& record : data.Records())
        flags.push_back(record.m_flags);
    return flags;
}

} // namespace skeldon
