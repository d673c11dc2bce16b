#pragma once

#include <cstddef>

namespace skeldon {

/// Memory for large arrays that are filled once from front to end: in large pages where the system
/// has them, since a page fault for every 4096 bytes of a fresh array costs as much as decoding the
/// lines that go there. Throws `std::bad_alloc`.
[[nodiscard]] void* AllocateLarge(std::size_t size);

/// Gives back what `AllocateLarge` gave.
void FreeLarge(void* memory);

} // namespace skeldon
