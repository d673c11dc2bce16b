#pragma once

#include <cstdint>

namespace skeldon {

/// Pixels end here: far beyond every surface, and near enough to zero that sums of a few of them
/// stay within 32 bits.
inline constexpr int PixelLimit = 500'000'000;

/// `value` with its fraction cut off, toward zero. What lies beyond `PixelLimit` is that limit; no
/// number is 0.
[[nodiscard]] inline int Truncate(double value)
{
    if (!(value < PixelLimit))
        return value >= PixelLimit ? PixelLimit : 0;
    return value > -PixelLimit ? static_cast<int>(value) : -PixelLimit;
}

/// The nearest pixel as every mapping of the chart finds it: add 0.5, cut off toward zero. So -0.7
/// gives 0 and -1.5 gives -1.
[[nodiscard]] inline int RoundPixel(double value)
{
    return Truncate(value + 0.5);
}

/// As `Truncate`, for milliseconds and for columns of lines far outside the window.
[[nodiscard]] inline std::int64_t Truncate64(double value)
{
    constexpr double Limit = 4e18;
    if (!(value < Limit))
        return value >= Limit ? static_cast<std::int64_t>(Limit) : 0;
    return value > -Limit ? static_cast<std::int64_t>(value) : -static_cast<std::int64_t>(Limit);
}

[[nodiscard]] inline std::int64_t RoundPixel64(double value)
{
    return Truncate64(value + 0.5);
}

// Line geometry is held in 16 bits: a line end outside is moved to the limit.
inline constexpr int ShortMin = -32768;
inline constexpr int ShortMax = 32767;

[[nodiscard]] constexpr bool FitsShort(std::int64_t value)
{
    return value >= ShortMin && value <= ShortMax;
}

} // namespace skeldon
