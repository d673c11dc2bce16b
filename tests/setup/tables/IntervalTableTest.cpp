#include "setup/tables/IntervalTable.h"

#include <gtest/gtest.h>

#include <array>

namespace skeldon {
namespace {

struct Row
{
    int code;
    int length;
    bool inSeconds;
    char character;
};

constexpr std::array<Row, 15> Rows = {{
    {0, 30, false, '^'},
    {1, 20, false, 'T'},
    {2, 15, false, 'O'},
    {3, 10, false, 'J'},
    {4, 5, false, 'E'},
    {5, 4, false, 'D'},
    {6, 3, false, 'C'},
    {7, 2, false, 'B'},
    {8, 1, false, 'A'},
    {9, 30, true, 'f'},
    {10, 20, true, 'e'},
    {14, 15, true, 'd'},
    {11, 10, true, 'c'},
    {12, 5, true, 'b'},
    {13, 1, true, 'a'},
}};

TEST(IntervalTable, HoldsTheFifteenIntervalsOfTheFamily)
{
    ASSERT_EQ(IntervalTable::Count, 15);
    for (int row = 0; row < IntervalTable::Count; ++row) {
        SCOPED_TRACE(row);
        const Row& expected = Rows.at(static_cast<std::size_t>(row));
        EXPECT_EQ(IntervalTable::Code(row), expected.code);
        EXPECT_EQ(IntervalTable::Length(row), expected.length);
        EXPECT_EQ(IntervalTable::InSeconds(row), expected.inSeconds);
        EXPECT_EQ(IntervalTable::Character(row), expected.character);
        EXPECT_EQ(IntervalTable::RowOfCode(expected.code), row);
        EXPECT_EQ(IntervalTable::RowOfCharacter(expected.character), row);
    }
}

TEST(IntervalTable, KeepsTheCodeOfFifteenSecondsOutOfOrder)
{
    EXPECT_EQ(IntervalTable::Code(11), 14);
    EXPECT_EQ(IntervalTable::RowOfCode(14), 11);
    EXPECT_EQ(IntervalTable::RowOfCode(11), 12);
}

TEST(IntervalTable, ClampsTheRowOfAValueLookup)
{
    for (const int row : {-1, -2147483647 - 1}) {
        EXPECT_EQ(IntervalTable::Length(row), 30);
        EXPECT_FALSE(IntervalTable::InSeconds(row));
    }
    for (const int row : {15, 2147483647}) {
        EXPECT_EQ(IntervalTable::Length(row), 1);
        EXPECT_TRUE(IntervalTable::InSeconds(row));
    }
}

TEST(IntervalTable, HasNoCodeAndNoCharacterOutsideTheTable)
{
    for (const int row : {-1, 15, 2147483647, -2147483647 - 1}) {
        EXPECT_EQ(IntervalTable::Code(row), -1);
        EXPECT_EQ(IntervalTable::Character(row), 0);
    }
}

TEST(IntervalTable, DoesNotFindWhatNoRowHas)
{
    EXPECT_EQ(IntervalTable::RowOfCode(15), -1);
    EXPECT_EQ(IntervalTable::RowOfCode(-1), -1);
    EXPECT_EQ(IntervalTable::RowOfCharacter('\0'), -1);
    EXPECT_EQ(IntervalTable::RowOfCharacter('F'), -1); // letters differ by case
    EXPECT_EQ(IntervalTable::RowOfCharacter('0'), -1);
}

TEST(IntervalTable, EndsTheMinutesAtOneMinute)
{
    EXPECT_FALSE(IntervalTable::InSeconds(IntervalTable::LastMinuteRow));
    EXPECT_TRUE(IntervalTable::InSeconds(IntervalTable::LastMinuteRow + 1));
    EXPECT_EQ(IntervalTable::Length(IntervalTable::LastMinuteRow), 1);
}

} // namespace
} // namespace skeldon
