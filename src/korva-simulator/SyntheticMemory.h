#pragma once

#include "korva-simulator/RecorderState.h"

#include <cstddef>
#include <cstdint>

namespace skeldon {

struct SyntheticLines
{
    std::size_t count = 0;
    RecorderSeconds from = 0;
    std::int64_t step = 500; ///< hundredths of a second between two lines
};

/// The step by which `count` lines fill a little more than a day: five seconds up to 20,000 lines,
/// less for more, a hundredth of a second at least.
[[nodiscard]] std::int64_t DefaultStep(std::size_t count);

/// Fills the memory of `state` with what it was exposed to, and takes the recording interval that
/// comes nearest to the step.
void FillMemory(RecorderState& state, const SyntheticLines& lines);

} // namespace skeldon
