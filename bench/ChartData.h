#pragma once

#include "data/MeasureData.h"

#include <cstddef>

namespace skeldon::bench {

/// A transport of days: quiet, a shock now and then, warm and cold with the hour. Analysed.
[[nodiscard]] const CMeasureData& OrdinaryData(std::size_t lines);

/// Noise over the whole scale on every quantity. Analysed.
[[nodiscard]] const CMeasureData& NoiseData(std::size_t lines);

} // namespace skeldon::bench
