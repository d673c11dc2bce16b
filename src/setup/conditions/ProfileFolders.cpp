#include "setup/conditions/ProfileFolders.h"

#include "setup/conditions/platform/SystemFolders.h"

#include <array>
#include <string_view>
#include <system_error>

namespace skeldon {

namespace fs = std::filesystem;

namespace {

/// From the folder of commands of an installation to its data.
constexpr std::string_view InstalledData = "../share/skeldon-light";

/// Where packages put commands; whatever lies there was installed.
bool IsCommandFolder(const fs::path& folder)
{
    constexpr std::array<std::string_view, 4> Names = {"bin", "sbin", "games", "libexec"};
    const fs::path name = folder.filename();
    for (const std::string_view known : Names) {
        if (name == known)
            return true;
    }
    return false;
}

} // namespace

ProfileFolders FindProfileFolders(const fs::path& userData, const fs::path& programFolder)
{
    ProfileFolders folders;
    if (!userData.empty())
        folders.profiles = userData / "SKELDON" / "Profile";
    if (programFolder.empty())
        return folders;
    folders.templates = programFolder / "Template";
    std::error_code ignored;
    if (IsCommandFolder(programFolder) && !fs::is_directory(folders.templates, ignored)) {
        folders.templates = (programFolder / InstalledData / "Template").lexically_normal();
        folders.isInstalled = true;
    }
    return folders;
}

ProfileFolders FindProfileFolders()
{
    return FindProfileFolders(UserDataFolder(), ProgramFolder());
}

fs::path ProfileDirectory()
{
    return FindProfileFolders().profiles;
}

fs::path TemplateDirectory()
{
    return FindProfileFolders().templates;
}

fs::path DefaultDataDirectory()
{
    const fs::path documents = DocumentsFolder();
    return documents.empty() ? documents : documents / "KORVA";
}

void MakeFolders(const ProfileFolders& folders)
{
    std::error_code ignored;
    if (!folders.profiles.empty())
        fs::create_directories(folders.profiles, ignored);
    if (!folders.templates.empty() && !folders.isInstalled)
        fs::create_directories(folders.templates, ignored);
}

void MakeProfileFoldersOnce()
{
    [[maybe_unused]] static const bool isDone = (MakeFolders(FindProfileFolders()), true);
}

} // namespace skeldon
