#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace skeldon {

/// Room that any call of `WriteFixed` with up to six decimals may need: the largest double has
/// 309 digits before the point.
inline constexpr std::size_t FixedTextLimit = 320;

/// All two-digit numbers, "00" to "99".
inline constexpr std::array<char, 200> TwoDigitTable = [] {
    std::array<char, 200> table{};
    for (std::size_t i = 0; i < 100; ++i) {
        table[2 * i] = static_cast<char>('0' + i / 10);
        table[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return table;
}();

/// "%02d" of 0..99. Gives the end of what was written, as all of these do.
inline char* WriteTwoDigits(char* out, unsigned value)
{
    std::memcpy(out, &TwoDigitTable[std::size_t{value} * 2], 2);
    return out + 2;
}

/// "%u" of a number; room for 20 characters.
inline char* WriteUnsigned(char* out, std::uint64_t value)
{
    char digits[20];
    char* p = digits + sizeof digits;
    while (value >= 100) {
        p -= 2;
        std::memcpy(p, &TwoDigitTable[static_cast<std::size_t>(value % 100) * 2], 2);
        value /= 100;
    }
    if (value >= 10) {
        p -= 2;
        std::memcpy(p, &TwoDigitTable[static_cast<std::size_t>(value) * 2], 2);
    } else {
        *--p = static_cast<char>('0' + value);
    }
    const auto length = static_cast<std::size_t>(digits + sizeof digits - p);
    std::memcpy(out, p, length);
    return out + length;
}

/// "%d" of a number; room for 20 characters.
inline char* WriteInt(char* out, std::int64_t value)
{
    if (value >= 0)
        return WriteUnsigned(out, static_cast<std::uint64_t>(value));
    *out++ = '-';
    return WriteUnsigned(out, 0 - static_cast<std::uint64_t>(value));
}

/// "%0<width>d" of a number that is not negative, `width` up to 20.
char* WriteZeroPadded(char* out, std::uint64_t value, int width);

/// "%.<decimals>f" the long way, exact for every value, "inf" and "nan" included.
char* WriteFixedExact(char* out, double value, int decimals);

/// The same as a text of its own.
std::string FixedText(double value, int decimals);

/// "%.<Decimals>f" of the C locale whatever the user's locale is, to the last digit; room for
/// `FixedTextLimit` characters.
template <int Decimals>
inline char* WriteFixed(char* out, double value)
{
    static_assert(Decimals >= 1 && Decimals <= 4);
    constexpr std::array<std::uint32_t, 5> Powers = {1, 10, 100, 1000, 10000};
    constexpr std::uint32_t Power = Powers[Decimals];
    // Below a thousand million the product is off by less than a ten-millionth: only a value that
    // close to the middle between two results needs the long way.
    constexpr double Largest = 1e9;
    constexpr double Doubt = 1e-6;
    const double scaled = std::fabs(value) * Power;
    if (!(scaled < Largest))
        return WriteFixedExact(out, value, Decimals);
    auto number = static_cast<std::uint32_t>(scaled);
    const double rest = scaled - number;
    if (std::fabs(rest - 0.5) < Doubt)
        return WriteFixedExact(out, value, Decimals);
    number += rest > 0.5 ? 1 : 0;
    *out = '-';
    out += std::signbit(value) ? 1 : 0;
    const std::uint32_t whole = number / Power;
    const std::uint32_t fraction = number % Power;
    if (whole < 10)
        *out++ = static_cast<char>('0' + whole);
    else if (whole < 100)
        out = WriteTwoDigits(out, whole);
    else
        out = WriteUnsigned(out, whole);
    *out++ = '.';
    if constexpr (Decimals % 2 == 1)
        *out++ = static_cast<char>('0' + fraction / (Power / 10));
    if constexpr (Decimals == 2)
        out = WriteTwoDigits(out, fraction);
    if constexpr (Decimals == 3)
        out = WriteTwoDigits(out, fraction % 100);
    if constexpr (Decimals == 4) {
        out = WriteTwoDigits(out, fraction / 100);
        out = WriteTwoDigits(out, fraction % 100);
    }
    return out;
}

} // namespace skeldon
