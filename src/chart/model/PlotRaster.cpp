#include "chart/model/PlotRaster.h"

#include "chart/model/platform/FourPixels.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace skeldon {

namespace {

/// `a` / `b` rounded down, `b` above 0.
std::int64_t FloorDivide(std::int64_t a, std::int64_t b)
{
    return a / b - (a % b < 0 ? 1 : 0);
}

/// What a wide line adds before and behind its middle.
int Before(int width)
{
    return (width - 1) / 2;
}

int Behind(int width)
{
    return width / 2;
}

} // namespace

void CPlotRaster::Reset(const ChartRect& area, std::uint32_t background)
{
    m_area = area;
    m_area.right = std::max(area.right, area.left);
    m_area.bottom = std::max(area.bottom, area.top);
    const auto columns = static_cast<std::size_t>(m_area.right - m_area.left);
    m_pixels.resize(columns * static_cast<std::size_t>(Height()));
    FloodPixels(m_pixels.data(), m_pixels.size(), background);
    m_corner = m_pixels.data();
    m_columnStep = Height();
    m_rowStep = 1;
}

void CPlotRaster::DrawOn(const ChartRect& area, std::uint32_t* image, std::size_t stride)
{
    DrawAt(area, image + area.top * static_cast<std::ptrdiff_t>(stride) + area.left, stride);
}

void CPlotRaster::DrawAt(const ChartRect& area, std::uint32_t* corner, std::size_t stride)
{
    m_area = area;
    m_area.right = std::max(area.right, area.left);
    m_area.bottom = std::max(area.bottom, area.top);
    m_columnStep = 1;
    m_rowStep = static_cast<std::ptrdiff_t>(stride);
    m_corner = corner;
}

void CPlotRaster::Fill(const ChartRect& rect, std::uint32_t colour)
{
    Block(rect.left, std::int64_t{rect.right} - 1, rect.top, std::int64_t{rect.bottom} - 1, colour);
}

void CPlotRaster::Run(std::int64_t column, std::int64_t top, std::int64_t bottom,
                      std::uint32_t colour)
{
    if (column < m_area.left || column >= m_area.right)
        return;
    const std::int64_t begin = std::max<std::int64_t>(top, m_area.top);
    const std::int64_t end = std::min<std::int64_t>(bottom + 1, m_area.bottom);
    if (begin >= end)
        return;
    std::uint32_t* pixel =
        m_corner + (column - m_area.left) * m_columnStep + (begin - m_area.top) * m_rowStep;
    if (m_rowStep == 1) {
        FillPixels(pixel, static_cast<std::size_t>(end - begin), colour);
        return;
    }
    for (std::int64_t row = begin; row < end; ++row, pixel += m_rowStep)
        *pixel = colour;
}

void CPlotRaster::Block(std::int64_t left, std::int64_t right, std::int64_t top,
                        std::int64_t bottom, std::uint32_t colour)
{
    const std::int64_t first = std::max<std::int64_t>(left, m_area.left);
    const std::int64_t last = std::min<std::int64_t>(right, std::int64_t{m_area.right} - 1);
    if (m_rowStep == 1) {
        for (std::int64_t x = first; x <= last; ++x)
            Run(x, top, bottom, colour);
        return;
    }
    if (first > last)
        return;
    const std::int64_t begin = std::max<std::int64_t>(top, m_area.top);
    const std::int64_t end = std::min<std::int64_t>(bottom + 1, m_area.bottom);
    std::uint32_t* pixel = m_corner + (first - m_area.left) + (begin - m_area.top) * m_rowStep;
    for (std::int64_t row = begin; row < end; ++row, pixel += m_rowStep)
        FillPixels(pixel, static_cast<std::size_t>(last - first + 1), colour);
}

void CPlotRaster::Line(int x1, int y1, int x2, int y2, int width, std::uint32_t colour)
{
    const std::int64_t dx = std::abs(std::int64_t{x2} - x1);
    const std::int64_t dy = std::abs(std::int64_t{y2} - y1);
    // Nearly all lines are thin and lie in one column or two.
    if (width == 1 && dx == 0)
        Run(x1, std::min(y1, y2), std::max(y1, y2), colour);
    else if (width == 1 && dx == 1)
        Step(x1, y1, x2, y2, colour);
    else if (dx == 0 && dy == 0)
        Block(x1 - Before(width), x1 + Behind(width), y1 - Before(width), y1 + Behind(width),
              colour);
    else if (dy >= dx)
        Steep(x1, y1, x2, y2, width, colour);
    else
        Flat(x1, y1, x2, y2, width, colour);
}

