#pragma once

#include "base/CalendarTime.h"
#include "data/RecordFlags.h"

#include <cmath>
#include <cstdint>
#include <type_traits>

namespace skeldon {

/// One measured sample. A plain value: it is held by the million in one array.
class CMeasureRecord
{
public:
    /// A record of the present time with all values 0.
    CMeasureRecord()
        : CMeasureRecord(Now())
    {}
    /// The same for a given present time, so that many records cost one look at the clock. The key
    /// stays 0 until values or flags are set.
    explicit CMeasureRecord(CalendarSeconds time)
        : m_time(time)
    {}

    /// Stores a sample: axes in G, temperature in degrees Celsius, humidity in percent. `msec` may
    /// be above 999 here; the analysis finds that. The flags stay as they are.
    void SetValues(CalendarSeconds time, std::uint32_t msec, double x, double y, double z,
                   double temperature, double humidity)
    {
        m_time = time;
        m_msec = msec;
        m_x = x;
        m_y = y;
        m_z = z;
        m_temperature = temperature;
        m_humidity = humidity;
        m_resultant = std::sqrt(x * x + y * y + z * z);
        m_checkKey = CheckKey();
    }

    /// Replaces the whole flag word.
    void SetFlags(std::uint16_t flags)
    {
        m_flags = flags;
        m_checkKey = CheckKey();
    }

    [[nodiscard]] bool HasFlag(std::uint16_t mask) const { return (m_flags & mask) != 0; }

    /// The instant in milliseconds since the epoch.
    [[nodiscard]] std::int64_t TimeMs() const { return m_time * 1000 + m_msec; }

    /// What the present time, milliseconds and flags contribute to the signature.
    [[nodiscard]] std::int64_t CheckKey() const
    {
        return static_cast<std::int64_t>((static_cast<std::uint64_t>(TimeMs()) + 1) *
                                         (std::uint64_t{m_flags} + 1));
    }

    // Parts of the local date and time; the month is 1..12.
    [[nodiscard]] int GetYear() const { return ToLocalFields(m_time).year; }
    [[nodiscard]] int GetMonth() const { return ToLocalFields(m_time).month; }
    [[nodiscard]] int GetDay() const { return ToLocalFields(m_time).day; }
    [[nodiscard]] int GetHour() const { return ToLocalFields(m_time).hour; }
    [[nodiscard]] int GetMinute() const { return ToLocalFields(m_time).minute; }
    [[nodiscard]] int GetSecond() const { return ToLocalFields(m_time).second; }

    CalendarSeconds m_time;
    std::uint32_t m_msec = 0;
    std::uint16_t m_flags = 0; ///< see RecordFlag
    double m_x = 0.0;
    double m_y = 0.0;
    double m_z = 0.0;
    double m_temperature = 0.0;
    double m_humidity = 0.0;
    double m_resultant = 0.0; ///< length of the acceleration vector in G
    std::int64_t m_checkKey = 0;
};

static_assert(std::is_trivially_copyable_v<CMeasureRecord>);
static_assert(sizeof(CMeasureRecord) <= 80, "a data set costs at most 80 bytes a line");

} // namespace skeldon
