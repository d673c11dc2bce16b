#include "chart/model/ChartModel.h"

#include "chart/model/Rounding.h"

#include <algorithm>
#include <utility>

namespace skeldon {

namespace {

constexpr int FollowTolerance = 1;
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
    return m_centerable && !TouchingLines(m_index, m_window).IsEmpty();
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

void CChartModel::DisplayInCenter()
{
    if (!IsCreated())
        return;
    const WalkView view = View(1.0, 1.0);
    AutomaticScale((m_barChart ? DrawnBarExtremes(m_index, view) : DrawnLineExtremes(m_index, view))
                       .OrEmpty());
    Repaint();
}

void CChartModel::ChangeScaleStep(int step)
{
    if (!CanRedraw())
        return;
    const CBusy busy(m_busy);
    SetScaleStep(step);
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

bool CChartModel::SetSeriesShown(std::uint16_t mask, bool shown)
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
    return isChanged;
}

void CChartModel::SetLineWeight(int weight)
{
    constexpr int Heaviest = 4;
    m_lineWeight = std::clamp(weight, 1, Heaviest);
    NeedWork(ChartWork::Chart);
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

/// What the automatic scale looks at: a temperature that is shown counts whether there is one or
/// not.
SeriesFlags CChartModel::CountedSeries() const
{
    SeriesFlags counted = m_seriesShown;
    counted[Index(Series::Humidity)] &= m_data->m_hasHumidity;
    return counted;
}

WalkView CChartModel::View(double scaleX, double scaleY) const
{
    return {m_window, m_scale, DrawnSeries(), m_drawn.first, m_drawn.last, scaleX, scaleY};
}

std::optional<std::int64_t> CChartModel::ElapsedFrom() const
{
    if (!m_elapsedAxis || Count() < 1)
        return std::nullopt;
    return m_index.Time(0);
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

int CChartModel::PickLine(int column) const
{
    return skeldon::PickLine(m_index, m_window, m_drawn, column, m_barChart);
}

int CChartModel::LineNear(int column) const
{
    return skeldon::LineNear(m_index, m_window, m_drawn, column);
}

} // namespace skeldon
