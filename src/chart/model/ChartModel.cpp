#include "chart/model/ChartModel.h"

#include <algorithm>
#include <utility>

namespace skeldon {

namespace {

// Between the edge of the picture and the plot beside its labels.
constexpr int LeftMargin = 38;
constexpr int RightMargin = 6;

/// Says for as long as it lives that the chart is being rebuilt.
class CBusy
{
public:
    explicit CBusy(bool& busy)
        : m_busy(busy)
    {
        m_busy = true;
    }
    CBusy(const CBusy&) = delete;
    CBusy& operator=(const CBusy&) = delete;
    ~CBusy() { m_busy = false; }

private:
    bool& m_busy;
};

} // namespace

CChartModel::CChartModel()
{
    m_seriesShown.fill(true);
    m_gauge.SetTickCount(CValueScale::StepCount);
}

void CChartModel::Create(const CMeasureData& data, CTimeStrip::Measure measure)
{
    m_data = &data;
    m_strip.Create(std::move(measure));
    IndexLines();
}

void CChartModel::Close()
{
    m_data = nullptr;
    m_index.Clear();
    m_history.Clear();
    m_drawn = {};
    m_currentLine = -1;
    m_cursorX = 0;
    m_hasRisingTime = false;
    m_work = ChartWork::None;
}

bool CChartModel::CanRedraw() const
{
    return IsCreated() && !m_busy && !m_isDragging;
}

bool CChartModel::CanDisplayInCenter() const
{
    return m_centerable && !GetVisibleLines(m_index, m_window).IsEmpty();
}

bool CChartModel::HasRisingTime() const
{
    return m_hasRisingTime;
}

void CChartModel::IndexLines()
{
    const auto lines = m_data->Records();
    m_hasRisingTime = RisesAtFirstChange(lines);
    const bool isBroken = m_data->m_firstBreak >= 0;
    m_index.Build(isBroken ? lines.first(std::min(static_cast<std::size_t>(m_data->m_firstBreak),
                                                  lines.size()))
                           : lines);
}

void CChartModel::ResetData()
{
    m_currentLine = -1;
    m_cursorX = 0;
    m_followX = 0;
    Rebuild();
}

void CChartModel::Rebuild()
{
    if (!CanRedraw())
        return;
    const CBusy busy(m_busy);
    IndexLines();
    const bool rises = Count() >= 1 && m_index.Time(0) < m_index.Time(Count() - 1);
    m_window.SetBarWidth(rises ? m_data->m_minStepMs / 2 : CTimeWindow::PlainBarWidthMs);
    ShowAllArea();
    AutomaticScale(AllExtremes(m_index, CountedSeries()).OrEmpty());
    Repaint();
}

void CChartModel::AutomaticScale(const ValueSpan& span)
{
    SetScaleStep(CValueScale::AutomaticStep(span.minimum, span.maximum, ContentRoom()));
    m_scale.CentreOn(span.Middle(), ContentRoom());
    m_centerable = false;
}

void CChartModel::RefreshData()
{
    if (!IsCreated())
        return;
    IndexLines();
    if (Count() >= 1) {
        m_window.SetData(m_index.Time(0), m_index.Time(Count() - 1));
        m_window.LimitToData();
    }
    HorizontalScale();
    Repaint();
}

void CChartModel::RescaleAndRepaint()
{
    if (!CanRedraw())
        return;
    const CBusy busy(m_busy);
    HorizontalScale();
    VerticalExtent();
    Repaint();
}

void CChartModel::ShowAllArea()
{
    if (Count() >= 1) {
        m_window.SetData(m_index.Time(0), m_index.Time(Count() - 1));
        m_window.ShowAll();
    }
    m_history.Clear();
    HorizontalScale();
    Repaint();
}

void CChartModel::DisplayAllArea()
{
    if (!CanRedraw())
        return;
    const CBusy busy(m_busy);
    m_centerable = true;
    ShowAllArea();
}

void CChartModel::ChangeScaleStep(int step)
{
    if (!CanRedraw())
        return;
    const CBusy busy(m_busy);
    SetScaleStep(step);
}

void CChartModel::SetSeriesShown(std::uint16_t mask, bool shown)
{
    bool isChanged = false;
    for (const Series series : AllSeries) {
        bool& flag = m_seriesShown[Index(series)];
        if ((Info(series).mask & mask) != 0 && flag != shown) {
            flag = shown;
            isChanged = true;
        }
    }
    if (isChanged && IsCreated()) {
        m_centerable = true;
        Repaint();
    }
}

void CChartModel::SetLineWeight(int weight)
{
    constexpr int Heaviest = 4;
    m_lineWeight = std::clamp(weight, 1, Heaviest);
    Repaint();
}

void CChartModel::SetElapsedAxis(bool elapsed)
{
    m_elapsedAxis = elapsed;
    if (!IsCreated())
        return;
    HorizontalScale();
    Repaint();
}

void CChartModel::SetBarChart(bool barChart)
{
    m_barChart = barChart;
    m_centerable = true;
    Repaint();
}

void CChartModel::SetDisplayUnit(DisplayUnit unit)
{
    m_unit = unit;
    RescaleAndRepaint();
}

void CChartModel::Resize(const ChartMetrics& metrics)
{
    const int width = PlotBitmapWidth();
    const int gaugeHeight = m_gauge.m_height;
    m_metrics = metrics;
    m_gauge.SetHeight(metrics.clientHeight - 2 * metrics.horzScrollHeight);
    if (!IsCreated())
        return;
    if (PlotBitmapWidth() != width) {
        HorizontalScale();
        VerticalExtent();
    }
    Repaint();
    m_centerable |= m_gauge.m_height != gaugeHeight;
}

void CChartModel::HorizontalScale()
{
    const int margin = m_metrics.labelHeight + m_metrics.labelWidth + LeftMargin;
    m_window.SetPlot(margin, PlotBitmapWidth() - margin - m_metrics.labelWidth - RightMargin);
    m_drawn = DrawnLines(m_index, m_window);
    if (Count() < 1)
        m_strip.Clear();
    else
        m_strip.Plan(m_window, ElapsedFrom(), m_metrics.labelHeight);
}

void CChartModel::VerticalExtent()
{
    m_scale.SetStep(static_cast<int>(m_gauge.m_step), m_metrics.labelHeight);
}

void CChartModel::Repaint()
{
    if (!IsCreated())
        return;
    m_scale.LimitScroll(ContentRoom());
    m_cursorX = CursorColumn(m_index, m_window, m_drawn, m_currentLine, m_barChart);
    NeedWork(ChartWork::Chart);
}

void CChartModel::NeedWork(ChartWork work)
{
    m_work = std::max(m_work, work);
}

/// What the automatic scale looks at: a temperature that is shown counts whether there is one or
/// not.
SeriesFlags CChartModel::CountedSeries() const
{
    SeriesFlags counted = m_seriesShown;
    counted[Index(Series::Humidity)] &= m_data->m_hasHumidity;
    return counted;
}

std::optional<std::int64_t> CChartModel::ElapsedFrom() const
{
    if (!m_elapsedAxis || Count() < 1)
        return std::nullopt;
    return m_index.Time(0);
}

} // namespace skeldon
