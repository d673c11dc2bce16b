#pragma once

namespace skeldon {

/// Lines of the live stream in a second.
inline constexpr int OnlineLinesPerSecond = 200;

/// The recording time in seconds that the setting "OnlineSecond" stands for: 1 to 4999.
[[nodiscard]] constexpr int OnlineSeconds(int setting)
{
    constexpr int Longest = 4999;
    if (setting < 2)
        return 1;
    return setting < Longest ? setting : Longest;
}

} // namespace skeldon
