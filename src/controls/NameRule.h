#pragma once

#include <cstddef>
#include <string_view>

namespace skeldon {

/// Whether a character may stand in the name of a profile, which is also a file name: not
/// " * . / : < > ? \ or |.
[[nodiscard]] bool IsNameCharacter(char16_t character);

/// How many characters of `text` may not stand in a name.
[[nodiscard]] std::size_t CountForbidden(std::u16string_view text);

} // namespace skeldon
