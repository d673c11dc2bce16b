#include "chart/model/Rounding.h"

#include <limits>

namespace skeldon {
namespace {

using Limits = std::numeric_limits<double>;

TEST(Rounding, RoundsNegativesTowardZeroAfterAddingAHalf)
{
    EXPECT_EQ(RoundPixel(0.49), 0);
    EXPECT_EQ(RoundPixel(0.5), 1);
    EXPECT_EQ(RoundPixel(1.5), 2);
    EXPECT_EQ(RoundPixel(-0.5), 0);
    EXPECT_EQ(RoundPixel(-1.0), 0);
    EXPECT_EQ(RoundPixel(-1.49), 0);
    EXPECT_EQ(RoundPixel(-1.5), -1);
    EXPECT_EQ(RoundPixel(-3.0), -2);
    EXPECT_EQ(RoundPixel64(-2.5), -2);
    EXPECT_EQ(RoundPixel64(-2.4), -1);
}

TEST(Rounding, HoldsWhatFitsNoIntegerAtALimit)
{
    EXPECT_EQ(Truncate(1e300), PixelLimit);
    EXPECT_EQ(Truncate(Limits::infinity()), PixelLimit);
    EXPECT_EQ(Truncate(-Limits::infinity()), -PixelLimit);
    EXPECT_EQ(Truncate(Limits::quiet_NaN()), 0);
    EXPECT_EQ(Truncate(PixelLimit - 1.5), PixelLimit - 2);
    EXPECT_EQ(Truncate64(-Limits::infinity()), -4'000'000'000'000'000'000);
    EXPECT_EQ(Truncate64(1e30), 4'000'000'000'000'000'000);
    EXPECT_EQ(Truncate64(Limits::quiet_NaN()), 0);
    EXPECT_EQ(Truncate64(5e12 + 0.5), 5'000'000'000'000);
}

TEST(Rounding, KnowsTheSixteenBitLimits)
{
    EXPECT_TRUE(FitsShort(-32768));
    EXPECT_TRUE(FitsShort(32767));
    EXPECT_FALSE(FitsShort(-32769));
    EXPECT_FALSE(FitsShort(32768));
}

} // namespace
} // namespace skeldon
