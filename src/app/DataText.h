#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace skeldon {

/// Text of the plain rooms, bytes in the data code page, for the screen. Bytes that are UTF-8
/// already are taken as that.
[[nodiscard]] QString FromDataText(std::string_view bytes);
/// The other way. What the code page does not hold becomes "?".
[[nodiscard]] std::string ToDataText(const QString& text);

/// `text` without the characters that have no shape, for drawing.
[[nodiscard]] QString PrintableText(const QString& text);

} // namespace skeldon
