#include "recorder/ConditionCommands.h"
#include "recorder/ReadBack.h"
#include "setup/conditions/MeasureCondition.h"
#include "support/recorder/CutTalk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace skeldon::test {

namespace {

/// One silence, the opening of ports before and behind it, and what the wire takes.
constexpr std::int64_t LongestMs = CRecorderTransport::TimeoutMs + 2000;
/// How long a cable is out that comes back in the middle of the silence.
constexpr std::int64_t ShortMs = 1000;

/// A link that has met its recorder, as the window's has by its look for the cable.
struct Met : PlayedRecorder
{
    explicit Met(const PlayedModel& model)
        : PlayedRecorder(model)
        , m_link(m_recorder.MakeFinder(), m_recorder.Opener(), m_clock)
    {
        Meet();
    }
    void Meet()
    {
        EXPECT_TRUE(m_link.FindRecorderPort());
        EXPECT_TRUE(m_link.OpenPort() && m_link.ReadStatus());
    }

    CRecorderLink m_link;
};

enum class Return
{
    Later, ///< the cable is plugged in when the conversation has failed
    Soon,  ///< it is back before the conversation has noticed that it went
};

/// A conversation, and what is looked at when the cable went in it.
template <class Outcome>
struct Talk
{
    PlayedModel model;
    std::function<Outcome(CRecorderLink&)> run;
    /// Looks at the outcome of a cable pulled behind so many bytes of the wire.
    std::function<void(Met&, const Outcome&, std::size_t bytes, const Wire&)> check;
    /// Whether a conversation behind the failed one went well.
    std::function<bool(const Outcome&)> isWhole;
    std::size_t step = 1; ///< from one place of the cable's end to the next, in the middle
};

/// All places, or of a long conversation every so many'th between its first and last hundred bytes.
std::vector<std::size_t> Places(std::size_t size, std::size_t step)
{
    constexpr std::size_t Ends = 100;
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place <= size;
         place += place < Ends || place + Ends + step > size ? 1 : step)
        places.push_back(place);
    return places;
}

template <class Outcome>
Wire WholeWire(const Talk<Outcome>& talk)
{
    Met met(talk.model);
    met.m_recorder.KeepWire();
    EXPECT_TRUE(talk.isWhole(talk.run(met.m_link)));
    return met.m_recorder.GetWire();
}

void CheckAtRest(Met& met, std::int64_t begunMs)
{
    EXPECT_LE(met.m_clock.m_ms - begunMs, LongestMs);
    EXPECT_FALSE(met.m_link.m_busy);
    EXPECT_TRUE(met.m_link.m_threadDone);
    EXPECT_FALSE(met.m_link.IsOpen());
}

/// Pulls the cable behind every byte of the conversation; then the next one must go well.
template <class Outcome>
void PullEverywhere(const Talk<Outcome>& talk, Return back)
{
    const Wire wire = WholeWire(talk);
    ASSERT_FALSE(wire.bytes.empty());
    for (const std::size_t bytes : Places(wire.bytes.size(), talk.step)) {
        SCOPED_TRACE(NameOf(wire, bytes));
        Met met(talk.model);
        (void)met.m_link.TakeCut();
        met.PullAt(bytes);
        if (back == Return::Soon)
            met.m_recorder.PlugAgainAfter(ShortMs);
        const std::int64_t begun = met.m_clock.m_ms;
        const Outcome outcome = talk.run(met.m_link);
        CheckAtRest(met, begun);
        talk.check(met, outcome, bytes, wire);
        met.PlugAgain();
        // What is plugged in may be another: the window asks it first.
        met.Meet();
        const std::int64_t next = met.m_clock.m_ms;
        EXPECT_TRUE(talk.isWhole(talk.run(met.m_link)));
        CheckAtRest(met, next);
        if (::testing::Test::HasFailure())
            return;
    }
}

template <class Outcome>
void PullEverywhere(const Talk<Outcome>& talk)
{
    PullEverywhere(talk, Return::Later);
    PullEverywhere(talk, Return::Soon);
}

bool IsTrue(const bool& outcome)
{
    return outcome;
}

TEST(PulledCable, LeavesNoHalfStatus)
{
    Talk<bool> talk{.model = {.type = 50, .alpha = true, .lines = 1234},
                    .run = [](CRecorderLink& link) { return link.OpenPort() && link.ReadStatus(); },
                    .check = {},
                    .isWhole = IsTrue};
    talk.check = [](Met& met, bool isRead, std::size_t bytes, const Wire& wire) {
        EXPECT_EQ(isRead, bytes == wire.bytes.size());
        EXPECT_EQ(met.m_link.m_type, 50);
        EXPECT_EQ(met.m_link.m_count, 1234);
    };
    PullEverywhere(talk);
}

