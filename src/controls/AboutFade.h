#pragma once

namespace skeldon {

/// How the about box comes and goes: its panel waits, fades in, stays until the mouse is pressed,
/// fades out, waits and is over. Knows no clock; whoever drives it waits as `DelayMs` says.
class CAboutFade
{
public:
    enum class Phase
    {
        Before,
        FadingIn,
        Shown,
        FadingOut,
        After,
        Closed,
    };

    static constexpr int HoldMs = 300;
    static constexpr int StepMs = 1;
    static constexpr int AlphaStep = 2;
    static constexpr int MostSteps = 127;
    static constexpr int FullAlpha = 255;

    /// A press of a mouse button. Ends a fade at once, ends the stay, cuts the last wait short.
    void Press();
    /// The second press of a double click counts only behind a first press: the click that opened
    /// the box may have been half of one.
    void DoubleClick();
    /// What was waited for has come: the end of a wait, or the next step of a fade.
    void Tick();

    [[nodiscard]] Phase Present() const { return m_phase; }
    /// How much of the panel is seen, 0 to 255.
    [[nodiscard]] int Alpha() const { return m_alpha; }
    /// How long to wait for the next `Tick`, in milliseconds; -1 when only a press goes on.
    [[nodiscard]] int DelayMs() const;

private:
    void Step(int by, int end, Phase next);

    Phase m_phase = Phase::Before;
    int m_alpha = 0;
    int m_steps = 0;
    bool m_isEndWanted = false; ///< a press came during the fade
    bool m_wasPressed = false;
};

} // namespace skeldon
