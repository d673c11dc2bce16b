#pragma once

#include <QString>
#include <QStringList>

namespace skeldon {

/// The filters of a file dialog from their text in the table, "Name|*.a;*.b|Name|*.*|": one
/// "Name (*.a *.b)" each. "*.*" means all files, those without a point too. A name without a
/// pattern is dropped.
[[nodiscard]] QStringList FileFilters(const QString& pairs);

} // namespace skeldon
