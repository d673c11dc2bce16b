#pragma once

#include "Soak.h"

namespace skeldon::soak {

/// Random commands, keys and mouse on a large data file, with a recorder that comes and goes, and
/// files that are saved and opened again in between.
void GiveCommands(const SoakOptions& options);

} // namespace skeldon::soak
