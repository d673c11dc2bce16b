// The chart on paper.
#include "chart/view/ChartWnd.h"

#include "app/SkeldonApp.h"
#include "chart/model/PagePlan.h"
#include "chart/view/ChartPage.h"
#include "chart/view/ChartPicture.h"
#include "chart/view/ChartSettings.h"

#include <QPainter>

#include <algorithm>

namespace skeldon {

namespace {

constexpr int HeaviestPrintWeight = 4;

} // namespace

QSize CChartWnd::GetNaturalSize() const
{
    return NaturalPageSize(m_model.Sizes());
}

bool CChartWnd::PrintChart(QPainter& device, int width, int height) const
{
    if (!m_model.IsCreated())
        return false;
    const ChartProperties properties = ReadChartProperties(App().Settings());
    const int weight = std::clamp(properties.printWeight, 1, HeaviestPrintWeight);
    const ChartPage page{QSize(width, height), ChartTitle(properties.title, *m_model.m_data),
                         PrintedLineWidth(weight, device.device()->logicalDpiX())};
    return PaintChartPage(device, page, m_model, m_colours, font());
}

} // namespace skeldon
