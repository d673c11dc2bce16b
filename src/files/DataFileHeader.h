#pragma once

#include "data/MeasureData.h"

#include <string_view>

namespace skeldon {

/// The version that a data file's root line names.
enum class FileVersion
{
    Unknown,
    Older,   ///< "1.0": no header but the title, no flags
    Skeldon, ///< "SKELDON 1.0"
};

/// Whether the line is a root line, of whatever version.
[[nodiscard]] bool IsRootLine(std::string_view line);
[[nodiscard]] FileVersion VersionOfRootLine(std::string_view line);

/// Takes what a line of the Configuration says into `data`. Gives false where the line ends the
/// Configuration.
[[nodiscard]] bool TakeConfigurationLine(CMeasureData& data, FileVersion version,
                                         std::string_view line);

/// Whether a line of the Configuration holds an element whose text is used: of such a line no
/// part may be missing.
[[nodiscard]] bool IsConfigurationText(std::string_view line);

} // namespace skeldon
