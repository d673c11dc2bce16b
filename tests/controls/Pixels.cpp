#include "controls/Pixels.h"

#include <QTest>

namespace skeldon::test {

QImage Painted(QWidget& widget)
{
    const double ratio = widget.devicePixelRatioF();
    QImage image((QSizeF(widget.size()) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

int CountPixels(const QImage& image, const QRect& part, QRgb colour)
{
    int count = 0;
    const QRect area = part & image.rect();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            count += image.pixel(x, y) == colour ? 1 : 0;
    }
    return count;
}

QString AccessibleText(QWidget& widget, QAccessible::Text kind)
{
    const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&widget);
    return face != nullptr ? face->text(kind) : QString();
}

QAccessible::Role AccessibleRoleOf(QWidget& widget)
{
    const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&widget);
    return face != nullptr ? face->role() : QAccessible::NoRole;
}

bool ShowActive(QWidget& widget)
{
    widget.show();
    widget.activateWindow();
    return QTest::qWaitForWindowActive(&widget);
}

} // namespace skeldon::test
