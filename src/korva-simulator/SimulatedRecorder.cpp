#include "korva-simulator/SimulatedRecorder.h"

#include "korva-simulator/DownloadText.h"
#include "korva-simulator/Measuring.h"
#include "korva-simulator/StatusText.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace skeldon {

namespace {

constexpr std::string_view Mark = "#";
/// What the host may send ahead; the rest is lost, as in any recorder.
constexpr std::size_t InputLimit = 4096;
/// Bytes of the stream that may wait for a slow host.
constexpr std::size_t StreamBacklog = 4096;

constexpr std::size_t Unlimited = std::numeric_limits<std::size_t>::max();

/// Bytes that no reader of digits takes for any, nor for a mark or an end of line.
std::string Garbage(std::int64_t count)
{
    constexpr std::int64_t Most = 1'000'000;
    constexpr std::string_view Bytes = "\xFF?\x80~z\xE5;\x01!k";
    std::string garbage;
    for (std::int64_t i = 0; i < std::min(count, Most); ++i)
        garbage += Bytes[static_cast<std::size_t>(i) % Bytes.size()];
    return garbage;
}

std::string Filler()
{
    std::string text;
    for (int i = 0; i < 100; ++i)
        text += "@Spare=0000000000000000000000\r\n";
    return text;
}

} // namespace

CSimulatedRecorder::CSimulatedRecorder(RecorderState state)
    : m_state(std::move(state))
{}

void CSimulatedRecorder::Plug(std::int64_t nowMs)
{
    Advance(nowMs);
    EndAlone(m_state, Clock());
    ++m_changes;
}

void CSimulatedRecorder::Unplug(std::int64_t nowMs)
{
    Advance(nowMs);
    m_output.Clear();
    EndTransfer();
    m_input.clear();
    m_reader.Reset();
    m_pullRequested = false;
    BeginAlone(m_state, Clock());
    ++m_changes;
}

void CSimulatedRecorder::MoveMagnet(bool isNear, std::int64_t nowMs)
{
    Advance(nowMs);
    skeldon::MoveMagnet(m_state, isNear, Clock());
    ++m_changes;
}

void CSimulatedRecorder::Start()
{
    m_state.phase = RecorderPhase::Started;
    m_state.reservation.reset();
    ++m_changes;
}

void CSimulatedRecorder::Receive(std::string_view bytes, std::int64_t nowMs)
{
    Advance(nowMs);
    bytes = bytes.substr(0, BytesToPull());
    m_input += bytes.substr(0, InputLimit - std::min(InputLimit, m_input.size()));
    ReadInput();
    CountToPull(bytes.size());
}

void CSimulatedRecorder::ReadInput()
{
    std::size_t read = 0;
    while (read < m_input.size() && m_transfer != Transfer::Download) {
        if (const std::optional<std::string> command = m_reader.Feed(m_input[read++]))
            Execute(*command);
    }
    m_input.erase(0, read);
}

void CSimulatedRecorder::Advance(std::int64_t nowMs)
{
    m_nowMs = std::max(m_nowMs, nowMs);
    if (!m_stream)
        return;
    constexpr std::size_t LineRoom = 9;
    const std::size_t room = StreamBacklog - std::min(StreamBacklog, m_output.Size());
    m_output.Append(m_stream->Due(m_nowMs, static_cast<std::int64_t>(room / LineRoom),
                                  m_faults.Has(FaultKind::LineFeeds)));
}

std::optional<std::int64_t> CSimulatedRecorder::NextMs() const
{
    if (m_heldUntilMs > m_nowMs)
        return m_heldUntilMs;
    return m_stream ? std::optional(m_stream->NextMs()) : std::nullopt;
}

std::string_view CSimulatedRecorder::Output() const
{
    if (m_heldUntilMs > m_nowMs)
        return {};
    return m_output.Front().substr(0, std::min(m_bytesLeft.value_or(Unlimited), BytesToPull()));
}

void CSimulatedRecorder::Sent(std::size_t count)
{
    m_output.Take(count);
    if (m_bytesLeft) {
        *m_bytesLeft -= count;
        CheckLimit();
    }
    CountToPull(count);
    if (m_pullRequested)
        return;
    if (m_output.IsEmpty() && m_transfer == Transfer::Report)
        m_output.Append(Filler());
    if (m_output.IsEmpty() && m_transfer == Transfer::Download)
        EndTransfer();
    ReadInput();
}

