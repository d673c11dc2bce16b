#include "skeldonctl/platform/Streams.h"

#include <cerrno>
#include <csignal>
#include <unistd.h>

namespace skeldon {

namespace {

std::error_code WriteAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return {errno, std::system_category()};
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return {};
}

} // namespace

std::error_code CStandardOutput::Write(std::string_view bytes)
{
    return WriteAll(STDOUT_FILENO, bytes);
}

void WriteMessage(std::string_view text)
{
    (void)WriteAll(STDERR_FILENO, text);
}

bool MessagesGoToTerminal()
{
    return ::isatty(STDERR_FILENO) == 1;
}

void IgnoreBrokenPipes()
{
    std::signal(SIGPIPE, SIG_IGN);
}

} // namespace skeldon
