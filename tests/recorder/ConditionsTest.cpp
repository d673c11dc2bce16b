#include "ScriptedRecorder.h"

#include "recorder/ConditionCommands.h"
#include "recorder/StatusReport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace skeldon {
namespace {

using test::LinkFixture;
using test::Report;
using testing::ElementsAre;
using testing::IsEmpty;

RecorderStatus Recorder(int type, bool alpha = false, bool hasBuzzerKey = false)
{
    RecorderStatus status;
    status.m_type = type;
    status.m_alphaFirmware = alpha;
    status.m_hasBuzzerKey = hasBuzzerKey;
    return status;
}

CMeasureCondition Condition(int threshold = 0)
{
    CMeasureCondition condition;
    condition.Threshold = threshold;
    return condition;
}

TEST(ConditionCommands, ReachAStandardRecorder)
{
    CMeasureCondition condition = Condition(12);
    condition.SetSampling(7);
    condition.SetInterval(11);
    condition.OverThreshold = true;
    condition.SerialNo = 7;
    condition.StartOpt = 90;
    EXPECT_THAT(ConditionCommands(Recorder(10), condition),
                ElementsAre("i8", "jd", "d12", "k1", "N07", "w90"));
}

TEST(ConditionCommands, ReachTheOldestWithoutAStartOption)
{
    EXPECT_THAT(ConditionCommands(Recorder(0), Condition()),
                ElementsAre("i5", "j^", "d00", "k0", "N00"));
}

TEST(ConditionCommands, BringHazardAndEndlessToAlphaFirmware)
{
    CMeasureCondition condition = Condition(490);
    condition.Hazard = 495;
    condition.Endless = true;
    condition.Buzzer = true;
    EXPECT_THAT(ConditionCommands(Recorder(50, true), condition),
                ElementsAre("i5", "j^", "d98", "k0", "N00", "w05", "Ox99", "Oz01", "z0"));
    condition.Buzzer = false;
    condition.Endless = false;
    EXPECT_THAT(ConditionCommands(Recorder(2, true, true), condition),
                ElementsAre("i5", "j^", "d2450", "k0", "N00", "w05", "Ox2475", "Oz00", "z1"));
}

TEST(ConditionCommands, SendTheBuzzerOnlyWhereThereIsOne)
{
    CMeasureCondition condition;
    condition.Buzzer = true;
    EXPECT_EQ(ConditionCommands(Recorder(10, false, true), condition).back(), "z0");
    EXPECT_EQ(ConditionCommands(Recorder(10, true, false), condition).back(), "Oz00");
    EXPECT_EQ(ConditionCommands(Recorder(50, false, true), condition).back(), "w05");
}

TEST(ConditionCommands, CutTheThresholdAfterItsFactor)
{
    const auto threshold = [](int type, int value) {
        return ConditionCommands(Recorder(type), Condition(value))[2];
    };
    EXPECT_EQ(threshold(1, 5), "d50");
    EXPECT_EQ(threshold(50, 5), "d01");
    EXPECT_EQ(threshold(50, 4), "d00");
    EXPECT_EQ(threshold(50, 9), "d01");
    EXPECT_EQ(threshold(20, 3), "d01");
    EXPECT_EQ(threshold(2, 3), "d15");
    EXPECT_EQ(threshold(3, 3), "d12");
    EXPECT_EQ(threshold(5, 3), "d06");
    EXPECT_EQ(threshold(-2, 3), "d03");
}

TEST(ConditionCommands, BringEveryUsableLevelThereAndBack)
{
    const struct
    {
        int type;
        int highest;
        int step;
    } rows[] = {{1, 9, 1},   {2, 19, 1},   {3, 24, 1},  {5, 49, 1},
                {10, 99, 1}, {20, 198, 2}, {50, 490, 5}};
    for (const auto& row : rows) {
        for (int level = 0; level <= row.highest; level += row.step) {
            const std::string command =
                ConditionCommands(Recorder(row.type), Condition(level))[2].substr(1);
            RecorderStatus status;
            const std::string report = "@Count=0 0\r\n@Type=" + std::to_string(row.type) +
                                       "\r\n@detect=" + command + "\r\n";
            ASSERT_TRUE(ReadStatusReport(report, 2024, status));
            EXPECT_EQ(status.m_threshold, level) << row.type;
        }
    }
}

TEST(ConditionCommands, SendTheStandardSamplingWhereTheRecorderHasNoSuchRow)
{
    const char* const oldest = "0123555555";
    const char* const others = "5523546879";
    for (int row = 0; row < SamplingTable::Count; ++row) {
        CMeasureCondition condition;
        condition.SetSampling(row);
        const auto at = static_cast<std::size_t>(row);
        EXPECT_EQ(ConditionCommands(Recorder(0), condition)[0], std::string("i") + oldest[at]);
        EXPECT_EQ(ConditionCommands(Recorder(10), condition)[0], std::string("i") + others[at]);
    }
}

TEST(ConditionCommands, SendEachInterval)
{
    const std::string characters = "^TOJEDCBAfedcba";
    for (int row = 0; row < 15; ++row) {
        CMeasureCondition condition;
        condition.SetInterval(row);
        EXPECT_EQ(ConditionCommands(Recorder(10), condition)[1],
                  std::string("j") + characters[static_cast<std::size_t>(row)]);
    }
}

TEST(ClockCommand, HoldsLocalTimeInTwoDigits)
{
    EXPECT_EQ(ClockCommand(FromLocalFields({2024, 1, 2, 3, 4, 5})), "s2024 01/02 03:04:05");
    EXPECT_EQ(ClockCommand(FromLocalFields({2031, 12, 31, 23, 59, 58})), "s2031 12/31 23:59:58");
}

TEST(ReservationCommand, HoldsMonthDayAndMinute)
{
    EXPECT_EQ(ReservationCommand(FromLocalFields({2024, 7, 8, 9, 5, 59})), "l07/08 09:05");
}

TEST(TakeConditions, CopiesWhatTheRecorderHolds)
{
    RecorderStatus status = Recorder(10);
    status.m_hostNumber = 3;
    status.m_threshold = 40;
    status.m_intervalRow = 14;
    status.m_samplingRow = 9;
    status.m_warn = true;
    status.m_wait = 33;
    status.m_hazard = 50;
    status.m_endless = true;
    status.m_buzzer = true;
    CMeasureCondition condition;
    condition.ProfileName = "old";
    condition.FilePath = "/a/old.skp";
    condition.SaveFileType = 2;
    condition.Alarm = true;
    TakeConditions(status, condition);
    EXPECT_EQ(condition.ProfileName, "");
    EXPECT_EQ(condition.FilePath, "/a/old.skp");
    EXPECT_EQ(condition.SerialNo, 3);
    EXPECT_EQ(condition.Threshold, 40);
    EXPECT_EQ(condition.GetInterval(), 14);
    EXPECT_EQ(condition.GetSampling(), 9);
    EXPECT_TRUE(condition.OverThreshold);
    EXPECT_EQ(condition.StartOpt, 33);
    EXPECT_EQ(condition.Hazard, 50);
    EXPECT_TRUE(condition.Endless);
    EXPECT_TRUE(condition.Buzzer);
    EXPECT_TRUE(condition.Alarm);
    EXPECT_EQ(condition.SaveFileType, 2);
}

TEST(FactsOf, TellsTypeFirmwareAndBuzzer)
{
    const RecorderFacts facts = FactsOf(Recorder(50, true, false));
    EXPECT_EQ(facts.type, 50);
    EXPECT_TRUE(facts.isAlpha);
    EXPECT_TRUE(facts.hasBuzzer);
}

class Starting : public testing::Test, public LinkFixture
{
protected:
    Starting()
    {
        for (const char* command : {"i5", "j^", "d00", "k0", "N00", "w05", "t", Clock, Reservation})
            m_recorder.On(command, "ok#");
    }

