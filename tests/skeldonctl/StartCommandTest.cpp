#include "ToolOnRecorder.h"

#include <gtest/gtest.h>
#include <regex>
#include <sstream>

namespace skeldon::test {

namespace {

/// What the host sent, by the simulator's trace, with the time in a clock command left out.
std::string SentCommands(const std::string& trace)
{
    std::string sent;
    std::istringstream lines(trace);
    // Seconds, direction, bytes in hexadecimal, and the bytes as text between bars.
    const std::regex fromHost(R"(^ *[0-9.]+ > ([0-9A-F ]+?) *\|.*$)", std::regex::icase);
    for (std::string line; std::getline(lines, line);) {
        std::smatch match;
        if (!std::regex_match(line, match, fromHost))
            continue;
        std::istringstream bytes(match[1].str());
        for (std::string byte; bytes >> byte;)
            sent += static_cast<char>(std::stoi(byte, nullptr, 16));
    }
    const std::regex clock(R"(s\d{4} \d\d/\d\d \d\d:\d\d:\d\d)");
    return std::regex_replace(sent, clock, "(clock)");
}

class StartCommandTest : public ToolOnRecorder
{
protected:
    std::unique_ptr<CBackgroundProgram> TracedSimulator(std::vector<std::string> options)
    {
        options.insert(options.end(), {"--trace", m_trace});
        return Simulator(options);
    }
    /// Up to the last command: the connection's own come first.
    std::string Sent() { return SentCommands(ReadText(m_trace)); }

