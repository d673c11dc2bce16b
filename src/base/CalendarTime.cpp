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

bool IsTimeOfDay(const CalendarFields& fields)
{
    return fields.hour >= 0 && fields.hour < 24 && fields.minute >= 0 && fields.minute < 60 &&
           fields.second >= 0 && fields.second < 60;
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

CalendarSeconds CLocalCalendar::ToSeconds(const CalendarFields& fields)
{
    const auto isDay = [&fields](const LocalDay& day) {
        return day.end != day.begin && fields.day == day.day && fields.month == day.month &&
               fields.year == day.year;
    };
    if (!IsTimeOfDay(fields))
        return FromLocalFields(fields);
    if (!isDay(m_day)) {
        const LocalDay day =
            PlainDayOf(FromLocalFields({fields.year, fields.month, fields.day, 0, 0, 0}));
        if (!isDay(day))
            return FromLocalFields(fields);
        m_day = day;
    }
    return m_day.begin + TimeOfDay(fields);
}

} // namespace skeldon
