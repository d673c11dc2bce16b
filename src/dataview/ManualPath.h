#pragma once

#include <QString>

namespace skeldon {

/// The first page of the manual in the language; empty where it is not installed. Looked for beside
/// the program and where documents of installed programs lie, there in a folder of its language.
[[nodiscard]] QString ManualPath(bool japanese);
/// The same for a program that lies in `programFolder`.
[[nodiscard]] QString ManualPath(bool japanese, const QString& programFolder);

} // namespace skeldon
