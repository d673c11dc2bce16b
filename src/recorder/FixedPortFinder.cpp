#include "recorder/FixedPortFinder.h"

#include <filesystem>
#include <system_error>

namespace skeldon {

CFixedPortFinder::CFixedPortFinder(std::string_view path)
    : m_path(path)
{
    if (m_path.find('/') == std::string::npos)
        m_path.insert(0, "./");
}

std::optional<std::string> CFixedPortFinder::FindPort()
{
    std::error_code error;
    if (!std::filesystem::exists(m_path, error))
        return std::nullopt;
    return m_path;
}

} // namespace skeldon
