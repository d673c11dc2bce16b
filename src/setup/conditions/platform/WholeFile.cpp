#include "setup/conditions/platform/WholeFile.h"

#include "base/platform/Descriptor.h"

#include <algorithm>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>

namespace skeldon {

namespace fs = std::filesystem;

namespace {

constexpr int MostLinks = 40; // as the system itself follows at most
constexpr int MostPassingNames = 100;
constexpr mode_t Permissions = 07777;
constexpr std::size_t ReadStep = std::size_t{16} * 1024;

std::error_code CheckRegular(int descriptor, struct stat& status)
{
    if (::fstat(descriptor, &status) != 0)
        return LastSystemError();
    if (S_ISDIR(status.st_mode))
        return std::make_error_code(std::errc::is_a_directory);
    if (!S_ISREG(status.st_mode))
        return std::make_error_code(std::errc::invalid_argument);
    return {};
}

/// The file that `path` leads to, through links that may end at a name that is not there yet.
std::error_code FollowLinks(fs::path& path)
{
    for (int i = 0; i < MostLinks; ++i) {
        std::error_code error;
        if (!fs::is_symlink(fs::symlink_status(path, error)))
            return {};
        const fs::path target = fs::read_symlink(path, error);
        if (error)
            return error;
        path = path.parent_path() / target;
    }
    return std::make_error_code(std::errc::too_many_symbolic_link_levels);
}

/// Makes a file of a new name in `folder`. The name ends in nothing that any list shows.
CDescriptor MakePassingFile(const fs::path& folder, fs::path& name)
{
    for (int i = 0; i < MostPassingNames; ++i) {
        name = folder / (".skeldon-" + std::to_string(::getpid()) + "-" + std::to_string(i));
        CDescriptor file(::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (file.IsOpen() || errno != EEXIST)
            return file;
    }
    return CDescriptor();
}

/// Gives the new file what the old one was allowed, before there is anything in it to read. To
/// whom it belongs is best effort: only root may give files away.
std::error_code TakeOver(int descriptor, const struct stat& old)
{
    [[maybe_unused]] const int ignored = ::fchown(descriptor, old.st_uid, old.st_gid);
    return ::fchmod(descriptor, old.st_mode & Permissions) == 0 ? std::error_code{}
                                                                : LastSystemError();
}

std::error_code FillFile(CDescriptor& file, const struct stat* old, std::string_view bytes)
{
    if (old != nullptr) {
        if (const std::error_code error = TakeOver(file.Get(), *old))
            return error;
    }
    if (const std::error_code error = WriteAll(file.Get(), bytes))
        return error;
    return ::fsync(file.Get()) == 0 ? file.Close() : LastSystemError();
}

/// The rename is done; that a folder can not be synced on some file systems changes nothing.
void SyncFolder(const fs::path& folder)
{
    const CDescriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.IsOpen()) {
        [[maybe_unused]] const int ignored = ::fsync(opened.Get());
    }
}

} // namespace

std::error_code ReadWholeFile(const fs::path& path, std::size_t limit, std::string& bytes)
{
    const CDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.IsOpen())
        return LastSystemError();
    struct stat status
    {};
    if (const std::error_code error = CheckRegular(file.Get(), status))
        return error;
    // What the system tells as size need not be so: the file may grow, or be made as it is read.
    std::string read;
    std::size_t size = 0;
    while (size < limit) {
        read.resize(std::min(limit, size + ReadStep));
        const ssize_t count = ::read(file.Get(), read.data() + size, read.size() - size);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return LastSystemError();
        if (count == 0)
            break;
        size += static_cast<std::size_t>(count);
    }
    read.resize(size);
    bytes = std::move(read);
    return {};
}

std::error_code ReplaceWholeFile(const fs::path& path, std::string_view bytes)
{
    fs::path target = path;
    if (const std::error_code error = FollowLinks(target))
        return error;
    struct stat old
    {};
    const CDescriptor existing(::open(target.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC));
    if (!existing.IsOpen() && errno != ENOENT)
        return LastSystemError();
    if (existing.IsOpen()) {
        if (const std::error_code error = CheckRegular(existing.Get(), old))
            return error;
    }
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    fs::path passing;
    CDescriptor file = MakePassingFile(folder, passing);
    if (!file.IsOpen())
        return LastSystemError();
    std::error_code error = FillFile(file, existing.IsOpen() ? &old : nullptr, bytes);
    if (!error && ::rename(passing.c_str(), target.c_str()) != 0)
        error = LastSystemError();
    if (error)
        ::unlink(passing.c_str());
    else
        SyncFolder(folder);
    return error;
}

std::error_code DeleteFile(const fs::path& path)
{
    return ::unlink(path.c_str()) == 0 || errno == ENOENT ? std::error_code{} : LastSystemError();
}

} // namespace skeldon
