#include "chart/model/BarWalk.h"

#include <algorithm>
#include <cstdlib>

namespace skeldon {

CBarWalk::CBarWalk(const CLineIndex& index, const WalkView& view, int currentLine, int clipTop,
                   int clipBottom)
    : m_index(index)
    , m_view(view)
    , m_current(currentLine)
    , m_clipTop(clipTop)
    , m_clipBottom(std::max(clipTop, clipBottom))
    , m_half(view.window.HalfBar())
    , m_series(SeriesIn(view.drawn))
{}

void CBarWalk::WalkLines(int first, int last, std::vector<ChartBarFill>& fills) const
{
    first = std::max(first, 0);
    last = std::min(last, m_index.Count() - 1);
    int runEnd = 0;
    for (int line = first; line <= last;) {
        if (line >= runEnd)
            runEnd = std::min(m_index.RunEnd(line), last + 1);
        const std::int64_t column = m_view.window.Column(m_index.Time(line));
        const int end = m_index.FirstNot(line + 1, runEnd, [&](std::int64_t time) {
            return m_view.window.Column(time) == column;
        });
        Column(line, end - 1, column, fills);
        line = end;
    }
    if (m_current >= first && m_current <= last)
        CurrentBar(fills);
}

CBarWalk::FreeRows CBarWalk::AllFree() const
{
    const int zero = ClippedRow(0);
    return {zero, zero, 0.0, 0.0};
}

/// The device row at so many pixels above the zero line, within the rows to be filled.
int CBarWalk::ClippedRow(int offset) const
{
    const int row = m_view.DeviceY(m_view.scale.m_zeroY - offset - m_view.scale.m_scrollY);
    return std::clamp(row, m_clipTop, m_clipBottom);
}

bool CBarWalk::Reaches(const CValueRange& range, const FreeRows& free) const
{
    double low = 0.0;
    double high = 0.0;
    for (const Series series : m_series) {
        low = std::min(low, range.Low(series));
        high = std::max(high, range.High(series));
    }
    if (high <= free.highest && low >= free.lowest)
        return false;
    return ClippedRow(m_view.scale.Offset(high)) < free.up ||
           ClippedRow(m_view.scale.Offset(low)) > free.down;
}

void CBarWalk::Column(int first, int last, std::int64_t column,
                      std::vector<ChartBarFill>& fills) const
{
    FreeRows free = AllFree();
    for (int end = last + 1; end > first;) {
        const int line = m_index.LastReaching(
            first, end, [&](const CValueRange& range) { return Reaches(range, free); });
        if (line < 0)
            return;
        if (line != m_current)
            Bar(m_index.Line(line), column, free, fills);
        end = line;
    }
}

void CBarWalk::Bar(const CMeasureRecord& line, std::int64_t column, FreeRows& free,
                   std::vector<ChartBarFill>& fills) const
{
    struct End
    {
        int offset;
        Series series;
        double value;
    };
    std::array<End, SeriesCount> ends{};
    std::size_t count = 0;
    for (const Series series : m_series) {
        const double value = AxisValue(line, series);
        ends[count++] = {m_view.scale.Offset(value), series, value};
    }
    // The longest first; of two as long the later series lies in front.
    std::stable_sort(
        ends.begin(), ends.begin() + static_cast<std::ptrdiff_t>(count),
        [](const End& a, const End& b) { return std::abs(a.offset) > std::abs(b.offset); });
    const bool isDimmed = line.HasFlag(DimmedFlags);
    // What lies in front is filled first, and what lies behind it only where it sticks out.
    while (count > 0) {
        const End& end = ends[--count];
        const int row = ClippedRow(end.offset);
        ChartRect rect{Left(column), 0, Right(column), 0};
        if (end.offset > 0 && row < free.up) {
            rect.top = row;
            rect.bottom = free.up;
            free.up = row;
            free.highest = std::max(free.highest, end.value);
        } else if (end.offset < 0 && row > free.down) {
            rect.top = free.down;
            rect.bottom = row;
            free.down = row;
            free.lowest = std::min(free.lowest, end.value);
        } else {
            continue;
        }
        fills.push_back({rect, end.series, BarFillKind::Bar, isDimmed});
    }
}

void CBarWalk::CurrentBar(std::vector<ChartBarFill>& fills) const
{
    const CMeasureRecord& line = m_index.Line(m_current);
    const std::int64_t column = m_view.window.Column(line.TimeMs());
    FreeRows free = AllFree();
    Bar(line, column, free, fills);
    Edges(line, column, fills);
}

void CBarWalk::Edges(const CMeasureRecord& line, std::int64_t column,
                     std::vector<ChartBarFill>& fills) const
{
    int top = m_view.Row(0.0);
    int bottom = top;
    for (const Series series : m_series) {
        const int row = m_view.Row(AxisValue(line, series));
        top = std::min(top, row);
        bottom = std::max(bottom, row);
    }
    for (const int row : {top - 1, bottom}) {
        const ChartRect rect{Left(column), std::max(m_view.DeviceY(row), m_clipTop), Right(column),
                             std::min(m_view.DeviceY(row + 1), m_clipBottom)};
        if (rect.top < rect.bottom)
            fills.push_back({rect, Series::X, BarFillKind::Edge, false});
    }
}

} // namespace skeldon