void CSimulatedRecorder::LoseOutput()
{
    m_output.Clear();
    m_heldUntilMs = 0;
    if (m_transfer == Transfer::Download) {
        EndTransfer();
        ReadInput();
    }
}

RecorderState CSimulatedRecorder::StateAt(std::int64_t nowMs) const
{
    RecorderState state = m_state;
    state.clock += std::max(m_nowMs, nowMs) / 1000;
    NoteDown(state, state.clock);
    return state;
}

RecorderSeconds CSimulatedRecorder::Clock() const
{
    return m_state.clock + m_nowMs / 1000;
}

void CSimulatedRecorder::BeginReply()
{
    if (const Fault* const delay = m_faults.Find(FaultKind::Delay))
        m_heldUntilMs = m_nowMs + delay->number;
    if (const Fault* const garbage = m_faults.Find(FaultKind::Garbage))
        m_output.Append(Garbage(garbage->number));
}

void CSimulatedRecorder::Answer(const std::string& command, std::string text)
{
    BeginReply();
    m_output.Append(std::move(text));
    const bool isEndless = command == "p" && m_faults.Has(FaultKind::EndlessReport);
    if (!isEndless && !m_faults.FindFor(FaultKind::NoMark, command))
        m_output.Append(std::string(Mark));
}

void CSimulatedRecorder::BeginEndlessReport()
{
    m_transfer = Transfer::Report;
    m_output.Append(Filler());
}

void CSimulatedRecorder::BeginDownload()
{
    m_transfer = Transfer::Download;
    LimitTransfer();
    BeginReply();
    if (std::optional<std::string> spoilt = SpoiltDownload(m_state, m_faults))
        m_output.Append(std::move(*spoilt));
    else
        m_output.AppendView(m_state.memory.Wire());
    if (!m_faults.FindFor(FaultKind::NoMark, m_state.type == OldestType ? "G" : "D"))
        m_output.Append(std::string(Mark));
    CheckLimit();
    if (m_output.IsEmpty())
        EndTransfer();
}

void CSimulatedRecorder::BeginStream()
{
    m_transfer = Transfer::Stream;
    LimitTransfer();
    const CSurroundings surroundings(m_state.seed, m_state.Model().countsPerG, 1);
    m_stream.emplace(surroundings, m_nowMs, Clock() * 100);
    CheckLimit();
}

void CSimulatedRecorder::LimitTransfer()
{
    for (const FaultKind kind : {FaultKind::SilenceAfter, FaultKind::PullAfter}) {
        if (const Fault* const fault = m_faults.Find(kind)) {
            const auto bytes = static_cast<std::size_t>(fault->number);
            m_bytesLeft = std::min(m_bytesLeft.value_or(bytes), bytes);
        }
    }
}

void CSimulatedRecorder::CheckLimit()
{
    if (m_bytesLeft != 0U)
        return;
    // Of two limits the cable's counts where it is not the larger one.
    const Fault* const pull = m_faults.Find(FaultKind::PullAfter);
    const Fault* const silence = m_faults.Find(FaultKind::SilenceAfter);
    if (pull && (!silence || pull->number <= silence->number)) {
        m_pullRequested = true;
        m_faults.Remove(pull);
    }
    m_output.Clear();
    EndTransfer();
}

std::size_t CSimulatedRecorder::BytesToPull() const
{
    if (m_pullRequested)
        return 0;
    const Fault* const pull = m_faults.Find(FaultKind::PullAt);
    return pull ? static_cast<std::size_t>(pull->number) : Unlimited;
}

void CSimulatedRecorder::CountToPull(std::size_t count)
{
    m_faults.CountDown(FaultKind::PullAt, static_cast<std::int64_t>(count));
    const Fault* const pull = m_faults.Find(FaultKind::PullAt);
    if (!pull || pull->number > 0)
        return;
    m_faults.Remove(pull);
    m_pullRequested = true;
}

void CSimulatedRecorder::EndTransfer()
{
    m_transfer = Transfer::None;
    m_stream.reset();
    m_bytesLeft.reset();
    m_heldUntilMs = 0;
}

} // namespace skeldon
