#pragma once

#include "chart/model/ChartLayout.h"
#include "chart/model/LineWalk.h"

#include <cstdint>

namespace skeldon {

// What the chart asks of its lines beside drawing them. All of it is found by halving within runs
// of rising times; the answers are those of a walk from line 0.

/// Lines from `first` to `last`, both included.
struct LineSpan
{
    int first = -1;
    int last = -1;

    bool operator==(const LineSpan&) const = default;
    [[nodiscard]] bool IsEmpty() const { return first < 0; }
};

/// The lines that are drawn: those in the padded window and one more at each side. Without lines
/// it is empty.
[[nodiscard]] LineSpan DrawnLines(const CLineIndex& index, const CTimeWindow& window);

/// The lines whose bars touch the padded window; empty if there are none.
[[nodiscard]] LineSpan GetVisibleLines(const CLineIndex& index, const CTimeWindow& window);

/// The line that a click at a content column picks: the first one of `drawn` at or right of it, by
/// the right edge of its bar in bar form; if there is none, the index behind the last.
[[nodiscard]] int PickLine(const CLineIndex& index, const CTimeWindow& window,
                           const LineSpan& drawn, int column, bool isBarChart);

/// The first line of `drawn` less than two columns off; -1 if there is none.
[[nodiscard]] int LineNear(const CLineIndex& index, const CTimeWindow& window,
                           const LineSpan& drawn, int column);

/// The lines of `drawn` about `line` that have its very time; empty if it is not one of them.
[[nodiscard]] LineSpan EqualTimes(const CLineIndex& index, const LineSpan& drawn, int line);

/// Where a walk over `drawn` leaves the cursor: the current line's column, 0 if it is not met. In
/// the line chart the column before must fit 16 bits.
[[nodiscard]] int CursorColumn(const CLineIndex& index, const CTimeWindow& window,
                               const LineSpan& drawn, int currentLine, bool isBarChart);

/// The extremes that a line chart draws: of both lines of each stretch that touches the plot with
/// both columns in 16 bits. Untouched where there is none.
[[nodiscard]] ValueSpan DrawnLineExtremes(const CLineIndex& index, const WalkView& view);

/// The extremes that a bar chart draws: of the bars that touch the plot, and the zero line.
[[nodiscard]] ValueSpan DrawnBarExtremes(const CLineIndex& index, const WalkView& view);

/// The extremes of all lines over some series.
[[nodiscard]] ValueSpan AllExtremes(const CLineIndex& index, const SeriesFlags& counted);

/// Rows, less what is scrolled off, that the bar of a line covers, the zero line included. Humidity
/// counts where temperature is shown, not where it is shown itself.
[[nodiscard]] BarExtent BarRows(const CMeasureRecord& line, const SeriesFlags& shown,
                                const CValueScale& scale);

/// Whether the first change of time between neighbouring lines is an increase. Equal times are
/// passed over, and it looks no further.
[[nodiscard]] bool RisesAtFirstChange(std::span<const CMeasureRecord> lines);

} // namespace skeldon
