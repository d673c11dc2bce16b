#pragma once

#include <cstdint>

namespace skeldon {

/// Whole seconds since the epoch (1970-01-01 00:00:00 UTC), 64 bits so that dates after January
/// 2038 work.
using CalendarSeconds = std::int64_t;

/// A date and time of day in the system's local zone.
struct CalendarFields
{
    int year = 1970;
    int month = 1; ///< 1..12
    int day = 1;   ///< 1..31
    int hour = 0;
    int minute = 0;
    int second = 0;

    bool operator==(const CalendarFields&) const = default;
};

/// The present time by the PC's clock.
[[nodiscard]] CalendarSeconds Now();

/// The instant that local `fields` name. Fields outside their range roll over as the calendar
/// conversion does (February 30th is March 1st or 2nd); the system decides daylight saving. Of an
/// hour that comes twice the earlier instant is meant, whatever was converted before.
[[nodiscard]] CalendarSeconds FromLocalFields(const CalendarFields& fields);

/// The local date and time of `seconds`.
[[nodiscard]] CalendarFields ToLocalFields(CalendarSeconds seconds);

/// `fields` with everything but the year as it is, one year later, as an instant.
[[nodiscard]] CalendarSeconds OneYearLater(const CalendarFields& fields);

/// One local calendar day on which the clock is not put forward or back: there the conversion is
/// plain arithmetic. An empty day (`begin` equal to `end`) stands for "ask the system".
struct LocalDay
{
    CalendarSeconds begin = 0; ///< the instant of 00:00:00
    CalendarSeconds end = 0;   ///< the instant behind 23:59:59
    int year = 0;
    int month = 0;
    int day = 0;

    [[nodiscard]] bool Holds(CalendarSeconds seconds) const
    {
        return seconds >= begin && seconds < end;
    }
};

/// The day that holds `seconds`, or an empty one where the clock is changed on that day.
[[nodiscard]] LocalDay PlainDayOf(CalendarSeconds seconds);

/// The two conversions above with the last day remembered, for long runs of lines: a line costs
/// a system call only where its day differs from the one before. Same results. Not for use by two
/// threads at once.
class CLocalCalendar
{
public:
    [[nodiscard]] CalendarFields ToFields(CalendarSeconds seconds);
    [[nodiscard]] CalendarSeconds ToSeconds(const CalendarFields& fields)
    {
        constexpr int SecondsPerHour = 3600;
        constexpr int SecondsPerMinute = 60;
        const bool isKnown = fields.day == m_day.day && fields.month == m_day.month &&
                             fields.year == m_day.year && m_day.end != m_day.begin;
        const bool isTime = static_cast<unsigned>(fields.hour) < 24 &&
                            static_cast<unsigned>(fields.minute) < 60 &&
                            static_cast<unsigned>(fields.second) < 60;
        if (!isKnown || !isTime)
            return ToSecondsElse(fields);
        return m_day.begin + CalendarSeconds{fields.hour} * SecondsPerHour +
               CalendarSeconds{fields.minute} * SecondsPerMinute + fields.second;
    }
    /// As `PlainDayOf`.
    [[nodiscard]] const LocalDay& Day(CalendarSeconds seconds);

private:
    /// For a day that is not the remembered one, or no time of day.
    [[nodiscard]] CalendarSeconds ToSecondsElse(const CalendarFields& fields);

    LocalDay m_day;
};

} // namespace skeldon