TEST(PulledCable, IsToldOnceByTheLinkAndOnlyWhereAPortDied)
{
    Met met({.lines = 4});
    EXPECT_FALSE(met.m_link.TakeCut());
    met.PullAt(4);
    EXPECT_FALSE(met.m_link.OpenPort() && met.m_link.ReadStatus());
    EXPECT_TRUE(met.m_link.TakeCut());
    EXPECT_FALSE(met.m_link.TakeCut());
    EXPECT_FALSE(met.m_link.OpenPort());
    EXPECT_FALSE(met.m_link.TakeCut()) << "nothing was open";
}

/// A reply counts from its first byte on.
std::function<void(Met&, const bool&, std::size_t, const Wire&)>
CountsFromTheFirstByteOf(const std::string& command)
{
    return [command](Met&, bool isAnswered, std::size_t bytes, const Wire& wire) {
        EXPECT_EQ(isAnswered, bytes > SentAt(wire, command));
    };
}

TEST(PulledCable, InACalibration)
{
    PullEverywhere<bool>({.model = {.type = 10},
                          .run = [](CRecorderLink& link) { return link.Calibrate(); },
                          .check = CountsFromTheFirstByteOf("w99"),
                          .isWhole = IsTrue});
}

TEST(PulledCable, InAChangeOfTheRange)
{
    Talk<bool> talk{.model = {.type = 10, .alpha = true},
                    .run = [](CRecorderLink& link) { return link.ChangeRange(); },
                    .check = {},
                    .isWhole = IsTrue};
    talk.check = [](Met& met, bool isAnswered, std::size_t bytes, const Wire& wire) {
        const std::size_t sent = SentAt(wire, "20");
        EXPECT_EQ(isAnswered, bytes > sent);
        EXPECT_EQ(met.m_link.m_rangeChanged, isAnswered);
        // The recorder may have changed without being able to say so; the next look tells.
        met.PlugAgain();
        met.Meet();
        EXPECT_EQ(met.m_link.m_type, bytes >= sent ? 20 : 10);
    };
    PullEverywhere(talk);
}

TEST(PulledCable, InACommandOfTheMonitor)
{
    Talk<bool> talk{.model = {.type = 10, .alpha = false, .lines = 3},
                    .run = [](CRecorderLink& link) { return link.SendMonitorCommand("p"); },
                    .check = {},
                    .isWhole = {}};
    // The port stays open behind one that went well.
    talk.isWhole = [](const bool& isSent) { return isSent; };
    const Wire wire = WholeWire(talk);
    for (const Stage& stage : StagesOf(wire)) {
        SCOPED_TRACE(stage.name);
        Met met(talk.model);
        met.PullAt(stage.bytes);
        met.m_recorder.PlugAgainAfter(ShortMs);
        const std::int64_t begun = met.m_clock.m_ms;
        EXPECT_EQ(talk.run(met.m_link), stage.bytes > SentAt(wire, "p"));
        CheckAtRest(met, begun);
        // The next operation meets no dead port, even if nobody has looked for the cable.
        met.m_recorder.SetFaults({});
        met.m_recorder.Plug();
        EXPECT_TRUE(met.m_link.Calibrate());
        if (HasFailure())
            return;
    }
}

CMeasureCondition Conditions()
{
    CMeasureCondition condition;
    condition.SerialNo = 7;
    condition.StartOpt = 30;
    condition.Hazard = 50;
    condition.Endless = true;
    return condition;
}

/// A start, with what the recorder must hold behind it.
Talk<bool> Start(const PlayedModel& model, std::function<bool(CRecorderLink&)> run)
{
    Talk<bool> talk{.model = model, .run = std::move(run), .check = {}, .isWhole = IsTrue};
    talk.check = [model](Met& met, bool isStarted, std::size_t bytes, const Wire& wire) {
        EXPECT_EQ(isStarted, bytes == wire.bytes.size());
        // The lines go with the clock's command alone; what it does not reach keeps them.
        constexpr std::size_t ClockLength = 20;
        const std::size_t clock = SentAt(wire, "s20") - 3 + ClockLength;
        const bool isCleared = bytes >= clock;
        met.PlugAgain();
        met.Meet();
        if (!isCleared) {
            EXPECT_GE(met.m_link.m_count, static_cast<int>(model.lines));
        }
        if (bytes == clock) {
            EXPECT_EQ(met.m_link.m_count, 0);
        }
        // What was sent stays on the recorder.
        EXPECT_EQ(met.m_link.m_hostNumber, bytes >= SentAt(wire, "N07") ? 7 : 0);
        EXPECT_EQ(met.m_link.m_endless, bytes >= SentAt(wire, "Oz01"));
    };
    return talk;
}

constexpr PlayedModel Full = {.type = 50, .alpha = true, .lines = 40};

TEST(PulledCable, InAStartThatKeepsTheData)
{
    PullEverywhere(
        Start(Full, [](CRecorderLink& link) { return link.StartMeasuring(Conditions(), false); }));
}

TEST(PulledCable, InAStartThatClears)
{
    PullEverywhere(
        Start(Full, [](CRecorderLink& link) { return link.StartMeasuring(Conditions(), true); }));
}

TEST(PulledCable, InAReservation)
{
    PullEverywhere(Start(Full, [](CRecorderLink& link) {
        constexpr CalendarSeconds Day = 86400;
        return link.StartReserved(Conditions(), CVirtualClock::Start + Day, true);
    }));
}

