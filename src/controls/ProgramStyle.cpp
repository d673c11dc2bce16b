#include "controls/ProgramStyle.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QStyleOption>

namespace skeldon {

namespace {

/// Two arrow heads that point to what is behind the edge.
QIcon MoreIcon(const QPalette& palette)
{
    constexpr int Size = 16;
    constexpr int Ratio = 2; // sharp on every screen
    constexpr double PenWidth = 1.5;
    QPixmap pixmap(Size * Ratio, Size * Ratio);
    pixmap.setDevicePixelRatio(Ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette.color(QPalette::ButtonText), PenWidth));
    for (const int left : {4, 8})
        painter.drawPolyline(
            QPolygon({QPoint(left, 4), QPoint(left + 4, Size / 2), QPoint(left, Size - 4)}));
    return QIcon(pixmap);
}

} // namespace

QIcon CProgramStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                                  const QWidget* widget) const
{
    if (picture != SP_ToolBarHorizontalExtensionButton)
        return QProxyStyle::standardIcon(picture, option, widget);
    return MoreIcon(option != nullptr ? option->palette : QGuiApplication::palette());
}

} // namespace skeldon
