#pragma once

#include <string>

namespace skeldon {

// How the tool words the numbers that a recorder and a data file hold, for people.

/// A threshold or hazard of tenths of G, as "2.5 G"; "-" for what is unknown.
[[nodiscard]] std::string LevelWords(int tenths);
/// A row of `SamplingTable`; "-" for what is unknown.
[[nodiscard]] std::string SamplingWords(int row);
/// A row of `IntervalTable`; "-" for what is unknown.
[[nodiscard]] std::string IntervalWords(int row);
/// A model word with type number and firmware release, as far as they are known.
[[nodiscard]] std::string RecorderWords(const std::string& model, int type,
                                        const std::string& release);
[[nodiscard]] std::string YesNo(bool value);

} // namespace skeldon
