// The setup view's list, conditions and profiles.
#include "setup/view/SetupView.h"

#include "app/DataText.h"
#include "app/SkeldonApp.h"
#include "controls/LcdPanel.h"
#include "controls/NameEdit.h"
#include "controls/SkinButton.h"
#include "controls/SpinButton.h"
#include "resources/StringTable.h"
#include "resources/TextFormat.h"
#include "setup/view/ProfileList.h"
#include "setup/view/ProfileName.h"
#include "setup/view/SettingValues.h"
#include "setup/view/SetupForm.h"
#include "setup/view/StartQuestion.h"
#include "setup/view/StepRules.h"

namespace skeldon {

void CSetupView::SelectLine(int position)
{
    if (m_bBusy)
        return;
    m_state.SelectLine(position);
    ShowName();
    ShowConditions();
    ShowEditMode();
}

void CSetupView::NameChanged(const QString& name)
{
    m_state.m_strName = name;
    RefreshControls();
}

void CSetupView::ShowName()
{
    const QString name = m_state.m_strName;
    m_form->m_name->SetName(name);
    m_state.m_strName = name;
}

void CSetupView::ShowListMode(ListMode mode)
{
    m_state.SetListMode(mode);
    m_form->Button(SetupButton::Profile).SetPressed(mode == ListMode::Profiles);
    m_form->Button(SetupButton::Template).SetPressed(mode == ListMode::Templates);
    ShowList();
    ShowName();
    RefreshControls();
}

void CSetupView::ShowList()
{
    m_form->m_list->Show(m_state.m_lines, m_state.m_nListSel);
}

void CSetupView::ShowConditions()
{
    m_form->ShowConditions(m_state.m_current);
}

void CSetupView::ShowEditMode()
{
    m_form->Button(SetupButton::Change).SetPressed(m_state.m_bEditing);
    m_form->SetDigitColour(m_state.m_bEditing ? DigitColour::Yellow : DigitColour::Green);
    RefreshControls();
}

void CSetupView::FlipEditMode()
{
    if (m_state.SetEditing(!m_state.m_bEditing))
        ShowConditions();
    ShowEditMode();
}

void CSetupView::Restore()
{
    if (!m_state.CanRestore())
        return;
    m_state.Restore();
    ShowConditions();
    RefreshControls();
}

void CSetupView::Step(SetupStep step)
{
    // A step that was on its way when the arrows went.
    if (!m_state.m_bEditing || m_bBusy)
        return;
    const StepRule& rule = RuleOf(step);
    const bool isChanged = rule.apply(m_state);
    m_form->ShowValue(rule.panel, m_state.m_current);
    if (isChanged)
        RefreshControls();
    switch (rule.hint) {
    case StepHint::StartOption:
        return SetStatusText(StartOptionWords(m_state.m_current.StartOpt));
    case StepHint::Buzzer:
        return SetStatusText(Text(StringId::BuzzerOnlyWithAlpha));
    case StepHint::None:
        return ResetStatus();
    }
}

void CSetupView::RunWizard()
{
    const bool hasPages = ReadFileChoices(App().Settings()).wizard == WizardStyle::Interactively;
    const ConditionEditor& editor = hasPages ? m_wizard : m_cardForm;
    CMeasureCondition edited = m_state.m_current;
    if (!editor || !editor(edited, m_state.m_store, this))
        return;
    m_state.TakeEdited(edited);
    ShowName();
    ShowConditions();
    ShowEditMode();
}

void CSetupView::AddProfile()
{
    if (!m_state.CanAdd() || !SettleHostNumber())
        return;
    if (m_state.Add()) {
        Warn(StringId::CouldNotSaveProfile);
        return;
    }
    ShowList();
    RefreshControls();
}

/// Finds a host number that no other profile has. False where there is to be no profile.
bool CSetupView::SettleHostNumber()
{
    const int shown = m_form->Panel(SetupPanel::Id).Value();
    const HostNumberOffer offer = m_state.OfferHostNumber(shown);
    if (offer.kind == HostNumberOffer::Kind::Free)
        return true;
    if (offer.kind == HostNumberOffer::Kind::NoneLeft) {
        Ask(BoxKind::Information, Text(StringId::NoFurtherRegistration));
        return false;
    }
    const QString question = FormatText(Text(StringId::AskRegisterAs), {shown, offer.offered});
    if (Ask(BoxKind::NoYes, question) != Answer::Yes)
        return false;
    m_state.m_current.SerialNo = offer.offered;
    m_form->ShowValue(SetupPanel::Id, m_state.m_current);
    RefreshControls();
    return true;
}

void CSetupView::UpdateProfile()
{
    if (!m_state.CanUpdate())
        return;
    if (m_state.Update()) {
        Warn(StringId::CouldNotSaveProfile);
        return;
    }
    ShowList();
    RefreshControls();
}

void CSetupView::DeleteProfile()
{
    if (!m_state.CanDelete())
        return;
    const QString name = PrintableText(m_state.SelectedName());
    if (Ask(BoxKind::NoYes, FormatText(Text(StringId::AskDeleteProfile), {name})) != Answer::Yes)
        return;
    const std::string file = m_state.m_store.GetAt(m_state.m_nStoreIndex).FilePath.string();
    if (const std::error_code error = m_state.Delete()) {
        Ask(BoxKind::Warning,
            FormatText(Text(StringId::CannotDeleteReason),
                       {PrintableText(NameText(file)), QString::fromStdString(error.message())}));
        return;
    }
    ShowList();
    ShowName();
    m_form->BlankConditions();
    RefreshControls();
}

} // namespace skeldon
