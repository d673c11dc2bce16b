#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace skeldon {

/// The recorder's memory, held as it goes over the wire: lines of digits, each with its carriage
/// return and line feed.
class CRecordMemory
{
public:
    /// Makes room for `count` lines of `digits` digits.
    void Reserve(std::size_t count, std::size_t digits);
    /// Adds a line; `digits` may be any text without an end of line.
    void Append(std::string_view digits);
    /// Takes away the oldest line, if there is one.
    void DropOldest();
    void Clear();

    [[nodiscard]] std::size_t Count() const { return m_count; }
    /// All lines in order.
    [[nodiscard]] std::string_view Wire() const { return std::string_view(m_text).substr(m_begin); }
    /// The digits of the oldest line; empty without lines.
    [[nodiscard]] std::string_view First() const;

private:
    std::string m_text;
    std::size_t m_begin = 0; ///< where the oldest line stands
    std::size_t m_count = 0;
};

/// The first line of `wire` without its end; `wire` is left with what follows.
[[nodiscard]] std::string_view TakeWireLine(std::string_view& wire);

} // namespace skeldon
