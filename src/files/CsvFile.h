#pragma once

#include "files/CsvText.h"
#include "files/Output.h"

#include <filesystem>
#include <system_error>

namespace skeldon {

/// Which lines of a data set go into a CSV file.
struct CsvFilter
{
    bool onlyMarked = false;
    bool onlyExtracted = false;
};

/// Writes header and rows, line ends CR LF.
[[nodiscard]] std::error_code FormatCsv(const CMeasureData& data, const CsvOptions& options,
                                        const CsvNames& names, const CsvFilter& filter,
                                        COutput& output);

/// Writes a CSV file, saving what was there from loss (see `CSafeFile`). The data set is not
/// changed.
[[nodiscard]] std::error_code WriteCsvFile(const CMeasureData& data,
                                           const std::filesystem::path& path,
                                           const CsvOptions& options, const CsvNames& names = {},
                                           const CsvFilter& filter = {});

/// The same under `path` with its extension replaced by "csv".
[[nodiscard]] std::error_code ExportCsv(const CMeasureData& data, const std::filesystem::path& path,
                                        const CsvOptions& options, const CsvNames& names = {},
                                        const CsvFilter& filter = {});

} // namespace skeldon
