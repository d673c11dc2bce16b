#pragma once

#include "controls/FloatRule.h"
#include "controls/NumberEdit.h"

namespace skeldon {

/// An edit box for a decimal number within a range.
class CFloatEdit : public CNumberEdit, public CFloatRule
{
    Q_OBJECT

public:
    explicit CFloatEdit(QWidget* parent = nullptr);

    /// Both inclusive, in any order. `decimals` below 0 allows any number of them.
    void SetRange(double a, double b, int decimals);
    /// Shows a value, also one outside of the range.
    void SetValue(double value);
    /// Sets `value` to the number of the text, clamped into the range. False if the text is not
    /// valid: the user has been told then, and the box has the focus.
    bool GetValue(double& value);

protected:
    [[nodiscard]] bool PassesCharacter(QChar character, const QString& before,
                                       const QString& after) override;

private:
    [[nodiscard]] QString Message() const;
};

} // namespace skeldon
