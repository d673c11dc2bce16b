#include "korva-simulator/WirePacer.h"

#include <algorithm>

namespace skeldon {

namespace {

constexpr std::int64_t UsPerSecond = 1'000'000;
/// Bytes go in portions of that time, so that the process sleeps in between.
constexpr std::int64_t PortionUs = 4000;
/// What a host that did not read for a while may catch up with: the buffer of its driver.
constexpr std::int64_t MostBehind = 4096;

} // namespace

std::size_t CWirePacer::Allowed(std::size_t waiting, std::int64_t nowUs)
{
    if (!IsLimited())
        return waiting;
    if (waiting == 0) {
        m_isResting = true;
        return 0;
    }
    if (m_isResting) {
        m_isResting = false;
        m_startUs = nowUs;
        m_sent = 0;
    }
    const std::int64_t elapsed = nowUs - m_startUs;
    const std::int64_t due =
        elapsed / UsPerSecond * m_rate + elapsed % UsPerSecond * m_rate / UsPerSecond;
    m_sent = std::max(m_sent, due - std::max(MostBehind, m_rate / 10));
    return static_cast<std::size_t>(
        std::clamp<std::int64_t>(due - m_sent, 0, static_cast<std::int64_t>(waiting)));
}

void CWirePacer::Sent(std::size_t count)
{
    m_sent += static_cast<std::int64_t>(count);
}

std::int64_t CWirePacer::NextUs() const
{
    // The moment at which the byte behind the portion is due.
    const std::int64_t bytes = m_sent + std::max<std::int64_t>(m_rate * PortionUs / UsPerSecond, 1);
    return m_startUs + bytes / m_rate * UsPerSecond +
           (bytes % m_rate * UsPerSecond + m_rate - 1) / m_rate;
}

} // namespace skeldon
