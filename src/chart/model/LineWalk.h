#pragma once

#include "chart/model/LineIndex.h"
#include "chart/model/Rounding.h"
#include "chart/model/TimeWindow.h"
#include "chart/model/ValueScale.h"

#include <array>
#include <cstdint>
#include <vector>

namespace skeldon {

/// Which lines are turned into pixels, and how. Content coordinates, less what is scrolled off the
/// top, times the two factors are device pixels: 1.0 on a plain screen, the pixel ratio on others,
/// the printer's resolution on paper.
struct WalkView
{
    CTimeWindow window;
    CValueScale scale;
    SeriesFlags drawn{}; ///< series that are shown and that the data set carries
    int firstLine = 0;
    int lastLine = -1; ///< below `firstLine`: no lines
    double scaleX = 1.0;
    double scaleY = 1.0;

    [[nodiscard]] int DeviceX(std::int64_t column) const { return Device(column, scaleX); }
    [[nodiscard]] int DeviceY(int row) const { return Device(row, scaleY); }
    [[nodiscard]] static int Device(std::int64_t pixel, double factor)
    {
        // The rounding moves what is negative by one, also where nothing is scaled.
        if (factor == 1.0 && pixel > -PixelLimit && pixel < PixelLimit)
            return static_cast<int>(pixel < 0 ? pixel + 1 : pixel);
        return RoundPixel(static_cast<double>(pixel) * factor);
    }
    [[nodiscard]] static std::int64_t Device64(std::int64_t pixel, double factor)
    {
        if (factor == 1.0 && pixel > -PixelLimit && pixel < PixelLimit)
            return pixel < 0 ? pixel + 1 : pixel;
        return RoundPixel64(static_cast<double>(pixel) * factor);
    }
    /// The row of an axis value, less what is scrolled off.
    [[nodiscard]] int Row(double value) const { return scale.Row(value) - scale.m_scrollY; }
    /// The same of all quantities of a line, of which none may be no number.
    [[nodiscard]] std::array<int, SeriesCount> Rows(const CSixValues& fields) const
    {
        return fields.RowsBelow(scale.m_zeroY - scale.m_scrollY, FieldFactors(),
                                scale.PixelsPerUnit(), PixelLimit);
    }
};

enum class StrokeKind : std::uint8_t
{
    Column, ///< all lines of one device column, from the top row to the bottom row
    Stretch ///< from one line to the next
};

/// One line to draw, both end points included, in device pixels and in the configured weight.
struct ChartStroke
{
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
    Series series = Series::X;
    StrokeKind kind = StrokeKind::Stretch;
    bool isDimmed = false; ///< in the lightened colour

    bool operator==(const ChartStroke&) const = default;
};

/// The open stroke of one series in one device column; without rows it is empty.
struct CChartColumnSpan
{
    int maxY = ShortMin;
    int minY = ShortMax;

    void Take(int y)
    {
        maxY = y > maxY ? y : maxY;
        minY = y < minY ? y : minY;
    }
    [[nodiscard]] bool IsOpen() const { return maxY != ShortMin; }
};

/// Two ends of a line.
struct LineEnds
{
    std::int64_t x1 = 0;
    int y1 = 0;
    std::int64_t x2 = 0;
    int y2 = 0;

    bool operator==(const LineEnds&) const = default;
};

/// A line with both columns in 16 bits: an end outside is moved to the limit along the line; of two
/// ends outside one goes to each limit.
[[nodiscard]] LineEnds InShortColumns(const LineEnds& ends);

/// The line chart: turns lines into strokes. All lines that fall into one device column become one
/// vertical stroke a series, so the picture shows the true peak of every column. The column's
/// stroke is drawn with the stretch that leaves it, and in that stretch's colour; that of the last
/// column is not drawn.
///
/// The strokes and their order are those of a walk from line to line; what is gone through are the
/// columns.
class CLineWalk
{
public:
    /// Both must outlive the walk.
    CLineWalk(const CLineIndex& index, const WalkView& view);

    /// Appends the strokes.
    void Walk(std::vector<ChartStroke>& strokes);

private:
    /// Where a line lies.
    struct Place
    {
        std::int64_t column = 0; ///< content column
        std::int64_t device = 0; ///< device column
    };

    [[nodiscard]] Place PlaceOf(int line) const;
    /// The last line of the device column that `line` lies in, as far as a search may go.
    [[nodiscard]] int ColumnEnd(int line, std::int64_t device);
    [[nodiscard]] std::int64_t TimeBehind(std::int64_t device) const;
    void MergeColumn(int first, int last);
    void Stretch(int line, const Place& from, const Place& to, std::vector<ChartStroke>& strokes);
    [[nodiscard]] ChartStroke StrokeOf(const LineEnds& ends, Series series, StrokeKind kind,
                                       bool isDimmed) const;
    [[nodiscard]] std::int64_t DeviceColumn(std::int64_t time) const
    {
        return m_view.Device64(m_view.window.Column(time), m_view.scaleX);
    }

    const CLineIndex& m_index;
    const WalkView& m_view;
    std::vector<Series> m_series; ///< those drawn, in table order
    std::array<CChartColumnSpan, SeriesCount> m_spans{};
    int m_runEnd = 0;
};

} // namespace skeldon
