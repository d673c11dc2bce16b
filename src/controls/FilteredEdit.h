#pragma once

#include <QLineEdit>

namespace skeldon {

/// An edit box that looks at each character that is typed, by a key or an input method, before it
/// goes in. Copy, cut and paste stay the box's own.
class CFilteredEdit : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

protected:
    /// Whether `character` goes in. `before` and `after` is the text around it: what is selected
    /// is replaced.
    [[nodiscard]] virtual bool PassesCharacter(QChar character, const QString& before,
                                               const QString& after) = 0;

    /// Shows why the text is refused, beeps, and has the user look at it: focus, whole text
    /// selected.
    void Complain(const QString& message);

    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    /// Those of `typed`, one after the other, that go in.
    [[nodiscard]] QString Filtered(const QString& typed);
};

} // namespace skeldon
