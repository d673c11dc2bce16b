#include "controls/StatePicture.h"

#include <QPainter>

namespace skeldon {

CStatePicture::CStatePicture(PictureId picture, StringId name, QWidget* parent)
    : QWidget(parent)
    , m_picture(picture)
{
    setAccessibleName(Text(name));
    setToolTip(AccessibleValue());
    setFixedSize(sizeHint());
    // The form below follows the mouse.
    setMouseTracking(true);
}

void CStatePicture::SetConnected(bool isConnected)
{
    if (m_isConnected == isConnected)
        return;
    m_isConnected = isConnected;
    setToolTip(AccessibleValue());
    update();
    AnnounceValue(this);
}

QAccessible::Role CStatePicture::AccessibleRole() const
{
    return QAccessible::Graphic;
}

QString CStatePicture::AccessibleValue() const
{
    return Text(m_isConnected ? StringId::ValueConnected : StringId::ValueNotConnected);
}

QSize CStatePicture::sizeHint() const
{
    const QSize both = PictureSize(m_picture);
    return {both.width() / 2, both.height()};
}

void CStatePicture::paintEvent(QPaintEvent* /*event*/)
{
    CSurface surface(size(), devicePixelRatioF());
    const QRect part(QPoint(m_isConnected ? width() : 0, 0), size());
    surface.DrawPart(Picture(m_picture, surface.Ratio()), part, rect());
    QPainter(this).drawImage(0, 0, surface.Image());
}

} // namespace skeldon
