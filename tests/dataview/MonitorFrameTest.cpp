#include "FrameApp.h"

#include "online/MonitorDialog.h"

#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

/// The monitor window's life beside the main window.
class MonitorFrameTest : public QObject
{
    Q_OBJECT

private slots:
    void WindowIsThereFromTheStartAndHidden()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        QVERIFY(!app.Frame().Monitor().isVisible());
        QCOMPARE(app.m_app->m_link.m_monitor.get(), &app.Frame().Monitor());
    }

    void CommandShowsItAboveTheMainWindow()
    {
        CFrameApp app;
        QVERIFY(app.Start({QStringLiteral("-mon")}));
        CMonitorDialog& monitor = app.Frame().Monitor();
        app.Frame().OnCommand(CommandId::Monitor);
        QVERIFY(QTest::qWaitForWindowActive(&monitor));
        QVERIFY(app.m_app->m_link.m_monitorShown);
        QCOMPARE(monitor.windowHandle()->transientParent(), app.Frame().windowHandle());
        QVERIFY(monitor.parentWidget() == nullptr);
    }

    void CommandBoxFollowsTheCable()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        CMonitorDialog& monitor = app.Frame().Monitor();
        QVERIFY(!monitor.m_command->isEnabled());
        app.PlugIn({});
        QVERIFY(app.Connect());
        QVERIFY(monitor.m_command->isEnabled());
        QVERIFY(monitor.m_calibrate->isEnabled());
        app.Pull();
        QVERIFY(app.Connect(false));
        QVERIFY(!monitor.m_command->isEnabled());
    }

    void BoxIsOpenToARecorderThatDoesNotAnswer()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.PlugIn({"--fault", "silence=p"});
        QTRY_VERIFY(app.Frame().Monitor().m_command->isEnabled());
        QVERIFY(!app.Frame().IsConnected());
    }

    void ReadBackRestsItsButtons()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "500"}));
        CMonitorDialog& monitor = app.Frame().Monitor();
        app.m_app->m_link.m_alwaysWatched = true;
        bool isResting = false;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            isResting |= !monitor.m_copy->isEnabled() && !monitor.m_command->isEnabled();
        });
        watch.start(1);
        app.View().OnCommand(CommandId::GetData);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{500});
        QVERIFY(isResting);
        QTRY_VERIFY(monitor.m_copy->isEnabled());
        QVERIFY(monitor.m_command->isEnabled());
    }

    void EndHidesItAndItGoesWithTheLink()
    {
        QTemporaryDir folder;
        const QString settings = folder.filePath(QStringLiteral("kept.ini"));
        QPointer<CMonitorDialog> monitor;
        {
            CFrameApp app(QStringLiteral("English"), settings);
            QVERIFY(app.Start());
            monitor = &app.Frame().Monitor();
            app.Frame().OnCommand(CommandId::Monitor);
            monitor->resize(600, 400);
            app.Frame().CloseFrame();
            QVERIFY(!app.Frame().isVisible());
            QVERIFY(!monitor->isVisible());
            QVERIFY(!app.m_app->m_link.m_monitorShown);
            app.End();
            QVERIFY(!monitor.isNull());
        }
        QVERIFY(monitor.isNull());
        QCOMPARE(CSettings(settings).GetProfileRect(SystemSection, "Monitor", {}).size(),
                 QSize(600, 400));
    }
};

QTEST_MAIN(MonitorFrameTest)
#include "MonitorFrameTest.moc"
