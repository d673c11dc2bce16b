#include "controls/PictureCursor.h"

#include <QPixmap>

namespace skeldon {

QCursor PictureCursor(PictureId picture, double ratio)
{
    const QPoint spot = PictureHotSpot(picture);
    return QCursor(QPixmap::fromImage(Picture(picture, ratio)), spot.x(), spot.y());
}

} // namespace skeldon
