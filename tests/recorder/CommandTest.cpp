#include "ScriptedRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace skeldon {
namespace {

using test::LinkFixture;
using test::Report;
using testing::ElementsAre;
using testing::IsEmpty;

class Commands : public testing::Test, public LinkFixture
{};

TEST_F(Commands, ReadTheStatusAndCloseThePort)
{
    m_recorder.On("p", Report("12 3000"));
    m_link.m_rangeChanged = true;
    EXPECT_TRUE(m_link.ReadStatus());
    EXPECT_EQ(m_link.m_count, 12);
    EXPECT_EQ(m_link.m_release, "2.10");
    EXPECT_FALSE(m_link.m_rangeChanged);
    EXPECT_FALSE(m_link.IsOpen());
    EXPECT_THAT(m_recorder.Events(), ElementsAre("open /dev/cable", "m", "p", "close"));
}

TEST_F(Commands, TakeTheYearFromTheClockBeforeAndWithoutAReport)
{
    EXPECT_EQ(m_link.m_year, 2024);
    m_clock.m_now = FromLocalFields({2030, 1, 1, 0, 0, 0});
    m_recorder.On("p", "@Count=1 1#");
    EXPECT_TRUE(m_link.ReadStatus());
    EXPECT_EQ(m_link.m_year, 2030);
}

TEST_F(Commands, CloseThePortWhereNoStatusComes)
{
    m_link.m_rangeChanged = true;
    EXPECT_FALSE(m_link.ReadStatus());
    EXPECT_TRUE(m_link.m_timedOut);
    EXPECT_FALSE(m_link.IsOpen());
    EXPECT_TRUE(m_link.m_rangeChanged);
    m_recorder.On("p", "#");
    EXPECT_FALSE(m_link.ReadStatus());
    EXPECT_FALSE(m_link.IsOpen());
    m_recorder.m_failWriteOf = "p";
    EXPECT_FALSE(m_link.ReadStatus());
    EXPECT_FALSE(m_link.IsOpen());
}

TEST_F(Commands, LeaveThePortOpenAfterAReplyThatIsNoReport)
{
    m_recorder.On("p", "hello#");
    EXPECT_FALSE(m_link.ReadStatus());
    EXPECT_TRUE(m_link.IsOpen());
    // The next command goes out without a wake-up; an opening begins anew.
    m_recorder.On("p", Report("1 2"));
    EXPECT_TRUE(m_link.ReadStatus());
    EXPECT_THAT(m_recorder.Events(), ElementsAre("open /dev/cable", "m", "p", "p", "close"));
}

TEST_F(Commands, CountTheFirst511CharactersOfAReportOnly)
{
    const std::string head = "@Count=5 6\r\n" + std::string(485, 'x') + "\r\n";
    ASSERT_EQ(head.size(), 499U);
    m_recorder.On("p", head + "@My_ID=12345\r\n#");
    EXPECT_TRUE(m_link.ReadStatus());
    EXPECT_EQ(m_link.m_hostNumber, 12345);
    m_recorder.On("p", head + "@My_ID=6789012\r\n#");
    EXPECT_TRUE(m_link.ReadStatus());
    EXPECT_EQ(m_link.m_hostNumber, 67890);
    m_recorder.On("p", head + "x@My_ID=12345\r\n#");
    EXPECT_TRUE(m_link.ReadStatus());
    EXPECT_EQ(m_link.m_hostNumber, 1234);
}

TEST_F(Commands, TakeAReportThatSilenceCutShort)
{
    m_recorder.On("p", "@Count=5 6\r\n@Type=20\r\n");
    EXPECT_TRUE(m_link.ReadStatus());
    EXPECT_EQ(m_link.m_type, 20);
    EXPECT_TRUE(m_link.m_timedOut);
}

TEST_F(Commands, EndAReportWithoutEnd)
{
    m_recorder.m_endless = "@Count=1 2 ";
    m_recorder.m_readTakesMs = 5;
    EXPECT_TRUE(m_link.ReadStatus());
    EXPECT_FALSE(m_link.m_timedOut);
}

TEST_F(Commands, FailAtOnceWhileATransferRuns)
{
    m_link.m_alphaFirmware = true;
    m_link.m_busy = true;
    EXPECT_FALSE(m_link.ReadStatus());
    EXPECT_FALSE(m_link.Calibrate());
    EXPECT_FALSE(m_link.ChangeRange());
    EXPECT_FALSE(m_link.SendMonitorCommand("p"));
    EXPECT_FALSE(m_link.StartOnline(10));
    EXPECT_EQ(m_link.StartDownload(), -1);
    m_link.m_busy = false;
    EXPECT_THAT(m_recorder.Events(), IsEmpty());
}

TEST_F(Commands, Calibrate)
{
    m_recorder.On("w99", "ok#");
    EXPECT_TRUE(m_link.Calibrate());
    EXPECT_FALSE(m_link.IsOpen());
    m_recorder.On("w99", "#");
    EXPECT_FALSE(m_link.Calibrate());
    EXPECT_FALSE(m_link.IsOpen());
    EXPECT_THAT(m_recorder.Events(), ElementsAre("open /dev/cable", "m", "w99", "close",
                                                 "open /dev/cable", "m", "w99", "close"));
}

TEST_F(Commands, CalibrateTakesAReplyThatSilenceCutShort)
{
    m_recorder.On("w99", "ok");
    EXPECT_TRUE(m_link.Calibrate());
    EXPECT_FALSE(m_link.IsOpen());
}

TEST_F(Commands, ReportAMonitorCommandsAnswerAfterOneThatTimedOut)
{
    Watch();
    EXPECT_FALSE(m_link.Calibrate());
    EXPECT_TRUE(m_link.m_timedOut);
    m_recorder.On("v", "answer");
    EXPECT_TRUE(m_link.SendMonitorCommand("v"));
    EXPECT_TRUE(m_traffic.m_log.ends_with("[v]answer"));
}

TEST_F(Commands, ChangeTheRangeByTheNumberOfTheTarget)
{
    const struct
    {
        int type;
        const char* command;
    } rows[] = {{1, "02"}, {2, "01"}, {10, "20"}, {20, "10"}};
    m_link.m_alphaFirmware = true;
    for (const auto& row : rows) {
        m_link.m_type = row.type;
        m_link.m_rangeChanged = false;
        m_recorder.On(row.command, "ok#");
        EXPECT_TRUE(m_link.ChangeRange()) << row.type;
        EXPECT_TRUE(m_link.m_rangeChanged);
        EXPECT_FALSE(m_link.IsOpen());
        EXPECT_EQ(m_recorder.Events().at(m_recorder.Events().size() - 2), row.command);
    }
}

TEST_F(Commands, LeaveTheRangeUnchangedWithoutAnAnswer)
{
    m_link.m_alphaFirmware = true;
    EXPECT_FALSE(m_link.ChangeRange());
    EXPECT_FALSE(m_link.m_rangeChanged);
    EXPECT_FALSE(m_link.IsOpen());
}

TEST_F(Commands, OfferNoRangeToOthers)
{
    EXPECT_FALSE(m_link.ChangeRange());
    m_link.m_alphaFirmware = true;
    for (const int type : {50, 5, 3, 0, -2}) {
        m_link.m_type = type;
        EXPECT_FALSE(m_link.ChangeRange()) << type;
    }
    EXPECT_THAT(m_recorder.Events(), IsEmpty());
}

TEST_F(Commands, ReportAMonitorCommandsAnswerUntilSilence)
{
    Watch();
    m_recorder.On("v", {"one#", "two\r\n", "three#"});
    const std::uint32_t before = m_clock.m_tick;
    EXPECT_TRUE(m_link.SendMonitorCommand("v"));
    EXPECT_EQ(m_traffic.m_log, "[v]one#two\r\nthree#");
    EXPECT_GE(m_clock.m_tick - before, 15000U);
    EXPECT_TRUE(m_link.IsOpen());
    // The silence counts, not the whole time.
    m_recorder.m_beforeRead = [this, first = m_recorder.Reads()](int read) {
        if (read - first == 80 || read - first == 160)
            m_recorder.Arrive("late");
    };
    EXPECT_TRUE(m_link.SendMonitorCommand("w"));
    EXPECT_TRUE(m_traffic.m_log.ends_with("[w]latelate"));
    m_recorder.m_failWriteOf = "v";
    EXPECT_FALSE(m_link.SendMonitorCommand("v"));
}

} // namespace
} // namespace skeldon
