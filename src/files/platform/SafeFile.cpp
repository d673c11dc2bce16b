#include "files/platform/SafeFile.h"

#include "files/platform/KeptCopy.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace skeldon {

std::error_code CSafeFile::Open(const std::filesystem::path& path)
{
    m_path = path;
    // Not emptied by opening it: what it holds is kept first. Without O_NONBLOCK a pipe without a
    // reader would hold the program here.
    m_descriptor = CDescriptor(
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666));
    if (!m_descriptor.IsOpen())
        return LastSystemError();
    struct stat status
    {};
    if (::fstat(m_descriptor.Get(), &status) != 0)
        return LastSystemError();
    m_isRegular = S_ISREG(status.st_mode);
    if (!m_isRegular) {
        ::fcntl(m_descriptor.Get(), F_SETFL, ::fcntl(m_descriptor.Get(), F_GETFL) & ~O_NONBLOCK);
        return {};
    }
    return status.st_size > 0 ? Keep() : std::error_code{};
}

std::error_code CSafeFile::Keep()
{
    if (const std::error_code error = KeepCopy(m_path))
        return error;
    return ::ftruncate(m_descriptor.Get(), 0) == 0 ? std::error_code{} : LastSystemError();
}

std::error_code CSafeFile::Write(std::string_view bytes)
{
    return WriteAll(m_descriptor.Get(), bytes);
}

std::error_code CSafeFile::Commit()
{
    if (!m_isRegular)
        return m_descriptor.Close();
    if (::fsync(m_descriptor.Get()) != 0)
        return LastSystemError();
    if (const std::error_code error = m_descriptor.Close())
        return error;
    if (const std::error_code error = SyncFolderOf(m_path))
        return error;
    // The new contents are safe now, so neither this save's copy nor those of saves that failed
    // before are needed; that they can not be removed is no failure of the save.
    DropKeptCopies(m_path);
    return {};
}

} // namespace skeldon
