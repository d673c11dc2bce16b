// What whoever paints the chart asks of it.
#include "chart/model/ChartModel.h"

#include <algorithm>

namespace skeldon {

int CChartModel::ContentRoom() const
{
    return m_metrics.clientHeight - m_metrics.horzScrollHeight - m_strip.m_timeStripHeight;
}

int CChartModel::PlotBitmapWidth() const
{
    return m_metrics.clientWidth - m_metrics.vertScrollWidth - m_metrics.gaugeWidth;
}

ChartRect CChartModel::PlotRect() const
{
    return {m_window.m_plotLeft, CValueScale::PlotTop, m_window.m_plotRight, m_scale.m_plotBottom};
}

ChartSizes CChartModel::Sizes() const
{
    return {m_metrics.clientWidth,
            m_metrics.clientHeight,
            m_metrics.gaugeWidth,
            m_metrics.vertScrollWidth,
            m_metrics.horzScrollHeight,
            m_strip.m_timeStripHeight,
            m_metrics.labelWidth,
            m_metrics.labelHeight,
            m_scale.m_contentHeight,
            m_scale.m_scrollY,
            PlotRect()};
}

SeriesFlags CChartModel::DrawnSeries() const
{
    SeriesFlags drawn = m_seriesShown;
    drawn[Index(Series::Temperature)] &= IsCreated() && m_data->m_hasTemperature;
    drawn[Index(Series::Humidity)] &= IsCreated() && m_data->m_hasHumidity;
    return drawn;
}

WalkView CChartModel::View(double scaleX, double scaleY) const
{
    return {m_window, m_scale, DrawnSeries(), m_drawn.first, m_drawn.last, scaleX, scaleY};
}

ScrollBarState CChartModel::HorzScroll() const
{
    return m_window.HorzScroll(Count() >= 1);
}

ScrollBarState CChartModel::VertScroll() const
{
    return m_scale.VertScroll(ContentRoom());
}

std::optional<BarExtent> CChartModel::CurrentBar() const
{
    constexpr int Thin = 2;
    const bool showsSome = std::ranges::find(m_seriesShown, true) != m_seriesShown.end();
    if (m_currentLine < 0 || m_currentLine >= Count() || !showsSome || m_window.HalfBar() >= Thin)
        return std::nullopt;
    return BarRows(m_index.Line(m_currentLine), m_seriesShown, m_scale);
}

} // namespace skeldon
