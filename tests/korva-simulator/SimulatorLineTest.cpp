#include "SimulatedSupport.h"

#include "base/Version.h"
#include "korva-simulator/CommandLine.h"
#include "korva-simulator/WirePacer.h"

namespace skeldon::test {

namespace {

SimulatorOptions Parsed(const std::vector<std::string>& arguments)
{
    auto result = ParseSimulatorLine(arguments);
    const auto* const end = std::get_if<EarlyEnd>(&result);
    EXPECT_EQ(end, nullptr) << end->text;
    return end ? SimulatorOptions{} : std::get<SimulatorOptions>(std::move(result));
}

EarlyEnd Ended(const std::vector<std::string>& arguments)
{
    const auto result = ParseSimulatorLine(arguments);
    const auto* const end = std::get_if<EarlyEnd>(&result);
    return end ? *end : EarlyEnd{-1, "goes on"};
}

TEST(SimulatorLine, WithoutOptionsPlaysAnEmptyQm70)
{
    const SimulatorOptions options = Parsed({});
    EXPECT_EQ(options.recorder.type, 50);
    EXPECT_FALSE(options.recorder.alpha);
    EXPECT_EQ(options.lines.count, 0U);
    EXPECT_EQ(options.bytesPerSecond, 0);
    EXPECT_EQ(options.timeScale, 1.0);
    EXPECT_FALSE(options.unplugged);
}

TEST(SimulatorLine, NamesMembersByWordOrNumber)
{
    for (const auto& [text, type] : {std::pair("oldest", 0),
                                     {"pl04", 1},
                                     {"PL20", 10},
                                     {"qm70", 50},
                                     {"0", 0},
                                     {"3", 3},
                                     {"20", 20},
                                     {"7", 7}})
        EXPECT_EQ(Parsed({"--type", text}).recorder.type, type);
    EXPECT_EQ(Ended({"--type", "qm71"}).text, "--type: \"qm71\" is no recorder type\n");
    EXPECT_EQ(Ended({"--type", "-2"}).status, 2);
}

TEST(SimulatorLine, GivesEveryMemberButTheOldestABuzzer)
{
    EXPECT_TRUE(Parsed({"--type", "pl20"}).recorder.hasBuzzerKey);
    EXPECT_FALSE(Parsed({"--type", "pl20", "--no-buzzer"}).recorder.hasBuzzerKey);
    EXPECT_FALSE(Parsed({"--type", "oldest"}).recorder.hasBuzzerKey);
}

TEST(SimulatorLine, ReadsTheMemorysShape)
{
    const SimulatorOptions options =
        Parsed({"--alpha", "--lines", "20000", "--seed", "9", "--from", "2024-12-31 23:00",
                "--step", "0.25", "--capacity", "50000", "--clock", "2025-02-03 04:05:06"});
    EXPECT_TRUE(options.recorder.alpha);
    EXPECT_EQ(options.lines.count, 20000U);
    EXPECT_EQ(options.recorder.seed, 9U);
    EXPECT_EQ(options.lines.from, At("2024-12-31 23:00:00"));
    EXPECT_TRUE(options.fromGiven);
    EXPECT_EQ(options.lines.step, 25);
    EXPECT_EQ(options.recorder.capacity, 50000U);
    EXPECT_EQ(options.recorder.clock, At("2025-02-03 04:05:06"));
    EXPECT_EQ(Parsed({"--lines", "1000000"}).lines.step, 10);
}

TEST(SimulatorLine, ReadsRates)
{
    EXPECT_EQ(Parsed({"--rate", "full"}).bytesPerSecond, 0);
    EXPECT_EQ(Parsed({"--rate", "real"}).bytesPerSecond, 13107);
    EXPECT_EQ(Parsed({"--rate", "115200"}).bytesPerSecond, 115200);
    for (const char* const rate : {"0", "-1", "fast", "1e3", "", "9999999999"})
        EXPECT_EQ(Ended({"--rate", rate}).status, 2) << rate;
}

TEST(SimulatorLine, CollectsFaults)
{
    const SimulatorOptions options =
        Parsed({"--fault", "no-mark", "--fault", "short-line=2:6", "--link", "port"});
    ASSERT_EQ(options.faults.size(), 2U);
    EXPECT_EQ(options.faults[1].kind, FaultKind::ShortLine);
    EXPECT_EQ(options.link, "port");
    EXPECT_EQ(Ended({"--fault", "fire"}).text, "--fault: \"fire\" is no fault\n");
    EXPECT_EQ(Ended({"--fault", "fire"}).status, 2);
}

TEST(SimulatorLine, RefusesWhatItCanNotRead)
{
    for (const std::vector<std::string>& arguments :
         std::vector<std::vector<std::string>>{{"--lines", "many"},
                                               {"--lines", "-1"},
                                               {"--lines", "50000001"},
                                               {"--from", "yesterday"},
                                               {"--step", "0"},
                                               {"--step", "nan"},
                                               {"--step", "1e9"},
                                               {"--clock", "noon"},
                                               {"--time-scale", "0"},
                                               {"--time-scale", "nan"},
                                               {"--seed", "x"},
                                               {"--lines", "5", "--records", "file"},
                                               {"--nothing"},
                                               {"stray"},
                                               {"--link"}})
        EXPECT_EQ(Ended(arguments).status, 2) << arguments.back();
}

TEST(SimulatorLine, TellsItsVersionAndEveryFault)
{
    const EarlyEnd version = Ended({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.text, std::string("korva-simulator ") + ProgramVersion + "\n");
    const EarlyEnd help = Ended({"--help"});
    EXPECT_EQ(help.status, 0);
    for (const FaultForm& form : FaultForms())
        EXPECT_NE(help.text.find("  " + FaultUsage(form) + " "), std::string::npos) << form.name;
}

} // namespace

} // namespace skeldon::test
