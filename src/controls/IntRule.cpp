#include "controls/IntRule.h"

#include "base/TextScan.h"

#include <algorithm>
#include <limits>

namespace skeldon {

namespace {

/// The number that a text begins with, as 32 bits.
std::uint32_t ScanBits(std::string_view text)
{
    while (!text.empty() && IsWhite(text.front()))
        text.remove_prefix(1);
    const bool isNegative = !text.empty() && text.front() == '-';
    if (!text.empty() && (text.front() == '-' || text.front() == '+'))
        text.remove_prefix(1);
    const std::int64_t largest = isNegative
                                     ? -std::int64_t{std::numeric_limits<std::int32_t>::min()}
                                     : std::int64_t{std::numeric_limits<std::uint32_t>::max()};
    std::int64_t number = 0;
    for (; !text.empty() && text.front() >= '0' && text.front() <= '9'; text.remove_prefix(1))
        number = std::min(number * 10 + (text.front() - '0'), largest);
    return static_cast<std::uint32_t>(isNegative ? -number : number);
}

} // namespace

CIntRule::CIntRule(std::uint32_t a, std::uint32_t b)
    : m_nMin(std::min(a, b))
    , m_nMax(std::max(a, b))
{}

IntReading CIntRule::Read(std::string_view text) const
{
    if (text.empty())
        return {false, m_nMin};
    const std::uint32_t number = ScanBits(text);
    return {number >= m_nMin && number <= m_nMax, Clamp(number)};
}

std::uint32_t CIntRule::Clamp(std::uint32_t value) const
{
    return std::clamp(value, m_nMin, m_nMax);
}

int CIntRule::TextLimit() const
{
    // "%d" shows what has the highest bit as a negative number.
    constexpr std::uint32_t LargestPositive = std::numeric_limits<std::int32_t>::max();
    const auto longest =
        m_nMax > LargestPositive ? FormatInt(LargestPositive + 1).size() : FormatInt(m_nMax).size();
    return static_cast<int>(longest);
}

std::string FormatInt(std::uint32_t value)
{
    return std::to_string(static_cast<std::int32_t>(value));
}

bool PassesIntKey(char32_t character)
{
    return IsControlKey(character) || (character >= U'0' && character <= U'9');
}

bool IsControlKey(char32_t character)
{
    constexpr char32_t FirstPrintable = 0x20;
    constexpr char32_t Delete = 0x7F;
    return character < FirstPrintable || character == Delete;
}

} // namespace skeldon
