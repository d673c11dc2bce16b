#pragma once

#include "app/Prompts.h"

#include <QString>

#include <filesystem>
#include <optional>
#include <system_error>

namespace skeldon {

/// Paths of dialogs and settings as the file system knows them, and back.
[[nodiscard]] std::filesystem::path ToPath(const QString& path);
[[nodiscard]] QString FromPath(const std::filesystem::path& path);

/// Where to write to.
struct SaveTarget
{
    QString chosen;               ///< as the dialog gave it
    std::filesystem::path target; ///< with the extension that will be written
};

/// Asks for a path to write to, and about a file that is there under the extension that will be
/// written. Nothing when cancelled.
[[nodiscard]] std::optional<SaveTarget> AskSaveTarget(QWidget* parent, const FileQuestion& question,
                                                      const char* extension);

/// The warning that `path` could not be written, with the system's reason.
[[nodiscard]] QString WriteFailureText(const QString& path, const std::error_code& reason);

} // namespace skeldon
