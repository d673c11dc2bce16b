#pragma once

#include "online/log/LineBlock.h"

#include <cstddef>
#include <mutex>
#include <string_view>

namespace skeldon {

/// What was taken out of the pending lines.
struct MonitorPart
{
    CLineBlock lines;
    bool isLastClosed = false; ///< the last line is complete
};

/// Traffic with the recorder that the monitor's list does not show yet. Any thread may report; the
/// lock is never held for longer than it takes to hang a block of bytes on.
class CMonitorPending
{
public:
    /// No recorder sends lines like that. What goes on without an end is cut near this length, so
    /// that a line that is replaced again and again stays cheap.
    static constexpr std::size_t LongestLine = 65536;

    /// An outgoing command. It begins a line of its own only where the line before is complete.
    void ReportCommand(std::string_view text);
    /// Incoming bytes. A carriage return completes the line; what is neither that nor a character
    /// from " " to "}" is dropped.
    void ReportBytes(std::string_view bytes);
    /// Takes all lines out. One that is not complete stays as well, to be taken again once it has
    /// grown.
    [[nodiscard]] MonitorPart Take();
    /// Drops all lines.
    void Clear();

private:
    void Append(std::string_view text);
    void AppendShown(std::string_view text);

    std::mutex m_lock;
    CLineBlock m_pending;
    bool m_lineClosed = false; ///< the last line of `m_pending` is complete
};

} // namespace skeldon
