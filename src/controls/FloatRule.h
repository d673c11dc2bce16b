#pragma once

#include <string>
#include <string_view>

namespace skeldon {

/// What becomes of a character typed into a box for decimals, or of a text under its rule.
enum class FloatVerdict
{
    Passes,
    Refused,         ///< without a word
    TooManyDecimals, ///< refused, and the user is told how many are allowed
};

/// What a text in a box for decimals is worth.
struct FloatReading
{
    bool isValid = false;
    double value = 0; ///< always within the range
};

/// The range of a box for decimals, both bounds inclusive, and how many decimals it takes.
class CFloatRule
{
public:
    static constexpr int MostDecimals = 308;
    static constexpr int MostSignificantDigits = 15;

    CFloatRule() = default;
    /// The bounds may come in any order. More than 308 decimals are 308; a number below 0 means any
    /// number of decimals.
    CFloatRule(double a, double b, int decimals);

    /// How many decimals may be typed.
    [[nodiscard]] int DecimalLimit() const;
    /// The decimals rule: not more decimals than the limit, and not more than 15 digits from the
    /// first to the last that is not 0.
    [[nodiscard]] FloatVerdict CheckDigits(std::string_view text) const;
    /// Whether `key` may be typed, `text` being the text after it. Characters beyond ASCII may
    /// stand in `text` as any byte that is no digit, minus or point.
    [[nodiscard]] FloatVerdict CheckKey(char32_t key, std::string_view text) const;
    /// A text is valid when it is not empty and its number lies within the range. The value is
    /// clamped into the range, and is the lower bound for an empty text or one like "nan".
    [[nodiscard]] FloatReading Read(std::string_view text) const;
    /// The value as the box shows it.
    [[nodiscard]] std::string Format(double value) const;

    int m_nDecimals = 0;
    double m_dMin = 0;
    double m_dMax = 0;
    bool m_bNegative = false; ///< a minus may be typed; so when the lower bound is below 0
};

/// A number with `decimals` decimals, from 0 to 15 as "%.<decimals>f" does it. With more, or with a
/// number below 0, from its fifteen significant digits: with 15 decimals, or without zeros at its
/// end.
[[nodiscard]] std::string FormatDecimal(double value, int decimals);

} // namespace skeldon
