#include "ScriptedRecorder.h"

#include "data/RecordFlags.h"
#include "recorder/ReadBack.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace skeldon {
namespace {

using test::LinkFixture;
using test::Report;
using testing::ElementsAre;

// May 21st 13:45:58, X 0.1 G and so on, 25 degrees.
const std::string Line = "52ADB7A00102031900\r\n";

std::string Lines(int count)
{
    std::string lines;
    for (int i = 0; i < count; ++i)
        lines += Line;
    return lines;
}

class Download : public testing::Test, public LinkFixture
{
protected:
    /// The whole way; the number of lines read, or the failure code.
    int Run()
    {
        const int expected = m_link.StartDownload();
        return expected < 1 ? expected : ReadBack(m_link, expected, m_data);
    }

    CMeasureData m_data;
};

TEST_F(Download, ReadsAllLinesAndClosesThePort)
{
    m_recorder.On("p", Report("3 100"));
    m_recorder.On("D", Lines(3) + "#");
    // As a live stream leaves them.
    m_data.m_hasTemperature = false;
    m_data.m_hasHumidity = true;
    EXPECT_EQ(Run(), 3);
    ASSERT_EQ(m_data.GetSize(), 3U);
    EXPECT_EQ(m_data.GetRecord(2).m_x, 0.1);
    EXPECT_EQ(ToLocalFields(m_data.GetRecord(2).m_time), (CalendarFields{2024, 5, 21, 13, 45, 58}));
    EXPECT_TRUE(m_data.m_hasTemperature);
    EXPECT_FALSE(m_data.m_hasHumidity);
    EXPECT_FALSE(m_link.m_busy);
    EXPECT_TRUE(m_link.m_threadDone);
    EXPECT_FALSE(m_link.m_timedOut);
    EXPECT_THAT(m_recorder.Events(), ElementsAre("open /dev/cable", "m", "p", "close",
                                                 "open /dev/cable", "m", "D", "close"));
}

TEST_F(Download, AsksTheOldestRecordersByAnotherLetter)
{
    m_recorder.On("p", "@Count=2 9\r\n@Year=2024\r\n#");
    m_recorder.On("G", "52ADB7A101020319\r\n52ADB7A201020319\r\n#");
    EXPECT_EQ(Run(), 2);
    EXPECT_EQ(m_data.GetRecord(1).m_msec, 125U);
    EXPECT_EQ(m_recorder.Events()[6], "G");
}

TEST_F(Download, AsksAnUnknownTypeLikeTheNewerOnes)
{
    m_recorder.On("p", "@Count=1 9\r\n@Type=7\r\n#");
    m_recorder.On("D", Line + "#");
    EXPECT_EQ(Run(), 1);
}

TEST_F(Download, SendsNothingToAnEmptyRecorder)
{
    m_recorder.On("p", Report("0 100"));
    EXPECT_EQ(m_link.StartDownload(), 0);
    EXPECT_FALSE(m_link.m_busy);
    EXPECT_TRUE(m_link.m_threadDone);
    EXPECT_THAT(m_recorder.Events(), ElementsAre("open /dev/cable", "m", "p", "close"));
    m_recorder.On("p", Report("4294967295 100"));
    EXPECT_EQ(m_link.StartDownload(), 0);
}

TEST_F(Download, FailsWithoutAStatus)
{
    EXPECT_EQ(m_link.StartDownload(), -1);
    EXPECT_FALSE(m_link.m_busy);
}

TEST_F(Download, DrainsAndClosesWhereTheGetCommandFails)
{
    m_recorder.On("p", Report("3 100"));
    m_recorder.m_failWriteOf = "D";
    EXPECT_EQ(m_link.StartDownload(), -2);
    EXPECT_FALSE(m_link.IsOpen());
    EXPECT_FALSE(m_link.m_busy);
    m_recorder.m_failWriteOf.clear();
    m_recorder.m_shortWriteOf = "D";
    m_recorder.On("D", "rest");
    EXPECT_EQ(m_link.StartDownload(), -2);
    EXPECT_TRUE(m_recorder.IsQuiet());
}

TEST_F(Download, TakesTheHumidityByTheReportBefore)
{
    const std::string alpha = "@Count=1 9\r\n@korvaPL_A RLS=1\r\n@Type=10\r\n#";
    m_recorder.On("p", alpha);
    m_recorder.On("D", "52ADB7A001020319002A\r\n#");
    // What the first report of all tells comes too late for its own download.
    EXPECT_EQ(Run(), 1);
    EXPECT_FALSE(m_data.m_hasHumidity);
    EXPECT_EQ(m_data.GetRecord(0).m_humidity, 0.0);
    EXPECT_EQ(Run(), 1);
    EXPECT_TRUE(m_data.m_hasHumidity);
    EXPECT_EQ(m_data.GetRecord(0).m_humidity, 42.0);
}

TEST_F(Download, KeepsWhatCameBeforeFifteenSecondsOfSilence)
{
    m_recorder.On("p", Report("4 100"));
    m_recorder.On("D", {Lines(1), Line + "52AD"});
    EXPECT_EQ(Run(), 3);
    EXPECT_TRUE(m_link.m_timedOut);
    ASSERT_EQ(m_data.GetSize(), 3U);
    EXPECT_EQ(m_data.GetRecord(1).m_flags, 0);
    // The line that was cut is filled up.
    EXPECT_EQ(m_data.GetRecord(2).m_flags, RecordFlag::Abnormal);
    EXPECT_EQ(m_recorder.Events().back(), "close");
}

TEST_F(Download, FlagsAllLinesBehindAnAbnormalOneUntilTheNextDownload)
{
    m_recorder.On("p", Report("4 100"));
    m_recorder.On("D", Line + "52AD\r\n" + Lines(2) + "#");
    ASSERT_EQ(Run(), 4);
    EXPECT_EQ(m_data.GetRecord(0).m_flags, 0);
    for (std::size_t i = 1; i < 4; ++i)
        EXPECT_EQ(m_data.GetRecord(i).m_flags, RecordFlag::Abnormal) << i;
    m_recorder.On("D", Lines(4) + "#");
    ASSERT_EQ(Run(), 4);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(m_data.GetRecord(i).m_flags, 0) << i;
}

TEST_F(Download, CountsSilenceAndNotTheWholeTime)
{
    m_recorder.On("p", Report("4 100"));
    m_recorder.On("D", Lines(1));
    m_recorder.m_beforeRead = [this](int read) {
        // A line comes every 80 reads, that is 12 seconds.
        if (read % 80 == 0)
            m_recorder.Arrive(read == 240 ? Line + "#" : Line);
    };
    EXPECT_EQ(Run(), 4);
    EXPECT_FALSE(m_link.m_timedOut);
}

TEST_F(Download, WaitsForTheClosingMarkBehindTheLastLine)
{
    m_recorder.On("p", Report("2 100"));
    m_recorder.On("D", Lines(2));
    const std::uint32_t before = m_clock.m_tick;
    EXPECT_EQ(Run(), 2);
    EXPECT_TRUE(m_link.m_timedOut);
    EXPECT_GE(m_clock.m_tick - before, 15000U);
}

TEST_F(Download, TakesNoLine)
{
    m_recorder.On("p", Report("2 100"));
    m_recorder.On("D", "#");
    EXPECT_EQ(Run(), 0);
    EXPECT_TRUE(m_data.IsEmpty());
    EXPECT_FALSE(m_link.m_timedOut);
}

TEST_F(Download, StopsAtTheAnnouncedCountAndDrainsTheRest)
{
    Watch();
    const std::string reply = Lines(20) + "#after";
    m_recorder.On("p", Report("2 100"));
    m_recorder.On("D", {reply.substr(0, 50), reply.substr(50, 1), reply.substr(51)});
    EXPECT_EQ(Run(), 2);
    EXPECT_EQ(m_data.GetSize(), 2U);
    EXPECT_TRUE(m_recorder.IsQuiet());
    // Each byte is reported once and in order, whether it was stored or drained.
    const std::string status = Report("2 100");
    EXPECT_EQ(m_traffic.m_log, "[p]" + status + "[D]-" + reply + "+");
}

TEST_F(Download, ReportsWhatStandsBehindTheClosingMarkWithTheDrain)
{
    Watch();
    m_recorder.On("p", Report("2 100"));
    m_recorder.On("D", Lines(2) + "#\r\nmore");
    EXPECT_EQ(Run(), 2);
    EXPECT_TRUE(m_traffic.m_log.ends_with("#\r\nmore+"));
}

TEST_F(Download, EndsWithTheBufferOfTheAnnouncedLines)
{
    // Two lines of 20 bytes and 30 bytes to spare: what is stored ends in the fourth line, whose
    // next digit would show in Y.
    const std::string lines = Lines(3) + "52ADB7A001F2031900\r\n" + Lines(96);
    m_recorder.On("p", Report("2 100"));
    m_recorder.On("D", lines);
    ASSERT_EQ(m_link.StartDownload(), 2);
    CMeasureRecord record;
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(m_link.NextRecord(record));
        EXPECT_EQ(record.m_flags, 0) << i;
    }
    ASSERT_TRUE(m_link.NextRecord(record));
    EXPECT_EQ(record.m_flags, RecordFlag::Abnormal);
    EXPECT_EQ(record.m_x, 0.1);
    EXPECT_EQ(record.m_y, 0.0); // the fourth line's tenth digit is the last
    EXPECT_FALSE(m_link.NextRecord(record));
    m_link.FinishDownload(m_data);
    EXPECT_FALSE(m_link.m_timedOut);
    EXPECT_TRUE(m_recorder.IsQuiet());
}

