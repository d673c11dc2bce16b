#include "online/log/MonitorLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace skeldon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr bool Open = false;
constexpr bool Closed = true;

std::vector<std::string> All(const CMonitorLines& lines)
{
    std::vector<std::string> all;
    for (std::size_t i = 0; i < lines.Size(); ++i)
        all.push_back(lines.Line(i));
    return all;
}

TEST(MonitorLines, KeepsThirtyThousandUnlessToldOtherwise)
{
    EXPECT_EQ(CMonitorLines().m_maxLines, 30'000);
}

TEST(MonitorLines, AddsLinesInTheirOrder)
{
    CMonitorLines lines;
    lines.Add({{"m", "p"}, Closed});
    lines.Add({{"RLS=1"}, Closed});
    EXPECT_THAT(All(lines), ElementsAre("m", "p", "RLS=1"));
}

TEST(MonitorLines, NothingPendingIsNoNews)
{
    CMonitorLines lines;
    EXPECT_FALSE(lines.IsNews({{}, Closed}));
    EXPECT_FALSE(lines.IsNews({{}, Open}));
    lines.Add({{"01"}, Open});
    EXPECT_FALSE(lines.IsNews({{}, Open}));
}

TEST(MonitorLines, ReplacesAnOpenLastLine)
{
    CMonitorLines lines;
    lines.Add({{"A", "01"}, Open});
    lines.Add({{"0102"}, Open});
    EXPECT_THAT(All(lines), ElementsAre("A", "0102"));
    lines.Add({{"010203", "B"}, Closed});
    EXPECT_THAT(All(lines), ElementsAre("A", "010203", "B"));
    lines.Add({{"C"}, Open});
    EXPECT_THAT(All(lines), ElementsAre("A", "010203", "B", "C"));
}

TEST(MonitorLines, OpenLineOfTheSameLengthIsNoNews)
{
    CMonitorLines lines;
    lines.Add({{"01"}, Open});
    EXPECT_FALSE(lines.IsNews({{"01"}, Open}));
    EXPECT_TRUE(lines.IsNews({{"012"}, Open}));
    // Its end has come.
    EXPECT_TRUE(lines.IsNews({{"01"}, Closed}));
    EXPECT_TRUE(lines.IsNews({{"01", "2"}, Open}));
    lines.Add({{"01"}, Closed});
    EXPECT_THAT(All(lines), ElementsAre("01"));
    EXPECT_TRUE(lines.IsNews({{"01"}, Open}));
}

TEST(MonitorLines, OpenFirstLineOfAnEmptyListReplacesNothing)
{
    CMonitorLines lines;
    lines.Add({{"A", "01"}, Open});
    lines.Clear();
    EXPECT_TRUE(lines.IsNews({{"0102"}, Open}));
    lines.Add({{"0102"}, Open});
    EXPECT_THAT(All(lines), ElementsAre("0102"));
}

TEST(MonitorLines, DropsOneForEachLineAddedAtTheLimit)
{
    CMonitorLines lines;
    lines.m_maxLines = 3;
    lines.Add({{"1", "2", "3"}, Closed});
    EXPECT_THAT(All(lines), ElementsAre("1", "2", "3"));
    // One more than the limit stays: a line goes only where there are more already.
    lines.Add({{"4"}, Closed});
    EXPECT_THAT(All(lines), ElementsAre("1", "2", "3", "4"));
    lines.Add({{"5"}, Closed});
    EXPECT_THAT(All(lines), ElementsAre("2", "3", "4", "5"));
    lines.Add({{"6", "7", "8", "9", "10", "11"}, Open});
    EXPECT_THAT(All(lines), ElementsAre("8", "9", "10", "11"));
    // What replaces the last line drops none.
    lines.Add({{"110"}, Open});
    EXPECT_THAT(All(lines), ElementsAre("8", "9", "10", "110"));
}

TEST(MonitorLines, LimitOutOfRangeKeepsTheNewestLine)
{
    for (const int limit : {0, -1, -2'000'000'000}) {
        CMonitorLines lines;
        lines.m_maxLines = limit;
        lines.Add({{"1"}, Closed});
        lines.Add({{"2", "3"}, Closed});
        EXPECT_THAT(All(lines), ElementsAre("3"));
    }
}

TEST(MonitorLines, DropsAsIfLineAfterLineCame)
{
    // The rule as it is told: where there are more than the limit the first one goes.
    const auto plain = [](std::vector<std::string> old, const MonitorPart& part, int limit) {
        for (std::size_t i = 0; i < part.lines.Size(); ++i) {
            if (static_cast<int>(old.size()) > limit && !old.empty())
                old.erase(old.begin());
            old.emplace_back(part.lines.Line(i));
        }
        return old;
    };
    for (int before = 0; before <= 6; ++before) {
        for (int limit = -1; limit <= 5; ++limit) {
            for (int count = 1; count <= 9; ++count) {
                CMonitorLines lines;
                MonitorPart part{{}, Closed};
                for (int i = 0; i < before; ++i)
                    part.lines.Add("old " + std::to_string(i));
                lines.Add(part);
                lines.m_maxLines = limit;
                part.lines.Clear();
                for (int i = 0; i < count; ++i)
                    part.lines.Add(std::to_string(i));
                const std::vector<std::string> expected = plain(All(lines), part, limit);
                lines.Add(part);
                ASSERT_EQ(All(lines), expected) << before << " " << limit << " " << count;
            }
        }
    }
}

TEST(MonitorLines, TrimsDownToTheLimit)
{
    CMonitorLines lines;
    lines.Add({{"1", "2", "3", "4"}, Closed});
    EXPECT_FALSE(lines.Trim());
    lines.m_maxLines = 4;
    EXPECT_FALSE(lines.Trim());
    lines.m_maxLines = 2;
    EXPECT_TRUE(lines.Trim());
    EXPECT_THAT(All(lines), ElementsAre("3", "4"));
    lines.m_maxLines = -1;
    EXPECT_TRUE(lines.Trim());
    EXPECT_THAT(All(lines), IsEmpty());
}

TEST(MonitorLines, KnowsTheLongestLineSinceItWasEmpty)
{
    CMonitorLines lines;
    lines.m_maxLines = 1;
    lines.Add({{"12345", "1", "2", "3"}, Closed});
    EXPECT_EQ(lines.LongestLine(), 5U);
    lines.Clear();
    EXPECT_EQ(lines.LongestLine(), 0U);
    EXPECT_EQ(lines.Size(), 0U);
}

} // namespace
} // namespace skeldon