/// A thin line into the next column: each column holds the rows nearer to it, the left one that in
/// the middle.
void CPlotRaster::Step(int x1, int y1, int x2, int y2, std::uint32_t colour)
{
    if (x1 > x2) {
        std::swap(x1, x2);
        std::swap(y1, y2);
    }
    const std::int64_t rows = std::abs(std::int64_t{y2} - y1);
    if (rows == 0) {
        Run(x1, y1, y1, colour);
        Run(x2, y1, y1, colour);
        return;
    }
    const std::int64_t near = (rows - 1) / 2; // rows behind the first one
    if (y2 > y1) {
        Run(x1, y1, y1 + near, colour);
        Run(x2, y1 + near + 1, y2, colour);
    } else {
        Run(x1, y1 - near, y1, colour);
        Run(x2, y2, y1 - near - 1, colour);
    }
}

/// A line with at least as many rows as columns: its row y lies in the column nearest to it. Goes
/// through the columns, each of which holds a piece of the line.
void CPlotRaster::Steep(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                        int width, std::uint32_t colour)
{
    if (x1 > x2 || (x1 == x2 && y1 > y2)) {
        std::swap(x1, x2);
        std::swap(y1, y2);
    }
    const std::int64_t dx = x2 - x1;
    const std::int64_t rows = std::abs(y2 - y1);
    const int direction = y2 >= y1 ? 1 : -1;
    const auto piece = [&](std::int64_t x, std::int64_t begin, std::int64_t end) {
        const std::int64_t a = y1 + direction * begin;
        const std::int64_t b = y1 + direction * end;
        if (begin <= end)
            Block(x - Before(width), x + Behind(width), std::min(a, b), std::max(a, b), colour);
    };
    // Nearly all lines lie in one column or two.
    if (dx == 0)
        return piece(x1, 0, rows);
    if (dx == 1) {
        piece(x1, 0, (rows - 1) / 2);
        return piece(x2, (rows - 1) / 2 + 1, rows);
    }
    // Rows behind y1, in the line's direction, up to which column x goes.
    const auto endOf = [&](std::int64_t x) {
        return std::min(rows, FloorDivide((2 * (x - x1) + 1) * rows - 1, 2 * dx));
    };
    const std::int64_t first = std::max(x1, std::int64_t{m_area.left} - Behind(width));
    const std::int64_t last = std::min(x2, std::int64_t{m_area.right} - 1 + Before(width));
    std::int64_t begin = first > x1 ? endOf(first - 1) + 1 : 0;
    for (std::int64_t x = first; x <= last; ++x) {
        const std::int64_t end = endOf(x);
        piece(x, begin, end);
        begin = end + 1;
    }
}

/// A line with more columns than rows: one pixel, and its width, in each column.
void CPlotRaster::Flat(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                       int width, std::uint32_t colour)
{
    if (x1 > x2) {
        std::swap(x1, x2);
        std::swap(y1, y2);
    }
    const std::int64_t dx = x2 - x1;
    const std::int64_t dy = y2 - y1;
    const std::int64_t first = std::max(x1, std::int64_t{m_area.left});
    const std::int64_t last = std::min(x2, std::int64_t{m_area.right} - 1);
    for (std::int64_t x = first; x <= last; ++x) {
        const std::int64_t y = y1 + FloorDivide(2 * (x - x1) * dy + dx, 2 * dx);
        Block(x, x, y - Before(width), y + Behind(width), colour);
    }
}

void CPlotRaster::CopyTo(std::uint32_t* image, std::size_t stride) const
{
    // In blocks that fit the nearest cache on both sides, those in squares as far as they go.
    constexpr std::size_t Block = 32;
    constexpr std::size_t Square = 4;
    const auto columns = static_cast<std::size_t>(m_area.right - m_area.left);
    const auto rows = static_cast<std::size_t>(Height());
    const auto wholeColumns = columns / Square * Square;
    const auto wholeRows = rows / Square * Square;
    std::uint32_t* const corner = image + static_cast<std::size_t>(m_area.top) * stride +
                                  static_cast<std::size_t>(m_area.left);
    for (std::size_t top = 0; top < wholeRows; top += Block) {
        const std::size_t bottom = std::min(top + Block, wholeRows);
        for (std::size_t left = 0; left < wholeColumns; left += Block) {
            const std::size_t right = std::min(left + Block, wholeColumns);
            for (std::size_t y = top; y < bottom; y += Square) {
                for (std::size_t x = left; x < right; x += Square)
                    TransposeSquare(&m_pixels[x * rows + y], rows, corner + y * stride + x, stride);
            }
        }
    }
    for (std::size_t y = 0; y < rows; ++y) {
        for (std::size_t x = y < wholeRows ? wholeColumns : 0; x < columns; ++x)
            corner[y * stride + x] = m_pixels[x * rows + y];
    }
}

} // namespace skeldon
