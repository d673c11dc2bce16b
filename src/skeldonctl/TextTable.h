#pragma once

#include <string>
#include <string_view>

namespace skeldon {

/// Lines of a name and a value, the values one below the other.
class CTextTable
{
public:
    void Add(std::string_view name, std::string_view value)
    {
        constexpr std::size_t ValueColumn = 16;
        m_text += name;
        m_text.append(name.size() < ValueColumn ? ValueColumn - name.size() : 1, ' ');
        m_text += value;
        m_text += '\n';
    }
    [[nodiscard]] const std::string& Text() const { return m_text; }

private:
    std::string m_text;
};

} // namespace skeldon