TEST_F(Download, AllocatesNothingAheadForAnyAnnouncement)
{
    for (const char* count : {"2147483647 1", "1,000,000,000 1"}) {
        m_recorder.On("p", Report(count));
        m_recorder.On("D", Lines(3) + "#");
        EXPECT_EQ(Run(), 3) << count;
        EXPECT_EQ(m_data.GetSize(), 3U);
    }
}

TEST_F(Download, SleepsWhileThePulledCableFails)
{
    m_recorder.On("p", Report("5 100"));
    m_recorder.On("D", Lines(2));
    // Two reads at each opening, one for the report, one for the lines.
    m_recorder.m_failReadsFrom = 7;
    const std::uint32_t before = m_clock.m_tick;
    EXPECT_EQ(Run(), 2);
    EXPECT_TRUE(m_link.m_timedOut);
    EXPECT_GE(m_clock.m_tick - before, 15000U);
    EXPECT_LE(m_recorder.Reads(), 120);
    EXPECT_GE(m_clock.m_sleeps, 99);
}

TEST_F(Download, CanBeDoneTwiceInARow)
{
    m_recorder.On("p", Report("2 100"));
    m_recorder.On("D", Lines(1) + "00\r\n#");
    EXPECT_EQ(Run(), 2);
    EXPECT_EQ(m_data.GetRecord(1).m_flags, RecordFlag::Abnormal);
    m_recorder.On("D", Lines(2) + "#");
    EXPECT_EQ(Run(), 2);
    // A new download starts with a clear record.
    EXPECT_EQ(m_data.GetRecord(0).m_flags, 0);
    EXPECT_EQ(m_data.GetRecord(1).m_flags, 0);
}

