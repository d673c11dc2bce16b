#include "base/Clock.h"

#include <ctime>

#include <gtest/gtest.h>

namespace skeldon {
namespace {

TEST(SystemClock, SleepsAtLeastAsLongAsAsked)
{
    CSystemClock clock;
    const std::uint32_t before = clock.TickMs();
    clock.SleepMs(20);
    // The counter is cut to whole milliseconds on both sides.
    EXPECT_GE(clock.TickMs() - before, 19U);
}

TEST(SystemClock, TellsTheTimeOfThePc)
{
    CSystemClock clock;
    const std::time_t before = std::time(nullptr);
    const CalendarSeconds now = clock.Now();
    const CalendarSeconds direct = Now();
    const std::time_t after = std::time(nullptr);
    EXPECT_GE(now, before);
    EXPECT_LE(now, after);
    EXPECT_GE(direct, before);
    EXPECT_LE(direct, after);
}

} // namespace
} // namespace skeldon
