#pragma once

namespace skeldon {

/// Lets the calling thread go before others where the system allows it; else nothing happens.
void RaiseThreadPriority();

} // namespace skeldon
