#include "skeldonctl/ProgressBar.h"

#include "skeldonctl/platform/Streams.h"

#include <algorithm>
#include <string>

namespace skeldon {

CProgressBar::CProgressBar(std::string_view label, std::uint64_t range)
    : m_label(label)
    , m_range(std::max<std::uint64_t>(range, 1))
    , m_onTerminal(MessagesGoToTerminal())
{}

CProgressBar::~CProgressBar()
{
    if (m_percent >= 0)
        WriteMessage("\r\x1B[K");
}

void CProgressBar::SetPosition(std::uint64_t position)
{
    constexpr std::uint64_t Whole = 100;
    constexpr int Width = 40;
    const int percent = static_cast<int>(std::min(position, m_range) * Whole / m_range);
    if (!m_onTerminal || percent == m_percent)
        return;
    m_percent = percent;
    const auto filled = static_cast<std::size_t>(percent * Width / int{Whole});
    WriteMessage('\r' + std::string(m_label) + " [" + std::string(filled, '#') +
                 std::string(Width - filled, '.') + "] " + std::to_string(percent) + " %");
}

} // namespace skeldon
