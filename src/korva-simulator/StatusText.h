#pragma once

#include "korva-simulator/Fault.h"
#include "korva-simulator/RecorderState.h"

#include <string>

namespace skeldon {

/// The status report of the recorder, as the faults in force spoil it, without its closing mark.
/// Its clock plays no part: the date it carries is the one on which the memory begins.
[[nodiscard]] std::string StatusText(const RecorderState& state, const CFaults& faults);

} // namespace skeldon
