#include "controls/IntComboEdit.h"

namespace skeldon {

CIntComboEdit::CIntComboEdit(QWidget* parent)
    : QComboBox(parent)
    , m_edit(new CIntEdit)
{
    setEditable(true);
    setLineEdit(m_edit);
    setInsertPolicy(QComboBox::NoInsert);
    // It would complete a number to one of the list.
    setCompleter(nullptr);
}

void CIntComboEdit::SetRange(std::uint32_t a, std::uint32_t b)
{
    m_edit->SetRange(a, b);
}

bool CIntComboEdit::SetValue(std::uint32_t value)
{
    return m_edit->SetValue(value);
}

bool CIntComboEdit::GetValue(std::uint32_t& value)
{
    return m_edit->GetValue(value);
}

void CIntComboEdit::SetName(const QString& name)
{
    m_edit->m_strName = name;
}

} // namespace skeldon
