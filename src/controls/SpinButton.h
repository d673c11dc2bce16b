#pragma once

#include "controls/RepeatButton.h"

namespace skeldon {

/// The three small buttons beside the read-outs.
enum class SpinKind
{
    Up,
    Down,
    Reset, ///< does not repeat
};

/// One of the small buttons that change the value of a read-out, 11 x 9 pixels.
class CSpinButton : public CRepeatButton
{
    Q_OBJECT

public:
    explicit CSpinButton(SpinKind kind, QWidget* parent = nullptr);
};

} // namespace skeldon
