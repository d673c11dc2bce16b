#include "SimulatedSupport.h"

#include <algorithm>
#include <cstdlib>

namespace skeldon::test {

namespace {

int SignedByte(const std::string& line, std::size_t position)
{
    return static_cast<std::int8_t>(std::stoi(line.substr(position, 2), nullptr, 16));
}

std::vector<std::string> LinesOf(const RecorderState& state)
{
    return Lines(std::string(state.memory.Wire()));
}

RecorderState Filled(std::uint64_t seed, int type = 50, std::size_t count = 20000)
{
    RecorderState state;
    state.type = type;
    state.alpha = type != OldestType;
    state.seed = seed;
    FillMemory(state, {.count = count, .from = At("2025-01-13 07:00:00"), .step = 500});
    return state;
}

TEST(FillMemory, FollowsFromTheSeedAlone)
{
    EXPECT_EQ(Filled(7).memory.Wire(), Filled(7).memory.Wire());
    EXPECT_NE(Filled(7).memory.Wire(), Filled(8).memory.Wire());
}

TEST(FillMemory, SetsLinesApartByTheStep)
{
    RecorderState state;
    state.type = 10;
    FillMemory(state, {.count = 3, .from = At("2024-04-01 00:00:00"), .step = 150});
    const std::vector<std::string> lines = LinesOf(state);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].substr(0, 7) + lines[0].substr(16), "402000000");
    EXPECT_EQ(lines[1].substr(0, 7) + lines[1].substr(16), "402000132") << "1.50 s";
    EXPECT_EQ(lines[2].substr(0, 7) + lines[2].substr(16), "402000300") << "3.00 s";
}

TEST(FillMemory, HasAWarmDayAndAColdNight)
{
    int coldest = 1000;
    int warmest = -1000;
    for (const std::string& line : LinesOf(Filled(1))) {
        coldest = std::min(coldest, SignedByte(line, 14));
        warmest = std::max(warmest, SignedByte(line, 14));
    }
    EXPECT_LT(coldest, 0);
    EXPECT_GT(coldest, -20);
    EXPECT_GT(warmest, 18);
    EXPECT_LT(warmest, 40);
}

TEST(FillMemory, KeepsHumidityBetweenZeroAndAHundred)
{
    for (const std::string& line : LinesOf(Filled(1))) {
        EXPECT_GT(SignedByte(line, 18), 0);
        EXPECT_LT(SignedByte(line, 18), 100);
    }
}

TEST(FillMemory, HasAFewShocksAndIsStillElse)
{
    // A count of type 50 is half a G; at rest Z shows 1 G.
    int shocks = 0;
    bool wasShock = false;
    int largest = 0;
    for (const std::string& line : LinesOf(Filled(1))) {
        const int excess = std::max({std::abs(SignedByte(line, 8)), std::abs(SignedByte(line, 10)),
                                     std::abs(SignedByte(line, 12) - 2)});
        largest = std::max(largest, excess);
        const bool isShock = excess > 20;
        shocks += isShock && !wasShock ? 1 : 0;
        wasShock = isShock;
    }
    EXPECT_GE(shocks, 3);
    EXPECT_LE(shocks, 20);
    EXPECT_GT(largest, 40);
}

TEST(FillMemory, StaysWithinFullScaleForEveryMember)
{
    for (const int type : {0, 1, 2, 3, 5, 7, 10, 20, 50}) {
        for (const std::string& line : LinesOf(Filled(3, type, 10000))) {
            for (const std::size_t place : {8U, 10U, 12U})
                ASSERT_LE(std::abs(SignedByte(line, place)), 100) << type;
        }
    }
}

TEST(FillMemory, TakesTheIntervalThatComesNearestToTheStep)
{
    const auto interval = [](std::int64_t step, int type) {
        RecorderState state;
        state.type = type;
        FillMemory(state, {.count = 1, .from = 0, .step = step});
        return state.conditions.interval;
    };
    EXPECT_EQ(interval(500, 10), 'b');
    EXPECT_EQ(interval(180000, 10), '^');
    EXPECT_EQ(interval(1, 10), 'a');
    EXPECT_EQ(interval(6000, 10), 'A');
    EXPECT_EQ(interval(1, OldestType), 'A');
}

TEST(FillMemory, MakesRoomForAllLines)
{
    EXPECT_EQ(Filled(1, 50, 100).capacity, 32000U);
    EXPECT_EQ(Filled(1, 50, 40000).capacity, 40000U);
}

TEST(DefaultStep, SpreadsAnyNumberOfLinesOverOneDay)
{
    EXPECT_EQ(DefaultStep(0), 500);
    EXPECT_EQ(DefaultStep(1), 500);
    EXPECT_EQ(DefaultStep(20000), 500);
    EXPECT_EQ(DefaultStep(1000000), 10);
    EXPECT_EQ(DefaultStep(50000000), 1);
}

} // namespace

} // namespace skeldon::test
