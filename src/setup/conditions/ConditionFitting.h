#pragma once

#include "setup/conditions/MeasureCondition.h"

#include <optional>
#include <string>

namespace skeldon {

/// What the fitting of conditions to a recorder has to say.
enum class FitCode
{
    SamplingUnusable,  ///< question; row 4 is offered
    IntervalUnusable,  ///< question; row 8 is offered
    ThresholdUnusable, ///< question; 0 is offered
    ThresholdOffStep,  ///< question; the nearest lower level is offered
    HazardNeedsAlpha,  ///< warning
    HazardUnusable,    ///< question; 0, no hazard, is offered
    HazardOffStep,     ///< question; the nearest lower level is offered
    EndlessNeedsAlpha, ///< information
    BuzzerMissing,     ///< information
};

/// One thing that the user is asked or told.
struct FitStep
{
    FitCode code{};
    int offered = 0; ///< of a question: row or tenths of G

    /// Whether an answer is awaited. What is told changes nothing: the setting stays in the
    /// conditions and is not sent.
    [[nodiscard]] bool IsQuestion() const;
    bool operator==(const FitStep&) const = default;
};

/// Fits conditions to the recorder that is to measure by them, in six checks: sampling, interval,
/// threshold, hazard, endless, buzzer. Call `Next` until it gives nothing, `Answer` each question.
class CConditionFitting
{
public:
    /// `condition` must outlive the fitting; accepted values are written to it.
    CConditionFitting(CMeasureCondition& condition, const RecorderFacts& recorder);

    /// The next thing to say; nothing when all checks are done or one ended them. A question left
    /// without an answer counts as refused.
    [[nodiscard]] std::optional<FitStep> Next();
    /// Answers the question that `Next` gave: with yes the offered value is taken, else the
    /// fitting ends, with the conditions as the earlier checks left them.
    void Answer(bool yes);
    /// Whether a question was refused, so that no start follows.
    [[nodiscard]] bool IsRefused() const { return m_refused; }

private:
    using Check = std::optional<FitStep> (CConditionFitting::*)() const;

    std::optional<FitStep> CheckSampling() const;
    std::optional<FitStep> CheckInterval() const;
    std::optional<FitStep> CheckThreshold() const;
    std::optional<FitStep> CheckHazard() const;
    std::optional<FitStep> CheckEndless() const;
    std::optional<FitStep> CheckBuzzer() const;

    CMeasureCondition& m_condition;
    RecorderFacts m_recorder;
    std::size_t m_nextCheck = 0;
    std::optional<FitStep> m_question; ///< awaits its answer
    bool m_refused = false;
};

/// What does not suit the recorder, in one sentence.
[[nodiscard]] std::string FitReasonText(FitCode code);
/// The value that a question offers: "0.0312sec", "1min", "10.2G"; empty where none is.
[[nodiscard]] std::string FitOfferText(const FitStep& step);

} // namespace skeldon
