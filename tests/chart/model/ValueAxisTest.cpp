#include "chart/model/ValueAxis.h"

#include <cmath>
#include <string>
#include <utility>

namespace skeldon {
namespace {

CValueScale At(int step)
{
    CValueScale scale;
    scale.SetStep(step, 15);
    return scale;
}

TEST(ValueAxis, DrawsFromZeroUpAndThenDown)
{
    const std::vector<ValueTick> ticks = ValueTicks(At(0), 1000, DisplayUnit::G);
    ASSERT_EQ(ticks.size(), 21U);
    EXPECT_EQ(ticks[0].value, 0.0);
    EXPECT_EQ(ticks[0].row, 174);
    EXPECT_EQ(ticks[10].value, 50.0);
    EXPECT_EQ(ticks[10].row, 24);
    EXPECT_EQ(ticks[11].value, -5.0);
    EXPECT_EQ(ticks[11].row, 188);
    EXPECT_EQ(ticks[20].value, -50.0);
    EXPECT_EQ(ticks[20].row, 323);
}

TEST(ValueAxis, ReachesFiftyAtEveryStepButMinusFiftyOnlyWhereTheStepsAddUpExactly)
{
    const std::vector<double> lowest{-50, -50, -50, -50, -50, -50, -49.8, -49.9, -49.9};
    for (int step = 0; step < CValueScale::StepCount; ++step) {
        const std::vector<ValueTick> ticks = ValueTicks(At(step), 50000, DisplayUnit::G);
        double high = 0.0;
        for (const ValueTick& tick : ticks)
            high = std::max(high, tick.value);
        EXPECT_NEAR(high, 50.0, 1e-9) << step;
        EXPECT_NEAR(ticks.back().value, lowest[static_cast<std::size_t>(step)], 1e-9) << step;
    }
}

TEST(ValueAxis, StopsAtTheWindow)
{
    CValueScale scale = At(2); // 45 pixels a tick, zero line at 474
    scale.m_scrollY = 300;
    std::vector<double> values;
    // Rows 300 to 500: 474, 429, 384, 339 upward; below the zero line -5 is row 518.
    for (const ValueTick& tick : ValueTicks(scale, 200, DisplayUnit::G))
        values.push_back(tick.value);
    EXPECT_EQ(values, (std::vector<double>{0, 5, 10, 15}));

    // A tick in the top row is drawn, upward one in the row below the window is not, downward it
    // is.
    scale.m_scrollY = 339;
    values.clear();
    for (const ValueTick& tick : ValueTicks(scale, 474 - 339, DisplayUnit::G))
        values.push_back(tick.value);
    EXPECT_EQ(values, (std::vector<double>{5, 10, 15}));
    scale.m_scrollY = 473;
    values.clear();
    for (const ValueTick& tick : ValueTicks(scale, 518 - 473, DisplayUnit::G))
        values.push_back(tick.value);
    EXPECT_EQ(values, (std::vector<double>{0, -5}));
}

TEST(ValueAxis, LabelsAccelerationInThreeUnits)
{
    EXPECT_EQ(AccelerationLabel(5.0, DisplayUnit::G), "5.0");
    EXPECT_EQ(AccelerationLabel(-0.5, DisplayUnit::G), "-0.5");
    EXPECT_EQ(AccelerationLabel(5.0, DisplayUnit::MetresPerSecond2), "49.0");
    EXPECT_EQ(AccelerationLabel(-0.2, DisplayUnit::MetresPerSecond2), "-2.0");
    EXPECT_EQ(AccelerationLabel(0.1, DisplayUnit::Gal), "98");
    EXPECT_EQ(AccelerationLabel(-50.0, DisplayUnit::Gal), "-49000");
    EXPECT_EQ(AccelerationLabel(0.0, DisplayUnit::Gal), "0");
}

TEST(ValueAxis, LabelsTemperatureFromMinusFiftyToFiftyDegrees)
{
    EXPECT_EQ(TemperatureLabel(0.0), "0.0");
    EXPECT_EQ(TemperatureLabel(25.0), "50.0");
    EXPECT_EQ(TemperatureLabel(-25.0), "-50.0");
    EXPECT_EQ(TemperatureLabel(25.1), "");
    EXPECT_EQ(TemperatureLabel(-25.1), "");
    EXPECT_EQ(TemperatureLabel(12.3), "24.6");
}

TEST(ValueAxis, LabelsOnlyWholePercents)
{
    EXPECT_EQ(HumidityLabel(0.0), "0");
    EXPECT_EQ(HumidityLabel(25.0), "100");
    EXPECT_EQ(HumidityLabel(25.1), "");
    EXPECT_EQ(HumidityLabel(-0.1), "");
    EXPECT_EQ(HumidityLabel(0.1), "");
    EXPECT_EQ(HumidityLabel(0.5), "2");
    EXPECT_EQ(HumidityLabel(33.3 / 4.0), "");
    EXPECT_EQ(HumidityLabel(5.0), "20");
}

TEST(ValueAxis, LabelsEveryTickOfWholePercentsAtTheCoarserSteps)
{
    // Percents from tick to tick, and how many ticks lie between two whole ones.
    const std::vector<std::pair<double, int>> steps{{20, 1}, {20, 1},  {20, 1},  {8, 1},  {4, 1},
                                                    {2, 1},  {0.8, 5}, {0.4, 5}, {0.4, 5}};
    for (int step = 0; step < CValueScale::StepCount; ++step) {
        const auto& [percents, whole] = steps[static_cast<std::size_t>(step)];
        const std::vector<ValueTick> ticks = ValueTicks(At(step), 50000, DisplayUnit::G);
        int i = 0;
        for (const ValueTick& tick : ticks) {
            if (tick.value < 0.0 || i * percents > 100.5) {
                EXPECT_EQ(tick.humidity, "") << tick.value;
                continue;
            }
            const bool isWhole = i % whole == 0;
            EXPECT_EQ(tick.humidity, isWhole ? std::to_string(std::lround(i * percents)) : "")
                << tick.value;
            ++i;
        }
    }
}

TEST(ValueAxis, LabelsEveryFifthTickWithAPercentAtTheFinestStep)
{
    CValueScale scale = At(8);
    scale.CentreOn(2.0, 600);
    int labels = 0;
    for (const ValueTick& tick : ValueTicks(scale, 600, DisplayUnit::G)) {
        EXPECT_FALSE(tick.temperature.empty());
        if (tick.humidity.empty())
            continue;
        ++labels;
        EXPECT_NEAR(tick.value * 4.0, std::stod(tick.humidity), 1e-9);
    }
    // 600 rows are 13 ticks, about 2.0: 1.5, 2.0 and 2.5.
    EXPECT_EQ(labels, 3);
}

} // namespace
} // namespace skeldon
