#include "controls/FilteredEdit.h"

#include "app/SkeldonApp.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

namespace skeldon {

void CFilteredEdit::Complain(const QString& message)
{
    SetStatusText(message);
    App().Prompts().Beep();
    setFocus(Qt::OtherFocusReason);
    selectAll();
}

QString CFilteredEdit::Filtered(const QString& typed)
{
    const QString present = text();
    const qsizetype start = hasSelectedText() ? selectionStart() : cursorPosition();
    const QString after = present.mid(start + selectedText().size());
    const QString before = present.left(start);
    QString passed;
    for (const QChar character : typed) {
        if (PassesCharacter(character, before + passed, after))
            passed += character;
    }
    return passed;
}

void CFilteredEdit::keyPressEvent(QKeyEvent* event)
{
    // A letter that comes with Ctrl is a command and not typed text.
    const Qt::KeyboardModifiers with =
        event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    QString typed = event->text();
    if (with == Qt::ControlModifier)
        typed.removeIf([](QChar c) { return c.isPrint(); });
    if (!typed.isEmpty() && !isReadOnly() && Filtered(typed) != typed) {
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void CFilteredEdit::inputMethodEvent(QInputMethodEvent* event)
{
    const QString passed = isReadOnly() ? event->commitString() : Filtered(event->commitString());
    if (passed == event->commitString()) {
        QLineEdit::inputMethodEvent(event);
        return;
    }
    QInputMethodEvent filtered(event->preeditString(), event->attributes());
    filtered.setCommitString(passed, event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(&filtered);
    event->accept();
}

} // namespace skeldon
