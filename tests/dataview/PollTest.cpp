#include "FrameApp.h"

#include "app/PumpMessages.h"
#include "app/platform/SharedBlock.h"
#include "controls/ConnectionIcon.h"
#include "dataview/MeasuredList.h"
#include "recorder/RecorderStatus.h"
#include "support/window/PaintCounter.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

constexpr const char* Status = "p";

/// A recorder that hears no question for its status.
std::vector<std::string> Deaf(std::vector<std::string> options = {})
{
    options.insert(options.end(), {"--fault", std::string("silence=") + Status});
    return options;
}

} // namespace

/// The look for the recorder, once a second.
class PollTest : public QObject
{
    Q_OBJECT

private slots:
    void RecorderIsFoundByItself()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.PlugIn({"--type", "qm70"});
        // The frame's own timer looks.
        QTRY_VERIFY(app.Frame().IsConnected());
        app.Pull();
        QTRY_VERIFY(!app.Frame().IsConnected());
    }

    void StatusBarTellsOfTheRecorder()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        QCOMPARE(app.Frame().PaneText(0), QStringLiteral("Ready"));
        QCOMPARE(app.Frame().PaneText(1), QString());
        QCOMPARE(app.Frame().PaneText(2), QString());
        app.PlugIn({"--type", "qm70", "--alpha"});
        QVERIFY(app.Connect());
        const RecorderStatus& status = app.m_app->Link().Status();
        QVERIFY(!status.m_release.empty());
        QCOMPARE(app.Frame().PaneText(0), QStringLiteral("Connected to KORVA"));
        QCOMPARE(app.Frame().PaneText(1), QStringLiteral(" QM70(Max 50.0G) Alpha"));
        QCOMPARE(app.Frame().PaneText(2),
                 QStringLiteral(" RLS=") + QString::fromStdString(status.m_release));
    }

    void PanesAreWorded_data()
    {
        QTest::addColumn<bool>("alpha");
        QTest::addColumn<QString>("release");
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("pane");
        QTest::newRow("alpha") << true << "2.10"
                               << "1.00"
                               << " QM70(Max 50.0G) Alpha"
                               << " RLS=2.10";
        QTest::newRow("plain") << false << "2.10"
                               << "1.00"
                               << " QM70(Max 50.0G)"
                               << " RLS=2.10";
        QTest::newRow("version for release") << false << ""
                                             << "1.00"
                                             << " QM70(Max 50.0G)"
                                             << " RLS=1.00";
        QTest::newRow("neither") << false << ""
                                 << ""
                                 << " QM70(Max 50.0G)"
                                 << " RLS=";
    }

    void PanesAreWorded()
    {
        QFETCH(const bool, alpha);
        QFETCH(const QString, release);
        QFETCH(const QString, version);
        RecorderStatus status;
        status.m_type = 50;
        status.m_alphaFirmware = alpha;
        status.m_release = release.toStdString();
        status.m_version = version.toStdString();
        const RecorderPanes panes = PanesOf(status);
        QTEST(panes.model, "model");
        QTEST(panes.release, "pane");
    }

    void ConnectionIsToldOnceWithABeep()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.m_hints.clear();
        app.PlugIn({});
        QVERIFY(app.Connect());
        QCOMPARE(app.m_hints, QStringLiteral("2:1 "));
        QCOMPARE(app.m_prompts->m_beeps, 1);
        for (int i = 0; i < 5; ++i)
            app.Frame().Poll().Tick();
        QVERIFY(!app.m_app->Conversation().IsUnderWay());
        QCOMPARE(app.m_hints, QStringLiteral("2:1 "));
        QCOMPARE(app.m_prompts->m_beeps, 1);
        QVERIFY(!app.m_app->m_link.IsOpen());
    }

    void PullingClearsThePanesAndBeeps()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({}));
        auto* const icon = app.View().findChild<CConnectionIcon*>();
        QVERIFY(icon->IsConnected());
        app.m_hints.clear();
        app.Pull();
        QVERIFY(app.Connect(false));
        QCOMPARE(app.Frame().PaneText(0), QStringLiteral("Ready"));
        QCOMPARE(app.Frame().PaneText(1), QString());
        QCOMPARE(app.Frame().PaneText(2), QString());
        QCOMPARE(app.m_hints, QStringLiteral("2:0 "));
        QCOMPARE(app.m_prompts->m_beeps, 2);
        QVERIFY(!icon->IsConnected());
    }

    void NextResetReplacesConnectedByReady()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({}));
        QCOMPARE(app.Frame().PaneText(0), QStringLiteral("Connected to KORVA"));
        app.Frame().SwitchView(ViewIndex::Setup);
        QCOMPARE(app.Frame().PaneText(0), QStringLiteral("Ready"));
        QVERIFY(!app.Frame().PaneText(1).isEmpty());
    }

    void ChangedRangeIsReadWithoutABeep()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--type", "pl20", "--alpha"}));
        const QString before = app.Frame().PaneText(1);
        CRecorderLink& link = app.m_app->Link();
        QVERIFY(link.CanChangeRange());
        QVERIFY(link.ChangeRange());
        app.m_hints.clear();
        QSignalSpy cable(&app.Frame().Poll(), &CRecorderPoll::CableSeen);
        app.Frame().Poll().Tick();
        QTRY_COMPARE(app.m_hints, QStringLiteral("2:1 "));
        QCOMPARE(cable.size(), 1);
        QVERIFY(app.Frame().PaneText(1) != before);
        QCOMPARE(app.m_prompts->m_beeps, 1); // of the connection
        app.Frame().Poll().Tick();
        QVERIFY(!app.m_app->Conversation().IsUnderWay());
    }

    void RecorderThatDoesNotAnswerHoldsNobodyUp()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        auto* const edit = new QLineEdit(&app.View());
        edit->show();
        edit->setFocus();
        app.PlugIn(Deaf());
        app.Frame().Poll().Tick();
        QVERIFY(app.m_app->Conversation().IsUnderWay());
        CPaintCounter paints(app.View());
        for (int i = 0; i < 3; ++i) {
            const int before = paints.m_count;
            app.View().update();
            QTRY_VERIFY(paints.m_count > before);
            app.Press(Qt::Key_A);
        }
        QCOMPARE(edit->text(), QStringLiteral("aaa"));
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
        // All that happened in the same conversation.
        QVERIFY(app.m_app->Conversation().IsUnderWay());
        QVERIFY(!app.Frame().IsConnected());
    }

    void FileIsOpenedWhileARecorderDoesNotAnswer()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.m_prompts->m_paths = {app.WriteLines(QStringLiteral("crate.skd"), 3)};
        app.PlugIn(Deaf());
        app.Frame().Poll().Tick();
        app.View().OnCommand(CommandId::Open);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{3});
        QCOMPARE(app.View().List().model()->rowCount(), 3);
        // Nobody waited for the recorder.
        QVERIFY(app.m_app->Conversation().IsUnderWay());
    }

    void EndDoesNotWaitForARecorderThatDoesNotAnswer()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.PlugIn(Deaf());
        app.Frame().Poll().Tick();
        app.Frame().close();
        QTRY_VERIFY(!app.Frame().isVisible());
        QVERIFY(app.m_app->Conversation().IsUnderWay());
        QElapsedTimer ending;
        ending.start();
        app.End();
        app.m_app.reset();
        QVERIFY(ending.elapsed() < CRecorderTransport::TimeoutMs / 2);
    }

    void RecorderThatDoesNotAnswerIsAskedAgain()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.m_hints.clear();
        app.PlugIn({"--fault", "silence-once=p", "--fault", "silence-once=p"});
        QSignalSpy cable(&app.Frame().Poll(), &CRecorderPoll::CableSeen);
        for (int i = 1; i <= 2; ++i) {
            app.Frame().Poll().Tick();
            QCOMPARE(cable.size(), i);
            QVERIFY(app.m_app->Conversation().IsUnderWay());
            QTRY_VERIFY((app.m_clock.MoveOn(CRecorderTransport::TimeoutMs),
                         !app.m_app->Conversation().IsUnderWay()));
            QVERIFY(!app.Frame().IsConnected());
            QCOMPARE(app.m_hints, QString());
            QCOMPARE(app.Frame().PaneText(0), QStringLiteral("Ready"));
            QCOMPARE(app.m_prompts->m_beeps, 0);
        }
        QVERIFY(app.Connect());
        QCOMPARE(app.m_hints, QStringLiteral("2:1 "));
    }

    void PortThatCanNotBeOpenedLeavesTheStateAsItWas()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.m_hints.clear();
        app.PlugInJunk();
        for (int i = 0; i < 3; ++i) {
            app.Frame().Poll().Tick();
            QTRY_VERIFY(!app.m_app->Conversation().IsUnderWay());
        }
        QVERIFY(!app.Frame().IsConnected());
        QCOMPARE(app.m_hints, QString());
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
        app.RemoveJunk();
        app.PlugIn({});
        QVERIFY(app.Connect());
    }

    void FailedSecondLookKeepsTheConnection()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--type", "pl20", "--alpha"}));
        const QString before = app.Frame().PaneText(1);
        app.m_app->Link().m_rangeChanged = true;
        app.PlugIn({"--type", "pl04", "--fault", "silence-once=p"});
        app.m_hints.clear();
        app.Frame().Poll().Tick();
        QTRY_VERIFY((app.m_clock.MoveOn(CRecorderTransport::TimeoutMs),
                     !app.m_app->Conversation().IsUnderWay()));
        QVERIFY(app.Frame().IsConnected());
        QCOMPARE(app.m_hints, QString());
        QCOMPARE(app.Frame().PaneText(1), before);
        QVERIFY(app.m_app->Link().m_rangeChanged); // the next tick tries again
        app.Frame().Poll().Tick();
        QTRY_COMPARE(app.m_hints, QStringLiteral("2:1 "));
        QVERIFY(app.Frame().PaneText(1) != before);
    }

    void TickIsSkippedDuringATransfer()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.PlugIn({});
        QSignalSpy cable(&app.Frame().Poll(), &CRecorderPoll::CableSeen);
        app.m_app->m_link.m_busy = true;
        app.Frame().Poll().Tick();
        app.m_app->m_link.m_busy = false;
        QVERIFY(!app.m_app->Conversation().IsUnderWay());
        QCOMPARE(cable.size(), 0);
        QVERIFY(app.Connect());
    }

    void TickIsSkippedWhileAnotherProgramHolds()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.PlugIn({});
        QSignalSpy cable(&app.Frame().Poll(), &CRecorderPoll::CableSeen);
        {
            CSharedBlock other(SharedName());
            constexpr int Window = 0;
            constexpr int Hold = 2;
            QVERIFY(other.GetWords()[Window] != 0);
            other.GetWords()[Hold] = 1;
            app.Frame().Poll().Tick();
            QCOMPARE(cable.size(), 0);
            other.GetWords()[Hold] = 0;
        }
        QVERIFY(app.Connect());
    }

    void TickIsSkippedWhileTheBlockIsInUse()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.PlugIn({});
        QSignalSpy cable(&app.Frame().Poll(), &CRecorderPoll::CableSeen);
        CLockFile other;
        QVERIFY(other.Open(SharedName()));
        QCOMPARE(other.TryLock(), CLockFile::Outcome::Taken);
        app.Frame().Poll().Tick();
        QCOMPARE(cable.size(), 0);
        other.Unlock();
        QVERIFY(app.Connect());
    }

    void TickIsSkippedInAConversation()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.PlugIn(Deaf());
        QSignalSpy cable(&app.Frame().Poll(), &CRecorderPoll::CableSeen);
        app.Frame().Poll().Tick();
        app.Frame().Poll().Tick();
        QCOMPARE(cable.size(), 1);
    }

    void TickIsSkippedInTheMiddleOfAnOperation()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.PlugIn({});
        QSignalSpy cable(&app.Frame().Poll(), &CRecorderPoll::CableSeen);
        bool isCalled = false;
        QMetaObject::invokeMethod(
            &app.Frame(),
            [&] {
                isCalled = true;
                QVERIFY(IsPumping());
                app.Frame().Poll().Tick();
            },
            Qt::QueuedConnection);
        PumpMessages();
        QVERIFY(isCalled);
        QCOMPARE(cable.size(), 0);
        QVERIFY(app.Connect());
    }

    void CommandWaitsForTheLook()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.PlugIn({"--type", "qm70", "--fault", "delay=300"});
        app.Frame().Poll().Tick();
        QVERIFY(app.m_app->Conversation().IsUnderWay());
        // Whoever asks for the link gets it once the look is over.
        QVERIFY(!app.m_app->Link().IsOpen());
        QVERIFY(app.Frame().IsConnected());
    }
};

QTEST_MAIN(PollTest)
#include "PollTest.moc"
