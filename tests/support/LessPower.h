#pragma once

#include <stdexcept>

#include <unistd.h>

namespace skeldon::test {

/// Takes the rights of root away from this process for a while: where tests run as root, nothing
/// would be forbidden to them.
class CLessPower
{
public:
    CLessPower()
        : m_before(::geteuid())
    {
        constexpr uid_t Nobody = 65534;
        if (m_before == 0 && ::seteuid(Nobody) != 0)
            throw std::runtime_error("root can not become nobody");
    }
    ~CLessPower()
    {
        if (::geteuid() != m_before && ::seteuid(m_before) != 0)
            ::_exit(1);
    }
    CLessPower(const CLessPower&) = delete;
    CLessPower& operator=(const CLessPower&) = delete;

private:
    uid_t m_before;
};

} // namespace skeldon::test
