#pragma once

#include "data/MeasureRecord.h"
#include "data/platform/LargeMemory.h"

#include <cstddef>
#include <limits>
#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace skeldon {

/// An allocator whose new elements hold nothing until they are written: a million lines are then
/// touched once, by whoever fills them, instead of twice. Large arrays lie in large pages.
template <typename T>
class CUnfilledAllocator : public std::allocator<T>
{
public:
    template <typename U>
    struct rebind
    {
        using other = CUnfilledAllocator<U>;
    };

    [[nodiscard]] T* allocate(std::size_t count)
    {
        if (count > std::numeric_limits<std::size_t>::max() / sizeof(T))
            throw std::bad_array_new_length();
        return count < LargeCount ? std::allocator<T>::allocate(count)
                                  : static_cast<T*>(AllocateLarge(count * sizeof(T)));
    }
    void deallocate(T* place, std::size_t count)
    {
        if (count < LargeCount)
            std::allocator<T>::deallocate(place, count);
        else
            FreeLarge(place);
    }

    template <typename U>
    void construct(U*) noexcept
    {}
    template <typename U, typename... Args>
    void construct(U* place, Args&&... args)
    {
        ::new (static_cast<void*>(place)) U(std::forward<Args>(args)...);
    }

private:
    /// From this many elements on an array counts as large.
    static constexpr std::size_t LargeCount = (std::size_t{4} << 20) / sizeof(T);
};

using RecordArray = std::vector<CMeasureRecord, CUnfilledAllocator<CMeasureRecord>>;

} // namespace skeldon
