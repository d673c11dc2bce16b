#include "setup/view/WizardPages.h"

#include "setup/conditions/MeasureCondition.h"
#include "setup/conditions/ProfileStore.h"

#include <array>

namespace skeldon {

namespace {

using C = CMeasureCondition&;
using P = const CProfileStore&;

constexpr int NoAllowedNumber = -1;
constexpr int Last = CMeasureCondition::HighestStartOption;

/// Goes round, other than the arrows of the setup view.
void StartOptionUp(C condition, P /*profiles*/)
{
    int& option = condition.StartOpt;
    option = option >= Last ? 0 : option + 1;
}

void StartOptionDown(C condition, P /*profiles*/)
{
    int& option = condition.StartOpt;
    option = option <= 0 ? Last : option - 1;
}

/// Proposes the lowest number that no profile has, whatever the conditions had; 0 if all are used.
void ProposeHostNumber(C condition, P profiles)
{
    condition.SerialNo = profiles.NextFreeHostId(0, NoAllowedNumber);
}

void HostNumberUp(C condition, P profiles)
{
    condition.SerialNo = profiles.NextFreeHostId(condition.SerialNo, NoAllowedNumber);
}

void HostNumberDown(C condition, P profiles)
{
    condition.SerialNo = profiles.PrevFreeHostId(condition.SerialNo, NoAllowedNumber);
}

constexpr std::array<WizardPage, 9> Pages = {{
    {SetupPanel::Sampling, StringId::WizardSampling, StringId::WizardSamplingText,
     [](C condition, P) { condition.PreviousSampling(); },
     [](C condition, P) { condition.NextSampling(); }, nullptr},
    {SetupPanel::Interval, StringId::WizardInterval, StringId::WizardIntervalText,
     [](C condition, P) { condition.PreviousInterval(); },
     [](C condition, P) { condition.NextInterval(); }, nullptr},
    {SetupPanel::Threshold, StringId::WizardThreshold, StringId::WizardThresholdText,
     [](C condition, P) { condition.ThresholdUp(); },
     [](C condition, P) { condition.ThresholdDown(); }, nullptr, true},
    {SetupPanel::DetectOver, StringId::WizardDetectOver, StringId::WizardDetectOverText, nullptr,
     nullptr, [](C condition, P) { condition.OverThreshold = !condition.OverThreshold; }},
    {SetupPanel::Id, StringId::WizardId, StringId::WizardIdText, HostNumberUp, HostNumberDown,
     nullptr, true, ProposeHostNumber},
    {SetupPanel::StartOption, StringId::WizardStartOption, StringId::WizardStartOptionText,
     StartOptionUp, StartOptionDown, nullptr, true},
    {SetupPanel::Hazard, StringId::WizardHazard, StringId::WizardHazardText,
     [](C condition, P) { condition.HazardUp(); }, [](C condition, P) { condition.HazardDown(); },
     nullptr, true},
    {SetupPanel::Endless, StringId::WizardEndless, StringId::WizardEndlessText, nullptr, nullptr,
     [](C condition, P) { condition.Endless = !condition.Endless; }},
    {SetupPanel::Buzzer, StringId::WizardBuzzer, StringId::WizardBuzzerText, nullptr, nullptr,
     [](C condition, P) { condition.Buzzer = !condition.Buzzer; }},
}};

} // namespace

std::span<const WizardPage> WizardPages()
{
    return Pages;
}

WizardButtons WizardButtonsOf(int page)
{
    const bool isLast = page == static_cast<int>(Pages.size()) - 1;
    return {page > 0, !isLast, isLast};
}

} // namespace skeldon
