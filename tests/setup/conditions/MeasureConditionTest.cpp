#include "setup/conditions/MeasureCondition.h"

#include "setup/tables/GScale.h"

#include <gtest/gtest.h>

#include <functional>
#include <type_traits>

namespace skeldon::test {
namespace {

constexpr RecorderFacts Alpha(int type)
{
    return {type, true, true};
}

constexpr RecorderFacts Plain(int type)
{
    return {type, false, false};
}

CMeasureCondition WithThreshold(int tenths)
{
    CMeasureCondition condition;
    condition.Threshold = tenths;
    return condition;
}

CMeasureCondition WithHazard(int tenths)
{
    CMeasureCondition condition;
    condition.Hazard = tenths;
    return condition;
}

TEST(MeasureCondition, StartsWithTheStandardValues)
{
    const CMeasureCondition condition;
    EXPECT_TRUE(condition.FilePath.empty());
    EXPECT_EQ(condition.ProfileName, "");
    EXPECT_EQ(condition.GetSampling(), 4);
    EXPECT_EQ(condition.GetInterval(), 0);
    EXPECT_EQ(condition.Threshold, 0);
    EXPECT_FALSE(condition.OverThreshold);
    EXPECT_EQ(condition.SerialNo, 0);
    EXPECT_EQ(condition.StartOpt, 5);
    EXPECT_FALSE(condition.Alarm);
    EXPECT_EQ(condition.Hazard, 0);
    EXPECT_FALSE(condition.Endless);
    EXPECT_FALSE(condition.Buzzer);
    EXPECT_EQ(condition.SaveFileType, 0);
    EXPECT_EQ(condition.SaveFileSpecify, "");
    EXPECT_TRUE(condition.Extract.empty());
    EXPECT_FALSE(condition.ExtractSave);
    EXPECT_EQ(condition.LoadProfType, 0);
    EXPECT_EQ(condition.LoadProfName, "");
    EXPECT_EQ(condition.ClearData, 0);
}

TEST(MeasureCondition, IsAPlainValueAndTheStoresEntry)
{
    static_assert(std::is_same_v<CProfile, CMeasureCondition>);
    static_assert(!std::is_polymorphic_v<CMeasureCondition>);
    static_assert(std::is_nothrow_move_constructible_v<CMeasureCondition>);
    static_assert(std::is_nothrow_move_assignable_v<CMeasureCondition>);
}

/// One change of every field, in the order of the comparison it belongs to.
using Change = std::function<void(CMeasureCondition&)>;

const std::vector<Change> ConditionChanges = {
    [](CMeasureCondition& c) { c.SetSampling(5); },
    [](CMeasureCondition& c) { c.SetInterval(1); },
    [](CMeasureCondition& c) { c.Threshold = 1; },
    [](CMeasureCondition& c) { c.OverThreshold = true; },
    [](CMeasureCondition& c) { c.SerialNo = 1; },
    [](CMeasureCondition& c) { c.StartOpt = 6; },
    [](CMeasureCondition& c) { c.Alarm = true; },
    [](CMeasureCondition& c) { c.Hazard = 1; },
    [](CMeasureCondition& c) { c.Endless = true; },
    [](CMeasureCondition& c) { c.Buzzer = true; },
};

const std::vector<Change> KeepModeChanges = {
    [](CMeasureCondition& c) { c.SaveFileType = 1; },
    [](CMeasureCondition& c) { c.SaveFileSpecify = "a"; },
    [](CMeasureCondition& c) {
        c.Extract = {{0x10, 1.0, true, 2.0, false}};
    },
    [](CMeasureCondition& c) { c.ExtractSave = true; },
    [](CMeasureCondition& c) { c.LoadProfType = 1; },
    [](CMeasureCondition& c) { c.LoadProfName = "a"; },
    [](CMeasureCondition& c) { c.ClearData = 1; },
};

TEST(SameConditions, ComparesEachConditionAndNothingElse)
{
    const CMeasureCondition standard;
    for (std::size_t i = 0; i < ConditionChanges.size(); ++i) {
        CMeasureCondition changed;
        ConditionChanges[i](changed);
        EXPECT_FALSE(changed.SameConditions(standard)) << i;
        EXPECT_FALSE(standard.SameConditions(changed)) << i;
        EXPECT_TRUE(changed.SameKeepMode(standard)) << i;
        EXPECT_TRUE(changed.SameConditions(CMeasureCondition(changed))) << i;
    }
    CMeasureCondition named;
    named.ProfileName = "A";
    named.FilePath = "/a";
    EXPECT_TRUE(named.SameConditions(standard));
    EXPECT_TRUE(named.SameKeepMode(standard));
}

TEST(SameKeepMode, ComparesEachFieldOfTheBlockAndNothingElse)
{
    const CMeasureCondition standard;
    for (std::size_t i = 0; i < KeepModeChanges.size(); ++i) {
        CMeasureCondition changed;
        KeepModeChanges[i](changed);
        EXPECT_FALSE(changed.SameKeepMode(standard)) << i;
        EXPECT_TRUE(changed.SameConditions(standard)) << i;
        CMeasureCondition assigned;
        assigned = changed;
        EXPECT_TRUE(assigned.SameKeepMode(changed)) << i;
    }
}

TEST(SameKeepMode, ComparesTextsByteForByte)
{
    CMeasureCondition a;
    CMeasureCondition b;
    a.SaveFileSpecify = "Name";
    b.SaveFileSpecify = "name";
    EXPECT_FALSE(a.SameKeepMode(b));
    b = a;
    a.LoadProfName = "\xE9";
    b.LoadProfName = "\xC3\xA9";
    EXPECT_FALSE(a.SameKeepMode(b));
}

TEST(SameKeepMode, ComparesExtractConditionsByTheirTextForm)
{
    CMeasureCondition a;
    CMeasureCondition b;
    a.Extract = {{0x10, 1.0, true, 2.0, false}};
    b.Extract = {{0x10, 1.0000000001, true, 2.0, false}}; // the same to six decimals
    EXPECT_TRUE(a.SameKeepMode(b));
    b.Extract = {{0x10, 1.000001, true, 2.0, false}};
    EXPECT_FALSE(a.SameKeepMode(b));
}

TEST(MeasureCondition, CopiesPathAndNameToo)
{
    CMeasureCondition condition;
    condition.FilePath = "/x/A.skp";
    condition.ProfileName = "A";
    const CMeasureCondition copy = condition; // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(copy.FilePath, "/x/A.skp");
    EXPECT_EQ(copy.ProfileName, "A");
}

TEST(MeasureCondition, ClampsRowsToTheirTables)
{
    CMeasureCondition condition;
    for (const auto& [row, sampling, interval] :
         {std::tuple{-1, 0, 0}, std::tuple{0, 0, 0}, std::tuple{9, 9, 9}, std::tuple{10, 9, 10},
          std::tuple{14, 9, 14}, std::tuple{15, 9, 14}, std::tuple{2147483647, 9, 14}}) {
        condition.SetSampling(row);
        condition.SetInterval(row);
        EXPECT_EQ(condition.GetSampling(), sampling) << row;
        EXPECT_EQ(condition.GetInterval(), interval) << row;
    }
}

TEST(MeasureCondition, MovesRowsOneByOneAndStopsAtTheTablesEnds)
{
    CMeasureCondition condition;
    condition.SetSampling(8);
    EXPECT_TRUE(condition.NextSampling());
    EXPECT_FALSE(condition.NextSampling());
    EXPECT_EQ(condition.GetSampling(), 9);
    condition.SetSampling(1);
    EXPECT_TRUE(condition.PreviousSampling());
    EXPECT_FALSE(condition.PreviousSampling());
    EXPECT_EQ(condition.GetSampling(), 0);
    condition.SetInterval(13);
    EXPECT_TRUE(condition.NextInterval());
    EXPECT_FALSE(condition.NextInterval());
    EXPECT_EQ(condition.GetInterval(), 14);
    condition.SetInterval(1);
    EXPECT_TRUE(condition.PreviousInterval());
    EXPECT_FALSE(condition.PreviousInterval());
    EXPECT_EQ(condition.GetInterval(), 0);
}

TEST(MeasureCondition, StepsTheThresholdAlongTheScaleUpTo490)
{
    CMeasureCondition condition;
    EXPECT_FALSE(condition.ThresholdDown());
    EXPECT_EQ(condition.Threshold, 0);
    int steps = 0;
    for (int before = 0; condition.ThresholdUp(); before = condition.Threshold, ++steps)
        ASSERT_EQ(condition.Threshold, StepGUp(before));
    EXPECT_EQ(condition.Threshold, 490);
    while (condition.ThresholdDown())
        --steps;
    EXPECT_EQ(condition.Threshold, 0);
    EXPECT_EQ(steps, 0);
}

TEST(MeasureCondition, StepsTheHazardAlongTheScaleUpTo495)
{
    CMeasureCondition condition;
    EXPECT_FALSE(condition.HazardDown());
    EXPECT_EQ(condition.Hazard, 0);
    for (int before = 0; condition.HazardUp(); before = condition.Hazard)
        ASSERT_EQ(condition.Hazard, StepGUp(before));
    EXPECT_EQ(condition.Hazard, 495);
    EXPECT_TRUE(condition.HazardDown());
    EXPECT_EQ(condition.Hazard, 490);
}

TEST(MeasureCondition, MovesALevelOffTheScaleByTheSameSteps)
{
    CMeasureCondition condition = WithThreshold(101);
    EXPECT_TRUE(condition.ThresholdUp());
    EXPECT_EQ(condition.Threshold, 103);
    condition.Threshold = 101;
    EXPECT_TRUE(condition.ThresholdDown());
    EXPECT_EQ(condition.Threshold, 100);
    condition.Threshold = 489; // the limit is looked at before the step
    EXPECT_TRUE(condition.ThresholdUp());
    EXPECT_EQ(condition.Threshold, 494);
    EXPECT_FALSE(condition.ThresholdUp());
}

struct LevelCase
{
    RecorderFacts recorder;
    int level = 0;
    LevelFit fit = LevelFit::Usable;
    int value = 0;
};

TEST(CheckThreshold, HoldsTheLevelAgainstTheRecordersReachAndStep)
{
    const LevelCase cases[] = {
        {Plain(5), 49, LevelFit::Usable, 49},     {Plain(5), 50, LevelFit::Unusable, 0},
        {Plain(20), 103, LevelFit::OffStep, 102}, {Plain(20), 198, LevelFit::Usable, 198},
        {Plain(20), 199, LevelFit::Unusable, 0},  {Plain(50), 105, LevelFit::Usable, 105},
        {Plain(50), 104, LevelFit::OffStep, 100}, {Plain(50), 4, LevelFit::OffStep, 0},
        {Plain(50), 490, LevelFit::Usable, 490},  {Alpha(50), 495, LevelFit::Unusable, 0},
        {Plain(1), 9, LevelFit::Usable, 9},       {Plain(1), 10, LevelFit::Unusable, 0},
        {Plain(2), 19, LevelFit::Usable, 19},     {Plain(2), 20, LevelFit::Unusable, 0},
        {Plain(3), 24, LevelFit::Usable, 24},     {Plain(3), 25, LevelFit::Unusable, 0},
        {Plain(10), 99, LevelFit::Usable, 99},    {Plain(10), 100, LevelFit::Unusable, 0},
        {Plain(0), 99, LevelFit::Usable, 99},     {Plain(0), 100, LevelFit::Unusable, 0},
        {Plain(-2), 99, LevelFit::Usable, 99},    {Plain(-2), 100, LevelFit::Unusable, 0},
        {Plain(50), 0, LevelFit::Usable, 0},
    };
    for (const LevelCase& c : cases) {
        int value = -1;
        EXPECT_EQ(WithThreshold(c.level).CheckThreshold(c.recorder, value), c.fit)
            << c.recorder.type << ' ' << c.level;
        EXPECT_EQ(value, c.value) << c.recorder.type << ' ' << c.level;
    }
}

TEST(CheckHazard, HoldsTheLevelAgainstTheRecordersReachAndStep)
{
    const LevelCase cases[] = {
        {Alpha(50), 495, LevelFit::Usable, 495},  {Alpha(50), 496, LevelFit::Unusable, 0},
        {Alpha(50), 494, LevelFit::OffStep, 490}, {Alpha(20), 198, LevelFit::Usable, 198},
        {Alpha(20), 105, LevelFit::OffStep, 104}, {Alpha(20), 200, LevelFit::Unusable, 0},
        {Alpha(1), 9, LevelFit::Usable, 9},       {Alpha(1), 10, LevelFit::Unusable, 0},
        {Alpha(5), 49, LevelFit::Usable, 49},     {Alpha(10), 100, LevelFit::Unusable, 0},
    };
    for (const LevelCase& c : cases) {
        int value = -1;
        EXPECT_EQ(WithHazard(c.level).CheckHazard(c.recorder, value), c.fit)
            << c.recorder.type << ' ' << c.level;
        EXPECT_EQ(value, c.value) << c.recorder.type << ' ' << c.level;
    }
}

TEST(CheckHazard, FindsOnlyZeroUsableWhereARecorderHasNoHazard)
{
    for (const RecorderFacts& recorder :
         {Plain(50), Plain(10), Plain(0), Alpha(0), Alpha(-2), Plain(-2), Alpha(7)}) {
        int value = -1;
        EXPECT_EQ(WithHazard(0).CheckHazard(recorder, value), LevelFit::Usable);
        EXPECT_EQ(value, 0);
        EXPECT_EQ(WithHazard(1).CheckHazard(recorder, value), LevelFit::Unusable);
        EXPECT_EQ(value, 0);
    }
}

} // namespace
} // namespace skeldon::test
