#include "korva-simulator/platform/SimulatorLoop.h"

#include "korva-simulator/StateText.h"
#include "korva-simulator/platform/StateFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include <poll.h>

namespace skeldon {

CSimulatorLoop::CSimulatorLoop(CSimulatedRecorder& recorder, const SimulatorOptions& options,
                               Announce announce, Complain complain)
    : m_recorder(recorder)
    , m_options(options)
    , m_announce(std::move(announce))
    , m_complain(std::move(complain))
{}

int CSimulatorLoop::Run()
{
    if (!OpenFiles())
        return m_status;
    if (m_options.unplugged)
        m_announce("pulled");
    else
        Plug();
    while (m_status == 0 && !m_quit && Wait()) {
        ReadControl();
        Serve();
    }
    if (m_cable)
        Pull();
    Save();
    if (m_trace.Flush(); m_trace.Error())
        Fail(m_options.trace, m_trace.Error());
    return m_status;
}

bool CSimulatorLoop::OpenFiles()
{
    std::error_code error;
    if (!m_options.trace.empty())
        m_trace = CTraceFile(m_options.trace, error);
    if (error) {
        Fail(m_options.trace, error);
        return false;
    }
    if (!m_options.control.empty())
        m_control = std::make_unique<CControlFifo>(m_options.control, error);
    if (error)
        Fail(m_options.control, error);
    return !error;
}

void CSimulatorLoop::Plug()
{
    std::error_code error;
    m_recorder.Plug(Time().recorderMs);
    m_cable = CCable::Plug(m_options.link, m_options.bytesPerSecond, error);
    if (error) {
        Fail(m_options.link.empty() ? "pseudo terminal" : m_options.link, error);
        return;
    }
    m_trace.Event(Time().realUs, "plugged in: " + m_cable->Name());
    Save();
    m_announce("ready " + m_cable->Name());
}

void CSimulatorLoop::Pull()
{
    m_cable.reset();
    m_recorder.Unplug(Time().recorderMs);
    m_trace.Event(Time().realUs, "pulled");
    Save();
    m_announce("pulled");
}

void CSimulatorLoop::Serve()
{
    m_recorder.Advance(Time().recorderMs);
    if (!m_cable)
        return;
    std::error_code error;
    const bool isClosed = m_cable->Exchange(m_recorder, m_trace, Time(), error);
    if (error)
        Fail(m_cable->Name(), error);
    if (m_recorder.HasPullRequest()) {
        m_cable->Settle();
        Pull();
    } else if (isClosed) {
        Save();
    }
}

bool CSimulatorLoop::Wait()
{
    short events = POLLIN;
    if (m_cable && m_cable->WantsToWrite(m_recorder, Time().realUs))
        events |= POLLOUT;
    // poll(2) passes over descriptors below 0.
    std::array<pollfd, 4> entries = {{{m_signals.Descriptor(), POLLIN, 0},
                                      {m_control->Descriptor(), POLLIN, 0},
                                      {m_cable ? m_cable->HostDescriptor() : -1, POLLIN, 0},
                                      {m_cable ? m_cable->TerminalDescriptor() : -1, events, 0}}};
    int ready = ::poll(entries.data(), entries.size(), 0);
    if (ready == 0) {
        m_trace.Flush();
        ready = ::poll(entries.data(), entries.size(), Timeout());
    }
    if (ready < 0 && errno != EINTR)
        Fail("poll", LastSystemError());
    return entries.front().revents == 0;
}

int CSimulatorLoop::Timeout()
{
    constexpr std::int64_t UsPerMs = 1000;
    constexpr std::int64_t LongestMs = 60'000;
    if (!m_cable)
        return -1;
    const SimulationTime now = Time();
    std::int64_t wait = -1;
    if (const std::optional<std::int64_t> next = m_recorder.NextMs()) {
        const auto recorderMs = static_cast<double>(*next - now.recorderMs);
        wait = static_cast<std::int64_t>(std::max(recorderMs / m_options.timeScale, 0.0)) + 1;
    }
    if (const std::optional<std::int64_t> next = m_cable->NextUs(m_recorder)) {
        const std::int64_t paced = std::max<std::int64_t>((*next - now.realUs) / UsPerMs, 0) + 1;
        wait = wait < 0 ? paced : std::min(wait, paced);
    }
    return static_cast<int>(std::min(wait, LongestMs));
}

void CSimulatorLoop::ReadControl()
{
    // One block in a round: whoever waits for an answer before the next line finds the cable served
    // in between.
    m_control->Read();
    std::string text;
    while (!m_quit && m_control->Next(text)) {
        const auto parsed = ParseControlLine(text);
        if (const auto* const reason = std::get_if<std::string>(&parsed)) {
            m_complain(m_options.control + ": " + *reason);
            m_announce("refused");
        } else {
            Obey(std::get<ControlLine>(parsed));
        }
    }
}

void CSimulatorLoop::Obey(const ControlLine& line)
{
    switch (line.kind) {
    case ControlKind::Nothing:
        return;
    case ControlKind::Plug:
        if (m_cable)
            m_announce("ready " + m_cable->Name());
        else
            Plug();
        return;
    case ControlKind::Pull:
        if (m_cable)
            Pull();
        else
            m_announce("pulled");
        return;
    case ControlKind::Start:
        m_recorder.Start();
        break;
    case ControlKind::MagnetNear:
    case ControlKind::MagnetAway:
        m_recorder.MoveMagnet(line.kind == ControlKind::MagnetNear, Time().recorderMs);
        break;
    case ControlKind::AddFault:
        m_recorder.m_faults.Add(line.fault);
        break;
    case ControlKind::ClearFaults:
        m_recorder.m_faults.Clear();
        break;
    case ControlKind::Quit:
        m_quit = true;
        return;
    }
    m_announce("done");
}

void CSimulatorLoop::Save()
{
    // While it measures, every moment is a change.
    const bool isChanged = m_savedChanges != m_recorder.Changes() ||
                           m_recorder.State().phase == RecorderPhase::Measuring;
    if (m_options.state.empty() || !isChanged)
        return;
    m_savedChanges = m_recorder.Changes();
    const std::string text = StateText(m_recorder.StateAt(Time().recorderMs), skeldon::Now());
    if (const std::error_code error = WriteWholeFile(m_options.state, text))
        Fail(m_options.state, error);
}

void CSimulatorLoop::Fail(const std::string& what, const std::error_code& error)
{
    m_complain(what + ": " + error.message());
    m_status = 1;
}

SimulationTime CSimulatorLoop::Time() const
{
    using std::chrono::duration_cast;
    using std::chrono::microseconds;
    constexpr double UsPerMs = 1000;
    const std::int64_t us =
        duration_cast<microseconds>(std::chrono::steady_clock::now() - m_start).count();
    return {us, static_cast<std::int64_t>(static_cast<double>(us) * m_options.timeScale / UsPerMs)};
}

} // namespace skeldon
