#pragma once

#include "korva-simulator/RecorderTime.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace skeldon {

/// What a recorder notes down at one moment.
struct Measurement
{
    std::int64_t centiseconds = 0; ///< by the recorder's calendar, hundredths of a second
    std::int8_t x = 0;             ///< axes in counts of the recorder
    std::int8_t y = 0;
    std::int8_t z = 0;
    int temperature = 0; ///< tenths of a degree Celsius, -1279..1279
    int humidity = 0;    ///< percent
};

/// The three line layouts of the family.
enum class LineKind
{
    Oldest,   ///< 16 digits: time in sixteenths of a second, whole degrees
    Standard, ///< 18 digits: tenths of a degree, hundredths of a second
    Alpha,    ///< 20 digits: humidity too
};

/// The layout of a recorder of that type and firmware.
[[nodiscard]] LineKind LineKindOf(int type, bool alpha);
/// Hexadecimal digits of a line, its end not counted.
[[nodiscard]] std::size_t LineDigits(LineKind kind);
/// Appends the digits of `measurement`, without an end of line.
void AppendLine(std::string& text, LineKind kind, const Measurement& measurement);

/// Moves the time stamp at the head of a line by whole seconds. `year` is the one that the line
/// belongs to. A line that is too short for a time stamp, or has a date that there is not, stays.
void ShiftLine(std::string& digits, int year, RecorderSeconds seconds);
/// The date and time of a line, 0 for its year; nothing where it holds none that there is.
[[nodiscard]] std::optional<CalendarFields> LineTime(std::string_view digits);

} // namespace skeldon
