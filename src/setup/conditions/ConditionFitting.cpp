#include "setup/conditions/ConditionFitting.h"

#include "setup/conditions/ConditionText.h"
#include "setup/tables/IntervalTable.h"
#include "setup/tables/RecorderModel.h"
#include "setup/tables/SamplingTable.h"

#include <array>

namespace skeldon {

bool FitStep::IsQuestion() const
{
    return code != FitCode::HazardNeedsAlpha && code != FitCode::EndlessNeedsAlpha &&
           code != FitCode::BuzzerMissing;
}

CConditionFitting::CConditionFitting(CMeasureCondition& condition, const RecorderFacts& recorder)
    : m_condition(condition)
    , m_recorder(recorder)
{}

std::optional<FitStep> CConditionFitting::Next()
{
    constexpr std::array<Check, 6> Checks = {
        &CConditionFitting::CheckSampling,  &CConditionFitting::CheckInterval,
        &CConditionFitting::CheckThreshold, &CConditionFitting::CheckHazard,
        &CConditionFitting::CheckEndless,   &CConditionFitting::CheckBuzzer,
    };
    Answer(false);
    while (!m_refused && m_nextCheck < Checks.size()) {
        const std::optional<FitStep> step = (this->*Checks[m_nextCheck++])();
        if (!step)
            continue;
        if (step->IsQuestion())
            m_question = step;
        return step;
    }
    return std::nullopt;
}

void CConditionFitting::Answer(bool yes)
{
    if (!m_question)
        return;
    const FitStep question = *m_question;
    m_question.reset();
    m_refused = !yes;
    if (m_refused)
        return;
    switch (question.code) {
    case FitCode::SamplingUnusable:
        m_condition.SetSampling(question.offered);
        break;
    case FitCode::IntervalUnusable:
        m_condition.SetInterval(question.offered);
        break;
    case FitCode::ThresholdUnusable:
    case FitCode::ThresholdOffStep:
        m_condition.Threshold = question.offered;
        break;
    case FitCode::HazardUnusable:
    case FitCode::HazardOffStep:
        m_condition.Hazard = question.offered;
        break;
    case FitCode::HazardNeedsAlpha:
    case FitCode::EndlessNeedsAlpha:
    case FitCode::BuzzerMissing:
        break;
    }
}

std::optional<FitStep> CConditionFitting::CheckSampling() const
{
    if (SamplingTable::CharacterFor(m_recorder.type, m_condition.GetSampling()) != 0)
        return std::nullopt;
    return FitStep{FitCode::SamplingUnusable, SamplingTable::StandardRow};
}

std::optional<FitStep> CConditionFitting::CheckInterval() const
{
    if (m_recorder.type != OldestType || m_condition.GetInterval() <= IntervalTable::LastMinuteRow)
        return std::nullopt;
    return FitStep{FitCode::IntervalUnusable, IntervalTable::LastMinuteRow};
}

std::optional<FitStep> CConditionFitting::CheckThreshold() const
{
    int value = 0;
    const LevelFit fit = m_condition.CheckThreshold(m_recorder, value);
    if (fit == LevelFit::Usable)
        return std::nullopt;
    const bool isUnusable = fit == LevelFit::Unusable;
    return FitStep{isUnusable ? FitCode::ThresholdUnusable : FitCode::ThresholdOffStep, value};
}

std::optional<FitStep> CConditionFitting::CheckHazard() const
{
    if (m_condition.Hazard != 0 && !m_recorder.isAlpha)
        return FitStep{FitCode::HazardNeedsAlpha};
    int value = 0;
    const LevelFit fit = m_condition.CheckHazard(m_recorder, value);
    if (fit == LevelFit::Usable)
        return std::nullopt;
    const bool isUnusable = fit == LevelFit::Unusable;
    return FitStep{isUnusable ? FitCode::HazardUnusable : FitCode::HazardOffStep, value};
}

std::optional<FitStep> CConditionFitting::CheckEndless() const
{
    if (!m_condition.Endless || m_recorder.isAlpha)
        return std::nullopt;
    return FitStep{FitCode::EndlessNeedsAlpha};
}

std::optional<FitStep> CConditionFitting::CheckBuzzer() const
{
    if (!m_condition.Buzzer || m_recorder.hasBuzzer)
        return std::nullopt;
    return FitStep{FitCode::BuzzerMissing};
}

std::string FitReasonText(FitCode code)
{
    switch (code) {
    case FitCode::SamplingUnusable:
        return "This sampling rate cannot be used with the connected KORVA.";
    case FitCode::IntervalUnusable:
        return "This recording interval cannot be used with the connected KORVA.";
    case FitCode::ThresholdUnusable:
    case FitCode::ThresholdOffStep:
        return "This threshold cannot be used with the connected KORVA.";
    case FitCode::HazardNeedsAlpha:
        return "You cannot use the hazard with the connected KORVA.";
    case FitCode::HazardUnusable:
    case FitCode::HazardOffStep:
        return "This hazard value cannot be used with the connected KORVA.";
    case FitCode::EndlessNeedsAlpha:
        return "You cannot use the Endless mode (Cyclic Recording) with the connected KORVA.";
    case FitCode::BuzzerMissing:
        return "You cannot use the buzzer with the connected KORVA.";
    }
    return {};
}

std::string FitOfferText(const FitStep& step)
{
    switch (step.code) {
    case FitCode::SamplingUnusable:
        return "0.0312sec";
    case FitCode::IntervalUnusable:
        return "1min";
    case FitCode::ThresholdUnusable:
    case FitCode::ThresholdOffStep:
    case FitCode::HazardUnusable:
    case FitCode::HazardOffStep:
        return LevelText(step.offered) + "G";
    case FitCode::HazardNeedsAlpha:
    case FitCode::EndlessNeedsAlpha:
    case FitCode::BuzzerMissing:
        break;
    }
    return {};
}

} // namespace skeldon
