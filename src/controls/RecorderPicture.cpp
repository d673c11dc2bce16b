#include "controls/RecorderPicture.h"

namespace skeldon {

CRecorderPicture::CRecorderPicture(QWidget* parent)
    : CStatePicture(PictureId::Recorder, StringId::NameRecorder, parent)
{}

} // namespace skeldon
