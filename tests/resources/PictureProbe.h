#pragma once

#include "resources/Pictures.h"

#include <QImage>
#include <QRect>
#include <QString>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace skeldon {

inline QString NameOf(PictureId id, double ratio)
{
    return QStringLiteral("picture %1 at %2").arg(static_cast<int>(id)).arg(ratio);
}

/// The device pixels of a part of a picture.
inline QImage PartOf(PictureId id, const QRect& part, double ratio)
{
    return Picture(id, ratio).copy(PicturePixels(part, ratio));
}

inline bool IsUniformAlongRows(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 1; x < image.width(); ++x) {
            if (image.pixel(x, y) != image.pixel(0, y))
                return false;
        }
    }
    return true;
}

inline bool IsAll(const QImage& image, QRgb colour)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != colour)
                return false;
        }
    }
    return true;
}

inline int CountLit(const QImage& image)
{
    int lit = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) > 127)
                ++lit;
        }
    }
    return lit;
}

/// Share of the pixels that differ visibly, of equal images' pixels.
inline double Difference(const QImage& one, const QImage& other)
{
    int differing = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            const int distance = std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
                                 std::abs(qBlue(a) - qBlue(b)) + std::abs(qAlpha(a) - qAlpha(b));
            if (distance > 24)
                ++differing;
        }
    }
    return static_cast<double>(differing) / (one.width() * one.height());
}

inline double Luminance(QRgb colour)
{
    const auto linear = [](int channel) {
        const double c = channel / 255.0;
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
           0.0722 * linear(qBlue(colour));
}

inline double Contrast(QRgb one, QRgb other)
{
    const double a = Luminance(one);
    const double b = Luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

inline double MeanLuminance(const QImage& image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += Luminance(image.pixel(x, y));
    }
    return sum / (image.width() * image.height());
}

} // namespace skeldon
