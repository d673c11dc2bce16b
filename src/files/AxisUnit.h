#pragma once

namespace skeldon {

// Data files hold the axes in tenths of G, whatever the model. Two factors and not one with a
// division: the reader multiplies by 0.1, and the last bit of a value hangs on it.
inline constexpr double FileUnitsPerG = 10.0;
inline constexpr double GPerFileUnit = 0.1;

} // namespace skeldon
