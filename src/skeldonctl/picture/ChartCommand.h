#pragma once

#include "skeldonctl/CommandLine.h"
#include "skeldonctl/ExitStatus.h"

namespace skeldon {

/// Draws a data file as the window's clipboard picture shows it, without a screen.
ExitStatus Run(const ChartCommand& command);

} // namespace skeldon
