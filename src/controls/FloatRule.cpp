#include "controls/FloatRule.h"

#include "base/TextScan.h"
#include "controls/IntRule.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <iterator>

namespace skeldon {

namespace {

/// Decimals that are formatted in the plain way at most.
constexpr int PlainDecimals = 15;

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The fifteen significant digits of a finite number with the point at its place.
std::string SignificantText(double value)
{
    constexpr int Digits = CFloatRule::MostSignificantDigits;
    char buffer[32]; // "d.dddddddddddddde+ddd"
    const auto written = std::to_chars(std::begin(buffer), std::end(buffer), std::fabs(value),
                                       std::chars_format::scientific, Digits - 1);
    const std::string_view text(buffer, static_cast<std::size_t>(written.ptr - buffer));
    const std::size_t mark = text.find('e');
    std::string digits(text.substr(0, mark));
    digits.erase(1, 1); // the point
    const int exponent = ScanInt(text.substr(mark + 1));

    if (exponent < 0)
        return "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    const auto whole = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() < whole)
        digits.append(whole - digits.size(), '0');
    return digits.insert(whole, 1, '.');
}

void CutZerosAtEnd(std::string& text)
{
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
}

void SetDecimals(std::string& text, int decimals)
{
    text.resize(text.find('.') + 1 + static_cast<std::size_t>(decimals), '0');
}

} // namespace

CFloatRule::CFloatRule(double a, double b, int decimals)
    : m_nDecimals(std::min(decimals, MostDecimals))
    , m_dMin(std::min(a, b))
    , m_dMax(std::max(a, b))
    , m_bNegative(m_dMin < 0)
{}

int CFloatRule::DecimalLimit() const
{
    return m_nDecimals < 0 ? MostDecimals : m_nDecimals;
}

FloatVerdict CFloatRule::CheckDigits(std::string_view text) const
{
    int decimals = 0;
    int digits = 0; // from the first that is not 0 on
    int significant = 0;
    bool isBehindPoint = false;
    for (const char c : text) {
        if (c == '.')
            isBehindPoint = true;
        if (!IsDigit(c))
            continue;
        if (isBehindPoint)
            ++decimals;
        if (c != '0' || digits > 0)
            ++digits;
        if (c != '0')
            significant = digits;
    }
    if (decimals > DecimalLimit())
        return FloatVerdict::TooManyDecimals;
    return significant > MostSignificantDigits ? FloatVerdict::Refused : FloatVerdict::Passes;
}

FloatVerdict CFloatRule::CheckKey(char32_t key, std::string_view text) const
{
    if (IsControlKey(key))
        return FloatVerdict::Passes;
    if (key >= U'0' && key <= U'9')
        return CheckDigits(text);
    if (key == U'-') {
        const bool isOnlyFirst = text.find('-', 1) == std::string_view::npos;
        return m_bNegative && isOnlyFirst ? FloatVerdict::Passes : FloatVerdict::Refused;
    }
    if (key == U'.') {
        const bool isOne = std::count(text.begin(), text.end(), '.') <= 1;
        return m_nDecimals != 0 && isOne ? CheckDigits(text) : FloatVerdict::Refused;
    }
    return FloatVerdict::Refused;
}

FloatReading CFloatRule::Read(std::string_view text) const
{
    const double number = ScanDouble(text);
    if (text.empty() || std::isnan(number))
        return {false, m_dMin};
    return {number >= m_dMin && number <= m_dMax, std::clamp(number, m_dMin, m_dMax)};
}

std::string CFloatRule::Format(double value) const
{
    return FormatDecimal(value, m_nDecimals);
}

std::string FormatDecimal(double value, int decimals)
{
    if (!std::isfinite(value) || (decimals >= 0 && decimals <= PlainDecimals)) {
        char buffer[512]; // the largest double has 309 digits before the point
        const auto written =
            std::to_chars(std::begin(buffer), std::end(buffer), value, std::chars_format::fixed,
                          std::clamp(decimals, 0, PlainDecimals));
        return {buffer, static_cast<std::size_t>(written.ptr - buffer)};
    }
    std::string text = SignificantText(value);
    if (decimals > 0)
        SetDecimals(text, PlainDecimals);
    else
        CutZerosAtEnd(text);
    return value < 0 ? "-" + text : text;
}

} // namespace skeldon
