#include "controls/CableDialog.h"
#include "controls/LcdPanel.h"
#include "controls/SkinButton.h"
#include "setup/view/ReservedStartDialog.h"
#include "setup/view/SetupApp.h"

#include <QPushButton>
#include <QTest>
#include <QTimeEdit>

#include <csignal>

using namespace skeldon;
using skeldon::test::CSetupApp;

namespace {

const QString CouldNotStart = QStringLiteral("Could not start measuring.");
const QString CanNotConnect = QStringLiteral("Can not connect to KORVA.");
const QString Sure = QStringLiteral("Start measuring.\nAre you sure?");

} // namespace

/// Starts that do not go straight: conditions that do not fit, and recorders that go away.
class StartTroubleTest : public QObject
{
    Q_OBJECT

private slots:
    void FittedValuesAreShownAndSent();
    void RefusedFittingKeepsWhatWasFitted();
    void FittedValueCanBeRestored();
    void TellingChecksStopNothing();
    void HazardBeyondASmallRecorderCanBeCancelled();
    void ReservationIsFittedBeforeItsTimeIsAsked();
    void NothingStartsWithoutRecorderOrConditions();
    void ConnectionGoneBehindThePredicateIsTold();
    void ConnectionGoneWhileTheDialogStandsIsTold();
    void CancelledReservationSendsNothing();
    void CommandWithoutReplyEndsTheStart();
    void RecorderUnpluggedInTheMiddleEndsTheStart();
    void RunningTransferLetsNothingOut();
    void CableDialogClosesWhenTheCableIsGone();
    void CommandsWaitWhileTheRecorderIsSpokenTo();
};

void StartTroubleTest::FittedValuesAreShownAndSent()
{
    CSetupApp app;
    app.Show();
    CMeasureCondition condition;
    condition.SetSampling(5);
    condition.SetInterval(12);
    condition.Threshold = 120;
    condition.StartOpt = 0;
    app.Load(condition);
    app.Play({"--type", "oldest"});
    app.m_clock.m_now = FromLocalFields({2031, 3, 4, 5, 6, 7});
    app.m_prompts->m_answers = {Answer::Yes, Answer::Yes, Answer::Yes, Answer::Yes};
    app.Command(CommandId::StartPrompt);
    QCOMPARE(app.m_prompts->Boxes(),
             QStringList({"This sampling rate cannot be used with the connected KORVA.\n"
                          "Will you scan using the standard value 0.0312sec?",
                          "This recording interval cannot be used with the connected KORVA.\n"
                          "Will you scan using the standard value 1min?",
                          "This threshold cannot be used with the connected KORVA.\n"
                          "Will you scan with the threshold value of 0.0G?",
                          Sure}));
    QCOMPARE(app.m_prompts->m_shown.front().boxKind, BoxKind::YesNo);
    QCOMPARE(app.Sent("mi5jAd00k0N00ms2031 03/04 05:06:07t"),
             QByteArray("mi5jAd00k0N00ms2031 03/04 05:06:07t"));
    QCOMPARE(app.Panel(SetupPanel::Sampling).Value(), 312);
    QCOMPARE(app.Panel(SetupPanel::Interval).Value(), 1);
    QCOMPARE(app.Panel(SetupPanel::Threshold).Value(), 0);
    QCOMPARE(app.State().m_current.GetSampling(), 4);
    QCOMPARE(app.State().m_saved.GetSampling(), 5);
    app.Command(CommandId::ConditionChange);
    QVERIFY(app.Can(CommandId::ConditionRestore));
}

void StartTroubleTest::RefusedFittingKeepsWhatWasFitted()
{
    CSetupApp app;
    app.Show();
    CMeasureCondition condition;
    condition.SetSampling(0);
    condition.Threshold = 104;
    app.Load(condition);
    app.Play({"--type", "50"});
    app.m_prompts->m_answers = {Answer::Yes, Answer::No};
    app.Command(CommandId::StartPrompt);
    QCOMPARE(app.m_prompts->Boxes().size(), 2);
    QCOMPARE(app.m_prompts->Boxes().back(),
             QStringLiteral("This threshold cannot be used with the connected KORVA.\n"
                            "Will you scan using the approximate value 10.0G?"));
    QCOMPARE(app.Sent(), QByteArray());
    QCOMPARE(app.State().m_current.GetSampling(), 4);
    QCOMPARE(app.Panel(SetupPanel::Sampling).Value(), 312);
    QCOMPARE(app.State().m_current.Threshold, 104);
}

void StartTroubleTest::FittedValueCanBeRestored()
{
    CSetupApp app;
    app.Show();
    CMeasureCondition condition;
    condition.SetSampling(0);
    app.Load(condition);
    app.Play({"--type", "10"});
    app.Click(SetupButton::Change);
    app.m_prompts->m_answers = {Answer::Yes, Answer::No};
    app.Click(SetupButton::StartPrompt);
    QCOMPARE(app.Panel(SetupPanel::Sampling).Value(), 312);
    QVERIFY(app.Button(SetupButton::Restore).isEnabled());
    app.Click(SetupButton::Restore);
    QCOMPARE(app.Panel(SetupPanel::Sampling).Value(), 5000);
}

