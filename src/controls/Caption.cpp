#include "controls/Caption.h"

#include <QFontInfo>
#include <QFontMetrics>

#include <algorithm>
#include <cmath>

namespace skeldon {

namespace {

/// The smallest letters that a caption is shrunk to, in logical pixels.
constexpr int SmallestFont = 10;
constexpr int MostShrinking = 2;

double Linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour)
{
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

QColor Mixed(const QColor& a, const QColor& b, double shareOfA)
{
    const auto channel = [&](int x, int y) {
        return static_cast<int>(std::lround(x * shareOfA + y * (1 - shareOfA)));
    };
    return {channel(a.red(), b.red()), channel(a.green(), b.green()), channel(a.blue(), b.blue())};
}

} // namespace

FittedCaption FitCaption(const QString& text, const QFont& font, int width)
{
    FittedCaption fitted{text, font};
    const int size = QFontInfo(font).pixelSize();
    const int smallest = std::min(size, std::max(SmallestFont, size - MostShrinking));
    for (int pixels = size; pixels >= smallest; --pixels) {
        fitted.font.setPixelSize(pixels);
        if (QFontMetrics(fitted.font).horizontalAdvance(text) <= width)
            return fitted;
    }
    fitted.text = QFontMetrics(fitted.font).elidedText(text, Qt::ElideRight, std::max(width, 0));
    return fitted;
}

QColor InkOn(const QColor& back, bool isFaint)
{
    constexpr double FaintShare = 0.62;
    const QColor dark(0x1E, 0x1C, 0x17);
    const QColor light(0xFF, 0xFF, 0xFF);
    const QColor ink = Contrast(dark, back) >= Contrast(light, back) ? dark : light;
    return isFaint ? Mixed(ink, back, FaintShare) : ink;
}

double Contrast(const QColor& a, const QColor& b)
{
    const double first = Luminance(a);
    const double second = Luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

} // namespace skeldon
