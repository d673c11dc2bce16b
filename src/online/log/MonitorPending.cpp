#include "online/log/MonitorPending.h"

#include <string>
#include <utility>

namespace skeldon {

namespace {

constexpr char LineEnd = '\r';

/// The characters that are shown, and the ends of lines between them.
std::string Readable(std::string_view bytes)
{
    std::string text(bytes.size(), '\0');
    char* end = text.data();
    for (const char c : bytes) {
        *end = c;
        end += (c >= ' ' && c <= '}') || c == LineEnd ? 1 : 0;
    }
    text.resize(static_cast<std::size_t>(end - text.data()));
    return text;
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
    const std::string readable = Readable(bytes);
    std::string_view text = readable;
    const std::lock_guard guard(m_lock);
    for (;;) {
        const std::size_t end = text.find(LineEnd);
        if (end == std::string_view::npos)
            return AppendShown(text);
        if (end > 0)
            AppendShown(text.substr(0, end));
        else
            Append({});
        m_lineClosed = true;
        text.remove_prefix(end + 1);
    }
}

MonitorPart CMonitorPending::Take()
{
    MonitorPart part;
    const std::lock_guard guard(m_lock);
    part.lines = std::exchange(m_pending, {});
    part.isLastClosed = m_lineClosed;
    if (!m_lineClosed && !part.lines.IsEmpty())
        m_pending.Add(part.lines.LastLine());
    return part;
}

void CMonitorPending::Clear()
{
    const std::lock_guard guard(m_lock);
    m_pending.Clear();
}

void CMonitorPending::Append(std::string_view text)
{
    if (m_lineClosed || m_pending.IsEmpty())
        m_pending.Add(text);
    else
        m_pending.Extend(text);
}

void CMonitorPending::AppendShown(std::string_view text)
{
    if (text.empty())
        return;
    if (!m_pending.IsEmpty() && m_pending.LastLine().size() >= LongestLine)
        m_lineClosed = true;
    Append(text);
    m_lineClosed = false;
}

} // namespace skeldon
