#pragma once

#include "resources/StringTable.h"
#include "setup/view/SetupLayout.h"

#include <span>

namespace skeldon {

class CSetupState;

/// The arrows and toggles of the panel.
enum class SetupStep
{
    SamplingUp, ///< the number shown rises: towards longer periods
    SamplingDown,
    IntervalUp, ///< towards longer intervals
    IntervalDown,
    ThresholdUp,
    ThresholdDown,
    IdUp,
    IdDown,
    HazardUp,
    HazardDown,
    StartOptionUp,
    StartOptionDown,
    DetectOver,
    Endless,
    Buzzer,
    Count,
};

/// Which small button a step has.
enum class StepKind
{
    Up,
    Down,
    Toggle,
};

/// What the status bar shows after a step.
enum class StepHint
{
    None, ///< the idle text
    StartOption,
    Buzzer,
};

struct StepRule
{
    SetupStep step{};
    SetupPanel panel{};
    StepKind kind{};
    /// Changes the conditions on show; false where there is no further step.
    bool (*apply)(CSetupState& state) = nullptr;
    bool speedsUp = false; ///< held down, it is fast after a while
    StepHint hint = StepHint::None;
};

/// One for each `SetupStep`, in their order.
[[nodiscard]] std::span<const StepRule> StepRules();
[[nodiscard]] const StepRule& RuleOf(SetupStep step);

} // namespace skeldon
