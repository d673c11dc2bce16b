#include "base/NumberFormat.h"

#include <charconv>

namespace skeldon {

char* WriteZeroPadded(char* out, std::uint64_t value, int width)
{
    char digits[20];
    const auto length = static_cast<int>(WriteUnsigned(digits, value) - digits);
    for (int i = length; i < width; ++i)
        *out++ = '0';
    std::memcpy(out, digits, static_cast<std::size_t>(length));
    return out + length;
}

char* WriteFixedExact(char* out, double value, int decimals)
{
    return std::to_chars(out, out + FixedTextLimit, value, std::chars_format::fixed, decimals).ptr;
}

std::string FixedText(double value, int decimals)
{
    char text[FixedTextLimit];
    return {text, WriteFixedExact(text, value, decimals)};
}

} // namespace skeldon