void StartTroubleTest::TellingChecksStopNothing()
{
    CSetupApp app;
    app.Show();
    CMeasureCondition condition;
    condition.Hazard = 50;
    condition.Endless = true;
    condition.Buzzer = true;
    condition.StartOpt = 0;
    app.Load(condition);
    app.Play({"--type", "10", "--no-buzzer"});
    app.m_clock.m_now = FromLocalFields({2031, 3, 4, 5, 6, 7});
    app.m_prompts->m_answers = {Answer::Ok, Answer::Ok, Answer::Ok, Answer::Yes};
    app.Command(CommandId::StartPrompt);
    QCOMPARE(app.m_prompts->Boxes(),
             QStringList({"You cannot use the hazard with the connected KORVA.",
                          "You cannot use the Endless mode (Cyclic Recording) with the connected "
                          "KORVA.",
                          "You cannot use the buzzer with the connected KORVA.", Sure}));
    QCOMPARE(app.m_prompts->m_shown[0].boxKind, BoxKind::Warning);
    QCOMPARE(app.m_prompts->m_shown[1].boxKind, BoxKind::Information);
    QCOMPARE(app.m_prompts->m_shown[2].boxKind, BoxKind::Information);
    QCOMPARE(app.Sent("mi5j^d00k0N00w00ms2031 03/04 05:06:07t"),
             QByteArray("mi5j^d00k0N00w00ms2031 03/04 05:06:07t"));
    QCOMPARE(app.State().m_current.Hazard, 50);
    QCOMPARE(app.Panel(SetupPanel::Hazard).Value(), 50);
    QVERIFY(app.State().m_current.Endless && app.State().m_current.Buzzer);
}

void StartTroubleTest::HazardBeyondASmallRecorderCanBeCancelled()
{
    CSetupApp app;
    app.Show();
    CMeasureCondition condition;
    condition.Hazard = 50;
    app.Load(condition);
    app.Play({"--type", "1", "--alpha"});
    app.m_prompts->m_answers = {Answer::Yes, Answer::No};
    app.Command(CommandId::StartPrompt);
    QCOMPARE(app.m_prompts->Boxes().front(),
             QStringLiteral("This hazard value cannot be used with the connected KORVA.\n"
                            "Will you cancel the hazard value and scan?"));
    QCOMPARE(app.State().m_current.Hazard, 0);
    QCOMPARE(app.Panel(SetupPanel::Hazard).Value(), 0);
    QCOMPARE(app.Sent(), QByteArray());
}

void StartTroubleTest::ReservationIsFittedBeforeItsTimeIsAsked()
{
    CSetupApp app;
    app.Show();
    CMeasureCondition condition;
    condition.SetSampling(0);
    app.Load(condition);
    app.Play({"--type", "10"});
    app.m_prompts->m_answers = {Answer::No};
    app.Command(CommandId::StartReserved);
    QCOMPARE(app.m_prompts->Boxes().size(), 1);
    QCOMPARE(app.m_reservedDialogs, 0);
    QCOMPARE(app.Sent(), QByteArray());
}

void StartTroubleTest::NothingStartsWithoutRecorderOrConditions()
{
    CSetupApp app;
    app.Show();
    const auto startsAreSilent = [&app] {
        app.Command(CommandId::StartPrompt);
        app.Command(CommandId::StartReserved);
        return app.m_prompts->m_shown.empty() && app.m_reservedDialogs == 0 &&
               !app.Can(CommandId::StartPrompt) && !app.Can(CommandId::StartReserved);
    };
    QVERIFY(startsAreSilent());
    app.m_frame.m_connected = true;
    QVERIFY(startsAreSilent());
    app.m_frame.m_connected = false;
    app.Load({});
    QVERIFY(startsAreSilent());
    app.m_frame.m_connected = true;
    QVERIFY(app.Can(CommandId::StartPrompt) && app.Can(CommandId::StartReserved));
}

void StartTroubleTest::ConnectionGoneBehindThePredicateIsTold()
{
    CSetupApp app;
    app.Show();
    app.Load({});
    app.m_frame.m_answers = {true, false};
    app.Command(CommandId::StartPrompt);
    QCOMPARE(app.m_prompts->Boxes(), QStringList(CanNotConnect));
    QCOMPARE(app.m_prompts->m_shown.front().boxKind, BoxKind::Warning);
}

