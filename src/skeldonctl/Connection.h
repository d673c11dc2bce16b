#pragma once

#include "recorder/RecorderLink.h"
#include "skeldonctl/CommandLine.h"
#include "skeldonctl/ExitStatus.h"

namespace skeldon {

/// The link to the recorder at `port`, or to the cable that is found. Nothing is opened yet.
[[nodiscard]] CRecorderLink MakeLink(const PortOption& port, CClock& clock);

/// Finds the cable and reads the status as the window does when a cable appears. `NoRecorder`,
/// with a message, where there is no cable or no report.
[[nodiscard]] ExitStatus Connect(CRecorderLink& link);

} // namespace skeldon
