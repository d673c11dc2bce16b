#pragma once

#include <cstdint>

namespace skeldon {

/// The bits of a record's flag word.
namespace RecordFlag {
inline constexpr std::uint16_t Marked = 0x0001;
inline constexpr std::uint16_t HitX = 0x0010;
inline constexpr std::uint16_t HitY = 0x0020;
inline constexpr std::uint16_t HitZ = 0x0040;
inline constexpr std::uint16_t HitTemperature = 0x0080;
inline constexpr std::uint16_t HitResultant = 0x0100;
inline constexpr std::uint16_t HitHumidity = 0x0800;
/// The line was hit by an extraction: any of the six above.
inline constexpr std::uint16_t Extracted =
    HitX | HitY | HitZ | HitTemperature | HitResultant | HitHumidity;
/// The line lies at or behind a break of the time line.
inline constexpr std::uint16_t BehindBreak = 0x2000;
inline constexpr std::uint16_t Abnormal = 0x4000;
/// The line is deleted: it stays in the data set and is left out of a saved file.
inline constexpr std::uint16_t Deleted = 0x8000;
} // namespace RecordFlag

} // namespace skeldon
