#pragma once

#include "base/CalendarTime.h"

#include <string>
#include <string_view>

namespace skeldon {

/// "20090203_140509" of the local time `now`.
[[nodiscard]] std::string MakeTimeStamp(CalendarSeconds now = Now());

/// A name with the extension skd for data of recorder `hostNumber`, taken as 0 below 1 and as 99
/// above: "07_20090203_140509.skd"; with a text that is not empty "07_text_..." where `saveType`
/// is 1, "text_07_..." where it is 2. The text is not checked for what a name may not hold.
[[nodiscard]] std::string MakeSaveFileName(int saveType, int hostNumber, std::string_view text,
                                           CalendarSeconds now = Now());

} // namespace skeldon
