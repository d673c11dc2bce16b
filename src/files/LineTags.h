#pragma once

#include "base/TextScan.h"

#include <string_view>

namespace skeldon {

/// The text between the tags, where `line` starts with `open` and ends with `close`, without
/// regard to case; empty else. A data file's elements have no other form.
[[nodiscard]] inline std::string_view Between(std::string_view line, std::string_view open,
                                              std::string_view close)
{
    if (line.size() < open.size() + close.size() || !StartsWithNoCase(line, open) ||
        !EndsWithNoCase(line, close))
        return {};
    return line.substr(open.size(), line.size() - open.size() - close.size());
}

} // namespace skeldon
