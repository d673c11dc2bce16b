#pragma once

#include <cstddef>
#include <string>

namespace skeldon::bench {

/// The port of a simulated recorder of so many lines, started once.
[[nodiscard]] const std::string& SimulatorPort(std::size_t lines);

} // namespace skeldon::bench
