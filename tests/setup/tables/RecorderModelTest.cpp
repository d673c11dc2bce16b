#include "setup/tables/RecorderModel.h"

#include <gtest/gtest.h>

#include <array>

namespace skeldon {
namespace {

constexpr std::array<RecorderModel, 9> Family = {{
    {0, "", 10.0, 10, 1.0, 99, 1, 0, 0},
    {1, "PL04", 1.0, 100, 10.0, 9, 1, 9, 1},
    {2, "PL04", 2.0, 50, 5.0, 19, 1, 19, 1},
    {3, "PL04", 2.5, 40, 4.0, 24, 1, 24, 1},
    {5, "PL20", 5.0, 20, 2.0, 49, 1, 49, 1},
    {10, "PL20", 10.0, 10, 1.0, 99, 1, 99, 1},
    {20, "PL20", 20.0, 5, 0.5, 198, 2, 198, 2},
    {50, "QM70", 50.0, 2, 0.2, 490, 5, 495, 5},
    {-2, "???", 10.0, 10, 1.0, 99, 1, 0, 0},
}};

TEST(RecorderModel, KnowsWhatEachMemberCanDo)
{
    for (const RecorderModel& expected : Family) {
        SCOPED_TRACE(expected.type);
        const RecorderModel& model = ModelOfType(expected.type);
        EXPECT_EQ(model.type, expected.type);
        EXPECT_EQ(model.word, expected.word);
        EXPECT_EQ(model.maxG, expected.maxG);
        EXPECT_EQ(model.countsPerG, expected.countsPerG);
        EXPECT_EQ(model.thresholdFactor, expected.thresholdFactor);
        EXPECT_EQ(model.highestThreshold, expected.highestThreshold);
        EXPECT_EQ(model.thresholdStep, expected.thresholdStep);
        EXPECT_EQ(model.highestHazard, expected.highestHazard);
        EXPECT_EQ(model.hazardStep, expected.hazardStep);
    }
}

TEST(RecorderModel, LetsTheHazardOfType50ReachFurtherThanItsThreshold)
{
    EXPECT_GT(ModelOfType(50).highestHazard, ModelOfType(50).highestThreshold);
}

TEST(RecorderModel, StopsATenthBelowTheFullScaleWhereTheStepIsATenth)
{
    for (const int type : {0, 1, 2, 3, 5, 10, -2}) {
        const RecorderModel& model = ModelOfType(type);
        ASSERT_EQ(model.thresholdStep, 1) << type;
        EXPECT_EQ(model.highestThreshold, static_cast<int>(model.maxG * 10.0) - 1) << type;
    }
}

TEST(RecorderModel, TakesAnyOtherTypeAsUnknown)
{
    for (const int type : {4, 7, -1, 51, 100, 2147483647, -2147483647 - 1}) {
        EXPECT_EQ(ModelOfType(type).type, UnknownType) << type;
        EXPECT_EQ(ModelOfType(type).word, "???") << type;
    }
}

TEST(RecorderModel, ReportsOnlySevenTypes)
{
    for (const int type : {1, 2, 3, 5, 10, 20, 50})
        EXPECT_TRUE(IsReportedType(type)) << type;
    for (const int type : {0, -2, -1, 4, 6, 7, 11, 49, 51, 100})
        EXPECT_FALSE(IsReportedType(type)) << type;
}

} // namespace
} // namespace skeldon
