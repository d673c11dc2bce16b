#pragma once

#include <string_view>

namespace skeldon {

/// Sees all that passes between the program and the recorder; the monitor window is one.
/// `ReportCommand`, `ReportBytes` and `SetEnabled` are called by whichever thread talks with the
/// recorder, `ShowMonitor` by the user interface's thread alone.
class CTrafficSink
{
public:
    virtual ~CTrafficSink() = default;

    /// An outgoing command.
    virtual void ReportCommand(std::string_view text) = 0;
    /// Incoming bytes in the order in which they arrived.
    virtual void ReportBytes(std::string_view bytes) = 0;
    /// False at the start of a transfer, true at its end.
    virtual void SetEnabled(bool enabled) = 0;
    /// Brings the window up.
    virtual void ShowMonitor() = 0;
};

} // namespace skeldon
