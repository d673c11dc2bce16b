#include "recorder/platform/PosixSerialPort.h"

#include "recorder/platform/TerminalSetting.h"

#include <cerrno>
#include <chrono>
#include <utility>

#include <fcntl.h>
#include <linux/major.h>
#include <linux/serial.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace skeldon {

namespace {

/// How long a device may take nothing of what is written.
constexpr int WriteWaitMs = 15000;

std::error_code SystemError(int code)
{
    return {code, std::generic_category()};
}

/// The cable or the other side of a pseudo terminal is gone.
std::error_code HungUp()
{
    return SystemError(EIO);
}

using Clock = std::chrono::steady_clock;

Clock::time_point FromNow(int milliseconds)
{
    return Clock::now() + std::chrono::milliseconds(milliseconds);
}

/// Waits until the descriptor is ready for `events`. 0 when the time is over, below 0 on a failure.
int WaitFor(int descriptor, short events, Clock::time_point end)
{
    pollfd entry{descriptor, events, 0};
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        const int ready = ::poll(&entry, 1, left > 0 ? static_cast<int>(left) : 0);
        if (ready >= 0 || errno != EINTR)
            return ready;
    }
}

/// A pseudo terminal stays as long as its other side: one that was marked exclusive by a process
/// that was killed could not be opened again.
bool MayBeMarkedExclusive(int descriptor)
{
    struct stat state
    {};
    if (::fstat(descriptor, &state) != 0)
        return false;
    const unsigned kind = major(state.st_rdev);
    return kind < UNIX98_PTY_SLAVE_MAJOR || kind >= UNIX98_PTY_SLAVE_MAJOR + UNIX98_PTY_MAJOR_COUNT;
}

bool WouldBlock()
{
    return errno == EAGAIN || errno == EWOULDBLOCK;
}

} // namespace

std::unique_ptr<CSerialPort> CPosixSerialPort::Open(const std::string& path, std::error_code& error)
{
    CDescriptor descriptor(::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
    if (!descriptor.IsOpen()) {
        error = LastSystemError();
        return nullptr;
    }
    if (::isatty(descriptor.Get()) == 0) {
        error = SystemError(ENOTTY);
        return nullptr;
    }
    // The lock keeps a second copy of this program out even where it may open any device.
    if (::flock(descriptor.Get(), LOCK_EX | LOCK_NB) != 0) {
        error = WouldBlock() ? SystemError(EBUSY) : LastSystemError();
        return nullptr;
    }
    if (MayBeMarkedExclusive(descriptor.Get()))
        (void)::ioctl(descriptor.Get(), TIOCEXCL);
    (void)SetUpTerminal(descriptor.Get());
    std::unique_ptr<CPosixSerialPort> port(new CPosixSerialPort(std::move(descriptor)));
    port->m_errorCounts = port->CountErrors();
    error.clear();
    return port;
}

CPosixSerialPort::CPosixSerialPort(CDescriptor descriptor)
    : m_descriptor(std::move(descriptor))
{}

CPosixSerialPort::~CPosixSerialPort()
{
    (void)::ioctl(m_descriptor.Get(), TIOCNXCL);
}

CSerialPort::Transfer CPosixSerialPort::Read(std::span<char> buffer)
{
    std::optional<Clock::time_point> end; // looked up only where there is something to wait for
    for (;;) {
        const ssize_t count = ::read(m_descriptor.Get(), buffer.data(), buffer.size());
        if (count > 0)
            return {static_cast<std::size_t>(count), {}};
        if (count == 0)
            return {0, HungUp()};
        if (errno == EINTR)
            continue;
        if (!WouldBlock())
            return {0, LastSystemError()};
        if (!end)
            end = FromNow(SerialSetting::ReadWaitMs);
        const int ready = WaitFor(m_descriptor.Get(), POLLIN, *end);
        if (ready < 0)
            return {0, LastSystemError()};
        if (ready == 0 || Clock::now() >= *end)
            return {};
    }
}

CSerialPort::Transfer CPosixSerialPort::Write(std::string_view bytes)
{
    Transfer written;
    while (written.count < bytes.size()) {
        const std::string_view rest = bytes.substr(written.count);
        const ssize_t count = ::write(m_descriptor.Get(), rest.data(), rest.size());
        if (count > 0) {
            written.count += static_cast<std::size_t>(count);
        } else if (count == 0 || WouldBlock()) {
            const int ready = WaitFor(m_descriptor.Get(), POLLOUT, FromNow(WriteWaitMs));
            if (ready <= 0) {
                written.error = ready == 0 ? SystemError(ETIMEDOUT) : LastSystemError();
                return written;
            }
        } else if (errno != EINTR) {
            written.error = LastSystemError();
            return written;
        }
    }
    return written;
}

std::optional<CSerialPort::LineState> CPosixSerialPort::ClearErrors()
{
    int queued = 0;
    if (::ioctl(m_descriptor.Get(), FIONREAD, &queued) != 0)
        return std::nullopt;
    const ErrorCounts counts = CountErrors();
    const bool errors = counts != m_errorCounts;
    m_errorCounts = counts;
    return LineState{errors, queued > 0 ? static_cast<std::size_t>(queued) : 0};
}

CPosixSerialPort::ErrorCounts CPosixSerialPort::CountErrors() const
{
    serial_icounter_struct counter{};
    // A device without such counters, as a pseudo terminal is, has no line errors.
    if (::ioctl(m_descriptor.Get(), TIOCGICOUNT, &counter) != 0)
        return {};
    return {counter.frame, counter.overrun, counter.parity, counter.brk, counter.buf_overrun};
}

} // namespace skeldon
