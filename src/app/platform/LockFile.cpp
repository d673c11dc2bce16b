#include "app/platform/LockFile.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace skeldon {

std::filesystem::path RuntimeFolder()
{
    const char* const given = std::getenv("XDG_RUNTIME_DIR");
    if (given != nullptr && *given == '/')
        return given;
    // Without a session of its own: a folder that is this user's alone.
    std::filesystem::path folder = "/tmp/skeldon-" + std::to_string(getuid());
    mkdir(folder.c_str(), S_IRWXU);
    return folder;
}

bool CLockFile::Open(const std::string& name)
{
    Close();
    const std::filesystem::path path = RuntimeFolder() / name;
    m_descriptor = CDescriptor(
        open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR));
    return m_descriptor.IsOpen();
}

CLockFile::Outcome CLockFile::TryLock()
{
    if (!m_descriptor.IsOpen())
        return Outcome::Failed;
    if (flock(m_descriptor.Get(), LOCK_EX | LOCK_NB) == 0)
        return Outcome::Taken;
    return errno == EWOULDBLOCK ? Outcome::HeldElsewhere : Outcome::Failed;
}

void CLockFile::Unlock()
{
    if (m_descriptor.IsOpen())
        flock(m_descriptor.Get(), LOCK_UN);
}

void CLockFile::Close()
{
    m_descriptor = CDescriptor();
}

} // namespace skeldon
