#include "StreamRecorder.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <string_view>
#include <termios.h>
#include <unistd.h>
#include <utility>

namespace skeldon::test {

CStreamRecorder::CStreamRecorder(Source source)
    : m_source(std::move(source))
{
    m_master = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (m_master < 0 || grantpt(m_master) != 0 || unlockpt(m_master) != 0)
        std::abort();
    m_port = ptsname(m_master);
    // Held open, so that the terminal stays between two openings of the port.
    m_slave = open(m_port.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios raw{};
    if (tcgetattr(m_slave, &raw) != 0)
        std::abort();
    cfmakeraw(&raw);
    tcsetattr(m_slave, TCSANOW, &raw);
    fcntl(m_master, F_SETFL, O_NONBLOCK);
    m_thread = std::thread(&CStreamRecorder::Run, this);
}

CStreamRecorder::~CStreamRecorder()
{
    m_isEnding = true;
    m_thread.join();
    close(m_slave);
    close(m_master);
}

std::string CStreamRecorder::Heard() const
{
    const std::lock_guard guard(m_lock);
    return m_heard;
}

void CStreamRecorder::Run()
{
    constexpr int LookMs = 10;
    bool isStreaming = false;
    std::string piece;
    while (!m_isEnding) {
        if (isStreaming && piece.empty())
            piece = m_source();
        pollfd wait{m_master, POLLIN, 0};
        if (isStreaming && !piece.empty())
            wait.events |= POLLOUT;
        poll(&wait, 1, LookMs);
        if ((wait.revents & POLLIN) != 0)
            isStreaming = Listen(isStreaming);
        if (!isStreaming)
            piece.clear();
        if ((wait.revents & POLLOUT) != 0 && isStreaming) {
            const ssize_t written = write(m_master, piece.data(), piece.size());
            if (written > 0)
                piece.erase(0, static_cast<std::size_t>(written));
        }
    }
}

bool CStreamRecorder::Listen(bool isStreaming)
{
    std::array<char, 256> bytes{};
    const ssize_t count = read(m_master, bytes.data(), bytes.size());
    if (count <= 0)
        return isStreaming;
    const std::string_view heard(bytes.data(), static_cast<std::size_t>(count));
    const std::lock_guard guard(m_lock);
    m_heard += heard;
    for (const char c : heard)
        isStreaming = c == 'x' || (isStreaming && c != '#');
    return isStreaming;
}

} // namespace skeldon::test
