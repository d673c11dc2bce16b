#include "setup/view/SetupView.h"

#include "app/SkeldonApp.h"
#include "controls/LcdPanel.h"
#include "controls/NameEdit.h"
#include "controls/RecorderPicture.h"
#include "controls/SkinButton.h"
#include "resources/StringTable.h"
#include "setup/view/ConditionEditors.h"
#include "setup/view/ProfileList.h"
#include "setup/view/SettingValues.h"
#include "setup/view/SetupForm.h"

#include <QPainter>
#include <qdrawutil.h>

#include <utility>

namespace skeldon {

CSetupView::CSetupView(QWidget* parent)
    : CView(parent)
    , m_wizard([](CMeasureCondition& condition, const CProfileStore& /*store*/, QWidget* owner) {
        return skeldon::RunWizard(condition, owner);
    })
    , m_cardForm(RunConditionOption)
    , m_form(new CSetupForm(this))
{
    m_form->move(setup_layout::Border, setup_layout::Border);
    connect(m_form, &CSetupForm::ButtonClicked, this, &CSetupView::OnCommand);
    connect(m_form, &CSetupForm::Stepped, this, &CSetupView::Step);
    connect(m_form->m_list, &CProfileList::LineChosen, this, &CSetupView::SelectLine);
    connect(m_form->m_name, &QLineEdit::textChanged, this, &CSetupView::NameChanged);
}

CSetupView::~CSetupView() = default;

void CSetupView::OnInitialUpdate()
{
    if (std::exchange(m_bInitialised, true))
        return;
    ReadSettings();
    m_form->Button(SetupButton::Profile).SetPressed(true);
    m_state.SetListMode(ListMode::Profiles);
    ShowList();
    RefreshControls();
}

QSize CSetupView::SmallestSize() const
{
    return setup_layout::View;
}

void CSetupView::ReadSettings()
{
    m_state.m_bNoProfileUpdate = ReadFileChoices(App().Settings()).prohibitsUpdate;
}

bool CSetupView::CanStart() const
{
    return App().Frame()->IsConnected() && m_state.m_bConditionsValid;
}

bool CSetupView::CanChangeRange() const
{
    // While the recorder is being asked nobody knows.
    return !App().Conversation().IsUnderWay() && App().m_link.CanChangeRange();
}

void CSetupView::OnCommand(CommandId command)
{
    if (m_bBusy) {
        m_bExitWanted = m_bExitWanted || command == CommandId::Exit;
        return;
    }
    m_bBusy = true;
    RunCommand(command);
    m_bBusy = false;
    if (std::exchange(m_bExitWanted, false))
        QMetaObject::invokeMethod(
            this, [this] { OnCommand(CommandId::Exit); }, Qt::QueuedConnection);
}

void CSetupView::RunCommand(CommandId command)
{
    switch (command) {
    case CommandId::StartPrompt:
        return StartPrompt();
    case CommandId::StartReserved:
        return StartReserved();
    case CommandId::AddProfile:
        return AddProfile();
    case CommandId::UpdateProfile:
        return UpdateProfile();
    case CommandId::DeleteProfile:
        return DeleteProfile();
    case CommandId::Receive:
        return Receive();
    case CommandId::ViewProfile:
    case CommandId::ViewTemplate:
        // Either button flips both, the pressed one too.
        return ShowListMode(m_state.m_listMode == ListMode::Profiles ? ListMode::Templates
                                                                     : ListMode::Profiles);
    case CommandId::ConditionChange:
        return FlipEditMode();
    case CommandId::ConditionRestore:
        return Restore();
    case CommandId::Wizard:
        return RunWizard();
    case CommandId::ChangeScanningLevel:
        return ChangeRange();
    case CommandId::ViewDataDisplay:
        return App().Frame()->SwitchView(ViewIndex::Display);
    case CommandId::Exit:
        return App().Frame()->CloseFrame();
    default:
        return;
    }
}

CommandState CSetupView::StateOf(CommandId command) const
{
    switch (command) {
    case CommandId::StartPrompt:
    case CommandId::StartReserved:
        return {CanStart()};
    case CommandId::AddProfile:
        return {m_state.CanAdd()};
    case CommandId::UpdateProfile:
        return {m_state.CanUpdate()};
    case CommandId::DeleteProfile:
        return {m_state.CanDelete()};
    case CommandId::ConditionRestore:
        return {m_state.CanRestore()};
    case CommandId::ChangeScanningLevel:
        return {App().Frame()->IsConnected() && CanChangeRange()};
    case CommandId::Receive:
    case CommandId::Calibrate:
    case CommandId::AdjustTemperatureCold:
    case CommandId::AdjustTemperatureHot:
        return {App().Frame()->IsConnected()};
    case CommandId::ViewProfile:
        return {true, m_state.m_listMode == ListMode::Profiles};
    case CommandId::ViewTemplate:
        return {true, m_state.m_listMode == ListMode::Templates};
    case CommandId::ConditionChange:
        return {true, m_state.m_bEditing};
    case CommandId::Wizard:
    case CommandId::ViewDataDisplay:
    case CommandId::Configuration:
    case CommandId::Exit:
        return {true};
    default:
        return {};
    }
}

void CSetupView::OnUpdate(DocumentHint hint, int argument)
{
    switch (hint) {
    case DocumentHint::ActiveView:
        if (argument != static_cast<int>(ViewIndex::Setup))
            return;
        m_form->HideDataDisplay();
        RefreshControls();
        App().Frame()->SetCaption({});
        ResetStatus();
        return;
    case DocumentHint::Connection:
        m_form->m_picture->SetConnected(argument != 0);
        if (argument == 0)
            m_form->Panel(SetupPanel::Records).SetBlank();
        RefreshControls();
        return;
    case DocumentHint::Closing:
        return;
    case DocumentHint::SettingsChanged:
        ReadSettings();
        RefreshControls();
        return;
    }
}

void CSetupView::RefreshControls()
{
    for (const SetupButtonForm& form : SetupButtons()) {
        if (!form.place.isEmpty())
            m_form->Button(form.button).setEnabled(StateOf(form.command).isEnabled);
    }
    m_form->ShowListMode(m_state.m_listMode);
    m_form->ShowSpins(m_state.m_bEditing);
}

void CSetupView::Warn(StringId text)
{
    Ask(BoxKind::Warning, Text(text));
}

Answer CSetupView::Ask(BoxKind kind, const QString& text)
{
    return App().Prompts().ShowBox(this, kind, text);
}

void CSetupView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), ToColour(App().m_viewBaseColour));
    // The sunken border round the form, in the form's own colours.
    qDrawShadePanel(&painter, rect(), m_form->palette(), true, setup_layout::Border);
}

} // namespace skeldon
