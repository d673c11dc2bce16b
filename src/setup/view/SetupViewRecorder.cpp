// What the setup view does with the recorder, the start of a measurement left aside.
#include "setup/view/SetupView.h"

#include "app/SkeldonApp.h"
#include "controls/LcdPanel.h"
#include "resources/StringTable.h"
#include "resources/TextFormat.h"
#include "setup/view/SetupForm.h"

#include <QEventLoop>
#include <QTimer>

namespace skeldon {

namespace {

// How an option out of range draws the eye.
constexpr int Blinks = 5;
constexpr int RedMs = 500;
constexpr int BlankMs = 200;

/// Lets so many milliseconds pass in which windows are painted.
void Pause(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

void CSetupView::Receive()
{
    if (!App().Frame()->IsConnected())
        return;
    if (!App().Frame()->IsConnected()) {
        Warn(StringId::CannotConnect);
        return;
    }
    CRecorderLink& link = App().Link();
    CMeasureCondition received;
    bool isReceived = false;
    App().Conversation().Run([&] { isReceived = link.ReadStatus(received); });
    if (!isReceived) {
        Warn(StringId::FailedToReceive);
        return;
    }
    m_state.TakeReceived(received);
    ShowConditions();
    ShowEditMode();
    m_form->Panel(SetupPanel::Records).SetValue(link.m_count);
    if (m_state.IsStartOptionIllegal()) {
        SetStatusText(Text(StringId::StartOptionOutOfRange));
        BlinkStartOption();
        m_state.m_current.StartOpt = 0;
        ShowConditions();
    }
    RefreshControls();
}

void CSetupView::BlinkStartOption()
{
    CLcdPanel& panel = m_form->Panel(SetupPanel::StartOption);
    for (int i = 0; i < Blinks; ++i) {
        panel.SetDigitColour(DigitColour::Red, false);
        panel.SetValue(m_state.m_current.StartOpt);
        Pause(RedMs);
        panel.SetBlank();
        Pause(BlankMs);
    }
    panel.SetDigitColour(DigitColour::Green);
}

void CSetupView::ChangeRange()
{
    if (!App().Frame()->IsConnected() || !App().Link().CanChangeRange())
        return;
    CRecorderLink& link = App().Link();
    const QString question = FormatText(Text(StringId::AskChangeRange), {link.GetOtherRange()});
    if (Ask(BoxKind::YesNo, question) != Answer::Yes)
        return;
    bool isChanged = false;
    App().Conversation().Run([&] { isChanged = link.ChangeRange(); });
    Warn(isChanged ? StringId::RangeChanged : StringId::RangeChangeError);
}

} // namespace skeldon
