#include "chart/view/ScaledPainter.h"

#include "app/DataText.h"
#include "chart/model/Rounding.h"

#include <QFontMetrics>

#include <cmath>

namespace skeldon {

CScaledPainter::CScaledPainter(QImage& target, const QFont& font, double scaleX, double scaleY)
    : m_scaleX(scaleX)
    , m_scaleY(scaleY)
    , m_own(std::in_place, &target)
    , m_painter(&*m_own)
{
    TakeFont(font);
}

CScaledPainter::CScaledPainter(QPainter& painter, const QFont& font, double scaleX, double scaleY)
    : m_scaleX(scaleX)
    , m_scaleY(scaleY)
    , m_painter(&painter)
{
    TakeFont(font);
}

void CScaledPainter::TakeFont(const QFont& font)
{
    QFont scaled = font;
    scaled.setPixelSize(std::max(1, RoundPixel(font.pixelSize() * m_scaleY)));
    m_painter->setFont(scaled);
}

int CScaledPainter::DeviceX(int x) const
{
    return RoundPixel(x * m_scaleX);
}

int CScaledPainter::DeviceY(int y) const
{
    return RoundPixel(y * m_scaleY);
}

QRect CScaledPainter::DeviceRect(int left, int top, int right, int bottom) const
{
    const QPoint corner(DeviceX(left), DeviceY(top));
    return {corner, QSize(DeviceX(right) - corner.x(), DeviceY(bottom) - corner.y())};
}

void CScaledPainter::FillRectScaled(int left, int top, int right, int bottom, ColourRef colour)
{
    m_painter->fillRect(DeviceRect(left, top, right, bottom), ToColour(colour));
}

void CScaledPainter::BlendRectScaled(int left, int top, int right, int bottom, ColourRef colour,
                                     int alpha)
{
    QColor veil = ToColour(colour);
    veil.setAlpha(alpha);
    m_painter->fillRect(DeviceRect(left, top, right, bottom), veil);
}

void CScaledPainter::DrawTextScaled(const QString& text, int left, int top, int right, int bottom,
                                    Qt::AlignmentFlag side, ColourRef colour)
{
    if (text.isEmpty())
        return;
    m_painter->setPen(ToColour(colour));
    m_painter->drawText(DeviceRect(left, top, right, bottom),
                        static_cast<int>(side) | static_cast<int>(Qt::AlignVCenter) |
                            static_cast<int>(Qt::TextDontClip) |
                            static_cast<int>(Qt::TextSingleLine),
                        PrintableText(text));
}

int CScaledPainter::DrawRotatedText(int x, int y, Vertical alignment, const QString& text,
                                    ColourRef colour)
{
    const QString shown = PrintableText(text);
    const QFontMetrics metrics = m_painter->fontMetrics();
    const int length = metrics.horizontalAdvance(shown);
    const int height = metrics.height();
    int column = DeviceX(x);
    int end = DeviceY(y);
    switch (alignment) {
    case Vertical::Centred:
        end += length / 2;
        break;
    case Vertical::Downward:
        end += length;
        break;
    case Vertical::Upward:
        break;
    case Vertical::Column:
        column -= height / 2;
        end += length;
        break;
    }
    m_painter->save();
    m_painter->translate(column, end);
    m_painter->rotate(-90.0);
    m_painter->fillRect(0, 0, length, height, Qt::white);
    m_painter->setPen(ToColour(colour));
    m_painter->drawText(QRect(0, 0, length, height),
                        static_cast<int>(Qt::AlignLeft) | static_cast<int>(Qt::TextDontClip) |
                            static_cast<int>(Qt::TextSingleLine),
                        shown);
    m_painter->restore();
    return static_cast<int>(std::ceil(length / m_scaleY));
}

} // namespace skeldon
