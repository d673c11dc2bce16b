#pragma once

#include <string>
#include <string_view>

namespace skeldon {

/// A version as four numbers with points between: missing ones are 0, more than four are dropped.
[[nodiscard]] std::string FourNumbers(std::string_view version);

} // namespace skeldon
