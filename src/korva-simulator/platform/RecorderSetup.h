#pragma once

#include "korva-simulator/CommandLine.h"

#include <string>
#include <variant>

namespace skeldon {

/// The recorder that the options ask for: the one of the state file, or a new one with its memory
/// filled. On a failure the text names the file and says why.
[[nodiscard]] std::variant<RecorderState, std::string>
SetUpRecorder(const SimulatorOptions& options);

} // namespace skeldon
