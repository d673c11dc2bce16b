#pragma once

#include "recorder/RecorderStatus.h"

#include <string>
#include <string_view>

namespace skeldon {

/// A recorder's status as one JSON object with a line end. Rows are rows, thresholds tenths of G.
[[nodiscard]] std::string StatusJson(const RecorderStatus& status, std::string_view port);

/// The same for people.
[[nodiscard]] std::string StatusText(const RecorderStatus& status, std::string_view port);

} // namespace skeldon
