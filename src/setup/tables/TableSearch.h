#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

namespace skeldon {

/// Whether `row` lies in the table.
template <typename Row, std::size_t Count>
constexpr bool IsRow(const std::array<Row, Count>&, int row)
{
    return row >= 0 && row < static_cast<int>(Count);
}

/// The row; below the table its first, behind it its last.
template <typename Row, std::size_t Count>
constexpr const Row& ClampedRow(const std::array<Row, Count>& rows, int row)
{
    return rows[static_cast<std::size_t>(std::clamp(row, 0, static_cast<int>(Count) - 1))];
}

/// The first row whose `member` is `value`, or -1.
template <typename Row, std::size_t Count, typename Value>
constexpr int FindRow(const std::array<Row, Count>& rows, Value Row::*member, Value value)
{
    for (std::size_t i = 0; i < Count; ++i) {
        if (rows[i].*member == value)
            return static_cast<int>(i);
    }
    return -1;
}

} // namespace skeldon
