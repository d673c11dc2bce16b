#include "files/platform/KeptCopy.h"

#include "base/platform/Descriptor.h"

#include <array>
#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>

namespace skeldon {

namespace {

constexpr int MostKeptNames = 100;

std::filesystem::path FolderOf(const std::filesystem::path& path)
{
    const std::filesystem::path folder = path.parent_path();
    return folder.empty() ? std::filesystem::path(".") : folder;
}

/// Shares the file's blocks where the file system can, copies them else.
std::error_code CopyContents(int from, int to)
{
    if (::ioctl(to, FICLONE, from) == 0)
        return {};
    constexpr std::size_t Size = std::size_t{64} * 1024;
    std::array<char, Size> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init)
    for (;;) {
        const ssize_t count = ::read(from, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return LastSystemError();
        if (count == 0)
            return {};
        if (const std::error_code error =
                WriteAll(to, {buffer.data(), static_cast<std::size_t>(count)}))
            return error;
    }
}

/// A file without a name, or with a passing one where the file system knows no such files.
struct UnnamedFile
{
    CDescriptor descriptor;
    std::string passingName; ///< empty for a file without a name
};

std::error_code MakeUnnamedFile(const std::filesystem::path& path, UnnamedFile& file)
{
    file.descriptor =
        CDescriptor(::open(FolderOf(path).c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600));
    if (file.descriptor.IsOpen())
        return {};
    std::string name = path.native() + ".XXXXXX";
    file.descriptor = CDescriptor(::mkostemp(name.data(), O_CLOEXEC));
    if (!file.descriptor.IsOpen())
        return LastSystemError();
    file.passingName = name;
    return {};
}

/// Gives the file a name that nothing has yet.
std::error_code GiveName(const UnnamedFile& file, const std::filesystem::path& name)
{
    const std::string source = file.passingName.empty()
                                   ? "/proc/self/fd/" + std::to_string(file.descriptor.Get())
                                   : file.passingName;
    if (::linkat(AT_FDCWD, source.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0)
        return {};
    const std::error_code error = LastSystemError();
    // The file systems of memory sticks know no second name for a file, and so no unnamed ones.
    const bool knowsLinks =
        error != std::errc::operation_not_permitted && error != std::errc::operation_not_supported;
    if (knowsLinks || file.passingName.empty())
        return error;
    return ::renameat2(AT_FDCWD, source.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE) == 0
               ? std::error_code{}
               : LastSystemError();
}

std::error_code GiveFreeName(const UnnamedFile& file, const std::filesystem::path& path)
{
    std::error_code error;
    for (int attempt = 0; attempt < MostKeptNames; ++attempt) {
        error = GiveName(file, KeptName(path, attempt));
        if (error != std::errc::file_exists)
            break;
    }
    return error;
}

std::error_code FillCopy(int source, int copy)
{
    struct stat status
    {};
    if (::fstat(source, &status) != 0)
        return LastSystemError();
    if (const std::error_code error = CopyContents(source, copy))
        return error;
    // To whom the copy belongs is best effort, since only root may give files away. But it must not
    // be readable by more people than the file: where the group can not be kept, by no group.
    mode_t mode = status.st_mode & 07777;
    if (::fchown(copy, status.st_uid, status.st_gid) != 0 &&
        ::fchown(copy, static_cast<uid_t>(-1), status.st_gid) != 0)
        mode &= ~static_cast<mode_t>(S_IRWXG);
    if (::fchmod(copy, mode) != 0)
        return LastSystemError();
    return ::fsync(copy) == 0 ? std::error_code{} : LastSystemError();
}

} // namespace

std::filesystem::path KeptName(const std::filesystem::path& path, int attempt)
{
    std::filesystem::path name = path;
    name += attempt == 0 ? std::string(".bak") : ".bak" + std::to_string(attempt);
    return name;
}

bool IsKeptCopy(const std::filesystem::path& file, const std::filesystem::path& path)
{
    std::error_code ignored;
    for (int attempt = 0; attempt < MostKeptNames; ++attempt) {
        if (std::filesystem::equivalent(file, KeptName(path, attempt), ignored))
            return true;
    }
    return false;
}

void DropKeptCopies(const std::filesystem::path& path)
{
    int count = 0;
    struct stat status
    {};
    while (count < MostKeptNames && ::lstat(KeptName(path, count).c_str(), &status) == 0)
        ++count;
    while (count-- > 0)
        ::unlink(KeptName(path, count).c_str());
}

std::error_code SyncFolderOf(const std::filesystem::path& path)
{
    const CDescriptor folder(::open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.IsOpen())
        return LastSystemError();
    // Some file systems do not know this for folders; they have no way to be asked for more.
    if (::fsync(folder.Get()) != 0 && errno != EINVAL && errno != EROFS)
        return LastSystemError();
    return {};
}

std::error_code KeepCopy(const std::filesystem::path& path)
{
    const CDescriptor source(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!source.IsOpen())
        return LastSystemError();
    UnnamedFile copy;
    if (const std::error_code error = MakeUnnamedFile(path, copy))
        return error;
    std::error_code error = FillCopy(source.Get(), copy.descriptor.Get());
    if (!error)
        error = GiveFreeName(copy, path);
    if (!copy.passingName.empty())
        ::unlink(copy.passingName.c_str());
    if (!error)
        error = SyncFolderOf(path);
    return error;
}

} // namespace skeldon
