#include "chart/view/ScaleGauge.h"

#include "app/SkeldonApp.h"
#include "resources/Pictures.h"

#include <QMouseEvent>
#include <QPainter>

namespace skeldon {

namespace {

constexpr ColourRef Shadow = 0x808080;
constexpr ColourRef Dark = 0x404040;

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
}

void CChartScaleGauge::paintEvent(QPaintEvent* /*event*/)
{
    constexpr int TrackWidth = 4;
    constexpr int MarkInset = 3;
    constexpr int MarkHeight = 2;
    QPainter painter(this);
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
    painter.drawImage(CGaugeTrack::ThumbLeft, m_track.ThumbRow(),
                      Picture(PictureId::GaugeThumb, devicePixelRatioF()));
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
        emit MeasureGraph(MeasureGraphCode::ScaleStep, static_cast<int>(m_track.m_step));
    update();
}

} // namespace skeldon
