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
{
    for (const Series series : AllSeries) {
        if (view.drawn[Index(series)])
            m_series.push_back(series);
    }
}

void CLineWalk::Walk(std::vector<ChartStroke>& strokes)
{
    m_spans.fill({});
    m_runEnd = 0;
    const int last = std::min(m_view.lastLine, m_index.Count() - 1);
    if (m_series.empty())
        return;
    for (int line = std::max(m_view.firstLine, 0); line < last; ++line) {
        const int end = ColumnEnd(line);
        if (end >= last)
            break; // nothing leaves the last column
        if (end > line)
            MergeColumn(line, end);
        line = end;
        Stretch(line, strokes);
    }
}

int CLineWalk::ColumnEnd(int line)
{
    if (line >= m_runEnd)
        m_runEnd = m_index.RunEnd(line);
    const std::int64_t column = DeviceColumn(m_index.Time(line));
    // Lines beyond 16 bits are never of one column.
    if (!FitsShort(column))
        return line;
    const int end = std::min(m_runEnd, m_view.lastLine + 1);
    return m_index.FirstNot(line + 1, end, [&](std::int64_t time) {
        return DeviceColumn(time) == column;
    }) - 1;
}

void CLineWalk::MergeColumn(int first, int last)
{
    const CValueRange range = m_index.Range(first, last);
    for (const Series series : m_series) {
        CChartColumnSpan& span = m_spans[Index(series)];
        span.Take(m_view.Row(range.Low(series)));
        span.Take(m_view.Row(range.High(series)));
    }
}

void CLineWalk::Stretch(int line, std::vector<ChartStroke>& strokes)
{
    const CMeasureRecord& from = m_index.Line(line);
    const CMeasureRecord& to = m_index.Line(line + 1);
    const std::int64_t x1 = m_view.window.Column(from.TimeMs());
    const std::int64_t x2 = m_view.window.Column(to.TimeMs());
    const std::int64_t device1 = RoundPixel64(static_cast<double>(x1) * m_view.scaleX);
    const std::int64_t device2 = RoundPixel64(static_cast<double>(x2) * m_view.scaleX);
    const bool isOneColumn =
        (FitsShort(device1) ? device1 : ShortMin) == (FitsShort(device2) ? device2 : ShortMax);
    const bool isDimmed = from.HasFlag(DimmedFlags) || to.HasFlag(DimmedFlags);
    for (const Series series : m_series) {
        CChartColumnSpan& span = m_spans[Index(series)];
        const int y1 = m_view.Row(AxisValue(from, series));
        const int y2 = m_view.Row(AxisValue(to, series));
        if (isOneColumn) {
            span.Take(y1);
            span.Take(y2);
            continue;
        }
        if (span.IsOpen()) {
            Draw({x1, span.minY, x1, span.maxY}, series, StrokeKind::Column, isDimmed, strokes);
            span = {};
        }
        Draw({x1, y1, x2, y2}, series, StrokeKind::Stretch, isDimmed, strokes);
    }
}

void CLineWalk::Draw(const LineEnds& ends, Series series, StrokeKind kind, bool isDimmed,
                     std::vector<ChartStroke>& strokes) const
{
    const bool fits = FitsShort(ends.x1) && FitsShort(ends.x2);
    const LineEnds moved = fits ? ends : InShortColumns(ends);
    strokes.push_back({m_view.DeviceX(moved.x1), m_view.DeviceY(moved.y1), m_view.DeviceX(moved.x2),
                       m_view.DeviceY(moved.y2), series, kind, isDimmed});
}

} // namespace skeldon
