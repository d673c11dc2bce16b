#include "base/CalendarTime.h"

namespace skeldon {

namespace {

constexpr int SecondsPerMinute = 60;
constexpr int SecondsPerHour = 3600;
constexpr int SecondsPerDay = 86400;

int TimeOfDay(const CalendarFields& fields)
{
    return fields.hour * SecondsPerHour + fields.minute * SecondsPerMinute + fields.second;
}

} // namespace

CalendarSeconds OneYearLater(const CalendarFields& fields)
{
    CalendarFields next = fields;
    next.year += 1;
    return FromLocalFields(next);
}

LocalDay PlainDayOf(CalendarSeconds seconds)
{
    const CalendarFields fields = ToLocalFields(seconds);
    const CalendarSeconds begin = seconds - TimeOfDay(fields);
    const CalendarFields first{fields.year, fields.month, fields.day, 0, 0, 0};
    const CalendarFields last{fields.year, fields.month, fields.day, 23, 59, 59};
    if (ToLocalFields(begin) != first || ToLocalFields(begin + SecondsPerDay - 1) != last)
        return {};
    // Where the day's first hour comes twice, those are the last 24 of its 25 hours.
    if (ToLocalFields(begin - 1).day == fields.day)
        return {};
    return {begin, begin + SecondsPerDay, fields.year, fields.month, fields.day};
}

const LocalDay& CLocalCalendar::Day(CalendarSeconds seconds)
{
    if (!m_day.Holds(seconds))
        m_day = PlainDayOf(seconds);
    return m_day;
}

CalendarFields CLocalCalendar::ToFields(CalendarSeconds seconds)
{
    const LocalDay& day = Day(seconds);
    if (!day.Holds(seconds))
        return ToLocalFields(seconds);
    const int time = static_cast<int>(seconds - day.begin);
    return {day.year,
            day.month,
            day.day,
            time / SecondsPerHour,
            time % SecondsPerHour / SecondsPerMinute,
            time % SecondsPerMinute};
}

CalendarSeconds CLocalCalendar::ToSecondsElse(const CalendarFields& fields)
{
    const CalendarSeconds seconds = FromLocalFields(fields);
    const LocalDay day = PlainDayOf(seconds);
    if (day.day == fields.day && day.month == fields.month && day.year == fields.year)
        m_day = day;
    return seconds;
}

} // namespace skeldon
