#pragma once

#include "base/platform/Descriptor.h"

#include <string>

namespace skeldon {

/// Follows how often a device is open: what the driver of a cable knows, and a pseudo terminal
/// tells nobody.
class CHostWatch
{
public:
    /// Counts openings of `path` from now on.
    explicit CHostWatch(const std::string& path);

    /// For poll(2); below 0 where the system can not tell.
    [[nodiscard]] int Descriptor() const { return m_descriptor.Get(); }
    /// Takes note of what has happened. Gives whether the last user has closed the device
    /// meanwhile, even if there is another by now.
    [[nodiscard]] bool Update();
    /// Whether somebody has the device open; always, where the system can not tell.
    [[nodiscard]] bool IsOpen() const { return !m_descriptor.IsOpen() || m_users > 0; }

private:
    CDescriptor m_descriptor;
    int m_users = 0;
};

} // namespace skeldon
