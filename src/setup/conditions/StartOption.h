#pragma once

#include <string>

namespace skeldon {

/// What start option `value` means: 0..4 name a mode, any other value is a delay in seconds.
[[nodiscard]] std::string StartOptionText(int value);

} // namespace skeldon
