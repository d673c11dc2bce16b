// Saving on file systems that know neither unnamed files nor a second name for a file, as those of
// memory sticks do. The calls that they refuse are refused here by a filter on a child's calls.
#include "files/DataFile.h"
#include "files/MeasuredLines.h"
#include "support/TemporaryFolder.h"

#include <cerrno>
#include <csignal>
#include <cstddef>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace skeldon::test {
namespace {

/// Refuses unnamed files and hard links to this process from now on.
bool BecomeMemoryStick()
{
    constexpr unsigned Unnamed = O_TMPFILE & ~O_DIRECTORY;
    sock_filter filter[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, __NR_linkat, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EPERM),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, __NR_openat, 0, 3),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[2])),
        BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, Unnamed, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EOPNOTSUPP),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program{std::size(filter), filter};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

constexpr int NoFilter = 100;

/// Saves in a child on such a file system, where files can have `limit` bytes. Gives the number of
/// the error, 0 for none.
int SaveOnStick(const std::filesystem::path& path, std::size_t count, rlim_t limit = RLIM_INFINITY)
{
    const pid_t child = ::fork();
    if (child == 0) {
        (void)std::signal(SIGXFSZ, SIG_IGN);
        const rlimit size{limit, RLIM_INFINITY};
        if (::setrlimit(RLIMIT_FSIZE, &size) != 0 || !BecomeMemoryStick())
            ::_exit(NoFilter);
        ::_exit(WriteFile(Lines(count), path, 0).value());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

using Names = std::vector<std::string>;

TEST(SaveOnMemoryStick, LeavesTheNewFileAlone)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", "earlier");
    WriteText(folder / "a.skd.bak", "kept before");
    ASSERT_EQ(SaveOnStick(folder / "a.skd", 3), 0);
    const std::string expected = TextOf(Lines(3));
    EXPECT_EQ(ReadText(folder / "a.skd"), expected);
    EXPECT_EQ(folder.Names(), Names{"a.skd"});
}

TEST(SaveOnMemoryStick, KeepsTheEarlierFileWhereWritingFails)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", "earlier");
    ASSERT_EQ(SaveOnStick(folder / "a.skd", 5000, 300'000), EFBIG);
    EXPECT_EQ(ReadText(folder / "a.skd.bak"), "earlier");
    EXPECT_EQ(folder.Names(), (Names{"a.skd", "a.skd.bak"}));
}

TEST(SaveOnMemoryStick, NeverOverwritesWhatAnEarlierFailureKept)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", "now");
    WriteText(folder / "a.skd.bak", "kept before");
    ASSERT_EQ(SaveOnStick(folder / "a.skd", 5000, 300'000), EFBIG);
    EXPECT_EQ(ReadText(folder / "a.skd.bak"), "kept before");
    EXPECT_EQ(ReadText(folder / "a.skd.bak1"), "now");
    EXPECT_EQ(folder.Names(), (Names{"a.skd", "a.skd.bak", "a.skd.bak1"}));
}

TEST(SaveOnMemoryStick, LeavesNothingBehindWhereTheFileCanNotBeKept)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", "earlier, and long");
    ASSERT_EQ(SaveOnStick(folder / "a.skd", 1, 5), EFBIG);
    EXPECT_EQ(ReadText(folder / "a.skd"), "earlier, and long");
    EXPECT_EQ(folder.Names(), Names{"a.skd"});
}

} // namespace
} // namespace skeldon::test
