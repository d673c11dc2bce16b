#include "OnlineApp.h"
#include "StreamRecorder.h"

#include "controls/CableDialog.h"
#include "online/MonitorList.h"
#include "support/window/PaintCounter.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <qpa/qwindowsysteminterface.h>

#include <functional>

using namespace skeldon;
using namespace skeldon::test;

namespace {

/// The monitor window with a recorder connected.
bool ShowConnected(COnlineApp& app)
{
    const bool isUp = app.ShowUp();
    app.Monitor().SetConnected(true);
    return isUp;
}

/// Types a command and presses Enter. `meanwhile` is called again and again while it waits.
void Type(COnlineApp& app, const QString& command, const std::function<void()>& meanwhile)
{
    app.Monitor().m_command->setFocus();
    QTest::keyClicks(app.Monitor().m_command, command);
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        if (app.m_app->Conversation().IsUnderWay())
            meanwhile();
    });
    watch.start(5);
    QTest::keyClick(app.Monitor().windowHandle(), Qt::Key_Return);
}

} // namespace

/// Raw commands and the calibration.
class MonitorCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void CommandIsSentAndItsReplyLogged()
    {
        COnlineApp app;
        app.PlugIn();
        CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(ShowConnected(app));
        QStringList seen;
        Type(app, QStringLiteral("p"), [&] {
            // The reply's mark ends nothing.
            seen = app.Log();
            if (seen.join(QString()).endsWith(QLatin1Char('#')))
                app.m_clock.MoveOn(CRecorderTransport::TimeoutMs);
        });
        QCOMPARE(monitor.m_command->text(), QString());
        QVERIFY(seen.first().endsWith(QLatin1Char('p')));
        QCOMPARE(app.Heard(), QStringLiteral("m p"));
        QVERIFY(app.Link().IsOpen());
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
        QCOMPARE(app.m_prompts->m_beeps, 0);
        // The next operation deals with the open port.
        QVERIFY(app.Link().ReadStatus());
        QVERIFY(!app.Link().IsOpen());
    }

    void LogMovesOnMeanwhileByItself()
    {
        COnlineApp app;
        app.PlugIn();
        CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(ShowConnected(app));
        const QAbstractItemModel& list = *monitor.m_list->model();
        QString last;
        Type(app, QStringLiteral("p"), [&] {
            last = list.index(list.rowCount() - 1, 0).data().toString();
            if (last.endsWith(QLatin1Char('#')))
                app.m_clock.MoveOn(CRecorderTransport::TimeoutMs);
        });
        QVERIFY(last.endsWith(QLatin1Char('#')));
    }

    void EmptyCommandIsSentToo()
    {
        COnlineApp app;
        app.PlugIn();
        app.MakeMonitor();
        QVERIFY(ShowConnected(app));
        bool isWaiting = false;
        Type(app, QString(), [&] {
            isWaiting = true;
            app.m_clock.MoveOn(CRecorderTransport::TimeoutMs);
        });
        QVERIFY(isWaiting);
        QCOMPARE(app.Heard(), QStringLiteral("m"));
        QCOMPARE(app.m_prompts->m_failureBeeps, 0);
    }

    void WindowsPaintAndKeysWaitMeanwhile()
    {
        COnlineApp app;
        app.PlugIn({"--fault", "silence=w"});
        CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(ShowConnected(app));
        CPaintCounter paints(monitor);
        int painted = 0;
        bool isTyped = false;
        QString whileWaiting(QStringLiteral("(never)"));
        Type(app, QStringLiteral("w"), [&] {
            monitor.update();
            if (!isTyped) {
                isTyped = true;
                // As the window system delivers it: into the queue.
                QWindowSystemInterface::handleKeyEvent<
                    QWindowSystemInterface::AsynchronousDelivery>(
                    monitor.windowHandle(), QEvent::KeyPress, Qt::Key_A, Qt::NoModifier,
                    QStringLiteral("a"));
            }
            painted = paints.m_count;
            whileWaiting = monitor.m_command->text();
            if (painted > 5)
                app.m_clock.MoveOn(CRecorderTransport::TimeoutMs);
        });
        QVERIFY(painted > 5);
        QCOMPARE(whileWaiting, QString());
        QTRY_COMPARE(monitor.m_command->text(), QStringLiteral("a"));
    }

    void CommandThatCanNotBeSentShowsNothing()
    {
        COnlineApp app;
        CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(ShowConnected(app));
        Type(app, QStringLiteral("p"), [] {});
        QCOMPARE(monitor.m_command->text(), QString());
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
        QCOMPARE(app.m_prompts->m_beeps + app.m_prompts->m_failureBeeps, 0);
        QCOMPARE(app.Log(), QStringList());
    }

    void EnterWithoutARecorderBeeps()
    {
        COnlineApp app;
        app.PlugIn();
        CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(ShowConnected(app));
        monitor.m_command->setText(QStringLiteral("p"));
        monitor.SetConnected(false);
        QTest::keyClick(monitor.windowHandle(), Qt::Key_Enter);
        QCOMPARE(app.m_prompts->m_failureBeeps, 1);
        QCOMPARE(monitor.m_command->text(), QStringLiteral("p"));
        QVERIFY(monitor.isVisible());
        QCOMPARE(app.Heard(), QString());
    }

    void CalibrationAsksFirst()
    {
        COnlineApp app;
        app.PlugIn();
        CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(ShowConnected(app));
        app.m_prompts->m_answers = {Answer::No};
        QTest::mouseClick(monitor.m_calibrate, Qt::LeftButton);
        QCOMPARE(app.m_prompts->Boxes(),
                 QStringList({QStringLiteral(
                     "Start calibrating. Have your magnet ready.\nAre you sure?")}));
        QCOMPARE(app.m_prompts->m_shown[0].boxKind, BoxKind::YesNo);
        QCOMPARE(app.Heard(), QString());
    }

    void CalibrationEndsWithTheCablePulled()
    {
        COnlineApp app;
        app.PlugIn();
        CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(ShowConnected(app));
        bool isSeen = false;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            if (qobject_cast<CCableDialog*>(QApplication::activeModalWidget()) == nullptr)
                return;
            isSeen = true;
            app.m_port.clear();
        });
        watch.start(5);
        QTest::mouseClick(monitor.m_calibrate, Qt::LeftButton);
        QVERIFY(isSeen);
        QCOMPARE(app.Heard(), QStringLiteral("m w99"));
        QVERIFY(!app.Link().IsOpen());
        QCOMPARE(app.m_prompts->Boxes().size(), 1);
    }

    void CalibrationThatCanNotStartSaysSo()
    {
        COnlineApp app;
        CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(ShowConnected(app));
        QTest::mouseClick(monitor.m_calibrate, Qt::LeftButton);
        QCOMPARE(app.m_prompts->Boxes().last(), QStringLiteral("Could not start calibrating."));
        QCOMPARE(app.m_prompts->m_shown.back().boxKind, BoxKind::Warning);
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
    }
};

QTEST_MAIN(MonitorCommandTest)
#include "MonitorCommandTest.moc"
