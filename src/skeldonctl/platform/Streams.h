#pragma once

#include "files/Output.h"

#include <string>
#include <string_view>
#include <system_error>

namespace skeldon {

/// Standard output. A reader that has gone away is an error like any other.
class CStandardOutput final : public COutput
{
public:
    [[nodiscard]] std::error_code Write(std::string_view bytes) override;
};

/// Writes to standard error; what can not be written there is lost.
void WriteMessage(std::string_view text);

/// Whether someone looks at standard error.
[[nodiscard]] bool MessagesGoToTerminal();

/// A broken pipe becomes an error of the write instead of the end of the process.
void IgnoreBrokenPipes();

} // namespace skeldon
