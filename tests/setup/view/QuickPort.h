#pragma once

#include "base/Clock.h"
#include "recorder/SerialPort.h"

#include <atomic>
#include <optional>
#include <string>

namespace skeldon::test {

/// A clock whose silence passes faster than the real one's, and whose present time can be set.
class CQuickClock final : public CClock
{
public:
    [[nodiscard]] std::uint32_t TickMs() override;
    void SleepMs(std::uint32_t milliseconds) override;
    [[nodiscard]] CalendarSeconds Now() override;

    std::atomic<std::uint32_t> m_speed = 1;
    std::atomic<CalendarSeconds> m_now = 0; ///< 0 for the real time
};

/// What a recorder's bytes are changed to on their way.
struct WireChange
{
    std::string from;
    std::string to;
};

/// Opens the machine's own ports, which wait for a reply as they do, but hardly for more once there
/// was one. `change` must outlive the ports.
[[nodiscard]] PortOpener QuickPortOpener(const std::optional<WireChange>& change);

} // namespace skeldon::test
