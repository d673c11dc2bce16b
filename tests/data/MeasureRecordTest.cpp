#include "data/MeasureRecord.h"
#include "base/ZoneScope.h"

#include <cmath>
#include <ctime>
#include <limits>

#include <gtest/gtest.h>

namespace skeldon {
namespace {

TEST(MeasureRecord, HoldsThePresentTimeAndNoKeyWhenNew)
{
    const std::time_t before = std::time(nullptr);
    const CMeasureRecord record;
    EXPECT_GE(record.m_time, before);
    EXPECT_LE(record.m_time, std::time(nullptr));
    EXPECT_EQ(record.m_msec, 0U);
    EXPECT_EQ(record.m_flags, 0);
    EXPECT_EQ(record.m_x, 0.0);
    EXPECT_EQ(record.m_resultant, 0.0);
    EXPECT_EQ(record.m_checkKey, 0);
}

TEST(SetValues, StoresTheSampleAndItsResultant)
{
    CMeasureRecord record;
    record.SetValues(1000, 250, 3.0, -4.0, 12.0, 23.5, 45.0);
    EXPECT_EQ(record.m_time, 1000);
    EXPECT_EQ(record.m_msec, 250U);
    EXPECT_EQ(record.m_x, 3.0);
    EXPECT_EQ(record.m_y, -4.0);
    EXPECT_EQ(record.m_z, 12.0);
    EXPECT_EQ(record.m_temperature, 23.5);
    EXPECT_EQ(record.m_humidity, 45.0);
    EXPECT_EQ(record.m_resultant, 13.0);
    EXPECT_EQ(record.m_checkKey, 1000251);
}

TEST(SetValues, KeepsTheFlags)
{
    CMeasureRecord record;
    record.SetFlags(0x4001);
    record.SetValues(10, 5, 0.0, 0.0, 0.0, 0.0, 0.0);
    EXPECT_EQ(record.m_flags, 0x4001);
    EXPECT_EQ(record.m_checkKey, std::int64_t{10006} * 0x4002);
}

TEST(SetFlags, ReplacesTheWholeWordAndRecomputesTheKey)
{
    CMeasureRecord record;
    record.SetValues(10, 0, 0.0, 0.0, 0.0, 0.0, 0.0);
    record.SetFlags(0xFFFF);
    EXPECT_EQ(record.m_checkKey, std::int64_t{10001} * 65536);
    record.SetFlags(0x0010);
    EXPECT_EQ(record.m_flags, 0x0010);
    EXPECT_EQ(record.m_checkKey, std::int64_t{10001} * 17);
}

TEST(CheckKey, StaysWithin64BitsForTheLatestOldTimeAndAllFlags)
{
    CMeasureRecord record;
    record.SetValues(2147483647, 999, 0.0, 0.0, 0.0, 0.0, 0.0);
    record.SetFlags(0xFFFF);
    EXPECT_EQ(record.m_checkKey, std::int64_t{2147483648000} * 65536);
}

TEST(CheckKey, IsNegativeBeforeTheEpoch)
{
    CMeasureRecord record;
    record.SetValues(-5, 250, 0.0, 0.0, 0.0, 0.0, 0.0);
    EXPECT_EQ(record.m_checkKey, -4749);
}

TEST(CheckKey, CountsMillisecondsWithoutASign)
{
    CMeasureRecord record;
    record.SetValues(0, 0xFFFFFFFFU, 0.0, 0.0, 0.0, 0.0, 0.0);
    EXPECT_EQ(record.m_checkKey, std::int64_t{4294967296});
    EXPECT_EQ(record.TimeMs(), std::int64_t{4294967295});
}

TEST(MeasureRecord, TellsItsLocalDateAndTime)
{
    const CZoneScope zone(Zone::Tokyo);
    CMeasureRecord record;
    record.SetValues(FromLocalFields({2009, 5, 31, 23, 59, 58}), 0, 0.0, 0.0, 0.0, 0.0, 0.0);
    EXPECT_EQ(record.GetYear(), 2009);
    EXPECT_EQ(record.GetMonth(), 5);
    EXPECT_EQ(record.GetDay(), 31);
    EXPECT_EQ(record.GetHour(), 23);
    EXPECT_EQ(record.GetMinute(), 59);
    EXPECT_EQ(record.GetSecond(), 58);
}

TEST(MeasureRecord, IsCopiedWhole)
{
    CMeasureRecord record;
    record.SetValues(77, 8, 1.0, 2.0, 2.0, -4.0, 5.0);
    record.SetFlags(0x0810);
    const CMeasureRecord copy = record;
    EXPECT_EQ(copy.m_time, 77);
    EXPECT_EQ(copy.m_msec, 8U);
    EXPECT_EQ(copy.m_resultant, 3.0);
    EXPECT_EQ(copy.m_temperature, -4.0);
    EXPECT_EQ(copy.m_flags, 0x0810);
    EXPECT_EQ(copy.m_checkKey, record.m_checkKey);
}

TEST(MeasureRecord, KnowsTheSixExtractionBits)
{
    EXPECT_EQ(RecordFlag::Extracted, 0x09F0);
    CMeasureRecord record;
    record.SetFlags(0x0200);
    EXPECT_FALSE(record.HasFlag(RecordFlag::Extracted));
    record.SetFlags(0x0800);
    EXPECT_TRUE(record.HasFlag(RecordFlag::Extracted));
}

} // namespace
} // namespace skeldon
