#pragma once

#include <csignal>
#include <stdexcept>

#include <sys/resource.h>

namespace skeldon::test {

/// No file of this process can grow beyond `bytes` for a while: writing then fails as on a full
/// disk.
class CFileSizeLimit
{
public:
    explicit CFileSizeLimit(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        if (::getrlimit(RLIMIT_FSIZE, &m_before) != 0)
            throw std::runtime_error("no limit can be read");
        const rlimit limit{bytes, m_before.rlim_max};
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0)
            throw std::runtime_error("no limit can be set");
    }
    ~CFileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        (void)std::signal(SIGXFSZ, m_handler);
    }
    CFileSizeLimit(const CFileSizeLimit&) = delete;
    CFileSizeLimit& operator=(const CFileSizeLimit&) = delete;

private:
    void (*m_handler)(int);
    rlimit m_before{};
};

} // namespace skeldon::test
