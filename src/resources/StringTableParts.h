#pragma once

#include "resources/StringTable.h"

#include <cstddef>

namespace skeldon {

/// Whether the rows hold identifiers without a gap, in the order of `StringId`.
consteval bool FollowsEnum(std::span<const StringEntry> entries)
{
    for (std::size_t i = 1; i < entries.size(); ++i) {
        if (static_cast<int>(entries[i].id) != static_cast<int>(entries[i - 1].id) + 1)
            return false;
    }
    return true;
}

[[nodiscard]] std::span<const StringEntry> FrameTexts();
[[nodiscard]] std::span<const StringEntry> MenusTexts();
[[nodiscard]] std::span<const StringEntry> DataViewTexts();
[[nodiscard]] std::span<const StringEntry> ControlsTexts();
[[nodiscard]] std::span<const StringEntry> ChartTexts();
[[nodiscard]] std::span<const StringEntry> RecorderTexts();
[[nodiscard]] std::span<const StringEntry> SetupTexts();
[[nodiscard]] std::span<const StringEntry> WizardTexts();
[[nodiscard]] std::span<const StringEntry> SettingsTexts();
[[nodiscard]] std::span<const StringEntry> AdditionsTexts();

} // namespace skeldon
