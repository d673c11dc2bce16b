#include "files/platform/InputFile.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace skeldon {

std::error_code CInputFile::Open(const std::filesystem::path& path)
{
    // Without O_NONBLOCK a pipe without a writer would hold the program here.
    m_descriptor = CDescriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!m_descriptor.IsOpen())
        return LastSystemError();
    struct stat status
    {};
    if (::fstat(m_descriptor.Get(), &status) != 0)
        return LastSystemError();
    if (S_ISDIR(status.st_mode))
        return std::make_error_code(std::errc::is_a_directory);
    if (!S_ISREG(status.st_mode))
        return std::make_error_code(std::errc::not_supported);
    m_size = static_cast<std::uint64_t>(status.st_size);
    ::posix_fadvise(m_descriptor.Get(), 0, 0, POSIX_FADV_SEQUENTIAL);
    return {};
}

std::error_code CInputFile::ReadAt(std::uint64_t offset, char* buffer, std::size_t size,
                                   std::size_t& got) const
{
    got = 0;
    while (got < size) {
        const ssize_t count =
            ::pread(m_descriptor.Get(), buffer + got, size - got, static_cast<off_t>(offset + got));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return LastSystemError();
        if (count == 0)
            break;
        got += static_cast<std::size_t>(count);
    }
    return {};
}

} // namespace skeldon
