#include "base/CalendarTime.h"
#include "base/PlainCalendar.h"
#include "base/ZoneScope.h"

#include <random>

#include <gtest/gtest.h>

namespace skeldon {
namespace {

constexpr CalendarSeconds Hour = 3600;
constexpr CalendarSeconds Day = 86400;
constexpr CalendarSeconds StartOf2008 = 1199145600; // UTC

CalendarFields FieldsOf(const std::tm& tm)
{
    return {tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec};
}

CalendarSeconds Instant(const CalendarFields& fields)
{
    return PlainInstant(fields.year, fields.month, fields.day, fields.hour, fields.minute,
                        fields.second);
}

TEST(LocalCalendar, GivesTheFieldsOfTheRuntimeInEveryHalfHourOfTwoYears)
{
    for (const char* const zone : Zone::All) {
        SCOPED_TRACE(zone);
        const CZoneScope scope(zone);
        CLocalCalendar calendar;
        for (CalendarSeconds time = StartOf2008; time < StartOf2008 + 731 * Day; time += Hour / 2) {
            ASSERT_EQ(calendar.ToFields(time), FieldsOf(PlainLocal(time))) << time;
            ASSERT_EQ(calendar.ToFields(time - 1), FieldsOf(PlainLocal(time - 1))) << time;
        }
    }
}

TEST(LocalCalendar, GivesTheFirstInstantOfTheFieldsInEveryHalfHourOfTwoYears)
{
    for (const char* const zone : Zone::All) {
        SCOPED_TRACE(zone);
        const CZoneScope scope(zone);
        CLocalCalendar calendar;
        for (CalendarSeconds time = StartOf2008; time < StartOf2008 + 731 * Day; time += Hour / 2) {
            const CalendarFields fields = FieldsOf(PlainLocal(time));
            const CalendarSeconds found = calendar.ToSeconds(fields);
            ASSERT_EQ(FieldsOf(PlainLocal(found)), fields);
            ASSERT_LE(found, time);
            ASSERT_EQ(found, Instant(fields));
            ASSERT_EQ(FromLocalFields(fields), found);
        }
    }
}

TEST(LocalCalendar, ForgetsNothingAndRemembersNothingWrongInRandomOrder)
{
    std::mt19937_64 random(2);
    for (const char* const zone : Zone::All) {
        SCOPED_TRACE(zone);
        const CZoneScope scope(zone);
        CLocalCalendar calendar;
        CalendarSeconds time = StartOf2008;
        for (int i = 0; i < 20000; ++i) {
            // Mostly small steps round one day, now and then a leap of years.
            const bool leap = random() % 50 == 0;
            time = leap ? static_cast<CalendarSeconds>(random() % 4'000'000'000U)
                        : time + static_cast<CalendarSeconds>(random() % 40000) - 20000;
            const CalendarFields fields = FieldsOf(PlainLocal(time));
            ASSERT_EQ(calendar.ToFields(time), fields) << time;
            ASSERT_EQ(calendar.ToSeconds(fields), Instant(fields)) << time;
        }
    }
}

TEST(LocalCalendar, RollsFieldsOutsideTheirRangeOverAsTheRuntimeDoes)
{
    const CZoneScope scope(Zone::Berlin);
    CLocalCalendar calendar;
    // The day is remembered first, so that it is there to be taken wrongly.
    (void)calendar.ToSeconds({2009, 5, 1, 12, 0, 0});
    for (const CalendarFields& fields :
         {CalendarFields{2009, 2, 30, 1, 2, 3}, CalendarFields{2008, 2, 30, 1, 2, 3},
          CalendarFields{2009, 5, 1, 24, 0, 0}, CalendarFields{2009, 5, 1, 12, 60, 0},
          CalendarFields{2009, 5, 1, 12, 0, 60}, CalendarFields{2009, 5, 1, -1, 0, 0},
          CalendarFields{2009, 13, 1, 0, 0, 0}, CalendarFields{2009, 0, 1, 0, 0, 0},
          CalendarFields{2009, 5, 0, 99, 99, 99}, CalendarFields{2009, 5, 99, 0, 0, 0},
          CalendarFields{0, 0, 0, 0, 0, 0}, CalendarFields{-99, -9, -9, -9, -9, -9},
          CalendarFields{9999, 12, 31, 23, 59, 59}}) {
        EXPECT_EQ(calendar.ToSeconds(fields), Instant(fields))
            << fields.year << '/' << fields.month;
        EXPECT_EQ(FromLocalFields(fields), Instant(fields));
    }
}

TEST(FromLocalFields, MeansTheEarlierInstantOfAnHourThatComesTwiceWhateverWasConvertedBefore)
{
    struct Case
    {
        const char* zone;
        CalendarFields fields;
        CalendarSeconds earlier;
    };
    const Case cases[] = {
        {Zone::Berlin, {2008, 10, 26, 2, 30, 0}, 1224981000},
        {Zone::Brazil, {2008, 2, 16, 23, 30, 0}, 1203211800},
        {Zone::Havana, {2008, 11, 2, 0, 30, 0}, 1225600200},
        {Zone::Havana, {2008, 11, 2, 0, 0, 0}, 1225598400},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.zone);
        const CZoneScope scope(test.zone);
        for (const int month : {1, 7}) {
            (void)FromLocalFields({2008, month, 15, 12, 0, 0});
            EXPECT_EQ(FromLocalFields(test.fields), test.earlier);
        }
    }
}

TEST(LocalCalendar, MeansTheEarlierInstantWhereTheFirstHourOfADayComesTwice)
{
    const CZoneScope scope(Zone::Havana);
    constexpr CalendarSeconds Earlier = 1225600200;
    for (const int hour : {1, 5, 12, 22}) {
        CLocalCalendar calendar;
        (void)calendar.ToSeconds({2008, 11, 2, hour, 0, 0});
        EXPECT_EQ(calendar.ToSeconds({2008, 11, 2, 0, 30, 0}), Earlier) << hour;
        EXPECT_EQ(calendar.ToFields(Earlier), (CalendarFields{2008, 11, 2, 0, 30, 0})) << hour;
    }
}

TEST(FromLocalFields, ReachesBehindJanuary2038)
{
    const CZoneScope scope(Zone::Utc);
    EXPECT_EQ(FromLocalFields({2038, 1, 19, 3, 14, 8}), CalendarSeconds{2147483648});
    EXPECT_EQ(ToLocalFields(4102444799), (CalendarFields{2099, 12, 31, 23, 59, 59}));
}

TEST(OneYearLater, KeepsEverythingButTheYear)
{
    const CZoneScope scope(Zone::Berlin);
    const CalendarSeconds later = OneYearLater({2008, 12, 31, 23, 59, 58});
    EXPECT_EQ(ToLocalFields(later), (CalendarFields{2009, 12, 31, 23, 59, 58}));
}

TEST(OneYearLater, TakesTheLeapDayToTheFirstOfMarch)
{
    const CZoneScope scope(Zone::Berlin);
    EXPECT_EQ(ToLocalFields(OneYearLater({2008, 2, 29, 6, 0, 0})),
              (CalendarFields{2009, 3, 1, 6, 0, 0}));
}

TEST(PlainDayOf, IsEmptyOnADayWhoseClockIsChanged)
{
    const CZoneScope scope(Zone::Berlin);
    for (const CalendarFields& noon :
         {CalendarFields{2008, 3, 30, 12, 0, 0}, CalendarFields{2008, 10, 26, 12, 0, 0}}) {
        const LocalDay day = PlainDayOf(FromLocalFields(noon));
        EXPECT_EQ(day.begin, day.end);
    }
}

TEST(PlainDayOf, HoldsTheDayFromMidnightToMidnight)
{
    const CZoneScope scope(Zone::Tokyo);
    const CalendarSeconds midnight = FromLocalFields({2009, 5, 1, 0, 0, 0});
    const LocalDay day = PlainDayOf(midnight + 12345);
    EXPECT_EQ(day.begin, midnight);
    EXPECT_EQ(day.end, midnight + Day);
    EXPECT_FALSE(day.Holds(midnight - 1));
    EXPECT_TRUE(day.Holds(midnight));
    EXPECT_TRUE(day.Holds(midnight + Day - 1));
    EXPECT_FALSE(day.Holds(midnight + Day));
}

} // namespace
} // namespace skeldon
