#pragma once

namespace skeldon {

// What accelerations, held in G everywhere, are multiplied by where they are shown or exported in
// another unit. Not the standard gravity: the recorders' manuals count with these.
inline constexpr double MetresPerSecond2PerG = 9.8;
inline constexpr double GalPerG = 980.0;

} // namespace skeldon
