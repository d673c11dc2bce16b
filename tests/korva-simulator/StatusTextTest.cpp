#include "SimulatedSupport.h"

#include "korva-simulator/StatusText.h"

namespace skeldon::test {

namespace {

std::string Report(const RecorderState& state)
{
    return StatusText(state, {});
}

TEST(StatusText, TellsTypeAndFirmwareOfEveryMember)
{
    struct Member
    {
        int type;
        bool alpha;
        const char* release;
    };
    for (const Member& member :
         {Member{1, false, "@korvaPL RLS="}, Member{2, true, "@korvaPL_A RLS="},
          Member{3, false, "@korvaPL RLS="}, Member{5, true, "@korvaPL_A RLS="},
          Member{10, false, "@korvaPL RLS="}, Member{20, true, "@korvaPL_A RLS="},
          Member{50, false, "@korvaQM RLS="}, Member{50, true, "@korvaQM_A RLS="},
          Member{7, false, "@korvaPL RLS="}}) {
        const std::string report = Report(StateWith(member.type, member.alpha, 0));
        EXPECT_EQ(ValueOf(report, "@Type="), std::to_string(member.type));
        EXPECT_FALSE(ValueOf(report, member.release).value_or("").empty()) << member.type;
    }
}

TEST(StatusText, OfTheOldestRecorderTellsNoType)
{
    const std::string report = Report(StateWith(OldestType, false, 0));
    EXPECT_FALSE(ValueOf(report, "@Type="));
    EXPECT_FALSE(ValueOf(report, "@wait="));
    EXPECT_FALSE(ValueOf(report, "@BZZ="));
    EXPECT_FALSE(ValueOf(report, "@detect="));
    EXPECT_EQ(ValueOf(report, "@Detect="), "0.0G");
}

TEST(StatusText, TellsCountAndLimit)
{
    RecorderState state = StateWith(10, false, 12);
    state.capacity = 500;
    EXPECT_EQ(ValueOf(Report(state), "@Count="), "12 500");
}

TEST(StatusText, CarriesTheConditionsInTheWiresOwnValues)
{
    RecorderState state = StateWith(50, true, 0);
    state.conditions = {.sampling = '9',
                        .interval = 'c',
                        .threshold = 98,
                        .warn = 1,
                        .hostNumber = 42,
                        .startOption = 90,
                        .hazard = 99,
                        .endless = true,
                        .buzzer = true};
    const std::string report = Report(state);
    EXPECT_EQ(ValueOf(report, "@Interval="), "9");
    EXPECT_EQ(ValueOf(report, "@Record="), "c");
    EXPECT_EQ(ValueOf(report, "@detect="), "9.8G") << "98 once G and point are taken away";
    EXPECT_EQ(ValueOf(report, "@Warn="), "1");
    EXPECT_EQ(ValueOf(report, "@My_ID="), "42");
    EXPECT_EQ(ValueOf(report, "@wait="), "90");
    EXPECT_EQ(ValueOf(report, "@ADJ h="), "99 0 1");
    EXPECT_EQ(ValueOf(report, "@BZZ="), "0") << "on is 0";
}

TEST(StatusText, KeepsHazardAndEndlessToAlphaFirmware)
{
    RecorderState state = StateWith(10, false, 0);
    state.conditions.hazard = 5;
    EXPECT_EQ(ValueOf(Report(state), "@ADJ h="), "130 131 129");
}

TEST(StatusText, LeavesTheBuzzerOutWhereThereIsNone)
{
    RecorderState state = StateWith(10, false, 0);
    EXPECT_EQ(ValueOf(Report(state), "@BZZ="), "1");
    state.hasBuzzerKey = false;
    EXPECT_FALSE(ValueOf(Report(state), "@BZZ="));
}

TEST(StatusText, CarriesTheDateOnWhichTheMemoryBegins)
{
    EXPECT_EQ(ValueOf(Report(StateWith(10, false, 3)), "@Year="), "2024/05/06 07:08:09");
}

TEST(StatusText, FitsIntoWhatAHostReadsOfAReply)
{
    RecorderState state = StateWith(50, true, 0);
    state.capacity = 50'000'000;
    CFaults faults;
    EXPECT_LT(StatusText(state, faults).size(), 511U);
    faults.Add(std::get<Fault>(ParseFault("keys-twice")));
    EXPECT_LT(StatusText(state, faults).size(), 511U);
}

} // namespace

} // namespace skeldon::test
