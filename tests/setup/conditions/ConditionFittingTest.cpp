#include "setup/conditions/ConditionFitting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace skeldon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr RecorderFacts AlphaQm70 = {50, true, true};
constexpr RecorderFacts PlainQm70 = {50, false, false};
constexpr RecorderFacts Oldest = {0, false, false};

/// Fits and answers every question alike; gives all that was said.
std::vector<FitStep> Fit(CMeasureCondition& condition, const RecorderFacts& recorder, bool answer,
                         bool* isRefused = nullptr)
{
    CConditionFitting fitting(condition, recorder);
    std::vector<FitStep> steps;
    while (const std::optional<FitStep> step = fitting.Next()) {
        steps.push_back(*step);
        if (step->IsQuestion())
            fitting.Answer(answer);
    }
    if (isRefused != nullptr)
        *isRefused = fitting.IsRefused();
    return steps;
}

std::vector<FitStep> Accept(CMeasureCondition& condition, const RecorderFacts& recorder)
{
    bool isRefused = true;
    std::vector<FitStep> steps = Fit(condition, recorder, true, &isRefused);
    EXPECT_FALSE(isRefused);
    return steps;
}

TEST(ConditionFitting, SaysNothingWhereAllFits)
{
    CMeasureCondition condition;
    condition.SetSampling(9);
    condition.SetInterval(14);
    condition.Threshold = 490;
    condition.Hazard = 495;
    condition.Endless = true;
    condition.Buzzer = true;
    const CMeasureCondition before = condition;
    EXPECT_THAT(Accept(condition, AlphaQm70), IsEmpty());
    EXPECT_TRUE(condition.SameConditions(before));
}

TEST(ConditionFitting, OffersTheStandardRateForATraceRateOnTheOldestRecorder)
{
    for (int row = 5; row <= 9; ++row) {
        CMeasureCondition condition;
        condition.SetSampling(row);
        EXPECT_THAT(Accept(condition, Oldest), ElementsAre(FitStep{FitCode::SamplingUnusable, 4}));
        EXPECT_EQ(condition.GetSampling(), 4);
    }
}

TEST(ConditionFitting, OffersTheStandardRateForTheSlowRatesOfTheOldestOnAnyOtherRecorder)
{
    for (const int type : {1, 2, 3, 5, 10, 20, 50, -2}) {
        for (int row = 0; row <= 1; ++row) {
            CMeasureCondition condition;
            condition.SetSampling(row);
            EXPECT_THAT(Accept(condition, {type, false, false}),
                        ElementsAre(FitStep{FitCode::SamplingUnusable, 4}));
            EXPECT_EQ(condition.GetSampling(), 4);
        }
    }
}

TEST(ConditionFitting, OffersOneMinuteForSecondsOnTheOldestRecorder)
{
    CMeasureCondition condition;
    condition.SetInterval(8);
    EXPECT_THAT(Accept(condition, Oldest), IsEmpty());
    condition.SetInterval(9);
    EXPECT_THAT(Accept(condition, Oldest), ElementsAre(FitStep{FitCode::IntervalUnusable, 8}));
    EXPECT_EQ(condition.GetInterval(), 8);
    condition.SetInterval(14);
    EXPECT_THAT(Accept(condition, {-2, false, false}), IsEmpty());
}

TEST(ConditionFitting, OffersAThresholdOfZeroBeyondTheRecordersReach)
{
    CMeasureCondition condition;
    condition.Threshold = 49;
    EXPECT_THAT(Accept(condition, {5, false, false}), IsEmpty());
    condition.Threshold = 50;
    EXPECT_THAT(Accept(condition, {5, false, false}),
                ElementsAre(FitStep{FitCode::ThresholdUnusable, 0}));
    EXPECT_EQ(condition.Threshold, 0);
}

TEST(ConditionFitting, OffersTheNextLowerThresholdOfTheRecordersStep)
{
    CMeasureCondition condition;
    condition.Threshold = 103;
    EXPECT_THAT(Accept(condition, {20, false, false}),
                ElementsAre(FitStep{FitCode::ThresholdOffStep, 102}));
    EXPECT_EQ(condition.Threshold, 102);
    condition.Threshold = 104;
    EXPECT_THAT(Accept(condition, PlainQm70), ElementsAre(FitStep{FitCode::ThresholdOffStep, 100}));
    EXPECT_EQ(condition.Threshold, 100);
}

TEST(ConditionFitting, OnlyWarnsOfAHazardWithoutAlphaAndKeepsIt)
{
    CMeasureCondition condition;
    condition.Hazard = 50;
    EXPECT_THAT(Accept(condition, {10, false, false}),
                ElementsAre(FitStep{FitCode::HazardNeedsAlpha}));
    EXPECT_EQ(condition.Hazard, 50);
}

TEST(ConditionFitting, OffersNoHazardBeyondTheReachOfAnAlpha)
{
    CMeasureCondition condition;
    condition.Hazard = 100;
    EXPECT_THAT(Accept(condition, {10, true, false}),
                ElementsAre(FitStep{FitCode::HazardUnusable, 0}));
    EXPECT_EQ(condition.Hazard, 0);
}

TEST(ConditionFitting, OffersTheNextLowerHazardOfTheStepOfAnAlpha)
{
    CMeasureCondition condition;
    condition.Hazard = 494;
    EXPECT_THAT(Accept(condition, AlphaQm70), ElementsAre(FitStep{FitCode::HazardOffStep, 490}));
    EXPECT_EQ(condition.Hazard, 490);
}

