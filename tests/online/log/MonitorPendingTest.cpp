#include "online/log/MonitorPending.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <iterator>
#include <numeric>
#include <thread>

namespace skeldon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> All(const MonitorPart& part)
{
    std::vector<std::string> all;
    for (std::size_t i = 0; i < part.lines.Size(); ++i)
        all.emplace_back(part.lines.Line(i));
    return all;
}

TEST(MonitorPending, HoldsNothingAtFirst)
{
    CMonitorPending pending;
    EXPECT_THAT(All(pending.Take()), IsEmpty());
}

TEST(MonitorPending, PutsAReplyOnTheLineBehindItsCommand)
{
    CMonitorPending pending;
    pending.ReportCommand("p");
    pending.ReportBytes("RLS=1.02\r\n");
    pending.ReportCommand("t");
    const MonitorPart part = pending.Take();
    EXPECT_THAT(All(part), ElementsAre("p", "RLS=1.02", "t"));
    EXPECT_TRUE(part.isLastClosed);
}

TEST(MonitorPending, HangsACommandOnALineThatIsNotComplete)
{
    CMonitorPending pending;
    pending.ReportBytes("OK#");
    pending.ReportCommand("D");
    pending.ReportBytes("0102");
    EXPECT_THAT(All(pending.Take()), ElementsAre("OK#D", "0102"));
}

TEST(MonitorPending, BeginsALineForEachOfTwoCommands)
{
    CMonitorPending pending;
    pending.ReportCommand("m");
    pending.ReportCommand("");
    pending.ReportCommand("x");
    EXPECT_THAT(All(pending.Take()), ElementsAre("m", "", "x"));
}

TEST(MonitorPending, TakesACarriageReturnForTheEndOfALine)
{
    CMonitorPending pending;
    pending.ReportBytes("\r\rG01\r");
    const MonitorPart part = pending.Take();
    EXPECT_THAT(All(part), ElementsAre("", "", "G01"));
    EXPECT_TRUE(part.isLastClosed);
}

TEST(MonitorPending, DropsWhatIsNoCharacter)
{
    std::string all(256, '\0');
    std::iota(all.begin(), all.end(), '\0');
    std::erase(all, '\r');
    std::string shown(94, '\0');
    std::iota(shown.begin(), shown.end(), ' ');
    CMonitorPending pending;
    pending.ReportBytes(all);
    EXPECT_THAT(All(pending.Take()), ElementsAre(shown));
    pending.Clear();
    pending.ReportBytes("\n~\x7F\x80\xFF");
    EXPECT_THAT(All(pending.Take()), IsEmpty());
}

TEST(MonitorPending, JoinsWhatArrivesInPieces)
{
    CMonitorPending pending;
    for (const char* piece : {"G", "0", "1\r", "G", "\n02"})
        pending.ReportBytes(piece);
    const MonitorPart part = pending.Take();
    EXPECT_THAT(All(part), ElementsAre("G01", "G02"));
    EXPECT_FALSE(part.isLastClosed);
}

TEST(MonitorPending, GivesAnOpenLineAgainWhenItHasGrown)
{
    CMonitorPending pending;
    pending.ReportBytes("A\r01");
    EXPECT_THAT(All(pending.Take()), ElementsAre("A", "01"));
    EXPECT_THAT(All(pending.Take()), ElementsAre("01"));
    pending.ReportBytes("02");
    EXPECT_THAT(All(pending.Take()), ElementsAre("0102"));
    pending.ReportBytes("\rB");
    EXPECT_THAT(All(pending.Take()), ElementsAre("0102", "B"));
}

TEST(MonitorPending, GivesACompleteLineOnce)
{
    CMonitorPending pending;
    pending.ReportBytes("01\r");
    EXPECT_THAT(All(pending.Take()), ElementsAre("01"));
    EXPECT_THAT(All(pending.Take()), IsEmpty());
}

TEST(MonitorPending, BeginsAnewWhenCleared)
{
    CMonitorPending pending;
    pending.ReportBytes("A\r01");
    pending.Clear();
    EXPECT_THAT(All(pending.Take()), IsEmpty());
    pending.ReportBytes("02");
    EXPECT_THAT(All(pending.Take()), ElementsAre("02"));
}

TEST(MonitorPending, CutsALineWithoutEndAndLosesNothing)
{
    CMonitorPending pending;
    const std::string block(CMonitorPending::LongestLine / 2, '7');
    for (int i = 0; i < 7; ++i)
        pending.ReportBytes(block);
    const MonitorPart part = pending.Take();
    EXPECT_EQ(part.lines.Size(), 4U);
    EXPECT_FALSE(part.isLastClosed);
    std::size_t sum = 0;
    for (const std::string& line : All(part)) {
        EXPECT_LE(line.size(), CMonitorPending::LongestLine);
        sum += line.size();
    }
    EXPECT_EQ(sum, 7 * block.size());
}

TEST(MonitorPending, LosesNothingBetweenTwoThreads)
{
    constexpr int Lines = 20'000;
    CMonitorPending pending;
    std::atomic<bool> isDone = false;
    std::thread reader([&] {
        std::string block;
        for (int i = 0; i < Lines; ++i) {
            block += std::to_string(i) + "\r\n";
            if (i % 7 == 0) {
                // Cut in the middle of a line.
                pending.ReportBytes(std::string_view(block).substr(0, block.size() - 3));
                block.erase(0, block.size() - 3);
            }
        }
        pending.ReportBytes(block);
        isDone = true;
    });
    std::vector<std::string> taken;
    bool isOpen = false;
    for (bool isLast = false; !isLast;) {
        isLast = isDone;
        const MonitorPart part = pending.Take();
        if (part.lines.IsEmpty())
            continue;
        if (isOpen)
            taken.pop_back();
        std::ranges::copy(All(part), std::back_inserter(taken));
        isOpen = !part.isLastClosed;
    }
    reader.join();
    ASSERT_EQ(taken.size(), static_cast<std::size_t>(Lines));
    for (int i = 0; i < Lines; ++i)
        ASSERT_EQ(taken[static_cast<std::size_t>(i)], std::to_string(i));
}

TEST(MonitorPending, KeepsCommandsOfOneThreadWholeBesideBytesOfAnother)
{
    constexpr int Count = 5'000;
    CMonitorPending pending;
    std::thread reader([&] {
        for (int i = 0; i < Count; ++i)
            pending.ReportBytes("GGG");
    });
    for (int i = 0; i < Count; ++i)
        pending.ReportCommand("status");
    reader.join();
    std::string text;
    for (const std::string& line : All(pending.Take()))
        text += line;
    std::size_t commands = 0;
    for (std::size_t at = 0; (at = text.find("status", at)) != std::string::npos; ++at)
        ++commands;
    EXPECT_EQ(commands, static_cast<std::size_t>(Count));
    EXPECT_EQ(text.size(), static_cast<std::size_t>(Count) * 9);
}

} // namespace
} // namespace skeldon
