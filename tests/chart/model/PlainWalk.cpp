#include "chart/model/PlainWalk.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <list>

namespace skeldon {

namespace {

const CMeasureRecord& At(const Lines& lines, int i)
{
    return lines[static_cast<std::size_t>(i)];
}

std::int64_t TimeOf(const CMeasureRecord& line)
{
    return line.m_time * 1000 + line.m_msec;
}

std::int64_t XOf(const CMeasureRecord& line, const CTimeWindow& window)
{
    const double x =
        static_cast<double>(TimeOf(line) - window.m_paddedStart) * window.m_pixelsPerMs + 0.5;
    return static_cast<std::int64_t>(std::trunc(x)) + window.m_plotLeft;
}

double ValueOf(const CMeasureRecord& line, std::size_t series)
{
    const double values[] = {line.m_x,         line.m_y,           line.m_z,
                             line.m_resultant, line.m_temperature, line.m_humidity};
    const double factors[] = {1.0, 1.0, 1.0, 1.0, 0.5, 0.25};
    return (std::isnan(values[series]) ? 0.0 : values[series]) * factors[series];
}

/// The row's distance above the zero line; a value beyond all surfaces is held at a limit.
int OffsetOf(double value, const WalkView& view)
{
    const double pixels = std::trunc(9.0 / view.scale.Divisor() * value + 0.5);
    return static_cast<int>(std::clamp(pixels, -double{PixelLimit}, double{PixelLimit}));
}

int RowOf(double value, const WalkView& view)
{
    return view.scale.m_zeroY - OffsetOf(value, view) - view.scale.m_scrollY;
}

int Scaled(double coordinate, double factor)
{
    const double pixel = std::trunc(coordinate * factor + 0.5);
    return static_cast<int>(std::clamp(pixel, -double{PixelLimit}, double{PixelLimit}));
}

bool Fits(std::int64_t x)
{
    return x >= -32768 && x <= 32767;
}

bool IsDim(const CMeasureRecord& line)
{
    return (line.m_flags & 0xE000) != 0;
}

ChartStroke PlainStroke(std::int64_t x1, int y1, std::int64_t x2, int y2, std::size_t series,
                        StrokeKind kind, bool isDimmed, const WalkView& view)
{
    std::int64_t newX1 = x1;
    std::int64_t newX2 = x2;
    int newY1 = y1;
    int newY2 = y2;
    if (!Fits(x1) && !Fits(x2)) {
        newX1 = -32768;
        newX2 = 32767;
    } else if (!Fits(x1)) {
        newX1 = x1 < 0 ? -32768 : 32767;
        newY1 = y2 + RoundPixel(double(y1 - y2) * (double(newX1 - x2) / double(x1 - x2)));
    } else if (!Fits(x2)) {
        newX2 = x2 < 0 ? -32768 : 32767;
        newY2 = y1 + RoundPixel(double(y2 - y1) * (double(newX2 - x1) / double(x2 - x1)));
    }
    return {Scaled(double(newX1), view.scaleX),
            Scaled(newY1, view.scaleY),
            Scaled(double(newX2), view.scaleX),
            Scaled(newY2, view.scaleY),
            static_cast<Series>(series),
            kind,
            isDimmed};
}

} // namespace

PlainPicture PlainLineChart(const Lines& lines, const WalkView& view, int current)
{
    PlainPicture picture;
    int maxY[6];
    int minY[6];
    std::fill_n(maxY, 6, -32768);
    std::fill_n(minY, 6, 32767);
    for (int i = view.firstLine; i < view.lastLine; ++i) {
        const CMeasureRecord& a = At(lines, i);
        const CMeasureRecord& b = At(lines, i + 1);
        const std::int64_t x1 = XOf(a, view.window);
        const std::int64_t x2 = XOf(b, view.window);
        if (i == view.firstLine && current == i && Fits(x1))
            picture.cursor = static_cast<int>(x1);
        if (current == i + 1 && Fits(x1))
            picture.cursor =
                static_cast<int>(std::clamp<std::int64_t>(x2, -PixelLimit, PixelLimit));
        std::int64_t d1 = static_cast<std::int64_t>(std::trunc(double(x1) * view.scaleX + 0.5));
        std::int64_t d2 = static_cast<std::int64_t>(std::trunc(double(x2) * view.scaleX + 0.5));
        d1 = Fits(d1) ? d1 : -32768;
        d2 = Fits(d2) ? d2 : 32767;
        for (std::size_t s = 0; s < 6; ++s) {
            if (!view.drawn[s])
                continue;
            const double v1 = ValueOf(a, s);
            const double v2 = ValueOf(b, s);
            const int y1 = RowOf(v1, view);
            const int y2 = RowOf(v2, view);
            if (d1 == d2) {
                maxY[s] = std::max({maxY[s], y1, y2});
                minY[s] = std::min({minY[s], y1, y2});
            } else {
                const bool isDimmed = IsDim(a) || IsDim(b);
                if (maxY[s] != -32768) {
                    picture.strokes.push_back(PlainStroke(x1, minY[s], x1, maxY[s], s,
                                                          StrokeKind::Column, isDimmed, view));
                    maxY[s] = -32768;
                    minY[s] = 32767;
                }
                picture.strokes.push_back(
                    PlainStroke(x1, y1, x2, y2, s, StrokeKind::Stretch, isDimmed, view));
            }
            const bool touches = std::max(x1, x2) >= view.window.m_plotLeft &&
                                 std::min(x1, x2) <= view.window.m_plotRight;
            if (Fits(x1) && Fits(x2) && touches) {
                picture.visibleMin = std::min({picture.visibleMin, v1, v2});
                picture.visibleMax = std::max({picture.visibleMax, v1, v2});
            }
        }
    }
    return picture;
}

namespace {

/// One bar in full.
void PlainBar(PlainPicture& picture, const CMeasureRecord& line, const WalkView& view,
              bool isCurrent)
{
    const std::int64_t x = XOf(line, view.window);
    const int half = RoundPixel(double(view.window.m_barWidthMs / 2) * view.window.m_pixelsPerMs);
    const std::int64_t x1 = x - half;
    const std::int64_t x2 = x + half + 1;
    std::list<std::pair<int, Series>> order;
    for (std::size_t s = 0; s < 6; ++s) {
        if (!view.drawn[s])
            continue;
        const double value = ValueOf(line, s);
        const int offset = OffsetOf(value, view);
        const auto behind = std::ranges::find_if(
            order, [offset](const auto& o) { return std::abs(o.first) < std::abs(offset); });
        order.insert(behind, {offset, static_cast<Series>(s)});
        if (x1 <= view.window.m_plotRight && x2 >= view.window.m_plotLeft) {
            picture.visibleMin = std::min(picture.visibleMin, value);
            picture.visibleMax = std::max(picture.visibleMax, value);
        }
    }
    const int left = Scaled(double(x1), view.scaleX);
    const int right = Scaled(double(x2), view.scaleX);
    const int zero = view.scale.m_zeroY - view.scale.m_scrollY;
    int top = zero;
    int bottom = zero;
    for (const auto& [offset, series] : order) {
        const int end = zero - offset;
        top = std::min(top, end);
        bottom = std::max(bottom, end);
        const int from = Scaled(std::min(end, zero), view.scaleY);
        const int to = Scaled(std::max(end, zero), view.scaleY);
        if (offset != 0)
            picture.fills.push_back(
                {{left, from, right, to}, series, BarFillKind::Bar, IsDim(line)});
    }
    if (isCurrent) {
        picture.cursor = static_cast<int>(std::clamp<std::int64_t>(x, -PixelLimit, PixelLimit));
        for (const int row : {top - 1, bottom})
            picture.fills.push_back(
                {{left, Scaled(row, view.scaleY), right, Scaled(row + 1, view.scaleY)},
                 Series::X,
                 BarFillKind::Edge,
                 false});
    }
}

} // namespace

PlainPicture PlainBarChart(const Lines& lines, const WalkView& view, int current)
{
    PlainPicture picture;
    picture.visibleMin = 0.0;
    picture.visibleMax = 0.0;
    for (int i = view.firstLine; i <= view.lastLine; ++i) {
        if (i != current)
            PlainBar(picture, At(lines, i), view, false);
    }
    if (current >= view.firstLine && current <= view.lastLine)
        PlainBar(picture, At(lines, current), view, true);
    return picture;
}

LineSpan PlainDrawnLines(const Lines& lines, const CTimeWindow& window)
{
    if (lines.empty())
        return {};
    LineSpan drawn{0, static_cast<int>(lines.size()) - 1};
    for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
        if (TimeOf(At(lines, i)) <= window.m_paddedStart)
            drawn.first = i;
        if (TimeOf(At(lines, i)) >= window.m_paddedEnd) {
            drawn.last = i;
            break;
        }
    }
    return drawn;
}

