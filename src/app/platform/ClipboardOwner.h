#pragma once

namespace skeldon {

/// Which of the desktop's two clipboards.
enum class ClipboardKind
{
    Copied,   ///< what was copied by command
    Selected, ///< what is selected, as the middle button pastes it
};

/// Whether the program that owns a clipboard answers. The toolkit waits for the contents with
/// nothing else moving, many seconds for an owner that hangs; this waits for half a second.
/// True where there is nothing to wait for: this program is the owner, there is none, or the window
/// system has its own limit.
[[nodiscard]] bool DoesClipboardAnswer(ClipboardKind kind);

} // namespace skeldon
