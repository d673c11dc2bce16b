#include "ScriptedRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace skeldon {
namespace {

using test::LinkFixture;
using testing::ElementsAre;
using testing::IsEmpty;

class Transport : public testing::Test, public LinkFixture
{};

TEST_F(Transport, FindsTheCableAndKeepsItsNameWhenItIsPulled)
{
    EXPECT_EQ(m_link.m_portName, "/dev/cable");
    m_cable = std::nullopt;
    EXPECT_FALSE(m_link.FindRecorderPort());
    EXPECT_EQ(m_link.m_portName, "/dev/cable");
    m_cable = "/dev/other";
    EXPECT_TRUE(m_link.FindRecorderPort());
    EXPECT_EQ(m_link.m_portName, "/dev/other");
}

TEST_F(Transport, OpensNothingWithoutAPortName)
{
    m_link.m_portName.clear();
    EXPECT_FALSE(m_link.OpenPort());
    m_link.m_portName = "korva";
    EXPECT_FALSE(m_link.OpenPort());
    EXPECT_TRUE(m_link.LastError());
    EXPECT_THAT(m_recorder.Events(), IsEmpty());
}

TEST_F(Transport, OpensPortTenByItsDevicePath)
{
    m_link.m_portName = "COM10";
    EXPECT_TRUE(m_link.OpenPort());
    EXPECT_THAT(m_recorder.Events(), ElementsAre(R"(open \\.\COM10)", "m"));
}

TEST_F(Transport, WakesTheRecorderAtEachOpening)
{
    EXPECT_TRUE(m_link.OpenPort());
    EXPECT_TRUE(m_link.OpenPort());
    m_link.ClosePort();
    m_link.ClosePort();
    EXPECT_FALSE(m_link.IsOpen());
    EXPECT_THAT(m_recorder.Events(),
                ElementsAre("open /dev/cable", "m", "close", "open /dev/cable", "m", "close"));
}

TEST_F(Transport, SaysWhyAPortCanNotBeOpened)
{
    m_recorder.m_openError = std::make_error_code(std::errc::permission_denied);
    EXPECT_FALSE(m_link.OpenPort());
    EXPECT_EQ(m_link.LastError(), std::errc::permission_denied);
    m_recorder.m_openError.clear();
    EXPECT_TRUE(m_link.OpenPort());
    EXPECT_FALSE(m_link.LastError());
}

TEST_F(Transport, ClosesAPortThatDoesNotTakeTheWakeUp)
{
    m_recorder.m_failWriteOf = "m";
    EXPECT_FALSE(m_link.OpenPort());
    EXPECT_FALSE(m_link.IsOpen());
    EXPECT_TRUE(m_link.LastError());
    m_recorder.m_failWriteOf.clear();
    m_recorder.m_stateFails = true;
    EXPECT_FALSE(m_link.OpenPort());
    EXPECT_FALSE(m_link.IsOpen());
    EXPECT_TRUE(m_link.LastError());
}

TEST_F(Transport, DrainsAnIdlePortInTwoReadTimes)
{
    const std::uint32_t before = m_clock.m_tick;
    EXPECT_TRUE(m_link.OpenPort());
    EXPECT_EQ(m_clock.m_tick - before, 300U);
    EXPECT_EQ(m_recorder.Reads(), 2);
}

TEST_F(Transport, DrainsUntilALaterRoundReadsNothing)
{
    Watch();
    m_recorder.On("m", {"one", "two", "three", "four"});
    EXPECT_TRUE(m_link.OpenPort());
    EXPECT_EQ(m_recorder.Reads(), 5);
    EXPECT_EQ(m_traffic.m_bytes, "onetwothreefour");
    // Nothing in the first round does not end it.
    m_link.ClosePort();
    m_recorder.On("m", "");
    EXPECT_TRUE(m_link.OpenPort());
    EXPECT_EQ(m_recorder.Reads(), 5 + 2);
}

TEST_F(Transport, GoesOnAfterTwoSecondsOfBytes)
{
    m_recorder.m_endless = "G010203\r\n";
    m_recorder.m_readTakesMs = 45;
    const std::uint32_t before = m_clock.m_tick;
    EXPECT_TRUE(m_link.OpenPort());
    EXPECT_GE(m_clock.m_tick - before, 2000U);
    EXPECT_LT(m_clock.m_tick - before, 2100U);
}

TEST_F(Transport, EndsADrainAtAFailedRead)
{
    EXPECT_FALSE(m_link.DrainPort());
    ASSERT_TRUE(m_link.OpenPort());
    m_recorder.m_failReadsFrom = 1;
    const int before = m_recorder.Reads();
    EXPECT_TRUE(m_link.DrainPort());
    EXPECT_EQ(m_recorder.Reads(), before + 1);
}

TEST_F(Transport, ReportsTheEchoOfTheWakeUpButNotTheWakeUp)
{
    Watch();
    m_recorder.On("m", "m\r\n");
    m_recorder.On("q", "ok#");
    EXPECT_TRUE(m_link.SendCommand("q"));
    EXPECT_EQ(m_traffic.m_log, "m\r\n[q]ok#");
}

TEST_F(Transport, ReportsOnlyWhileTheMonitorIsShownOrAlwaysWatched)
{
    m_recorder.On("q", "ok#");
    m_link.ShowMonitor();
    EXPECT_FALSE(m_link.m_monitorShown);
    Watch();
    m_link.m_alwaysWatched = false;
    EXPECT_TRUE(m_link.SendCommand("q"));
    EXPECT_EQ(m_traffic.m_log, "");
    m_link.ShowMonitor();
    EXPECT_EQ(m_traffic.m_shown, 1);
    EXPECT_TRUE(m_link.SendCommand("q"));
    EXPECT_EQ(m_traffic.m_log, "[q]ok#");
}

TEST_F(Transport, FailsATextThatDidNotGoOutWhole)
{
    EXPECT_TRUE(m_link.SendText("abc"));
    m_recorder.m_shortWriteOf = "abc";
    EXPECT_FALSE(m_link.SendText("abc"));
    m_recorder.m_shortWriteOf.clear();
    m_recorder.m_failWriteOf = "abc";
    EXPECT_FALSE(m_link.SendText("abc"));
    m_recorder.m_failWriteOf.clear();
    m_recorder.m_lineErrorAt = "abc";
    EXPECT_FALSE(m_link.SendText("abc"));
    m_recorder.m_lineErrorAt.clear();
    EXPECT_TRUE(m_link.SendText("abc"));
    EXPECT_TRUE(m_link.IsOpen());
}

TEST_F(Transport, ReportsACommandEvenIfItsWriteFailed)
{
    Watch();
    m_recorder.m_failWriteOf = "abc";
    EXPECT_FALSE(m_link.SendText("abc"));
    EXPECT_EQ(m_traffic.m_log, "[abc]");
}

TEST_F(Transport, ReadsAReplyUpToTheMarkAndLeavesTheRest)
{
    Watch();
    ASSERT_TRUE(m_link.OpenPort());
    m_recorder.Arrive("one\r\ntwo#three#four");
    EXPECT_EQ(m_link.ReadReply(), "one\r\ntwo");
    EXPECT_EQ(m_traffic.m_bytes, "one\r\ntwo#");
    EXPECT_EQ(m_link.ReadReply(), "three");
    EXPECT_TRUE(m_link.DrainPort());
    EXPECT_EQ(m_traffic.m_bytes, "one\r\ntwo#three#four");
}

TEST_F(Transport, ForgetsBytesOfAClosedPort)
{
    Watch();
    ASSERT_TRUE(m_link.OpenPort());
    m_recorder.Arrive("a#b#");
    EXPECT_EQ(m_link.ReadReply(), "a");
    ASSERT_TRUE(m_link.OpenPort());
    m_recorder.Arrive("c#");
    EXPECT_EQ(m_link.ReadReply(), "c");
    EXPECT_EQ(m_traffic.m_bytes, "a#c#");
}

TEST_F(Transport, CutsAReplyAtItsSize)
{
    ASSERT_TRUE(m_link.OpenPort());
    m_recorder.Arrive(std::string(600, 'x'));
    m_recorder.Arrive("#");
    EXPECT_EQ(m_link.ReadReply(), std::string(511, 'x'));
    EXPECT_EQ(m_link.ReadReply(), std::string(89, 'x'));
    m_recorder.Arrive("abcdef#");
    EXPECT_EQ(m_link.ReadReply(4), "abc");
    // The mark behind a reply of just that size is not read with it.
    EXPECT_EQ(m_link.ReadReply(4), "def");
    EXPECT_EQ(m_link.ReadReply(4), "");
    EXPECT_FALSE(m_link.m_timedOut);
}

TEST_F(Transport, EndsAReplyAfterFifteenSecondsOfSilence)
{
    ASSERT_TRUE(m_link.OpenPort());
    m_recorder.Arrive("part");
    const std::uint32_t before = m_clock.m_tick;
    EXPECT_EQ(m_link.ReadReply(), "part");
    EXPECT_TRUE(m_link.m_timedOut);
    EXPECT_GE(m_clock.m_tick - before, 15000U);
    EXPECT_LT(m_clock.m_tick - before, 15000U + 2 * SerialSetting::ReadWaitMs);
    // The next read clears it.
    m_recorder.Arrive("x#");
    EXPECT_EQ(m_link.ReadReply(), "x");
    EXPECT_FALSE(m_link.m_timedOut);
}

TEST_F(Transport, CountsSilenceAndNotTheWholeReply)
{
    ASSERT_TRUE(m_link.OpenPort());
    m_recorder.m_beforeRead = [this, first = m_recorder.Reads()](int read) {
        // A byte comes every 80 reads, that is 12 seconds.
        if ((read - first) % 80 == 0)
            m_recorder.Arrive(read - first == 320 ? "#" : "x");
    };
    EXPECT_EQ(m_link.ReadReply(), "xxx");
    EXPECT_FALSE(m_link.m_timedOut);
}

TEST_F(Transport, StaysPatientWhenTheTickCountWraps)
{
    ASSERT_TRUE(m_link.OpenPort());
    m_clock.m_tick = 0xFFFFFFF0U;
    m_recorder.m_beforeRead = [this, first = m_recorder.Reads()](int read) {
        if (read == first + 50)
            m_recorder.Arrive("late#");
    };
    EXPECT_EQ(m_link.ReadReply(), "late");
    EXPECT_FALSE(m_link.m_timedOut);
    EXPECT_LT(m_clock.m_tick, 10000U);
    EXPECT_EQ(m_link.ReadReply(), "");
    EXPECT_TRUE(m_link.m_timedOut);
}

TEST_F(Transport, SleepsBetweenReadsOfAPortThatFailsAtOnce)
{
    ASSERT_TRUE(m_link.OpenPort());
    const int readsBefore = m_recorder.Reads();
    m_recorder.m_failReadsFrom = 1;
    const std::uint32_t before = m_clock.m_tick;
    EXPECT_EQ(m_link.ReadReply(), "");
    EXPECT_TRUE(m_link.m_timedOut);
    EXPECT_GE(m_clock.m_tick - before, 15000U);
    EXPECT_LE(m_recorder.Reads() - readsBefore, 101);
    EXPECT_GE(m_clock.m_sleeps, 100);
}

TEST_F(Transport, NeedsANonEmptyReply)
{
    m_recorder.On("a", "x#");
    m_recorder.On("b", "#");
    EXPECT_TRUE(m_link.SendCommand("a"));
    EXPECT_FALSE(m_link.SendCommand("b"));
    EXPECT_FALSE(m_link.m_timedOut);
    EXPECT_FALSE(m_link.SendCommand("c"));
    EXPECT_TRUE(m_link.m_timedOut);
    // The port is open: no wake-up between the commands.
    EXPECT_THAT(m_recorder.Events(), ElementsAre("open /dev/cable", "m", "a", "b", "c"));
}

TEST_F(Transport, SendsNoCommandButTextWhileATransferRuns)
{
    m_recorder.On("a", "x#");
    m_link.m_busy = true;
    EXPECT_FALSE(m_link.SendCommand("a"));
    EXPECT_THAT(m_recorder.Events(), IsEmpty());
    EXPECT_TRUE(m_link.SendText("a"));
    m_link.m_busy = false;
}

TEST_F(Transport, DrainsAndClosesAtItsEnd)
{
    std::unique_ptr<CRecorderLink> link = NewLink();
    ASSERT_TRUE(link->FindRecorderPort());
    ASSERT_TRUE(link->OpenPort());
    m_recorder.Arrive("left over");
    link.reset();
    EXPECT_TRUE(m_recorder.IsQuiet());
    EXPECT_EQ(m_recorder.Events().back(), "close");
}

} // namespace
} // namespace skeldon