    std::string m_trace = m_folder.Path("trace").string();
};

TEST_F(StartCommandTest, StartGivesTheRecorderTheConditions)
{
    const auto simulator = Simulator({"--type", "qm70", "--alpha"});
    const std::string profile =
        WriteProfile("SerialNo=7\r\nSampling=1\r\nInterval=12\r\nThreshold=25\r\nStartOpt=30\r\n"
                     "OverThreshold=yes\r\nHazard=100\r\nEndless=yes\r\nBuzzer=yes\r\n");
    const Outcome outcome = OnPort({"start", profile});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_NE(outcome.err.find("Disconnect KORVA cable."), std::string::npos);
    const nlohmann::json json = JsonOf(OnPort({"status", "--json"}));
    EXPECT_EQ(json.value("hostNumber", 0), 7);
    EXPECT_EQ(json.value("sampling", 0), 3);
    EXPECT_EQ(json.value("interval", 0), 13);
    EXPECT_EQ(json.value("threshold", 0), 25);
    EXPECT_EQ(json.value("wait", 0), 30);
    EXPECT_EQ(json.value("warn", false), true);
    EXPECT_EQ(json.value("hazard", 0), 100);
    EXPECT_EQ(json.value("endless", false), true);
    EXPECT_EQ(json.value("buzzer", false), true);
}

TEST_F(StartCommandTest, StartFailsOnTheFirstConditionThatDoesNotFitAndSaysWhatWould)
{
    const auto simulator = Simulator({"--type", "pl20", "--alpha"});
    const std::string profile = WriteProfile("Sampling=20\r\nThreshold=200\r\n");
    const nlohmann::json before = JsonOf(OnPort({"status", "--json"}));
    const Outcome outcome = OnPort({"start", profile});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("sampling rate"), std::string::npos);
    EXPECT_NE(outcome.err.find("0.0312sec"), std::string::npos);
    EXPECT_EQ(outcome.err.find("threshold"), std::string::npos);
    EXPECT_EQ(JsonOf(OnPort({"status", "--json"})), before);
}

TEST_F(StartCommandTest, StartWithFitTakesTheOfferedValuesAndSaysSo)
{
    const auto simulator = Simulator({"--type", "pl20", "--alpha"});
    const std::string profile = WriteProfile("Sampling=20\r\nThreshold=200\r\nHazard=70\r\n");
    const Outcome outcome = OnPort({"start", profile, "--fit"});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_NE(outcome.err.find("Taking 0.0312sec"), std::string::npos);
    EXPECT_NE(outcome.err.find("Taking 0.0G"), std::string::npos);
    const nlohmann::json json = JsonOf(OnPort({"status", "--json"}));
    EXPECT_EQ(json.value("sampling", 0), 4);
    EXPECT_EQ(json.value("threshold", -1), 0);
    EXPECT_EQ(json.value("hazard", 0), 70);
}

TEST_F(StartCommandTest, StartKeepsTheDataUnlessItIsToBeCleared)
{
    const auto simulator = Simulator({"--type", "pl20", "--lines", "40"});
    const std::string profile = WriteProfile("Interval=3\r\n");
    EXPECT_EQ(OnPort({"start", profile}).status, 0);
    EXPECT_EQ(JsonOf(OnPort({"status", "--json"})).value("count", -1), 40);
    EXPECT_EQ(OnPort({"start", profile, "--clear"}).status, 0);
    EXPECT_EQ(JsonOf(OnPort({"status", "--json"})).value("count", -1), 0);
}

TEST_F(StartCommandTest, AReservationOverDataNeedsToClearIt)
{
    const auto simulator = Simulator({"--type", "pl20", "--lines", "40"});
    const std::string profile = WriteProfile("Interval=3\r\n");
    const Outcome refused = OnPort({"start", profile, "--at", "2099-12-31 23:59"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.err.find("--clear"), std::string::npos);
    EXPECT_EQ(OnPort({"start", profile, "--at", "2099-12-31 23:59", "--clear"}).status, 0);
    EXPECT_EQ(JsonOf(OnPort({"status", "--json"})).value("count", -1), 0);
}

TEST_F(StartCommandTest, AReservationInThePastIsRefused)
{
    const auto simulator = Simulator({"--type", "pl20"});
    const Outcome outcome =
        OnPort({"start", WriteProfile("Interval=3\r\n"), "--at", "2001-01-01 00:00"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("Reservation date should be in the future."), std::string::npos);
}

TEST_F(StartCommandTest, AProfileThatCanNotBeReadIsAFailure)
{
    const std::string nothing = m_folder.Path("nothing.skp").string();
    const Outcome outcome = OnPort({"start", nothing});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find(nothing), std::string::npos);
}

TEST_F(StartCommandTest, AnEmptyRecorderGetsItsClockSet)
{
    const auto simulator = TracedSimulator({"--type", "pl20"});
    EXPECT_EQ(OnPort({"start", WriteProfile("SerialNo=7\r\nSampling=1\r\n")}).status, 0);
    EXPECT_EQ(Sent(), "mpmi3j^d00k0N07w05z1m(clock)t");
}

TEST_F(StartCommandTest, ARecorderWithLessThanNoLinesGetsItsClockSet)
{
    const auto simulator =
        TracedSimulator({"--type", "pl20", "--lines", "40", "--fault", "count=4294967295"});
    EXPECT_EQ(OnPort({"start", WriteProfile("SerialNo=7\r\nSampling=1\r\n")}).status, 0);
    EXPECT_EQ(Sent(), "mpmi3j^d00k0N07w05z1m(clock)t");
}

TEST_F(StartCommandTest, ARecorderThatTellsNoLimitIsNeverFull)
{
    const auto simulator = TracedSimulator(
        {"--type", "pl20", "--lines", "40", "--no-buzzer", "--fault", "count=40 0"});
    EXPECT_EQ(JsonOf(OnPort({"status", "--json"})).value("countLimit", -1), 0);
    EXPECT_EQ(OnPort({"start", WriteProfile("Sampling=1\r\n")}).status, 0);
    EXPECT_EQ(Sent(), "mpmpmi3j^d00k0N00w05mt");
}

TEST_F(StartCommandTest, ARecorderWhoseDataIsKeptKeepsItsClock)
{
    const auto simulator = TracedSimulator({"--type", "pl20", "--lines", "40", "--no-buzzer"});
    EXPECT_EQ(OnPort({"start", WriteProfile("Sampling=1\r\n")}).status, 0);
    EXPECT_EQ(Sent(), "mpmi3j^d00k0N00w05mt");
}

TEST_F(StartCommandTest, AReservationComesBehindTheStart)
{
    const auto simulator = TracedSimulator({"--type", "qm70", "--alpha"});
    const std::string profile = WriteProfile("Hazard=100\r\nEndless=yes\r\nBuzzer=yes\r\n");
    EXPECT_EQ(OnPort({"start", profile, "--at", "2099-12-31 23:59"}).status, 0);
    EXPECT_EQ(Sent(), "mpmi6j^d00k0N00w05Ox20Oz01z0m(clock)tml12/31 23:59");
}

TEST_F(StartCommandTest, TheOldestRecorderGetsNoStartOption)
{
    const auto simulator = TracedSimulator({"--type", "oldest", "--lines", "4"});
    EXPECT_EQ(OnPort({"start", WriteProfile("Sampling=20\r\nStartOpt=30\r\n")}).status, 0);
    EXPECT_EQ(Sent(), "mpmi0j^d00k0N00mt");
}

TEST_F(StartCommandTest, AFullRecorderMustBeCleared)
{
    const auto simulator = TracedSimulator({"--type", "pl20", "--lines", "40", "--capacity", "40"});
    const std::string profile = WriteProfile("Interval=3\r\n");
    const Outcome refused = OnPort({"start", profile});
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.err.find("--clear"), std::string::npos);
    EXPECT_EQ(Sent(), "mp");
    EXPECT_EQ(OnPort({"start", profile, "--clear"}).status, 0);
}

TEST_F(StartCommandTest, WarningsDoNotStopTheStart)
{
    const auto simulator = TracedSimulator({"--type", "pl20", "--lines", "4", "--no-buzzer"});
    const std::string profile =
        WriteProfile("Sampling=1\r\nHazard=50\r\nEndless=yes\r\nBuzzer=yes\r\n");
    const Outcome outcome = OnPort({"start", profile});
    EXPECT_EQ(outcome.status, 0);
    for (const char* part : {"hazard", "Endless mode", "buzzer"})
        EXPECT_NE(outcome.err.find(part), std::string::npos) << part;
    EXPECT_EQ(Sent(), "mpmi3j^d00k0N00w05mt");
}

TEST_F(StartCommandTest, ACommandWithoutReplyEndsTheStart)
{
    const auto simulator = TracedSimulator({"--type", "pl20", "--fault", "silence=d"});
    const Outcome outcome = OnPort({"start", WriteProfile("Sampling=1\r\n")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("Could not start measuring."), std::string::npos);
    EXPECT_EQ(Sent(), "mpmi3j^d00");
}

} // namespace

} // namespace skeldon::test
