#include "data/Lines.h"

#include <gtest/gtest.h>

namespace skeldon {
namespace {

using testing::ElementsAre;

/// A download over New Year that was dated with the year of its end: December lies in the future
/// of a PC whose year has just begun.
CMeasureData NewYearData()
{
    return DataOf({LineOn(2009, 12, 30), LineOn(2009, 12, 31), LineOn(2009, 1, 1, 6),
                   LineOn(2009, 1, 1, 7), LineOn(2009, 1, 2)});
}

CalendarSeconds Date(int year, int month, int day)
{
    return FromLocalFields({year, month, day, 0, 0, 0});
}

TEST(Analyse, CallsTheYearRepairableWhereTheBreakLiesInTheFuture)
{
    CMeasureData data = NewYearData();
    data.Analyse({0, 0, Date(2008, 12, 31)});
    EXPECT_TRUE(data.m_yearRepairable);
    data = NewYearData();
    data.Analyse({0, 0, FromLocalFields({2009, 1, 1, 6, 0, 0})});
    EXPECT_FALSE(data.m_yearRepairable); // equal is not later
}

TEST(RepairYear, PutsTheLinesBehindTheBreakIntoTheNextYear)
{
    CMeasureData data = NewYearData();
    data.Analyse({0, 0, Date(2008, 12, 31)});
    EXPECT_TRUE(data.RepairYear());
    EXPECT_THAT(YearsOf(data), ElementsAre(2009, 2009, 2010, 2010, 2010));
    EXPECT_EQ(data.GetRecord(2).m_time, FromLocalFields({2010, 1, 1, 6, 0, 0}));
    EXPECT_THAT(FlagsOf(data), ElementsAre(0, 0, 0x4000, 0x4000, 0x4000));
    EXPECT_EQ(data.m_firstBreak, 5);
    EXPECT_FALSE(data.m_badTime);
    EXPECT_EQ(data.m_abnormalCount, 3);
}

TEST(RepairYear, KeepsTheKeysInStep)
{
    CMeasureData data = NewYearData();
    data.Analyse({0, 0, Date(2008, 12, 31)});
    const std::int64_t before = data.ComputeSignature();
    ASSERT_TRUE(data.RepairYear());
    for (const CMeasureRecord& record : data.Records())
        EXPECT_EQ(record.m_checkKey, record.CheckKey());
    EXPECT_NE(data.ComputeSignature(), before);
}

TEST(RepairYear, DoesNothingWithoutABreakInTheFuture)
{
    CMeasureData data = NewYearData();
    data.Analyse({0, 0, Date(2020, 1, 1)});
    EXPECT_FALSE(data.RepairYear());
    EXPECT_THAT(YearsOf(data), ElementsAre(2009, 2009, 2009, 2009, 2009));
    EXPECT_TRUE(data.m_badTime);
    EXPECT_EQ(data.m_firstBreak, 2);
}

TEST(RepairYear, DoesNothingWhereTimeFallsAgainBehindTheBreak)
{
    CMeasureData data = DataOf({LineOn(2009, 12, 31), LineOn(2009, 1, 2), LineOn(2009, 1, 1)});
    data.Analyse({0, 0, 0});
    ASSERT_TRUE(data.m_yearRepairable);
    EXPECT_FALSE(data.RepairYear());
    EXPECT_THAT(YearsOf(data), ElementsAre(2009, 2009, 2009));
    EXPECT_THAT(FlagsOf(data), ElementsAre(0, 0x6000, 0x6000));
}

TEST(RepairYear, LetsEqualTimesPass)
{
    CMeasureData data = DataOf({LineOn(2009, 12, 31), LineOn(2009, 1, 1), LineOn(2009, 1, 1)});
    data.Analyse({0, 0, 0});
    EXPECT_TRUE(data.RepairYear());
}

TEST(RepairYear, NeedsTwoLines)
{
    // The first line breaks by itself where its milliseconds are too large.
    CMeasureData data = DataOf({LineAt(5000, 1000)});
    data.Analyse({0, 0, 0});
    ASSERT_TRUE(data.m_yearRepairable);
    EXPECT_FALSE(data.RepairYear());
}

TEST(RepairYear, RunsOnlyOnceAfterAnAnalysis)
{
    CMeasureData data = NewYearData();
    data.Analyse({0, 0, Date(2008, 12, 31)});
    ASSERT_TRUE(data.RepairYear());
    EXPECT_FALSE(data.RepairYear()); // the break lies behind the lines now
    EXPECT_THAT(YearsOf(data), ElementsAre(2009, 2009, 2010, 2010, 2010));
}

TEST(RepairYear, DoesNothingToLinesThatCameAfterTheAnalysis)
{
    CMeasureData data = NewYearData();
    data.Analyse({0, 0, Date(2008, 12, 31)});
    data.Clear();
    data.AddRecords(std::vector{LineAt(1), LineAt(2)});
    EXPECT_FALSE(data.RepairYear());
    EXPECT_EQ(data.GetRecord(1).m_time, 2);
}

} // namespace
} // namespace skeldon
