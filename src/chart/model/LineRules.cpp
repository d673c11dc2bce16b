#include "chart/model/LineRules.h"

#include <algorithm>

namespace skeldon {

namespace {

void Take(ValueSpan& extremes, const CLineIndex& index, const SeriesFlags& counted, int first,
          int last)
{
    const CValueRange range = index.Range(first, last);
    for (const Series series : AllSeries) {
        if (counted[Index(series)])
            extremes.Take(range.Low(series), range.High(series));
    }
}

/// Takes in the stretches between the lines from `first` to `last` of one run. Their columns do not
/// fall, so those that count are neighbours.
void TakeStretches(ValueSpan& extremes, const CLineIndex& index, const WalkView& view, int first,
                   int last)
{
    const CTimeWindow& window = view.window;
    const auto firstFrom = [&](std::int64_t column) {
        return index.FirstNot(first, last + 1,
                              [&](std::int64_t time) { return window.Column(time) < column; });
    };
    const int begin = std::max(firstFrom(ShortMin), firstFrom(window.m_plotLeft) - 1);
    // Both searches end at `last` + 1 where no line lies so far right.
    const int end = std::min(firstFrom(std::int64_t{ShortMax} + 1) - 1,
                             std::min(firstFrom(std::int64_t{window.m_plotRight} + 1), last));
    if (begin < end)
        Take(extremes, index, view.drawn, begin, end);
}

} // namespace

LineSpan DrawnLines(const CLineIndex& index, const CTimeWindow& window)
{
    const int count = index.Count();
    if (count < 1)
        return {};
    const int last = std::min(index.FirstAtOrAfter(window.m_paddedEnd, 0, count), count - 1);
    return {std::max(index.LastAtOrBefore(window.m_paddedStart, last + 1), 0), last};
}

LineSpan GetVisibleLines(const CLineIndex& index, const CTimeWindow& window)
{
    const int count = index.Count();
    const std::int64_t half = window.m_barWidthMs / 2;
    const int first = index.FirstAtOrAfter(window.m_paddedStart - half, 0, count);
    const int last = index.FirstAtOrAfter(window.m_paddedEnd + half, 0, count) - 1;
    return first <= last ? LineSpan{first, last} : LineSpan{};
}

int PickLine(const CLineIndex& index, const CTimeWindow& window, const LineSpan& drawn, int column,
             bool isBarChart)
{
    const std::int64_t right = isBarChart ? window.m_barWidthMs / 2 : 0;
    for (int line = drawn.first; line <= drawn.last;) {
        const int runEnd = std::min(index.RunEnd(line), drawn.last + 1);
        line = index.FirstNot(
            line, runEnd, [&](std::int64_t time) { return window.Column(time + right) < column; });
        if (line < runEnd)
            return line;
    }
    return drawn.last + 1;
}

int LineNear(const CLineIndex& index, const CTimeWindow& window, const LineSpan& drawn, int column)
{
    for (int line = drawn.first; line <= drawn.last && line >= 0;) {
        const int runEnd = std::min(index.RunEnd(line), drawn.last + 1);
        line = index.FirstNot(line, runEnd,
                              [&](std::int64_t time) { return window.Column(time) + 2 <= column; });
        if (line < runEnd && window.Column(index.Time(line)) - 2 < column)
            return line;
        line = runEnd;
    }
    return -1;
}

LineSpan EqualTimes(const CLineIndex& index, const LineSpan& drawn, int line)
{
    if (line < drawn.first || line > drawn.last)
        return {};
    const std::int64_t time = index.Time(line);
    const int begin = std::max(index.RunStart(line), drawn.first);
    const int end = std::min(index.RunEnd(line), drawn.last + 1);
    return {index.FirstNot(begin, end, [time](std::int64_t t) { return t < time; }),
            index.FirstNot(line, end, [time](std::int64_t t) { return t <= time; }) - 1};
}

int CursorColumn(const CLineIndex& index, const CTimeWindow& window, const LineSpan& drawn,
                 int currentLine, bool isBarChart)
{
    if (drawn.IsEmpty() || currentLine < drawn.first || currentLine > drawn.last)
        return 0;
    const std::int64_t column = window.Column(index.Time(currentLine));
    if (!isBarChart) {
        if (drawn.first == drawn.last)
            return 0; // no stretch ends or begins here
        const int from = std::max(currentLine - 1, drawn.first);
        if (!FitsShort(window.Column(index.Time(from))))
            return 0;
    }
    return Truncate(static_cast<double>(column));
}

ValueSpan DrawnLineExtremes(const CLineIndex& index, const WalkView& view)
{
    ValueSpan extremes;
    for (int line = view.firstLine; line <= view.lastLine && line >= 0;) {
        const int runEnd = std::min(index.RunEnd(line), view.lastLine + 1);
        TakeStretches(extremes, index, view, line, runEnd - 1);
        // The stretch into the next run goes back in time.
        if (runEnd <= view.lastLine) {
            const std::int64_t x1 = view.window.Column(index.Time(runEnd - 1));
            const std::int64_t x2 = view.window.Column(index.Time(runEnd));
            if (FitsShort(x1) && FitsShort(x2) && x2 <= view.window.m_plotRight &&
                x1 >= view.window.m_plotLeft)
                Take(extremes, index, view.drawn, runEnd - 1, runEnd);
        }
        line = runEnd;
    }
    return extremes;
}

ValueSpan DrawnBarExtremes(const CLineIndex& index, const WalkView& view)
{
    const CTimeWindow& window = view.window;
    const int half = window.HalfBar();
    ValueSpan extremes{0.0, 0.0};
    for (int line = view.firstLine; line <= view.lastLine && line >= 0;) {
        const int runEnd = std::min(index.RunEnd(line), view.lastLine + 1);
        const int begin = index.FirstNot(line, runEnd, [&](std::int64_t time) {
            return window.Column(time) + half + 1 < window.m_plotLeft;
        });
        const int end = index.FirstNot(begin, runEnd, [&](std::int64_t time) {
            return window.Column(time) - half <= window.m_plotRight;
        });
        if (begin < end)
            Take(extremes, index, view.drawn, begin, end - 1);
        line = runEnd;
    }
    return extremes;
}

ValueSpan AllExtremes(const CLineIndex& index, const SeriesFlags& counted)
{
    ValueSpan extremes;
    if (!index.IsEmpty())
        Take(extremes, index, counted, 0, index.Count() - 1);
    return extremes;
}

BarExtent BarRows(const CMeasureRecord& line, const SeriesFlags& shown, const CValueScale& scale)
{
    BarExtent rows{scale.m_zeroY, scale.m_zeroY};
    for (const Series series : AllSeries) {
        const Series asked = series == Series::Humidity ? Series::Temperature : series;
        if (!shown[Index(asked)])
            continue;
        const int row = scale.Row(AxisValue(line, series));
        rows.top = std::min(rows.top, row);
        rows.bottom = std::max(rows.bottom, row);
    }
    return {rows.top - scale.m_scrollY, rows.bottom - scale.m_scrollY};
}

bool RisesAtFirstChange(std::span<const CMeasureRecord> lines)
{
    const auto change =
        std::ranges::adjacent_find(lines, [](const CMeasureRecord& a, const CMeasureRecord& b) {
            return a.TimeMs() != b.TimeMs();
        });
    return change != lines.end() && change->TimeMs() < (change + 1)->TimeMs();
}

} // namespace skeldon
