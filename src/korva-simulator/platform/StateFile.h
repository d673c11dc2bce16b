#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace skeldon {

/// The whole contents of a file.
[[nodiscard]] std::string ReadWholeFile(const std::filesystem::path& path, std::error_code& error);

/// Puts `text` in the place of the file, whole: until it is on the disk the earlier contents stand.
[[nodiscard]] std::error_code WriteWholeFile(const std::filesystem::path& path,
                                             std::string_view text);

} // namespace skeldon
