#include "chart/view/ChartWnd.h"

#include <QPainter>

#include <algorithm>

namespace skeldon {

CChartWnd::CChartWnd(QWidget* parent)
    : QWidget(parent)
{}

void CChartWnd::Attach(const CMeasureData& measured)
{
    m_data = &measured;
}

void CChartWnd::ResetData()
{
    m_currentLine = -1;
    update();
}

void CChartWnd::SetSeriesShown(std::uint16_t mask, bool shown)
{
    m_shown = static_cast<std::uint16_t>(shown ? m_shown | mask : m_shown & ~mask);
    update();
}

bool CChartWnd::HasRisingTime() const
{
    if (m_data == nullptr)
        return false;
    const auto records = m_data->Records();
    const auto change =
        std::ranges::adjacent_find(records, [](const CMeasureRecord& a, const CMeasureRecord& b) {
            return a.TimeMs() != b.TimeMs();
        });
    return change != records.end() && change[0].TimeMs() < change[1].TimeMs();
}

void CChartWnd::OnMeasureGraph(MeasureGraphCode code, int argument)
{
    if (code == MeasureGraphCode::CurrentLine)
        m_currentLine = argument;
}

void CChartWnd::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
}

} // namespace skeldon
