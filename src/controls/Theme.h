#pragma once

#include "app/Colour.h"

#include <QPalette>

class QFrame;

namespace skeldon {

/// A colour laid over the pictures of a control.
struct Tint
{
    int alpha = 0; ///< 0 for none, to 255
    ColourRef colour = 0xEBFCFF;
};

/// What is laid over buttons and read-outs on forms of the colour `viewBase`: a light veil on the
/// light face, nothing on the dark one.
[[nodiscard]] Tint TintOf(ColourRef viewBase);
/// The colours of a form of the colour `viewBase`, the same on a dark desktop.
[[nodiscard]] QPalette FormPalette(ColourRef viewBase);
/// Sinks a list into its form. The border is wide enough to be seen at any pixel ratio, where the
/// list's inside may begin in the middle of a device pixel and cover half of a line.
void SinkIntoForm(QFrame& list);

} // namespace skeldon
