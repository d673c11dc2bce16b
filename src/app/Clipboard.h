#pragma once

#include <string>
#include <vector>

namespace skeldon {

/// Puts lines, bytes of the data code page, on the clipboard as one text. Lines end in CR LF, but
/// for one that is just a form feed. False where there is no clipboard or no memory for the text.
bool CopyLinesToClipboard(const std::vector<std::string>& lines);

} // namespace skeldon
