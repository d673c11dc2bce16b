#pragma once

#include "Soak.h"

namespace skeldon::soak {

/// One download after the other through the window, from the simulator on a pseudo terminal.
void DownloadThroughWindow(const SoakOptions& options);

} // namespace skeldon::soak
