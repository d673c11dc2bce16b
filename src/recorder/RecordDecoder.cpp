#include "recorder/RecordDecoder.h"

#include "setup/tables/RecorderModel.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace skeldon {

namespace {

constexpr unsigned LargestMsec = 999;

/// Two characters as the processor loads them.
std::uint16_t LoadPair(const char* text)
{
    std::uint16_t pair = 0;
    std::memcpy(&pair, text, sizeof pair);
    return pair;
}

constexpr std::size_t PairIndex(char first, char second)
{
    const std::size_t one = static_cast<unsigned char>(first);
    const std::size_t two = static_cast<unsigned char>(second);
    return std::endian::native == std::endian::little ? two << 8 | one : one << 8 | two;
}

/// The value of every pair of upper-case hexadecimal digits, `NoByte` for all other pairs. Of its
/// 128 KiB only the digits' few cache lines are used.
constexpr std::uint16_t NoByte = 0x8000;
constexpr std::size_t PairCount = 65536;
constexpr std::string_view Digits = "0123456789ABCDEF";
constexpr auto PairValues = [] {
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

int Signed(unsigned byte)
{
    return static_cast<std::int8_t>(byte);
}

bool IsValid(const CalendarFields& fields)
{
    const auto within = [](int value, int lowest, int highest) {
        return value >= lowest && value <= highest;
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

// The packed time stamp: month 4 bits, 2 unused, day 5, hour 5, minute 6, second 6, then 4 bits
// that the layouts use differently.
constexpr std::uint32_t MonthAndDay = 0xF3E00000;

CalendarFields UnpackTime(std::uint32_t stamp, int year)
{
    const auto bits = [stamp](unsigned shift, unsigned count) {
        return static_cast<int>(stamp >> shift & ((1U << count) - 1));
    };
    return {year, bits(28, 4), bits(21, 5), bits(16, 5), bits(10, 6), bits(4, 6)};
}

unsigned LowBits(std::uint32_t stamp)
{
    return stamp & 0x0F;
}

/// What the two layouts hold in different ways.
struct Reading
{
    std::uint32_t msec;
    double temperature;
    int humidity;
    bool validMsec;
};

/// The four low bits of the time stamp are sixteenths of a second.
Reading ReadOldest(std::uint32_t stamp, unsigned degrees)
{
    const unsigned tenthMsec = LowBits(stamp) * 625;
    const unsigned msec = tenthMsec / 10 + (tenthMsec % 10 > 4 ? 1 : 0);
    return {msec, static_cast<double>(Signed(degrees)), 0, true};
}

/// The four low bits of the time stamp are tenths of a degree. A negative reading is counted from
/// the next higher whole degree: -1 with 5 tenths is -0.5, and -1 with none is 0.
Reading ReadNewer(std::uint32_t stamp, unsigned degrees, unsigned hundredths, unsigned humidity)
{
    const int negative = Signed(degrees) < 0 ? 1 : 0;
    const int tenths = static_cast<int>(LowBits(stamp)) * (1 - 2 * negative);
    // A time below zero wraps to a large number, for the analysis to find.
    const auto msec = static_cast<std::uint32_t>(Signed(hundredths) * 10);
    return {msec, tenths * 0.1 + (Signed(degrees) + negative), std::clamp(Signed(humidity), 0, 100),
            msec <= LargestMsec};
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
    , m_hasHumidity(status.m_alphaFirmware && hasHumidity)
    , m_dayBits(~MonthAndDay)
{
    // The scale of the oldest recorders is fixed at 0.1 G a count.
    for (unsigned i = 0; i < m_axis.size(); ++i)
        m_axis[i] =
            m_oldest ? Signed(i) * 0.1 : static_cast<double>(Signed(i)) / status.m_countsPerG;
}

bool CRecordDecoder::DecodeLine(std::string_view text, CMeasureRecord& record)
{
    std::array<char, MostLineDigits> plain{};
    plain.fill('0');
    for (std::size_t i = 0; i < plain.size() && i < text.size(); i += 2) {
        const std::uint8_t byte = HexByte(text[i], i + 1 < text.size() ? text[i + 1] : '0');
        plain[i] = Digits[byte >> 4];
        plain[i + 1] = Digits[byte & 0x0F];
    }
    return DecodePlainLine(plain.data(), record) == PlainLine::Valid;
}

CRecordDecoder::PlainLine CRecordDecoder::DecodePlainLine(const char* text, CMeasureRecord& record)
{
    const auto byte = [text](std::size_t place) {
        return std::uint32_t{PairValues[LoadPair(text + 2 * place)]};
    };
    const std::uint32_t x = byte(4);
    const std::uint32_t y = byte(5);
    const std::uint32_t z = byte(6);
    const std::uint32_t degrees = byte(7);
    const std::uint32_t hundredths = m_oldest ? 0 : byte(8);
    const std::uint32_t humidity = m_alpha ? byte(9) : 0;
    if (((byte(0) | byte(1) | byte(2) | byte(3) | x | y | z | degrees | hundredths | humidity) &
         NoByte) != 0)
        return PlainLine::NotPlain;
    // Put together in a register: bytes that are stored one by one and loaded as a word hold up the
    // processor.
    const std::uint32_t stamp = byte(0) << 24 | byte(1) << 16 | byte(2) << 8 | byte(3);
    bool validTime = false;
    const CalendarSeconds time = TimeOf(stamp, validTime);
    const Reading reading =
        m_oldest ? ReadOldest(stamp, degrees)
                 : ReadNewer(stamp, degrees, hundredths, m_hasHumidity ? humidity : 0);
    record.SetValues(time, reading.msec, m_axis[x], m_axis[y], m_axis[z], reading.temperature,
                     reading.humidity);
    return validTime && reading.validMsec ? PlainLine::Valid : PlainLine::Invalid;
}

inline CalendarSeconds CRecordDecoder::TimeOf(std::uint32_t stamp, bool& isValid)
{
    const CalendarSeconds hour = stamp >> 16 & 0x1F;
    const CalendarSeconds minute = stamp >> 10 & 0x3F;
    const CalendarSeconds second = stamp >> 4 & 0x3F;
    isValid = hour < 24 && minute < 60 && second < 60;
    if (!isValid || (stamp & MonthAndDay) != m_dayBits)
        return TimeOnAnotherDay(stamp, isValid);
    return m_dayBegin + (hour * 60 + minute) * 60 + second;
}

CalendarSeconds CRecordDecoder::TimeOnAnotherDay(std::uint32_t stamp, bool& isValid)
{
    CalendarFields fields = UnpackTime(stamp, m_year);
    isValid = IsValid(fields);
    if (!isValid)
        ForceIntoRange(fields);
    const CalendarSeconds time = m_calendar.ToSeconds(fields);
    const LocalDay& day = m_calendar.Day(time);
    // A day on which the clock is changed is asked for each time.
    if (isValid && day.Holds(time)) {
        m_dayBits = stamp & MonthAndDay;
        m_dayBegin = day.begin;
    }
    return time;
}

} // namespace skeldon
