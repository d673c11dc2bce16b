#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace skeldon {

// Helpers on paths as the program's texts hold them: parts end at a slash or a backslash, since
// names that came from another system keep theirs.

/// The part before the last separator, keeping a root ("/" of "/a"); empty without a separator.
[[nodiscard]] std::string_view DirectoryOf(std::string_view path);
/// The last part of the path.
[[nodiscard]] std::string_view FileNameOf(std::string_view path);
/// The last part without its extension: "a.b" of "x/a.b.skp".
[[nodiscard]] std::string_view FileTitleOf(std::string_view path);
/// What follows the last point of the last part, without the point; empty where there is none.
[[nodiscard]] std::string_view ExtensionOf(std::string_view path);
/// `path` without one separator at its end, unless that would leave a root.
[[nodiscard]] std::string_view WithoutTrailingSeparator(std::string_view path);
/// `path` with its extension replaced by `extension` (no point); a path without one gets it, and
/// one that already has it, in any letter case, is left as it is spelt.
[[nodiscard]] std::filesystem::path WithExtension(const std::filesystem::path& path,
                                                  std::string_view extension);

} // namespace skeldon
