#pragma once

#include "base/CalendarTime.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace skeldon {

/// The recorder's own calendar in seconds since 1970-01-01 00:00:00: it knows no time zone and no
/// daylight saving, so that every day has 86400 of them.
using RecorderSeconds = std::int64_t;

inline constexpr RecorderSeconds SecondsPerDay = 86400;

/// A day that its month does not have is one of the next month.
[[nodiscard]] RecorderSeconds FromRecorderFields(const CalendarFields& fields);
[[nodiscard]] CalendarFields ToRecorderFields(RecorderSeconds seconds);

/// Reads "YYYY-MM-DD HH:MM:SS", the time of day or its seconds left out at will. Nothing where the
/// text is no such date.
[[nodiscard]] std::optional<RecorderSeconds> ParseRecorderTime(std::string_view text);
/// Writes the whole form.
[[nodiscard]] std::string RecorderTimeText(RecorderSeconds seconds);

} // namespace skeldon
