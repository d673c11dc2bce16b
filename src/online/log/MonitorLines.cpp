#include "online/log/MonitorLines.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace skeldon {

bool CMonitorLines::IsNews(const MonitorPart& part) const
{
    if (part.lines.empty())
        return false;
    const bool isSameOpenLine = IsLastOpen() && part.lines.size() == 1 && !part.isLastClosed &&
                                part.lines.front().size() == m_lines.back().size();
    return !isSameOpenLine;
}

void CMonitorLines::Add(MonitorPart part)
{
    if (!IsNews(part))
        return;
    if (IsLastOpen())
        m_lines.pop_back();
    for (std::string& line : part.lines) {
        if (IsOverLimit() && !m_lines.empty())
            m_lines.pop_front();
        m_longest = std::max(m_longest, line.size());
        m_lines.push_back(std::move(line));
    }
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
