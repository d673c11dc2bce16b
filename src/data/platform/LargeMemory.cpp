#include "data/platform/LargeMemory.h"

#include <cstdlib>
#include <new>
#include <sys/mman.h>

namespace skeldon {

namespace {

constexpr std::size_t LargePage = std::size_t{2} << 20;

} // namespace

void* AllocateLarge(std::size_t size)
{
    void* memory = nullptr;
    if (::posix_memalign(&memory, LargePage, size) != 0)
        throw std::bad_alloc();
    // Whole pages only: what lies behind the array's last one belongs to others.
    (void)::madvise(memory, size / LargePage * LargePage, MADV_HUGEPAGE);
    return memory;
}

void FreeLarge(void* memory)
{
    std::free(memory);
}

} // namespace skeldon
