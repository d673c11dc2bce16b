#pragma once

#include "recorder/CableFinder.h"

#include <memory>

struct udev;

namespace skeldon {

/// Asks the system for the recorder's own cable: a USB serial adapter of vendor 1D7C, product 4E15
/// and the identity 00000002B, that is serial number 00000002 and its second port, or a serial
/// number that reads so as a whole. A cable of another identity is never found.
class CUsbCableFinder final : public CCableFinder
{
public:
    CUsbCableFinder();

    /// The device path of the cable's port; nothing also where the system has no device service.
    [[nodiscard]] std::optional<std::string> FindPort() override;

private:
    struct Release
    {
        void operator()(udev* service) const;
    };

    std::unique_ptr<udev, Release> m_udev;
};

} // namespace skeldon
