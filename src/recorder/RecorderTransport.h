#pragma once

#include "base/Clock.h"
#include "recorder/CableFinder.h"
#include "recorder/SerialPort.h"
#include "recorder/TrafficSink.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace skeldon {

/// The lower half of the link: finds the cable's port, opens it, writes a command and reads a
/// reply. During a transfer the reader thread alone uses the port.
class CRecorderTransport
{
public:
    /// Silence after which any read gives up.
    static constexpr std::uint32_t TimeoutMs = 15000;
    /// A recorder that streams on and on keeps a drain no longer than this.
    static constexpr std::uint32_t DrainLimitMs = 2000;
    /// Room for a reply with its closing zero; what is longer stays unread until the next drain.
    static constexpr std::size_t ReplySize = 512;

    /// `clock` must outlive the link.
    CRecorderTransport(std::unique_ptr<CCableFinder> finder, PortOpener opener, CClock& clock);
    CRecorderTransport(const CRecorderTransport&) = delete;
    CRecorderTransport& operator=(const CRecorderTransport&) = delete;
    virtual ~CRecorderTransport();

    /// Whether the cable is plugged in now; sets `m_portName` then, which is never cleared.
    bool FindRecorderPort();
    /// Opens the port anew and wakes the recorder. False where there is no port or it can not be
    /// opened or written.
    bool OpenPort();
    void ClosePort();
    [[nodiscard]] bool IsOpen() const { return m_port != nullptr; }
    /// Writes a command, opening the port if it is closed. True if all bytes went out without a
    /// communication error.
    bool SendText(std::string_view text);
    /// Reads up to "#", which is taken and not given, to `size` - 1 bytes, or to the silence of
    /// `m_timeoutMs` or the program's end, which set `m_timedOut`.
    [[nodiscard]] std::string ReadReply(std::size_t size = ReplySize);
    /// One command and its reply, which must not be empty. Fails at once while a transfer runs.
    bool SendCommand(std::string_view text);
    /// Reads and discards what the port holds: two rounds, then until a round reads nothing, but no
    /// longer than `DrainLimitMs` or the program's end. False if the port is closed or gone.
    bool DrainPort();

    /// The program ends: from now on whoever waits for the recorder gives up as if its silence were
    /// over, for good. Any thread may say so.
    void Abandon() { m_abandoned = true; }

    /// Why the port could not be opened or written the last time it was tried; clear where that
    /// went well. Not to be asked while a transfer runs.
    [[nodiscard]] std::error_code LastError() const { return m_error; }

    /// Whether an open port has died since this was last asked: its cable was pulled, be it back by
    /// now or not.
    [[nodiscard]] bool TakeCut() { return m_wasCut.exchange(false); }

    /// Sets the window that traffic is reported to; the link owns it.
    void SetMonitor(std::unique_ptr<CTrafficSink> monitor) { m_monitor = std::move(monitor); }
    void ShowMonitor();

    std::string m_portName; ///< as the finder gave it; empty until a port was found
    const std::uint32_t m_timeoutMs = TimeoutMs;
    std::atomic<bool> m_timedOut = false; ///< the last read ended by silence
    bool m_busy = false;                  ///< a download or live stream owns the port
    std::unique_ptr<CTrafficSink> m_monitor;
    std::atomic<bool> m_monitorShown = false;
    std::atomic<bool> m_alwaysWatched = false; ///< report also while the window is hidden

protected:
    /// Bytes that have arrived and were not taken; waits for them as a read does if there are
    /// none. Empty when nothing came. A port that fails at once does not return earlier than one
    /// that is silent.
    [[nodiscard]] std::string_view PeekBytes();
    /// Takes `count` of the bytes that `PeekBytes` gave.
    void TakeBytes(std::size_t count) { m_held.remove_prefix(count); }
    /// Whether the cable of the open port was pulled. Plugged in again, it has another port.
    [[nodiscard]] bool IsPortGone() { return m_port && !AskPort(); }
    void ReportCommand(std::string_view text);
    void ReportBytes(std::string_view bytes);
    /// Whether the silence since the tick count `since` has lasted too long.
    [[nodiscard]] bool SilentSince(std::uint32_t since);
    [[nodiscard]] bool IsAbandoned() const { return m_abandoned; }
    void EnableMonitor(bool enabled);
    [[nodiscard]] CClock& Clock() { return m_clock; }

private:
    static constexpr std::size_t BlockSize = 65536;

    [[nodiscard]] bool IsWatched() const;
    /// Reads up to `most` bytes behind those held, of which there must be none. False if the read
    /// failed.
    bool FillHeld(std::size_t most);
    bool WritePort(std::string_view bytes);
    /// The open port's state; nothing where it died.
    std::optional<CSerialPort::LineState> AskPort();

    std::unique_ptr<CCableFinder> m_finder;
    PortOpener m_opener;
    CClock& m_clock;
    std::unique_ptr<CSerialPort> m_port; ///< null while closed
    std::vector<char> m_block;           ///< where reads go
    std::string_view m_held;             ///< bytes of `m_block` that nobody has taken
    std::error_code m_error;
    std::atomic<bool> m_abandoned = false;
    std::atomic<bool> m_wasCut = false;
};

} // namespace skeldon
