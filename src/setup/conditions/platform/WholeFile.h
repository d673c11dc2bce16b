#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace skeldon {

// Small files that are read and replaced as a whole. Links are followed. What is no regular file
// is refused: a folder with `is_a_directory`, anything else with `invalid_argument`.

/// The first `limit` bytes of the file.
[[nodiscard]] std::error_code ReadWholeFile(const std::filesystem::path& path, std::size_t limit,
                                            std::string& bytes);

/// Puts `bytes` in the place of the file's contents, or makes the file: they are written to a
/// passing name beside it, brought to disk and renamed, so that at any moment the file holds
/// either all of the old or all of the new. Permissions and, where the system allows it,
/// ownership stay. A file that may not be written is not replaced. On a failure before the rename
/// nothing has changed.
[[nodiscard]] std::error_code ReplaceWholeFile(const std::filesystem::path& path,
                                               std::string_view bytes);

/// Deletes the file, or the link of that name; one that is not there is no failure. A folder is
/// never deleted.
[[nodiscard]] std::error_code DeleteFile(const std::filesystem::path& path);

} // namespace skeldon
