#pragma once

#include "data/MeasureData.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace skeldon::bench {

/// The sample data set of so many lines, made once: a recorder with humidity, a line every one to
/// five seconds over days and weeks, shocks on some, as a data file holds it.
[[nodiscard]] const CMeasureData& SampleData(std::size_t lines);

/// The same as a data file, written once.
[[nodiscard]] const std::filesystem::path& SampleFile(std::size_t lines);

/// A record stream of so many lines of 20 digits, made once.
[[nodiscard]] const std::string& SampleStream(std::size_t lines);

/// A path for output in the folder of the benchmarks' files.
[[nodiscard]] std::filesystem::path OutputPath(std::string_view name);

/// Removes the folder of the benchmarks' files.
void RemoveFiles();

/// The whole of a file.
[[nodiscard]] std::string FileText(const std::filesystem::path& path);

} // namespace skeldon::bench
