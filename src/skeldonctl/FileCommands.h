#pragma once

#include "skeldonctl/CommandLine.h"
#include "skeldonctl/ExitStatus.h"

namespace skeldon {

// The commands that need no recorder. The data is analysed without the year repair, and the input
// is never written to.
ExitStatus Run(const InfoCommand& command);
ExitStatus Run(const ConvertCommand& command);
ExitStatus Run(const CsvCommand& command);

} // namespace skeldon
