#pragma once

#include <string_view>

namespace skeldon {

/// Blank, tab, CR, LF, VT and FF: white space of the C locale whatever the user's locale. 0xA0 is
/// none: in the Japanese code page it is half a character.
[[nodiscard]] constexpr bool IsWhite(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

[[nodiscard]] constexpr char ToLowerAscii(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// `text` without white space at both ends.
[[nodiscard]] std::string_view TrimWhite(std::string_view text);

/// Comparisons without regard to the case of ASCII letters.
[[nodiscard]] bool EqualNoCase(std::string_view a, std::string_view b);
[[nodiscard]] bool StartsWithNoCase(std::string_view text, std::string_view start);
[[nodiscard]] bool EndsWithNoCase(std::string_view text, std::string_view end);
/// Below 0, 0 or above 0, bytes compared after folding ASCII letters.
[[nodiscard]] int CompareNoCase(std::string_view a, std::string_view b);

/// What the C runtime's `atoi` gives for `text`, on every platform with a 64-bit `long`: leading
/// white space, a sign, digits; 0 where there is no number. Ends at a zero byte.
[[nodiscard]] int ScanInt(std::string_view text);

/// What the C runtime's `atof` gives for `text` in the C locale whatever the user's locale is,
/// "1e999", "nan" and "0x10" included; 0.0 where there is no number.
[[nodiscard]] double ScanDouble(std::string_view text);

} // namespace skeldon
