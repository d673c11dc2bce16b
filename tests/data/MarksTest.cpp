#include "data/Lines.h"

#include <random>

#include <gtest/gtest.h>

namespace skeldon {
namespace {

/// Lines of which those in `marked` carry the mark.
CMeasureData Marked(std::size_t count, const std::vector<std::uint32_t>& marked)
{
    CMeasureData data;
    for (std::size_t i = 0; i < count; ++i)
        data.AddRecord(LineAt(static_cast<CalendarSeconds>(i)));
    for (const std::uint32_t index : marked)
        data.SetRecord(index, LineAt(index, 0, RecordFlag::Marked));
    data.Analyse({});
    return data;
}

TEST(IsMarked, LooksAtTheLowBitAlone)
{
    const CMeasureData data = DataOf({LineAt(1, 0, 0xFFFE), LineAt(2, 0, 0x0001)});
    EXPECT_FALSE(data.IsMarked(0));
    EXPECT_TRUE(data.IsMarked(1));
    EXPECT_FALSE(data.IsMarked(2));
    EXPECT_FALSE(CMeasureData().IsMarked(0));
}

TEST(Analyse, ListsTheMarkedLinesInAscendingOrder)
{
    const CMeasureData data = Marked(10, {7, 2, 9});
    EXPECT_EQ(data.m_marks, (std::vector<std::uint32_t>{2, 7, 9}));
}

TEST(PreviousMark, OfTheFirstMarkIsNone)
{
    const CMeasureData data = Marked(10, {2, 7});
    EXPECT_EQ(data.PreviousMark(2), -1);
    EXPECT_EQ(data.PreviousMark(0), -1);
    EXPECT_EQ(data.PreviousMark(3), 2);
}

TEST(NextMark, OfTheLastMarkIsNone)
{
    const CMeasureData data = Marked(10, {2, 7});
    EXPECT_EQ(data.NextMark(7), -1);
    EXPECT_EQ(data.NextMark(9), -1);
    EXPECT_EQ(data.NextMark(6), 7);
}

TEST(PreviousMark, IsNeverTheMarkItself)
{
    const CMeasureData data = Marked(10, {2, 7});
    EXPECT_EQ(data.PreviousMark(7), 2);
    EXPECT_EQ(data.NextMark(2), 7);
}

TEST(PreviousMark, IsNoneForALineOutsideTheData)
{
    const CMeasureData data = Marked(10, {2, 7});
    EXPECT_EQ(data.PreviousMark(10), -1);
    EXPECT_EQ(data.NextMark(10), -1);
    EXPECT_EQ(data.PreviousMark(static_cast<std::size_t>(-1)), -1);
    EXPECT_EQ(data.NextMark(static_cast<std::size_t>(-1)), -1);
    EXPECT_EQ(CMeasureData().NextMark(0), -1);
}

TEST(NextMark, FindsWhatAWalkThroughTheLinesFinds)
{
    std::mt19937_64 random(5);
    for (int round = 0; round < 50; ++round) {
        const std::size_t count = 1 + random() % 60;
        std::vector<std::uint32_t> marked;
        for (std::uint32_t i = 0; i < count; ++i) {
            if (random() % 4 == 0)
                marked.push_back(i);
        }
        const CMeasureData data = Marked(count, marked);
        for (std::size_t index = 0; index < count; ++index) {
            std::ptrdiff_t before = -1;
            std::ptrdiff_t behind = -1;
            for (std::size_t i = 0; i < count; ++i) {
                if (data.IsMarked(i) && i < index)
                    before = static_cast<std::ptrdiff_t>(i);
                if (data.IsMarked(i) && i > index && behind < 0)
                    behind = static_cast<std::ptrdiff_t>(i);
            }
            ASSERT_EQ(data.PreviousMark(index), before);
            ASSERT_EQ(data.NextMark(index), behind);
        }
    }
}

} // namespace
} // namespace skeldon
