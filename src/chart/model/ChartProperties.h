#pragma once

#include "chart/model/Series.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace skeldon {

/// A colour that the user may choose for the chart.
struct ChartColourChoice
{
    const char* key;             ///< in the settings
    std::uint32_t defaultColour; ///< 0x00BBGGRR
};

inline constexpr std::size_t ChartColourCount = SeriesCount + 2;
/// Places behind the colours of the series.
inline constexpr std::size_t ItemColourIndex = SeriesCount;
inline constexpr std::size_t MarkColourIndex = SeriesCount + 1;

/// Colours 0x00BBGGRR: the series in their order, the cursor, the marks.
using ChartColourValues = std::array<std::uint32_t, ChartColourCount>;

/// Key and default of the colour at a place of `ChartColourValues`.
[[nodiscard]] constexpr ChartColourChoice ColourChoice(std::size_t index)
{
    if (index < SeriesCount)
        return {SeriesTable[index].colourKey, SeriesTable[index].defaultColour};
    if (index == ItemColourIndex)
        return {ItemColourKey, DefaultItemColour};
    return {MarkColourKey, DefaultMarkColour};
}

[[nodiscard]] constexpr ChartColourValues StandardColours()
{
    ChartColourValues colours{};
    for (std::size_t i = 0; i < ChartColourCount; ++i)
        colours[i] = ColourChoice(i).defaultColour;
    return colours;
}

// Line weights that can be chosen. The chart draws up to 4, which only a hand can write into the
// settings.
inline constexpr int ThinWeight = 1;
inline constexpr int ThickWeight = 2;

/// How a weight is offered: thick only where it is just that one.
[[nodiscard]] constexpr bool IsOfferedAsThick(int weight)
{
    return weight == ThickWeight;
}

[[nodiscard]] constexpr int ChosenWeight(bool isThick)
{
    return isThick ? ThickWeight : ThinWeight;
}

} // namespace skeldon
