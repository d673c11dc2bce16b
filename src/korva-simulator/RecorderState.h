#pragma once

#include "korva-simulator/LineFormat.h"
#include "korva-simulator/RecordMemory.h"
#include "setup/tables/RecorderModel.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace skeldon {

/// The measurement conditions as the recorder holds them: in the wire's own values.
struct RecorderConditions
{
    char sampling = '5';
    char interval = '^';
    int threshold = 0; ///< in counts, as the wire has it
    int warn = 0;
    int hostNumber = 0;
    int startOption = 5;
    int hazard = 0; ///< in counts, on alpha firmware
    bool endless = false;
    bool buzzer = false;
};

/// How far a measurement has got.
enum class RecorderPhase
{
    Idle,
    Started,   ///< told to begin, the cable still plugged in
    Measuring, ///< alone, or waiting for its magnet
};

/// Everything that outlives the plugging of the cable and the end of the program.
struct RecorderState
{
    int type = 10; ///< as "@Type=" tells it; `OldestType` tells none
    bool alpha = false;
    bool hasBuzzerKey = true;
    std::uint64_t seed = 1; ///< of what it is exposed to
    std::size_t capacity = 32000;
    RecorderConditions conditions;
    /// What the recorder's clock shows at the beginning of the simulation.
    RecorderSeconds clock = 0;
    /// The date that the report carries: when the memory's first measurement began.
    RecorderSeconds begun = 0;
    RecorderPhase phase = RecorderPhase::Idle;
    std::optional<RecorderSeconds> reservation;
    /// Since when lines are being noted down, and for how many intervals that has been done.
    std::optional<RecorderSeconds> runningSince;
    std::int64_t noted = 0;
    /// Whether a measurement under a magnet has begun at all, and whether it is over.
    bool magnetSeen = false;
    bool over = false;
    CRecordMemory memory;

    [[nodiscard]] LineKind Kind() const { return LineKindOf(type, alpha); }
    [[nodiscard]] const RecorderModel& Model() const { return ModelOfType(type); }
    [[nodiscard]] bool IsFull() const { return memory.Count() >= capacity; }
};

/// Length of the recording interval in seconds.
[[nodiscard]] RecorderSeconds IntervalSeconds(char interval);

} // namespace skeldon
