#pragma once

#include "korva-simulator/Fault.h"

#include <string>
#include <string_view>
#include <variant>

namespace skeldon {

enum class ControlKind
{
    Nothing, ///< an empty line or a comment
    Plug,
    Pull,
    Start,
    MagnetNear,
    MagnetAway,
    AddFault,
    ClearFaults,
    Quit,
};

/// What a line from the control FIFO asks for.
struct ControlLine
{
    ControlKind kind = ControlKind::Nothing;
    Fault fault;
};

/// Reads "pull", "plug", "start", "magnet near", "magnet away", "fault NAME[=VALUE]",
/// "clear-faults" or "quit"; on a failure the text says what is wrong.
[[nodiscard]] std::variant<ControlLine, std::string> ParseControlLine(std::string_view line);

/// Puts bytes together into lines.
class CLineCollector
{
public:
    void Append(std::string_view bytes);
    /// The next whole line into `line`, without its end; false where there is none.
    [[nodiscard]] bool Next(std::string& line);

private:
    std::string m_text;
};

} // namespace skeldon
