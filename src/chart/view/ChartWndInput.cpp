// What the user does with the chart, and what the chart and its neighbours tell each other.
#include "chart/view/ChartWnd.h"

#include "chart/view/ScaleGauge.h"
#include "controls/PictureCursor.h"
#include "resources/Menus.h"
#include "resources/StringTable.h"

#include <QAction>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>

namespace skeldon {

namespace {

bool IsCtrlHeld()
{
    return QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier);
}

std::optional<ScrollRequest> RequestOf(int action)
{
    switch (action) {
    case QAbstractSlider::SliderSingleStepAdd:
        return ScrollRequest::LineForward;
    case QAbstractSlider::SliderSingleStepSub:
        return ScrollRequest::LineBack;
    case QAbstractSlider::SliderPageStepAdd:
        return ScrollRequest::PageForward;
    case QAbstractSlider::SliderPageStepSub:
        return ScrollRequest::PageBack;
    case QAbstractSlider::SliderToMinimum:
        return ScrollRequest::Begin;
    case QAbstractSlider::SliderToMaximum:
        return ScrollRequest::End;
    case QAbstractSlider::SliderMove:
        return ScrollRequest::Thumb;
    default:
        return std::nullopt;
    }
}

} // namespace

void CChartWnd::OnScroll(QScrollBar& bar, int action)
{
    const std::optional<ScrollRequest> request = RequestOf(action);
    if (!request)
        return;
    const int tracked = bar.sliderPosition();
    if (&bar == m_vertScroll)
        m_model.ScrollVertically(*request, tracked, IsCtrlHeld());
    else
        m_model.ScrollHorizontally(*request, tracked, IsCtrlHeld());
    const ScrollBarState state = &bar == m_vertScroll ? m_model.VertScroll() : m_model.HorzScroll();
    // What the bar has moved to by itself gives way to what the chart makes of the request.
    if (*request != ScrollRequest::Thumb)
        bar.setSliderPosition(state.position);
    CarryOut();
}

void CChartWnd::wheelEvent(QWheelEvent* event)
{
    constexpr int DeltaOfLine = 40;
    event->accept();
    // The ground of a selection stays where it is.
    if (m_mouseState == MouseState::Dragging)
        return;
    const QPoint delta = event->angleDelta();
    const bool isSideways = delta.x() != 0 || event->modifiers().testFlag(Qt::ShiftModifier);
    const int turned = delta.x() != 0 ? delta.x() : delta.y();
    const int lines = std::max(1, std::abs(turned) / DeltaOfLine);
    const ScrollRequest request = turned > 0 ? ScrollRequest::LineBack : ScrollRequest::LineForward;
    for (int i = 0; i < lines && turned != 0; ++i) {
        if (isSideways)
            m_model.ScrollHorizontally(request, 0, IsCtrlHeld());
        else
            m_model.ScrollVertically(request, 0, IsCtrlHeld());
    }
    CarryOut();
}

ChartRect CChartWnd::PlotHit() const
{
    return Composed(m_model.Sizes()).plotHit;
}

void CChartWnd::mousePressEvent(QMouseEvent* event)
{
    const QPoint point = event->position().toPoint();
    if (!m_model.IsCreated())
        return;
    if (event->button() == Qt::RightButton) {
        RightPress(point, event->globalPosition().toPoint());
    } else if (event->button() == Qt::LeftButton && m_mouseState != MouseState::Dragging) {
        if (!PressCorner(point))
            PressPlot(point);
    }
}

/// What the corner button at a point does; empty off the buttons.
QString CChartWnd::CornerName(QPoint point) const
{
    const ChartSizes sizes = m_model.Sizes();
    const auto isIn = [point](const ChartRect& rect) {
        return rect.Contains(point.x(), point.y());
    };
    if (isIn(CenterButtonRect(sizes)))
        return Text(StringId::NameCenterButton);
    if (isIn(AllAreaButtonRect(sizes)))
        return Text(StringId::NameAllAreaButton);
    return isIn(BarButtonRect(sizes)) ? Text(StringId::NameBarButton) : QString();
}

bool CChartWnd::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), CornerName(help->pos()), this);
    return true;
}

bool CChartWnd::PressCorner(QPoint point)
{
    const ChartSizes sizes = m_model.Sizes();
    const auto isIn = [point](const ChartRect& rect) {
        return rect.Contains(point.x(), point.y());
    };
    if (isIn(CenterButtonRect(sizes)) && m_model.CanDisplayInCenter())
        DisplayInCenter();
    else if (isIn(AllAreaButtonRect(sizes)) && m_model.CanDisplayAllArea())
        DisplayAllArea();
    else if (isIn(BarButtonRect(sizes)))
        SetBarChart(!m_model.m_barChart);
    else
        return false;
    emit MeasureGraph(MeasureGraphCode::CornerUsed, 0);
    return true;
}

