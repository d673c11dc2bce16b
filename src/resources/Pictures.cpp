#include "resources/Pictures.h"

namespace skeldon {

QSize PictureSize(PictureId id)
{
    return id == PictureId::Recorder ? QSize(180, 160) : QSize(16, 16);
}

QImage Picture(PictureId id, double ratio)
{
    QImage image(PictureSize(id) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    return image;
}

} // namespace skeldon
