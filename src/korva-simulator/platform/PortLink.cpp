#include "korva-simulator/platform/PortLink.h"

#include <utility>

#include <unistd.h>

namespace skeldon {

namespace fs = std::filesystem;

CPortLink::CPortLink(fs::path path, const std::string& target, std::error_code& error)
{
    error.clear();
    const fs::file_status status = fs::symlink_status(path, error);
    if (fs::exists(status) && !fs::is_symlink(status)) {
        error = std::make_error_code(std::errc::file_exists);
        return;
    }
    fs::path fresh = path;
    fresh += "." + std::to_string(::getpid()) + ".new";
    fs::create_symlink(target, fresh, error);
    if (error)
        return;
    fs::rename(fresh, path, error);
    if (error) {
        std::error_code ignored;
        fs::remove(fresh, ignored);
        return;
    }
    m_path = std::move(path);
    m_target = target;
}

CPortLink& CPortLink::operator=(CPortLink&& other) noexcept
{
    std::swap(m_path, other.m_path);
    std::swap(m_target, other.m_target);
    return *this;
}

CPortLink::~CPortLink()
{
    std::error_code error;
    // Another recorder may have taken the name meanwhile.
    if (!m_path.empty() && fs::read_symlink(m_path, error) == m_target && !error)
        fs::remove(m_path, error);
}

} // namespace skeldon
