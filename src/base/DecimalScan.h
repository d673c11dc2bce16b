#pragma once

#include <cstddef>
#include <cstdint>

namespace skeldon {

/// Reads the common form of a number, an optional "-", digits and at most one point, from `begin`
/// on. Gives the end of the number and its value, which is the correctly rounded one, or null
/// where the text is anything the short way can not read exactly (blanks, exponents, very many
/// digits, no digits at all): the caller then takes the long way, `ScanDouble`.
[[nodiscard]] inline const char* ScanPlainDecimal(const char* begin, const char* end, double& value)
{
    // Both operands of the division are exact below 2^53 and 10^22, so that it rounds once.
    static constexpr double Power[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                       1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    constexpr int MostDigits = 15;
    const char* p = begin;
    const bool negative = p != end && *p == '-';
    if (negative)
        ++p;
    std::uint64_t mantissa = 0;
    const char* const first = p;
    while (p != end && *p >= '0' && *p <= '9')
        mantissa = mantissa * 10 + static_cast<unsigned>(*p++ - '0');
    auto digits = p - first;
    std::ptrdiff_t decimals = 0;
    if (p != end && *p == '.') {
        const char* const point = ++p;
        while (p != end && *p >= '0' && *p <= '9')
            mantissa = mantissa * 10 + static_cast<unsigned>(*p++ - '0');
        decimals = p - point;
        digits += decimals;
    }
    if (digits == 0 || digits > MostDigits)
        return nullptr;
    if (p != end && (*p == 'e' || *p == 'E' || *p == 'x' || *p == 'X'))
        return nullptr;
    const double magnitude = static_cast<double>(mantissa) / Power[decimals];
    value = negative ? -magnitude : magnitude;
    return p;
}

} // namespace skeldon
