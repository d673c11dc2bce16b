#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace skeldon {

/// The stable name of a port: a symbolic link that is there as long as its owner lives.
class CPortLink
{
public:
    /// No link at all.
    CPortLink() = default;
    /// Puts the link in place whole. One that is there already gives way; anything else under that
    /// name stays and is an error.
    CPortLink(std::filesystem::path path, const std::string& target, std::error_code& error);
    CPortLink(CPortLink&&) = delete;
    CPortLink& operator=(CPortLink&& other) noexcept;
    ~CPortLink();

private:
    std::filesystem::path m_path; ///< empty for none
    std::string m_target;
};

} // namespace skeldon
