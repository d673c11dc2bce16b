#pragma once

#include "controls/IntEdit.h"

#include <QComboBox>

namespace skeldon {

/// A list to choose a whole number from, or to type one within a range.
class CIntComboEdit : public QComboBox
{
    Q_OBJECT

public:
    explicit CIntComboEdit(QWidget* parent = nullptr);

    // As `CIntEdit` has them.
    void SetRange(std::uint32_t a, std::uint32_t b);
    bool SetValue(std::uint32_t value);
    bool GetValue(std::uint32_t& value);
    /// Name of the value, for the message.
    void SetName(const QString& name);

    CIntEdit* m_edit; ///< the box of the list; it belongs to it
};

} // namespace skeldon
