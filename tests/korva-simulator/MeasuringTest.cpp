#include "SimulatedSupport.h"

#include "korva-simulator/Measuring.h"

namespace skeldon::test {

namespace {

constexpr std::int64_t MsPerSecond = 1000;

/// A recorder that was told to begin with these conditions, still plugged in, its memory empty.
/// Its clock shows 2024-06-01 12:00:00 at 0.
RecorderState Started(const RecorderConditions& conditions)
{
    RecorderState state = StateWith(50, true, 0);
    state.conditions = conditions;
    state.phase = RecorderPhase::Started;
    return state;
}

std::vector<std::string> Times(const CSimulatedRecorder& recorder)
{
    std::vector<std::string> times;
    for (const std::string& line : Lines(std::string(recorder.State().memory.Wire()))) {
        const CalendarFields time = LineTime(line).value();
        times.push_back(std::to_string(time.hour) + ":" + std::to_string(time.minute) + ":" +
                        std::to_string(time.second));
    }
    return times;
}

using List = std::vector<std::string>;

TEST(Measuring, BeginsWhenTheCableIsPulledAndEndsWhenItIsPluggedIn)
{
    CSimulatedRecorder recorder(Started({.interval = 'c', .startOption = 0}));
    recorder.Advance(60 * MsPerSecond);
    EXPECT_EQ(recorder.State().memory.Count(), 0U);
    recorder.Unplug(100 * MsPerSecond);
    recorder.Plug(125 * MsPerSecond);
    EXPECT_EQ(Times(recorder), (List{"12:1:40", "12:1:50", "12:2:0"}));
    recorder.Unplug(200 * MsPerSecond);
    recorder.Plug(300 * MsPerSecond);
    EXPECT_EQ(recorder.State().memory.Count(), 3U) << "nobody started it anew";
}

TEST(Measuring, DoesNotBeginWithoutAStart)
{
    CSimulatedRecorder recorder(StateWith(50, true, 0));
    recorder.Unplug(0);
    recorder.Plug(100'000'000);
    EXPECT_EQ(recorder.State().memory.Count(), 0U);
}

TEST(Measuring, GoesOnBehindWhatTheMemoryHolds)
{
    CSimulatedRecorder recorder(StateWith(50, true, 4));
    (void)Ask(recorder, "w00t");
    recorder.Unplug(0);
    recorder.Plug(9 * MsPerSecond);
    EXPECT_EQ(recorder.State().memory.Count(), 6U);
    EXPECT_EQ(ValueOf(Ask(recorder, "p"), "@Year="), "2024/05/06 07:08:09");
}

TEST(Measuring, WaitsForItsDelay)
{
    CSimulatedRecorder recorder(Started({.interval = 'a', .startOption = 30}));
    recorder.Unplug(0);
    recorder.Plug(31 * MsPerSecond);
    EXPECT_EQ(Times(recorder), (List{"12:0:30", "12:0:31"}));
}

TEST(Measuring, OfTheOldestRecorderKnowsNoDelay)
{
    RecorderState state = StateWith(OldestType, false, 0);
    state.conditions.interval = 'A';
    CSimulatedRecorder recorder(state);
    (void)Ask(recorder, "t");
    recorder.Unplug(0);
    recorder.Plug(60 * MsPerSecond);
    EXPECT_EQ(Times(recorder), (List{"12:0:0", "12:1:0"}));
}

TEST(Measuring, BeginsAtItsReservation)
{
    CSimulatedRecorder recorder(Started({.interval = 'f', .startOption = 5}));
    EXPECT_NE(Ask(recorder, "l06/01 12:30"), "");
    recorder.Unplug(0);
    recorder.Plug(31 * 60 * MsPerSecond);
    EXPECT_EQ(Times(recorder), (List{"12:30:0", "12:30:30", "12:31:0"}));
    EXPECT_EQ(ValueOf(Ask(recorder, "p"), "@Year="), "2024/06/01 12:30:00");
}

TEST(Measuring, TakesAReservationThatIsOverForTheNextYear)
{
    CSimulatedRecorder recorder(Started({}));
    (void)Ask(recorder, "l05/31 12:30");
    EXPECT_EQ(recorder.State().reservation, At("2025-05-31 12:30:00"));
    (void)Ask(recorder, "l06/01 12:00");
    EXPECT_EQ(recorder.State().reservation, At("2024-06-01 12:00:00")) << "the present minute";
}

TEST(Measuring, BeginsAtTheMagnet)
{
    CSimulatedRecorder recorder(Started({.interval = 'a', .startOption = 1}));
    recorder.MoveMagnet(true, 0);
    recorder.Unplug(0);
    recorder.MoveMagnet(true, 10 * MsPerSecond);
    recorder.MoveMagnet(false, 11 * MsPerSecond);
    recorder.MoveMagnet(true, 12 * MsPerSecond);
    recorder.Plug(13 * MsPerSecond);
    EXPECT_EQ(Times(recorder), (List{"12:0:10", "12:0:11", "12:0:12", "12:0:13"}));
}

TEST(Measuring, StopsAtTheSecondMagnet)
{
    CSimulatedRecorder recorder(Started({.interval = 'a', .startOption = 2}));
    recorder.Unplug(0);
    for (const auto& [isNear, second] :
         {std::pair(true, 10), {false, 11}, {true, 12}, {false, 13}, {true, 14}})
        recorder.MoveMagnet(isNear, second * MsPerSecond);
    recorder.Plug(20 * MsPerSecond);
    EXPECT_EQ(Times(recorder), (List{"12:0:10", "12:0:11", "12:0:12"}));
}

TEST(Measuring, PausesWhileTheMagnetIsNear)
{
    CSimulatedRecorder recorder(Started({.interval = 'a', .startOption = 3}));
    recorder.Unplug(0);
    for (const auto& [isNear, second] : {std::pair(true, 10), {false, 11}, {true, 12}, {false, 15}})
        recorder.MoveMagnet(isNear, second * MsPerSecond);
    recorder.Plug(16 * MsPerSecond);
    EXPECT_EQ(Times(recorder), (List{"12:0:10", "12:0:11", "12:0:12", "12:0:15", "12:0:16"}));
}

TEST(Measuring, RunsOnlyWhileTheMagnetIsNear)
{
    CSimulatedRecorder recorder(Started({.interval = 'a', .startOption = 4}));
    recorder.Unplug(0);
    for (const auto& [isNear, second] : {std::pair(true, 10), {false, 11}, {true, 15}, {false, 16}})
        recorder.MoveMagnet(isNear, second * MsPerSecond);
    recorder.Plug(20 * MsPerSecond);
    EXPECT_EQ(Times(recorder), (List{"12:0:10", "12:0:11", "12:0:15", "12:0:16"}));
}

TEST(Measuring, StopsWhenTheMemoryIsFull)
{
    RecorderState state = Started({.interval = 'a', .startOption = 0});
    state.capacity = 3;
    CSimulatedRecorder recorder(state);
    recorder.Unplug(0);
    recorder.Plug(1000 * MsPerSecond);
    EXPECT_EQ(Times(recorder), (List{"12:0:0", "12:0:1", "12:0:2"}));
}

TEST(Measuring, LosesTheOldestLinesWhereItIsEndless)
{
    RecorderState state = Started({.interval = 'a', .startOption = 0, .endless = true});
    state.capacity = 3;
    CSimulatedRecorder recorder(state);
    recorder.Unplug(0);
    recorder.Plug(1000 * MsPerSecond);
    EXPECT_EQ(Times(recorder), (List{"12:16:38", "12:16:39", "12:16:40"}));
}

TEST(Measuring, TakesNoLongerForAHundredYears)
{
    RecorderState state = Started({.interval = 'a', .startOption = 0, .endless = true});
    state.capacity = 100;
    CSimulatedRecorder recorder(state);
    recorder.Unplug(0);
    recorder.Plug(100LL * 365 * SecondsPerDay * MsPerSecond);
    EXPECT_EQ(recorder.State().memory.Count(), 100U);
}

TEST(Measuring, NotesDownWhatExceedsTheThresholdBesideTheIntervals)
{
    // At an interval of a second there is a knock in every 2500 lines.
    RecorderState state = Started({.interval = 'a', .threshold = 20, .startOption = 0});
    CSimulatedRecorder with(state);
    state.conditions.threshold = 0;
    CSimulatedRecorder without(state);
    for (CSimulatedRecorder* const recorder : {&with, &without}) {
        recorder->Unplug(0);
        recorder->Plug(10'000 * MsPerSecond);
    }
    EXPECT_EQ(without.State().memory.Count(), 10'001U);
    EXPECT_GT(with.State().memory.Count(), 10'003U);
    EXPECT_LT(with.State().memory.Count(), 10'050U);
    std::int64_t previous = 0;
    for (const std::string& line : Lines(std::string(with.State().memory.Wire()))) {
        const CalendarFields time = LineTime(line).value();
        const int hundredths = std::stoi(line.substr(16, 2), nullptr, 16);
        const std::int64_t now =
            (time.hour * 3600 + time.minute * 60 + time.second) * 100LL + hundredths;
        ASSERT_GE(now, previous);
        previous = now;
    }
}

TEST(Measuring, IsTheSameHoweverOftenItIsLookedAt)
{
    RecorderState state = Started({.interval = 'b', .threshold = 10, .startOption = 0});
    CSimulatedRecorder once(state);
    once.Unplug(0);
    once.Plug(20'000 * MsPerSecond);
    RecorderState looked = state;
    BeginAlone(looked, looked.clock);
    for (RecorderSeconds second = 0; second <= 20'000; second += 13)
        NoteDown(looked, state.clock + second);
    EndAlone(looked, state.clock + 20'000);
    EXPECT_EQ(looked.memory.Wire(), once.State().memory.Wire());
}

TEST(Measuring, GoesOnFromAStateThatWasKeptMeanwhile)
{
    RecorderState state = Started({.interval = 'a', .startOption = 0});
    CSimulatedRecorder whole(state);
    whole.Unplug(0);
    whole.Plug(10 * MsPerSecond);
    CSimulatedRecorder first(state);
    first.Unplug(0);
    CSimulatedRecorder second(first.StateAt(4 * MsPerSecond));
    second.Plug(6 * MsPerSecond);
    EXPECT_EQ(second.State().memory.Wire(), whole.State().memory.Wire());
}

} // namespace

} // namespace skeldon::test
