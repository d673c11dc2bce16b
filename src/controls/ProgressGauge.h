#pragma once

#include <cstdint>

namespace skeldon {

/// The numbers of a progress gauge and what they come to on the strip.
struct ProgressGauge
{
    /// Columns of either end of the strip, which are never filled.
    static constexpr int End = 17;
    /// The narrowest strip: both ends, an empty and a filled column.
    static constexpr int SmallestWidth = 36;
    static constexpr int Height = 48;

    int range = 100;
    int position = 0;

    /// Takes the absolute value; the position is fitted anew.
    void SetRange(int value);
    /// Takes the absolute value, at most the range.
    void SetPosition(int value);
    /// How many of `columns` between the ends are filled; none with a range of 0.
    [[nodiscard]] int FilledColumns(int columns) const;
};

} // namespace skeldon
