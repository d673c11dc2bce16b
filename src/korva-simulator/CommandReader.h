#pragma once

#include <optional>
#include <string>

namespace skeldon {

/// Finds the commands in what the host sends. They have no terminator: each is complete with its
/// last character, and what belongs to none is dropped.
class CCommandReader
{
public:
    /// Takes the next byte; gives the command that it completes.
    [[nodiscard]] std::optional<std::string> Feed(char byte);
    /// Forgets a command in progress.
    void Reset() { m_partial.clear(); }

private:
    std::string m_partial;
};

} // namespace skeldon
