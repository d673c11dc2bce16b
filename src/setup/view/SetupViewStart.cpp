// The way from the setup view's start buttons to the last command on the wire.
#include "setup/view/SetupView.h"

#include "app/SkeldonApp.h"
#include "controls/CableDialog.h"
#include "recorder/ConditionCommands.h"
#include "resources/StringTable.h"
#include "setup/view/ReservedStartDialog.h"
#include "setup/view/SetupForm.h"
#include "setup/view/StartQuestion.h"

namespace skeldon {

void CSetupView::StartPrompt()
{
    if (!CanStart())
        return;
    if (!App().Frame()->IsConnected()) {
        Warn(StringId::CannotConnect);
        return;
    }
    bool clear = false;
    if (!FitConditions() || !ConfirmStart(clear, true))
        return;
    CRecorderLink& link = App().Link();
    const CMeasureCondition condition = m_state.m_current;
    bool isStarted = false;
    App().Conversation().Run([&] { isStarted = link.StartMeasuring(condition, clear); });
    EndStart(isStarted);
}

void CSetupView::StartReserved()
{
    if (!CanStart() || !FitConditions())
        return;
    CReservedStartDialog dialog(this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const CalendarSeconds start = dialog.StartTime();
    if (!App().Frame()->IsConnected()) {
        Warn(StringId::CannotConnect);
        return;
    }
    bool ignored = false;
    if (!ConfirmStart(ignored, false))
        return;
    CRecorderLink& link = App().Link();
    const CMeasureCondition condition = m_state.m_current;
    bool isStarted = false;
    // A reservation goes by the recorder's clock, so that is always set.
    App().Conversation().Run([&] { isStarted = link.StartReserved(condition, start, true); });
    EndStart(isStarted);
}

/// Takes the user through what does not suit the recorder. False where there is to be no start.
bool CSetupView::FitConditions()
{
    CConditionFitting fitting(m_state.m_current, FactsOf(App().Link().Status()));
    while (const auto step = fitting.Next()) {
        const StartBox box = BoxOf(*step);
        const bool isAgreed = Ask(box.kind, box.text) == Answer::Yes;
        if (!step->IsQuestion())
            continue;
        fitting.Answer(isAgreed);
        if (isAgreed) {
            ShowConditions();
            RefreshControls();
        }
    }
    return !fitting.IsRefused();
}

bool CSetupView::ConfirmStart(bool& clear, bool isPrompt)
{
    const StartBox box = StartQuestion(App().Link().Status(), m_state.m_current.StartOpt, isPrompt);
    const std::optional<bool> clearing = ClearingOf(Ask(box.kind, box.text), box.kind);
    clear = clearing.value_or(false);
    return clearing.has_value();
}

void CSetupView::EndStart(bool isStarted)
{
    if (isStarted)
        CCableDialog(App().Link(), this).exec();
    else
        Warn(StringId::CouldNotStart);
}

} // namespace skeldon
