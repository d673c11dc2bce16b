#include "base/CalendarTime.h"

#include <ctime>
#include <mutex>

namespace skeldon {

namespace {

std::tm ToTm(const CalendarFields& fields)
{
    std::tm tm{};
    tm.tm_year = fields.year - 1900;
    tm.tm_mon = fields.month - 1;
    tm.tm_mday = fields.day;
    tm.tm_hour = fields.hour;
    tm.tm_min = fields.minute;
    tm.tm_sec = fields.second;
    tm.tm_isdst = -1;
    return tm;
}

} // namespace

CalendarSeconds Now()
{
    return static_cast<CalendarSeconds>(std::time(nullptr));
}

CalendarSeconds FromLocalFields(const CalendarFields& fields)
{
    // Where a time of day comes twice, mktime prefers the offset that its last call ended with.
    // Noon of the day before, asked first, makes the answer depend on the fields alone: it comes
    // once, and ahead of any change of the clock that the fields may lie near.
    static std::mutex lock;
    const std::lock_guard guard(lock);
    std::tm before = ToTm({fields.year, fields.month, fields.day - 1, 12, 0, 0});
    std::tm wanted = ToTm(fields);
    (void)std::mktime(&before);
    return static_cast<CalendarSeconds>(std::mktime(&wanted));
}

CalendarFields ToLocalFields(CalendarSeconds seconds)
{
    const auto time = static_cast<std::time_t>(seconds);
    std::tm tm{};
    if (localtime_r(&time, &tm) == nullptr)
        return {};
    return {tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec};
}

} // namespace skeldon
