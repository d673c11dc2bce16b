#include "korva-simulator/LineFormat.h"

#include <array>

namespace skeldon {

namespace {

constexpr std::string_view Digits = "0123456789ABCDEF";
constexpr std::size_t StampDigits = 8;

/// Bytes of the longest layout.
using LineBytes = std::array<unsigned, 10>;

unsigned Byte(int value)
{
    return static_cast<unsigned>(value) & 0xFFU;
}

/// The time stamp in its packed bits; `low` is the free half byte behind the seconds.
void PackTime(LineBytes& bytes, RecorderSeconds seconds, unsigned low)
{
    const CalendarFields fields = ToRecorderFields(seconds);
    const unsigned day = Byte(fields.day);
    const unsigned second = Byte(fields.second);
    bytes[0] = Byte(fields.month) << 4U | day >> 3U;
    bytes[1] = (day & 7U) << 5U | Byte(fields.hour);
    bytes[2] = Byte(fields.minute) << 2U | second >> 4U;
    bytes[3] = (second & 15U) << 4U | low;
}

/// Whole degrees and tenths; a negative reading is counted from the next lower whole degree, so
/// that -0.5 is -1 and 5 tenths.
struct Degrees
{
    int whole;
    unsigned tenths;
};

Degrees SplitDegrees(int tenths)
{
    if (tenths >= 0)
        return {tenths / 10, static_cast<unsigned>(tenths % 10)};
    return {-(-tenths / 10) - 1, static_cast<unsigned>(-tenths % 10)};
}

int RoundedDegrees(int tenths)
{
    return tenths >= 0 ? (tenths + 5) / 10 : -((5 - tenths) / 10);
}

} // namespace

LineKind LineKindOf(int type, bool alpha)
{
    if (alpha)
        return LineKind::Alpha;
    return type == 0 ? LineKind::Oldest : LineKind::Standard;
}

std::size_t LineDigits(LineKind kind)
{
    switch (kind) {
    case LineKind::Oldest:
        return 16;
    case LineKind::Standard:
        return 18;
    case LineKind::Alpha:
        break;
    }
    return 20;
}

void AppendLine(std::string& text, LineKind kind, const Measurement& measurement)
{
    LineBytes bytes{};
    const std::int64_t hundredths = (measurement.centiseconds % 100 + 100) % 100;
    const RecorderSeconds seconds = (measurement.centiseconds - hundredths) / 100;
    bytes[4] = Byte(measurement.x);
    bytes[5] = Byte(measurement.y);
    bytes[6] = Byte(measurement.z);
    if (kind == LineKind::Oldest) {
        PackTime(bytes, seconds, static_cast<unsigned>(hundredths * 16 / 100));
        bytes[7] = Byte(RoundedDegrees(measurement.temperature));
    } else {
        const Degrees degrees = SplitDegrees(measurement.temperature);
        PackTime(bytes, seconds, degrees.tenths);
        bytes[7] = Byte(degrees.whole);
        bytes[8] = static_cast<unsigned>(hundredths);
        bytes[9] = Byte(measurement.humidity);
    }
    std::array<char, 20> digits{};
    const std::size_t count = LineDigits(kind);
    for (std::size_t i = 0; i < count; i += 2) {
        digits[i] = Digits[bytes[i / 2] >> 4U];
        digits[i + 1] = Digits[bytes[i / 2] & 15U];
    }
    text.append(digits.data(), count);
}

std::optional<CalendarFields> LineTime(std::string_view digits)
{
    if (digits.size() < StampDigits)
        return std::nullopt;
    unsigned stamp = 0;
    for (const char digit : digits.substr(0, StampDigits)) {
        const std::size_t value = Digits.find(digit);
        if (value == std::string_view::npos)
            return std::nullopt;
        stamp = stamp << 4U | static_cast<unsigned>(value);
    }
    const auto field = [&](unsigned shift, unsigned bits) {
        return static_cast<int>(stamp >> shift & ((1U << bits) - 1));
    };
    const CalendarFields fields{.year = 0,
                                .month = field(28, 4),
                                .day = field(21, 5),
                                .hour = field(16, 5),
                                .minute = field(10, 6),
                                .second = field(4, 6)};
    const bool isDate = fields.month >= 1 && fields.month <= 12 && fields.day >= 1;
    if (!isDate || fields.hour > 23 || fields.minute > 59 || fields.second > 59)
        return std::nullopt;
    return fields;
}

void ShiftLine(std::string& digits, int year, RecorderSeconds seconds)
{
    std::optional<CalendarFields> fields = LineTime(digits);
    if (!fields)
        return;
    fields->year = year;
    LineBytes bytes{};
    PackTime(bytes, FromRecorderFields(*fields) + seconds, 0);
    const char low = digits[StampDigits - 1];
    for (std::size_t i = 0; i < StampDigits; ++i)
        digits[i] = Digits[bytes[i / 2] >> (i % 2 == 0 ? 4U : 0U) & 15U];
    digits[StampDigits - 1] = low;
}

} // namespace skeldon
