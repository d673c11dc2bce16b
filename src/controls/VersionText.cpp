#include "controls/VersionText.h"

#include "base/TextScan.h"

#include <algorithm>

namespace skeldon {

std::string FourNumbers(std::string_view version)
{
    constexpr int Count = 4;
    std::string text;
    for (int i = 0; i < Count; ++i) {
        const std::size_t end = std::min(version.find('.'), version.size());
        text += (i > 0 ? "." : "") + std::to_string(ScanInt(version.substr(0, end)));
        version.remove_prefix(std::min(end + 1, version.size()));
    }
    return text;
}

} // namespace skeldon
