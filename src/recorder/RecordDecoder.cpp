#include "recorder/RecordDecoder.h"

#include "setup/tables/RecorderModel.h"

#include <algorithm>

namespace skeldon {

namespace {

constexpr int LargestMsec = 999;

constexpr std::size_t PairIndex(char first, char second)
{
    return std::size_t{static_cast<unsigned char>(first)} << 8 |
           std::size_t{static_cast<unsigned char>(second)};
}

/// The value of every pair of upper-case hexadecimal digits, `NoByte` for all other pairs. Of its
/// 128 KiB only the digits' few cache lines are used.
constexpr std::uint16_t NoByte = 0x8000;
constexpr std::size_t PairCount = 65536;
constexpr auto PairValues = [] {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::array<std::uint16_t, PairCount> values{};
    values.fill(NoByte);
    for (std::size_t high = 0; high < Digits.size(); ++high) {
        for (std::size_t low = 0; low < Digits.size(); ++low)
            values[PairIndex(Digits[high], Digits[low])] =
                static_cast<std::uint16_t>(high << 4 | low);
    }
    return values;
}();

unsigned DigitOf(char c)
{
    const unsigned code = static_cast<unsigned char>(c);
    return code - (code > '9' ? 55U : 48U);
}

std::uint8_t HexByte(char high, char low)
{
    return static_cast<std::uint8_t>(DigitOf(high) * 16 + DigitOf(low));
}

int Signed(std::uint8_t byte)
{
    return static_cast<std::int8_t>(byte);
}

bool IsValid(const CalendarFields& fields)
{
    const auto within = [](int value, int lowest, int highest) {
        return static_cast<unsigned>(value - lowest) <= static_cast<unsigned>(highest - lowest);
    };
    return within(fields.month, 1, 12) && within(fields.day, 1, 31) && within(fields.hour, 0, 23) &&
           within(fields.minute, 0, 59) && within(fields.second, 0, 59);
}

void ForceIntoRange(CalendarFields& fields)
{
    fields.month = std::clamp(fields.month, 1, 12);
    fields.day = std::clamp(fields.day, 1, 31);
    fields.hour = std::clamp(fields.hour, 0, 23);
    fields.minute = std::clamp(fields.minute, 0, 59);
    fields.second = std::clamp(fields.second, 0, 59);
}

/// The packed time stamp: month 4 bits, 2 unused, day 5, hour 5, minute 6, second 6, then 4 bits
/// that the layouts use differently.
inline CalendarFields UnpackTime(std::uint32_t word, int year)
{
    const auto bits = [word](unsigned shift, unsigned count) {
        return static_cast<int>(word >> shift & ((1U << count) - 1));
    };
    return {year, bits(28, 4), bits(21, 5), bits(16, 5), bits(10, 6), bits(4, 6)};
}

int LowBits(std::uint32_t word)
{
    return static_cast<int>(word & 0x0F);
}

} // namespace

int HexByteSigned(std::string_view text, std::size_t position)
{
    return Signed(HexByte(text[position], text[position + 1]));
}

CRecordDecoder::CRecordDecoder(const RecorderStatus& status, bool hasHumidity)
    : m_lineDigits(static_cast<std::size_t>(status.m_lineLength) - 2)
    , m_year(status.m_year)
    , m_oldest(!status.m_alphaFirmware && status.m_type == OldestType)
    , m_alpha(status.m_alphaFirmware)
    , m_hasHumidity(hasHumidity)
{
    // The scale of the oldest recorders is fixed at 0.1 G a count.
    for (std::size_t i = 0; i < m_axis.size(); ++i) {
        const int count = Signed(static_cast<std::uint8_t>(i));
        m_axis[i] = m_oldest ? count * 0.1 : static_cast<double>(count) / status.m_countsPerG;
    }
}

bool CRecordDecoder::DecodeLine(std::string_view text, CMeasureRecord& record)
{
    LineBytes bytes;
    for (std::size_t i = 0; i < MostLineDigits / 2; ++i) {
        const char high = 2 * i < text.size() ? text[2 * i] : '0';
        const char low = 2 * i + 1 < text.size() ? text[2 * i + 1] : '0';
        bytes.Set(i, HexByte(high, low));
    }
    return DecodeBytes(bytes, record);
}

bool CRecordDecoder::DecodePlainLine(const char* text, CMeasureRecord& record, bool& isPlain)
{
    LineBytes bytes;
    std::uint16_t all = 0;
    for (std::size_t i = 0; i < m_lineDigits / 2; ++i) {
        const std::uint16_t value = PairValues[PairIndex(text[2 * i], text[2 * i + 1])];
        all |= value;
        bytes.Set(i, static_cast<std::uint8_t>(value));
    }
    isPlain = (all & NoByte) == 0;
    return isPlain && DecodeBytes(bytes, record);
}

bool CRecordDecoder::DecodeBytes(const LineBytes& bytes, CMeasureRecord& record)
{
    return m_oldest ? DecodeOldest(bytes, record) : DecodeNewer(bytes, record);
}

/// The four low bits of the time stamp are sixteenths of a second.
bool CRecordDecoder::DecodeOldest(const LineBytes& bytes, CMeasureRecord& record)
{
    CalendarFields fields = UnpackTime(bytes.time, m_year);
    const bool valid = IsValid(fields);
    if (!valid)
        ForceIntoRange(fields);
    const int tenthMsec = LowBits(bytes.time) * 625;
    const int msec = tenthMsec / 10 + (tenthMsec % 10 > 4 ? 1 : 0);
    record.SetValues(m_calendar.ToSeconds(fields), static_cast<std::uint32_t>(msec),
                     m_axis[bytes[4]], m_axis[bytes[5]], m_axis[bytes[6]], Signed(bytes[7]), 0.0);
    return valid;
}

/// The four low bits of the time stamp are tenths of a degree. A negative reading is counted from
/// the next higher whole degree: -1 with 5 tenths is -0.5, and -1 with none is 0.
bool CRecordDecoder::DecodeNewer(const LineBytes& bytes, CMeasureRecord& record)
{
    CalendarFields fields = UnpackTime(bytes.time, m_year);
    const int msec = Signed(bytes[8]) * 10;
    const bool validTime = IsValid(fields);
    if (!validTime)
        ForceIntoRange(fields);
    const int degrees = Signed(bytes[7]);
    const int tenths = LowBits(bytes.time);
    const double temperature = degrees < 0 ? -tenths * 0.1 + (degrees + 1) : tenths * 0.1 + degrees;
    const int humidity = m_alpha && m_hasHumidity ? std::clamp(Signed(bytes[9]), 0, 100) : 0;
    // A time below zero is stored as the large number it wraps to, for the analysis to find.
    record.SetValues(m_calendar.ToSeconds(fields), static_cast<std::uint32_t>(msec),
                     m_axis[bytes[4]], m_axis[bytes[5]], m_axis[bytes[6]], temperature, humidity);
    return validTime && msec >= 0 && msec <= LargestMsec;
}

} // namespace skeldon
