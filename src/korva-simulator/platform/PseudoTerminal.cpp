#include "korva-simulator/platform/PseudoTerminal.h"

#include <array>
#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>

namespace skeldon {

namespace {

std::error_code LastSystemError()
{
    return {errno, std::generic_category()};
}

bool WouldBlock()
{
    return errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR;
}

CPseudoTerminal::Transfer Result(ssize_t count)
{
    if (count >= 0)
        return {static_cast<std::size_t>(count), {}};
    return {0, WouldBlock() ? std::error_code() : LastSystemError()};
}

} // namespace

std::unique_ptr<CPseudoTerminal> CPseudoTerminal::Open(std::error_code& error)
{
    CDescriptor master(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
    std::array<char, 256> name{};
    if (!master.IsOpen() || ::grantpt(master.Get()) != 0 || ::unlockpt(master.Get()) != 0 ||
        ::ptsname_r(master.Get(), name.data(), name.size()) != 0) {
        error = LastSystemError();
        return nullptr;
    }
    CDescriptor slave(::open(name.data(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
    termios setting{};
    if (!slave.IsOpen() || ::tcgetattr(slave.Get(), &setting) != 0) {
        error = LastSystemError();
        return nullptr;
    }
    ::cfmakeraw(&setting);
    if (::tcsetattr(slave.Get(), TCSANOW, &setting) != 0) {
        error = LastSystemError();
        return nullptr;
    }
    error.clear();
    return std::unique_ptr<CPseudoTerminal>(
        new CPseudoTerminal(std::move(master), std::move(slave), name.data()));
}

CPseudoTerminal::CPseudoTerminal(CDescriptor master, CDescriptor slave, std::string path)
    : m_master(std::move(master))
    , m_slave(std::move(slave))
    , m_path(std::move(path))
{}

CPseudoTerminal::Transfer CPseudoTerminal::Read(std::span<char> buffer)
{
    return Result(::read(m_master.Get(), buffer.data(), buffer.size()));
}

CPseudoTerminal::Transfer CPseudoTerminal::Write(std::string_view bytes)
{
    return Result(::write(m_master.Get(), bytes.data(), bytes.size()));
}

void CPseudoTerminal::ResetAfterClose()
{
    (void)::ioctl(m_slave.Get(), TIOCNXCL);
    (void)::tcflush(m_slave.Get(), TCIFLUSH);
}

} // namespace skeldon