LineSpan PlainVisibleLines(const Lines& lines, const CTimeWindow& window)
{
    const std::int64_t half = window.m_barWidthMs / 2;
    LineSpan visible;
    for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
        const std::int64_t time = TimeOf(At(lines, i));
        if (time - half >= window.m_paddedEnd)
            break;
        if (visible.first < 0 && time + half >= window.m_paddedStart)
            visible.first = i;
        visible.last = i;
    }
    return visible.first < 0 ? LineSpan{} : visible;
}

int PlainPick(const Lines& lines, const CTimeWindow& window, const LineSpan& drawn, int column,
              bool isBarChart)
{
    for (int i = drawn.first; i <= drawn.last && i >= 0; ++i) {
        CMeasureRecord line = At(lines, i);
        line.m_time = 0;
        const std::int64_t shift = isBarChart ? window.m_barWidthMs / 2 : 0;
        // The millisecond field holds 32 bits, so the shifted time goes into the seconds as well.
        const std::int64_t time = TimeOf(At(lines, i)) + shift;
        line.m_msec = static_cast<std::uint32_t>((time % 1000 + 1000) % 1000);
        line.m_time = (time - line.m_msec) / 1000;
        if (XOf(line, window) >= column)
            return i;
    }
    return drawn.last + 1;
}

int PlainNear(const Lines& lines, const CTimeWindow& window, const LineSpan& drawn, int column)
{
    for (int i = drawn.first; i <= drawn.last && i >= 0; ++i) {
        const std::int64_t x = XOf(At(lines, i), window);
        if (x - 2 < column && column < x + 2)
            return i;
    }
    return -1;
}

LineSpan PlainEqualTimes(const Lines& lines, const LineSpan& drawn, int line)
{
    LineSpan run{line, line};
    while (run.first > drawn.first && TimeOf(At(lines, run.first - 1)) == TimeOf(At(lines, line)))
        --run.first;
    while (run.last < drawn.last && TimeOf(At(lines, run.last + 1)) == TimeOf(At(lines, line)))
        ++run.last;
    return run;
}

} // namespace skeldon
