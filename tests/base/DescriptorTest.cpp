#include "base/platform/Descriptor.h"

#include <array>
#include <string>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <gtest/gtest.h>

namespace skeldon {
namespace {

struct Pipe
{
    CDescriptor from;
    CDescriptor to;
};

Pipe MakePipe()
{
    std::array<int, 2> ends{};
    EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
    return {CDescriptor(ends[0]), CDescriptor(ends[1])};
}

bool IsOpen(int descriptor)
{
    return ::fcntl(descriptor, F_GETFD) >= 0;
}

TEST(Descriptor, IsClosedWithItsOwner)
{
    int value = -1;
    {
        const Pipe pipe = MakePipe();
        value = pipe.from.Get();
        EXPECT_TRUE(IsOpen(value));
    }
    EXPECT_FALSE(IsOpen(value));
}

TEST(Descriptor, GoesOverToAnotherOwner)
{
    Pipe pipe = MakePipe();
    const int value = pipe.from.Get();
    {
        CDescriptor other(std::move(pipe.from));
        EXPECT_FALSE(pipe.from.IsOpen()); // NOLINT(bugprone-use-after-move)
        EXPECT_EQ(other.Get(), value);
        pipe.from = std::move(other);
    }
    EXPECT_TRUE(IsOpen(value));
    pipe.from = CDescriptor();
    EXPECT_FALSE(IsOpen(value));
}

TEST(Descriptor, TellsAFailureToClose)
{
    Pipe pipe = MakePipe();
    EXPECT_FALSE(pipe.from.Close());
    EXPECT_FALSE(pipe.from.IsOpen());
    EXPECT_EQ(pipe.from.Close(), std::errc::bad_file_descriptor);
}

TEST(WriteAll, WritesWhatTheSystemTakesInPieces)
{
    // More than a pipe holds.
    const std::string sent(1'000'000, 'x');
    Pipe pipe = MakePipe();
    std::string received;
    std::thread reader([&] {
        std::array<char, 999> block{};
        for (;;) {
            const ssize_t count = ::read(pipe.from.Get(), block.data(), block.size());
            if (count <= 0)
                return;
            received.append(block.data(), static_cast<std::size_t>(count));
        }
    });
    EXPECT_FALSE(WriteAll(pipe.to.Get(), sent));
    pipe.to = CDescriptor();
    reader.join();
    EXPECT_EQ(received, sent);
}

TEST(WriteAll, TellsWhyItFailed)
{
    const CDescriptor full(::open("/dev/full", O_WRONLY | O_CLOEXEC));
    EXPECT_EQ(WriteAll(full.Get(), "text"), std::errc::no_space_on_device);
    EXPECT_FALSE(WriteAll(full.Get(), ""));
}

} // namespace
} // namespace skeldon
