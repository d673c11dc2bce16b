// A save that is killed, at random moments and at each of its system calls: the earlier or the new
// contents are whole on disk.
#include "files/DataFile.h"
#include "files/MeasuredLines.h"
#include "support/TemporaryFolder.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <random>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace skeldon::test {
namespace {

/// Contents of `path`, empty where there is none.
std::string ContentsOf(const std::filesystem::path& path)
{
    return std::filesystem::exists(path) ? ReadText(path) : std::string();
}

/// Whether the file system knows files without a name. Where it does not, a kill can leave a copy
/// under a passing one.
bool KnowsUnnamedFiles(const std::filesystem::path& folder)
{
    const int file = ::open(folder.c_str(), O_TMPFILE | O_WRONLY, 0600);
    if (file >= 0)
        ::close(file);
    return file >= 0;
}

/// All that lies beside the file in `folder` goes away but what is kept of it.
void RemovePassingCopies(const CTemporaryFolder& folder)
{
    const std::vector<std::string> names = folder.Names();
    const bool isExpected = !KnowsUnnamedFiles(folder.Path());
    for (const std::string& name : names) {
        if (name == "a.skd" || name.starts_with("a.skd.bak"))
            continue;
        EXPECT_TRUE(isExpected) << name << " was left behind";
        std::filesystem::remove(folder / name);
    }
}

/// Two data sets that are saved in turn, and their texts.
struct Pair
{
    CMeasureData first;
    CMeasureData second;
    std::string firstText;
    std::string secondText;

    Pair(std::size_t count, std::size_t otherCount)
        : first(Lines(count, 1.0))
        , second(Lines(otherCount, -1.0))
        , firstText(TextOf(first))
        , secondText(TextOf(second))
    {}

    [[nodiscard]] bool IsWhole(const std::string& text) const
    {
        return text == firstText || text == secondText;
    }
};

TEST(KilledSave, LeavesAWholeFileAtAnyRandomMoment)
{
    const CTemporaryFolder folder;
    const std::filesystem::path path = folder / "a.skd";
    const Pair pair(4000, 2500);
    ASSERT_FALSE(WriteFile(pair.first, path, 0));
    std::mt19937_64 random(11);
    int interrupted = 0;
    for (int round = 0; round < 100; ++round) {
        SCOPED_TRACE(round);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (;;) {
                if (WriteFile(pair.second, path, 0) || WriteFile(pair.first, path, 0))
                    ::_exit(1);
            }
        }
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 25'000));
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the save itself failed";
        // What is kept is whole from the moment it has its name. Without it the file is.
        const std::string kept = ContentsOf(path.string() + ".bak");
        ASSERT_TRUE(pair.IsWhole(kept.empty() ? ContentsOf(path) : kept));
        interrupted += kept.empty() ? 0 : 1;
        // A long row of kills must not use up the names.
        if (round % 10 == 9) {
            ASSERT_FALSE(WriteFile(pair.first, path, 0));
            RemovePassingCopies(folder);
            ASSERT_EQ(folder.Names(), std::vector<std::string>{"a.skd"});
        }
    }
    EXPECT_GT(interrupted, 0);
}

/// Saves in a child that is killed as it enters its system call number `call`. True if it was
/// killed, false if it was done before.
bool SaveKilledAt(int call, const CMeasureData& data, const std::filesystem::path& path)
{
    const pid_t child = ::fork();
    if (child == 0) {
        if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
            ::_exit(2);
        (void)::raise(SIGSTOP);
        ::_exit(WriteFile(data, path, 0) ? 1 : 0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    // A call stops the child twice, as it enters and as it leaves.
    for (int stops = 0; WIFSTOPPED(status) && stops < 2 * call + 1; ++stops) {
        ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        ::waitpid(child, &status, 0);
    }
    if (!WIFSTOPPED(status)) {
        EXPECT_TRUE(WIFEXITED(status));
        EXPECT_EQ(WEXITSTATUS(status), 0);
        return false;
    }
    ::kill(child, SIGKILL);
    ::waitpid(child, &status, 0);
    return true;
}

TEST(KilledSave, LeavesAWholeFileAtEachOfItsSystemCalls)
{
    const CTemporaryFolder folder;
    const std::filesystem::path path = folder / "a.skd";
    const Pair pair(20, 10);
    int call = 0;
    bool killed = true;
    bool sawKept = false;
    for (; killed && call < 1000; ++call) {
        SCOPED_TRACE(call);
        WriteText(path, pair.firstText);
        killed = SaveKilledAt(call, pair.second, path);
        const std::string now = ContentsOf(path);
        const std::string kept = ContentsOf(path.string() + ".bak");
        ASSERT_TRUE(pair.IsWhole(now) || kept == pair.firstText);
        ASSERT_TRUE(kept.empty() || kept == pair.firstText);
        sawKept |= !kept.empty();
        std::filesystem::remove(path.string() + ".bak");
        RemovePassingCopies(folder);
        ASSERT_EQ(folder.Names(), std::vector<std::string>{"a.skd"});
    }
    EXPECT_FALSE(killed);
    EXPECT_EQ(ReadText(path), pair.secondText);
    EXPECT_TRUE(sawKept);
    EXPECT_GT(call, 10);
}

TEST(KilledSave, KeepsWhatAnEarlierKillLeft)
{
    const CTemporaryFolder folder;
    const std::filesystem::path path = folder / "a.skd";
    const Pair pair(20, 10);
    bool killed = true;
    for (int call = 0; killed && call < 1000; ++call) {
        SCOPED_TRACE(call);
        WriteText(path, "part of a file");
        WriteText(path.string() + ".bak", pair.firstText);
        killed = SaveKilledAt(call, pair.second, path);
        const std::string kept = ContentsOf(path.string() + ".bak");
        // It goes away only after the new file is whole.
        ASSERT_TRUE(kept == pair.firstText || (kept.empty() && ReadText(path) == pair.secondText));
        std::filesystem::remove(path.string() + ".bak1");
        RemovePassingCopies(folder);
    }
    EXPECT_FALSE(killed);
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"a.skd"});
}

} // namespace
} // namespace skeldon::test
