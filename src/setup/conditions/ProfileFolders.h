#pragma once

#include <filesystem>

namespace skeldon {

/// The two folders that conditions come from. An empty path stands for a folder that can not be
/// told: nothing is found there, and nothing is made.
struct ProfileFolders
{
    std::filesystem::path profiles;  ///< of the user
    std::filesystem::path templates; ///< of the program; files in it are never written
    bool isInstalled = false;        ///< the templates' folder belongs to an installation
};

/// The folders of this user and program, by the environment as it is now.
[[nodiscard]] ProfileFolders FindProfileFolders();
/// The folders for a user whose data folder is `userData`, and a program that lies in
/// `programFolder`: `Template` beside it where it is there, or where the program lies in no
/// folder of commands; else the folder of the installation.
[[nodiscard]] ProfileFolders FindProfileFolders(const std::filesystem::path& userData,
                                                const std::filesystem::path& programFolder);

/// Each of the two alone, by the environment as it is now; neither needs to be there.
[[nodiscard]] std::filesystem::path ProfileDirectory();
[[nodiscard]] std::filesystem::path TemplateDirectory();
/// Where data files go unless the user says otherwise: "KORVA" in the documents folder.
[[nodiscard]] std::filesystem::path DefaultDataDirectory();

/// Makes every missing level of both folders, but nothing beside an installed program. A failure
/// shows at the first write.
void MakeFolders(const ProfileFolders& folders);
/// The same for this user and program, once in a process.
void MakeProfileFoldersOnce();

} // namespace skeldon
