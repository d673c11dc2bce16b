#include "recorder/WireNumber.h"

#include <limits>

namespace skeldon {

std::optional<std::uint32_t> ReadWireNumber(std::string_view text)
{
    if (text.empty())
        return std::nullopt;
    std::uint64_t value = 0;
    for (const char c : text) {
        if (c == ',')
            continue;
        if (c < '0' || c > '9')
            return std::nullopt;
        value = value * 10 + static_cast<unsigned>(c - '0');
        if (value > std::numeric_limits<std::uint32_t>::max())
            return std::nullopt;
    }
    return static_cast<std::uint32_t>(value);
}

std::optional<int> ReadSignedWireNumber(std::string_view text)
{
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    const std::optional<std::uint32_t> magnitude = ReadWireNumber(text);
    if (!magnitude || *magnitude > static_cast<std::uint32_t>(std::numeric_limits<int>::max()))
        return std::nullopt;
    const int value = static_cast<int>(*magnitude);
    return negative ? -value : value;
}

} // namespace skeldon
