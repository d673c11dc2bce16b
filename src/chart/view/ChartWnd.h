#pragma once

#include "app/MeasureGraph.h"
#include "chart/model/ChartModel.h"
#include "chart/view/ChartPainter.h"
#include "controls/AccessibleFace.h"
#include "resources/Commands.h"

#include <QImage>
#include <QRegion>
#include <QScrollBar>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

namespace skeldon {

class CChartScaleGauge;

/// The measured result as curves or bars over time, below the list. What is shown and how it
/// follows the user is the model's; this is its window.
///
/// The picture lies in two layers: value axis, grid and curves; and the time strip. A paint event
/// puts them together and adds what moves with the mouse.
class CChartWnd : public QWidget, public CAccessibleFace
{
    Q_OBJECT

public:
    explicit CChartWnd(QWidget* parent = nullptr);
    ~CChartWnd() override;

    /// Ties the chart to the data set, which must outlive it, and makes it usable.
    void Create(const CMeasureData& measured);
    /// What is shown, and how.
    [[nodiscard]] const CChartModel& Model() const { return m_model; }
    [[nodiscard]] bool CanRedraw() const { return m_model.CanRedraw(); }
    /// Whether nothing is under way in the chart. One that memory did not allow is in nobody's way,
    /// but can not be redrawn either.
    [[nodiscard]] bool IsFree() const { return m_isGivenUp || CanRedraw(); }
    /// The line under the pointer at the last right click, -1 for none.
    [[nodiscard]] int PopupLine() const { return m_popupLine; }

    void ResetData();
    void DisplayAllArea();
    void DisplayInCenter();
    void ChangeScaleStep(int step);
    bool ZoomInTime();
    bool ZoomBack();
    void SetSeriesShown(std::uint16_t mask, bool shown);
    void SetColors(const ChartColours& colours);
    void SetLineWeight(int weight);
    void SetElapsedAxis(bool elapsed);
    void SetBarChart(bool barChart);
    void SetDisplayUnit(DisplayUnit unit);

    /// Arms the selection of an area. False at the largest zoom and where one is armed already.
    bool BeginAreaSelection();
    void CancelAreaSelection();

    /// Puts what the chart shows now on the clipboard, with title and legend. False if that can
    /// not be done.
    [[nodiscard]] bool CopyToClipboard();

    /// Size of the printed chart before it is scaled, in pixels of the screen.
    [[nodiscard]] QSize GetNaturalSize() const;
    /// Draws the chart's page from the device's left top on, `width` by `height` device pixels
    /// large. False if memory does not allow it.
    [[nodiscard]] bool PrintChart(QPainter& device, int width, int height) const;

    [[nodiscard]] QAccessible::Role AccessibleRole() const override;
    /// The current line in words.
    [[nodiscard]] QString AccessibleValue() const override;

    /// What the list and the gauge have to say.
    void OnMeasureGraph(MeasureGraphCode code, int argument);

signals:
    void MeasureGraph(skeldon::MeasureGraphCode code, int argument);
    /// An entry of the popup menu was chosen.
    void CommandChosen(skeldon::CommandId command);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    /// What the mouse is doing.
    enum class MouseState
    {
        Idle = 0,
        ArmedOff = 1, ///< an area is to be selected, the pointer is off the plot
        ArmedOn = 2,  ///< the same, on the plot
        Dragging = 3,
    };

    // Painting.
    [[nodiscard]] ChartMetrics Metrics() const;
    void PlaceChildren();
    [[nodiscard]] bool FitLayers();
    void GiveUp();
    void CarryOut();
    void TellWork(ChartWork work);
    void PaintLayers(ChartWork work);
    [[nodiscard]] QRegion PaintedRegion() const;
    void Present(QPainter& painter);
    void PaintPicture(QPainter& painter);
    void ComposeView(QPainter& painter);
    void PaintCorners(QPainter& painter) const;
    [[nodiscard]] ChartRect PlotHit() const;

    // The user.
    [[nodiscard]] QString CornerName(QPoint point) const;
    bool PressCorner(QPoint point);
    void PressPlot(QPoint point);
    void RightPress(QPoint point, QPoint global);
    void PickLine(int line);
    void StartSelection(QPoint point);
    void ReleaseSelection();
    void EndSelection(int argument);
    void SetMouseState(MouseState state);
    void OnScroll(QScrollBar& bar, int action);

    CChartModel m_model;
    ChartColours m_colours;
    std::unique_ptr<CChartPainter> m_painter;
    CChartScaleGauge* m_gauge;
    QScrollBar* m_vertScroll;
    QScrollBar* m_horzScroll;
    QImage m_chartBitmap;
    QImage m_timeBitmap;
    double m_layerRatio = 1.0; ///< device pixels of the layers per logical pixel
    bool m_isPainted = false;  ///< the layers hold a picture
    bool m_isGivenUp = false;
    MouseState m_mouseState = MouseState::Idle;
    int m_dragStartX = 0;
    int m_dragX = 0;
    int m_popupLine = 0;
};

} // namespace skeldon
