#include "korva-simulator/Measuring.h"

#include "korva-simulator/Surroundings.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace skeldon {

namespace {

/// Start options above these are delays in seconds.
constexpr int LastMagnetOption = 4;
constexpr int StopsAtMagnet = 2;
constexpr int PausesAtMagnet = 3;
constexpr int RunsAtMagnet = 4;

bool NeedsMagnet(const RecorderState& state)
{
    const int option = state.conditions.startOption;
    return state.type != OldestType && option >= 1 && option <= LastMagnetOption;
}

/// How far an axis is off its rest, the earth's pull along Z, at the most.
int Excess(const Measurement& measurement, int countsPerG)
{
    return std::max(
        {std::abs(measurement.x), std::abs(measurement.y), std::abs(measurement.z - countsPerG)});
}

void BeginRun(RecorderState& state, RecorderSeconds from)
{
    state.runningSince = from;
    state.noted = 0;
}

class CNotes
{
public:
    explicit CNotes(RecorderState& state)
        : m_state(state)
        , m_kind(state.Kind())
    {}

    /// Gives whether the measurement goes on.
    bool Add(const Measurement& measurement)
    {
        CRecordMemory& memory = m_state.memory;
        if (m_state.IsFull()) {
            if (!m_state.conditions.endless || m_state.capacity == 0)
                return false;
            memory.DropOldest();
        }
        if (memory.Count() == 0)
            m_state.begun = measurement.centiseconds / 100;
        m_line.clear();
        AppendLine(m_line, m_kind, measurement);
        memory.Append(m_line);
        return true;
    }

private:
    RecorderState& m_state;
    LineKind m_kind;
    std::string m_line;
};

} // namespace

void BeginAlone(RecorderState& state, RecorderSeconds clock)
{
    if (state.phase != RecorderPhase::Started)
        return;
    state.phase = RecorderPhase::Measuring;
    state.magnetSeen = false;
    state.over = false;
    state.runningSince.reset();
    if (NeedsMagnet(state))
        return;
    const int delay = state.type == OldestType ? 0 : state.conditions.startOption;
    BeginRun(state, state.reservation ? std::max(clock, *state.reservation) : clock + delay);
}

void MoveMagnet(RecorderState& state, bool isNear, RecorderSeconds clock)
{
    if (state.phase != RecorderPhase::Measuring || !NeedsMagnet(state) || state.over)
        return;
    NoteDown(state, clock);
    const int option = state.conditions.startOption;
    const bool isFirst = !state.magnetSeen;
    state.magnetSeen = state.magnetSeen || isNear;
    const bool isRunning = state.runningSince.has_value();
    bool runs = isRunning;
    if (isNear && isFirst) {
        runs = true;
    } else if (option == StopsAtMagnet && isNear) {
        runs = false;
        state.over = true;
    } else if (option == PausesAtMagnet && state.magnetSeen) {
        runs = !isNear;
    } else if (option == RunsAtMagnet) {
        runs = isNear;
    }
    if (!runs)
        state.runningSince.reset();
    else if (!isRunning)
        BeginRun(state, std::max(clock, state.reservation.value_or(clock)));
}

void NoteDown(RecorderState& state, RecorderSeconds clock)
{
    if (state.phase != RecorderPhase::Measuring || !state.runningSince)
        return;
    const RecorderSeconds interval = IntervalSeconds(state.conditions.interval);
    const RecorderSeconds since = *state.runningSince;
    if (clock < since)
        return;
    const std::int64_t last = (clock - since) / interval;
    // What an endless measurement would have lost again by now is not noted down at all.
    if (state.conditions.endless)
        state.noted = std::max(state.noted, last - static_cast<std::int64_t>(state.capacity));
    const CSurroundings surroundings(state.seed, state.Model().countsPerG, interval * 100);
    const int threshold = state.conditions.threshold;
    CNotes notes(state);
    for (; state.noted <= last; ++state.noted) {
        const Measurement measurement = surroundings.At((since + state.noted * interval) * 100);
        const bool isExcess =
            threshold > 0 && Excess(measurement, state.Model().countsPerG) > threshold;
        if (isExcess && state.noted > 0) {
            // It fell somewhere into the interval that ends now.
            Measurement knock = measurement;
            knock.centiseconds -= interval * 63;
            if (!notes.Add(knock))
                return;
        }
        if (!notes.Add(measurement))
            return;
    }
}

void EndAlone(RecorderState& state, RecorderSeconds clock)
{
    if (state.phase != RecorderPhase::Measuring)
        return;
    NoteDown(state, clock);
    state.phase = RecorderPhase::Idle;
    state.reservation.reset();
    state.runningSince.reset();
}

} // namespace skeldon
