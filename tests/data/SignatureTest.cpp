#include "data/Lines.h"

#include <gtest/gtest.h>

namespace skeldon {
namespace {

TEST(ComputeSignature, OfNoLinesIsZero)
{
    EXPECT_EQ(CMeasureData().ComputeSignature(), 0);
}

TEST(ComputeSignature, FollowsTheStepsOnThreeLines)
{
    // 3 - 1 x 1 = 2, rotated 4; 4 + 11 x 2 = 26, rotated 52; 52 - 21 x 3 = -11, rotated -21.
    CMeasureData data = DataOf({LineAt(0, 0), LineAt(0, 10), LineAt(0, 20)});
    EXPECT_EQ(data.ComputeSignature(), -21);
}

TEST(ComputeSignature, TakesANewLineWithoutItsKey)
{
    CMeasureData data;
    data.SetSize(1); // key 0: 1 rotated is 2
    EXPECT_EQ(data.ComputeSignature(), 2);
}

TEST(ComputeSignature, ChangesWithAMarkAndComesBackWithoutIt)
{
    CMeasureData data = DataOf({LineAt(10), LineAt(20), LineAt(30)});
    const std::int64_t before = data.ComputeSignature();
    for (const std::uint16_t flag :
         {RecordFlag::Marked, RecordFlag::HitX, RecordFlag::HitHumidity, RecordFlag::Deleted}) {
        CMeasureRecord line = data.GetRecord(1);
        line.SetFlags(flag);
        data.SetRecord(1, line);
        EXPECT_NE(data.ComputeSignature(), before);
        line.SetFlags(0);
        data.SetRecord(1, line);
        EXPECT_EQ(data.ComputeSignature(), before);
    }
}

TEST(ComputeSignature, ChangesWhereTwoLinesAreExchanged)
{
    const CMeasureData data = DataOf({LineAt(10), LineAt(20), LineAt(30)});
    const CMeasureData exchanged = DataOf({LineAt(20), LineAt(10), LineAt(30)});
    EXPECT_NE(data.ComputeSignature(), exchanged.ComputeSignature());
}

TEST(ComputeSignature, FollowsEveryOperationThatChangesLines)
{
    CMeasureData data = DataOf({LineAt(10), LineAt(20)});
    std::vector<std::int64_t> seen = {data.ComputeSignature()};
    const auto expectNew = [&] {
        const std::int64_t now = data.ComputeSignature();
        EXPECT_THAT(seen, testing::Not(testing::Contains(now)));
        seen.push_back(now);
    };
    data.AddRecord(LineAt(30));
    expectNew();
    data.AddRecords(std::vector{LineAt(25, 5)});
    expectNew();
    data.Analyse({}); // the last line runs backwards and gets flags
    expectNew();
    data.SetSize(3); // as it was after the first line was added
    EXPECT_EQ(data.ComputeSignature(), seen[1]);
    data.NewLines(1)[0] = LineAt(7);
    expectNew();
    data.Clear();
    EXPECT_EQ(data.ComputeSignature(), 0);
}

TEST(SignatureUnchanged, HoldsFromAStoreToAChange)
{
    CMeasureData data = DataOf({LineAt(10), LineAt(20)});
    EXPECT_FALSE(data.SignatureUnchanged());
    data.StoreSignature();
    EXPECT_TRUE(data.SignatureUnchanged());
    data.SetRecord(0, LineAt(10, 0, RecordFlag::Marked));
    EXPECT_FALSE(data.SignatureUnchanged());
    data.SetRecord(0, LineAt(10));
    EXPECT_TRUE(data.SignatureUnchanged());
}

TEST(SignatureUnchanged, HoldsAfterClearOnlyIfTheStoredOneIsZero)
{
    CMeasureData data;
    EXPECT_TRUE(data.SignatureUnchanged());
    data.AddRecord(LineAt(10));
    data.StoreSignature();
    data.Clear();
    EXPECT_FALSE(data.SignatureUnchanged());
    data.m_signature = 0;
    EXPECT_TRUE(data.SignatureUnchanged());
}

} // namespace
} // namespace skeldon
