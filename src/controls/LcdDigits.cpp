#include "controls/LcdDigits.h"

#include <algorithm>
#include <cstdint>

namespace skeldon {

std::vector<int> DigitCodes(int value, int leastDigits)
{
    std::vector<int> codes;
    std::int64_t rest = value < 0 ? -std::int64_t{value} : std::int64_t{value};
    for (; rest > 0; rest /= 10)
        codes.push_back(static_cast<int>(rest % 10));
    const auto least = static_cast<std::size_t>(std::max(leastDigits, 0));
    codes.resize(std::max(codes.size(), least), 0);
    if (value < 0)
        codes.push_back(MinusCode);
    return codes;
}

std::vector<DigitCell> PlaceDigits(const std::vector<int>& codes, std::span<const int> offsets)
{
    const std::size_t count = std::min(codes.size(), offsets.size());
    std::vector<DigitCell> cells;
    for (std::size_t i = count; i > 0; --i)
        cells.push_back({offsets[offsets.size() - i], codes[i - 1]});
    return cells;
}

std::string DigitText(const std::vector<DigitCell>& cells)
{
    std::string text;
    for (const DigitCell& cell : cells)
        text += cell.code == MinusCode ? '-' : static_cast<char>('0' + cell.code);
    return text;
}

} // namespace skeldon
