#pragma once

#include "Random.h"

#include <string>

namespace skeldon::soak {

/// Any fault of the simulator's, with a value that suits a memory of so many lines.
[[nodiscard]] std::string AnyFault(CRandom& random, int lines);

} // namespace skeldon::soak
