#include "korva-simulator/platform/StateFile.h"

#include "base/platform/Descriptor.h"

#include <vector>

#include <fcntl.h>

namespace skeldon {

namespace fs = std::filesystem;

namespace {

constexpr mode_t NewFileMode = 0666;

} // namespace

std::string ReadWholeFile(const fs::path& path, std::error_code& error)
{
    error.clear();
    const CDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file.IsOpen()) {
        error = LastSystemError();
        return {};
    }
    constexpr std::size_t BlockSize = 1U << 16U;
    std::string text;
    std::vector<char> block(BlockSize);
    for (;;) {
        const ssize_t count = ::read(file.Get(), block.data(), block.size());
        if (count > 0) {
            text.append(block.data(), static_cast<std::size_t>(count));
        } else if (count == 0) {
            return text;
        } else if (errno != EINTR) {
            error = LastSystemError();
            return {};
        }
    }
}

std::error_code WriteWholeFile(const fs::path& path, std::string_view text)
{
    fs::path fresh = path;
    fresh += "." + std::to_string(::getpid()) + ".new";
    std::error_code error;
    {
        const CDescriptor file(
            ::open(fresh.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, NewFileMode));
        if (!file.IsOpen())
            return LastSystemError();
        error = WriteAll(file.Get(), text);
        if (!error && ::fsync(file.Get()) != 0)
            error = LastSystemError();
    }
    if (!error)
        fs::rename(fresh, path, error);
    if (error) {
        std::error_code ignored;
        fs::remove(fresh, ignored);
    }
    return error;
}

} // namespace skeldon
