#include "controls/RepeatButton.h"

#include "controls/Surface.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace skeldon {

CRepeatButton::CRepeatButton(PictureId picture, PictureId pushedPicture, QWidget* parent)
    : QAbstractButton(parent)
    , m_picture(picture)
    , m_pushedPicture(pushedPicture)
{
    setFixedSize(PictureSize(picture));
    setFocusPolicy(Qt::StrongFocus);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &CRepeatButton::OnTick);
    connect(this, &QAbstractButton::clicked, this, &CRepeatButton::OnClicked);
}

void CRepeatButton::SetName(const QString& name)
{
    setAccessibleName(name);
    setToolTip(name);
}

void CRepeatButton::Hold()
{
    const int delay = m_steps.Press();
    if (delay > 0)
        m_timer.start(delay);
}

void CRepeatButton::LetGo()
{
    m_timer.stop();
    m_steps.Release();
}

void CRepeatButton::OnTick()
{
    m_timer.start(m_steps.Tick());
    QMetaObject::invokeMethod(this, &CRepeatButton::Stepped, Qt::QueuedConnection);
}

void CRepeatButton::OnClicked()
{
    if (m_steps.ClickIsStep())
        emit Stepped();
}

void CRepeatButton::paintEvent(QPaintEvent* /*event*/)
{
    constexpr double FaintPicture = 0.45;
    constexpr QRgb FocusColour = 0xFF1F6FEB;
    CSurface surface(size(), devicePixelRatioF());
    surface.DrawPart(Picture(isDown() ? m_pushedPicture : m_picture, surface.Ratio()), rect(),
                     rect());
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1 : FaintPicture);
    painter.drawImage(0, 0, surface.Image());
    if (!hasFocus())
        return;
    // A frame of one logical pixel.
    const QRect inside = rect().adjusted(1, 1, -1, -1);
    painter.setClipRegion(QRegion(rect()) - inside);
    painter.fillRect(rect(), QColor(FocusColour));
}

void CRepeatButton::mousePressEvent(QMouseEvent* event)
{
    QAbstractButton::mousePressEvent(event);
    if (event->button() == Qt::LeftButton && isDown())
        Hold();
}

void CRepeatButton::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_timer.stop();
    QAbstractButton::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton)
        LetGo();
}

void CRepeatButton::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Enter || event->key() == Qt::Key_Return;
    if (isEnter) {
        event->accept();
        if (!event->isAutoRepeat())
            click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat() && isDown())
        Hold();
}

void CRepeatButton::keyReleaseEvent(QKeyEvent* event)
{
    const bool isEnd = event->key() == Qt::Key_Space && !event->isAutoRepeat();
    if (isEnd)
        m_timer.stop();
    QAbstractButton::keyReleaseEvent(event);
    if (isEnd)
        LetGo();
}

void CRepeatButton::focusOutEvent(QFocusEvent* event)
{
    QAbstractButton::focusOutEvent(event);
    LetGo();
}

void CRepeatButton::hideEvent(QHideEvent* event)
{
    QAbstractButton::hideEvent(event);
    LetGo();
}

void CRepeatButton::changeEvent(QEvent* event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        LetGo();
}

} // namespace skeldon
