#pragma once

#include "setup/conditions/MeasureCondition.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <system_error>

namespace skeldon {

/// What of a profile file is read: a thousand times what the program writes. A larger one can be
/// read, as far as that, but not be written, since what lies behind would be lost.
inline constexpr std::size_t ProfileSizeLimit = std::size_t{4} * 1024 * 1024;

/// Sets conditions and keep-mode block from the text of a profile. Nothing in it can be refused:
/// what is missing or malformed has its fallback, and values beyond their limits are clamped.
/// Path and name stay.
void ReadProfileText(std::string text, CMeasureCondition& condition);

/// The text of a profile, put into `text`, which is what the file held before: what it holds
/// besides stays in place.
[[nodiscard]] std::string WriteProfileText(const CMeasureCondition& condition, std::string text);

/// Reads a profile or template; its name is the file's title. A path that leads to nothing, to a
/// folder or to anything else that is no regular file leaves `condition` as it was. A file that
/// can not be read gives its name, the values of an empty file, and the reason.
[[nodiscard]] std::error_code LoadProfile(const std::filesystem::path& path,
                                          CMeasureCondition& condition);

/// Writes the profile of that name in `folder` and keeps the path in `FilePath`; where that leads
/// to the profile already, its extension in capitals perhaps, it stays. A host number above 99 and
/// a name that is empty or no file's name fail with `invalid_argument`, and nothing is written
/// then; no other value is checked. On any failure the file holds what it held.
[[nodiscard]] std::error_code SaveProfile(CMeasureCondition& condition,
                                          const std::filesystem::path& folder);

} // namespace skeldon