void StartTroubleTest::ConnectionGoneWhileTheDialogStandsIsTold()
{
    CSetupApp app;
    app.Show();
    app.Load({});
    app.Play({"--type", "10"});
    app.m_onReserved = [&app](CReservedStartDialog& dialog) {
        app.m_frame.m_connected = false;
        dialog.m_ok->click();
    };
    app.Command(CommandId::StartReserved);
    QCOMPARE(app.m_prompts->Boxes(), QStringList(CanNotConnect));
    QCOMPARE(app.Sent(), QByteArray());
}

void StartTroubleTest::CancelledReservationSendsNothing()
{
    CSetupApp app;
    app.Show();
    app.Load({});
    app.Play({"--type", "10"});
    app.m_onReserved = [](CReservedStartDialog& dialog) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
    };
    app.Command(CommandId::StartReserved);
    QCOMPARE(app.m_reservedDialogs, 1);
    QVERIFY(app.m_prompts->m_shown.empty());
    QCOMPARE(app.Sent(), QByteArray());
}

void StartTroubleTest::CommandWithoutReplyEndsTheStart()
{
    CSetupApp app;
    app.Show();
    app.Load({});
    app.Play({"--type", "10", "--fault", "silence=k"});
    app.m_clock.m_speed = 100;
    app.m_prompts->m_answers = {Answer::Yes};
    app.Command(CommandId::StartPrompt);
    QCOMPARE(app.m_prompts->Boxes().back(), CouldNotStart);
    QCOMPARE(app.m_prompts->m_shown.back().boxKind, BoxKind::Warning);
    QCOMPARE(app.m_cableDialogs, 0);
    QCOMPARE(app.Sent("mi5j^d00k0"), QByteArray("mi5j^d00k0"));
    QVERIFY(!app.m_app->Link().IsOpen());
}

void StartTroubleTest::RecorderUnpluggedInTheMiddleEndsTheStart()
{
    CSetupApp app;
    app.Show();
    app.Load({});
    app.Play({"--type", "10", "--fault", "delay=200"});
    app.m_clock.m_speed = 100;
    app.m_prompts->m_answers = {Answer::Yes};
    QByteArray sent;
    app.DuringTheTalk([&app] { app.Unplug(); },
                      [&] { return (sent += app.Sent()).startsWith("mi5"); });
    app.Command(CommandId::StartPrompt);
    QCOMPARE(app.m_prompts->Boxes().back(), CouldNotStart);
    QCOMPARE(app.m_cableDialogs, 0);
    sent += app.Sent();
    QVERIFY2(sent.startsWith("mi5"), sent.constData());
    QVERIFY2(!sent.contains('t'), sent.constData());
    // The view is there for the next one.
    app.Play({"--type", "10"});
    app.m_clock.m_speed = 1;
    app.m_prompts->m_answers = {Answer::Yes};
    app.Command(CommandId::StartPrompt);
    QCOMPARE(app.m_cableDialogs, 1);
}

void StartTroubleTest::RunningTransferLetsNothingOut()
{
    CSetupApp app;
    app.Show();
    app.Load({});
    app.Play({"--type", "10"});
    app.m_app->Link().m_busy = true;
    app.m_prompts->m_answers = {Answer::Yes};
    app.Command(CommandId::StartPrompt);
    QCOMPARE(app.m_prompts->Boxes().back(), CouldNotStart);
    QCOMPARE(app.Sent(), QByteArray());
    app.m_app->Link().m_busy = false;
}

void StartTroubleTest::CableDialogClosesWhenTheCableIsGone()
{
    CSetupApp app;
    app.Show();
    app.Load({});
    app.Play({"--type", "10"});
    QElapsedTimer stood;
    app.m_onCable = [&](CCableDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QStringLiteral("SKELDON"));
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
        stood.start();
        app.m_port.clear();
    };
    app.m_prompts->m_answers = {Answer::Yes};
    app.Command(CommandId::StartPrompt);
    QCOMPARE(app.m_cableDialogs, 1);
    QVERIFY(stood.elapsed() < 5000);
}

void StartTroubleTest::CommandsWaitWhileTheRecorderIsSpokenTo()
{
    CSetupApp app;
    app.Show();
    app.Load({});
    app.Play({"--type", "10", "--fault", "delay=30"});
    bool isWaitCursor = false;
    app.DuringTheTalk([&] {
        isWaitCursor = QGuiApplication::overrideCursor() != nullptr;
        app.Command(CommandId::ConditionChange);
        app.Command(CommandId::Exit);
    });
    app.m_prompts->m_answers = {Answer::Yes};
    app.m_onCable = [&](CCableDialog& dialog) {
        QCOMPARE(app.m_frame.m_closed, 0);
        dialog.m_ok->click();
    };
    app.Command(CommandId::StartPrompt);
    QVERIFY(isWaitCursor);
    QVERIFY(!app.State().m_bEditing);
    // The wish to end is remembered.
    QTRY_COMPARE(app.m_frame.m_closed, 1);
}

QTEST_MAIN(StartTroubleTest)
#include "StartTroubleTest.moc"
