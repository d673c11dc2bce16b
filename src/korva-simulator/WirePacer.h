#pragma once

#include <cstddef>
#include <cstdint>

namespace skeldon {

/// Lets bytes go no faster than a line of a given rate would. Times are microseconds of the real
/// world.
class CWirePacer
{
public:
    /// Bytes a second of the cable's 131072 baud, ten bits to the byte.
    static constexpr std::int64_t LineRate = 13107;

    /// 0 bytes a second is no limit.
    explicit CWirePacer(std::int64_t bytesPerSecond)
        : m_rate(bytesPerSecond)
    {}

    [[nodiscard]] bool IsLimited() const { return m_rate > 0; }
    /// How many of `waiting` bytes may go now. With none waiting the line rests, and what comes
    /// next starts from there.
    [[nodiscard]] std::size_t Allowed(std::size_t waiting, std::int64_t nowUs);
    /// So many have gone.
    void Sent(std::size_t count);
    /// When it is worth asking again, with bytes waiting.
    [[nodiscard]] std::int64_t NextUs() const;

private:
    std::int64_t m_rate;
    std::int64_t m_startUs = 0; ///< when the present run of bytes began
    std::int64_t m_sent = 0;    ///< bytes of that run
    bool m_isResting = true;
};

} // namespace skeldon
