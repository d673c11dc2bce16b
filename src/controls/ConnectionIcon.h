#pragma once

#include "controls/StatePicture.h"

namespace skeldon {

/// The small picture of the data view that tells whether a recorder is connected, 48 x 28.
class CConnectionIcon : public CStatePicture
{
    Q_OBJECT

public:
    explicit CConnectionIcon(QWidget* parent = nullptr);
};

} // namespace skeldon
