#pragma once

#include <span>
#include <string>
#include <vector>

namespace skeldon {

/// Code of the minus in the strip of digits; 0 to 9 are the digits.
inline constexpr int MinusCode = 10;

/// The digits of a number, the lowest first: zeros up to `leastDigits`, and the minus of a negative
/// number as the last, leftmost one.
[[nodiscard]] std::vector<int> DigitCodes(int value, int leastDigits);

/// One lit cell of a read-out.
struct DigitCell
{
    int x = 0;
    int code = 0;

    friend bool operator==(const DigitCell&, const DigitCell&) = default;
};

/// Puts digits into cells whose offsets are given from left to right: the lowest digit goes into
/// the last cell. Digits without a cell are dropped, cells without a digit stay dark.
[[nodiscard]] std::vector<DigitCell> PlaceDigits(const std::vector<int>& codes,
                                                 std::span<const int> offsets);

/// What stands in the cells, from left to right.
[[nodiscard]] std::string DigitText(const std::vector<DigitCell>& cells);

} // namespace skeldon
