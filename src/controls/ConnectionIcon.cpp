#include "controls/ConnectionIcon.h"

namespace skeldon {

CConnectionIcon::CConnectionIcon(QWidget* parent)
    : CStatePicture(PictureId::Connection, StringId::NameConnection, parent)
{}

} // namespace skeldon
