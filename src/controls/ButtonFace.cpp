#include "controls/ButtonFace.h"

#include <algorithm>

namespace skeldon {

ButtonFace FaceOf(const ButtonState& state)
{
    if (state.isPushed)
        return ButtonFace::Pushed;
    if (state.hasFocus)
        return state.isPressed ? ButtonFace::Pushed : ButtonFace::Focus;
    if (state.isDisabled)
        return state.isPressed ? ButtonFace::PressedDisabled : ButtonFace::Disabled;
    return state.isPressed ? ButtonFace::Pressed : ButtonFace::Normal;
}

OverlayPlace PlaceOverlay(int buttonWidth, int height, int overlayX, int overlayWidth,
                          int overlayHeight, bool isCentred)
{
    constexpr int Gap = 4;
    constexpr int Margin = 5;
    OverlayPlace place;
    place.x = isCentred ? (buttonWidth - overlayWidth) / 2 : overlayX;
    place.y = (height - overlayHeight) / 2;
    place.captionX = overlayWidth > 0 ? place.x + overlayWidth + Gap : Margin;
    place.captionWidth = std::max(0, buttonWidth - Margin - place.captionX);
    return place;
}

} // namespace skeldon
