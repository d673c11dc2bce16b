#pragma once

#include "chart/model/LineWalk.h"

#include <array>
#include <cstdint>
#include <vector>

namespace skeldon {

enum class BarFillKind : std::uint8_t
{
    Bar, ///< in the series' colour
    Edge ///< white, the top or the bottom of the current line's bar
};

/// One area to fill, in device pixels.
struct ChartBarFill
{
    ChartRect rect;
    Series series = Series::X; ///< without meaning for an edge
    BarFillKind kind = BarFillKind::Bar;
    bool isDimmed = false; ///< in the lightened colour

    bool operator==(const ChartBarFill&) const = default;
};

/// The bar chart: every line is a bar about its column, its series on top of each other, the
/// shorter in front. Lines are drawn in their order, the current one last and with white edges.
///
/// The picture is that of a walk from line to line. Of the bars in one column only what later ones
/// leave visible is filled, so that the cost goes by columns and visible rows.
class CBarWalk
{
public:
    /// Both must outlive the walk. Rows from `clipTop` to `clipBottom` - 1, in device pixels, are
    /// filled and no others. `currentLine` is -1 for none.
    CBarWalk(const CLineIndex& index, const WalkView& view, int currentLine,
             int clipTop = -PixelLimit, int clipBottom = PixelLimit);

    /// Appends the fills of all lines of the view, to be painted in their order.
    void Walk(std::vector<ChartBarFill>& fills)
    {
        WalkLines(m_view.firstLine, m_view.lastLine, fills);
    }
    /// The same for the lines from `first` to `last` alone, as a run of equal times that the
    /// current line is in needs them anew.
    void WalkLines(int first, int last, std::vector<ChartBarFill>& fills) const;

private:
    /// The rows of a column that no bar fills yet. Bars grow into them from the zero line.
    struct FreeRows
    {
        int up = 0;   ///< rows above this one are free above the zero line
        int down = 0; ///< rows from this one on are free below it
        // The values that reach as far: up to them a look at the rows can be saved.
        double highest = 0.0;
        double lowest = 0.0;
    };

    [[nodiscard]] FreeRows AllFree() const;
    [[nodiscard]] int ClippedRow(int offset) const;
    [[nodiscard]] bool Reaches(const CValueRange& range, const FreeRows& free) const;
    void Column(int first, int last, std::int64_t column, std::vector<ChartBarFill>& fills) const;
    void Bar(const CMeasureRecord& line, std::int64_t column, FreeRows& free,
             std::vector<ChartBarFill>& fills) const;
    void CurrentBar(std::vector<ChartBarFill>& fills) const;
    void Edges(const CMeasureRecord& line, std::int64_t column,
               std::vector<ChartBarFill>& fills) const;
    [[nodiscard]] int Left(std::int64_t column) const { return m_view.DeviceX(column - m_half); }
    [[nodiscard]] int Right(std::int64_t column) const
    {
        return m_view.DeviceX(column + m_half + 1);
    }

    const CLineIndex& m_index;
    const WalkView& m_view;
    int m_current;
    int m_clipTop;
    int m_clipBottom;
    int m_half;
    std::vector<Series> m_series; ///< those drawn, in table order
};

} // namespace skeldon
