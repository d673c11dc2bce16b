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

    /// The same from `LineDigits` characters, but only if all are upper-case hexadecimal digits:
    /// else nothing happens and `isPlain` is false.
    bool DecodePlainLine(const char* text, CMeasureRecord& record, bool& isPlain);

private:
    /// A line's bytes. The time stamp is put together while they are read: stored one by one and
    /// loaded as a word it would hold up the processor on every line.
    struct LineBytes
    {
        void Set(std::size_t place, std::uint8_t value)
        {
            if (place < TimeBytes)
                time = time << 8 | value;
            else
                values[place - TimeBytes] = value;
        }
        /// The byte at `place`, behind the time stamp.
        [[nodiscard]] std::uint8_t operator[](std::size_t place) const
        {
            return values[place - TimeBytes];
        }

        static constexpr std::size_t TimeBytes = 4;
        std::uint32_t time = 0;
        std::array<std::uint8_t, MostLineDigits / 2 - TimeBytes> values{};
    };

    bool DecodeBytes(const LineBytes& bytes, CMeasureRecord& record);
    bool DecodeOldest(const LineBytes& bytes, CMeasureRecord& record);
    bool DecodeNewer(const LineBytes& bytes, CMeasureRecord& record);

    std::size_t m_lineDigits;
    int m_year;
    bool m_oldest;
    bool m_alpha;
    bool m_hasHumidity;
    std::array<double, 256> m_axis{}; ///< G of each axis byte
    CLocalCalendar m_calendar;
};

} // namespace skeldon
