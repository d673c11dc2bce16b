#include "korva-simulator/ControlLine.h"

#include "base/TextScan.h"

#include <array>
#include <utility>

namespace skeldon {

std::variant<ControlLine, std::string> ParseControlLine(std::string_view line)
{
    constexpr std::array<std::pair<std::string_view, ControlKind>, 7> Words = {
        {{"plug", ControlKind::Plug},
         {"pull", ControlKind::Pull},
         {"start", ControlKind::Start},
         {"magnet near", ControlKind::MagnetNear},
         {"magnet away", ControlKind::MagnetAway},
         {"clear-faults", ControlKind::ClearFaults},
         {"quit", ControlKind::Quit}}};
    line = TrimWhite(line);
    if (line.empty() || line.front() == '#')
        return ControlLine{};
    for (const auto& [word, kind] : Words) {
        if (line == word)
            return ControlLine{.kind = kind, .fault = {}};
    }
    constexpr std::string_view FaultWord = "fault ";
    if (!line.starts_with(FaultWord))
        return "\"" + std::string(line) + "\" is no command";
    auto fault = ParseFault(TrimWhite(line.substr(FaultWord.size())));
    if (auto* const reason = std::get_if<std::string>(&fault))
        return std::move(*reason);
    return ControlLine{.kind = ControlKind::AddFault, .fault = std::get<Fault>(std::move(fault))};
}

void CLineCollector::Append(std::string_view bytes)
{
    // A line without an end is cut: nobody means a command of that length.
    constexpr std::size_t LongestLine = 65536;
    m_text += bytes;
    if (m_text.size() > LongestLine && m_text.find('\n') == std::string::npos)
        m_text.resize(LongestLine);
}

bool CLineCollector::Next(std::string& line)
{
    const std::size_t end = m_text.find('\n');
    if (end == std::string::npos)
        return false;
    line = m_text.substr(0, end);
    m_text.erase(0, end + 1);
    return true;
}

} // namespace skeldon
