#pragma once

#include "controls/FilteredEdit.h"

namespace skeldon {

class CTextArgument;
enum class StringId;

/// An edit box for a number within a range.
class CNumberEdit : public CFilteredEdit
{
    Q_OBJECT

public:
    using CFilteredEdit::CFilteredEdit;

    QString m_strName; ///< of the value, for the message; may be empty

protected:
    /// What is told of a number outside of the range: `plain`, or `named` where the value has a
    /// name. The words of the two languages take bounds and name in different orders.
    [[nodiscard]] QString RangeMessage(StringId plain, StringId named,
                                       const CTextArgument& smallest,
                                       const CTextArgument& largest) const;
};

} // namespace skeldon
