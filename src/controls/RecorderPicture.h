#pragma once

#include "controls/StatePicture.h"

namespace skeldon {

/// The recorder on the setup view, alone or with its cable, 90 x 160.
class CRecorderPicture : public CStatePicture
{
    Q_OBJECT

public:
    explicit CRecorderPicture(QWidget* parent = nullptr);
};

} // namespace skeldon
