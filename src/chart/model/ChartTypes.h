#pragma once

#include <cstdint>

namespace skeldon {

/// An area in pixels; right and bottom lie just outside.
struct ChartRect
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool operator==(const ChartRect&) const = default;
    [[nodiscard]] bool Contains(int x, int y) const
    {
        return x >= left && x < right && y >= top && y < bottom;
    }
};

/// A window of time in milliseconds since the epoch, as the zoom history keeps it.
struct CChartRange
{
    std::int64_t start = 0;
    std::int64_t end = 0;

    bool operator==(const CChartRange&) const = default;
    [[nodiscard]] std::int64_t Width() const { return end - start; }
};

/// What a scroll bar shows: its positions run from 0 to `maximum` - `page`.
struct ScrollBarState
{
    bool isEnabled = false;
    int maximum = 0;
    int page = 0;
    int position = 0;

    bool operator==(const ScrollBarState&) const = default;
};

/// What a user can ask of a scroll bar. Back is up or left, forward is down or right.
enum class ScrollRequest
{
    LineBack,
    LineForward,
    PageBack,
    PageForward,
    Thumb, ///< a tracked or final thumb position
    Begin,
    End,
};

/// Pixels of one line of scrolling; a page is four times that.
[[nodiscard]] constexpr int ScrollStep(bool isCtrlDown)
{
    return isCtrlDown ? 4 : 16;
}
inline constexpr int ScrollStepsPerPage = 4;

} // namespace skeldon
