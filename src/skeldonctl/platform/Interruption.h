#pragma once

#include <csignal>

namespace skeldon {

/// While it lives, the first interruption from the keyboard (Ctrl+C) is noted instead of ending
/// the process. Threads that are to leave it alone must be started after it is made.
class CInterruption
{
public:
    CInterruption();
    ~CInterruption();
    CInterruption(const CInterruption&) = delete;
    CInterruption& operator=(const CInterruption&) = delete;

    /// Whether it came up to now; the next one ends the process again.
    [[nodiscard]] bool Came();

private:
    sigset_t m_before{};
    bool m_came = false;
};

} // namespace skeldon
