#pragma once

#include <QString>

namespace skeldon {

/// The first page of the manual in the language; empty where it is not installed. Looked for beside
/// the program and where documents of installed programs lie.
[[nodiscard]] QString ManualPath(bool japanese);

} // namespace skeldon
