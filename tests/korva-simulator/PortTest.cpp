#include "Played.h"
#include "SimulatedSupport.h"
#include "support/Process.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <thread>

#include <sys/ioctl.h>
#include <unistd.h>

namespace skeldon::test {

namespace {

namespace fs = std::filesystem;

bool HasLink(const fs::path& path)
{
    return fs::is_symlink(fs::symlink_status(path));
}

/// One conversation: wake-up, command, reply.
std::string Talk(const fs::path& path, std::string_view command)
{
    CHostPort port(path);
    port.WakeUp();
    port.Write(command);
    return port.ReadTo('#');
}

struct Port : testing::Test
{
    CTemporaryFolder m_folder;
    const fs::path m_link = m_folder.Path("port");
    const fs::path m_fifo = m_folder.Path("control");

    std::vector<std::string> Arguments(const std::vector<std::string>& more)
    {
        std::vector<std::string> arguments{"--link", m_link, "--control", m_fifo};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return arguments;
    }
};

TEST_F(Port, IsThereOnceTheSimulatorSaysSo)
{
    CPlayed played(Arguments({"--type", "qm70", "--alpha", "--lines", "300"}));
    EXPECT_EQ(played.FirstLine(), "ready " + m_link.string());
    EXPECT_EQ(ValueOf(Talk(m_link, "p"), "@Count="), "300 32000");
    EXPECT_EQ(Talk(m_link, "D").size(), 300U * 22U + 1U);
}

TEST_F(Port, WithoutALinkHasTheNameOfItsTerminal)
{
    CPlayed played({"--lines", "3"});
    const std::string path = played.FirstLine().substr(6);
    EXPECT_EQ(path.substr(0, 9), "/dev/pts/");
    EXPECT_EQ(ValueOf(Talk(path, "p"), "@Count="), "3 32000");
}

TEST_F(Port, MayBeClosedAndOpenedAsOftenAsTheHostLikes)
{
    CPlayed played(Arguments({"--lines", "10"}));
    const std::string first = Talk(m_link, "p");
    for (int i = 0; i < 50; ++i)
        ASSERT_EQ(Talk(m_link, "p"), first);
}

TEST_F(Port, DeliversAMillionLines)
{
    CPlayed played(Arguments({"--alpha", "--lines", "1000000"}));
    CHostPort port(m_link);
    port.WakeUp();
    port.Write("D");
    const std::string all = port.ReadCount(22'000'001);
    ASSERT_EQ(all.size(), 22'000'001U);
    EXPECT_EQ(all.find('#'), 22'000'000U);
}

TEST_F(Port, LosesUnreadBytesWhenTheHostClosesIt)
{
    CPlayed played(Arguments({"--lines", "20000"}));
    {
        CHostPort port(m_link);
        port.WakeUp();
        port.Write("D");
        EXPECT_EQ(port.ReadCount(100).size(), 100U);
    }
    // The second answer comes behind a round in which the closing was seen.
    EXPECT_EQ(played.Control(m_fifo, "clear-faults"), "done");
    EXPECT_EQ(played.Control(m_fifo, "clear-faults"), "done");
    CHostPort port(m_link);
    port.Write("mN05");
    EXPECT_EQ(port.ReadTo('#'), "mN05\r\n#");
}

TEST_F(Port, AnswersAHostThatOpensItRightBehindAnother)
{
    CPlayed played(Arguments({"--lines", "20000"}));
    for (int i = 0; i < 100; ++i) {
        CHostPort port(m_link);
        port.WakeUp();
        port.Write("D");
        ASSERT_EQ(port.ReadCount(100).size(), 100U);
    }
}

TEST_F(Port, IsNotLeftLockedByAHostThatDied)
{
    CPlayed played(Arguments({}));
    {
        CHostPort port(m_link);
        port.WakeUp();
        ASSERT_EQ(::ioctl(port.Descriptor(), TIOCEXCL), 0);
    }
    // Root gets in even while it is locked, so that the lock itself is looked at.
    CHostPort port(m_link);
    port.WakeUp();
    int isLocked = 1;
    ASSERT_EQ(::ioctl(port.Descriptor(), TIOCGEXCL, &isLocked), 0);
    EXPECT_EQ(isLocked, 0);
}

TEST_F(Port, AndPipeVanishWhenTheProgramIsAskedToEnd)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        CPlayed played(Arguments({"--lines", "1"}));
        EXPECT_TRUE(HasLink(m_link));
        EXPECT_TRUE(fs::exists(m_fifo));
        played.Signal(signal);
        EXPECT_EQ(played.Wait(), 0);
        EXPECT_FALSE(HasLink(m_link));
        EXPECT_FALSE(fs::exists(m_fifo));
    }
}

