// A file that is written anew never costs the user what it held.
#include "files/CsvFile.h"
#include "files/DataFile.h"
#include "files/MeasuredLines.h"
#include "support/FileSizeLimit.h"
#include "support/LessPower.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace skeldon::test {
namespace {

using Names = std::vector<std::string>;

std::error_code Save(const std::filesystem::path& path, std::size_t count)
{
    return WriteFile(Lines(count), path, 0);
}

struct stat StatusOf(const std::filesystem::path& path)
{
    struct stat status
    {};
    EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
    return status;
}

TEST(SafeSave, LeavesTheNewFileAlone)
{
    const CTemporaryFolder folder;
    ASSERT_FALSE(Save(folder / "a.skd", 3));
    EXPECT_EQ(folder.Names(), Names{"a.skd"});
    ASSERT_FALSE(Save(folder / "a.skd", 1)); // shorter
    EXPECT_EQ(ReadText(folder / "a.skd"), TextOf(Lines(1)));
    EXPECT_EQ(folder.Names(), Names{"a.skd"});
}

TEST(SafeSave, MakesAFileWithTheRightsOfAnyNewOne)
{
    const CTemporaryFolder folder;
    const mode_t mask = ::umask(0027);
    EXPECT_FALSE(Save(folder / "a.skd", 1));
    ::umask(mask);
    EXPECT_EQ(StatusOf(folder / "a.skd").st_mode & 07777, 0640U);
}

TEST(SafeSave, KeepsTheEarlierFileWhereWritingFails)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", "earlier");
    {
        const CFileSizeLimit limit(300'000);
        EXPECT_EQ(Save(folder / "a.skd", 5000), std::errc::file_too_large);
    }
    EXPECT_EQ(folder.Names(), (Names{"a.skd", "a.skd.bak"}));
    EXPECT_EQ(ReadText(folder / "a.skd.bak"), "earlier");
    // The part that was written stays too.
    const std::string whole = TextOf(Lines(5000));
    EXPECT_EQ(ReadText(folder / "a.skd"), whole.substr(0, 300'000));
}

TEST(SafeSave, KeepsNothingOfAFileThatWasNotThere)
{
    const CTemporaryFolder folder;
    {
        const CFileSizeLimit limit(1000);
        EXPECT_EQ(Save(folder / "a.skd", 100), std::errc::file_too_large);
    }
    EXPECT_EQ(folder.Names(), Names{"a.skd"});
}

TEST(SafeSave, FailsBeforeTheFileIsTouchedWhereThereIsNoRoomToKeepIt)
{
    const CTemporaryFolder folder;
    const std::string earlier(10'000, 'e');
    WriteText(folder / "a.skd", earlier);
    {
        const CFileSizeLimit limit(5'000);
        EXPECT_EQ(Save(folder / "a.skd", 1), std::errc::file_too_large);
    }
    EXPECT_EQ(ReadText(folder / "a.skd"), earlier);
    EXPECT_EQ(folder.Names(), Names{"a.skd"});
}

TEST(SafeSave, FailsBeforeTheFileIsTouchedInAFolderThatTakesNoCopy)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", "earlier");
    std::filesystem::permissions(folder / "a.skd", std::filesystem::perms(0666));
    std::filesystem::permissions(folder.Path(), std::filesystem::perms(0555));
    const CLessPower asSomebody;
    EXPECT_EQ(Save(folder / "a.skd", 1), std::errc::permission_denied);
    EXPECT_EQ(Save(folder / "b.skd", 1), std::errc::permission_denied);
    EXPECT_EQ(ReadText(folder / "a.skd"), "earlier");
    EXPECT_EQ(folder.Names(), Names{"a.skd"});
}

TEST(SafeSave, FailsBeforeAFileThatMayNotBeWrittenIsCopied)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", "earlier");
    std::filesystem::permissions(folder / "a.skd", std::filesystem::perms(0444));
    std::filesystem::permissions(folder.Path(), std::filesystem::perms(0777));
    const CLessPower asSomebody;
    EXPECT_EQ(Save(folder / "a.skd", 1), std::errc::permission_denied);
    EXPECT_EQ(ReadText(folder / "a.skd"), "earlier");
    EXPECT_EQ(folder.Names(), Names{"a.skd"});
}

TEST(SafeSave, NeverOverwritesWhatAnEarlierFailureKept)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", "now");
    WriteText(folder / "a.skd.bak", "kept before");
    {
        const CFileSizeLimit limit(300'000);
        EXPECT_EQ(Save(folder / "a.skd", 5000), std::errc::file_too_large);
        EXPECT_EQ(Save(folder / "a.skd", 5000), std::errc::file_too_large);
    }
    EXPECT_EQ(ReadText(folder / "a.skd.bak"), "kept before");
    EXPECT_EQ(ReadText(folder / "a.skd.bak1"), "now");
    EXPECT_EQ(ReadText(folder / "a.skd.bak2"), ReadText(folder / "a.skd"));
}

TEST(SafeSave, DropsAllThatFailuresKeptOnceItSucceeds)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", "now");
    for (const char* const name : {"a.skd.bak", "a.skd.bak1", "a.skd.bak2"})
        WriteText(folder / name, name);
    WriteText(folder / "b.skd.bak", "of another file");
    ASSERT_FALSE(Save(folder / "a.skd", 2));
    EXPECT_EQ(folder.Names(), (Names{"a.skd", "b.skd.bak"}));
    EXPECT_EQ(ReadText(folder / "a.skd"), TextOf(Lines(2)));
}

TEST(SafeSave, KeepsAFileBesideAFolderOfThatName)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", "earlier");
    std::filesystem::create_directory(folder / "a.skd.bak");
    {
        const CFileSizeLimit limit(300'000);
        EXPECT_EQ(Save(folder / "a.skd", 5000), std::errc::file_too_large);
    }
    EXPECT_EQ(ReadText(folder / "a.skd.bak1"), "earlier");
    ASSERT_FALSE(Save(folder / "a.skd", 2));
    EXPECT_EQ(folder.Names(), (Names{"a.skd", "a.skd.bak"}));
}

TEST(SafeSave, FailsBeforeTheFileIsTouchedWhereEveryNameIsTaken)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", "earlier");
    WriteText(folder / "a.skd.bak", "kept");
    for (int i = 1; i < 100; ++i)
        WriteText(folder / ("a.skd.bak" + std::to_string(i)), "kept");
    EXPECT_EQ(Save(folder / "a.skd", 1), std::errc::file_exists);
    EXPECT_EQ(ReadText(folder / "a.skd"), "earlier");
    EXPECT_EQ(folder.Names().size(), 101U);
}

TEST(SafeSave, KeepsTheRightsAndTheOwnerOfTheFile)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", "earlier");
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown((folder / "a.skd").c_str(), 65534, 65534), 0);
    }
    ASSERT_EQ(::chmod((folder / "a.skd").c_str(), 0604), 0);
    const struct stat before = StatusOf(folder / "a.skd");
    ASSERT_FALSE(Save(folder / "a.skd", 2));
    const struct stat after = StatusOf(folder / "a.skd");
    EXPECT_EQ(after.st_ino, before.st_ino);
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
    {
        const CFileSizeLimit limit(300'000);
        EXPECT_EQ(Save(folder / "a.skd", 5000), std::errc::file_too_large);
    }
    const struct stat kept = StatusOf(folder / "a.skd.bak");
    EXPECT_EQ(kept.st_mode, before.st_mode);
    EXPECT_EQ(kept.st_uid, before.st_uid);
    EXPECT_EQ(kept.st_gid, before.st_gid);
}

