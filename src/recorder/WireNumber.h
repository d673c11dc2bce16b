#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace skeldon {

/// A number as the recorder writes it: digits, and commas, which are skipped. Any other character,
/// a sign too, an empty text or a value above 32 bits gives nothing.
[[nodiscard]] std::optional<std::uint32_t> ReadWireNumber(std::string_view text);

/// The same with an optional leading "+" or "-" and at most 31 bits, as month, day and the number
/// of a port name are read.
[[nodiscard]] std::optional<int> ReadSignedWireNumber(std::string_view text);

} // namespace skeldon
