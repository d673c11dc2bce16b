#include "setup/view/StepRules.h"

#include "setup/view/SetupState.h"

#include <array>

namespace skeldon {

namespace {

bool Set(int& value, int to)
{
    const bool isChanged = value != to;
    value = to;
    return isChanged;
}

bool Flip(bool& value)
{
    value = !value;
    return true;
}

bool HostNumberUp(CSetupState& state)
{
    int& number = state.m_current.SerialNo;
    return Set(number, state.m_store.NextFreeHostId(number, state.m_saved.SerialNo));
}

bool HostNumberDown(CSetupState& state)
{
    int& number = state.m_current.SerialNo;
    return Set(number, state.m_store.PrevFreeHostId(number, state.m_saved.SerialNo));
}

/// A recorder may hold more than the highest option.
bool StartOptionUp(CSetupState& state)
{
    int& option = state.m_current.StartOpt;
    return option < CMeasureCondition::HighestStartOption && Set(option, option + 1);
}

bool StartOptionDown(CSetupState& state)
{
    int& option = state.m_current.StartOpt;
    return option > 0 && Set(option, option - 1);
}

using S = CSetupState&;

constexpr std::array<StepRule, static_cast<std::size_t>(SetupStep::Count)> Rules = {{
    {SetupStep::SamplingUp, SetupPanel::Sampling, StepKind::Up,
     [](S state) { return state.m_current.PreviousSampling(); }},
    {SetupStep::SamplingDown, SetupPanel::Sampling, StepKind::Down,
     [](S state) { return state.m_current.NextSampling(); }},
    {SetupStep::IntervalUp, SetupPanel::Interval, StepKind::Up,
     [](S state) { return state.m_current.PreviousInterval(); }},
    {SetupStep::IntervalDown, SetupPanel::Interval, StepKind::Down,
     [](S state) { return state.m_current.NextInterval(); }},
    {SetupStep::ThresholdUp, SetupPanel::Threshold, StepKind::Up,
     [](S state) { return state.m_current.ThresholdUp(); }, true},
    {SetupStep::ThresholdDown, SetupPanel::Threshold, StepKind::Down,
     [](S state) { return state.m_current.ThresholdDown(); }, true},
    {SetupStep::IdUp, SetupPanel::Id, StepKind::Up, HostNumberUp, true},
    {SetupStep::IdDown, SetupPanel::Id, StepKind::Down, HostNumberDown, true},
    {SetupStep::HazardUp, SetupPanel::Hazard, StepKind::Up,
     [](S state) { return state.m_current.HazardUp(); }, true},
    {SetupStep::HazardDown, SetupPanel::Hazard, StepKind::Down,
     [](S state) { return state.m_current.HazardDown(); }, true},
    {SetupStep::StartOptionUp, SetupPanel::StartOption, StepKind::Up, StartOptionUp, true,
     StepHint::StartOption},
    {SetupStep::StartOptionDown, SetupPanel::StartOption, StepKind::Down, StartOptionDown, true,
     StepHint::StartOption},
    {SetupStep::DetectOver, SetupPanel::DetectOver, StepKind::Toggle,
     [](S state) { return Flip(state.m_current.OverThreshold); }},
    {SetupStep::Endless, SetupPanel::Endless, StepKind::Toggle,
     [](S state) { return Flip(state.m_current.Endless); }},
    {SetupStep::Buzzer, SetupPanel::Buzzer, StepKind::Toggle,
     [](S state) { return Flip(state.m_current.Buzzer); }, false, StepHint::Buzzer},
}};

} // namespace

std::span<const StepRule> StepRules()
{
    return Rules;
}

const StepRule& RuleOf(SetupStep step)
{
    return Rules[static_cast<std::size_t>(step)];
}

} // namespace skeldon
