#pragma once

#include "chart/model/ChartTypes.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace skeldon {

/// Draws on the pixels of the plot, which lie in an image or are held column by column until they
/// are copied there: nearly all that the chart draws is vertical, so a picture with much in it is
/// made faster the second way. Colours are 0xAARRGGBB as images on the screen hold them. What lies
/// outside the area is cut off.
class CPlotRaster
{
public:
    /// Makes the raster one of `area`, in device pixels, all in one colour, held column by column.
    void Reset(const ChartRect& area, std::uint32_t background);
    /// Draws on `area` of an image whose pixel (0, 0) is that of the plot's coordinates and which
    /// holds the whole area. `stride` is the number of pixels from row to row.
    void DrawOn(const ChartRect& area, std::uint32_t* image, std::size_t stride);
    /// The same on an image whose pixel (0, 0), `corner`, is the area's left top.
    void DrawAt(const ChartRect& area, std::uint32_t* corner, std::size_t stride);

    void Fill(const ChartRect& rect, std::uint32_t colour);
    /// A line with both its end points. A wide one grows across its direction, first to the left or
    /// up; a point becomes a square. Ends may lie anywhere in 32 bits.
    void Line(int x1, int y1, int x2, int y2, int width, std::uint32_t colour);
    /// Copies the area held column by column into such an image.
    void CopyTo(std::uint32_t* image, std::size_t stride) const;

private:
    [[nodiscard]] int Height() const { return m_area.bottom - m_area.top; }
    /// Rows from `top` to `bottom`, both included, of one column.
    void Run(std::int64_t column, std::int64_t top, std::int64_t bottom, std::uint32_t colour);
    /// The same of columns from `left` to `right`, likewise.
    void Block(std::int64_t left, std::int64_t right, std::int64_t top, std::int64_t bottom,
               std::uint32_t colour);
    void Step(int x1, int y1, int x2, int y2, std::uint32_t colour);
    void Steep(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2, int width,
               std::uint32_t colour);
    void Flat(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2, int width,
              std::uint32_t colour);

    ChartRect m_area;
    std::vector<std::uint32_t> m_pixels; ///< of an area held column by column
    std::uint32_t* m_corner = nullptr;   ///< pixel at the area's left top
    std::ptrdiff_t m_columnStep = 0;
    std::ptrdiff_t m_rowStep = 1;
};

} // namespace skeldon
