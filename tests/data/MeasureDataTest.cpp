#include "data/MeasureData.h"
#include "data/Lines.h"

#include <gtest/gtest.h>

namespace skeldon {
namespace {

TEST(MeasureData, StartsEmptyAndUnknown)
{
    const CMeasureData data;
    EXPECT_EQ(data.GetSize(), 0U);
    EXPECT_EQ(data.m_firstBreak, -1);
    EXPECT_EQ(data.m_abnormalCount, 0);
    EXPECT_TRUE(data.m_marks.empty());
    EXPECT_EQ(data.m_maxAbs, 50.0);
    EXPECT_EQ(data.m_signature, 0);
    EXPECT_EQ(data.GetSampling(), -1);
    EXPECT_EQ(data.GetInterval(), -1);
    EXPECT_EQ(data.m_threshold, -1);
    EXPECT_EQ(data.m_hostNumber, -1);
    EXPECT_EQ(data.m_hazard, -1);
    EXPECT_FALSE(data.m_endless);
    EXPECT_TRUE(data.m_hasTemperature);
    EXPECT_FALSE(data.m_hasHumidity);
    EXPECT_EQ(data.m_typeNumber, -1);
    EXPECT_EQ(data.m_dateVersion, 0);
    EXPECT_FALSE(data.m_fromFile);
    EXPECT_FALSE(data.m_yearRepairable);
}

TEST(Clear, DropsLinesAndWhatCameWithThem)
{
    CMeasureData data = DataOf({LineAt(5, 0, 1), LineAt(4)});
    data.SetSampling(3);
    data.SetInterval(4);
    data.m_threshold = 20;
    data.m_hostNumber = 7;
    data.m_fileName = "a.skd";
    data.m_fromFile = true;
    data.Analyse({});
    data.Clear();
    EXPECT_TRUE(data.IsEmpty());
    EXPECT_EQ(data.m_firstBreak, -1);
    EXPECT_TRUE(data.m_marks.empty());
    EXPECT_EQ(data.m_fileName, "");
    EXPECT_EQ(data.GetSampling(), -1);
    EXPECT_EQ(data.GetInterval(), -1);
    EXPECT_EQ(data.m_threshold, -1);
    EXPECT_EQ(data.m_hostNumber, -1);
    EXPECT_FALSE(data.m_fromFile);
}

TEST(Clear, LeavesTheOtherHeaderValues)
{
    CMeasureData data = DataOf({LineAt(5)});
    data.m_modelName = "QM70";
    data.m_release = "1.20";
    data.m_title = "Truck";
    data.m_hazard = 30;
    data.m_endless = true;
    data.m_hasTemperature = false;
    data.m_hasHumidity = true;
    data.m_typeNumber = 50;
    data.m_dateVersion = 1;
    data.m_extract = {{0x10, 1.0, true, 2.0, false}};
    data.m_signature = 99;
    data.Clear();
    EXPECT_EQ(data.m_modelName, "QM70");
    EXPECT_EQ(data.m_release, "1.20");
    EXPECT_EQ(data.m_title, "Truck");
    EXPECT_EQ(data.m_hazard, 30);
    EXPECT_TRUE(data.m_endless);
    EXPECT_FALSE(data.m_hasTemperature);
    EXPECT_TRUE(data.m_hasHumidity);
    EXPECT_EQ(data.m_typeNumber, 50);
    EXPECT_EQ(data.m_dateVersion, 1);
    EXPECT_EQ(data.m_extract.size(), 1U);
    EXPECT_EQ(data.m_signature, 99);
}

TEST(SetSampling, ClampsToUnknownAndToTheLastRow)
{
    CMeasureData data;
    struct Case
    {
        int row;
        int sampling;
        int interval;
    };
    for (const Case& test : {Case{-1, -1, -1}, Case{-77, -1, -1}, Case{0, 0, 0}, Case{9, 9, 9},
                             Case{10, 9, 10}, Case{14, 9, 14}, Case{15, 9, 14}, Case{999, 9, 14}}) {
        data.SetSampling(test.row);
        data.SetInterval(test.row);
        EXPECT_EQ(data.GetSampling(), test.sampling) << test.row;
        EXPECT_EQ(data.GetInterval(), test.interval) << test.row;
    }
}

TEST(SetSize, GrowsByLinesOfThePresentTime)
{
    CMeasureData data = DataOf({LineAt(5)});
    const CalendarSeconds before = Now();
    data.SetSize(40);
    ASSERT_EQ(data.GetSize(), 40U);
    EXPECT_EQ(data.GetRecord(0).m_time, 5);
    for (std::size_t i = 1; i < 40; ++i) {
        const CMeasureRecord record = data.GetRecord(i);
        EXPECT_GE(record.m_time, before);
        EXPECT_LE(record.m_time, Now());
        EXPECT_EQ(record.m_checkKey, 0);
        EXPECT_EQ(record.m_x, 0.0);
        EXPECT_EQ(record.m_flags, 0);
    }
}

TEST(SetSize, ShrinksFromTheEnd)
{
    CMeasureData data = DataOf({LineAt(1), LineAt(2), LineAt(3)});
    data.SetSize(2);
    ASSERT_EQ(data.GetSize(), 2U);
    EXPECT_EQ(data.GetRecord(1).m_time, 2);
    data.SetSize(0);
    EXPECT_TRUE(data.IsEmpty());
}

TEST(SetSize, KeepsLinesOfALargeArray)
{
    CMeasureData data;
    constexpr std::size_t Count = 200000; // beyond where large memory begins
    for (std::size_t i = 0; i < Count; ++i)
        data.AddRecord(LineAt(static_cast<CalendarSeconds>(i)));
    data.SetSize(2 * Count);
    for (std::size_t i = 0; i < Count; ++i)
        ASSERT_EQ(data.GetRecord(i).m_time, static_cast<CalendarSeconds>(i));
    EXPECT_EQ(data.GetRecord(2 * Count - 1).m_checkKey, 0);
}

TEST(NewLines, GivesThatManyLinesForFilling)
{
    CMeasureData data = DataOf({LineAt(1), LineAt(2), LineAt(3)});
    for (CMeasureRecord& line : data.NewLines(2))
        line = LineAt(9);
    ASSERT_EQ(data.GetSize(), 2U);
    EXPECT_EQ(data.GetRecord(0).m_time, 9);
    EXPECT_EQ(data.GetRecord(1).m_time, 9);
}

TEST(SetRecord, LeavesTheStatisticsOfTheLastAnalysis)
{
    CMeasureData data = DataOf({LineAt(1), LineAt(2)});
    data.Analyse({});
    CMeasureRecord line = LineAt(0, 0, 1);
    line.m_x = 70.0;
    data.SetRecord(1, line);
    EXPECT_EQ(data.m_maxAbs, 2.0);
    EXPECT_TRUE(data.m_marks.empty());
    EXPECT_EQ(data.m_firstBreak, 2);
    data.Analyse({});
    EXPECT_EQ(data.m_maxAbs, 70.0);
    EXPECT_EQ(data.m_firstBreak, 1);
}

TEST(GetRecord, GivesACopy)
{
    CMeasureData data = DataOf({LineAt(1)});
    CMeasureRecord line = data.GetRecord(0);
    line.SetFlags(1);
    EXPECT_EQ(data.GetRecord(0).m_flags, 0);
}

TEST(MeasureData, NeverSortsItsLines)
{
    CMeasureData data = DataOf({LineAt(30), LineAt(10), LineAt(20)});
    data.Analyse({});
    EXPECT_EQ(data.GetRecord(0).m_time, 30);
    EXPECT_EQ(data.GetRecord(1).m_time, 10);
    EXPECT_EQ(data.GetRecord(2).m_time, 20);
}

} // namespace
} // namespace skeldon
