#pragma once

#include "data/MeasureData.h"
#include "files/CsvText.h"
#include "skeldonctl/ExitStatus.h"

#include <filesystem>
#include <string_view>
#include <system_error>

namespace skeldon {

/// Tells that `path` was written, or why it could not be.
ExitStatus TellOutcome(const std::filesystem::path& path, std::error_code error);

/// Saves the data set as a data file, under `path` with the extension "skd" as the window does,
/// tells where, and takes over name and signature. What is no regular file, such as a device, is
/// written under the name as it stands.
ExitStatus SaveDataFile(CMeasureData& data, const std::filesystem::path& path);

/// Exports the data set as a CSV file, likewise with the extension "csv".
ExitStatus SaveCsvFile(const CMeasureData& data, const std::filesystem::path& path,
                       const CsvOptions& options);

/// Looks, before a recorder is read for minutes, whether such a file could be made: tells where
/// the folder is missing or the name is a folder's.
[[nodiscard]] ExitStatus CheckTarget(const std::filesystem::path& target);

/// Where `SaveDataFile` and `SaveCsvFile` write.
[[nodiscard]] std::filesystem::path TargetOf(const std::filesystem::path& path,
                                             std::string_view extension);

} // namespace skeldon