TEST(ConditionFitting, OnlyTellsOfEndlessAndBuzzerAndKeepsThem)
{
    CMeasureCondition condition;
    condition.Endless = true;
    condition.Buzzer = true;
    EXPECT_THAT(Accept(condition, PlainQm70),
                ElementsAre(FitStep{FitCode::EndlessNeedsAlpha}, FitStep{FitCode::BuzzerMissing}));
    EXPECT_TRUE(condition.Endless);
    EXPECT_TRUE(condition.Buzzer);
    EXPECT_THAT(Accept(condition, {10, false, true}),
                ElementsAre(FitStep{FitCode::EndlessNeedsAlpha}));
}

/// Everything that can not be used by the oldest recorder.
CMeasureCondition Misfit()
{
    CMeasureCondition condition;
    condition.SetSampling(9);
    condition.SetInterval(14);
    condition.Threshold = 490;
    condition.Hazard = 495;
    condition.Endless = true;
    condition.Buzzer = true;
    return condition;
}

TEST(ConditionFitting, RunsTheChecksInTheirOrder)
{
    CMeasureCondition condition = Misfit();
    EXPECT_THAT(
        Accept(condition, Oldest),
        ElementsAre(FitStep{FitCode::SamplingUnusable, 4}, FitStep{FitCode::IntervalUnusable, 8},
                    FitStep{FitCode::ThresholdUnusable, 0}, FitStep{FitCode::HazardNeedsAlpha},
                    FitStep{FitCode::EndlessNeedsAlpha}, FitStep{FitCode::BuzzerMissing}));
    // What was taken fits from then on; what was only told is told again.
    EXPECT_THAT(Accept(condition, Oldest),
                ElementsAre(FitStep{FitCode::HazardNeedsAlpha}, FitStep{FitCode::EndlessNeedsAlpha},
                            FitStep{FitCode::BuzzerMissing}));
}

TEST(ConditionFitting, EndsAtTheFirstRefusal)
{
    CMeasureCondition condition = Misfit();
    bool isRefused = false;
    EXPECT_THAT(Fit(condition, Oldest, false, &isRefused),
                ElementsAre(FitStep{FitCode::SamplingUnusable, 4}));
    EXPECT_TRUE(isRefused);
    EXPECT_TRUE(condition.SameConditions(Misfit()));
}

TEST(ConditionFitting, KeepsWhatEarlierChecksChangedBeforeARefusal)
{
    CMeasureCondition condition = Misfit();
    CConditionFitting fitting(condition, Oldest);
    ASSERT_TRUE(fitting.Next());
    fitting.Answer(true);
    ASSERT_TRUE(fitting.Next());
    fitting.Answer(true);
    ASSERT_EQ(fitting.Next()->code, FitCode::ThresholdUnusable);
    fitting.Answer(false);
    EXPECT_FALSE(fitting.Next());
    EXPECT_TRUE(fitting.IsRefused());
    EXPECT_EQ(condition.GetSampling(), 4);
    EXPECT_EQ(condition.GetInterval(), 8);
    EXPECT_EQ(condition.Threshold, 490);
}

TEST(ConditionFitting, TakesAQuestionLeftWithoutAnswerAsRefused)
{
    CMeasureCondition condition = Misfit();
    CConditionFitting fitting(condition, Oldest);
    ASSERT_TRUE(fitting.Next());
    EXPECT_FALSE(fitting.Next());
    EXPECT_TRUE(fitting.IsRefused());
    EXPECT_EQ(condition.GetSampling(), 9);
}

TEST(ConditionFitting, NeedsNoAnswerForWhatIsOnlyTold)
{
    CMeasureCondition condition;
    condition.Endless = true;
    CConditionFitting fitting(condition, PlainQm70);
    ASSERT_EQ(fitting.Next()->code, FitCode::EndlessNeedsAlpha);
    fitting.Answer(false); // answers nothing
    EXPECT_FALSE(fitting.Next());
    EXPECT_FALSE(fitting.IsRefused());
}

TEST(FitText, NamesWhatDoesNotSuitAndTheValueThatWould)
{
    struct Case
    {
        FitStep step;
        const char* reason = "";
        const char* offer = "";
    };
    const Case cases[] = {
        {{FitCode::SamplingUnusable, 4},
         "This sampling rate cannot be used with the connected KORVA.",
         "0.0312sec"},
        {{FitCode::IntervalUnusable, 8},
         "This recording interval cannot be used with the connected KORVA.",
         "1min"},
        {{FitCode::ThresholdUnusable, 0},
         "This threshold cannot be used with the connected KORVA.",
         "0.0G"},
        {{FitCode::ThresholdOffStep, 102},
         "This threshold cannot be used with the connected KORVA.",
         "10.2G"},
        {{FitCode::HazardNeedsAlpha, 0}, "You cannot use the hazard with the connected KORVA.", ""},
        {{FitCode::HazardUnusable, 0},
         "This hazard value cannot be used with the connected KORVA.",
         "0.0G"},
        {{FitCode::HazardOffStep, 490},
         "This hazard value cannot be used with the connected KORVA.",
         "49.0G"},
        {{FitCode::EndlessNeedsAlpha, 0},
         "You cannot use the Endless mode (Cyclic Recording) with the connected KORVA.",
         ""},
        {{FitCode::BuzzerMissing, 0}, "You cannot use the buzzer with the connected KORVA.", ""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FitReasonText(c.step.code), c.reason);
        EXPECT_EQ(FitOfferText(c.step), c.offer);
        EXPECT_EQ(c.step.IsQuestion(), *c.offer != '\0');
    }
}

} // namespace
} // namespace skeldon::test
