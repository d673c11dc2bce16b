#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace skeldon {

/// Pixels that are worked on four at a time, as every processor of today can.
using FourPixels [[gnu::vector_size(4 * sizeof(std::uint32_t))]] = std::uint32_t;

/// Fills pixels in a row, or in a column that is held as one.
inline void FillPixels(std::uint32_t* pixel, std::size_t count, std::uint32_t colour)
{
    const FourPixels four{colour, colour, colour, colour};
    for (; count >= 4; count -= 4, pixel += 4)
        std::memcpy(pixel, &four, sizeof four);
    for (; count > 0; --count)
        *pixel++ = colour;
}

/// Fills many pixels; a colour of four equal bytes, as white is, the fastest way.
inline void FloodPixels(std::uint32_t* pixels, std::size_t count, std::uint32_t colour)
{
    constexpr std::uint32_t EachByte = 0x01010101;
    const std::uint32_t byte = colour & 0xFF;
    if (count == 0 || colour != byte * EachByte)
        FillPixels(pixels, count, colour);
    else
        std::memset(pixels, static_cast<int>(byte), count * sizeof *pixels);
}

/// Copies a square of 4 by 4 pixels held column by column, `rows` from column to column, to one
/// held row by row, `stride` from row to row.
inline void TransposeSquare(const std::uint32_t* from, std::size_t rows, std::uint32_t* to,
                            std::size_t stride)
{
    const auto column = [&](std::size_t i) {
        FourPixels pixels{};
        std::memcpy(&pixels, from + i * rows, sizeof pixels);
        return pixels;
    };
    const FourPixels a = column(0);
    const FourPixels b = column(1);
    const FourPixels c = column(2);
    const FourPixels d = column(3);
    // Pairs of pixels of two columns each, from which the rows are put together.
    const FourPixels upperLeft = __builtin_shufflevector(a, b, 0, 4, 1, 5);
    const FourPixels lowerLeft = __builtin_shufflevector(a, b, 2, 6, 3, 7);
    const FourPixels upperRight = __builtin_shufflevector(c, d, 0, 4, 1, 5);
    const FourPixels lowerRight = __builtin_shufflevector(c, d, 2, 6, 3, 7);
    const auto row = [&](std::size_t i, const FourPixels& pixels) {
        std::memcpy(to + i * stride, &pixels, sizeof pixels);
    };
    row(0, __builtin_shufflevector(upperLeft, upperRight, 0, 1, 4, 5));
    row(1, __builtin_shufflevector(upperLeft, upperRight, 2, 3, 6, 7));
    row(2, __builtin_shufflevector(lowerLeft, lowerRight, 0, 1, 4, 5));
    row(3, __builtin_shufflevector(lowerLeft, lowerRight, 2, 3, 6, 7));
}

} // namespace skeldon
