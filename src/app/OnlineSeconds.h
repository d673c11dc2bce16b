#pragma once

namespace skeldon {

class CSettings;

// The longest time of an online recording, in seconds, as the settings store has it.

/// Where the store has none.
inline constexpr int StandardOnlineSeconds = 30;

/// Within `LeastOnlineSeconds` and `MostOnlineSeconds`, whatever the store says.
[[nodiscard]] int ReadOnlineSeconds(const CSettings& settings);
void WriteOnlineSeconds(CSettings& settings, int seconds);

} // namespace skeldon
