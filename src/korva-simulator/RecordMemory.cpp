#include "korva-simulator/RecordMemory.h"

#include <algorithm>

namespace skeldon {

namespace {

constexpr std::string_view LineEnd = "\r\n";

} // namespace

void CRecordMemory::Reserve(std::size_t count, std::size_t digits)
{
    m_text.reserve(m_text.size() + count * (digits + LineEnd.size()));
}

void CRecordMemory::Append(std::string_view digits)
{
    m_text += digits;
    m_text += LineEnd;
    ++m_count;
}

void CRecordMemory::DropOldest()
{
    if (m_count == 0)
        return;
    m_begin = m_text.find(LineEnd, m_begin) + LineEnd.size();
    --m_count;
    // Moved together only when half of it is gone, so that a long cyclic run stays linear.
    if (m_begin > m_text.size() / 2) {
        m_text.erase(0, m_begin);
        m_begin = 0;
    }
}

void CRecordMemory::Clear()
{
    m_text.clear();
    m_begin = 0;
    m_count = 0;
}

std::string_view CRecordMemory::First() const
{
    std::string_view wire = Wire();
    return TakeWireLine(wire);
}

std::string_view TakeWireLine(std::string_view& wire)
{
    const std::size_t end = std::min(wire.find(LineEnd), wire.size());
    const std::string_view line = wire.substr(0, end);
    wire.remove_prefix(std::min(end + LineEnd.size(), wire.size()));
    return line;
}

} // namespace skeldon
