#pragma once

#include "skeldonctl/CommandLine.h"
#include "skeldonctl/ExitStatus.h"

namespace skeldon {

// The commands that talk to a recorder.
ExitStatus Run(const StatusCommand& command);
ExitStatus Run(const GetCommand& command);
ExitStatus Run(const OnlineCommand& command);
ExitStatus Run(const StartCommand& command);

} // namespace skeldon
