#include "controls/Surface.h"

#include <QPainter>

#include <new>

namespace skeldon {

CSurface::CSurface(QSize size, double ratio)
    : m_image(PicturePixels(QRect(QPoint(), size), ratio).size(),
              QImage::Format_ARGB32_Premultiplied)
    , m_ratio(ratio)
{
    if (size.isEmpty())
        return;
    if (m_image.isNull())
        throw std::bad_alloc();
    m_image.fill(Qt::transparent);
    m_image.setDevicePixelRatio(ratio);
}

void CSurface::DrawPart(const QImage& picture, const QRect& part, const QRect& target)
{
    if (picture.isNull() || m_image.isNull())
        return;
    QPainter painter(&m_image);
    painter.scale(1 / m_ratio, 1 / m_ratio);
    painter.drawImage(PicturePixels(target, m_ratio), picture, PicturePixels(part, m_ratio));
}

void CSurface::DrawStretched(const QImage& picture, const QRect& left, const QRect& middle,
                             const QRect& right, const QRect& target)
{
    if (picture.isNull() || m_image.isNull())
        return;
    const QRect area = PicturePixels(target, m_ratio);
    const QRect leftPart = PicturePixels(left, m_ratio);
    const QRect rightPart = PicturePixels(right, m_ratio);
    const int rightX = area.right() + 1 - rightPart.width();
    const int middleX = area.left() + leftPart.width();
    QPainter painter(&m_image);
    painter.scale(1 / m_ratio, 1 / m_ratio);
    painter.drawImage(QRect(area.left(), area.top(), leftPart.width(), area.height()), picture,
                      leftPart);
    painter.drawImage(QRect(middleX, area.top(), rightX - middleX, area.height()), picture,
                      PicturePixels(middle, m_ratio));
    painter.drawImage(QRect(rightX, area.top(), rightPart.width(), area.height()), picture,
                      rightPart);
}

void CSurface::LayTint(const Tint& tint)
{
    if (tint.alpha == 0 || m_image.isNull())
        return;
    QColor colour = ToColour(tint.colour);
    colour.setAlpha(tint.alpha);
    QPainter painter(&m_image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(QRectF(QPointF(), m_image.deviceIndependentSize()), colour);
}

QColor CSurface::ColourAtMiddle(const QRect& part) const
{
    const QPoint middle = PicturePixels(part, m_ratio).center();
    return m_image.rect().contains(middle) ? m_image.pixelColor(middle) : QColor();
}

void MultiplyColour(QImage& image, const QRect& part, const QColor& colour)
{
    const QRect area = part & image.rect();
    const auto scaled = [](int channel, int factor) { return (channel * factor + 127) / 255; };
    for (int y = area.top(); y <= area.bottom(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb pixel = line[x];
            line[x] =
                qRgba(scaled(qRed(pixel), colour.red()), scaled(qGreen(pixel), colour.green()),
                      scaled(qBlue(pixel), colour.blue()), qAlpha(pixel));
        }
    }
}

} // namespace skeldon
