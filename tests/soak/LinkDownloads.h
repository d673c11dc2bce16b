#pragma once

#include "Soak.h"

namespace skeldon::soak {

/// One download after the other over one link, with the faults of the field.
void DownloadOverLink(const SoakOptions& options);

} // namespace skeldon::soak
