#pragma once

#include "base/CalendarTime.h"

#include <cstdint>

namespace skeldon {

/// The time that an operation goes by, given in from outside so that a test need not wait.
class CClock
{
public:
    virtual ~CClock() = default;

    /// Milliseconds since some start; runs over every 49.7 days, so only differences count.
    [[nodiscard]] virtual std::uint32_t TickMs() = 0;
    virtual void SleepMs(std::uint32_t milliseconds) = 0;
    /// The present time by the PC's clock.
    [[nodiscard]] virtual CalendarSeconds Now() = 0;
};

/// The machine's own clock. May be used by several threads.
class CSystemClock final : public CClock
{
public:
    [[nodiscard]] std::uint32_t TickMs() override;
    void SleepMs(std::uint32_t milliseconds) override;
    [[nodiscard]] CalendarSeconds Now() override;
};

} // namespace skeldon
