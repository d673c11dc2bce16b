#include "setup/conditions/ProfileFolders.h"
#include "setup/conditions/MeasureCondition.h"
#include "setup/conditions/platform/SystemFolders.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>

namespace skeldon::test {
namespace {

namespace fs = std::filesystem;

/// Sets, or with null removes, an environment variable for the time of a test.
class CVariable
{
public:
    CVariable(const char* name, const char* value)
        : m_name(name)
    {
        if (const char* const before = std::getenv(name))
            m_before = before;
        Set(value);
    }
    ~CVariable() { Set(m_before ? m_before->c_str() : nullptr); }
    CVariable(const CVariable&) = delete;
    CVariable& operator=(const CVariable&) = delete;

private:
    void Set(const char* value)
    {
        if (value != nullptr)
            ::setenv(m_name, value, 1);
        else
            ::unsetenv(m_name);
    }

    const char* m_name;
    std::optional<std::string> m_before;
};

TEST(ProfileFolders, LieInTheUsersDataFolderAndBesideTheProgram)
{
    const ProfileFolders folders = FindProfileFolders("/home/a/data", "/opt/skeldon");
    EXPECT_EQ(folders.profiles, "/home/a/data/SKELDON/Profile");
    EXPECT_EQ(folders.templates, "/opt/skeldon/Template");
    EXPECT_FALSE(folders.isInstalled);
}

TEST(ProfileFolders, TakeTheInstallationsTemplatesForAProgramInAFolderOfCommands)
{
    for (const char* folder : {"/usr/bin", "/usr/sbin", "/usr/games", "/usr/libexec"}) {
        const ProfileFolders folders = FindProfileFolders("/d", folder);
        EXPECT_EQ(folders.templates, "/usr/share/skeldon-light/Template") << folder;
        EXPECT_TRUE(folders.isInstalled) << folder;
    }
}

TEST(ProfileFolders, PreferTemplatesThatLieBesideTheProgram)
{
    const CTemporaryFolder folder;
    fs::create_directories(folder / "bin/Template");
    EXPECT_EQ(FindProfileFolders("/d", folder / "bin").templates, folder / "bin/Template");
}

TEST(ProfileFolders, AreEmptyWhereTheyCanNotBeTold)
{
    const ProfileFolders folders = FindProfileFolders({}, {});
    EXPECT_TRUE(folders.profiles.empty());
    EXPECT_TRUE(folders.templates.empty());
    MakeFolders(folders); // makes nothing, and nothing in the working folder
    EXPECT_FALSE(fs::exists("SKELDON"));
    EXPECT_FALSE(fs::exists("Template"));
}

TEST(MakeFolders, MakesEveryMissingLevelOfBoth)
{
    const CTemporaryFolder folder;
    MakeFolders(FindProfileFolders(folder / "a/b", folder / "c/d"));
    EXPECT_TRUE(fs::is_directory(folder / "a/b/SKELDON/Profile"));
    EXPECT_TRUE(fs::is_directory(folder / "c/d/Template"));
}

TEST(MakeFolders, MakesNothingOfAnInstallation)
{
    const CTemporaryFolder folder;
    MakeFolders(FindProfileFolders(folder / "data", folder / "usr/bin"));
    EXPECT_TRUE(fs::is_directory(folder / "data/SKELDON/Profile"));
    EXPECT_FALSE(fs::exists(folder / "usr"));
}

TEST(MakeFolders, StaysSilentWhereNothingCanBeMade)
{
    const CTemporaryFolder folder;
    WriteText(folder / "file", "x");
    MakeFolders(FindProfileFolders(folder / "file", folder / "file"));
    MakeFolders(FindProfileFolders("/proc/none", "/proc/none"));
    EXPECT_EQ(ReadText(folder / "file"), "x");
}

TEST(ProfileDirectory, FollowsTheUsersDataFolder)
{
    const CVariable data("XDG_DATA_HOME", "/somewhere/data");
    EXPECT_EQ(ProfileDirectory(), "/somewhere/data/SKELDON/Profile");
    const CVariable home("HOME", "/home/a");
    for (const char* other : {static_cast<const char*>(nullptr), "", "relative/data"}) {
        const CVariable none("XDG_DATA_HOME", other);
        EXPECT_EQ(ProfileDirectory(), "/home/a/.local/share/SKELDON/Profile");
    }
}

TEST(ProfileDirectory, AsksTheUserListWithoutAHomeVariable)
{
    const CVariable data("XDG_DATA_HOME", nullptr);
    const CVariable home("HOME", nullptr);
    EXPECT_TRUE(ProfileDirectory().is_absolute());
    EXPECT_TRUE(ProfileDirectory().string().ends_with("/.local/share/SKELDON/Profile"));
}

TEST(TemplateDirectory, BelongsToTheRunningProgram)
{
    const fs::path program = fs::read_symlink("/proc/self/exe").parent_path();
    EXPECT_EQ(ProgramFolder(), program);
    EXPECT_EQ(TemplateDirectory(), FindProfileFolders("/d", program).templates);
}

TEST(DefaultDataDirectory, LiesInTheDocumentsFolder)
{
    const CTemporaryFolder folder;
    const CVariable home("HOME", folder.Path().c_str());
    const CVariable config("XDG_CONFIG_HOME", nullptr);
    EXPECT_EQ(DefaultDataDirectory(), folder / "Documents/KORVA");
    fs::create_directories(folder / ".config");
    WriteText(folder / ".config/user-dirs.dirs",
              "# Written by the desktop\nXDG_DESKTOP_DIR=\"$HOME/Desk\"\n"
              "XDG_DOCUMENTS_DIR=\"$HOME/Papers\"\n");
    EXPECT_EQ(DefaultDataDirectory(), folder / "Papers/KORVA");
    fs::create_directories(folder / "else");
    WriteText(folder / "else/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"/srv/papers\"\n");
    const CVariable other("XDG_CONFIG_HOME", (folder / "else").c_str());
    EXPECT_EQ(DefaultDataDirectory(), "/srv/papers/KORVA");
}

TEST(DefaultDataDirectory, SurvivesUserDirsThatAreNoFile)
{
    const CTemporaryFolder folder;
    const CVariable home("HOME", folder.Path().c_str());
    const CVariable config("XDG_CONFIG_HOME", folder.Path().c_str());
    fs::create_directories(folder / "user-dirs.dirs");
    EXPECT_EQ(DefaultDataDirectory(), folder / "Documents/KORVA");
}

TEST(DocumentsFolderFrom, ReadsTheLastAbsoluteNameThatIsGiven)
{
    EXPECT_EQ(DocumentsFolderFrom("XDG_DOCUMENTS_DIR=\"$HOME/A\"\nXDG_DOCUMENTS_DIR=\"/B\"", "/h"),
              "/B");
    EXPECT_EQ(DocumentsFolderFrom("  XDG_DOCUMENTS_DIR=\"$HOME/My \\\"A\\\"\"\r\n", "/h"),
              "/h/My \"A\"");
    EXPECT_EQ(DocumentsFolderFrom("XDG_DOCUMENTS_DIR=\"$HOME//A\"\n", "/h"), "/h/A");
    for (const char* text :
         {"", "\n\n", "#XDG_DOCUMENTS_DIR=\"/A\"", "XDG_DOCUMENTS_DIR=\"A\"",
          "XDG_DOCUMENTS_DIR=/A", "XDG_DOCUMENTS_DIR=\"", "XDG_MUSIC_DIR=\"/A\""})
        EXPECT_EQ(DocumentsFolderFrom(text, "/h"), "") << text;
}

/// In a process of its own, so that no object was made in it before.
[[noreturn]] void MakeFirstAndSecondObject()
{
    bool isRight = false;
    {
        const CTemporaryFolder folder;
        const CVariable data("XDG_DATA_HOME", folder.Path().c_str());
        [[maybe_unused]] const CMeasureCondition first;
        isRight = fs::remove(folder / "SKELDON/Profile");
        [[maybe_unused]] const CMeasureCondition second;
        isRight = isRight && !fs::exists(folder / "SKELDON/Profile");
    }
    std::exit(isRight ? 0 : 1); // NOLINT(concurrency-mt-unsafe)
}

TEST(MeasureConditionDeathTest, MakesTheFoldersWithTheFirstObjectOfAProcessAlone)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(MakeFirstAndSecondObject(), testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace skeldon::test
