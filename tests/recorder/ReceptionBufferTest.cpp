#include "recorder/ReceptionBuffer.h"

#include <gtest/gtest.h>

#include <atomic>
#include <random>
#include <thread>

namespace skeldon {
namespace {

TEST(ReceptionBuffer, IsAtItsEndBeforeATransfer)
{
    CReceptionBuffer buffer;
    EXPECT_EQ(buffer.NextChunk(), "#");
    EXPECT_EQ(buffer.GetWritten(), 0U);
}

TEST(ReceptionBuffer, GivesWhatWasStoredAndThenTheMarkForEver)
{
    CReceptionBuffer buffer;
    buffer.Start(100);
    buffer.Append("abc");
    buffer.Append("def");
    EXPECT_EQ(buffer.NextChunk(), "abcdef");
    buffer.Append("g");
    buffer.Finish();
    EXPECT_EQ(buffer.GetWritten(), 7U);
    EXPECT_EQ(buffer.NextChunk(), "g");
    EXPECT_EQ(buffer.NextChunk(), "#");
    EXPECT_EQ(buffer.NextChunk(), "#");
}

TEST(ReceptionBuffer, CostsNothingForAnAnnouncedSize)
{
    CReceptionBuffer buffer;
    const std::uint64_t huge = std::uint64_t{1} << 60;
    buffer.Start(huge);
    EXPECT_EQ(buffer.GetCapacity(), huge);
    buffer.Append("x");
    EXPECT_EQ(buffer.NextChunk(), "x");
}

TEST(ReceptionBuffer, DropsWhatAnEarlierTransferLeft)
{
    CReceptionBuffer buffer;
    buffer.Start(10);
    buffer.Append("old");
    buffer.Start(10);
    buffer.Append("new");
    buffer.Finish();
    EXPECT_EQ(buffer.TakeAll(), "new");
    buffer.Free();
    EXPECT_EQ(buffer.GetWritten(), 0U);
    EXPECT_EQ(buffer.NextChunk(), "#");
}

TEST(ReceptionBuffer, TakesAllAcrossBlocks)
{
    CReceptionBuffer buffer;
    std::string all;
    buffer.Start(1'000'000);
    for (int i = 0; i < 30'000; ++i) {
        const std::string piece = std::to_string(i) + ",";
        buffer.Append(piece);
        all += piece;
    }
    buffer.Finish();
    EXPECT_EQ(buffer.TakeAll(), all);
    EXPECT_EQ(buffer.NextChunk(), "#");
}

TEST(ReceptionBuffer, HandsEveryByteFromThreadToThreadInOrder)
{
    CReceptionBuffer buffer;
    constexpr std::uint32_t Total = 700'001;
    buffer.Start(Total);
    std::thread storing([&buffer] {
        std::mt19937 random(7);
        std::string piece;
        for (std::uint32_t at = 0; at < Total;) {
            piece.clear();
            for (auto count = 1 + random() % 9000; count > 0 && at < Total; --count, ++at)
                piece += static_cast<char>(at * 31 % 251);
            buffer.Append(piece);
        }
        buffer.Finish();
    });
    std::uint32_t at = 0;
    bool same = true;
    while (at < Total) {
        for (const char c : buffer.NextChunk())
            same = same && c == static_cast<char>(at++ * 31 % 251);
    }
    storing.join();
    EXPECT_TRUE(same);
    EXPECT_EQ(at, Total);
    EXPECT_EQ(buffer.NextChunk(), "#");
}

TEST(ReceptionBuffer, WakesAReaderAtTheEnd)
{
    CReceptionBuffer buffer;
    buffer.Start(10);
    std::atomic<bool> ended = false;
    std::thread taking([&] {
        EXPECT_EQ(buffer.NextChunk(), "#");
        ended = true;
    });
    EXPECT_FALSE(ended);
    buffer.Finish();
    taking.join();
    EXPECT_TRUE(ended);
}

TEST(ReceptionBuffer, CallsWhatIsToBeDoneWhileAReaderWaits)
{
    CReceptionBuffer buffer;
    buffer.Start(100);
    int steps = 0;
    buffer.SetWhileWaiting([&] {
        if (++steps == 3)
            buffer.Append("0123");
        if (steps > 3)
            buffer.Finish();
    });
    EXPECT_EQ(buffer.NextChunk(), "0123");
    EXPECT_EQ(steps, 3);
    EXPECT_EQ(buffer.NextChunk(), "#");
    EXPECT_EQ(steps, 4);
}

} // namespace
} // namespace skeldon
