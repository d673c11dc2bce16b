#pragma once

#include "controls/IntEdit.h"

namespace skeldon {

class CSpinButton;

/// An edit box for the number of a line, with a pair of spin buttons at its right side. The arrow
/// keys step too.
class CLineNumberEdit : public CIntEdit
{
    Q_OBJECT

public:
    explicit CLineNumberEdit(QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Shows the number that is `by` more, as far as the range goes.
    void Step(int by);

    CSpinButton* m_up;
    CSpinButton* m_down;
};

} // namespace skeldon
