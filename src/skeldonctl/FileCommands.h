#pragma once

#include "data/MeasureData.h"
#include "skeldonctl/CommandLine.h"
#include "skeldonctl/ExitStatus.h"

namespace skeldon {

// The commands that need no recorder. The data is analysed without the year repair, and the input
// is never written to.
ExitStatus Run(const InfoCommand& command);
ExitStatus Run(const ConvertCommand& command);
ExitStatus Run(const CsvCommand& command);

/// Reads and analyses a data file; tells what is wrong with it.
[[nodiscard]] ExitStatus LoadDataFile(const std::filesystem::path& path, CMeasureData& data);
/// Whether both paths name one file.
[[nodiscard]] bool IsSameFile(const std::filesystem::path& one, const std::filesystem::path& other);

} // namespace skeldon
