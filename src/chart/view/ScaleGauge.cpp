#include "chart/view/ScaleGauge.h"

#include "app/SkeldonApp.h"
#include "resources/Pictures.h"
#include "resources/StringTable.h"
#include "resources/TextFormat.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace skeldon {

namespace {

constexpr ColourRef Shadow = 0x808080;
constexpr ColourRef Dark = 0x404040;
/// That of selected rows of the list.
constexpr ColourRef FocusColour = 0x800000;

/// A raised or sunken edge round an area.
void PaintEdge(QPainter& painter, const QRect& rect, const QColor& topLeft,
               const QColor& bottomRight)
{
    painter.fillRect(rect.left(), rect.top(), rect.width(), 1, topLeft);
    painter.fillRect(rect.left(), rect.top(), 1, rect.height(), topLeft);
    painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, bottomRight);
    painter.fillRect(rect.right(), rect.top(), 1, rect.height(), bottomRight);
}

} // namespace

CChartScaleGauge::CChartScaleGauge(CGaugeTrack& track, QWidget* parent)
    : QWidget(parent)
    , m_track(track)
{
    setFixedWidth(CGaugeTrack::Width);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(Text(StringId::NameScaleGauge));
}

void CChartScaleGauge::ShowStep()
{
    const std::pair<int, unsigned> shown{m_track.ThumbRow(), m_track.m_step};
    const std::pair<int, unsigned> before = std::exchange(m_shown, shown);
    if (shown == before)
        return;
    update();
    if (shown.second != before.second)
        AnnounceValue(this);
}

QAccessible::Role CChartScaleGauge::AccessibleRole() const
{
    return QAccessible::Slider;
}

QString CChartScaleGauge::AccessibleValue() const
{
    return FormatText(Text(StringId::ValueScaleStep), {m_track.m_step + 1, m_track.m_tickCount});
}

bool CChartScaleGauge::GaugeNumbers(int& present, int& smallest, int& largest) const
{
    present = static_cast<int>(m_track.m_step) + 1;
    smallest = 1;
    largest = static_cast<int>(m_track.m_tickCount);
    return true;
}

void CChartScaleGauge::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    PaintTrack(painter);
    painter.drawImage(CGaugeTrack::ThumbLeft, m_track.ThumbRow(),
                      Picture(PictureId::GaugeThumb, devicePixelRatioF()));
    if (hasFocus())
        PaintEdge(painter, rect(), ToColour(FocusColour), ToColour(FocusColour));
}

void CChartScaleGauge::PaintTrack(QPainter& painter) const
{
    constexpr int TrackWidth = 4;
    constexpr int MarkInset = 3;
    constexpr int MarkHeight = 2;
    const QColor shadow = ToColour(Shadow);
    painter.fillRect(rect(), ToColour(App().m_viewBaseColour));
    PaintEdge(painter, rect(), Qt::white, shadow);
    const int half = CGaugeTrack::ThumbHeight / 2;
    for (const int row : m_track.m_tickRows) {
        const QRect mark(MarkInset, row + half - 1, width() - 2 * MarkInset, MarkHeight);
        PaintEdge(painter, mark, Qt::white, shadow);
    }
    const QRect slot((width() - TrackWidth) / 2, half, TrackWidth, height() - 2 * half);
    painter.fillRect(slot, ToColour(Dark));
    PaintEdge(painter, slot, shadow, Qt::white);
}

void CChartScaleGauge::mousePressEvent(QMouseEvent* event)
{
    const QPoint point = event->position().toPoint();
    if (event->button() == Qt::LeftButton && m_track.Press(point.x(), point.y()))
        update();
}

void CChartScaleGauge::mouseMoveEvent(QMouseEvent* event)
{
    if (m_track.Move(event->position().toPoint().y()))
        update();
}

void CChartScaleGauge::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (m_track.Release(event->position().toPoint().y()))
        TellStep();
    update();
}

void CChartScaleGauge::keyPressEvent(QKeyEvent* event)
{
    const auto present = static_cast<int>(m_track.m_step);
    const int last = static_cast<int>(m_track.m_tickCount) - 1;
    int step = present;
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
        ++step;
        break;
    case Qt::Key_Down:
    case Qt::Key_Left:
        --step;
        break;
    case Qt::Key_Home:
        step = 0;
        break;
    case Qt::Key_End:
        step = last;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    step = std::clamp(step, 0, last);
    if (step == present || !m_track.ChooseStep(static_cast<unsigned>(step)))
        return;
    TellStep();
    ShowStep();
}

void CChartScaleGauge::TellStep()
{
    emit MeasureGraph(MeasureGraphCode::ScaleStep, static_cast<int>(m_track.m_step));
}

void CChartScaleGauge::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void CChartScaleGauge::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

} // namespace skeldon
