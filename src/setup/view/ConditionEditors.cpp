#include "setup/view/ConditionEditors.h"

#include "setup/view/ConditionOptionDialog.h"
#include "setup/view/ProfileWizardDialog.h"

namespace skeldon {

bool RunWizard(CMeasureCondition& condition, QWidget* parent)
{
    CProfileWizardDialog wizard(condition, parent);
    if (wizard.exec() != QDialog::Accepted)
        return false;
    condition = wizard.m_condition;
    return true;
}

bool RunConditionOption(CMeasureCondition& condition, const CProfileStore& store, QWidget* parent)
{
    CConditionOptionDialog card(condition, store, parent);
    if (card.exec() != QDialog::Accepted)
        return false;
    condition = card.m_condition;
    return true;
}

} // namespace skeldon
