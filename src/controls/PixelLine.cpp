#include "controls/PixelLine.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace skeldon {

namespace {

struct Span
{
    double begin;
    double length;
};

/// A span of `length` logical pixels from `begin` on, moved to device pixels.
Span OnDevice(int begin, int length, double offset, double ratio)
{
    const double first = std::round(offset + begin * ratio);
    const double deviceLength = length == 1 ? std::max(std::floor(ratio), 1.0)
                                            : std::round(offset + (begin + length) * ratio) - first;
    return {(first - offset) / ratio, deviceLength / ratio};
}

} // namespace

void FillLine(QPainter& painter, const QRect& line, const QColor& colour)
{
    const QTransform toDevice = painter.deviceTransform();
    const Span across = OnDevice(line.x(), line.width(), toDevice.dx(), toDevice.m11());
    const Span down = OnDevice(line.y(), line.height(), toDevice.dy(), toDevice.m22());
    painter.fillRect(QRectF(across.begin, down.begin, across.length, down.length), colour);
}

} // namespace skeldon
