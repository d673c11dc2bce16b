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
    const auto scaled = [&font](double scale) {
        QFont sized = font;
        sized.setPixelSize(std::max(1, RoundPixel(font.pixelSize() * scale)));
        return sized;
    };
    m_painter->setFont(scaled(m_scaleY));
    m_rotatedFont = scaled(m_scaleX);
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
    DrawStretched(DeviceRect(left, top, right, bottom), m_scaleX / m_scaleY,
                  side | Qt::AlignVCenter, PrintableText(text));
}

void CScaledPainter::DrawFittedText(const QString& text, int left, int top, int right, int bottom,
                                    Qt::AlignmentFlag side, ColourRef colour)
{
    const QRect place = DeviceRect(left, top, right, bottom);
    const int length = TextWidth(text);
    if (length < 1)
        return;
    const double fitted = std::min(1.0, static_cast<double>(place.width()) / length);
    m_painter->setPen(ToColour(colour));
    DrawStretched(place, m_scaleX / m_scaleY * fitted, side | Qt::AlignVCenter,
                  PrintableText(text));
}

int CScaledPainter::TextWidth(const QString& text) const
{
    return RoundPixel(m_painter->fontMetrics().horizontalAdvance(PrintableText(text)) * m_scaleX /
                      m_scaleY);
}

/// Text whose letters are `stretch` times as wide as the font has them.
void CScaledPainter::DrawStretched(const QRect& place, double stretch, Qt::Alignment side,
                                   const QString& text)
{
    const int flags = static_cast<int>(side.toInt()) | static_cast<int>(Qt::TextDontClip) |
                      static_cast<int>(Qt::TextSingleLine);
    if (stretch == 1.0) {
        m_painter->drawText(place, flags, text);
        return;
    }
    m_painter->save();
    m_painter->translate(place.topLeft());
    m_painter->scale(stretch, 1.0);
    m_painter->drawText(QRectF(0.0, 0.0, place.width() / stretch, place.height()), flags, text);
    m_painter->restore();
}

int CScaledPainter::DrawRotatedText(int x, int y, Vertical alignment, const QString& text,
                                    ColourRef colour)
{
    const QString shown = PrintableText(text);
    m_painter->save();
    m_painter->setFont(m_rotatedFont);
    const QFontMetrics metrics = m_painter->fontMetrics();
    const double stretch = m_scaleY / m_scaleX;
    const int length = RoundPixel(metrics.horizontalAdvance(shown) * stretch);
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
    m_painter->translate(column, end);
    m_painter->rotate(-90.0);
    m_painter->fillRect(0, 0, length, height, Qt::white);
    m_painter->setPen(ToColour(colour));
    DrawStretched({0, 0, length, height}, stretch, Qt::AlignLeft, shown);
    m_painter->restore();
    return static_cast<int>(std::ceil(length / m_scaleY));
}

} // namespace skeldon
