#include "controls/SkinButton.h"

#include "controls/Caption.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace skeldon {

namespace {

/// How much of a picture is seen on a button that can not be used.
constexpr double FaintPicture = 0.45;

bool IsFaint(ButtonFace face)
{
    return face == ButtonFace::Disabled || face == ButtonFace::PressedDisabled;
}

} // namespace

CSkinButton::CSkinButton(QWidget* parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_NoSystemBackground);
    SetUpPlain();
}

void CSkinButton::SetUpPicture(PictureId overlay, int height)
{
    SetUp(overlay, false, false, height);
}

void CSkinButton::SetUpSwatch(PictureId overlay, bool isCentred, int height)
{
    SetUp(overlay, true, isCentred, height);
}

void CSkinButton::SetUpPlain(int height)
{
    SetUp(std::nullopt, false, false, height);
}

void CSkinButton::SetUp(std::optional<PictureId> overlay, bool isSwatch, bool isCentred, int height)
{
    m_overlay = overlay;
    m_isSwatch = isSwatch;
    m_isCentred = isCentred;
    m_height = height;
    setMinimumWidth(SmallestButtonWidth);
    setFixedHeight(height);
    DropStrip();
}

void CSkinButton::SetCaption(const QString& caption)
{
    setText(caption);
    // An "&" in a caption is a sign like any other.
    setShortcut(QKeySequence());
    setAccessibleName(caption);
    update();
}

void CSkinButton::SetName(const QString& name)
{
    setAccessibleName(name);
    setToolTip(name);
}

void CSkinButton::SetPressed(bool isPressed)
{
    // Only a button that was ever engaged is told to screen readers as one with two states.
    if (isPressed)
        setCheckable(true);
    setChecked(isPressed);
}

void CSkinButton::SetOverlay(PictureId overlay)
{
    m_overlay = overlay;
    DropStrip();
}

void CSkinButton::SetSwatchColour(ColourRef colour)
{
    m_swatchColour = colour;
    DropStrip();
}

void CSkinButton::SetTint(const Tint& tint)
{
    m_tint = tint;
    DropStrip();
}

void CSkinButton::Move(int x, int y, int width)
{
    setGeometry(x, y, std::max(width, SmallestButtonWidth), m_height);
}

ButtonFace CSkinButton::Face() const
{
    return FaceOf({isDown(), hasFocus(), !isEnabled(), isChecked()});
}

QSize CSkinButton::sizeHint() const
{
    const QSize overlay = m_overlay ? PictureSize(*m_overlay) : QSize(0, 0);
    const OverlayPlace place =
        PlaceOverlay(0, m_height, m_overlayX, overlay.width(), overlay.height(), false);
    const int width = place.captionX + fontMetrics().horizontalAdvance(text()) + m_overlayX;
    return {std::max(width, SmallestButtonWidth), m_height};
}

bool CSkinButton::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() &&
        FitCaption(text(), font(), Place().captionWidth).text != text()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
        return true;
    }
    return QAbstractButton::event(event);
}

void CSkinButton::paintEvent(QPaintEvent* /*event*/)
{
    const double ratio = devicePixelRatioF();
    const CSurface& first = m_strip.front();
    if (first.IsNull() || first.Ratio() != ratio ||
        first.Image().size() != PicturePixels(rect(), ratio).size())
        BuildStrip(ratio);
    const ButtonFace face = Face();
    QPainter painter(this);
    painter.drawImage(0, 0, m_strip[static_cast<std::size_t>(face)].Image());
    DrawCaption(painter, face);
}

void CSkinButton::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Enter || event->key() == Qt::Key_Return;
    if (!isEnter) {
        QAbstractButton::keyPressEvent(event);
        return;
    }
    event->accept();
    if (!event->isAutoRepeat())
        click();
}

void CSkinButton::changeEvent(QEvent* event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        update();
    // While it was switched off the window may have been left and come back without the focus.
    const bool isPlaceOfFocus = window()->focusWidget() == this;
    if (event->type() == QEvent::EnabledChange && isEnabled() && isPlaceOfFocus && !hasFocus())
        setFocus(Qt::ActiveWindowFocusReason);
}

bool CSkinButton::focusNextPrevChild(bool next)
{
    // Asked of a button that is just being switched off. It keeps its place: most commands switch
    // their own button off while they run, and the focus should be found where it was.
    const bool isSwitchedOff = isVisible() && !isEnabled();
    return isSwitchedOff || QAbstractButton::focusNextPrevChild(next);
}

void CSkinButton::DropStrip()
{
    m_strip = {};
    update();
}

OverlayPlace CSkinButton::Place() const
{
    const QSize size = m_overlay ? PictureSize(*m_overlay) : QSize(0, 0);
    return PlaceOverlay(width(), m_height, m_overlayX, size.width(), size.height(), m_isCentred);
}

void CSkinButton::BuildStrip(double ratio)
{
    const QImage faces = Picture(PictureId::ButtonFaces, ratio);
    const int whole = PictureSize(PictureId::ButtonFaces).width();
    const int end = ButtonFaceEnd;
    for (int i = 0; i < ButtonFaceCount; ++i) {
        const auto index = static_cast<std::size_t>(i);
        const int y = i * ButtonFaceHeight;
        CSurface face(size(), ratio);
        face.DrawStretched(faces, {0, y, end, ButtonFaceHeight},
                           {end, y, whole - 2 * end, ButtonFaceHeight},
                           {whole - end, y, end, ButtonFaceHeight}, rect());
        face.LayTint(m_tint);
        const QColor middle = face.ColourAtMiddle(rect());
        const bool isSeen = middle.isValid() && middle.alpha() != 0;
        m_inks[index] = InkOn(isSeen ? middle : palette().color(QPalette::Window),
                              IsFaint(static_cast<ButtonFace>(i)));
        DrawOverlay(face, static_cast<ButtonFace>(i));
        m_strip[index] = std::move(face);
    }
}

void CSkinButton::DrawOverlay(CSurface& face, ButtonFace which)
{
    if (!m_overlay)
        return;
    const QImage picture = m_isSwatch
                               ? ColouredPicture(*m_overlay, ToColour(m_swatchColour), face.Ratio())
                               : Picture(*m_overlay, face.Ratio());
    if (picture.isNull())
        return;
    const OverlayPlace place = Place();
    const QRect target(QPoint(place.x, place.y), PictureSize(*m_overlay));
    QPainter painter(&face.Image());
    painter.setOpacity(IsFaint(which) ? FaintPicture : 1);
    painter.scale(1 / face.Ratio(), 1 / face.Ratio());
    painter.drawImage(PicturePixels(target, face.Ratio()), picture, picture.rect());
}

void CSkinButton::DrawCaption(QPainter& painter, ButtonFace which) const
{
    if (text().isEmpty())
        return;
    const OverlayPlace place = Place();
    const FittedCaption caption = FitCaption(text(), font(), place.captionWidth);
    painter.setFont(caption.font);
    painter.setPen(m_inks[static_cast<std::size_t>(which)]);
    painter.drawText(QRect(place.captionX, 0, place.captionWidth, height()),
                     Qt::AlignCenter | Qt::TextSingleLine, caption.text);
}

} // namespace skeldon
