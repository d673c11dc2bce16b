#include "online/log/LineBlock.h"

#include <gtest/gtest.h>

namespace skeldon {
namespace {

TEST(LineBlock, KeepsLinesApart)
{
    CLineBlock block;
    EXPECT_TRUE(block.IsEmpty());
    block.Add("one");
    block.Add("");
    block.Add(std::string(1000, '7'));
    ASSERT_EQ(block.Size(), 3U);
    EXPECT_EQ(block.Line(0), "one");
    EXPECT_EQ(block.Line(1), "");
    EXPECT_EQ(block.Line(2), std::string(1000, '7'));
    EXPECT_FALSE(block.IsEmpty());
}

TEST(LineBlock, ExtendsTheLastLine)
{
    CLineBlock block{"one", "two"};
    block.Extend("+");
    block.Extend("");
    EXPECT_EQ(block.LastLine(), "two+");
    block.Add("three");
    EXPECT_EQ(block.Line(0), "one");
    EXPECT_EQ(block.Line(1), "two+");
    EXPECT_EQ(block.LastLine(), "three");
}

TEST(LineBlock, BeginsAnewWhenCleared)
{
    CLineBlock block{"one", "two"};
    block.Clear();
    EXPECT_TRUE(block.IsEmpty());
    block.Add("three");
    EXPECT_EQ(block.Size(), 1U);
    EXPECT_EQ(block.Line(0), "three");
}

} // namespace
} // namespace skeldon