struct Download
{
    int expected = 0;
    int received = 0;
    CMeasureData data;
};

Download ReadAll(CRecorderLink& link)
{
    Download download;
    download.expected = link.StartDownload();
    if (download.expected > 0)
        download.received = ReadBack(link, download.expected, download.data);
    return download;
}

bool SameValues(const CMeasureRecord& a, const CMeasureRecord& b)
{
    return a.m_time == b.m_time && a.m_x == b.m_x && a.m_y == b.m_y && a.m_z == b.m_z &&
           a.m_temperature == b.m_temperature && a.m_humidity == b.m_humidity;
}

/// The digits of each line that has arrived, the last of which may be cut short.
std::vector<std::size_t> LineDigits(std::string_view text)
{
    std::vector<std::size_t> lines;
    bool isInLine = false;
    for (const char c : text) {
        const bool isDigit = c != '\r' && c != '\n' && c != '#';
        if (isDigit && !isInLine)
            lines.push_back(0);
        if (isDigit)
            ++lines.back();
        isInLine = isDigit;
    }
    return lines;
}

Talk<Download> DownloadOf(const PlayedModel& model)
{
    const int count = static_cast<int>(model.lines);
    Talk<Download> talk{.model = model, .run = ReadAll, .check = {}, .isWhole = {}};
    talk.isWhole = [count](const Download& download) {
        return download.expected == count && download.received == count &&
               download.data.m_abnormalCount == 0;
    };
    Met whole(model);
    const Download all = ReadAll(whole.m_link);
    talk.check = [all, count, model](Met& met, const Download& download, std::size_t bytes,
                                     const Wire& wire) {
        const std::size_t report = wire.bytes.find('#') + 1;
        const std::size_t get = SentAt(wire, model.type == OldestType ? "G" : "D");
        // A command with which the cable goes counts as not sent.
        if (bytes <= get) {
            EXPECT_EQ(download.expected,
                      bytes < report ? CRecorderLink::NoStatus : CRecorderLink::NoGetCommand);
            return;
        }
        EXPECT_EQ(download.expected, count);
        const std::vector<std::size_t> digits =
            LineDigits(std::string_view(wire.bytes).substr(get, bytes - get));
        ASSERT_EQ(download.received, static_cast<int>(digits.size()));
        const auto full = static_cast<std::size_t>(met.m_link.m_lineLength) - 2;
        for (std::size_t i = 0; i < digits.size(); ++i) {
            const CMeasureRecord& line = download.data.GetRecord(i);
            EXPECT_EQ(line.HasFlag(RecordFlag::Abnormal), digits[i] < full) << i;
            if (digits[i] == full) {
                EXPECT_TRUE(SameValues(line, all.data.GetRecord(i))) << i;
            }
        }
    };
    return talk;
}

TEST(PulledCable, InADownloadKeepsEveryLineThatArrived)
{
    PullEverywhere(DownloadOf({.type = 50, .alpha = true, .lines = 12}));
    PullEverywhere(DownloadOf({.type = 10, .alpha = false, .lines = 12}));
}

TEST(PulledCable, InADownloadOfTheOldestRecorder)
{
    PullEverywhere(DownloadOf({.type = OldestType, .alpha = false, .lines = 12}));
}

struct Recording
{
    bool isStarted = false;
    bool isTimedOut = false;
    CMeasureData data;
};

TEST(PulledCable, InALiveStreamKeepsEveryLineThatArrived)
{
    constexpr std::uint32_t Lines = 200;
    Talk<Recording> talk{.model = {.type = 10}, .run = {}, .check = {}, .isWhole = {}, .step = 37};
    talk.run = [](CRecorderLink& link) {
        Recording recording;
        recording.isStarted = link.StartOnline(Lines);
        while (!link.WaitForThread(1000)) {
        }
        link.FinishOnline(recording.data);
        recording.isTimedOut = link.m_timedOut;
        return recording;
    };
    talk.isWhole = [](const Recording& recording) {
        return recording.isStarted && !recording.isTimedOut && recording.data.GetSize() == Lines;
    };
    talk.check = [](Met&, const Recording& recording, std::size_t bytes, const Wire& wire) {
        const std::size_t begin = SentAt(wire, "x");
        EXPECT_EQ(recording.isStarted, bytes > begin);
        if (bytes <= begin) {
            EXPECT_EQ(recording.data.GetSize(), 0U);
            return;
        }
        const auto ends = static_cast<std::size_t>(
            std::ranges::count(wire.bytes.substr(begin, bytes - begin), '\r'));
        // The first end of line only shows where lines begin.
        const std::size_t arrived = std::min<std::size_t>(ends == 0 ? 0 : ends - 1, Lines);
        EXPECT_EQ(recording.data.GetSize(), arrived);
        EXPECT_EQ(recording.isTimedOut, arrived < Lines);
    };
    PullEverywhere(talk);
}

} // namespace

} // namespace skeldon::test