void CChartWnd::PressPlot(QPoint point)
{
    if (!PlotHit().Contains(point.x(), point.y()) || m_model.Count() < 1)
        return;
    if (m_mouseState == MouseState::Idle)
        PickLine(m_model.PickLine(point.x() - m_model.Sizes().gaugeWidth));
    else
        StartSelection(point);
}

void CChartWnd::PickLine(int line)
{
    // The list makes the line current, and the chart hears of it as of any other.
    m_model.m_lineFromMouse = true;
    emit MeasureGraph(MeasureGraphCode::CurrentLine, line);
}

void CChartWnd::RightPress(QPoint point, QPoint global)
{
    if (m_model.Count() < 1 || m_mouseState == MouseState::Dragging)
        return;
    if (m_mouseState != MouseState::Idle) {
        EndSelection(1);
        return;
    }
    m_model.m_lineFromMouse = true;
    m_popupLine = m_model.LineNear(point.x() - m_model.Sizes().gaugeWidth);
    if (m_popupLine >= 0)
        emit MeasureGraph(MeasureGraphCode::CurrentLine, m_popupLine);
    auto* const popup = new QMenu(this);
    popup->setAttribute(Qt::WA_DeleteOnClose);
    for (const MenuEntry& entry : ChartPopupMenu()) {
        QAction* const action = popup->addAction(Text(entry.text));
        const CommandId command = entry.command;
        connect(action, &QAction::triggered, this,
                [this, command] { emit CommandChosen(command); });
    }
    popup->popup(global);
}

bool CChartWnd::BeginAreaSelection()
{
    if (m_model.m_window.m_atMaxZoom || m_mouseState != MouseState::Idle)
        return false;
    SetMouseState(MouseState::ArmedOff);
    return true;
}

void CChartWnd::CancelAreaSelection()
{
    EndSelection(1);
}

void CChartWnd::StartSelection(QPoint point)
{
    m_dragStartX = m_dragX = point.x();
    SetMouseState(MouseState::Dragging);
    m_model.NeedWork(ChartWork::Compose);
    CarryOut();
}

void CChartWnd::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint point = event->position().toPoint();
    const ChartRect plot = PlotHit();
    if (m_mouseState == MouseState::ArmedOff || m_mouseState == MouseState::ArmedOn) {
        SetMouseState(plot.Contains(point.x(), point.y()) ? MouseState::ArmedOn
                                                          : MouseState::ArmedOff);
    } else if (m_mouseState == MouseState::Dragging) {
        // The pointer counts only on the plot.
        const int column = std::clamp(point.x(), plot.left, std::max(plot.left, plot.right - 1));
        if (column == m_dragX)
            return;
        m_dragX = column;
        m_model.NeedWork(ChartWork::Compose);
        CarryOut();
    }
}

void CChartWnd::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_mouseState == MouseState::Dragging)
        ReleaseSelection();
}

void CChartWnd::ReleaseSelection()
{
    const int gauge = m_model.Sizes().gaugeWidth;
    if (m_dragStartX != m_dragX)
        m_model.ZoomToColumns(m_dragStartX - gauge, m_dragX - gauge);
    EndSelection(m_model.m_window.m_atMaxZoom ? 0 : 1);
}

void CChartWnd::EndSelection(int argument)
{
    SetMouseState(MouseState::Idle);
    emit MeasureGraph(MeasureGraphCode::AreaEnded, argument);
    m_model.NeedWork(ChartWork::Compose);
    CarryOut();
}

void CChartWnd::SetMouseState(MouseState state)
{
    if (state == m_mouseState)
        return;
    m_mouseState = state;
    m_model.m_isDragging = state == MouseState::Dragging;
    const double ratio = devicePixelRatioF();
    switch (state) {
    case MouseState::Idle:
        setCursor(Qt::ArrowCursor);
        break;
    case MouseState::ArmedOff:
        setCursor(PictureCursor(PictureId::CursorAreaOff, ratio));
        break;
    case MouseState::ArmedOn:
        setCursor(PictureCursor(PictureId::CursorAreaOn, ratio));
        break;
    case MouseState::Dragging:
        setCursor(PictureCursor(PictureId::CursorAreaDrag, ratio));
        break;
    }
}

void CChartWnd::OnMeasureGraph(MeasureGraphCode code, int argument)
{
    switch (code) {
    case MeasureGraphCode::ScaleStep:
        m_model.SetScaleStep(argument);
        break;
    case MeasureGraphCode::Refresh:
        m_model.RefreshData();
        break;
    case MeasureGraphCode::CurrentLine: {
        const bool isMouse = m_model.m_lineFromMouse;
        const int before = m_model.m_currentLine;
        m_model.FollowLine(argument);
        if (m_model.m_currentLine != before)
            AnnounceValue(this);
        if (isMouse && !m_model.m_lineFromMouse)
            emit MeasureGraph(MeasureGraphCode::LineTaken, argument);
        break;
    }
    case MeasureGraphCode::Marks:
    case MeasureGraphCode::MarksToo:
        m_model.Repaint();
        break;
    default:
        return;
    }
    CarryOut();
}

} // namespace skeldon
