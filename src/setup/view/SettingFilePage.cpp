#include "setup/view/SettingFilePage.h"

#include "app/SkeldonApp.h"
#include "resources/StringTable.h"
#include "setup/view/RadioGroup.h"
#include "setup/view/SettingValues.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace skeldon {

CSettingFilePage::CSettingFilePage(QWidget* parent)
    : CSheetPage(parent)
    , m_interactively(new QRadioButton(Text(StringId::FileInteractively)))
    , m_cardForm(new QRadioButton(Text(StringId::FileCardForm)))
    , m_prompt(new QRadioButton(Text(StringId::FilePrompt)))
    , m_notPrompt(new QRadioButton(Text(StringId::FileNotPrompt)))
    , m_prohibitUpdate(new QCheckBox(Text(StringId::FileProhibitUpdate)))
{
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(MakeRadioGroup(Text(StringId::FileWizard), {m_interactively, m_cardForm}));
    layout->addWidget(MakeRadioGroup(Text(StringId::FileConfirmSaved), {m_prompt, m_notPrompt}));
    layout->addWidget(m_prohibitUpdate);
    layout->addStretch(1);
}

void CSettingFilePage::OnInitDialog()
{
    const FileChoices choices = ReadFileChoices(App().Settings());
    const bool isInteractive = choices.wizard == WizardStyle::Interactively;
    (isInteractive ? m_interactively : m_cardForm)->setChecked(true);
    (choices.asksToSave ? m_prompt : m_notPrompt)->setChecked(true);
    m_prohibitUpdate->setChecked(choices.prohibitsUpdate);
}

void CSettingFilePage::OnOK()
{
    const WizardStyle wizard =
        m_interactively->isChecked() ? WizardStyle::Interactively : WizardStyle::CardForm;
    WriteFileChoices(App().Settings(),
                     {wizard, m_prompt->isChecked(), m_prohibitUpdate->isChecked()});
}

} // namespace skeldon
