// Where the user goes in time and value, and the line that the chart follows.
#include "chart/model/ChartModel.h"
#include "chart/model/Rounding.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace skeldon {

namespace {

constexpr int FollowTolerance = 1;

} // namespace

void CChartModel::DisplayInCenter()
{
    if (!IsCreated())
        return;
    const WalkView view = View(1.0, 1.0);
    AutomaticScale((m_barChart ? DrawnBarExtremes(m_index, view) : DrawnLineExtremes(m_index, view))
                       .OrEmpty());
    Repaint();
}

void CChartModel::SetScaleStep(int step)
{
    const auto previous = static_cast<int>(m_gauge.m_previousStep);
    m_gauge.SetStep(static_cast<unsigned>(std::max(step, 0)));
    m_scale.ChangeStep(static_cast<int>(m_gauge.m_step), previous, ContentRoom(),
                       m_metrics.labelHeight);
    m_centerable = true;
    Repaint();
}

bool CChartModel::ZoomInTime()
{
    if (!IsCreated() || m_window.m_atMaxZoom)
        return false;
    m_history.Push(m_window.View());
    SetWindow(m_window.ZoomedIn());
    return true;
}

bool CChartModel::ZoomBack()
{
    const std::optional<CChartRange> window = m_history.Pop();
    if (!window)
        return false;
    SetWindow(*window);
    return true;
}

void CChartModel::ZoomToColumns(int column, int otherColumn)
{
    m_history.Push(m_window.View());
    SetWindow(m_window.Between(column, otherColumn));
}

void CChartModel::ShowWindow(const CChartRange& window)
{
    const auto within = [this](std::int64_t time) {
        return std::clamp(time, m_window.m_dataStart, m_window.m_dataEnd);
    };
    if (Count() >= 1)
        SetWindow({within(window.start), within(window.end)});
}

void CChartModel::SetWindow(const CChartRange& window)
{
    m_window.SetView(window.start, window.end);
    m_centerable = true;
    HorizontalScale();
    Repaint();
}

void CChartModel::ScrollVertically(ScrollRequest request, int tracked, bool isCtrlDown)
{
    if (!IsCreated() || !VertScroll().isEnabled)
        return;
    const int position = m_scale.Scrolled(request, tracked, isCtrlDown, ContentRoom());
    if (position == m_scale.m_scrollY)
        return;
    m_scale.m_scrollY = position;
    m_centerable = true;
    Repaint();
}

void CChartModel::ScrollHorizontally(ScrollRequest request, int tracked, bool isCtrlDown)
{
    if (!IsCreated() || !HorzScroll().isEnabled)
        return;
    if (const auto window = m_window.Scrolled(request, tracked, isCtrlDown))
        SetWindow(*window);
}

void CChartModel::FollowLine(int line)
{
    if (!IsCreated() || line < 0 || line >= Count())
        return;
    TakeCurrentLine(line, std::exchange(m_lineFromMouse, false));
}

void CChartModel::TakeCurrentLine(int line, bool fromMouse)
{
    m_currentLine = line;
    const std::int64_t time = m_index.Time(line);
    const std::int64_t column = m_window.Column(time);
    const bool fits = FitsShort(column);
    if (m_window.ShowsAll()) {
        m_cursorX = m_followX = Truncate(static_cast<double>(column));
    } else if (fits && time >= m_window.m_viewStart && time <= m_window.m_viewEnd &&
               (fromMouse || std::abs(m_followX - column) < FollowTolerance)) {
        m_cursorX = static_cast<int>(column);
    } else {
        const CChartRange window = m_window.CentredOn(time);
        m_window.SetView(window.start, window.end);
        HorizontalScale();
        Repaint();
        m_followX = m_cursorX;
        return;
    }
    m_equalRun = m_barChart ? EqualTimes(m_index, m_drawn, line) : LineSpan{};
    const bool isShared = m_equalRun.last > m_equalRun.first;
    NeedWork(isShared ? ChartWork::EqualRun : ChartWork::Compose);
}

int CChartModel::PickLine(int column) const
{
    return skeldon::PickLine(m_index, m_window, m_drawn, column, m_barChart);
}

int CChartModel::LineNear(int column) const
{
    return skeldon::LineNear(m_index, m_window, m_drawn, column);
}

} // namespace skeldon
