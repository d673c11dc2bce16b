#include "online/log/MonitorLines.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace skeldon {

bool CMonitorLines::IsNews(const MonitorPart& part) const
{
    if (part.lines.IsEmpty())
        return false;
    const bool isSameOpenLine = IsLastOpen() && part.lines.Size() == 1 && !part.isLastClosed &&
                                part.lines.LastLine().size() == m_lines.back().size();
    return !isSameOpenLine;
}

void CMonitorLines::Add(const MonitorPart& part)
{
    if (!IsNews(part))
        return;
    if (IsLastOpen())
        m_lines.pop_back();
    const std::size_t count = part.lines.Size();
    const std::size_t limit = static_cast<std::size_t>(std::max(m_maxLines, 0)) + 1;
    const std::size_t most = std::max(limit, m_lines.size());
    // What would be dropped behind the next few lines is not even moved.
    const std::size_t first = count > most ? count - most : 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string_view line = part.lines.Line(i);
        m_longest = std::max(m_longest, line.size());
        if (i >= first)
            m_lines.emplace_back(line);
    }
    while (m_lines.size() > most)
        m_lines.pop_front();
    m_listLineClosed = part.isLastClosed;
}

bool CMonitorLines::Trim()
{
    if (!IsOverLimit())
        return false;
    while (IsOverLimit() && !m_lines.empty())
        m_lines.pop_front();
    return true;
}

void CMonitorLines::Clear()
{
    m_lines.clear();
    m_longest = 0;
}

bool CMonitorLines::IsOverLimit() const
{
    return static_cast<std::int64_t>(m_lines.size()) > m_maxLines;
}

} // namespace skeldon
