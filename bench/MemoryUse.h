#pragma once

#include <cstddef>
#include <functional>

namespace skeldon::bench {

/// What some work needs at most beyond what the process held before, in bytes of resident memory.
/// `work` runs in a process of its own and gives a part of that which belongs to its result and
/// is not counted.
[[nodiscard]] std::size_t PeakMemoryOf(const std::function<std::size_t()>& work);

} // namespace skeldon::bench
