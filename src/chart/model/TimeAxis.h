#pragma once

#include "chart/model/TimeWindow.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace skeldon {

/// Where the ticks of the time axis lie: one at `m_firstTick`, in milliseconds since the epoch, and
/// one every interval behind it.
struct CTimeTicks
{
    std::int64_t m_firstTick = 0;
    int m_tickSeconds = 1;
    int m_tickMs = 0;

    bool operator==(const CTimeTicks&) const = default;
    /// In milliseconds.
    [[nodiscard]] std::int64_t Interval() const
    {
        return std::int64_t{m_tickSeconds} * 1000 + m_tickMs;
    }
};

/// A tick that lies on the plot.
struct TimeTick
{
    std::int64_t time = 0;
    int column = 0; ///< content column

    bool operator==(const TimeTick&) const = default;
};

/// One vertical text of the time strip, centred on a content column.
struct TimeLabel
{
    std::string text;
    int column = 0;

    bool operator==(const TimeLabel&) const = default;
};

/// Ticks for a padded window, about five or more of them, on round local times. With
/// `elapsedFrom`, the time of the first line, they count from there. A month is 30 days here: the
/// ticks drift against the calendar, and the labels show the true date.
[[nodiscard]] CTimeTicks PlanTimeTicks(std::int64_t paddedStart, std::int64_t paddedEnd,
                                       std::optional<std::int64_t> elapsedFrom);

/// The ticks on the plot, both its edges included.
[[nodiscard]] std::vector<TimeTick> VisibleTicks(const CTimeTicks& plan, const CTimeWindow& window);

/// The texts of the strip at these ticks: local time of day, with the date at the first tick and
/// where the day changes; or, with `elapsedFrom`, the time since then, and date and time at that
/// very tick.
[[nodiscard]] std::vector<TimeLabel> TimeLabels(const std::vector<TimeTick>& ticks,
                                                const CTimeTicks& plan,
                                                std::optional<std::int64_t> elapsedFrom,
                                                int labelHeight);

} // namespace skeldon
