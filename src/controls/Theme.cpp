#include "controls/Theme.h"

namespace skeldon {

Tint TintOf(ColourRef viewBase)
{
    constexpr ColourRef LightFace = 0xD8E9EC;
    constexpr int LightAlpha = 104;
    return {viewBase == LightFace ? LightAlpha : 0};
}

} // namespace skeldon
