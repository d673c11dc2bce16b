#pragma once

#include "resources/Pictures.h"

#include <QCursor>

namespace skeldon {

/// A pointer drawn from one of the program's pictures, crisp at `ratio`.
[[nodiscard]] QCursor PictureCursor(PictureId picture, double ratio);

} // namespace skeldon
