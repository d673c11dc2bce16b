#pragma once

#include "recorder/RecorderStatus.h"

#include <string_view>

namespace skeldon {

/// Reads a status report, the reply to "p" without its "#", into `status`. `currentYear` stands in
/// where the report tells none. False, with `status` unchanged, where the text holds no "@Count="
/// and so is no report; nothing else in it can fail: each key has its fallback. Month and day keep
/// their values where the report tells none.
[[nodiscard]] bool ReadStatusReport(std::string_view report, int currentYear,
                                    RecorderStatus& status);

/// `value` without its fraction; values beyond the range of `int` give its nearest end.
[[nodiscard]] int CutToInt(double value);

} // namespace skeldon
