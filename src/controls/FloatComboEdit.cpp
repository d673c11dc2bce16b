#include "controls/FloatComboEdit.h"

namespace skeldon {

CFloatComboEdit::CFloatComboEdit(QWidget* parent)
    : QComboBox(parent)
    , m_edit(new CFloatEdit)
{
    setEditable(true);
    setLineEdit(m_edit);
    setInsertPolicy(QComboBox::NoInsert);
    // It would complete a number to one of the list.
    setCompleter(nullptr);
}

void CFloatComboEdit::SetRange(double a, double b, int decimals)
{
    m_edit->SetRange(a, b, decimals);
}

void CFloatComboEdit::SetValue(double value)
{
    m_edit->SetValue(value);
}

bool CFloatComboEdit::GetValue(double& value)
{
    return m_edit->GetValue(value);
}

void CFloatComboEdit::SetName(const QString& name)
{
    m_edit->m_strName = name;
}

} // namespace skeldon
