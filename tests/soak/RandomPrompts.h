#pragma once

#include "RandomUser.h"
#include "app/Prompts.h"

#include <QMimeData>
#include <QUrl>

#include <functional>
#include <vector>

namespace skeldon::soak {

/// Answers every question at random.
class CRandomPrompts final : public CPrompts
{
public:
    CRandomPrompts(CRandom& random, CRandomUser& user);

    Answer ShowBox(QWidget* parent, BoxKind kind, const QString& text) override;
    std::optional<QString> AskOpenPath(QWidget* parent, const FileQuestion& question) override;
    std::optional<QString> AskSavePath(QWidget* parent, const FileQuestion& question) override;
    bool RunDialog(QDialog& dialog) override;
    std::optional<ColourRef> AskColour(QWidget* parent, ColourRef present) override;
    bool PutOnClipboard(std::unique_ptr<QMimeData> contents) override;
    void OpenPage(const QUrl& page) override { m_tell(QStringLiteral("page ") + page.toString()); }
    void Beep() override { ++m_beeps; }

    std::vector<QString> m_openPaths; ///< what may be opened
    std::vector<QString> m_savePaths; ///< where may be saved
    std::optional<QString> m_next; ///< to be opened in any case, with no to every question before
    bool m_isLarge = false;        ///< printing would take too long
    int m_opened = 0;
    int m_beeps = 0;
    std::function<void(const QString&)> m_tell = [](const QString&) {};

private:
    CRandom& m_random;
    CRandomUser& m_user;
};

} // namespace skeldon::soak
