#include "korva-simulator/platform/PseudoTerminal.h"

#include <array>
#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>

namespace skeldon {

namespace {

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

void CPseudoTerminal::WaitUntilRead()
{
    constexpr int RoundMs = 5;
    constexpr int MostRounds = 200;
    // Bytes take a moment from one end to the other, so that one look at an empty end says nothing.
    constexpr int EmptyLooks = 3;
    int empty = 0;
    for (int round = 0; round < MostRounds && empty < EmptyLooks; ++round) {
        int queued = 0;
        if (::ioctl(m_slave.Get(), FIONREAD, &queued) != 0)
            return;
        empty = queued == 0 ? empty + 1 : 0;
        (void)::poll(nullptr, 0, RoundMs);
    }
}

void CPseudoTerminal::ResetAfterClose()
{
    (void)::ioctl(m_slave.Get(), TIOCNXCL);
    // First what is on its way, then what has arrived.
    (void)::tcflush(m_master.Get(), TCOFLUSH);
    (void)::tcflush(m_slave.Get(), TCIFLUSH);
}

} // namespace skeldon
