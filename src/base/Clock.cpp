#include "base/Clock.h"

#include <chrono>
#include <thread>

namespace skeldon {

std::uint32_t CSystemClock::TickMs()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint32_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

void CSystemClock::SleepMs(std::uint32_t milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

CalendarSeconds CSystemClock::Now()
{
    return skeldon::Now();
}

} // namespace skeldon
