#pragma once

#include "app/Prompts.h"

namespace skeldon {

/// The desktop's own boxes and dialogs.
class CDesktopPrompts final : public CPrompts
{
public:
    Answer ShowBox(QWidget* parent, BoxKind kind, const QString& text) override;
    std::optional<QString> AskOpenPath(QWidget* parent, const FileQuestion& question) override;
    std::optional<QString> AskSavePath(QWidget* parent, const FileQuestion& question) override;
    bool RunDialog(QDialog& dialog) override;
    std::optional<ColourRef> AskColour(QWidget* parent, ColourRef present) override;
    bool PutOnClipboard(std::unique_ptr<QMimeData> contents) override;
    void OpenPage(const QUrl& page) override;
    void Beep() override;
    void BeepFailure() override;
};

} // namespace skeldon
