#pragma once

#include "recorder/RecorderLink.h"
#include "skeldonctl/CommandLine.h"
#include "skeldonctl/ExitStatus.h"

namespace skeldon {

// The commands that talk to a recorder, over a link that has not been used yet.
ExitStatus Run(const StatusCommand& command, CRecorderLink& link);
ExitStatus Run(const GetCommand& command, CRecorderLink& link);
ExitStatus Run(const OnlineCommand& command, CRecorderLink& link);
ExitStatus Run(const StartCommand& command, CRecorderLink& link);

} // namespace skeldon
