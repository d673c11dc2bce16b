#pragma once

#include "data/MeasureData.h"

#include <string>

namespace skeldon {

/// What people want to know of an analysed data set, a line for each thing, with the last line end.
[[nodiscard]] std::string DataSetText(const CMeasureData& data);

} // namespace skeldon
