#pragma once

#include "chart/model/TimeAxis.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace skeldon {

/// The time strip below the plot: the ticks of the shown window, their labels, and the room that
/// the labels need.
class CTimeStrip
{
public:
    /// Length in pixels of a text in the chart's font.
    using Measure = std::function<int(const std::string&)>;

    void Create(Measure measure) { m_measure = std::move(measure); }
    /// No lines, no strip.
    void Clear();
    /// Plans the ticks of a window, and makes the strip as high as its longest label needs. With
    /// `elapsedFrom`, the time of the first line, ticks count from there.
    void Plan(const CTimeWindow& window, std::optional<std::int64_t> elapsedFrom, int labelHeight);

    [[nodiscard]] const std::vector<TimeTick>& Ticks() const { return m_visible; }
    [[nodiscard]] const std::vector<TimeLabel>& Labels() const { return m_labels; }

    int m_timeStripHeight = 0;

private:
    Measure m_measure;
    std::vector<TimeTick> m_visible;
    std::vector<TimeLabel> m_labels;
};

} // namespace skeldon
