#pragma once

#include <QString>
#include <QStringList>

namespace skeldon {

class CSettings;

// The longest time of an online recording, in seconds, as the settings store has it.

inline constexpr int LeastOnlineSeconds = 1;
inline constexpr int MostOnlineSeconds = 4999;
inline constexpr int StandardOnlineSeconds = 30;

/// Within the limits.
[[nodiscard]] int ReadOnlineSeconds(const CSettings& settings);
void WriteOnlineSeconds(CSettings& settings, int seconds);

/// What the list proposes: 10 to 60, and longer times with their minutes, such as "120(2min)".
[[nodiscard]] QStringList OnlineSecondsOptions();
/// The number at the start of an entry of that list.
[[nodiscard]] int OnlineSecondsOf(const QString& option);
/// The entry with that number, or -1.
[[nodiscard]] int OnlineOptionOf(int seconds);

} // namespace skeldon
