#include "chart/model/FieldValues.h"

#include "chart/model/LineWalk.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace skeldon {
namespace {

constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

CMeasureRecord Line(double x, double y, double z, double temperature, double humidity,
                    double resultant)
{
    CMeasureRecord line(CalendarSeconds{0});
    line.SetValues(0, 0, x, y, z, temperature, humidity);
    line.m_resultant = resultant;
    return line;
}

TEST(FieldValues, StandWhereTheirSeriesSays)
{
    const CMeasureRecord line = Line(1.0, -2.0, 3.0, 40.0, 50.0, 6.0);
    const CSixValues values = FieldValues(line);
    for (const Series series : AllSeries) {
        EXPECT_EQ(values[FieldOf(series)], RecordValue(line, series));
        EXPECT_EQ(FieldFactors()[FieldOf(series)], Info(series).factor);
    }
}

TEST(FieldValues, DrawWhatIsNoNumberAtZero)
{
    const CSixValues values = DrawableFields(Line(NoNumber, 2.0, 3.0, NoNumber, Infinity, -1.0));
    EXPECT_EQ(values[0], 0.0);
    EXPECT_EQ(values[1], 2.0);
    EXPECT_EQ(values[3], 0.0);
    EXPECT_EQ(values[4], Infinity);
    EXPECT_EQ(values[5], -1.0);
}

TEST(FieldValues, KnowWhetherAllAreNumbers)
{
    EXPECT_TRUE(FieldValues(Line(1.0, 2.0, 3.0, 4.0, Infinity, -Infinity)).AreNumbers());
    for (int i = 0; i < 6; ++i) {
        const auto at = [i](int place) { return place == i ? NoNumber : 1.0; };
        EXPECT_FALSE(FieldValues(Line(at(0), at(1), at(2), at(3), at(4), at(5))).AreNumbers()) << i;
    }
}

TEST(FieldValues, LieOnTheRowsOfTheirAxisValues)
{
    std::mt19937 random(11);
    std::uniform_real_distribution<double> value(-70.0, 70.0);
    for (int step = 0; step < CValueScale::StepCount; ++step) {
        WalkView view;
        view.scale.SetStep(step, 12);
        view.scale.m_scrollY = 37 * step;
        for (int i = 0; i < 300; ++i) {
            const double far = i % 50 == 0 ? 1e12 : i % 51 == 0 ? -Infinity : 1.0;
            const CMeasureRecord line = Line(value(random) * far, value(random), -0.5 / 3.0,
                                             value(random), value(random), value(random));
            const auto rows = view.Rows(DrawableFields(line));
            for (const Series series : AllSeries)
                ASSERT_EQ(rows[FieldOf(series)], view.Row(AxisValue(line, series)))
                    << "step " << step << " line " << i;
        }
    }
}

} // namespace
} // namespace skeldon
