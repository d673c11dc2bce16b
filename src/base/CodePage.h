#pragma once

#include <string>
#include <string_view>

namespace skeldon {

/// The code page in which the bytes of texts in data files and profiles are read by people.
enum class CodePage
{
    Western,  ///< Windows-1252
    Japanese, ///< CP932, Shift_JIS with the usual extensions
};

/// The code page of this system: Japanese where the system language is Japanese.
[[nodiscard]] CodePage DataCodePage();

/// The name by which conversion services know the code page.
[[nodiscard]] std::string_view CodePageName(CodePage page);

/// `bytes` as UTF-8: as they stand where they are UTF-8 already, decoded from `page` else. A byte
/// that the page does not know becomes U+FFFD.
[[nodiscard]] std::string ToUtf8(std::string_view bytes, CodePage page);

/// UTF-8 `text` as bytes of `page`; a character that the page does not hold becomes "?".
[[nodiscard]] std::string FromUtf8(std::string_view text, CodePage page);

/// Whether `bytes` are well-formed UTF-8.
[[nodiscard]] bool IsUtf8(std::string_view bytes);

} // namespace skeldon
