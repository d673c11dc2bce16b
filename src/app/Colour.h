#pragma once

#include <QColor>

#include <cstdint>

namespace skeldon {

/// A colour as settings and recorder templates hold it: 0x00BBGGRR.
using ColourRef = std::uint32_t;

[[nodiscard]] inline QColor ToColour(ColourRef colour)
{
    return {static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
            static_cast<int>(colour >> 16 & 0xFF)};
}

/// Without the opacity.
[[nodiscard]] inline ColourRef ToColourRef(const QColor& colour)
{
    return static_cast<ColourRef>(colour.red()) | static_cast<ColourRef>(colour.green()) << 8 |
           static_cast<ColourRef>(colour.blue()) << 16;
}

} // namespace skeldon
