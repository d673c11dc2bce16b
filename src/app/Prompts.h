#pragma once

#include "app/Colour.h"

#include <QMimeData>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class QDialog;
class QUrl;
class QWidget;

namespace skeldon {

/// The five kinds of message box, named by what they offer and what is preselected.
enum class BoxKind
{
    Warning,     ///< OK, exclamation icon
    Information, ///< OK, information icon
    YesNo,       ///< Yes preselected
    NoYes,       ///< No preselected
    YesNoCancel, ///< Cancel preselected
};

/// Closing a box by Escape is Cancel where there is one, else No or OK.
enum class Answer
{
    Ok,
    Yes,
    No,
    Cancel,
};

/// What a file dialog is to show.
struct FileQuestion
{
    QString title;
    QString folder;
    QString name;        ///< proposed; empty for none
    QStringList filters; ///< "Text (*.txt)" and the like
};

/// Where the program asks for the user's attention: boxes, dialogs of the system, the beep. The
/// program has one; a test puts its own in place, sees what is asked and answers.
class CPrompts
{
public:
    virtual ~CPrompts() = default;

    virtual Answer ShowBox(QWidget* parent, BoxKind kind, const QString& text) = 0;
    /// The path of an existing file; nothing when cancelled.
    virtual std::optional<QString> AskOpenPath(QWidget* parent, const FileQuestion& question) = 0;
    /// A path to write to; asks nothing about a file that is already there. Nothing when cancelled.
    virtual std::optional<QString> AskSavePath(QWidget* parent, const FileQuestion& question) = 0;
    /// Runs a dialog of the program's own until it is closed; true if that was by OK.
    virtual bool RunDialog(QDialog& dialog) = 0;
    /// A colour, beginning at `present`; nothing when cancelled.
    virtual std::optional<ColourRef> AskColour(QWidget* parent, ColourRef present) = 0;
    /// Gives something to the clipboard, which keeps it while the program runs; false where the
    /// clipboard does not take it.
    virtual bool PutOnClipboard(std::unique_ptr<QMimeData> contents) = 0;
    /// Opens a page in the desktop's viewer; silent where there is none.
    virtual void OpenPage(const QUrl& page) = 0;
    /// The information beep.
    virtual void Beep() = 0;
    /// The exclamation beep, for what can not be done and is not told otherwise.
    virtual void BeepFailure() { Beep(); }
};

} // namespace skeldon
