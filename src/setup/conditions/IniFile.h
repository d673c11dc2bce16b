#pragma once

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace skeldon {

/// The text of an INI file, read and changed in place: whatever is not asked for stays byte for
/// byte.
///
/// Names of sections and keys match without regard to the case of ASCII letters. Of sections or
/// keys of one name the first counts. Lines end at LF, CR or both; lines that begin with ";" are
/// comments; blanks round names and values are no part of them. A line without "=" is no key, and
/// a key before the first section belongs to none.
class CIniFile
{
public:
    /// An empty file, or one with that text; a UTF-8 byte order mark before it is passed over.
    explicit CIniFile(std::string text = {});

    /// The value of a key without surrounding double quotes, at most `limit` bytes of it and
    /// nothing behind a zero byte; `fallback` where there is no such key. An empty value is one.
    [[nodiscard]] std::string
    GetString(std::string_view section, std::string_view key, std::string_view fallback,
              std::size_t limit = std::numeric_limits<std::size_t>::max()) const;
    /// The sign and digits that the value begins with, as the nearest `int`; 0 where there are
    /// none, `fallback` where there is no such key.
    [[nodiscard]] int GetInt(std::string_view section, std::string_view key, int fallback) const;
    /// Whether the value is "yes" in any letter case.
    [[nodiscard]] bool GetFlag(std::string_view section, std::string_view key) const;

    /// Gives the key that value, up to its first line break or zero byte. A key that is not there
    /// is put behind the last line of its section, a section that is not there at the end; new
    /// lines end in CR LF. A key or section name is written as it is given.
    void Set(std::string_view section, std::string_view key, std::string_view value);

    /// The whole text.
    [[nodiscard]] std::string Text() const { return m_mark + m_text; }

private:
    /// A run of whole lines by their offsets in the text.
    struct Span
    {
        std::size_t begin = 0;
        std::size_t end = 0;
    };

    /// The lines below the section's head.
    [[nodiscard]] std::optional<Span> FindSection(std::string_view name) const;
    /// What stands behind the "=" of the key, line break left out.
    [[nodiscard]] std::optional<Span> FindValue(const Span& section, std::string_view key) const;
    [[nodiscard]] std::optional<std::string_view> Value(std::string_view section,
                                                        std::string_view key) const;
    void InsertLine(std::size_t at, std::string_view line);

    std::string m_mark; ///< byte order mark
    std::string m_text;
};

} // namespace skeldon
