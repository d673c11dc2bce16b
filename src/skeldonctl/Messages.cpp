#include "skeldonctl/Messages.h"

#include "skeldonctl/platform/Streams.h"

#include <string>

namespace skeldon {

void Tell(std::string_view text)
{
    WriteMessage("skeldonctl: " + std::string(text) + '\n');
}

ExitStatus FailOn(const std::filesystem::path& path, std::string_view what)
{
    Tell(path.string() + ": " + std::string(what));
    return ExitStatus::Failed;
}

ExitStatus FailOn(const std::filesystem::path& path, std::error_code reason)
{
    return FailOn(path, reason.message());
}

ExitStatus StandardOutputDone(std::error_code error)
{
    if (!error)
        return ExitStatus::Done;
    if (error != std::errc::broken_pipe)
        return FailOn("standard output", error);
    return ExitStatus::Failed;
}

} // namespace skeldon
