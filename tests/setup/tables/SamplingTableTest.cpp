#include "setup/tables/SamplingTable.h"

#include <gtest/gtest.h>

#include <array>

namespace skeldon {
namespace {

struct Row
{
    int code;
    int period;
    bool trace;
    char type0;
    char others;
};

constexpr std::array<Row, 10> Rows = {{
    {20, 5000, false, '0', 0},
    {21, 1600, false, '1', 0},
    {0, 1250, false, '2', '2'},
    {1, 625, false, '3', '3'},
    {2, 312, false, '5', '5'},
    {3, 312, true, 0, '4'},
    {4, 200, false, 0, '6'},
    {5, 200, true, 0, '8'},
    {6, 100, false, 0, '7'},
    {7, 100, true, 0, '9'},
}};

TEST(SamplingTable, HoldsTheTenSettingsOfTheFamily)
{
    ASSERT_EQ(SamplingTable::Count, 10);
    for (int row = 0; row < SamplingTable::Count; ++row) {
        SCOPED_TRACE(row);
        const Row& expected = Rows.at(static_cast<std::size_t>(row));
        EXPECT_EQ(SamplingTable::Code(row), expected.code);
        EXPECT_EQ(SamplingTable::Period(row), expected.period);
        EXPECT_EQ(SamplingTable::IsTrace(row), expected.trace);
        EXPECT_EQ(SamplingTable::CharacterForType0(row), expected.type0);
        EXPECT_EQ(SamplingTable::CharacterForOthers(row), expected.others);
        EXPECT_EQ(SamplingTable::RowOfCode(expected.code), row);
    }
}

TEST(SamplingTable, ClampsTheRowOfAValueLookup)
{
    for (const int row : {-1, -2147483647 - 1}) {
        EXPECT_EQ(SamplingTable::Period(row), 5000);
        EXPECT_FALSE(SamplingTable::IsTrace(row));
    }
    for (const int row : {10, 2147483647}) {
        EXPECT_EQ(SamplingTable::Period(row), 100);
        EXPECT_TRUE(SamplingTable::IsTrace(row));
    }
}

TEST(SamplingTable, HasNoCodeAndNoCharacterOutsideTheTable)
{
    for (const int row : {-1, 10, 2147483647, -2147483647 - 1}) {
        EXPECT_EQ(SamplingTable::Code(row), -1);
        EXPECT_EQ(SamplingTable::CharacterForType0(row), 0);
        EXPECT_EQ(SamplingTable::CharacterForOthers(row), 0);
        EXPECT_EQ(SamplingTable::CharacterFor(0, row), 0);
        EXPECT_EQ(SamplingTable::CharacterFor(50, row), 0);
    }
}

TEST(SamplingTable, FindsEachCharacterInItsOwnColumn)
{
    EXPECT_EQ(SamplingTable::RowOfCharacterForType0('0'), 0);
    EXPECT_EQ(SamplingTable::RowOfCharacterForType0('5'), 4);
    EXPECT_EQ(SamplingTable::RowOfCharacterForOthers('5'), 4);
    EXPECT_EQ(SamplingTable::RowOfCharacterForOthers('4'), 5);
    EXPECT_EQ(SamplingTable::RowOfCharacterForOthers('8'), 7);
    EXPECT_EQ(SamplingTable::RowOfCharacterForOthers('7'), 8);
    // What the other column has is not found.
    EXPECT_EQ(SamplingTable::RowOfCharacterForType0('4'), -1);
    EXPECT_EQ(SamplingTable::RowOfCharacterForType0('9'), -1);
    EXPECT_EQ(SamplingTable::RowOfCharacterForOthers('0'), -1);
    EXPECT_EQ(SamplingTable::RowOfCharacterForOthers('1'), -1);
}

TEST(SamplingTable, TakesTheColumnThatBelongsToTheRecorder)
{
    EXPECT_EQ(SamplingTable::CharacterFor(0, 0), '0');
    EXPECT_EQ(SamplingTable::CharacterFor(1, 0), 0);
    EXPECT_EQ(SamplingTable::CharacterFor(-2, 9), '9');
    EXPECT_EQ(SamplingTable::CharacterFor(0, 9), 0);
    EXPECT_EQ(SamplingTable::RowOfCharacterFor(0, '1'), 1);
    EXPECT_EQ(SamplingTable::RowOfCharacterFor(50, '1'), -1);
}

TEST(SamplingTable, DoesNotFindWhatIsInNoColumn)
{
    EXPECT_EQ(SamplingTable::RowOfCode(8), -1);
    EXPECT_EQ(SamplingTable::RowOfCode(-1), -1);
    // Rows without a setting are not found by the character that stands for none.
    EXPECT_EQ(SamplingTable::RowOfCharacterForType0('\0'), -1);
    EXPECT_EQ(SamplingTable::RowOfCharacterForOthers('\0'), -1);
    EXPECT_EQ(SamplingTable::RowOfCharacterForOthers('A'), -1);
}

} // namespace
} // namespace skeldon
