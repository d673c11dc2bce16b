#include "base/TextScan.h"
#include "korva-simulator/SimulatedRecorder.h"
#include "korva-simulator/StatusText.h"
#include "setup/tables/IntervalTable.h"
#include "setup/tables/RecorderModel.h"
#include "setup/tables/SamplingTable.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace skeldon {

namespace {

/// The number that `digits` digits of `text` from `position` on make.
int Number(std::string_view text, std::size_t position, std::size_t digits)
{
    return ScanInt(text.substr(position, digits));
}

bool HasInterval(const RecorderState& state, char interval)
{
    const int row = IntervalTable::RowOfCharacter(interval);
    return row >= 0 && (state.type != OldestType || row <= IntervalTable::LastMinuteRow);
}

bool HasBuzzer(const RecorderState& state)
{
    return state.type == QmType ? state.alpha : state.hasBuzzerKey;
}

} // namespace

bool CSimulatedRecorder::IsDeafTo(const std::string& command)
{
    if (m_faults.FindFor(FaultKind::Silence, command))
        return true;
    const Fault* const once = m_faults.FindFor(FaultKind::SilenceOnce, command);
    if (once)
        m_faults.Remove(once);
    return once != nullptr;
}

void CSimulatedRecorder::Execute(const std::string& command)
{
    if (IsDeafTo(command))
        return;
    if (command == "m") {
        if (m_transfer == Transfer::None)
            m_output.Append(command);
        return;
    }
    // Any command but the wake-up ends a stream.
    EndTransfer();
    if (command == "#")
        return;
    if (command == "p") {
        Answer(command, StatusText(m_state, m_faults));
        if (m_faults.Has(FaultKind::EndlessReport))
            BeginEndlessReport();
    } else if (command == (m_state.type == OldestType ? "G" : "D")) {
        BeginDownload();
    } else if (command == "x") {
        BeginStream();
    } else if (TakeSetting(command)) {
        ++m_changes;
        Answer(command, command + "\r\n");
    }
}

bool CSimulatedRecorder::TakeSetting(const std::string& command)
{
    RecorderConditions& conditions = m_state.conditions;
    switch (command.front()) {
    case 'i':
        if (SamplingTable::RowOfCharacterFor(m_state.type, command[1]) < 0)
            return false;
        conditions.sampling = command[1];
        return true;
    case 'j':
        if (!HasInterval(m_state, command[1]))
            return false;
        conditions.interval = command[1];
        return true;
    case 'd':
        conditions.threshold = Number(command, 1, 2);
        return true;
    case 'k':
        conditions.warn = Number(command, 1, 1);
        return true;
    case 'N':
        conditions.hostNumber = Number(command, 1, 2);
        return true;
    case 'w':
        return TakeStartOption(Number(command, 1, 2));
    case 'O':
        return m_state.alpha && TakeAlphaSetting(command[1], Number(command, 2, 2));
    case 'z':
        // The sense is inverted on the wire.
        conditions.buzzer = HasBuzzer(m_state) ? command[1] == '0' : conditions.buzzer;
        return HasBuzzer(m_state);
    case 's':
        return SetClock(command);
    case 't':
        Start();
        return true;
    case 'l':
        return Reserve(command);
    default:
        return command.size() == 2 && ChangeRange(Number(command, 0, 2));
    }
}

bool CSimulatedRecorder::TakeStartOption(int option)
{
    // The calibration has the start option's letter, and changes nothing that the host can see.
    constexpr int Calibrate = 99;
    if (option == Calibrate)
        return true;
    if (m_state.type == OldestType)
        return false;
    m_state.conditions.startOption = option;
    return true;
}

bool CSimulatedRecorder::TakeAlphaSetting(char name, int value)
{
    if (name == 'x')
        m_state.conditions.hazard = value;
    else
        m_state.conditions.endless = value != 0;
    return true;
}

bool CSimulatedRecorder::SetClock(const std::string& command)
{
    // "s2024 05/06 07:08:09"
    const std::string text = command.substr(1, 4) + "-" + command.substr(6, 2) + "-" +
                             command.substr(9, 2) + command.substr(11);
    const std::optional<RecorderSeconds> clock = ParseRecorderTime(text);
    if (!clock)
        return false;
    // A clock that is set begins a new memory.
    m_state.clock = *clock - m_nowMs / 1000;
    m_state.begun = *clock;
    m_state.memory.Clear();
    return true;
}

bool CSimulatedRecorder::Reserve(const std::string& command)
{
    // "l05/06 07:08", a time within the year to come
    const RecorderSeconds now = Clock();
    const int year = ToRecorderFields(now).year;
    for (const int candidate : {year, year + 1}) {
        const std::string text = std::to_string(candidate) + "-" + command.substr(1, 2) + "-" +
                                 command.substr(4, 2) + command.substr(6);
        const std::optional<RecorderSeconds> time = ParseRecorderTime(text);
        if (!time || *time + 60 <= now)
            continue;
        Start();
        m_state.reservation = time;
        return true;
    }
    return false;
}

bool CSimulatedRecorder::ChangeRange(int maximum)
{
    constexpr std::array<std::pair<int, int>, 4> Ranges = {{{1, 2}, {2, 1}, {10, 20}, {20, 10}}};
    const auto range = std::ranges::find(Ranges, std::pair(m_state.type, maximum));
    if (!m_state.alpha || range == Ranges.end())
        return false;
    m_state.type = maximum;
    return true;
}

} // namespace skeldon
