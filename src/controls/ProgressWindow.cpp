#include "controls/ProgressWindow.h"

#include "controls/Caption.h"
#include "resources/StringTable.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QSignalBlocker>
#include <QTimerEvent>

#include <algorithm>

namespace skeldon {

namespace {

/// From the strip's appearing to the start of the work.
constexpr int StartDelayMs = 100;
/// Columns of the picture where the empty middle, the right end and the filled middle begin.
constexpr int EmptyColumn = 17;
constexpr int RightEndColumn = 18;
constexpr int FilledColumn = 35;

/// The parts of the picture.
constexpr QRect LeftEnd(0, 0, ProgressGauge::End, ProgressGauge::Height);
constexpr QRect EmptyMiddle(EmptyColumn, 0, 1, ProgressGauge::Height);
constexpr QRect RightEnd(RightEndColumn, 0, ProgressGauge::End, ProgressGauge::Height);
constexpr QRect FilledMiddle(FilledColumn, 0, 1, ProgressGauge::Height);

/// What lies between the ends of a strip, in device pixels.
QRect MiddlePixels(QSize strip, double ratio)
{
    return PicturePixels(QRect(QPoint(), strip), ratio)
        .adjusted(PicturePixels(LeftEnd, ratio).width(), 0, -PicturePixels(RightEnd, ratio).width(),
                  0);
}

} // namespace

CProgressWindow::CProgressWindow(QWidget* owner, int width)
    : QDialog(owner, Qt::Dialog | Qt::FramelessWindowHint)
{
    setModal(true);
    setAccessibleName(Text(StringId::NameProgress));
    setFixedSize(std::max(width, ProgressGauge::SmallestWidth), ProgressGauge::Height);
    // Whoever takes the strip for a window with a title changes the text.
    connect(this, &QWidget::windowTitleChanged, this,
            [this](const QString& title) { SetText(title, true); });
}

void CProgressWindow::SetRange(int range)
{
    m_gauge.SetRange(range);
    Recompose();
}

void CProgressWindow::SetPosition(int position)
{
    m_gauge.SetPosition(position);
    Recompose();
}

void CProgressWindow::SetTextColor(ColourRef colour, bool repaint)
{
    m_textColor = colour;
    if (repaint)
        Recompose();
}

void CProgressWindow::SetText(const QString& text, bool repaint)
{
    m_text = text;
    if (windowTitle() != text) {
        const QSignalBlocker quiet(this);
        setWindowTitle(text);
    }
    if (repaint)
        Recompose();
}

std::size_t CProgressWindow::GetText(std::span<char16_t> buffer) const
{
    if (buffer.empty())
        return 0;
    const auto length = std::min(buffer.size() - 1, static_cast<std::size_t>(m_text.size()));
    std::copy_n(reinterpret_cast<const char16_t*>(m_text.utf16()), length, buffer.begin());
    buffer[length] = u'\0';
    return length;
}

QAccessible::Role CProgressWindow::AccessibleRole() const
{
    return QAccessible::ProgressBar;
}

QString CProgressWindow::AccessibleValue() const
{
    constexpr int Percent = 100;
    return QStringLiteral("%1 %").arg(m_gauge.FilledColumns(Percent));
}

bool CProgressWindow::GaugeNumbers(int& present, int& smallest, int& largest) const
{
    present = m_gauge.position;
    smallest = 0;
    largest = m_gauge.range;
    return true;
}

void CProgressWindow::reject()
{
    if (m_isDone)
        QDialog::reject();
}

void CProgressWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(m_isDone);
}

void CProgressWindow::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    // Back from the task bar, where it went while the work runs.
    if (event->spontaneous())
        return;
    const QWidget* owner = parentWidget();
    const QRect around = owner != nullptr ? QRect(owner->mapToGlobal(QPoint()), owner->size())
                                          : QGuiApplication::primaryScreen()->availableGeometry();
    move(around.center() - rect().center());
    m_isDone = false;
    m_timer.start(StartDelayMs, Qt::PreciseTimer, this);
}

void CProgressWindow::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId()) {
        QDialog::timerEvent(event);
        return;
    }
    // By now the strip is on the screen.
    m_timer.stop();
    QMetaObject::invokeMethod(this, &CProgressWindow::OnStart, Qt::QueuedConnection);
}

void CProgressWindow::OnStart()
{
    emit ProgressMessage(StartWork, this);
    m_isDone = true;
    reject();
}

void CProgressWindow::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        Recompose();
}

CProgressWindow::Face CProgressWindow::PresentFace() const
{
    const double ratio = devicePixelRatioF();
    const int filled = m_gauge.FilledColumns(MiddlePixels(size(), ratio).width());
    return {filled, m_text, m_textColor, size(), ratio, font()};
}

void CProgressWindow::Recompose()
{
    if (isVisible() && PresentFace() != m_drawn)
        repaint();
}

void CProgressWindow::paintEvent(QPaintEvent* /*event*/)
{
    const Face face = PresentFace();
    if (face != m_drawn)
        Compose(face);
    QPainter(this).drawImage(0, 0, m_picture.Image());
}

void CProgressWindow::Compose(const Face& face)
{
    m_drawn = face;
    const QImage picture = Picture(PictureId::Progress, face.ratio);
    if (picture.isNull())
        return; // the strip stays as it was
    m_picture = CSurface(face.size, face.ratio);
    m_picture.DrawStretched(picture, LeftEnd, EmptyMiddle, RightEnd, QRect(QPoint(), face.size));
    if (face.filled > 0) {
        // To the device pixel, so that the gauge moves as evenly as the screen allows.
        QRect filled = MiddlePixels(face.size, face.ratio);
        filled.setWidth(face.filled);
        QPainter painter(&m_picture.Image());
        painter.scale(1 / face.ratio, 1 / face.ratio);
        painter.drawImage(filled, picture, PicturePixels(FilledMiddle, face.ratio));
    }
    DrawText(face);
}

void CProgressWindow::DrawText(const Face& face)
{
    if (face.text.isEmpty())
        return;
    QPainter painter(&m_picture.Image());
    painter.setFont(face.font);
    painter.setPen(ToColour(face.colour));
    painter.drawText(QRect(QPoint(), face.size),
                     Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, face.text);
}

} // namespace skeldon