    std::vector<std::string> WithConditions(std::vector<std::string> rest)
    {
        std::vector<std::string> all{
            "open /dev/cable", "m", "i5", "j^", "d00", "k0", "N00", "w05", "close"};
        all.insert(all.end(), rest.begin(), rest.end());
        return all;
    }

    static constexpr const char* Clock = "s2024 05/06 07:08:09";
    static constexpr const char* Reservation = "l12/24 18:30";
};

TEST_F(Starting, WritesTheConditionsAndClosesThePort)
{
    EXPECT_TRUE(m_link.WriteConditions(CMeasureCondition()));
    EXPECT_EQ(m_recorder.Events(), WithConditions({}));
}

TEST_F(Starting, OpensThePortAnewForClockAndStart)
{
    EXPECT_TRUE(m_link.StartMeasuring(CMeasureCondition(), true));
    EXPECT_EQ(m_recorder.Events(), WithConditions({"open /dev/cable", "m", Clock, "t", "close"}));
}

TEST_F(Starting, LeavesTheClockAloneWhereTheDataStays)
{
    EXPECT_TRUE(m_link.StartMeasuring(CMeasureCondition(), false));
    EXPECT_EQ(m_recorder.Events(), WithConditions({"open /dev/cable", "m", "t", "close"}));
}

TEST_F(Starting, ReservesBehindTheStartOnceMoreAnew)
{
    EXPECT_TRUE(m_link.StartReserved(CMeasureCondition(),
                                     FromLocalFields({2024, 12, 24, 18, 30, 0}), true));
    EXPECT_EQ(m_recorder.Events(), WithConditions({"open /dev/cable", "m", Clock, "t", "close",
                                                   "open /dev/cable", "m", Reservation, "close"}));
}

TEST_F(Starting, FailsAtEachCommandWithoutAnswerAndClosesThePort)
{
    const CalendarSeconds time = FromLocalFields({2024, 12, 24, 18, 30, 0});
    for (const char* command : {"i5", "j^", "d00", "k0", "N00", "w05", Clock, "t", Reservation}) {
        m_recorder.On(command, "#");
        EXPECT_FALSE(m_link.StartReserved(CMeasureCondition(), time, true)) << command;
        EXPECT_FALSE(m_link.IsOpen()) << command;
        const std::vector<std::string> events = m_recorder.Events();
        EXPECT_EQ(events[events.size() - 2], command);
        EXPECT_EQ(events.back(), "close");
        m_recorder.On(command, "ok#");
    }
}

TEST_F(Starting, FailsAtAnAnswerThatSilenceCutShort)
{
    m_recorder.On("k0", "ok");
    EXPECT_FALSE(m_link.WriteConditions(CMeasureCondition()));
    EXPECT_TRUE(m_link.m_timedOut);
    EXPECT_FALSE(m_link.IsOpen());
}

TEST_F(Starting, SendsNothingWhileATransferRuns)
{
    m_link.m_busy = true;
    EXPECT_FALSE(m_link.WriteConditions(CMeasureCondition()));
    EXPECT_FALSE(m_link.StartMeasuring(CMeasureCondition(), true));
    EXPECT_FALSE(m_link.StartReserved(CMeasureCondition(), 0, true));
    m_link.m_busy = false;
    EXPECT_THAT(m_recorder.Events(), IsEmpty());
}

TEST_F(Starting, ReadsTheConditionsBackWithTheStatus)
{
    m_recorder.On("p", Report("0 1", "@detect=1.2G\r\n@Record=a\r\n@wait=44\r\n"));
    CMeasureCondition condition;
    condition.ProfileName = "old";
    EXPECT_TRUE(m_link.ReadStatus(condition));
    EXPECT_EQ(condition.Threshold, 12);
    EXPECT_EQ(condition.GetInterval(), 14);
    EXPECT_EQ(condition.StartOpt, 44);
    EXPECT_EQ(condition.ProfileName, "");
    // A failed read leaves them alone.
    m_recorder.On("p", "#");
    condition.Threshold = 99;
    EXPECT_FALSE(m_link.ReadStatus(condition));
    EXPECT_EQ(condition.Threshold, 99);
}

} // namespace
} // namespace skeldon
