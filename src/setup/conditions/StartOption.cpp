#include "setup/conditions/StartOption.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace skeldon {

std::string StartOptionText(int value)
{
    constexpr std::array<std::string_view, 5> Modes = {
        "Promptly, start measuring",
        "Magnet trigger only on start measuring",
        "Magnet on start measuring. After start, measuring stop on magnet",
        "Magnet on start measuring. After start, measuring pause on magnet. Restart on releasing "
        "magnet",
        "Magnet on start measuring. After start, measuring pause on releasing magnet. Restart on "
        "magnet",
    };
    if (value >= 0 && static_cast<std::size_t>(value) < Modes.size())
        return std::string(Modes[static_cast<std::size_t>(value)]);
    return "Start measuring in " + std::to_string(value) + " seconds";
}

} // namespace skeldon
