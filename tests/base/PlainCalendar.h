#pragma once

#include "base/CalendarTime.h"

#include <ctime>

namespace skeldon {

// The calendar as the runtime gives it, a call for each conversion.

inline std::tm PlainLocal(CalendarSeconds seconds)
{
    const auto time = static_cast<std::time_t>(seconds);
    std::tm tm{};
    ::localtime_r(&time, &tm);
    return tm;
}

inline bool SameClock(const std::tm& a, const std::tm& b)
{
    return a.tm_year == b.tm_year && a.tm_mon == b.tm_mon && a.tm_mday == b.tm_mday &&
           a.tm_hour == b.tm_hour && a.tm_min == b.tm_min && a.tm_sec == b.tm_sec;
}

/// `mktime` with an undecided daylight flag, and the earlier of two instants of the same name: it
/// lies half an hour or an hour before the other.
inline CalendarSeconds PlainInstant(int year, int month, int day, int hour, int minute, int second)
{
    std::tm tm{};
    tm.tm_year = year - 1900;
    tm.tm_mon = month - 1;
    tm.tm_mday = day;
    tm.tm_hour = hour;
    tm.tm_min = minute;
    tm.tm_sec = second;
    tm.tm_isdst = -1;
    const auto found = static_cast<CalendarSeconds>(std::mktime(&tm));
    const std::tm wanted = PlainLocal(found);
    for (const int earlier : {3600, 1800}) {
        if (SameClock(PlainLocal(found - earlier), wanted))
            return found - earlier;
    }
    return found;
}

} // namespace skeldon
