#pragma once

#include <QImage>
#include <QMimeData>

#include <memory>
#include <string>
#include <vector>

namespace skeldon {

/// Puts lines, bytes of the data code page, on the clipboard as one text. Lines end in CR LF, but
/// for one that is just a form feed. False where there is no clipboard, no memory for the text, or
/// the clipboard does not take it.
[[nodiscard]] bool CopyLinesToClipboard(const std::vector<std::string>& lines);

/// Puts a picture on the clipboard. False as above, and without a picture.
[[nodiscard]] bool CopyPictureToClipboard(const QImage& picture);

/// Makes `contents` what the desktop's clipboard holds. What it has held before is not looked at:
/// the program that owns that may not answer. False where the clipboard holds something else then.
[[nodiscard]] bool GiveToClipboard(std::unique_ptr<QMimeData> contents);

} // namespace skeldon
