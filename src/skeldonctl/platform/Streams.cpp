#include "skeldonctl/platform/Streams.h"

#include "base/platform/Descriptor.h"

#include <csignal>
#include <unistd.h>

namespace skeldon {

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
