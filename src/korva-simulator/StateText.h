#pragma once

#include "base/CalendarTime.h"
#include "korva-simulator/RecorderState.h"

#include <string>
#include <string_view>
#include <variant>

namespace skeldon {

/// The recorder as a text that keeps it over runs. `now` is the PC's time, by which its clock goes
/// on while nobody plays it.
[[nodiscard]] std::string StateText(const RecorderState& state, CalendarSeconds now);

/// Reads such a text; on a failure the result says in which line and why.
[[nodiscard]] std::variant<RecorderState, std::string> ParseStateText(std::string_view text,
                                                                      CalendarSeconds now);

/// Fills the memory with raw record lines, one to a line of text; empty lines count for nothing.
void TakeRecordLines(CRecordMemory& memory, std::string_view text);

/// The date on which a memory begins, by its first line and a year; nothing without such a line.
[[nodiscard]] std::optional<RecorderSeconds> BeginningOf(const CRecordMemory& memory, int year);

} // namespace skeldon