TEST_F(Port, EndsByControlToo)
{
    CPlayed played(Arguments({}));
    EXPECT_EQ(played.Control(m_fifo, "quit"), "pulled");
    EXPECT_EQ(played.Wait(), 0);
    EXPECT_FALSE(HasLink(m_link));
}

TEST_F(Port, TakesThePlaceOfALinkThatAKilledOneLeft)
{
    {
        CPlayed killed(Arguments({}));
        killed.Signal(SIGKILL);
        (void)killed.Wait();
    }
    EXPECT_TRUE(HasLink(m_link));
    CPlayed played(Arguments({"--lines", "7"}));
    EXPECT_EQ(ValueOf(Talk(m_link, "p"), "@Count="), "7 32000");
}

TEST_F(Port, LeavesAFileOfThatNameAlone)
{
    WriteText(m_link, "precious");
    const Outcome outcome = RunProgram(KORVA_SIMULATOR, {"--link", m_link});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "korva-simulator: " + m_link.string() + ": File exists\n");
    EXPECT_EQ(ReadText(m_link), "precious");
}

TEST_F(Port, NeedsAFolderForItsName)
{
    const fs::path nowhere = m_folder.Path("nowhere") / "port";
    const Outcome outcome = RunProgram(KORVA_SIMULATOR, {"--link", nowhere});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err,
              "korva-simulator: " + nowhere.string() + ": No such file or directory\n");
}

TEST_F(Port, ComesAndGoesWithTheCable)
{
    CPlayed played(Arguments({"--unplugged", "--lines", "4"}));
    EXPECT_EQ(played.FirstLine(), "pulled");
    EXPECT_FALSE(HasLink(m_link));
    EXPECT_EQ(played.Control(m_fifo, "plug"), "ready " + m_link.string());
    CHostPort port(m_link);
    port.WakeUp();
    EXPECT_EQ(played.Control(m_fifo, "pull"), "pulled");
    EXPECT_FALSE(HasLink(m_link));
    EXPECT_EQ(port.ReadCount(1), "") << "the open port is dead";
    EXPECT_EQ(played.Control(m_fifo, "pull"), "pulled");
    EXPECT_EQ(played.Control(m_fifo, "plug"), "ready " + m_link.string());
    EXPECT_EQ(played.Control(m_fifo, "plug"), "ready " + m_link.string());
    EXPECT_EQ(ValueOf(Talk(m_link, "p"), "@Count="), "4 32000");
}

