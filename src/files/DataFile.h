#pragma once

#include "base/CalendarTime.h"
#include "data/MeasureData.h"
#include "files/Output.h"

#include <filesystem>
#include <string>
#include <system_error>

namespace skeldon {

/// Why a data file was not read.
enum class DataFileError
{
    None,
    CannotRead,     ///< `reason` says why
    NotADataFile,   ///< no root line
    UnknownVersion, ///< a root line of another version
    ElementTooLong, ///< a value longer than any line may be (1 MiB)
};

/// Outcome of reading a data file.
struct [[nodiscard]] DataFileResult
{
    DataFileError error = DataFileError::None;
    std::error_code reason;

    explicit operator bool() const { return error == DataFileError::None; }
};

/// What went wrong, in one English line without the path.
[[nodiscard]] std::string DescribeDataFileError(const DataFileResult& result);

/// Replaces the lines and header of `data` by those of a data file, current or older. The title
/// stays where the file has none that is read. Flags and times come as they stand; an analysis
/// must follow. After a failure `data` holds no lines and an empty header.
DataFileResult ReadFile(CMeasureData& data, const std::filesystem::path& path);

/// Writes `data` without its deleted lines as a data file, saving what was there from loss (see
/// `CSafeFile`). `saveTime` is noted in the file. `data` is not touched: after a success the caller
/// sets its file name and stores the signature.
[[nodiscard]] std::error_code WriteFile(const CMeasureData& data, const std::filesystem::path& path,
                                        CalendarSeconds saveTime = Now());

/// The text of the data file alone.
[[nodiscard]] std::error_code FormatDataFile(const CMeasureData& data, CalendarSeconds saveTime,
                                             COutput& output);

} // namespace skeldon
