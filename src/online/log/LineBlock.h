#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace skeldon {

/// Lines of text, one behind the other in one piece of memory: a line more costs hardly more than
/// its bytes.
class CLineBlock
{
public:
    CLineBlock() = default;
    CLineBlock(std::initializer_list<std::string_view> lines);

    [[nodiscard]] bool IsEmpty() const { return m_ends.empty(); }
    [[nodiscard]] std::size_t Size() const { return m_ends.size(); }
    /// The line at `index`, which must exist. Valid until the block changes.
    [[nodiscard]] std::string_view Line(std::size_t index) const;
    [[nodiscard]] std::string_view LastLine() const { return Line(Size() - 1); }

    /// Adds a line.
    void Add(std::string_view text);
    /// Puts text at the end of the last line, which must exist.
    void Extend(std::string_view text);
    void Clear();

private:
    std::string m_text;
    std::vector<std::size_t> m_ends; ///< where each line ends in the text
};

} // namespace skeldon
