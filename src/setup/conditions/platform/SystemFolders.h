#pragma once

#include <filesystem>
#include <string_view>

namespace skeldon {

// The folders that the system sets aside. Each is empty where it can not be told.

/// Where programs keep a user's data: `XDG_DATA_HOME` where that is an absolute path, else
/// ".local/share" of the home folder.
[[nodiscard]] std::filesystem::path UserDataFolder();
/// The user's documents: as the desktop's "user-dirs.dirs" names them, else "Documents" of the
/// home folder.
[[nodiscard]] std::filesystem::path DocumentsFolder();
/// The folder of the running program's file.
[[nodiscard]] std::filesystem::path ProgramFolder();

/// The documents folder that the text of a "user-dirs.dirs" names; empty where it names none.
[[nodiscard]] std::filesystem::path DocumentsFolderFrom(std::string_view text,
                                                        const std::filesystem::path& home);

} // namespace skeldon
