#pragma once

#include "controls/FloatEdit.h"

#include <QComboBox>

namespace skeldon {

/// A list to choose a decimal number from, or to type one within a range.
class CFloatComboEdit : public QComboBox
{
    Q_OBJECT

public:
    explicit CFloatComboEdit(QWidget* parent = nullptr);

    // As `CFloatEdit` has them.
    void SetRange(double a, double b, int decimals);
    void SetValue(double value);
    bool GetValue(double& value);
    /// Name of the value, for the message.
    void SetName(const QString& name);

    CFloatEdit* m_edit; ///< the box of the list; it belongs to it
};

} // namespace skeldon
