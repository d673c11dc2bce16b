#pragma once

#include "korva-simulator/RecorderState.h"

#include <string>

namespace skeldon {

/// The status report of the recorder, without its closing mark. Its clock plays no part: the date
/// it carries is the one on which the memory begins.
[[nodiscard]] std::string StatusText(const RecorderState& state);

} // namespace skeldon
