#pragma once

#include <vector>

namespace skeldon {

/// The scale gauge without its picture: a vertical slider with one tick for each scale step, the
/// finest at the top. Rows are rows of the control.
class CGaugeTrack
{
public:
    static constexpr int Width = 16;
    static constexpr int ThumbLeft = 2;
    static constexpr int ThumbWidth = 12;
    static constexpr int ThumbHeight = 24;

    /// A count of 0 becomes 1.
    void SetTickCount(unsigned count);
    /// Makes `step` both the present and the previous one, at most the last there is.
    void SetStep(unsigned step);
    /// Places the ticks on a control of so many rows.
    void SetHeight(int height);

    /// Where the thumb's top lies at `step`.
    [[nodiscard]] int RowOfStep(unsigned step) const;
    /// Where the thumb's top is drawn: at its step, or where it is dragged.
    [[nodiscard]] int ThumbRow() const { return m_dragging ? m_thumbRow : RowOfStep(m_step); }

    /// A press of the left button. True if it takes the thumb.
    bool Press(int x, int y);
    /// A move of the pointer. True if it moves the thumb.
    bool Move(int y);
    /// Takes a step that is not chosen with the mouse. False while the thumb is dragged.
    bool ChooseStep(unsigned step);
    /// A release of the left button: ends a drag, or takes the tick that was clicked. True if a
    /// step was chosen, the present one included; then `m_step` is new and `m_previousStep` is
    /// what it was before.
    bool Release(int y);

    unsigned m_tickCount = 0;
    unsigned m_step = 0;         ///< 0 is the bottom tick
    unsigned m_previousStep = 0; ///< before the last change by the user
    std::vector<int> m_tickRows; ///< top tick first
    int m_height = 0;
    int m_thumbRow = 0;
    bool m_dragging = false;
    int m_grabOffset = 0; ///< pointer's row less the thumb's at the start of a drag
    bool m_enabled = true;

private:
    void PlaceTicks();
    void Choose(unsigned step);
    [[nodiscard]] unsigned StepOfThumb() const;
};

} // namespace skeldon
