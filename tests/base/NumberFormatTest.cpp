#include "base/NumberFormat.h"

#include <bit>
#include <cstdio>
#include <limits>
#include <random>

#include <gtest/gtest.h>

namespace skeldon {
namespace {

template <int Decimals>
std::string Fixed(double value)
{
    char buffer[FixedTextLimit];
    return {buffer, WriteFixed<Decimals>(buffer, value)};
}

std::string Printed(int decimals, double value)
{
    char buffer[FixedTextLimit];
    const int length = std::snprintf(buffer, sizeof buffer, "%.*f", decimals, value);
    return {buffer, static_cast<std::size_t>(length)};
}

void ExpectAsPrintf(double value)
{
    EXPECT_EQ(Fixed<1>(value), Printed(1, value));
    EXPECT_EQ(Fixed<2>(value), Printed(2, value));
    EXPECT_EQ(Fixed<3>(value), Printed(3, value));
    EXPECT_EQ(Fixed<4>(value), Printed(4, value));
}

TEST(WriteFixed, GivesThePrintfTextOfSpecialValues)
{
    using Limits = std::numeric_limits<double>;
    for (const double value : {0.0,
                               -0.0,
                               0.0005,
                               -0.0004,
                               0.5,
                               1.5,
                               2.5,
                               0.125,
                               0.375,
                               0.0625,
                               9.9995,
                               99.9995,
                               1e9,
                               1e8,
                               999999.9995,
                               1e15,
                               1e22,
                               1e300,
                               Limits::max(),
                               Limits::min(),
                               Limits::denorm_min(),
                               Limits::infinity(),
                               -Limits::infinity(),
                               Limits::quiet_NaN(),
                               -Limits::quiet_NaN()}) {
        SCOPED_TRACE(value);
        ExpectAsPrintf(value);
    }
}

TEST(WriteFixed, RoundsTiesOfTheExactBinaryValueAsPrintf)
{
    for (int i = -4000; i <= 4000; ++i) {
        ExpectAsPrintf(i * 0.0625);
        ExpectAsPrintf(i * 0.0005);
        ExpectAsPrintf(i * 0.05);
    }
}

TEST(WriteFixed, GivesThePrintfTextOfRandomValues)
{
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> axis(-700.0, 700.0);
    std::uniform_int_distribution<std::uint64_t> bits;
    for (int i = 0; i < 100000; ++i) {
        ExpectAsPrintf(axis(random));
        ExpectAsPrintf(std::bit_cast<double>(bits(random)));
    }
}

TEST(FixedText, GivesThePrintfTextOfAnyNumberOfDecimals)
{
    EXPECT_EQ(FixedText(2.5, 0), "2");
    EXPECT_EQ(FixedText(-0.25, 1), "-0.2");
    EXPECT_EQ(FixedText(1.005, 2), "1.00");
    EXPECT_EQ(FixedText(-0.0, 1), "-0.0");
    EXPECT_EQ(FixedText(std::numeric_limits<double>::max(), 6).size(), std::size_t{316});
}

TEST(WriteInt, WritesEveryLengthAndSign)
{
    char buffer[24];
    for (const std::int64_t value :
         {std::int64_t{0}, std::int64_t{7}, std::int64_t{10}, std::int64_t{99}, std::int64_t{100},
          std::int64_t{65535}, std::int64_t{-1}, std::int64_t{-490},
          std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min()}) {
        EXPECT_EQ(std::string(buffer, WriteInt(buffer, value)), std::to_string(value));
    }
}

TEST(WriteZeroPadded, PadsShortNumbersAndKeepsLongOnes)
{
    char buffer[24];
    EXPECT_EQ(std::string(buffer, WriteZeroPadded(buffer, 7, 3)), "007");
    EXPECT_EQ(std::string(buffer, WriteZeroPadded(buffer, 4294967286U, 3)), "4294967286");
}

} // namespace
} // namespace skeldon
