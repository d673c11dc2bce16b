#include "chart/model/GaugeTrack.h"

#include "chart/model/Rounding.h"

#include <algorithm>

namespace skeldon {

namespace {

// The top tick lies 2 rows below the control's top; at the bottom tick the thumb ends 2 rows above
// the control's bottom.
constexpr int Margin = 2;
constexpr int TrackLoss = CGaugeTrack::ThumbHeight + 2 * Margin;
constexpr int LastTickLoss = CGaugeTrack::ThumbHeight + Margin;
/// A click takes a tick that is less than so many rows off the thumb's middle.
constexpr int ClickReach = 4;

} // namespace

void CGaugeTrack::SetTickCount(unsigned count)
{
    m_tickCount = std::max(count, 1U);
    PlaceTicks();
}

void CGaugeTrack::SetStep(unsigned step)
{
    m_step = std::min(step, std::max(m_tickCount, 1U) - 1);
    m_previousStep = m_step;
}

void CGaugeTrack::SetHeight(int height)
{
    m_height = height;
    PlaceTicks();
}

void CGaugeTrack::PlaceTicks()
{
    m_tickRows.clear();
    for (unsigned i = 0; i + 1 < m_tickCount; ++i) {
        const double row = i * (m_height - double{TrackLoss}) / (m_tickCount - 1);
        m_tickRows.push_back(RoundPixel(row) + Margin);
    }
    if (m_tickCount > 0)
        m_tickRows.push_back(m_height - LastTickLoss);
}

int CGaugeTrack::RowOfStep(unsigned step) const
{
    if (m_tickRows.empty())
        return 0;
    const auto last = static_cast<unsigned>(m_tickRows.size()) - 1;
    return m_tickRows[last - std::min(step, last)];
}

bool CGaugeTrack::Press(int x, int y)
{
    const int top = RowOfStep(m_step);
    const bool isOnThumb =
        x >= ThumbLeft && x < ThumbLeft + ThumbWidth && y >= top && y < top + ThumbHeight;
    if (!m_enabled || !isOnThumb)
        return false;
    m_thumbRow = top;
    m_grabOffset = y - top;
    m_dragging = true;
    return true;
}

bool CGaugeTrack::Move(int y)
{
    if (!m_dragging)
        return false;
    // The pointer stays in the control less 2 rows at each end, with the thumb hanging on it.
    const int lowest = std::max(m_height - LastTickLoss - 1, Margin);
    const int row = std::clamp(y - m_grabOffset, Margin, lowest);
    if (row == m_thumbRow)
        return false;
    m_thumbRow = row;
    return true;
}

unsigned CGaugeTrack::StepOfThumb() const
{
    const int twice = 2 * m_thumbRow;
    for (unsigned i = 0; i + 1 < m_tickCount; ++i) {
        if (twice < m_tickRows[i] + m_tickRows[i + 1])
            return m_tickCount - i - 1;
    }
    return 0;
}

bool CGaugeTrack::Release(int y)
{
    if (m_dragging) {
        m_dragging = false;
        Choose(StepOfThumb());
        return true;
    }
    const int row = y - ThumbHeight / 2;
    for (unsigned i = 0; i < m_tickRows.size(); ++i) {
        if (m_tickRows[i] - ClickReach < row && row < m_tickRows[i] + ClickReach) {
            Choose(m_tickCount - i - 1);
            return true;
        }
    }
    return false;
}

bool CGaugeTrack::ChooseStep(unsigned step)
{
    if (m_dragging)
        return false;
    Choose(std::min(step, std::max(m_tickCount, 1U) - 1));
    return true;
}

void CGaugeTrack::Choose(unsigned step)
{
    m_previousStep = m_step;
    m_step = step;
}

} // namespace skeldon
