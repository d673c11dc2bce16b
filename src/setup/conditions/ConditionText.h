#pragma once

#include <string>

namespace skeldon {

// How lists name the rows of the tables; rows outside are clamped.

/// "0.0312 sec Trace mode".
[[nodiscard]] std::string SamplingListText(int row);
/// "30 minute", "15 sec".
[[nodiscard]] std::string IntervalListText(int row);
/// A threshold or hazard of tenths of G with "%.1f": "10.2".
[[nodiscard]] std::string LevelText(int tenths);

} // namespace skeldon
