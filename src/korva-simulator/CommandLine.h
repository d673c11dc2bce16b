#pragma once

#include "korva-simulator/RecorderState.h"
#include "korva-simulator/SyntheticMemory.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace skeldon {

/// What the command line asks for.
struct SimulatorOptions
{
    std::string link; ///< stable name of the port; empty for none
    RecorderState recorder;
    SyntheticLines lines;
};

/// Why the program ends before it has begun: help, version, or wrong usage.
struct EarlyEnd
{
    int status = 0;
    std::string text;
};

[[nodiscard]] std::variant<SimulatorOptions, EarlyEnd>
ParseSimulatorLine(const std::vector<std::string>& arguments);

} // namespace skeldon
