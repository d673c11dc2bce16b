#include "setup/conditions/ProfileFile.h"
#include "setup/conditions/platform/WholeFile.h"
#include "support/FileSizeLimit.h"
#include "support/LessPower.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace skeldon::test {
namespace {

namespace fs = std::filesystem;

CMeasureCondition Named(const std::string& name, int threshold = 0)
{
    CMeasureCondition condition;
    condition.ProfileName = name;
    condition.Threshold = threshold;
    return condition;
}

int ThresholdOf(const fs::path& path)
{
    CMeasureCondition condition;
    EXPECT_FALSE(LoadProfile(path, condition)) << path;
    return condition.Threshold;
}

mode_t ModeOf(const fs::path& path)
{
    struct stat status
    {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_mode & 07777;
}

TEST(SaveProfile, NamesTheFileAfterTheProfile)
{
    const CTemporaryFolder folder;
    CMeasureCondition condition = Named("A.b c", 77);
    condition.FilePath = "/templates/other.skp";
    ASSERT_FALSE(SaveProfile(condition, folder.Path()));
    EXPECT_EQ(condition.FilePath, folder / "A.b c.skp");
    EXPECT_EQ(folder.Names().size(), 1U);
    CMeasureCondition read;
    ASSERT_FALSE(LoadProfile(condition.FilePath, read));
    EXPECT_EQ(read.ProfileName, "A.b c");
    EXPECT_EQ(read.FilePath, condition.FilePath);
    EXPECT_EQ(read.Threshold, 77);
}

TEST(SaveProfile, WritesTheFileThatWasReadWhateverTheCaseOfItsExtension)
{
    const CTemporaryFolder folder;
    WriteText(folder / "A.SKP", "[Own]\nB=2\n");
    CMeasureCondition condition;
    ASSERT_FALSE(LoadProfile(folder / "A.SKP", condition));
    condition.Threshold = 7;
    ASSERT_FALSE(SaveProfile(condition, folder.Path()));
    EXPECT_EQ(condition.FilePath, folder / "A.SKP");
    EXPECT_EQ(ThresholdOf(folder / "A.SKP"), 7);
    EXPECT_TRUE(ReadText(folder / "A.SKP").starts_with("[Own]\nB=2\n"));
    EXPECT_EQ(folder.Names().size(), 1U);
    // Another name, or another folder, is another profile.
    condition.ProfileName = "a";
    ASSERT_FALSE(SaveProfile(condition, folder.Path()));
    EXPECT_EQ(condition.FilePath, folder / "a.skp");
    fs::create_directories(folder / "in");
    ASSERT_FALSE(LoadProfile(folder / "A.SKP", condition));
    ASSERT_FALSE(SaveProfile(condition, folder / "in"));
    EXPECT_EQ(condition.FilePath, folder / "in/A.skp");
}

TEST(SaveProfile, RefusesAHostNumberAbove99AndAnEmptyName)
{
    const CTemporaryFolder folder;
    CMeasureCondition condition = Named("A");
    condition.SerialNo = 100;
    condition.FilePath = "before";
    EXPECT_EQ(SaveProfile(condition, folder.Path()), std::errc::invalid_argument);
    CMeasureCondition unnamed = Named("");
    EXPECT_EQ(SaveProfile(unnamed, folder.Path()), std::errc::invalid_argument);
    EXPECT_EQ(folder.Names().size(), 0U);
    EXPECT_EQ(condition.FilePath, "before");
    condition.SerialNo = 99;
    EXPECT_FALSE(SaveProfile(condition, folder.Path()));
    condition.SerialNo = 0;
    EXPECT_FALSE(SaveProfile(condition, folder.Path()));
}

TEST(SaveProfile, NeverWritesOutsideItsFolder)
{
    const CTemporaryFolder folder;
    fs::create_directories(folder / "in");
    for (const std::string& name : {std::string("../A"), std::string("/tmp/A"), std::string("a/b"),
                                    std::string("/"), std::string("a\0b", 3)}) {
        CMeasureCondition condition = Named(name);
        EXPECT_EQ(SaveProfile(condition, folder / "in"), std::errc::invalid_argument) << name;
    }
    EXPECT_TRUE(fs::is_empty(folder / "in"));
    EXPECT_EQ(folder.Names().size(), 1U);
}

TEST(SaveProfile, KeepsNamesApartThatDifferInAnyByte)
{
    const CTemporaryFolder folder;
    const std::vector<std::string> names = {
        "A",        "a",        "A ",           " A",       "A.skp",     "A.",   ".",
        "..",       "x\\A",     "y\\A",         "\x83\x5C", "\x95\x5C",  "\x5C", "\xE9",
        "\xC3\xA9", "\xFF\xFE", "\xED\xA0\x80", "tab\t",    "new\nline", "\"A\""};
    for (std::size_t i = 0; i < names.size(); ++i) {
        CMeasureCondition condition = Named(names[i], static_cast<int>(i));
        ASSERT_FALSE(SaveProfile(condition, folder.Path())) << names[i];
    }
    EXPECT_EQ(folder.Names().size(), names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        CMeasureCondition read;
        ASSERT_FALSE(LoadProfile(folder / (names[i] + ".skp"), read)) << names[i];
        EXPECT_EQ(read.ProfileName, names[i]);
        EXPECT_EQ(read.Threshold, static_cast<int>(i)) << names[i];
    }
}

TEST(SaveProfile, KeepsWhatElseAnExistingFileHolds)
{
    const CTemporaryFolder folder;
    WriteText(folder / "A.skp", "[Configuration]\nThreshold=1\nMine=x\n[Own]\nB=2\n");
    CMeasureCondition condition = Named("A", 2);
    ASSERT_FALSE(SaveProfile(condition, folder.Path()));
    const std::string bytes = ReadText(folder / "A.skp");
    EXPECT_TRUE(bytes.starts_with("[Configuration]\nThreshold=2\nMine=x\n"));
    EXPECT_NE(bytes.find("[Own]\nB=2\n"), std::string::npos);
    EXPECT_EQ(folder.Names().size(), 1U);
}

TEST(SaveProfile, KeepsPermissions)
{
    const CTemporaryFolder folder;
    const mode_t mask = ::umask(027);
    CMeasureCondition condition = Named("A");
    const std::error_code made = SaveProfile(condition, folder.Path());
    ::umask(mask);
    ASSERT_FALSE(made);
    EXPECT_EQ(ModeOf(folder / "A.skp"), 0640U);
    ::chmod((folder / "A.skp").c_str(), 0604);
    ASSERT_FALSE(SaveProfile(condition, folder.Path()));
    EXPECT_EQ(ModeOf(folder / "A.skp"), 0604U);
}

TEST(SaveProfile, WritesThroughLinks)
{
    const CTemporaryFolder folder;
    fs::create_directories(folder / "real");
    WriteText(folder / "real/x.txt", "");
    fs::create_symlink("real/x.txt", folder / "second");
    fs::create_symlink(folder / "second", folder / "A.skp");
    fs::create_symlink("real/new.txt", folder / "B.skp"); // leads to nothing yet
    CMeasureCondition a = Named("A", 11);
    CMeasureCondition b = Named("B", 12);
    ASSERT_FALSE(SaveProfile(a, folder.Path()));
    ASSERT_FALSE(SaveProfile(b, folder.Path()));
    EXPECT_TRUE(fs::is_symlink(folder / "A.skp"));
    EXPECT_TRUE(fs::is_symlink(folder / "second"));
    EXPECT_TRUE(fs::is_symlink(folder / "B.skp"));
    EXPECT_EQ(ThresholdOf(folder / "real/x.txt"), 11);
    EXPECT_EQ(ThresholdOf(folder / "real/new.txt"), 12);
}

TEST(SaveProfile, FailsForLinksWithoutEnd)
{
    const CTemporaryFolder folder;
    fs::create_symlink("A.skp", folder / "A.skp");
    CMeasureCondition condition = Named("A");
    EXPECT_EQ(SaveProfile(condition, folder.Path()), std::errc::too_many_symbolic_link_levels);
    EXPECT_TRUE(fs::is_symlink(folder / "A.skp"));
}

TEST(SaveProfile, LeavesTheFileWholeWhenTheDiskIsFull)
{
    const CTemporaryFolder folder;
    CMeasureCondition condition = Named("A", 5);
    ASSERT_FALSE(SaveProfile(condition, folder.Path()));
    const std::string before = ReadText(folder / "A.skp");
    condition.Threshold = 6;
    CMeasureCondition fresh = Named("B");
    std::error_code error;
    std::error_code freshError;
    {
        const CFileSizeLimit limit(100);
        error = SaveProfile(condition, folder.Path());
        freshError = SaveProfile(fresh, folder.Path());
    }
    EXPECT_EQ(error, std::errc::file_too_large);
    EXPECT_EQ(freshError, std::errc::file_too_large);
    EXPECT_EQ(ReadText(folder / "A.skp"), before);
    EXPECT_EQ(folder.Names().size(), 1U); // neither a part of B nor a passing file
}

TEST(SaveProfile, FailsWithTheSystemsReason)
{
    const CTemporaryFolder folder;
    CMeasureCondition condition = Named("A");
    EXPECT_EQ(SaveProfile(condition, folder / "none"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(SaveProfile(condition, {}), std::errc::no_such_file_or_directory);
    fs::create_directories(folder / "A.skp");
    EXPECT_EQ(SaveProfile(condition, folder.Path()), std::errc::is_a_directory);
    EXPECT_TRUE(fs::is_directory(folder / "A.skp"));
    WriteText(folder / "file", "x");
    EXPECT_EQ(SaveProfile(condition, folder / "file"), std::errc::not_a_directory);
    EXPECT_TRUE(SaveProfile(condition, "/proc")); // takes no new file, root's neither
    CMeasureCondition longName = Named(std::string(300, 'n'));
    EXPECT_EQ(SaveProfile(longName, folder.Path()), std::errc::filename_too_long);
}

TEST(SaveProfile, DoesNotReplaceAFileThatMayNotBeWritten)
{
    const CTemporaryFolder folder;
    SetMode(folder.Path(), 0777);
    WriteText(folder / "A.skp", "[Configuration]\nThreshold=1\n");
    SetMode(folder / "A.skp", 0444);
    CMeasureCondition condition = Named("A", 2);
    {
        const CLessPower user;
        EXPECT_EQ(SaveProfile(condition, folder.Path()), std::errc::permission_denied);
    }
    EXPECT_EQ(ThresholdOf(folder / "A.skp"), 1);
    EXPECT_EQ(folder.Names().size(), 1U);
}

TEST(SaveProfile, FailsInAReadOnlyFolder)
{
    const CTemporaryFolder folder;
    WriteText(folder / "A.skp", "[Configuration]\nThreshold=1\n");
    SetMode(folder / "A.skp", 0666);
    SetMode(folder.Path(), 0555);
    CMeasureCondition old = Named("A", 2);
    CMeasureCondition fresh = Named("B", 2);
    {
        const CLessPower user;
        EXPECT_EQ(SaveProfile(old, folder.Path()), std::errc::permission_denied);
        EXPECT_EQ(SaveProfile(fresh, folder.Path()), std::errc::permission_denied);
    }
    SetMode(folder.Path(), 0755);
    EXPECT_EQ(fresh.FilePath, folder / "B.skp"); // where it was to be written
    EXPECT_EQ(ThresholdOf(folder / "A.skp"), 1);
    EXPECT_EQ(folder.Names().size(), 1U);
}

TEST(SaveProfile, DoesNotReplaceAFileThatItCanNotRead)
{
    const CTemporaryFolder folder;
    SetMode(folder.Path(), 0777);
    WriteText(folder / "A.skp", "[Own]\nB=2\n");
    SetMode(folder / "A.skp", 0222);
    CMeasureCondition condition = Named("A", 2);
    {
        const CLessPower user;
        EXPECT_EQ(SaveProfile(condition, folder.Path()), std::errc::permission_denied);
    }
    SetMode(folder / "A.skp", 0644);
    EXPECT_EQ(ReadText(folder / "A.skp"), "[Own]\nB=2\n");
}

TEST(SaveProfile, TakesANameOfTheGreatestLength)
{
    const CTemporaryFolder folder;
    CMeasureCondition condition = Named(std::string(251, 'n'));
    EXPECT_FALSE(SaveProfile(condition, folder.Path()));
    EXPECT_FALSE(SaveProfile(condition, folder.Path()));
    EXPECT_EQ(folder.Names().size(), 1U);
}

TEST(SaveProfile, RefusesWhatIsNoRegularFile)
{
    const CTemporaryFolder folder;
    fs::create_symlink("/dev/null", folder / "A.skp");
    ASSERT_EQ(::mkfifo((folder / "B.skp").c_str(), 0600), 0);
    CMeasureCondition a = Named("A");
    CMeasureCondition b = Named("B");
    EXPECT_EQ(SaveProfile(a, folder.Path()), std::errc::invalid_argument);
    EXPECT_EQ(SaveProfile(b, folder.Path()), std::errc::invalid_argument);
    EXPECT_TRUE(fs::is_fifo(folder / "B.skp"));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(SaveProfile, RefusesAFileTooLargeToBeKept)
{
    const CTemporaryFolder folder;
    WriteText(folder / "A.skp", "[Configuration]\nThreshold=9\n");
    fs::resize_file(folder / "A.skp", ProfileSizeLimit + 1);
    CMeasureCondition condition = Named("A", 5);
    EXPECT_EQ(SaveProfile(condition, folder.Path()), std::errc::file_too_large);
    EXPECT_EQ(fs::file_size(folder / "A.skp"), ProfileSizeLimit + 1);
    EXPECT_EQ(ThresholdOf(folder / "A.skp"), 9); // it can still be read
}

TEST(LoadProfile, TakesTheNameFromTheFileAndNotFromItsKey)
{
    const CTemporaryFolder folder;
    WriteText(folder / "Renamed.SKP", "[Configuration]\nProfileName=\"Old\"\n");
    CMeasureCondition condition;
    ASSERT_FALSE(LoadProfile(folder / "Renamed.SKP", condition));
    EXPECT_EQ(condition.ProfileName, "Renamed");
    EXPECT_EQ(condition.FilePath, folder / "Renamed.SKP");
}

TEST(LoadProfile, LeavesTheObjectAloneWhereThereIsNoFile)
{
    const CTemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "fifo.skp").c_str(), 0600), 0);
    WriteText(folder / "file", "x");
    CMeasureCondition condition = Named("Before", 5);
    condition.FilePath = "before";
    EXPECT_EQ(LoadProfile(folder / "none.skp", condition), std::errc::no_such_file_or_directory);
    EXPECT_EQ(LoadProfile(folder.Path(), condition), std::errc::is_a_directory);
    EXPECT_EQ(LoadProfile(folder / "file/A.skp", condition), std::errc::not_a_directory);
    EXPECT_EQ(LoadProfile(folder / "fifo.skp", condition), std::errc::invalid_argument);
    EXPECT_EQ(LoadProfile("/dev/zero", condition), std::errc::invalid_argument);
    EXPECT_EQ(LoadProfile("", condition), std::errc::no_such_file_or_directory);
    EXPECT_EQ(condition.FilePath, "before");
    EXPECT_EQ(condition.ProfileName, "Before");
    EXPECT_EQ(condition.Threshold, 5);
}

TEST(LoadProfile, GivesTheNameAndTheReasonOfAFileThatCanNotBeRead)
{
    const CTemporaryFolder folder;
    // A regular file whose first byte nobody can read, root neither.
    fs::create_symlink("/proc/self/mem", folder / "A.skp");
    CMeasureCondition condition = Named("Before", 5);
    EXPECT_EQ(LoadProfile(folder / "A.skp", condition), std::errc::io_error);
    EXPECT_EQ(condition.ProfileName, "A");
    EXPECT_EQ(condition.GetSampling(), 6);
    EXPECT_EQ(condition.Threshold, 0);
}

TEST(LoadProfile, TellsThatAFileMayNotBeRead)
{
    const CTemporaryFolder folder;
    SetMode(folder.Path(), 0755);
    WriteText(folder / "A.skp", "[Configuration]\nThreshold=9\n");
    SetMode(folder / "A.skp", 0000);
    CMeasureCondition condition = Named("Before", 5);
    {
        const CLessPower user;
        EXPECT_EQ(LoadProfile(folder / "A.skp", condition), std::errc::permission_denied);
    }
    EXPECT_EQ(condition.ProfileName, "A");
    EXPECT_EQ(condition.Threshold, 0);
}

TEST(LoadProfile, ReadsAFileAsFarAsItsLimit)
{
    const CTemporaryFolder folder;
    WriteText(folder / "A.skp", "[Configuration]\nThreshold=9\n");
    fs::resize_file(folder / "A.skp", std::uintmax_t{1} << 40); // a terabyte of nothing
    EXPECT_EQ(ThresholdOf(folder / "A.skp"), 9);
}

TEST(MeasureConditionSave, MakesTheFolderAgainBeforeAWrite)
{
    const CTemporaryFolder folder;
    const char* const before = std::getenv("XDG_DATA_HOME");
    const std::string kept = before == nullptr ? "" : before;
    ::setenv("XDG_DATA_HOME", folder.Path().c_str(), 1);
    CMeasureCondition condition = Named("A", 8);
    const std::error_code saved = condition.Save();
    ::setenv("XDG_DATA_HOME", kept.c_str(), 1);
    EXPECT_FALSE(saved);
    EXPECT_EQ(condition.FilePath, folder / "SKELDON/Profile/A.skp");
    CMeasureCondition read;
    EXPECT_FALSE(read.Load(condition.FilePath));
    EXPECT_EQ(read.Threshold, 8);
}

TEST(DeleteFile, DeletesFilesAndLinksButNoFolder)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a", "x");
    fs::create_symlink("a", folder / "link");
    fs::create_directories(folder / "empty");
    EXPECT_FALSE(DeleteFile(folder / "link"));
    EXPECT_EQ(ReadText(folder / "a"), "x");
    EXPECT_FALSE(DeleteFile(folder / "a"));
    EXPECT_FALSE(DeleteFile(folder / "a"));
    EXPECT_EQ(DeleteFile(folder / "empty"), std::errc::is_a_directory);
    EXPECT_EQ(folder.Names().size(), 1U);
}

} // namespace
} // namespace skeldon::test
