#pragma once

#include "data/MeasureRecord.h"
#include "data/RecordFlags.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace skeldon {

/// The quantities of a line that the chart can draw, in the order in which they are drawn and
/// listed.
enum class Series : std::uint8_t
{
    X,
    Y,
    Z,
    Resultant,
    Temperature,
    Humidity,
};

inline constexpr std::size_t SeriesCount = 6;
inline constexpr std::array<Series, SeriesCount> AllSeries{
    Series::X, Series::Y, Series::Z, Series::Resultant, Series::Temperature, Series::Humidity};

/// A flag for each series.
using SeriesFlags = std::array<bool, SeriesCount>;

/// What is fixed for a series.
struct SeriesInfo
{
    std::uint16_t mask;          ///< its bit in a mask of series; also its bit of the flag word
    double factor;               ///< from the record's value to the one value axis
    const char* colourKey;       ///< its colour in the settings
    std::uint32_t defaultColour; ///< 0x00BBGGRR
};

inline constexpr std::array<SeriesInfo, SeriesCount> SeriesTable{{
    {RecordFlag::HitX, 1.0, "IconColorX", 0xC50CC5},
    {RecordFlag::HitY, 1.0, "IconColorY", 0x800000},
    {RecordFlag::HitZ, 1.0, "IconColorZ", 0x008000},
    {RecordFlag::HitResultant, 1.0, "IconColorG", 0x008080},
    {RecordFlag::HitTemperature, 0.5, "IconColorC", 0x0202C1},
    {RecordFlag::HitHumidity, 0.25, "IconColorH", 0xF98B49},
}};

// The cursor's colour, and one for marks, which no drawing uses.
inline constexpr const char* ItemColourKey = "IconColorItem";
inline constexpr std::uint32_t DefaultItemColour = 0x000000;
inline constexpr const char* MarkColourKey = "IconColorMark";
inline constexpr std::uint32_t DefaultMarkColour = 0x0000FF;

[[nodiscard]] constexpr std::size_t Index(Series series)
{
    return static_cast<std::size_t>(series);
}

[[nodiscard]] constexpr const SeriesInfo& Info(Series series)
{
    return SeriesTable[Index(series)];
}

/// The series whose flag is set, in table order.
[[nodiscard]] inline std::vector<Series> SeriesIn(const SeriesFlags& flags)
{
    std::vector<Series> series;
    for (const Series each : AllSeries) {
        if (flags[Index(each)])
            series.push_back(each);
    }
    return series;
}

/// A value as it is drawn and measured: what is no number counts as 0.
[[nodiscard]] inline double Drawable(double value)
{
    return value == value ? value : 0.0;
}

/// The record's value of `series`, in the record's own unit.
[[nodiscard]] inline double RecordValue(const CMeasureRecord& record, Series series)
{
    switch (series) {
    case Series::X:
        return Drawable(record.m_x);
    case Series::Y:
        return Drawable(record.m_y);
    case Series::Z:
        return Drawable(record.m_z);
    case Series::Resultant:
        return Drawable(record.m_resultant);
    case Series::Temperature:
        return Drawable(record.m_temperature);
    case Series::Humidity:
        return Drawable(record.m_humidity);
    }
    return 0.0;
}

/// The same on the value axis.
[[nodiscard]] inline double AxisValue(const CMeasureRecord& record, Series series)
{
    return RecordValue(record, series) * Info(series).factor;
}

/// Lines behind a break, abnormal and deleted lines are drawn in lightened colours.
inline constexpr std::uint16_t DimmedFlags =
    RecordFlag::BehindBreak | RecordFlag::Abnormal | RecordFlag::Deleted;

/// A colour 0x00BBGGRR, each channel a fifth of itself and four fifths of white.
[[nodiscard]] constexpr std::uint32_t Lightened(std::uint32_t colour)
{
    std::uint32_t light = 0;
    for (int shift = 0; shift < 24; shift += 8)
        light |= ((colour >> shift & 0xFF) + 4 * 255) / 5 << shift;
    return light;
}

} // namespace skeldon
