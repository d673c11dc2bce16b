#include "chart/model/TimeStrip.h"

#include "chart/model/ChartLayout.h"

#include <algorithm>

namespace skeldon {

void CTimeStrip::Clear()
{
    m_timeStripHeight = 0;
    m_visible.clear();
    m_labels.clear();
}

void CTimeStrip::Plan(const CTimeWindow& window, std::optional<std::int64_t> elapsedFrom,
                      int labelHeight)
{
    const CTimeTicks ticks = PlanTimeTicks(window.m_paddedStart, window.m_paddedEnd, elapsedFrom);
    m_visible = VisibleTicks(ticks, window);
    m_labels = TimeLabels(m_visible, ticks, elapsedFrom, labelHeight);
    m_timeStripHeight = 0;
    for (const TimeLabel& label : m_labels)
        m_timeStripHeight = std::max(m_timeStripHeight, m_measure(label.text) + TimeStripMargin);
}

} // namespace skeldon
