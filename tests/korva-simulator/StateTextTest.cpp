#include "SimulatedSupport.h"

#include "korva-simulator/StateText.h"

namespace skeldon::test {

namespace {

constexpr CalendarSeconds SavedAt = 1'700'000'000;

RecorderState Everything()
{
    RecorderState state = StateWith(20, true, 3);
    state.hasBuzzerKey = false;
    state.seed = 0xFFFF'FFFF'FFFF'FFFFULL;
    state.capacity = 77;
    state.conditions = {.sampling = '9',
                        .interval = 'e',
                        .threshold = 98,
                        .warn = 1,
                        .hostNumber = 42,
                        .startOption = 3,
                        .hazard = 97,
                        .endless = true,
                        .buzzer = true};
    state.phase = RecorderPhase::Measuring;
    state.reservation = At("2024-12-31 23:59:00");
    state.runningSince = At("2025-01-01 00:00:01");
    state.noted = 12;
    state.magnetSeen = true;
    state.over = true;
    return state;
}

std::string Reason(const std::string& text)
{
    const auto result = ParseStateText(text, SavedAt);
    const auto* const reason = std::get_if<std::string>(&result);
    return reason ? *reason : "";
}

TEST(StateText, KeepsEverything)
{
    const std::string text = StateText(Everything(), SavedAt);
    const RecorderState state = std::get<RecorderState>(ParseStateText(text, SavedAt));
    EXPECT_EQ(StateText(state, SavedAt), text);
    EXPECT_EQ(state.memory.Wire(), Everything().memory.Wire());
    EXPECT_EQ(state.type, 20);
    EXPECT_TRUE(state.alpha);
    EXPECT_FALSE(state.hasBuzzerKey);
    EXPECT_EQ(state.seed, 0xFFFF'FFFF'FFFF'FFFFULL);
    EXPECT_EQ(state.capacity, 77U);
    EXPECT_EQ(state.conditions.sampling, '9');
    EXPECT_EQ(state.conditions.threshold, 98);
    EXPECT_EQ(state.conditions.hazard, 97);
    EXPECT_EQ(state.conditions.hostNumber, 42);
    EXPECT_TRUE(state.conditions.endless);
    EXPECT_TRUE(state.conditions.buzzer);
    EXPECT_EQ(state.phase, RecorderPhase::Measuring);
    EXPECT_EQ(state.reservation, At("2024-12-31 23:59:00"));
    EXPECT_EQ(state.runningSince, At("2025-01-01 00:00:01"));
    EXPECT_EQ(state.noted, 12);
    EXPECT_EQ(state.begun, At("2024-05-06 07:08:09"));
    EXPECT_TRUE(state.magnetSeen && state.over);
}

TEST(StateText, LetsTheClockGoOnWhileNobodyPlaysTheRecorder)
{
    const std::string text = StateText(Everything(), SavedAt);
    EXPECT_EQ(std::get<RecorderState>(ParseStateText(text, SavedAt + 3600)).clock,
              At("2024-06-01 13:00:00"));
    EXPECT_EQ(std::get<RecorderState>(ParseStateText(text, SavedAt - 5)).clock,
              At("2024-06-01 12:00:00"))
        << "a PC's clock that was put back";
}

TEST(ParseStateText, SaysWhyATextIsNoState)
{
    const std::string text = StateText(Everything(), SavedAt);
    EXPECT_EQ(Reason(text), "");
    EXPECT_EQ(Reason(""), "is no state of a recorder");
    EXPECT_EQ(Reason("[Profile]\r\nCode=1\r\n"), "is no state of a recorder");
    EXPECT_EQ(Reason(text.substr(0, text.find("lines "))), "ends before the recorder's lines");
    EXPECT_EQ(Reason(text.substr(0, text.size() - 21)),
              "has another number of record lines than it says");
    for (const auto& [from, to] : {std::pair("type 20", "type x"),
                                   {"alpha 1", "alpha 2"},
                                   {"sampling 9", "sampling 99"},
                                   {"clock 2024", "clock 20x4"},
                                   {"phase measuring", "phase dreaming"},
                                   {"threshold 98", "threshold -1"},
                                   {"hazard 97", "hazard 100"},
                                   {"endless 1", "endless"},
                                   {"seed ", "sead "},
                                   {"capacity 77", "capacity 999999999999"},
                                   {"lines 3", "lines 4000000000"}}) {
        std::string spoilt = text;
        spoilt.replace(spoilt.find(from), std::string(from).size(), to);
        EXPECT_NE(Reason(spoilt).find(" is not understood"), std::string::npos) << to;
    }
    std::string spoilt = text;
    spoilt.insert(spoilt.find("alpha"), "\n");
    EXPECT_EQ(Reason(spoilt), "line 3 is not understood");
}

TEST(TakeRecordLines, TakesAnyTextForALine)
{
    CRecordMemory memory;
    TakeRecordLines(memory, "40200000000000000000\r\n\n  ff\t\n###\nlast");
    EXPECT_EQ(memory.Wire(), "40200000000000000000\r\nff\r\n###\r\nlast\r\n");
    EXPECT_EQ(memory.Count(), 4U);
}

TEST(BeginningOf, IsTheTimeOfTheFirstLine)
{
    CRecordMemory memory;
    EXPECT_FALSE(BeginningOf(memory, 2024));
    memory.Append("C3F7EFB51122334455");
    EXPECT_EQ(BeginningOf(memory, 2024), At("2024-12-31 23:59:59"));
    memory.Clear();
    memory.Append("zz");
    EXPECT_FALSE(BeginningOf(memory, 2024));
}

} // namespace

} // namespace skeldon::test
