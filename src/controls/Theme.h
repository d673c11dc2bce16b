#pragma once

#include "app/Colour.h"

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

} // namespace skeldon
