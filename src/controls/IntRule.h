#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace skeldon {

/// What a text in a box for whole numbers is worth.
struct IntReading
{
    bool isValid = false;
    std::uint32_t value = 0; ///< always within the range
};

/// The range of a box for whole numbers, both bounds inclusive.
class CIntRule
{
public:
    CIntRule() = default;
    /// The bounds may come in any order.
    CIntRule(std::uint32_t a, std::uint32_t b);

    /// A text is valid when it holds a number, compared as unsigned, within the range; an empty one
    /// is not. The value is clamped into the range, and is the lower bound for an empty text. A
    /// number of more than 32 bits counts as the largest or, with a minus, the smallest there is.
    [[nodiscard]] IntReading Read(std::string_view text) const;
    [[nodiscard]] std::uint32_t Clamp(std::uint32_t value) const;
    /// Characters of the upper bound, and of any other value that may be shown; more can not be
    /// typed.
    [[nodiscard]] int TextLimit() const;

    std::uint32_t m_nMin = 0;
    std::uint32_t m_nMax = 0;
};

/// "%d" of a value.
[[nodiscard]] std::string FormatInt(std::uint32_t value);

/// Whether a character typed into a box for whole numbers is let through: digits and control
/// characters.
[[nodiscard]] bool PassesIntKey(char32_t character);

/// Control characters, such as that of the backspace key.
[[nodiscard]] bool IsControlKey(char32_t character);

} // namespace skeldon