TEST(SafeSave, WritesThroughASymbolicLink)
{
    const CTemporaryFolder folder;
    std::filesystem::create_directory(folder / "far");
    WriteText(folder / "far/a.skd", "earlier");
    std::filesystem::create_symlink("far/a.skd", folder / "link.skd");
    ASSERT_FALSE(Save(folder / "link.skd", 2));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.skd"));
    EXPECT_EQ(ReadText(folder / "far/a.skd"), TextOf(Lines(2)));
    EXPECT_EQ(folder.Names(), (Names{"far", "link.skd"}));
}

TEST(SafeSave, KeepsWhatASymbolicLinkLeadsTo)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", "earlier");
    std::filesystem::create_symlink("a.skd", folder / "link.skd");
    {
        const CFileSizeLimit limit(300'000);
        EXPECT_EQ(Save(folder / "link.skd", 5000), std::errc::file_too_large);
    }
    EXPECT_EQ(ReadText(folder / "link.skd.bak"), "earlier");
    EXPECT_FALSE(std::filesystem::is_symlink(folder / "link.skd.bak"));
}

TEST(SafeSave, MakesTheFileThatALinkLeadsTo)
{
    const CTemporaryFolder folder;
    std::filesystem::create_symlink("a.skd", folder / "link.skd");
    ASSERT_FALSE(Save(folder / "link.skd", 2));
    EXPECT_EQ(ReadText(folder / "a.skd"), TextOf(Lines(2)));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.skd"));
}

