#include "setup/view/SettingColorPage.h"

#include "app/SkeldonApp.h"
#include "resources/StringTable.h"
#include "setup/view/RadioGroup.h"
#include "setup/view/SettingValues.h"

#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace skeldon {

CSettingColorPage::CSettingColorPage(QWidget* parent)
    : CSheetPage(parent)
    , m_classic(new QRadioButton(Text(StringId::DisplayClassic)))
    , m_windowsXp(new QRadioButton(Text(StringId::DisplayWindowsXp)))
{
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(MakeRadioGroup(Text(StringId::DisplayColor), {m_classic, m_windowsXp}));
    layout->addStretch(1);
}

void CSettingColorPage::OnInitDialog()
{
    const bool isClassic = ReadFormColour(App().Settings()) == FormColour::Classic;
    (isClassic ? m_classic : m_windowsXp)->setChecked(true);
}

void CSettingColorPage::OnOK()
{
    const FormColour chosen = m_classic->isChecked() ? FormColour::Classic : FormColour::WindowsXp;
    if (chosen != ReadFormColour(App().Settings()))
        App().Prompts().ShowBox(this, BoxKind::Information, Text(StringId::ColorAtNextStart));
    WriteFormColour(App().Settings(), chosen);
}

} // namespace skeldon
