#include "korva-simulator/platform/ControlFifo.h"

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace skeldon {

namespace {

constexpr mode_t FifoMode = 0600;

} // namespace

CControlFifo::CControlFifo(const std::filesystem::path& path, std::error_code& error)
{
    error.clear();
    const bool isMade = ::mkfifo(path.c_str(), FifoMode) == 0;
    if (!isMade && errno != EEXIST) {
        error = LastSystemError();
        return;
    }
    if (isMade)
        m_made = path;
    // Open for writing too, so that a writer who closes it ends nothing.
    CDescriptor descriptor(::open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC));
    struct stat status = {};
    if (!descriptor.IsOpen() || ::fstat(descriptor.Get(), &status) != 0)
        error = LastSystemError();
    else if (!S_ISFIFO(status.st_mode))
        error = std::make_error_code(std::errc::file_exists);
    else
        m_descriptor = std::move(descriptor);
}

CControlFifo::~CControlFifo()
{
    std::error_code ignored;
    if (!m_made.empty())
        std::filesystem::remove(m_made, ignored);
}

void CControlFifo::Read()
{
    if (!m_descriptor.IsOpen())
        return;
    std::array<char, 4096> buffer{};
    const ssize_t count = ::read(m_descriptor.Get(), buffer.data(), buffer.size());
    if (count > 0)
        m_lines.Append({buffer.data(), static_cast<std::size_t>(count)});
}

} // namespace skeldon
