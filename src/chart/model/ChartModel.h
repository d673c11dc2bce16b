#pragma once

#include "chart/model/ChartLayout.h"
#include "chart/model/GaugeTrack.h"
#include "chart/model/LineIndex.h"
#include "chart/model/LineRules.h"
#include "chart/model/TimeStrip.h"
#include "chart/model/ValueAxis.h"
#include "chart/model/ZoomHistory.h"
#include "data/MeasureData.h"

#include <cstdint>
#include <optional>

namespace skeldon {

/// Sizes of the chart's window in logical pixels.
struct ChartMetrics
{
    int clientWidth = 0;
    int clientHeight = 0;
    int vertScrollWidth = 0;
    int horzScrollHeight = 0;
    int gaugeWidth = CGaugeTrack::Width;
    int labelWidth = 0;   ///< of "-99.9"
    int labelHeight = 12; ///< of a line of text
};

/// How much of the picture must be painted anew.
enum class ChartWork
{
    None,
    Compose,  ///< cursor and selection over what is there
    EqualRun, ///< besides, the bars that share the current line's time
    Chart,    ///< value axis, grid and curves
};

/// The chart without its window: what is shown, where everything lies, and how it follows the user.
/// Coordinates are those of the content, in logical pixels; rows of the window are rows of the
/// content less what is scrolled off.
///
/// Operations leave in `m_work` what must be painted for them; whoever paints sets it back.
class CChartModel
{
public:
    CChartModel();

    /// Ties the chart to a data set, which must outlive it, and makes it usable.
    void Create(const CMeasureData& data, CTimeStrip::Measure measure);

    /// Takes the chart away: it is as it was before `Create`.
    void Close();

    // --- what holds now ---

    [[nodiscard]] bool IsCreated() const { return m_data != nullptr; }
    [[nodiscard]] bool CanRedraw() const;
    [[nodiscard]] bool CanDisplayInCenter() const;
    [[nodiscard]] bool CanDisplayAllArea() const { return !m_history.IsEmpty(); }
    /// Whether the first change of time between neighbouring lines is an increase.
    [[nodiscard]] bool HasRisingTime() const;
    /// Lines before the first break of the time line: no others are shown.
    [[nodiscard]] int Count() const { return m_index.Count(); }
    [[nodiscard]] int Step() const { return m_scale.GetStep(); }

    // --- operations ---

    /// After a load or a clear.
    void ResetData();
    /// The lines have changed and the window is to stay.
    void RefreshData();
    /// Units or fonts have changed.
    void RescaleAndRepaint();
    void DisplayAllArea();
    void DisplayInCenter();
    /// For the commands: nothing while the chart can not be redrawn.
    void ChangeScaleStep(int step);
    /// The gauge was moved to `step`.
    void SetScaleStep(int step);
    bool ZoomInTime();
    bool ZoomBack();
    void SetSeriesShown(std::uint16_t mask, bool shown);
    /// 1 to 4.
    void SetLineWeight(int weight);
    void SetElapsedAxis(bool elapsed);
    void SetBarChart(bool barChart);
    void SetDisplayUnit(DisplayUnit unit);
    void Resize(const ChartMetrics& metrics);
    void ScrollVertically(ScrollRequest request, int tracked, bool isCtrlDown);
    void ScrollHorizontally(ScrollRequest request, int tracked, bool isCtrlDown);
    /// The current line is now `line`; -1 and lines that are not shown change nothing.
    void FollowLine(int line);
    /// Shows a window as far as there is data in it.
    void ShowWindow(const CChartRange& window);
    /// Zooms to the window between two content columns.
    void ZoomToColumns(int column, int otherColumn);
    /// All of the picture is to be painted anew.
    void Repaint();
    /// At least so much of it is.
    void NeedWork(ChartWork work);

    // --- for painters ---

    /// The room above the time strip.
    [[nodiscard]] int ContentRoom() const;
    [[nodiscard]] int PlotBitmapWidth() const;
    [[nodiscard]] ChartRect PlotRect() const;
    [[nodiscard]] WalkView View(double scaleX, double scaleY) const;
    /// Series that are shown and that the data set carries.
    [[nodiscard]] SeriesFlags DrawnSeries() const;
    [[nodiscard]] ScrollBarState HorzScroll() const;
    [[nodiscard]] ScrollBarState VertScroll() const;
    /// What the layout of the picture hangs on.
    [[nodiscard]] ChartSizes Sizes() const;
    /// Rows, less what is scrolled off, that the current line's bar covers, both included; nothing
    /// where it is wide enough to be seen behind the cursor.
    [[nodiscard]] std::optional<BarExtent> CurrentBar() const;

    // --- interaction ---

    /// The line that a click at a content column picks; the index behind the last one where none
    /// lies at or right of it.
    [[nodiscard]] int PickLine(int column) const;
    /// The line close to a content column, -1 for none.
    [[nodiscard]] int LineNear(int column) const;

    const CMeasureData* m_data = nullptr;
    CLineIndex m_index;
    CTimeWindow m_window;
    CValueScale m_scale;
    CGaugeTrack m_gauge;
    CZoomHistory m_history;
    CTimeStrip m_strip;
    ChartMetrics m_metrics;
    LineSpan m_drawn; ///< `m_firstLine` and `m_lastLine` of the painters
    bool m_centerable = false;
    bool m_elapsedAxis = false;
    bool m_barChart = false;
    bool m_busy = false;
    bool m_isDragging = false; ///< an area is being selected
    int m_currentLine = -1;
    int m_cursorX = 0; ///< content column of the cursor, 0 for none
    int m_followX = 0; ///< of the last time the window moved to the current line
    bool m_lineFromMouse = false;
    int m_lineWeight = 1;
    DisplayUnit m_unit = DisplayUnit::G;
    SeriesFlags m_seriesShown{};
    ChartWork m_work = ChartWork::None;
    LineSpan m_equalRun; ///< of `ChartWork::EqualRun`

private:
    void IndexLines();
    void Rebuild();
    void ShowAllArea();
    void HorizontalScale();
    void VerticalExtent();
    void AutomaticScale(const ValueSpan& span);
    void SetWindow(const CChartRange& window);
    void TakeCurrentLine(int line, bool fromMouse);
    [[nodiscard]] std::optional<std::int64_t> ElapsedFrom() const;
    [[nodiscard]] SeriesFlags CountedSeries() const;

    bool m_hasRisingTime = false; ///< kept, since many lines may share the first time
};

} // namespace skeldon
