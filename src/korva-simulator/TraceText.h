#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace skeldon {

/// Which way bytes went.
enum class TraceDirection : char
{
    FromHost = '>',
    ToHost = '<',
    Lost = '!', ///< sent while nobody had the port open
};

/// Appends lines of up to 16 bytes: seconds, direction, the bytes in hexadecimal and as text.
///     0.250431 > 6D                                               |m|
void AppendTrace(std::string& text, std::int64_t timeUs, TraceDirection direction,
                 std::string_view bytes);
/// Appends a line for an event, such as "plugged in", with "-" in the direction's place.
void AppendTraceEvent(std::string& text, std::int64_t timeUs, std::string_view event);

} // namespace skeldon
