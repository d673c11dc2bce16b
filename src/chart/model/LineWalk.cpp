#include "chart/model/LineWalk.h"

namespace skeldon {

namespace {

/// Row of the line's point at column `limit`, seen from the end that stays.
int RowAt(std::int64_t limit, std::int64_t x, int y, std::int64_t farX, int farY)
{
    const double ratio = static_cast<double>(limit - x) / static_cast<double>(farX - x);
    return y + RoundPixel(static_cast<double>(farY - y) * ratio);
}

std::int64_t Limit(std::int64_t column)
{
    return column < ShortMin ? ShortMin : ShortMax;
}

} // namespace

LineEnds InShortColumns(const LineEnds& ends)
{
    const bool isFirstIn = FitsShort(ends.x1);
    const bool isSecondIn = FitsShort(ends.x2);
    LineEnds moved = ends;
    if (isFirstIn && !isSecondIn) {
        moved.x2 = Limit(ends.x2);
        moved.y2 = RowAt(moved.x2, ends.x1, ends.y1, ends.x2, ends.y2);
    } else if (!isFirstIn && isSecondIn) {
        moved.x1 = Limit(ends.x1);
        moved.y1 = RowAt(moved.x1, ends.x2, ends.y2, ends.x1, ends.y1);
    } else if (!isFirstIn) {
        moved.x1 = ShortMin;
        moved.x2 = ShortMax;
    }
    return moved;
}

CLineWalk::CLineWalk(const CLineIndex& index, const WalkView& view)
    : m_index(index)
    , m_view(view)
    , m_series(SeriesIn(view.drawn))
{}

inline ChartStroke CLineWalk::StrokeOf(const LineEnds& ends, Series series, StrokeKind kind,
                                       bool isDimmed) const
{
    const bool fits = FitsShort(ends.x1) && FitsShort(ends.x2);
    const LineEnds moved = fits ? ends : InShortColumns(ends);
    return {m_view.DeviceX(moved.x1),
            m_view.DeviceY(moved.y1),
            m_view.DeviceX(moved.x2),
            m_view.DeviceY(moved.y2),
            series,
            kind,
            isDimmed};
}

void CLineWalk::Walk(std::vector<ChartStroke>& strokes)
{
    m_spans.fill({});
    m_runEnd = 0;
    const int last = std::min(m_view.lastLine, m_index.Count() - 1);
    int line = std::max(m_view.firstLine, 0);
    if (m_series.empty() || line >= last)
        return;
    Place place = PlaceOf(line);
    while (line < last) {
        const int end = ColumnEnd(line, place.device);
        if (end >= last)
            break; // nothing leaves the last column
        if (end > line) {
            MergeColumn(line, end);
            place = PlaceOf(end);
        }
        const Place next = PlaceOf(end + 1);
        Stretch(end, place, next, strokes);
        line = end + 1;
        place = next;
    }
}

CLineWalk::Place CLineWalk::PlaceOf(int line) const
{
    const std::int64_t column = m_view.window.Column(m_index.Time(line));
    return {column, WalkView::Device64(column, m_view.scaleX)};
}

int CLineWalk::ColumnEnd(int line, std::int64_t device)
{
    if (line >= m_runEnd)
        m_runEnd = m_index.RunEnd(line);
    // Lines beyond 16 bits are never of one column.
    if (!FitsShort(device))
        return line;
    const int end = std::min(m_runEnd, m_view.lastLine + 1);
    if (line + 1 >= end || DeviceColumn(m_index.Time(line + 1)) != device)
        return line;
    const std::int64_t behind = TimeBehind(device);
    return m_index.FirstNot(line + 2, end, [behind](std::int64_t time) { return time < behind; }) -
           1;
}

/// The first millisecond whose device column is no longer `device`: guessed by the scale, then
/// found exactly.
std::int64_t CLineWalk::TimeBehind(std::int64_t device) const
{
    const CTimeWindow& window = m_view.window;
    const double column = (static_cast<double>(device) + 0.5) / m_view.scaleX;
    const std::int64_t guess =
        window.m_paddedStart + Truncate64((column - window.m_plotLeft) / window.m_pixelsPerMs);
    std::int64_t before = guess - 1;
    std::int64_t behind = guess;
    for (std::int64_t stride = 1; DeviceColumn(before) > device; stride *= 2) {
        behind = before;
        before -= stride;
    }
    for (std::int64_t stride = 1; DeviceColumn(behind) <= device; stride *= 2) {
        before = behind;
        behind += stride;
    }
    while (behind - before > 1) {
        const std::int64_t middle = before + (behind - before) / 2;
        (DeviceColumn(middle) <= device ? before : behind) = middle;
    }
    return behind;
}

void CLineWalk::MergeColumn(int first, int last)
{
    const CValueRange range = m_index.Range(first, last);
    const auto lows = m_view.Rows(range.Lows());
    const auto highs = m_view.Rows(range.Highs());
    for (const Series series : m_series) {
        CChartColumnSpan& span = m_spans[Index(series)];
        span.Take(lows[FieldOf(series)]);
        span.Take(highs[FieldOf(series)]);
    }
}

void CLineWalk::Stretch(int line, const Place& from, const Place& to,
                        std::vector<ChartStroke>& strokes)
{
    const CMeasureRecord& first = m_index.Line(line);
    const CMeasureRecord& second = m_index.Line(line + 1);
    const auto firstRows = m_view.Rows(DrawableFields(first));
    const auto secondRows = m_view.Rows(DrawableFields(second));
    const bool isDimmed = first.HasFlag(DimmedFlags) || second.HasFlag(DimmedFlags);
    const bool isOneColumn = (FitsShort(from.device) ? from.device : ShortMin) ==
                             (FitsShort(to.device) ? to.device : ShortMax);
    for (const Series series : m_series) {
        CChartColumnSpan& span = m_spans[Index(series)];
        const int y1 = firstRows[FieldOf(series)];
        const int y2 = secondRows[FieldOf(series)];
        if (isOneColumn) {
            span.Take(y1);
            span.Take(y2);
            continue;
        }
        if (span.IsOpen()) {
            strokes.push_back(StrokeOf({from.column, span.minY, from.column, span.maxY}, series,
                                       StrokeKind::Column, isDimmed));
            span = {};
        }
        strokes.push_back(
            StrokeOf({from.column, y1, to.column, y2}, series, StrokeKind::Stretch, isDimmed));
    }
}

} // namespace skeldon
