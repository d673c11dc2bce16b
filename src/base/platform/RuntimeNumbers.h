#pragma once

#include <string_view>

namespace skeldon {

/// `strtod` of the C locale on the text before the first zero byte.
[[nodiscard]] double RuntimeDouble(std::string_view text);

} // namespace skeldon
