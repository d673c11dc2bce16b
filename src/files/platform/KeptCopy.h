#pragma once

#include <filesystem>
#include <system_error>

namespace skeldon {

/// The name under which the contents of `path` are kept when `attempt` earlier names are taken:
/// ".bak", ".bak1", ".bak2" and on.
[[nodiscard]] std::filesystem::path KeptName(const std::filesystem::path& path, int attempt);

/// Copies what `path` holds beside it, complete and on disk before the copy has its name, under
/// the first free kept name. Permissions are those of the file, ownership where the system allows
/// it. Fails with nothing left behind.
[[nodiscard]] std::error_code KeepCopy(const std::filesystem::path& path);

/// Whether `file` is one of the copies that may be kept of `path`.
[[nodiscard]] bool IsKeptCopy(const std::filesystem::path& file, const std::filesystem::path& path);

/// Removes the copies that are kept of `path`: that of this save and those of saves that failed
/// before it. From the last name down, so that an interruption leaves no gap between the names.
void DropKeptCopies(const std::filesystem::path& path);

/// Brings the entries of the folder that holds `path` to disk.
[[nodiscard]] std::error_code SyncFolderOf(const std::filesystem::path& path);

} // namespace skeldon
