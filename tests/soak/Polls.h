#pragma once

#include "Soak.h"

namespace skeldon::soak {

/// A day of looks for the cable in fast time, with the cable plugged and pulled.
void LookForTheCable(const SoakOptions& options);

} // namespace skeldon::soak
