#include "online/log/MonitorPending.h"

#include <algorithm>

namespace skeldon {

namespace {

constexpr bool IsShown(char c)
{
    return c >= ' ' && c <= '}';
}

} // namespace

void CMonitorPending::ReportCommand(std::string_view text)
{
    const std::lock_guard guard(m_lock);
    Append(text);
    m_lineClosed = true;
}

void CMonitorPending::ReportBytes(std::string_view bytes)
{
    const std::lock_guard guard(m_lock);
    for (;;) {
        const std::size_t end = bytes.find('\r');
        AppendShown(bytes.substr(0, end));
        if (end == std::string_view::npos)
            return;
        Append({});
        m_lineClosed = true;
        bytes.remove_prefix(end + 1);
    }
}

MonitorPart CMonitorPending::Take()
{
    MonitorPart part;
    const std::lock_guard guard(m_lock);
    part.lines.swap(m_pending);
    part.isLastClosed = m_lineClosed;
    if (!m_lineClosed && !part.lines.empty())
        m_pending.push_back(part.lines.back());
    return part;
}

void CMonitorPending::Clear()
{
    const std::lock_guard guard(m_lock);
    m_pending.clear();
}

void CMonitorPending::Append(std::string_view text)
{
    if (m_lineClosed || m_pending.empty())
        m_pending.emplace_back(text);
    else
        m_pending.back() += text;
}

/// Appends the characters among `bytes`, of which there is no carriage return.
void CMonitorPending::AppendShown(std::string_view bytes)
{
    auto next = bytes.begin();
    for (;;) {
        const auto first = std::find_if(next, bytes.end(), IsShown);
        if (first == bytes.end())
            return;
        next = std::find_if_not(first, bytes.end(), IsShown);
        if (!m_pending.empty() && m_pending.back().size() >= LongestLine)
            m_lineClosed = true;
        Append(std::string_view(first, next));
        m_lineClosed = false;
    }
}

} // namespace skeldon
