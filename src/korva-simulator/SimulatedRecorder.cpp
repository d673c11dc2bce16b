#include "korva-simulator/SimulatedRecorder.h"

#include "korva-simulator/StatusText.h"
#include "setup/tables/IntervalTable.h"
#include "setup/tables/SamplingTable.h"

#include <algorithm>
#include <array>
#include <utility>

namespace skeldon {

namespace {

constexpr std::string_view Mark = "#";
constexpr int QmType = 50;
/// What the host may send ahead; the rest is lost, as in any recorder.
constexpr std::size_t InputLimit = 4096;
/// Bytes of the stream that may wait for a slow host.
constexpr std::size_t StreamBacklog = 4096;

/// The number that the digits of `text` from `position` on make.
int Number(const std::string& text, std::size_t position, std::size_t digits)
{
    int number = 0;
    for (const char digit : text.substr(position, digits))
        number = number * 10 + (digit - '0');
    return number;
}

} // namespace

CSimulatedRecorder::CSimulatedRecorder(RecorderState state)
    : m_state(std::move(state))
{}

void CSimulatedRecorder::Receive(std::string_view bytes, std::int64_t nowMs)
{
    Advance(nowMs);
    m_input += bytes.substr(0, InputLimit - std::min(InputLimit, m_input.size()));
    ReadInput();
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
    const std::size_t room = StreamBacklog - std::min(StreamBacklog, m_output.Size());
    m_output.Append(m_stream->Due(m_nowMs, static_cast<std::int64_t>(room / 8), false));
}

std::optional<std::int64_t> CSimulatedRecorder::NextMs() const
{
    return m_stream ? std::optional(m_stream->NextMs()) : std::nullopt;
}

void CSimulatedRecorder::Sent(std::size_t count)
{
    m_output.Take(count);
    if (m_output.IsEmpty() && m_transfer == Transfer::Download) {
        m_transfer = Transfer::None;
        ReadInput();
    }
}

void CSimulatedRecorder::LoseOutput()
{
    m_output.Clear();
    Sent(0);
}

void CSimulatedRecorder::Execute(const std::string& command)
{
    if (command == "m") {
        if (m_transfer == Transfer::None)
            m_output.Append(command);
        return;
    }
    // Any command but the wake-up ends the stream.
    m_stream.reset();
    m_transfer = Transfer::None;
    const bool isOldest = m_state.type == OldestType;
    if (command == "#")
        return;
    if (command == "p")
        m_output.Append(StatusText(m_state) + std::string(Mark));
    else if (command == (isOldest ? "G" : "D"))
        BeginDownload();
    else if (command == "x")
        BeginStream();
    else if (command == "t") {
        m_state.phase = RecorderPhase::Started;
        m_state.reservation.reset();
        Answer(command);
    } else
        ExecuteSetting(command);
}

void CSimulatedRecorder::ExecuteSetting(const std::string& command)
{
    RecorderConditions& conditions = m_state.conditions;
    const char name = command.front();
    const bool isOldest = m_state.type == OldestType;
    const bool hasBuzzer = m_state.type == QmType ? m_state.alpha : m_state.hasBuzzerKey;
    if (name == 'i' && SamplingTable::RowOfCharacterFor(m_state.type, command[1]) >= 0)
        conditions.sampling = command[1];
    else if (name == 'j' && IntervalTable::RowOfCharacter(command[1]) >= 0)
        conditions.interval = command[1];
    else if (name == 'd')
        conditions.threshold = Number(command, 1, 2);
    else if (name == 'k')
        conditions.warn = Number(command, 1, 1);
    else if (name == 'N')
        conditions.hostNumber = Number(command, 1, 2);
    else if (command == "w99") {
        // The calibration changes nothing that the host can see.
    } else if (name == 'w' && !isOldest)
        conditions.startOption = Number(command, 1, 2);
    else if (name == 'O' && command[1] == 'x' && m_state.alpha)
        conditions.hazard = Number(command, 2, 2);
    else if (name == 'O' && command[1] == 'z' && m_state.alpha)
        conditions.endless = Number(command, 2, 2) != 0;
    else if (name == 'z' && hasBuzzer)
        conditions.buzzer = command[1] == '0';
    else if (name == 's') {
        // A clock that is set begins a new memory.
        const std::string text = command.substr(1, 4) + "-" + command.substr(6, 2) + "-" +
                                 command.substr(9, 2) + command.substr(11);
        const std::optional<RecorderSeconds> clock = ParseRecorderTime(text);
        if (!clock)
            return;
        m_state.clock = *clock - m_nowMs / 1000;
        m_state.begun = *clock;
        m_state.memory.Clear();
    } else if (name >= '0' && name <= '9' && CanChangeRange(Number(command, 0, 2)))
        m_state.type = Number(command, 0, 2);
    else
        return;
    Answer(command);
}

void CSimulatedRecorder::Answer(const std::string& command)
{
    m_output.Append(command + "\r\n" + std::string(Mark));
}

bool CSimulatedRecorder::CanChangeRange(int maximum) const
{
    constexpr std::array<std::pair<int, int>, 4> Ranges = {{{1, 2}, {2, 1}, {10, 20}, {20, 10}}};
    return m_state.alpha &&
           std::ranges::find(Ranges, std::pair(m_state.type, maximum)) != Ranges.end();
}

void CSimulatedRecorder::BeginDownload()
{
    m_transfer = Transfer::Download;
    m_output.AppendView(m_state.memory.Wire());
    m_output.AppendView(Mark);
}

void CSimulatedRecorder::BeginStream()
{
    m_transfer = Transfer::Stream;
    const CSurroundings surroundings(m_state.seed, m_state.Model().countsPerG, 1);
    m_stream.emplace(surroundings, m_nowMs, Clock() * 100);
}

RecorderSeconds CSimulatedRecorder::Clock() const
{
    return m_state.clock + m_nowMs / 1000;
}

} // namespace skeldon