TEST(SafeSave, KeepsHardLinksTogether)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", "earlier");
    std::filesystem::create_hard_link(folder / "a.skd", folder / "b.skd");
    ASSERT_FALSE(Save(folder / "a.skd", 2));
    EXPECT_EQ(ReadText(folder / "b.skd"), TextOf(Lines(2)));
    EXPECT_EQ(std::filesystem::hard_link_count(folder / "a.skd"), 2U);
}

TEST(SafeSave, ReportsAFullDevice)
{
    EXPECT_EQ(Save("/dev/full", 2), std::errc::no_space_on_device);
    EXPECT_EQ(Save("/dev/full", 5000), std::errc::no_space_on_device);
    const CTemporaryFolder folder;
    std::filesystem::create_symlink("/dev/full", folder / "a.skd");
    EXPECT_EQ(Save(folder / "a.skd", 2), std::errc::no_space_on_device);
    EXPECT_EQ(folder.Names(), Names{"a.skd"});
}

TEST(SafeSave, WritesToADeviceWithoutKeepingIt)
{
    EXPECT_FALSE(Save("/dev/null", 2));
    EXPECT_FALSE(std::filesystem::exists("/dev/null.bak"));
}

TEST(SafeSave, SaysWhyAPathCanNotBeWritten)
{
    const CTemporaryFolder folder;
    WriteText(folder / "file", "x");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(Save(folder / "none/a.skd", 1), std::errc::no_such_file_or_directory);
    EXPECT_EQ(Save("", 1), std::errc::no_such_file_or_directory);
    EXPECT_EQ(Save(folder / "file/a.skd", 1), std::errc::not_a_directory);
    EXPECT_EQ(Save(folder.Path(), 1), std::errc::is_a_directory);
    // A pipe that nobody reads must not hold the program.
    EXPECT_EQ(Save(folder / "pipe", 1), std::errc::no_such_device_or_address);
    EXPECT_TRUE(Save("/proc/self/a.skd", 1));
}

TEST(SafeSave, TakesAFileWithoutAFolderInItsPath)
{
    const CTemporaryFolder folder;
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    WriteText("a.skd", "earlier");
    const std::error_code error = Save("a.skd", 2);
    std::filesystem::current_path(before);
    EXPECT_FALSE(error) << error.message();
    EXPECT_EQ(ReadText(folder / "a.skd"), TextOf(Lines(2)));
    EXPECT_EQ(folder.Names(), Names{"a.skd"});
}

TEST(SafeSave, CaresForCsvFilesAlike)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.csv", "earlier");
    {
        const CFileSizeLimit limit(300'000);
        EXPECT_EQ(ExportCsv(Lines(10'000), folder / "a.txt", {}), std::errc::file_too_large);
    }
    EXPECT_EQ(ReadText(folder / "a.csv.bak"), "earlier");
    ASSERT_FALSE(ExportCsv(Lines(10'000), folder / "a.txt", {}));
    EXPECT_EQ(folder.Names(), Names{"a.csv"});
}

} // namespace
} // namespace skeldon::test
