#pragma once

#include "chart/model/BarWalk.h"
#include "chart/model/LineRules.h"
#include "chart/model/LineWalk.h"
#include "data/MeasureRecord.h"

#include <cstdint>
#include <vector>

namespace skeldon {

using Lines = std::vector<CMeasureRecord>;

/// What a walk over every line of the view leaves behind, rule by rule.
struct PlainPicture
{
    std::vector<ChartStroke> strokes; ///< of the line chart
    std::vector<ChartBarFill> fills;  ///< of the bar chart, every bar in its full height
    int cursor = 0;
    double visibleMin = 99999.0;
    double visibleMax = -99999.0;
};

[[nodiscard]] PlainPicture PlainLineChart(const Lines& lines, const WalkView& view, int current);
[[nodiscard]] PlainPicture PlainBarChart(const Lines& lines, const WalkView& view, int current);

// The searches, each as one scan from the first line on.
[[nodiscard]] LineSpan PlainDrawnLines(const Lines& lines, const CTimeWindow& window);
[[nodiscard]] LineSpan PlainVisibleLines(const Lines& lines, const CTimeWindow& window);
[[nodiscard]] int PlainPick(const Lines& lines, const CTimeWindow& window, const LineSpan& drawn,
                            int column, bool isBarChart);
[[nodiscard]] int PlainNear(const Lines& lines, const CTimeWindow& window, const LineSpan& drawn,
                            int column);
[[nodiscard]] LineSpan PlainEqualTimes(const Lines& lines, const LineSpan& drawn, int line);

} // namespace skeldon
