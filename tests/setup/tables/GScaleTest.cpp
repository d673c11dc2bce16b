#include "setup/tables/GScale.h"

#include <gtest/gtest.h>

#include <vector>

namespace skeldon {
namespace {

/// The scale by its definition, 0.0 G to 49.5 G: tenths, then multiples of 0.2 G and 0.5 G, then
/// multiples of 0.5 G.
std::vector<int> Scale()
{
    std::vector<int> scale;
    for (int v = 0; v <= 495; ++v) {
        const bool isOn =
            v <= 100 || (v <= 198 && (v % 2 == 0 || v % 5 == 0)) || (v >= 200 && v % 5 == 0);
        if (isOn)
            scale.push_back(v);
    }
    return scale;
}

TEST(StepGUp, WalksTheWholeScale)
{
    const std::vector<int> scale = Scale();
    for (std::size_t i = 0; i + 1 < scale.size(); ++i)
        EXPECT_EQ(StepGUp(scale[i]), scale[i + 1]) << scale[i];
}

TEST(StepGDown, WalksTheWholeScaleBack)
{
    const std::vector<int> scale = Scale();
    for (std::size_t i = scale.size() - 1; i > 0; --i)
        EXPECT_EQ(StepGDown(scale[i]), scale[i - 1]) << scale[i];
}

struct Step
{
    int from;
    int to;
};

TEST(StepGUp, ChangesItsStepWhereTheScaleDoes)
{
    for (const Step step : {Step{99, 100}, Step{100, 102}, Step{104, 105}, Step{105, 106},
                            Step{106, 108}, Step{198, 200}, Step{200, 205}, Step{490, 495}})
        EXPECT_EQ(StepGUp(step.from), step.to) << step.from;
}

TEST(StepGDown, ChangesItsStepWhereTheScaleDoes)
{
    for (const Step step :
         {Step{205, 200}, Step{200, 198}, Step{106, 105}, Step{105, 104}, Step{104, 102},
          Step{102, 100}, Step{101, 100}, Step{100, 99}, Step{1, 0}})
        EXPECT_EQ(StepGDown(step.from), step.to) << step.from;
}

TEST(StepG, MovesAValueOffTheScaleByTheSameRule)
{
    EXPECT_EQ(StepGUp(101), 103);
    EXPECT_EQ(StepGDown(101), 100);
    EXPECT_EQ(StepGUp(103), 105);
    EXPECT_EQ(StepGUp(199), 204);
    EXPECT_EQ(StepGDown(199), 197);
    EXPECT_EQ(StepGDown(203), 201);
    EXPECT_EQ(StepGDown(204), 199);
}

} // namespace
} // namespace skeldon
