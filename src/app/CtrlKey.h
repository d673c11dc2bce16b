#pragma once

namespace skeldon {

/// Whether the Ctrl key is down now, as far as the window system tells; the environment variable
/// SKELDON_CTRL_AT_START with the value 1 counts as that. Held at the start it sets saved layout
/// aside, for a window that was lost.
[[nodiscard]] bool IsCtrlDown();

/// The key alone, for what asks it again later: the variable stands for one that is held at the
/// start.
[[nodiscard]] bool IsCtrlKeyDown();

} // namespace skeldon
