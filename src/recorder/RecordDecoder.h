#pragma once

#include "base/CalendarTime.h"
#include "data/MeasureRecord.h"
#include "recorder/RecorderStatus.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace skeldon {

/// Most digits that a record line has: ten bytes of the newest recorders.
inline constexpr std::size_t MostLineDigits = 20;

/// The byte at digit position `position`, high digit first, as two's complement. A character above
/// "9" has 55 taken off it, any other 48; nothing is tested, and of a larger result the low eight
/// bits count. `text` must hold both digits.
[[nodiscard]] int HexByteSigned(std::string_view text, std::size_t position);

/// Turns record lines of one recorder into records.
class CRecordDecoder
{
public:
    /// The layout follows from the status report. `hasHumidity` tells whether the humidity of
    /// alpha lines is taken.
    CRecordDecoder(const RecorderStatus& status, bool hasHumidity);

    /// Digits of a complete line: 16, 18 or 20.
    [[nodiscard]] std::size_t LineDigits() const { return m_lineDigits; }
    /// Most digits that are taken as one line.
    [[nodiscard]] std::size_t MostDigits() const { return m_lineDigits + 2; }

    /// Fills `record` from one line's digits; digits that are missing count as "0". False if a
    /// time field was out of its range: it is forced into it then. The flags stay as they are.
    bool DecodeLine(std::string_view text, CMeasureRecord& record);

    enum class PlainLine
    {
        Valid,
        Invalid, ///< a time field was out of its range
        NotPlain ///< a character is no upper-case hexadecimal digit; nothing happened
    };
    /// The same from `LineDigits` characters, if all of them are digits.
    PlainLine DecodePlainLine(const char* text, CMeasureRecord& record);

private:
    /// The instant of a time stamp. A field out of its range is forced into it, and `isValid` is
    /// false then.
    [[nodiscard]] CalendarSeconds TimeOf(std::uint32_t stamp, bool& isValid);
    [[nodiscard]] CalendarSeconds TimeOnAnotherDay(std::uint32_t stamp, bool& isValid);

    std::size_t m_lineDigits;
    int m_year;
    bool m_oldest;
    bool m_alpha;
    bool m_hasHumidity;
    std::array<double, 256> m_axis{}; ///< G of each axis byte
    CLocalCalendar m_calendar;
    std::uint32_t m_dayBits;        ///< month and day in the stamps of the day known
    CalendarSeconds m_dayBegin = 0; ///< the start of that day
};

} // namespace skeldon
