#pragma once

#include "korva-simulator/Fault.h"
#include "korva-simulator/RecorderState.h"
#include "korva-simulator/SyntheticMemory.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace skeldon {

/// What the command line asks for.
struct SimulatorOptions
{
    // Paths; empty for none.
    std::string link;    ///< stable name of the port
    std::string state;   ///< file that keeps the recorder over runs
    std::string records; ///< file with raw record lines
    std::string control; ///< named pipe for commands
    std::string trace;   ///< log of the wire

    RecorderState recorder; ///< new, where no state file has an older one; its memory is empty
    SyntheticLines lines;
    bool fromGiven = false; ///< whether the time of the first line was named
    std::vector<Fault> faults;
    std::int64_t bytesPerSecond = 0; ///< 0 is as fast as the host reads
    double timeScale = 1;            ///< seconds of the recorder in one real second
    bool unplugged = false;
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
