#pragma once

namespace skeldon {

/// Keeps the windows alive in the middle of long work: handles all events that wait. A wish to
/// close a window is not carried out: it is passed on to the main window for when the work is
/// over, and true is given.
bool PumpMessages();

/// Whether events are being handled in the middle of long work.
[[nodiscard]] bool IsPumping();

} // namespace skeldon
