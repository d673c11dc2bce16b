#pragma once

#include <QString>
#include <QStringList>

namespace skeldon {

// What the list of the online recording's longest time proposes.

/// 10 to 60, and longer times with their minutes, such as "120(2min)".
[[nodiscard]] QStringList OnlineSecondsOptions();
/// The number at the start of an entry of that list.
[[nodiscard]] int OnlineSecondsOf(const QString& option);
/// The entry with that number, or -1.
[[nodiscard]] int OnlineOptionOf(int seconds);

} // namespace skeldon
