#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace skeldon {

/// The path by which the port `name` is opened. A name with a slash is a device path and is taken
/// as it stands. A name of three letters and a number stands for itself up to number 9 and for
/// "\\.\COM<number>" above. Any other name gives nothing, before any system call.
[[nodiscard]] std::optional<std::string> PortPath(std::string_view name);

} // namespace skeldon
