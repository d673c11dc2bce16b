#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace skeldon {

/// The name of a profile, bytes of a file name, as text. Bytes that are no UTF-8 become the lone
/// surrogates U+DC80 to U+DCFF, so that two different names never fall together.
[[nodiscard]] QString NameText(std::string_view bytes);
/// The other way, byte for byte what `NameText` was given.
[[nodiscard]] std::string NameBytes(const QString& text);

/// Whether a file can have that name and is read back under it. Words for folders are none, nor is
/// text that bytes can not tell from another one, such as half a pair of surrogates.
[[nodiscard]] bool IsFileName(const QString& name);

/// Whether two names count as one: letter case is no difference.
[[nodiscard]] bool IsSameName(const QString& a, const QString& b);

} // namespace skeldon
