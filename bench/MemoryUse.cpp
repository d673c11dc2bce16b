#include "MemoryUse.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/wait.h>
#include <unistd.h>

namespace skeldon::bench {

namespace {

/// A value of /proc/self/status in bytes.
std::size_t StatusValue(const char* key)
{
    std::FILE* const file = std::fopen("/proc/self/status", "r");
    char line[256];
    std::size_t kilobytes = 0;
    while (file != nullptr && std::fgets(line, sizeof line, file) != nullptr) {
        if (std::strncmp(line, key, std::strlen(key)) == 0)
            kilobytes = std::strtoull(line + std::strlen(key), nullptr, 10);
    }
    if (file != nullptr)
        std::fclose(file);
    return kilobytes * 1024;
}

} // namespace

std::size_t PeakMemoryOf(const std::function<std::size_t()>& work)
{
    int pipe[2];
    if (::pipe(pipe) != 0)
        std::abort();
    const pid_t child = ::fork();
    if (child == 0) {
        const std::size_t before = StatusValue("VmRSS:");
        const std::size_t result = work();
        const std::size_t peak = StatusValue("VmHWM:");
        const std::size_t used = peak > before + result ? peak - before - result : 0;
        ::_exit(::write(pipe[1], &used, sizeof used) == sizeof used ? 0 : 1);
    }
    std::size_t used = 0;
    int status = 0;
    if (child < 0 || ::read(pipe[0], &used, sizeof used) != sizeof used ||
        ::waitpid(child, &status, 0) != child || status != 0)
        std::abort();
    ::close(pipe[0]);
    ::close(pipe[1]);
    return used;
}

} // namespace skeldon::bench
