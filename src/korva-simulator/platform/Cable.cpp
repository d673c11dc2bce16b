#include "korva-simulator/platform/Cable.h"

#include <array>
#include <utility>

namespace skeldon {

std::unique_ptr<CCable> CCable::Plug(const std::string& link, std::int64_t bytesPerSecond,
                                     std::error_code& error)
{
    std::unique_ptr<CPseudoTerminal> terminal = CPseudoTerminal::Open(error);
    if (error)
        return nullptr;
    std::unique_ptr<CCable> cable(new CCable(std::move(terminal), bytesPerSecond));
    if (!link.empty()) {
        cable->m_link = CPortLink(link, cable->m_terminal->Path(), error);
        cable->m_name = link;
    }
    return error ? nullptr : std::move(cable);
}

CCable::CCable(std::unique_ptr<CPseudoTerminal> terminal, std::int64_t bytesPerSecond)
    : m_terminal(std::move(terminal))
    , m_host(m_terminal->Path())
    , m_pacer(bytesPerSecond)
    , m_name(m_terminal->Path())
{}

bool CCable::WantsToWrite(const CSimulatedRecorder& recorder, std::int64_t realUs)
{
    return m_pacer.Allowed(recorder.Output().size(), realUs) > 0;
}

std::optional<std::int64_t> CCable::NextUs(const CSimulatedRecorder& recorder) const
{
    if (!m_pacer.IsLimited() || recorder.Output().empty())
        return std::nullopt;
    return m_pacer.NextUs();
}

bool CCable::Exchange(CSimulatedRecorder& recorder, CTraceFile& trace, SimulationTime time,
                      std::error_code& error)
{
    std::array<char, 4096> buffer{};
    const CPseudoTerminal::Transfer read = m_terminal->Read(buffer);
    error = read.error;
    // Looked at behind the reading: the bytes may be those of a host that opened the port since the
    // last look, and what is thrown away for the one before must not be the answer to this one.
    const bool isClosed = m_host.Update();
    if (isClosed) {
        trace.Event(time.realUs, "host closed the port");
        if (!m_pacer.IsLimited())
            recorder.LoseOutput();
        m_terminal->ResetAfterClose();
    }
    const std::string_view bytes(buffer.data(), read.count);
    trace.Bytes(time.realUs, TraceDirection::FromHost, bytes);
    if (!bytes.empty()) {
        // Whoever has the answer finds in the trace what it answers.
        trace.Flush();
        recorder.Receive(bytes, time.recorderMs);
    }
    if (!error)
        Write(recorder, trace, time, error);
    return isClosed;
}

void CCable::Settle()
{
    if (m_host.IsOpen())
        m_terminal->WaitUntilRead();
}

void CCable::Write(CSimulatedRecorder& recorder, CTraceFile& trace, SimulationTime time,
                   std::error_code& error)
{
    while (!error) {
        const std::string_view output = recorder.Output();
        const std::size_t allowed = m_pacer.Allowed(output.size(), time.realUs);
        if (allowed == 0)
            return;
        const std::string_view bytes = output.substr(0, allowed);
        std::size_t count = allowed;
        // A port that nobody has open swallows what comes.
        if (m_host.IsOpen()) {
            const CPseudoTerminal::Transfer written = m_terminal->Write(bytes);
            error = written.error;
            count = written.count;
        }
        if (count == 0)
            return;
        trace.Bytes(time.realUs, m_host.IsOpen() ? TraceDirection::ToHost : TraceDirection::Lost,
                    bytes.substr(0, count));
        m_pacer.Sent(count);
        recorder.Sent(count);
        // The host gets its turn: what it sends and does is seen between two blocks.
        if (count < allowed || recorder.HasPullRequest())
            return;
    }
}

} // namespace skeldon
