#include "controls/AboutBox.h"

#include "app/Colour.h"
#include "base/Version.h"
#include "controls/Surface.h"
#include "controls/VersionText.h"
#include "resources/StringTable.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <utility>

namespace skeldon {

namespace {

constexpr QSize PanelSize(306, 80);
constexpr ColourRef PanelColour = 0xF8D2CC;
constexpr ColourRef FrameShadow = 0xB09090;
constexpr ColourRef PanelInk = 0x482020;
constexpr int FontPixels = 14;

} // namespace

CAboutBox::CAboutBox(QWidget* parent, Pace pace)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_pace(std::move(pace))
{
    setModal(true);
    setWindowTitle(Text(StringId::AboutTitle));
    setAccessibleName(Text(StringId::AboutTitle));
    setAccessibleDescription(Lines().join(QLatin1Char('\n')));
    setFixedSize(PictureSize(PictureId::About));
    QFont lines = font();
    lines.setPixelSize(FontPixels);
    setFont(lines);
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &CAboutBox::OnTick);
}

QStringList CAboutBox::Lines() const
{
    return {Text(StringId::AboutVersion) + QLatin1Char(' ') +
                QString::fromStdString(FourNumbers(ProgramVersion)),
            Text(StringId::AboutCopyright)};
}

QRect CAboutBox::PanelArea() const
{
    QRect area(QPoint(), PanelSize);
    area.moveTopLeft(QPoint((width() - area.width()) / 2, (height() - area.height()) / 2));
    return area;
}

void CAboutBox::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    const QWidget* owner = parentWidget() != nullptr ? parentWidget()->window() : nullptr;
    const QRect around =
        owner != nullptr ? owner->frameGeometry() : QGuiApplication::primaryScreen()->geometry();
    move(around.center() - rect().center());
    m_fade = {};
    GoOn();
}

void CAboutBox::hideEvent(QHideEvent* event)
{
    releaseMouse();
    m_timer.stop();
    QDialog::hideEvent(event);
}

void CAboutBox::OnTick()
{
    // By now the box is on the screen, where it can be done: a press anywhere goes on.
    if (m_fade.Present() == CAboutFade::Phase::Before)
        grabMouse();
    const int before = m_fade.Alpha();
    m_fade.Tick();
    if (m_fade.Alpha() != before)
        update(PanelArea());
    GoOn();
}

void CAboutBox::GoOn()
{
    if (m_fade.Present() == CAboutFade::Phase::Closed) {
        accept();
        return;
    }
    const int delay = m_fade.DelayMs();
    if (delay < 0)
        m_timer.stop();
    else
        m_timer.start(m_pace ? m_pace(delay) : delay);
}

void CAboutBox::OnPress(bool isDoubleClick)
{
    if (isDoubleClick)
        m_fade.DoubleClick();
    else
        m_fade.Press();
    // The first wait is not begun anew.
    if (m_fade.Present() != CAboutFade::Phase::Before)
        GoOn();
}

void CAboutBox::mousePressEvent(QMouseEvent* /*event*/)
{
    OnPress(false);
}

void CAboutBox::mouseDoubleClickEvent(QMouseEvent* /*event*/)
{
    OnPress(true);
}

void CAboutBox::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Enter:
    case Qt::Key_Return:
        event->accept();
        if (!event->isAutoRepeat())
            OnPress(false);
        break;
    default:
        QDialog::keyPressEvent(event);
    }
}

void CAboutBox::paintEvent(QPaintEvent* /*event*/)
{
    CSurface surface(size(), devicePixelRatioF());
    surface.DrawPart(Picture(PictureId::About, surface.Ratio()), rect(), rect());
    QPainter painter(this);
    painter.drawImage(0, 0, surface.Image());
    painter.setOpacity(static_cast<double>(m_fade.Alpha()) / CAboutFade::FullAlpha);
    painter.drawImage(PanelArea().topLeft(), PanelImage(surface.Ratio()));
}

QImage CAboutBox::PanelImage(double ratio) const
{
    CSurface panel(PanelSize, ratio);
    const QRect area(QPoint(), PanelSize);
    QPainter painter(&panel.Image());
    // Light at the left and top, shadow at the right and bottom, and the same sunk inside.
    painter.fillRect(area, ToColour(FrameShadow));
    painter.fillRect(area.adjusted(0, 0, -1, -1), Qt::white);
    painter.fillRect(area.adjusted(1, 1, -1, -1), ToColour(PanelColour));
    painter.fillRect(area.adjusted(4, 4, -4, -4), Qt::white);
    painter.fillRect(area.adjusted(4, 4, -5, -5), ToColour(FrameShadow));
    painter.fillRect(area.adjusted(5, 5, -5, -5), ToColour(PanelColour));
    painter.setFont(font());
    painter.setPen(ToColour(PanelInk));
    painter.drawText(area, Qt::AlignCenter, Lines().join(QLatin1Char('\n')));
    painter.end();
    return panel.Image();
}

} // namespace skeldon
