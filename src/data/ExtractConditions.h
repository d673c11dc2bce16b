#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace skeldon {

/// One condition of an extraction. It is kept from file to file; nothing evaluates it.
struct ExtractCondition
{
    std::uint16_t channel = 0; ///< one of the six extraction bits of RecordFlag
    double firstLevel = 0.0;   ///< in G
    bool firstEnabled = false;
    double secondLevel = 0.0; ///< in G
    bool secondEnabled = false;

    bool operator==(const ExtractCondition&) const = default;
};

using ExtractConditions = std::vector<ExtractCondition>;

/// The text form of data files and profiles: "%d,%f,%d,%f,%d," for each entry, nothing between.
[[nodiscard]] std::string ExtractConditionsToString(const ExtractConditions& conditions);

/// Reads the text form. Tokens that are missing or no number count as 0; an entry whose channel is
/// not one of the six is dropped.
[[nodiscard]] ExtractConditions ExtractConditionsFromString(std::string_view text);

} // namespace skeldon
