#pragma once

namespace skeldon {

/// The six faces of a button, in the order in which the picture holds them.
enum class ButtonFace
{
    Focus = 0,
    Normal = 1,
    Disabled = 2,
    Pushed = 3,
    Pressed = 4,
    PressedDisabled = 5,
};

inline constexpr int ButtonFaceCount = 6;
/// No button is narrower, in logical pixels.
inline constexpr int SmallestButtonWidth = 40;

/// What is going on with a button at present.
struct ButtonState
{
    bool isPushed = false; ///< held down by the mouse or a key
    bool hasFocus = false;
    bool isDisabled = false;
    bool isPressed = false; ///< engaged by its owner
};

/// The face a button shows. Being pushed goes before having the focus, and the focus before being
/// disabled: a button that is switched off while it has the focus keeps the look of the focus.
[[nodiscard]] ButtonFace FaceOf(const ButtonState& state);

/// Where the picture on a button stands and what is left for the caption, in logical pixels.
struct OverlayPlace
{
    int x = 0;
    int y = 0;
    int captionX = 0;
    int captionWidth = 0; ///< never below 0
};

/// The picture stands at `overlayX`, or in the middle when it is centred, and in the middle of the
/// height. The caption takes what is free at its right; the whole width without a picture.
[[nodiscard]] OverlayPlace PlaceOverlay(int buttonWidth, int height, int overlayX, int overlayWidth,
                                        int overlayHeight, bool isCentred);

} // namespace skeldon
