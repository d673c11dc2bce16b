#include "ScriptedRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace skeldon {
namespace {

using test::LinkFixture;
using testing::ElementsAre;

class Online : public testing::Test, public LinkFixture
{
protected:
    /// The stream to its end.
    void Run(std::uint32_t lines)
    {
        EXPECT_TRUE(m_link.StartOnline(lines));
        m_link.FinishOnline(m_data);
    }

    CMeasureData m_data;
};

TEST_F(Online, RunsFromTheLetterToTheMark)
{
    m_recorder.On("x", "D0102\r\nG0A1480\r\nG0B1581\r\nG0C1682\r\n");
    Run(3);
    EXPECT_THAT(m_recorder.Events(), ElementsAre("open /dev/cable", "m", "x", "#", "close"));
    EXPECT_FALSE(m_link.m_timedOut);
    EXPECT_FALSE(m_link.m_busy);
    ASSERT_EQ(m_data.GetSize(), 3U);
    EXPECT_EQ(m_data.GetRecord(0).m_x, 1.0);
    EXPECT_EQ(m_data.GetRecord(0).m_y, 2.0);
    EXPECT_EQ(m_data.GetRecord(0).m_z, -12.8);
    EXPECT_EQ(m_data.GetRecord(2).m_x, 1.2);
    EXPECT_EQ(m_data.GetRecord(2).m_temperature, 0.0);
    EXPECT_EQ(m_data.GetRecord(2).m_humidity, 0.0);
    EXPECT_EQ(m_data.GetRecord(2).m_flags, 0);
    EXPECT_FALSE(m_data.m_hasTemperature);
    EXPECT_FALSE(m_data.m_hasHumidity);
}

TEST_F(Online, ScalesByTheModel)
{
    m_link.m_countsPerG = 2;
    m_recorder.On("x", "\rG810000\r");
    Run(1);
    EXPECT_EQ(m_data.GetRecord(0).m_x, -63.5);
}

TEST_F(Online, PutsTheLinesFiveMillisecondsApart)
{
    std::string stream = "\r";
    for (int i = 0; i < 250; ++i)
        stream += "G000000\r";
    m_recorder.On("x", stream);
    Run(201);
    ASSERT_EQ(m_data.GetSize(), 201U);
    EXPECT_EQ(m_data.GetRecord(0).m_time, m_clock.m_now);
    EXPECT_EQ(m_data.GetRecord(0).m_msec, 0U);
    EXPECT_EQ(m_data.GetRecord(199).m_time, m_clock.m_now);
    EXPECT_EQ(m_data.GetRecord(199).m_msec, 995U);
    EXPECT_EQ(m_data.GetRecord(200).m_time, m_clock.m_now + 1);
    EXPECT_EQ(m_data.GetRecord(200).m_msec, 0U);
    EXPECT_EQ(m_data.GetRecord(200).m_checkKey, m_data.GetRecord(200).CheckKey());
}

TEST_F(Online, LosesALineThatTheStartCut)
{
    m_recorder.On("x", {"G01", "0203", "G04\n", "\rG050607\r\n"});
    Run(1);
    ASSERT_EQ(m_data.GetSize(), 1U);
    EXPECT_EQ(m_data.GetRecord(0).m_x, 0.5);
}

TEST_F(Online, StoresLineFeedsSoThatTheBufferCanEndTheStreamFirst)
{
    // There is room for 40 lines of 7 bytes and 32 bytes more.
    std::string stream = "\r\n";
    for (int i = 0; i < 100; ++i)
        stream += "G010203\r\n";
    m_recorder.On("x", stream);
    Run(40);
    // The 39th line fills it, with 39 line feeds, before its end is counted.
    EXPECT_EQ(m_link.m_onlineLines, 38U);
    EXPECT_EQ(m_data.GetSize(), 38U);
    EXPECT_FALSE(m_link.m_timedOut);
    EXPECT_THAT(m_recorder.Events(), ElementsAre("open /dev/cable", "m", "x", "#", "close"));
    EXPECT_TRUE(m_recorder.IsQuiet());
}

TEST_F(Online, EndsAtTheLimitOfLinesWithoutLineFeeds)
{
    std::string stream = "\r";
    for (int i = 0; i < 100; ++i)
        stream += "G010203\r";
    m_recorder.On("x", stream);
    Run(40);
    EXPECT_EQ(m_link.m_onlineLines, 40U);
    EXPECT_EQ(m_data.GetSize(), 40U);
}

TEST_F(Online, StopsAtTheLineBehindTheUsersRequest)
{
    m_recorder.On("x", "\r");
    m_recorder.m_endless = "G010203\r\n";
    m_recorder.m_readTakesMs = 5;
    m_recorder.m_beforeRead = [this](int read) {
        if (read == 700)
            m_link.m_stopRequest = true;
    };
    Run(100'000);
    // Most reads bring one line each.
    EXPECT_GT(m_data.GetSize(), 200U);
    EXPECT_LT(m_data.GetSize(), 701U);
    EXPECT_EQ(m_data.GetSize(), m_link.m_onlineLines);
    EXPECT_FALSE(m_link.m_timedOut);
    const std::vector<std::string> events = m_recorder.Events();
    EXPECT_EQ(events[events.size() - 2], "#");
}

TEST_F(Online, StopsAStreamInMidLineOnlyAtItsEnd)
{
    m_recorder.On("x", {"\r", "G0102", "03", "\rG04"});
    m_recorder.m_beforeRead = [this](int) { m_link.m_stopRequest = true; };
    Run(10);
    // The request before the first line's end counts behind it.
    EXPECT_EQ(m_data.GetSize(), 1U);
    EXPECT_EQ(m_data.GetRecord(0).m_z, 0.3);
}

TEST_F(Online, ToleratesEmptyReadsInItsFirstFifteenSeconds)
{
    m_recorder.On("x", "\r");
    m_recorder.m_beforeRead = [this](int read) {
        if (read == 60)
            m_recorder.Arrive("G010203\r");
    };
    Run(1);
    EXPECT_EQ(m_data.GetSize(), 1U);
    EXPECT_FALSE(m_link.m_timedOut);
}

TEST_F(Online, EndsWithTheFirstEmptyReadBehindFifteenSeconds)
{
    Watch();
    m_recorder.On("x", "\r");
    int lines = 0;
    m_recorder.m_beforeRead = [this, &lines](int) {
        if (m_link.m_threadDone || lines == 20)
            return;
        // A line each second does not renew the clock.
        m_clock.Pass(1000);
        m_recorder.Arrive("G010203\r");
        ++lines;
    };
    const std::uint32_t before = m_clock.m_tick;
    Run(1000);
    EXPECT_TRUE(m_link.m_timedOut);
    // The last line came after 20 seconds, and no 15 seconds more were waited for.
    EXPECT_LT(m_clock.m_tick - before, 25'000U);
    EXPECT_EQ(m_data.GetSize(), 20U);
    // The recorder is left streaming: no mark, no further drain.
    EXPECT_THAT(m_recorder.Events(), ElementsAre("open /dev/cable", "m", "x", "close"));
    EXPECT_FALSE(m_link.m_busy);
}

TEST_F(Online, TimesOutWithoutAnyLine)
{
    const std::uint32_t before = m_clock.m_tick;
    Run(10);
    EXPECT_TRUE(m_link.m_timedOut);
    EXPECT_TRUE(m_data.IsEmpty());
    EXPECT_GE(m_clock.m_tick - before, 15000U);
}

TEST_F(Online, SleepsWhileThePulledCableFails)
{
    m_recorder.On("x", "\rG010203\r");
    m_recorder.m_failReadsFrom = 4;
    Run(10);
    EXPECT_TRUE(m_link.m_timedOut);
    EXPECT_EQ(m_data.GetSize(), 1U);
    EXPECT_LE(m_recorder.Reads(), 110);
    EXPECT_GE(m_clock.m_sleeps, 99);
}

TEST_F(Online, ReportsEachByteBehindTheFirstCarriageReturn)
{
    Watch();
    m_recorder.On("x", {"lost\r\nG01", "0203\r\nG04", "0506\r\nG07"});
    Run(2);
    EXPECT_EQ(m_traffic.m_log, "[x]-\nG010203\r\nG040506\r[#]\nG07+");
}

TEST_F(Online, KeepsDefaultLinesWhereLettersAreMissing)
{
    m_recorder.On("x", "\rG010203\r040506\rG070809\r");
    Run(3);
    ASSERT_EQ(m_data.GetSize(), 3U);
    EXPECT_EQ(m_data.GetRecord(1).m_x, 0.7);
    EXPECT_EQ(m_data.GetRecord(1).m_msec, 5U);
    EXPECT_EQ(m_data.GetRecord(2).m_x, 0.0);
    EXPECT_EQ(m_data.GetRecord(2).m_checkKey, 0);
}

TEST_F(Online, TakesNoMoreLinesThanWereCounted)
{
    m_recorder.On("x", "\rG010203G040506\rG070809\r");
    Run(2);
    ASSERT_EQ(m_data.GetSize(), 2U);
    EXPECT_EQ(m_data.GetRecord(1).m_x, 0.4);
}

TEST_F(Online, EndsAtALetterWithoutSixBytesBehind)
{
    m_recorder.On("x", "\rG010203\rG04050\r");
    Run(2);
    ASSERT_EQ(m_data.GetSize(), 2U);
    EXPECT_EQ(m_data.GetRecord(1).m_x, 0.0);
    EXPECT_EQ(m_data.GetRecord(1).m_checkKey, 0);
}

TEST_F(Online, MakesAWrongValueOfABadDigit)
{
    m_recorder.On("x", "\rG0a0203\r");
    Run(1);
    EXPECT_EQ(m_data.GetRecord(0).m_x, 4.2);
}

TEST_F(Online, LeavesNothingBehindWhereItCanNotStart)
{
    m_recorder.On("x", "\rG010203\r");
    Run(1);
    m_link.m_timedOut = true;
    m_recorder.m_failWriteOf = "x";
    Watch();
    EXPECT_FALSE(m_link.StartOnline(100));
    EXPECT_EQ(m_traffic.m_log, "[x]");
    EXPECT_FALSE(m_link.IsOpen());
    EXPECT_FALSE(m_link.m_busy);
    EXPECT_FALSE(m_link.m_timedOut);
    EXPECT_EQ(m_link.m_onlineLines, 0U);
    EXPECT_TRUE(m_link.m_threadDone);
    // The dialog finishes it all the same.
    m_link.FinishOnline(m_data);
    EXPECT_TRUE(m_data.IsEmpty());
    EXPECT_FALSE(m_link.m_busy);
}

TEST_F(Online, ForgetsTheStopOfAnEarlierStream)
{
    m_recorder.On("x", "\rG010203\rG010203\rG010203\r");
    m_link.m_stopRequest = true;
    Run(3);
    EXPECT_EQ(m_data.GetSize(), 3U);
}

TEST_F(Online, LeavesACarriageReturnBehindAFullBufferToTheDrain)
{
    Watch();
    // One line makes room for 39 bytes; the end of line behind them counts no more.
    m_recorder.On("x", "\r" + std::string(39, '-') + "\r");
    Run(1);
    EXPECT_EQ(m_traffic.m_log, "[x]-" + std::string(39, '-') + "[#]\r+");
    EXPECT_EQ(m_link.m_onlineLines, 0U);
}

TEST_F(Online, DrainsNothingWhereTheStreamFellSilent)
{
    m_recorder.On("x", "\r");
    Run(10);
    // One read at the opening is the drain's; each of the others waited for the stream.
    const int reads = m_recorder.Reads();
    EXPECT_TRUE(m_link.m_timedOut);
    EXPECT_LE(reads, 2 + 1 + 101);
}

TEST_F(Online, CanBeWaitedFor)
{
    EXPECT_TRUE(m_link.WaitForThread(0));
    m_recorder.On("x", "\rG010203\r");
    ASSERT_TRUE(m_link.StartOnline(1));
    EXPECT_TRUE(m_link.WaitForThread(60'000));
    EXPECT_TRUE(m_link.m_threadDone);
    EXPECT_TRUE(m_link.m_busy);
    m_link.FinishOnline(m_data);
    EXPECT_FALSE(m_link.m_busy);
}

TEST_F(Online, StopsTheRecorderWhenTheLinkEnds)
{
    std::unique_ptr<CRecorderLink> link = NewLink();
    link->FindRecorderPort();
    m_recorder.On("x", "\r");
    m_recorder.m_endless = "G010203\r\n";
    m_recorder.m_readTakesMs = 5;
    const std::uint32_t before = m_clock.m_tick;
    ASSERT_TRUE(link->StartOnline(900'000));
    link.reset();
    EXPECT_LT(m_clock.m_tick - before, 900'000U);
    const std::vector<std::string> events = m_recorder.Events();
    EXPECT_EQ(events[events.size() - 2], "#");
    EXPECT_EQ(events.back(), "close");
}

} // namespace
} // namespace skeldon
