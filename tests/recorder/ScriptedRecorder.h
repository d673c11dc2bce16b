#pragma once

#include "recorder/RecorderLink.h"

#include <atomic>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace skeldon::test {

/// Time that passes only where somebody waits.
class CFakeClock final : public CClock
{
public:
    std::uint32_t TickMs() override { return m_tick; }
    void SleepMs(std::uint32_t milliseconds) override
    {
        m_tick += milliseconds;
        ++m_sleeps;
    }
    CalendarSeconds Now() override { return m_now; }

    /// A read that waits without a sleep of the link.
    void Pass(std::uint32_t milliseconds) { m_tick += milliseconds; }

    std::atomic<std::uint32_t> m_tick = 1000;
    std::atomic<int> m_sleeps = 0;
    CalendarSeconds m_now = FromLocalFields({2024, 5, 6, 7, 8, 9});
};

/// A recorder and its cable as the port sees them. Survives the opening and closing of the port.
class CScriptedRecorder
{
public:
    /// What the recorder sends for a command, in pieces that arrive one by one.
    using Pieces = std::vector<std::string>;

    explicit CScriptedRecorder(CFakeClock& clock)
        : m_clock(clock)
    {}

    void On(const std::string& command, const std::string& reply) { m_replies[command] = {reply}; }
    void On(const std::string& command, Pieces pieces) { m_replies[command] = std::move(pieces); }
    /// Bytes that lie in the port before anybody asks.
    void Arrive(const std::string& bytes) { m_incoming.push_back(bytes); }

    /// All that happened: "open <path>", "close", and the texts written.
    std::vector<std::string> Events()
    {
        const std::lock_guard guard(m_lock);
        return m_events;
    }
    int Reads()
    {
        const std::lock_guard guard(m_lock);
        return m_reads;
    }
    bool IsQuiet()
    {
        const std::lock_guard guard(m_lock);
        return m_incoming.empty();
    }

    // The port's side.

    void Event(const std::string& event)
    {
        const std::lock_guard guard(m_lock);
        m_events.push_back(event);
    }
    CSerialPort::Transfer Read(std::span<char> buffer);
    CSerialPort::Transfer Write(std::string_view bytes);
    std::optional<CSerialPort::LineState> ClearErrors();

    /// Port names that can not be opened.
    std::error_code m_openError;
    /// The port's calls fail from that read or write on; 0 is never.
    std::atomic<int> m_failReadsFrom = 0;
    std::string m_failWriteOf;  ///< the write of this text fails
    std::string m_shortWriteOf; ///< of this text one byte less goes out
    std::string m_lineErrorAt;  ///< writing this text leaves a line error
    std::atomic<bool> m_stateFails = false;
    /// How long a read that gives bytes takes.
    std::uint32_t m_readTakesMs = 0;
    /// The recorder streams this text on and on.
    std::string m_endless;
    /// Called before each read with its number from 1.
    std::function<void(int)> m_beforeRead;

private:
    CFakeClock& m_clock;
    std::mutex m_lock;
    std::vector<std::string> m_events;
    std::map<std::string, Pieces> m_replies;
    std::deque<std::string> m_incoming;
    bool m_lineError = false;
    int m_reads = 0;
};

class CScriptedPort final : public CSerialPort
{
public:
    CScriptedPort(CScriptedRecorder& recorder, const std::string& path)
        : m_recorder(recorder)
    {
        m_recorder.Event("open " + path);
    }
    ~CScriptedPort() override { m_recorder.Event("close"); }

    Transfer Read(std::span<char> buffer) override { return m_recorder.Read(buffer); }
    Transfer Write(std::string_view bytes) override { return m_recorder.Write(bytes); }
    std::optional<LineState> ClearErrors() override { return m_recorder.ClearErrors(); }

private:
    CScriptedRecorder& m_recorder;
};

class CScriptedFinder final : public CCableFinder
{
public:
    explicit CScriptedFinder(std::optional<std::string>& name)
        : m_name(name)
    {}
    std::optional<std::string> FindPort() override { return m_name; }

private:
    std::optional<std::string>& m_name;
};

/// What a sink has seen, which outlives the sink.
struct Traffic
{
    std::mutex m_lock;
    std::string m_bytes;
    std::vector<std::string> m_commands;
    std::string m_log; ///< both, commands in brackets, and "+" and "-" for enabled and disabled
    int m_shown = 0;
};

class CTrafficRecorder final : public CTrafficSink
{
public:
    explicit CTrafficRecorder(Traffic& traffic)
        : m_traffic(traffic)
    {}
    void ReportCommand(std::string_view text) override
    {
        const std::lock_guard guard(m_traffic.m_lock);
        m_traffic.m_commands.emplace_back(text);
        m_traffic.m_log += "[" + std::string(text) + "]";
    }
    void ReportBytes(std::string_view bytes) override
    {
        const std::lock_guard guard(m_traffic.m_lock);
        m_traffic.m_bytes += bytes;
        m_traffic.m_log += bytes;
    }
    void SetEnabled(bool enabled) override
    {
        const std::lock_guard guard(m_traffic.m_lock);
        m_traffic.m_log += enabled ? "+" : "-";
    }
    void ShowMonitor() override { ++m_traffic.m_shown; }

private:
    Traffic& m_traffic;
};

/// A link on a scripted recorder, with the port found already.
struct LinkFixture
{
    LinkFixture();
    /// Reports all traffic to `m_traffic`.
    void Watch();
    /// A link of its own kind, such as one that is destroyed within the test.
    std::unique_ptr<CRecorderLink> NewLink();

    CFakeClock m_clock;
    CScriptedRecorder m_recorder{m_clock};
    std::optional<std::string> m_cable = "/dev/cable";
    Traffic m_traffic;
    std::unique_ptr<CRecorderLink> m_owner = NewLink();
    CRecorderLink& m_link = *m_owner;
};

/// A report of a standard recorder of type 10 with `count` lines; `more` holds further keys.
std::string Report(const std::string& count, const std::string& more = {});

} // namespace skeldon::test
