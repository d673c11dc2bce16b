#pragma once

#include "data/MeasureData.h"
#include "files/Output.h"

#include <optional>
#include <system_error>

namespace skeldon {

/// What is told of a data set beside the set itself.
struct DataSetTold
{
    bool yearRepaired = false;
    std::optional<int> expected; ///< lines that the recorder announced, after a transfer
    bool withRecords = false;    ///< all lines too
};

/// Writes the data set as one JSON object and a line end. Texts that are not UTF-8 are decoded from
/// the data code page, numbers have as many digits as give the same double back; what JSON has no
/// number for is null.
[[nodiscard]] std::error_code WriteDataSetJson(const CMeasureData& data, const DataSetTold& told,
                                               COutput& output);

} // namespace skeldon
