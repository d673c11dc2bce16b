#pragma once

#include "skeldonctl/ExitStatus.h"

#include <filesystem>
#include <string_view>
#include <system_error>

namespace skeldon {

/// One line on standard error with the program's name in front.
void Tell(std::string_view text);

/// The same as "PATH: what". Gives `Failed`.
ExitStatus FailOn(const std::filesystem::path& path, std::string_view what);

/// The path and the system's reason. Gives `Failed`.
ExitStatus FailOn(const std::filesystem::path& path, std::error_code reason);

/// For what was written to standard output: `Done`, or `Failed` with a message. A reader that went
/// away needs no message.
ExitStatus StandardOutputDone(std::error_code error);

} // namespace skeldon