TEST_F(Download, ReadsManyLinesWhileTheyArrive)
{
    constexpr int Count = 20'000;
    m_recorder.On("p", Report(std::to_string(Count) + " 99999"));
    test::CScriptedRecorder::Pieces pieces;
    for (const std::string all = Lines(Count) + "#"; pieces.size() * 777 < all.size();)
        pieces.push_back(all.substr(pieces.size() * 777, 777));
    m_recorder.On("D", pieces);
    EXPECT_EQ(Run(), Count);
    bool same = true;
    for (const CMeasureRecord& record : m_data.Records())
        same = same && record.m_checkKey == m_data.GetRecord(0).m_checkKey && record.m_y == 0.2;
    EXPECT_TRUE(same);
}

TEST_F(Download, ForgetsTheSilenceOfTheReportBeforeIt)
{
    std::string open = Report("2 100");
    open.pop_back(); // without its mark the report ends by silence, and counts all the same
    m_recorder.On("p", open);
    m_recorder.On("D", Lines(2) + "#");
    EXPECT_EQ(Run(), 2);
    EXPECT_FALSE(m_link.m_timedOut);
}

TEST_F(Download, GivesNoRecordOutsideATransfer)
{
    CMeasureRecord record(3);
    EXPECT_FALSE(m_link.NextRecord(record));
    EXPECT_EQ(record.m_time, 3);
}

TEST_F(Download, IsAbandonedWithTheLink)
{
    std::unique_ptr<CRecorderLink> link = NewLink();
    link->FindRecorderPort();
    m_recorder.On("p", Report("1000000 1"));
    m_recorder.On("D", Lines(1));
    ASSERT_EQ(link->StartDownload(), 1000000);
    link.reset();
    EXPECT_EQ(m_recorder.Events().back(), "close");
}

class CProgressLog final : public CReadBackObserver
{
public:
    void ShowWarning(bool red) override { m_log.push_back(red ? "red" : "white"); }
    void ShowPosition(int line) override { m_log.push_back(std::to_string(line)); }
    std::vector<std::string> m_log;
};

TEST_F(Download, MovesTheGaugeEvery40LinesAndBlinksEvery512)
{
    m_recorder.On("p", Report("1100 9999"));
    m_recorder.On("D", Lines(1030) + "#");
    CProgressLog progress;
    const int expected = m_link.StartDownload();
    EXPECT_EQ(ReadBack(m_link, expected, m_data, &progress), 1030);
    std::vector<std::string> wanted;
    for (int line = 0; line <= 1030; ++line) {
        if (line == 0 || line == 1024)
            wanted.emplace_back("white");
        if (line == 512)
            wanted.emplace_back("red");
        if (line % 40 == 0)
            wanted.push_back(std::to_string(line));
    }
    EXPECT_EQ(progress.m_log, wanted);
    EXPECT_EQ(m_data.GetSize(), 1030U);
}

TEST(TakeHeader, CopiesHowTheRecorderMeasured)
{
    RecorderStatus status;
    status.m_type = 50;
    status.m_release = "A1";
    status.m_samplingRow = 7;
    status.m_intervalRow = 11;
    status.m_threshold = 120;
    status.m_hostNumber = 9;
    status.m_hazard = 495;
    status.m_endless = true;
    CMeasureData data;
    TakeHeader(status, data);
    EXPECT_EQ(data.m_modelName, "QM70");
    EXPECT_EQ(data.m_release, "A1");
    EXPECT_EQ(data.m_typeNumber, 50);
    EXPECT_EQ(data.GetSampling(), 7);
    EXPECT_EQ(data.GetInterval(), 11);
    EXPECT_EQ(data.m_threshold, 120);
    EXPECT_EQ(data.m_hostNumber, 9);
    EXPECT_EQ(data.m_hazard, 495);
    EXPECT_TRUE(data.m_endless);
}

} // namespace
} // namespace skeldon
