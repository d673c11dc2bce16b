#pragma once

#include "base/platform/Descriptor.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

namespace skeldon {

/// The recorder's end of a raw pseudo terminal. While it lives the host may open and close its own
/// end as it likes.
class CPseudoTerminal
{
public:
    struct Transfer
    {
        std::size_t count = 0; ///< 0 without an error: nothing can move now
        std::error_code error;
    };

    /// Null on a failure, with the system's reason in `error`.
    [[nodiscard]] static std::unique_ptr<CPseudoTerminal> Open(std::error_code& error);

    /// Device of the host's end.
    [[nodiscard]] const std::string& Path() const { return m_path; }
    /// For poll(2).
    [[nodiscard]] int Descriptor() const { return m_master.Get(); }

    [[nodiscard]] Transfer Read(std::span<char> buffer);
    [[nodiscard]] Transfer Write(std::string_view bytes);
    /// Waits until the host has read what was written, for a second at most: closing this end takes
    /// the rest away.
    void WaitUntilRead();
    /// What a port does when its last user closes it: bytes nobody has read are gone, and a host
    /// that died while it had the port to itself does not keep others out.
    void ResetAfterClose();

private:
    CPseudoTerminal(CDescriptor master, CDescriptor slave, std::string path);

    CDescriptor m_master;
    /// Never read: with it open, a host that closes its end hangs nothing up.
    CDescriptor m_slave;
    std::string m_path;
};

} // namespace skeldon
