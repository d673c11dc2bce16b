#pragma once

#include "data/MeasureRecord.h"

#include <memory>
#include <utility>
#include <vector>

namespace skeldon {

/// An allocator whose new elements hold nothing until they are written: a million lines are then
/// touched once, by whoever fills them, instead of twice.
template <typename T>
class CUnfilledAllocator : public std::allocator<T>
{
public:
    template <typename U>
    struct rebind
    {
        using other = CUnfilledAllocator<U>;
    };

    template <typename U>
    void construct(U*) noexcept
    {}
    template <typename U, typename... Args>
    void construct(U* place, Args&&... args)
    {
        ::new (static_cast<void*>(place)) U(std::forward<Args>(args)...);
    }
};

using RecordArray = std::vector<CMeasureRecord, CUnfilledAllocator<CMeasureRecord>>;

} // namespace skeldon
