#include "korva-simulator/platform/SimulatorLoop.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include <poll.h>

namespace skeldon {

CSimulatorLoop::CSimulatorLoop(CSimulatedRecorder& recorder, std::string link, Announce announce)
    : m_recorder(recorder)
    , m_link(std::move(link))
    , m_announce(std::move(announce))
{}

std::error_code CSimulatorLoop::Plug()
{
    std::error_code error;
    m_terminal = CPseudoTerminal::Open(error);
    if (error)
        return error;
    m_host = std::make_unique<CHostWatch>(m_terminal->Path());
    if (!m_link.empty())
        m_portLink = std::make_unique<CPortLink>(m_link, m_terminal->Path(), error);
    if (!error)
        m_announce("ready " + (m_link.empty() ? m_terminal->Path() : m_link));
    return error;
}

std::error_code CSimulatorLoop::Run()
{
    while (!m_error && Wait()) {
        m_recorder.Advance(NowMs());
        // First who has the port open: bytes of a host are never older than its opening.
        if (m_host->Update()) {
            m_recorder.LoseOutput();
            m_terminal->ResetAfterClose();
        }
        ReadFromHost();
        WriteToHost();
    }
    return m_error;
}

bool CSimulatorLoop::Wait()
{
    short events = POLLIN;
    if (!m_recorder.Output().empty())
        events |= POLLOUT;
    std::array<pollfd, 3> entries = {{{m_signals.Descriptor(), POLLIN, 0},
                                      {m_host->Descriptor(), POLLIN, 0},
                                      {m_terminal->Descriptor(), events, 0}}};
    int timeout = -1;
    if (const std::optional<std::int64_t> next = m_recorder.NextMs())
        timeout = static_cast<int>(std::clamp<std::int64_t>(*next - NowMs(), 0, 1000));
    if (::poll(entries.data(), entries.size(), timeout) < 0 && errno != EINTR)
        m_error = {errno, std::generic_category()};
    return !m_error && entries[0].revents == 0;
}

void CSimulatorLoop::ReadFromHost()
{
    std::array<char, 4096> buffer{};
    const CPseudoTerminal::Transfer read = m_terminal->Read(buffer);
    m_error = read.error;
    if (read.count > 0)
        m_recorder.Receive({buffer.data(), read.count}, NowMs());
}

void CSimulatorLoop::WriteToHost()
{
    if (!m_host->IsOpen()) {
        m_recorder.LoseOutput();
        return;
    }
    while (!m_error && !m_recorder.Output().empty()) {
        const CPseudoTerminal::Transfer written = m_terminal->Write(m_recorder.Output());
        m_error = written.error;
        if (written.count == 0)
            return;
        m_recorder.Sent(written.count);
    }
}

std::int64_t CSimulatorLoop::NowMs() const
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now() - m_start).count();
}

} // namespace skeldon
