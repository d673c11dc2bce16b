#include "Played.h"
#include "SimulatedSupport.h"
#include "support/Process.h"

#include <filesystem>
#include <sstream>

#include <sys/stat.h>

namespace skeldon::test {

namespace {

namespace fs = std::filesystem;

struct Kept : testing::Test
{
    CTemporaryFolder m_folder;
    const fs::path m_link = m_folder.Path("port");
    const fs::path m_fifo = m_folder.Path("control");
    const fs::path m_state = m_folder.Path("state");
    const fs::path m_trace = m_folder.Path("trace");

    std::string Talk(const std::vector<std::string>& commands)
    {
        CHostPort port(m_link);
        port.WakeUp();
        std::string reply;
        for (const std::string& command : commands) {
            port.Write(command);
            reply = port.ReadTo('#');
        }
        return reply;
    }

    std::string Fails(const std::vector<std::string>& arguments)
    {
        const Outcome outcome = RunProgram(KORVA_SIMULATOR, arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        return outcome.err;
    }
};

TEST_F(Kept, ConditionsClockAndMemoryOutliveTheProgram)
{
    std::string memory;
    {
        CPlayed played(
            {"--link", m_link, "--state", m_state, "--type", "pl20", "--alpha", "--lines", "25"});
        memory = Talk({"N42", "jc", "20", "D"});
        EXPECT_EQ(played.Quit(), 0);
    }
    CPlayed played({"--link", m_link, "--state", m_state, "--type", "qm70", "--lines", "3"});
    const std::string report = Talk({"p"});
    EXPECT_EQ(ValueOf(report, "@My_ID="), "42");
    EXPECT_EQ(ValueOf(report, "@Record="), "c");
    EXPECT_EQ(ValueOf(report, "@Type="), "20");
    EXPECT_EQ(ValueOf(report, "@Count="), "25 32000");
    EXPECT_EQ(Talk({"D"}), memory);
    (void)Talk({"s2024 05/06 07:08:09"});
    EXPECT_EQ(played.Quit(), 0);
    EXPECT_NE(ReadText(m_state).find("\nclock 2024-05-06 07:08:"), std::string::npos);
    EXPECT_NE(ReadText(m_state).find("\nlines 0\n"), std::string::npos);
}

TEST_F(Kept, StateIsThereWhenTheHostHasClosedThePort)
{
    CPlayed played({"--link", m_link, "--state", m_state, "--control", m_fifo});
    (void)Talk({"N17"});
    // The answer to a line comes behind all that happened before.
    EXPECT_EQ(played.Control(m_fifo, "clear-faults"), "done");
    (void)Talk({"p"});
    EXPECT_NE(ReadText(m_state).find("\nhost-number 17\n"), std::string::npos);
}

TEST_F(Kept, MeasurementBeginsWithTheCablePulledAndIsReadBack)
{
    CPlayed played({"--link", m_link, "--state", m_state, "--control", m_fifo, "--alpha",
                    "--time-scale", "1000000"});
    (void)Talk({"ja", "w00", "s2024 05/06 07:08:09", "t"});
    EXPECT_EQ(played.Control(m_fifo, "pull"), "pulled");
    EXPECT_NE(ReadText(m_state).find("\nphase measuring\n"), std::string::npos);
    EXPECT_EQ(played.Control(m_fifo, "plug"), "ready " + m_link.string());
    const std::vector<std::string> lines = Lines(Talk({"D"}));
    ASSERT_FALSE(lines.empty());
    EXPECT_TRUE(LineTime(lines.front()));
    EXPECT_EQ(lines.front().size(), 20U);
    EXPECT_EQ(ValueOf(Talk({"p"}), "@Count="), std::to_string(lines.size()) + " 32000");
}

TEST_F(Kept, MeasurementBeginsWithTheEndOfTheProgramToo)
{
    {
        CPlayed played({"--link", m_link, "--state", m_state});
        (void)Talk({"ja", "w00", "t"});
        EXPECT_EQ(played.Quit(), 0);
    }
    EXPECT_NE(ReadText(m_state).find("\nphase measuring\n"), std::string::npos);
    CPlayed played({"--link", m_link, "--state", m_state});
    EXPECT_GE(std::stoi(ValueOf(Talk({"p"}), "@Count=").value_or("")), 1);
}

TEST_F(Kept, StateThatIsNoneIsRefusedAndLeftAlone)
{
    WriteText(m_state, "[Profile]\n");
    EXPECT_EQ(Fails({"--state", m_state}),
              "korva-simulator: " + m_state.string() + ": is no state of a recorder\n");
    EXPECT_EQ(ReadText(m_state), "[Profile]\n");
    EXPECT_EQ(Fails({"--state", m_folder.Path("")}),
              "korva-simulator: " + m_folder.Path("").string() + ": Is a directory\n");
}

TEST_F(Kept, StateThatCanNotBeWrittenFailsTheRun)
{
    const fs::path nowhere = m_folder.Path("nowhere") / "state";
    const Outcome outcome =
        RunProgram(KORVA_SIMULATOR, {"--link", m_link, "--state", nowhere, "--lines", "1"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find(nowhere.string() + ": No such file or directory"),
              std::string::npos);
    EXPECT_FALSE(fs::is_symlink(fs::symlink_status(m_link)));
}

TEST_F(Kept, MemoryComesFromAFileOfRawLines)
{
    const fs::path records = m_folder.Path("records");
    WriteText(records, "C3F7EFB51122334455\n00000000000000000000\r\n\n4020\n");
    CPlayed played(
        {"--link", m_link, "--records", records, "--type", "10", "--clock", "2019-03-04 05:06:07"});
    EXPECT_EQ(Talk({"D"}), "C3F7EFB51122334455\r\n00000000000000000000\r\n4020\r\n#");
    const std::string report = Talk({"p"});
    EXPECT_EQ(ValueOf(report, "@Count="), "3 32000");
    EXPECT_EQ(ValueOf(report, "@Year="), "2019/12/31 23:59:59");
    EXPECT_EQ(Fails({"--records", m_folder.Path("none")}),
              "korva-simulator: " + m_folder.Path("none").string() +
                  ": No such file or directory\n");
}

/// The bytes of a trace that went one way.
std::string Traced(const std::string& trace, char direction)
{
    std::string bytes;
    std::istringstream lines(trace);
    for (std::string line; std::getline(lines, line);) {
        if (line[13] != direction)
            continue;
        std::istringstream columns(line.substr(15, 48));
        for (int byte = 0; columns >> std::hex >> byte;)
            bytes += static_cast<char>(byte);
    }
    return bytes;
}

TEST_F(Kept, TraceHoldsTheWireByteForByte)
{
    std::string heard;
    {
        CPlayed played({"--link", m_link, "--trace", m_trace, "--alpha", "--lines", "100"});
        {
            CHostPort port(m_link);
            port.Write("m");
            heard = port.ReadTo('m');
            port.Write("D");
            heard += port.ReadTo('#');
        }
        EXPECT_EQ(played.Quit(), 0);
    }
    const std::string trace = ReadText(m_trace);
    EXPECT_EQ(Traced(trace, '>'), "mD");
    EXPECT_EQ(Traced(trace, '<'), heard);
    EXPECT_EQ(Traced(trace, '!'), "");
    EXPECT_NE(trace.find(" - plugged in: " + m_link.string() + "\n"), std::string::npos);
    EXPECT_NE(trace.find(" - pulled\n"), std::string::npos);
    std::istringstream lines(trace);
    double previous = 0;
    for (std::string line; std::getline(lines, line);) {
        const double time = std::stod(line);
        EXPECT_GE(time, previous);
        previous = time;
    }
}

TEST_F(Kept, TraceTellsWhatNobodyWasThereToHear)
{
    {
        CPlayed played({"--link", m_link, "--trace", m_trace, "--control", m_fifo, "--time-scale",
                        "100000", "--type", "pl20"});
        {
            CHostPort port(m_link);
            port.WakeUp();
            port.Write("x");
            (void)port.ReadTo('\r');
        }
        EXPECT_EQ(played.Control(m_fifo, "clear-faults"), "done");
        EXPECT_EQ(played.Control(m_fifo, "clear-faults"), "done");
        EXPECT_EQ(played.Quit(), 0);
    }
    const std::string trace = ReadText(m_trace);
    EXPECT_EQ(Traced(trace, '>'), "mx");
    EXPECT_NE(trace.find(" - host closed the port\n"), std::string::npos);
    const std::string lost = Traced(trace, '!');
    EXPECT_NE(lost.find('G'), std::string::npos);
}

TEST_F(Kept, TraceThatCanNotBeWrittenFailsTheRun)
{
    EXPECT_EQ(Fails({"--trace", m_folder.Path("")}),
              "korva-simulator: " + m_folder.Path("").string() + ": Is a directory\n");
    CPlayed played({"--link", m_link, "--trace", "/dev/full"});
    (void)Talk({"p"});
    EXPECT_EQ(played.Quit(), 1);
}

TEST_F(Kept, ControlPipeThatWasThereStays)
{
    ASSERT_EQ(::mkfifo(m_fifo.c_str(), 0600), 0);
    {
        CPlayed played({"--link", m_link, "--control", m_fifo});
        EXPECT_EQ(played.Control(m_fifo, "plug"), "ready " + m_link.string());
        EXPECT_EQ(played.Quit(), 0);
    }
    EXPECT_TRUE(fs::is_fifo(m_fifo));
    const fs::path file = m_folder.Path("file");
    WriteText(file, "plug\n");
    EXPECT_EQ(Fails({"--control", file}), "korva-simulator: " + file.string() + ": File exists\n");
    EXPECT_EQ(ReadText(file), "plug\n");
}

} // namespace

} // namespace skeldon::test
