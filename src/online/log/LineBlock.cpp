#include "online/log/LineBlock.h"

namespace skeldon {

CLineBlock::CLineBlock(std::initializer_list<std::string_view> lines)
{
    for (const std::string_view line : lines)
        Add(line);
}

std::string_view CLineBlock::Line(std::size_t index) const
{
    const std::size_t begin = index > 0 ? m_ends[index - 1] : 0;
    return std::string_view(m_text).substr(begin, m_ends[index] - begin);
}

void CLineBlock::Add(std::string_view text)
{
    m_text += text;
    m_ends.push_back(m_text.size());
}

void CLineBlock::Extend(std::string_view text)
{
    m_text += text;
    m_ends.back() = m_text.size();
}

void CLineBlock::Clear()
{
    m_text.clear();
    m_ends.clear();
}

} // namespace skeldon
