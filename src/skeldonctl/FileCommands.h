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
/// Refuses, with a message, a target whose saving would cost the input: one that is the input, or
/// one of which the input is a copy kept by a save that failed.
[[nodiscard]] ExitStatus CheckInputStays(const std::filesystem::path& file,
                                         const std::filesystem::path& target);

} // namespace skeldon
