#pragma once

#include <QString>

namespace skeldon {

/// The folder "KORVA" in the user's documents folder.
[[nodiscard]] QString DefaultDataFolder();

/// `folder` without one separator at its end, unless that would leave a root.
[[nodiscard]] QString WithoutSeparator(const QString& folder);

} // namespace skeldon
