#pragma once

#include "base/CalendarTime.h"
#include "base/NumberFormat.h"

#include <cstdint>

namespace skeldon {

/// "%d/%02d/%02d" of a date. Gives the end of what was written, as all of these do.
inline char* WriteDate(char* out, const CalendarFields& fields)
{
    out = WriteInt(out, fields.year);
    *out++ = '/';
    out = WriteTwoDigits(out, static_cast<unsigned>(fields.month));
    *out++ = '/';
    return WriteTwoDigits(out, static_cast<unsigned>(fields.day));
}

/// Hours, minutes and seconds of two digits each with `separator` between.
inline char* WriteTimeOfDay(char* out, const CalendarFields& fields, char separator)
{
    out = WriteTwoDigits(out, static_cast<unsigned>(fields.hour));
    *out++ = separator;
    out = WriteTwoDigits(out, static_cast<unsigned>(fields.minute));
    *out++ = separator;
    return WriteTwoDigits(out, static_cast<unsigned>(fields.second));
}

/// "%03d" of the milliseconds, which are above 999 only where no analysis ran.
inline char* WriteMsec(char* out, std::uint32_t msec)
{
    if (msec <= 999) {
        *out++ = static_cast<char>('0' + msec / 100);
        return WriteTwoDigits(out, msec % 100);
    }
    const auto value = static_cast<std::int32_t>(msec);
    if (value >= 0)
        return WriteInt(out, value);
    *out++ = '-';
    return WriteZeroPadded(out, 0 - static_cast<std::uint32_t>(value), 2);
}

} // namespace skeldon
