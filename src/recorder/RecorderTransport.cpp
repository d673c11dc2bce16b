#include "recorder/RecorderTransport.h"

#include "recorder/PortPath.h"

#include <algorithm>
#include <utility>

namespace skeldon {

CRecorderTransport::CRecorderTransport(std::unique_ptr<CCableFinder> finder, PortOpener opener,
                                       CClock& clock)
    : m_finder(std::move(finder))
    , m_opener(std::move(opener))
    , m_clock(clock)
    , m_block(BlockSize)
{}

CRecorderTransport::~CRecorderTransport()
{
    DrainPort();
    ClosePort();
}

bool CRecorderTransport::FindRecorderPort()
{
    const std::optional<std::string> name = m_finder->FindPort();
    if (name)
        m_portName = *name;
    return name.has_value();
}

bool CRecorderTransport::OpenPort()
{
    if (m_portName.empty()) {
        m_error = std::make_error_code(std::errc::no_such_device);
        return false;
    }
    ClosePort();
    m_error.clear();
    const std::optional<std::string> path = PortPath(m_portName);
    if (!path) {
        m_error = std::make_error_code(std::errc::no_such_device);
        return false;
    }
    m_port = m_opener(*path, m_error);
    if (!m_port)
        return false;
    constexpr std::string_view WakeUp = "m";
    if (WritePort(WakeUp) && DrainPort())
        return true;
    if (!m_error)
        m_error = std::make_error_code(std::errc::io_error);
    ClosePort();
    return false;
}

void CRecorderTransport::ClosePort()
{
    m_port.reset();
    m_held = {};
}

bool CRecorderTransport::SendText(std::string_view text)
{
    if (!m_port && !OpenPort())
        return false;
    const bool isWritten = WritePort(text);
    const std::optional<CSerialPort::LineState> state = AskPort();
    ReportCommand(text);
    if (!m_error && (!state || state->errors))
        m_error = std::make_error_code(std::errc::io_error);
    return !m_error && isWritten;
}

std::string CRecorderTransport::ReadReply(std::size_t size)
{
    m_timedOut = false;
    std::string reply;
    std::uint32_t lastByte = m_clock.TickMs();
    for (;;) {
        const std::string_view bytes = PeekBytes();
        if (bytes.empty()) {
            if (IsAbandoned() || SilentSince(lastByte)) {
                m_timedOut = true;
                return reply;
            }
            continue;
        }
        const std::string_view part = bytes.substr(0, size - 1 - reply.size());
        const std::size_t mark = part.find('#');
        const std::size_t taken = mark == std::string_view::npos ? part.size() : mark + 1;
        ReportBytes(part.substr(0, taken));
        TakeBytes(taken);
        reply += part.substr(0, mark);
        if (mark != std::string_view::npos || reply.size() == size - 1)
            return reply;
        lastByte = m_clock.TickMs();
    }
}

bool CRecorderTransport::SendCommand(std::string_view text)
{
    return !m_busy && SendText(text) && !ReadReply().empty();
}

bool CRecorderTransport::DrainPort()
{
    const std::uint32_t start = m_clock.TickMs();
    for (int round = 0; m_port; ++round) {
        const std::optional<CSerialPort::LineState> state = AskPort();
        if (!state)
            return false;
        const bool isGood = !m_held.empty() || FillHeld(std::max<std::size_t>(state->queued, 1));
        const std::size_t count = m_held.size();
        ReportBytes(m_held);
        TakeBytes(count);
        if (!isGood)
            return true;
        const bool isOver = IsAbandoned() || m_clock.TickMs() - start >= DrainLimitMs;
        if (round > 0 && (count == 0 || isOver))
            return true;
    }
    return false;
}

void CRecorderTransport::ShowMonitor()
{
    if (!m_monitor)
        return;
    m_monitor->ShowMonitor();
    m_monitorShown = true;
}

std::string_view CRecorderTransport::PeekBytes()
{
    // A port whose cable is gone fails at once: the silence is waited for asleep.
    if (m_held.empty() && !FillHeld(m_block.size()))
        m_clock.SleepMs(SerialSetting::ReadWaitMs);
    return m_held;
}

bool CRecorderTransport::WritePort(std::string_view bytes)
{
    const CSerialPort::Transfer written = m_port->Write(bytes);
    m_error = written.error;
    return !m_error && written.count == bytes.size();
}

std::optional<CSerialPort::LineState> CRecorderTransport::AskPort()
{
    const std::optional<CSerialPort::LineState> state = m_port->ClearErrors();
    if (!state)
        m_wasCut = true;
    return state;
}

bool CRecorderTransport::FillHeld(std::size_t most)
{
    if (!m_port)
        return false;
    const std::span<char> room = std::span(m_block).first(std::min(most, m_block.size()));
    const CSerialPort::Transfer read = m_port->Read(room);
    m_held = std::string_view(m_block.data(), std::min(read.count, room.size()));
    if (read.error)
        m_wasCut = true;
    return !read.error || read.count > 0;
}

void CRecorderTransport::ReportCommand(std::string_view text)
{
    if (IsWatched())
        m_monitor->ReportCommand(text);
}

void CRecorderTransport::ReportBytes(std::string_view bytes)
{
    if (!bytes.empty() && IsWatched())
        m_monitor->ReportBytes(bytes);
}

bool CRecorderTransport::SilentSince(std::uint32_t since)
{
    return m_clock.TickMs() - since >= m_timeoutMs;
}

void CRecorderTransport::EnableMonitor(bool enabled)
{
    if (m_monitor)
        m_monitor->SetEnabled(enabled);
}

bool CRecorderTransport::IsWatched() const
{
    return m_monitor && (m_monitorShown || m_alwaysWatched);
}

} // namespace skeldon
