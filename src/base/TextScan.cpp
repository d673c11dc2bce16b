#include "base/TextScan.h"

#include "base/DecimalScan.h"
#include "base/platform/RuntimeNumbers.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace skeldon {

std::string_view TrimWhite(std::string_view text)
{
    while (!text.empty() && IsWhite(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsWhite(text.back()))
        text.remove_suffix(1);
    return text;
}

int CompareNoCase(std::string_view a, std::string_view b)
{
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const auto x = static_cast<unsigned char>(ToLowerAscii(a[i]));
        const auto y = static_cast<unsigned char>(ToLowerAscii(b[i]));
        if (x != y)
            return x < y ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

bool EqualNoCase(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && CompareNoCase(a, b) == 0;
}

bool StartsWithNoCase(std::string_view text, std::string_view start)
{
    return text.size() >= start.size() && EqualNoCase(text.substr(0, start.size()), start);
}

bool EndsWithNoCase(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && EqualNoCase(text.substr(text.size() - end.size()), end);
}

int ScanInt(std::string_view text)
{
    std::size_t i = 0;
    while (i < text.size() && IsWhite(text[i]))
        ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        negative = text[i++] == '-';
    // atoi is strtol cut to an int: the sum saturates at 64 bits and is then truncated.
    constexpr std::uint64_t top = std::numeric_limits<std::int64_t>::max();
    const std::uint64_t limit = negative ? top + 1 : top;
    std::uint64_t value = 0;
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
        const auto digit = static_cast<std::uint64_t>(text[i] - '0');
        value = value > (limit - digit) / 10 ? limit : value * 10 + digit;
    }
    return static_cast<int>(static_cast<std::int64_t>(negative ? 0 - value : value));
}

double ScanDouble(std::string_view text)
{
    double value = 0.0;
    if (ScanPlainDecimal(text.data(), text.data() + text.size(), value) != nullptr)
        return value;
    return RuntimeDouble(text);
}

} // namespace skeldon
