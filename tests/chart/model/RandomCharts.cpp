#include "chart/model/RandomCharts.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace skeldon {

namespace {

constexpr std::int64_t Year = 365LL * 86400 * 1000;

} // namespace

double CRandomCharts::Value(int kind)
{
    using Limits = std::numeric_limits<double>;
    const double odd[] = {Limits::quiet_NaN(),
                          Limits::infinity(),
                          -Limits::infinity(),
                          1e300,
                          -1e300,
                          -0.0,
                          90000.0,
                          -90000.0,
                          200.0,
                          -200.0,
                          5e6,
                          -5e6};
    if (kind == 0 && OneIn(20))
        return odd[Below(std::size(odd))];
    if (kind == 1)
        return static_cast<double>(Below(3)) - 1.0; // many values alike
    return static_cast<double>(Below(20001)) / 200.0 - 50.0;
}

Lines CRandomCharts::MakeLines(std::int64_t count, bool mayFall)
{
    const std::int64_t steps[] = {1, 10, 100, 1000, 5000, 60'000, 3'600'000, Year / 50};
    const std::int64_t step = steps[Below(std::size(steps))];
    const int kind = static_cast<int>(Below(4));
    const bool hasFlags = OneIn(2);
    const std::int64_t calm = OneIn(4) ? 1 : 1 + Below(30);
    std::int64_t time = 1'300'000'000'000 + Below(Year);
    Lines lines;
    for (std::int64_t i = 0; i < count; ++i) {
        CMeasureRecord line{CalendarSeconds{0}};
        line.SetValues(time / 1000, static_cast<std::uint32_t>(time % 1000), Value(kind),
                       Value(kind), Value(kind), Value(kind), Value(kind));
        if (hasFlags && OneIn(5))
            line.SetFlags(static_cast<std::uint16_t>(Below(0x10000)));
        lines.push_back(line);
        if (!OneIn(calm))
            time += 1 + Below(step);
        if (OneIn(50))
            time += Below(200 * step); // a gap
        if (mayFall && OneIn(30))
            time -= Below(100 * step);
    }
    return lines;
}

WalkView CRandomCharts::MakeView(const Lines& lines, int most)
{
    WalkView view;
    CTimeWindow& window = view.window;
    const std::int64_t widths[] = {0, 1, 5, 500, 2500, 2499};
    window.SetBarWidth(widths[Below(std::size(widths))]);
    std::int64_t start = 0;
    std::int64_t end = 0;
    if (!lines.empty()) {
        start = lines.front().TimeMs();
        end = lines.back().TimeMs();
    }
    window.SetData(start, end);
    window.ShowAll();
    if (!lines.empty() && !OneIn(3)) {
        const std::int64_t from =
            lines[static_cast<std::size_t>(Below(static_cast<std::int64_t>(lines.size())))]
                .TimeMs() -
            Below(300);
        const std::int64_t spans[] = {40, 100, 1000, 10'000, 1'000'000, 3 * Year};
        window.SetView(from, from + Below(spans[Below(std::size(spans))]));
    }
    const int left = static_cast<int>(Below(120));
    window.SetPlot(left, left + static_cast<int>(Below(most)));
    view.scale.SetStep(static_cast<int>(Below(9)), 14);
    view.scale.m_scrollY = static_cast<int>(Below(view.scale.m_contentHeight));
    for (bool& isDrawn : view.drawn)
        isDrawn = !OneIn(4);
    const double scales[] = {1.0, 1.0, 1.0, 1.5, 2.0, 7.31, 0.4};
    view.scaleX = scales[Below(std::size(scales))];
    view.scaleY = scales[Below(std::size(scales))];
    const LineSpan drawn = PlainDrawnLines(lines, window);
    view.firstLine = std::max(drawn.first, 0);
    view.lastLine = drawn.last;
    return view;
}

} // namespace skeldon
