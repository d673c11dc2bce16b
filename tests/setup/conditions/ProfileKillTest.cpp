#include "setup/conditions/ProfileFile.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <random>

#include <sys/wait.h>
#include <unistd.h>

namespace skeldon::test {
namespace {

CMeasureCondition Version(int number)
{
    CMeasureCondition condition;
    condition.ProfileName = "A";
    condition.Threshold = number;
    condition.SaveFileSpecify = std::string(static_cast<std::size_t>(number) * 100, 'x');
    return condition;
}

/// Saves two versions in turn without end, and tells each save by a byte.
[[noreturn]] void SaveForever(const std::filesystem::path& folder, int tell)
{
    for (int i = 0;; ++i) {
        CMeasureCondition condition = Version(1 + i % 2);
        const char isSaved = SaveProfile(condition, folder) ? 'f' : 's';
        if (::write(tell, &isSaved, 1) != 1)
            ::_exit(1);
    }
}

TEST(SaveProfile, LeavesOneWholeVersionWhenItIsKilledAtAnyMoment)
{
    const CTemporaryFolder folder;
    const std::string first = WriteProfileText(Version(1), "");
    const std::string second = WriteProfileText(Version(2), "");
    std::mt19937 random(3); // NOLINT(cert-msc51-cpp)
    for (int round = 0; round < 20; ++round) {
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        const pid_t child = ::fork();
        if (child == 0)
            SaveForever(folder.Path(), ends[1]);
        ::close(ends[1]);
        for (auto saves = 1 + random() % 10; saves > 0; --saves) {
            char isSaved = 0;
            ASSERT_EQ(::read(ends[0], &isSaved, 1), 1);
            ASSERT_EQ(isSaved, 's');
        }
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ::close(ends[0]);
        const std::string left = ReadText(folder / "A.skp");
        ASSERT_TRUE(left == first || left == second) << left;
    }
    // What a kill may leave is no profile to any list.
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
        EXPECT_TRUE(entry.path().filename() == "A.skp" || entry.path().extension() != ".skp");
}

} // namespace
} // namespace skeldon::test
