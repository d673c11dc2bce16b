#pragma once

namespace skeldon {

// How long a live stream may be recorded, in seconds, and its rate, which is fixed.

inline constexpr int LeastOnlineSeconds = 1;
inline constexpr int MostOnlineSeconds = 4999;
inline constexpr int OnlineLinesPerSecond = 200;

} // namespace skeldon
