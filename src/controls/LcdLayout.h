#pragma once

#include "resources/Pictures.h"

#include <QRect>
#include <QSize>

#include <span>

namespace skeldon {

/// The ten read-outs.
enum class LcdPanelKind
{
    Records,
    Sampling,
    Interval,
    Threshold,
    Id,
    Hazard,
    Endless,
    StartOption,
    DetectOverTemperature,
    Buzzer,
};

/// How the number of a read-out is meant.
enum class LcdReading
{
    Number,
    Period, ///< ten-thousandths of a second
    Length, ///< minutes or seconds, as the display says
    TenthsOfG,
    Lamp, ///< off or on, shown by the display alone
};

/// What one kind of read-out is made of. Rectangles and offsets in logical pixels; the offsets are
/// those of the digit cells in the display rectangle, with gaps where displays hold their point.
struct LcdLayout
{
    PictureId background;
    PictureId display; ///< at the start
    QSize size;
    QRect displayArea;
    std::span<const int> offsets;
    int leastDigits;
    LcdReading reading;
};

/// Where the caption stands on all of them.
inline constexpr QRect LcdCaptionArea(7, 1, 82, 16);
/// Size of one cell of the strip of digits.
inline constexpr QSize LcdCellSize(8, 20);

[[nodiscard]] LcdLayout LcdLayoutOf(LcdPanelKind kind);

} // namespace skeldon