TEST_F(Port, DiesInMidTransferWhereAFaultPullsTheCable)
{
    CPlayed played(Arguments({"--alpha", "--lines", "5000", "--fault", "pull-after=50001"}));
    CHostPort port(m_link);
    port.WakeUp();
    port.Write("D");
    EXPECT_EQ(port.ReadTo('#').size(), 50001U);
    EXPECT_EQ(played.NextLine(), "pulled");
    EXPECT_FALSE(HasLink(m_link));
    EXPECT_EQ(played.Control(m_fifo, "plug"), "ready " + m_link.string());
    EXPECT_EQ(Talk(m_link, "D").size(), 110'001U);
}

TEST_F(Port, DiesInMidReplyWhereAFaultPullsTheCable)
{
    CPlayed played(Arguments({"--alpha", "--lines", "4", "--fault", "pull-at=8"}));
    CHostPort port(m_link);
    port.WakeUp();
    port.Write("N05");
    EXPECT_EQ(port.ReadTo('#'), "N05");
    EXPECT_EQ(played.NextLine(), "pulled");
    EXPECT_FALSE(HasLink(m_link));
    EXPECT_EQ(played.Control(m_fifo, "plug"), "ready " + m_link.string());
    EXPECT_EQ(ValueOf(Talk(m_link, "p"), "@My_ID="), "5");
}

TEST_F(Port, TakesFaultsWhileItRuns)
{
    CPlayed played(Arguments({"--alpha", "--lines", "10"}));
    EXPECT_EQ(played.Control(m_fifo, "fault too-few=3"), "done");
    EXPECT_EQ(Talk(m_link, "D").size(), 7U * 22U + 1U);
    EXPECT_EQ(played.Control(m_fifo, "clear-faults"), "done");
    EXPECT_EQ(Talk(m_link, "D").size(), 10U * 22U + 1U);
    EXPECT_EQ(played.Control(m_fifo, "fault of nature"), "refused");
    EXPECT_EQ(played.Control(m_fifo, "magnet near"), "done");
}

TEST_F(Port, StreamsUntilTheMark)
{
    CPlayed played(Arguments({"--type", "pl20", "--time-scale", "50"}));
    CHostPort port(m_link);
    port.WakeUp();
    port.Write("x");
    EXPECT_EQ(port.ReadTo('\r').size(), 3U);
    for (int i = 0; i < 400; ++i)
        ASSERT_EQ(port.ReadTo('\r').size(), 8U);
    port.Write("#N05");
    const std::string rest = port.ReadTo('#');
    EXPECT_EQ(rest.substr(rest.size() - 6), "N05\r\n#");
}

TEST_F(Port, SendsNoFasterThanItsRate)
{
    CPlayed played(Arguments({"--alpha", "--lines", "200", "--rate", "20000"}));
    CHostPort port(m_link);
    port.WakeUp();
    const auto start = std::chrono::steady_clock::now();
    port.Write("D");
    EXPECT_EQ(port.ReadTo('#').size(), 4401U);
    const auto time = std::chrono::steady_clock::now() - start;
    EXPECT_GE(time, std::chrono::milliseconds(220 - 5));
}

TEST_F(Port, CostsNoProcessorTimeWhileNothingHappens)
{
    using namespace std::chrono_literals;
    CPlayed played(Arguments({"--lines", "10"}));
    const auto idle = [&] {
        const auto before = played.ProcessorTime();
        std::this_thread::sleep_for(60ms);
        return played.ProcessorTime() - before;
    };
    EXPECT_LT(idle(), 20ms) << "never opened";
    {
        CHostPort port(m_link);
        port.WakeUp();
        EXPECT_LT(idle(), 20ms) << "open";
    }
    EXPECT_LT(idle(), 20ms) << "closed again";
    EXPECT_EQ(played.Control(m_fifo, "pull"), "pulled");
    EXPECT_LT(idle(), 20ms) << "pulled";
}

TEST_F(Port, SleepsWhileTheHostDoesNotRead)
{
    using namespace std::chrono_literals;
    CPlayed played(Arguments({"--lines", "100000"}));
    CHostPort port(m_link);
    port.WakeUp();
    port.Write("D");
    (void)port.ReadCount(10);
    // The first reading filled what lies between the two ends; the second finds it asleep.
    std::this_thread::sleep_for(50ms);
    const auto before = played.ProcessorTime();
    std::this_thread::sleep_for(60ms);
    EXPECT_LT(played.ProcessorTime() - before, 20ms);
}

TEST_F(Port, OutlivesWhoeverReadItsFirstLine)
{
    CPlayed played(Arguments({"--lines", "10"}));
    played.CloseOutput();
    EXPECT_EQ(ValueOf(Talk(m_link, "p"), "@Count="), "10 32000");
    EXPECT_EQ(played.Quit(), 0);
    EXPECT_FALSE(HasLink(m_link));
}

} // namespace

} // namespace skeldon::test
