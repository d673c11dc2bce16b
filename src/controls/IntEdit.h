#pragma once

#include "controls/IntRule.h"
#include "controls/NumberEdit.h"

namespace skeldon {

/// An edit box for a whole number within a range.
class CIntEdit : public CNumberEdit, public CIntRule
{
    Q_OBJECT

public:
    explicit CIntEdit(QWidget* parent = nullptr);

    /// Both inclusive, in any order. No more characters can be typed than the upper bound has; a
    /// longer text that stands there is clamped into the range.
    void SetRange(std::uint32_t a, std::uint32_t b);
    /// Shows a value, clamped into the range; false if it had to be clamped.
    bool SetValue(std::uint32_t value);
    /// Sets `value` to the number of the text, clamped into the range. False if the text is not
    /// valid: the user has been told then, and the box has the focus.
    bool GetValue(std::uint32_t& value);

protected:
    [[nodiscard]] bool PassesCharacter(QChar character, const QString& before,
                                       const QString& after) override;

private:
    [[nodiscard]] QString Message() const;
};

} // namespace skeldon
