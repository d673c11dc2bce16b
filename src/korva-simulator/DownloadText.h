#pragma once

#include "korva-simulator/Fault.h"
#include "korva-simulator/RecorderState.h"

#include <optional>
#include <string>

namespace skeldon {

/// The lines of a download as the faults in force spoil them; nothing where none of them does, and
/// the memory goes out as it stands.
[[nodiscard]] std::optional<std::string> SpoiltDownload(const RecorderState& state,
                                                        const CFaults& faults);

/// By how much the memory is moved in time for a line to be the first of the next year; 0 where
/// nobody asked for that, or there is no such line.
[[nodiscard]] RecorderSeconds NewYearShift(const RecorderState& state, const CFaults& faults);

} // namespace skeldon
