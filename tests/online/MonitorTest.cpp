#include "OnlineApp.h"

#include "online/MonitorList.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <thread>

using namespace skeldon;
using namespace skeldon::test;

/// The monitor window: log, limits, buttons.
class MonitorTest : public QObject
{
    Q_OBJECT

private slots:
    void StartsHidden()
    {
        COnlineApp app;
        const CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(!monitor.isVisible());
        QVERIFY(!monitor.isModal());
        QCOMPARE(monitor.windowTitle(), QStringLiteral("SKELDON - Monitor"));
        QVERIFY(!app.Link().m_monitorShown);
        QVERIFY(!app.Link().m_alwaysWatched);
        QCOMPARE(app.Log(), QStringList());
    }

    void TrafficIsLoggedOnceItIsShown()
    {
        COnlineApp app;
        app.PlugIn({"--type", "qm70"});
        app.MakeMonitor();
        QVERIFY(app.Link().ReadStatus());
        QCOMPARE(app.Log(), QStringList());
        QVERIFY(app.ShowUp());
        QVERIFY(app.Link().m_monitorShown);
        QVERIFY(app.Link().ReadStatus());
        const QStringList log = app.Log();
        // The recorder's answer to being woken is not closed, so that the command hangs on.
        QCOMPARE(log.first(), QStringLiteral("mp"));
        QVERIFY(log.size() > 1);
        QVERIFY(log.join(QString()).contains(QStringLiteral("@")));
        QVERIFY(log.join(QString()).endsWith(QLatin1Char('#')));
    }

    void PendingLinesMoveByThemselves()
    {
        COnlineApp app;
        CMonitorDialog& monitor = app.MakeMonitor();
        monitor.ReportCommand("p");
        QCOMPARE(monitor.m_list->model()->rowCount(), 0);
        QTRY_COMPARE(monitor.m_list->model()->rowCount(), 1);
    }

    void LineWithoutEndGrowsInItsPlace()
    {
        COnlineApp app;
        CMonitorDialog& monitor = app.MakeMonitor();
        monitor.ReportBytes("00\r");
        QString grown;
        for (int i = 0; i < 50; ++i) {
            monitor.ReportBytes("1234567890");
            grown += QStringLiteral("1234567890");
            QCOMPARE(app.Log(), QStringList({QStringLiteral("00"), grown}));
        }
        QCOMPARE(app.Log().size(), 2);
    }

    void HiddenWindowLogsNothingUnlessAlwaysWatched()
    {
        COnlineApp app;
        app.PlugIn();
        CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(app.ShowUp());
        QVERIFY(app.Link().ReadStatus());
        const QStringList old = app.Log();
        QTest::mouseClick(monitor.m_close, Qt::LeftButton);
        QVERIFY(!monitor.isVisible());
        QVERIFY(!app.Link().m_monitorShown);
        QVERIFY(app.Link().ReadStatus());
        // The old log is still there.
        QVERIFY(app.ShowUp());
        QCOMPARE(app.Log(), old);
        QTest::keyClick(monitor.m_alwaysWatched, Qt::Key_Space);
        QVERIFY(app.Link().m_alwaysWatched);
        monitor.close();
        QVERIFY(app.Link().ReadStatus());
        QVERIFY(app.Log().size() > old.size());
        QTest::keyClick(monitor.m_alwaysWatched, Qt::Key_Space);
        QVERIFY(!app.Link().m_alwaysWatched);
    }

    void WindowIsHiddenAndNotDestroyed_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("button") << 0;
        QTest::newRow("Escape") << 1;
        QTest::newRow("title bar") << 2;
    }

    void WindowIsHiddenAndNotDestroyed()
    {
        QFETCH(int, way);
        COnlineApp app;
        CMonitorDialog& monitor = app.MakeMonitor();
        for (int i = 0; i < 2; ++i) {
            QVERIFY(app.ShowUp());
            QVERIFY(app.Link().m_monitorShown);
            switch (way) {
            case 0:
                QTest::mouseClick(monitor.m_close, Qt::LeftButton);
                break;
            case 1:
                QTest::keyClick(monitor.windowHandle(), Qt::Key_Escape);
                break;
            default:
                monitor.close();
            }
            QVERIFY(!monitor.isVisible());
            QVERIFY(!app.Link().m_monitorShown);
        }
    }

    void ControlsFollowTransferAndConnection_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("connected");
        for (const bool enabled : {false, true}) {
            for (const bool connected : {false, true})
                QTest::addRow("%d %d", enabled, connected) << enabled << connected;
        }
    }

    void ControlsFollowTransferAndConnection()
    {
        QFETCH(bool, enabled);
        QFETCH(bool, connected);
        COnlineApp app;
        CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(monitor.m_set->isEnabled());
        QVERIFY(!monitor.m_calibrate->isEnabled());
        monitor.SetConnected(connected);
        monitor.SetEnabled(enabled);
        for (const QWidget* const control : {monitor.m_set, monitor.m_copy, monitor.m_clear})
            QCOMPARE(control->isEnabled(), enabled);
        const bool both = enabled && connected;
        QCOMPARE(monitor.m_calibrate->isEnabled(), both);
        QCOMPARE(monitor.m_commandLabel->isEnabled(), both);
        QCOMPARE(monitor.m_command->isEnabled(), both);
        QVERIFY(monitor.m_close->isEnabled());
        QVERIFY(monitor.m_alwaysWatched->isEnabled());
        QVERIFY(monitor.m_list->isEnabled());
    }

    void AnotherThreadsTransferIsTakenNoteOfInTurn()
    {
        COnlineApp app;
        CMonitorDialog& monitor = app.MakeMonitor();
        std::thread([&] { monitor.SetEnabled(false); }).join();
        QVERIFY(monitor.m_set->isEnabled());
        QTRY_VERIFY(!monitor.m_set->isEnabled());
        // By whoever the end is told, it is not overtaken.
        std::thread([&] {
            monitor.SetEnabled(true);
            monitor.SetEnabled(false);
            monitor.SetEnabled(true);
        }).join();
        QTRY_VERIFY(monitor.m_set->isEnabled());
    }

    void LimitOfTheSettingsIsTakenAsItIs_data()
    {
        QTest::addColumn<int>("limit");
        QTest::addColumn<int>("kept");
        QTest::newRow("below the least") << 50 << 51;
        QTest::newRow("zero") << 0 << 1;
        QTest::newRow("negative") << -7 << 1;
        QTest::newRow("above the most") << 2'000'000'000 << 200;
    }

    void LimitOfTheSettingsIsTakenAsItIs()
    {
        QFETCH(int, limit);
        QFETCH(int, kept);
        COnlineApp app;
        app.Set("MonitorLines", limit);
        CMonitorDialog& monitor = app.MakeMonitor();
        QCOMPARE(monitor.m_maxLinesEdit->text(), QString::number(limit));
        for (int i = 0; i < 200; ++i)
            monitor.ReportCommand(std::to_string(i));
        const QStringList log = app.Log();
        QCOMPARE(log.size(), kept);
        QCOMPARE(log.last(), QStringLiteral("199"));
        QCOMPARE(app.Settings().GetInt(SystemSection, "MonitorLines", 0), limit);
    }

    void LimitIsThirtyThousandAtFirst()
    {
        COnlineApp app;
        QCOMPARE(app.MakeMonitor().m_maxLinesEdit->text(), QStringLiteral("30000"));
    }

    void SetHoldsTheLimitToItsRange_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("limit");
        QTest::newRow("in range") << "150" << 150;
        QTest::newRow("least") << "100" << 100;
        QTest::newRow("too few") << "99" << 100;
        QTest::newRow("negative") << "-5" << 100;
        QTest::newRow("no number") << "many" << 100;
        QTest::newRow("nothing") << "" << 100;
        QTest::newRow("most") << "9999999" << 9'999'999;
        QTest::newRow("too many") << "10000000" << 9'999'999;
        QTest::newRow("more than can be counted") << "4294967446" << 9'999'999;
        QTest::newRow("far too many") << "99999999999999" << 9'999'999;
    }

    void SetHoldsTheLimitToItsRange()
    {
        QFETCH(QString, typed);
        QFETCH(int, limit);
        COnlineApp app;
        CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(app.ShowUp());
        monitor.m_maxLinesEdit->clear();
        QTest::keyClicks(monitor.m_maxLinesEdit, typed);
        QTest::mouseClick(monitor.m_set, Qt::LeftButton);
        QCOMPARE(monitor.m_maxLinesEdit->text(), QString::number(limit));
        QCOMPARE(app.Settings().GetInt(SystemSection, "MonitorLines", 0), limit);
        QCOMPARE(app.m_prompts->m_beeps, 1);
        QCOMPARE(app.m_prompts->m_failureBeeps, 0);
    }

    void SetDropsLinesFromTheTopAndShowsTheEnd()
    {
        COnlineApp app;
        CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(app.ShowUp());
        for (int i = 0; i < 500; ++i)
            monitor.ReportCommand(std::to_string(i));
        monitor.Tick();
        monitor.m_list->scrollToTop();
        monitor.m_maxLinesEdit->setText(QStringLiteral("120"));
        QTest::mouseClick(monitor.m_set, Qt::LeftButton);
        const QStringList log = app.Log();
        QCOMPARE(log.size(), 120);
        QCOMPARE(log.first(), QStringLiteral("380"));
        QCOMPARE(log.last(), QStringLiteral("499"));
        QVERIFY(monitor.m_list->visualRect(monitor.m_list->model()->index(119, 0)).bottom() <=
                monitor.m_list->viewport()->height());
        // From now on each line drops one.
        monitor.ReportCommand("500");
        monitor.ReportCommand("501");
        QCOMPARE(app.Log().size(), 121);
        QCOMPARE(app.Log().first(), QStringLiteral("381"));
    }

    void CopyPutsAllLinesOnTheClipboard()
    {
        COnlineApp app;
        CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(app.ShowUp());
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
        QTest::mouseClick(monitor.m_copy, Qt::LeftButton);
        QCOMPARE(app.m_prompts->m_failureBeeps, 1);
        QCOMPARE(app.m_prompts->m_beeps, 0);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
        monitor.ReportCommand("p");
        monitor.ReportBytes("RLS=1\rOK#");
        monitor.Tick();
        QTest::mouseClick(monitor.m_copy, Qt::LeftButton);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("p\r\nRLS=1\r\nOK#\r\n"));
        QCOMPARE(app.m_prompts->m_failureBeeps, 1);
        QCOMPARE(app.m_prompts->m_beeps, 1);
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
    }

    void ClearEmptiesTheListAndWhatIsPending()
    {
        COnlineApp app;
        CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(app.ShowUp());
        monitor.ReportBytes("A\r01");
        monitor.Tick();
        monitor.ReportBytes("02");
        QTest::mouseClick(monitor.m_clear, Qt::LeftButton);
        QCOMPARE(app.Log(), QStringList());
        monitor.ReportBytes("03");
        QCOMPARE(app.Log(), QStringList({QStringLiteral("03")}));
    }

    void EnterOnAButtonPressesIt()
    {
        COnlineApp app;
        CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(app.ShowUp());
        monitor.ReportCommand("p");
        monitor.Tick();
        monitor.m_clear->setFocus();
        QTest::keyClick(monitor.windowHandle(), Qt::Key_Return);
        QCOMPARE(app.Log(), QStringList());
        QCOMPARE(app.m_prompts->m_failureBeeps, 0);
        QVERIFY(monitor.isVisible());
    }

    void TextsAreJapaneseInJapan()
    {
        COnlineApp app(QStringLiteral("Japanese"));
        const CMonitorDialog& monitor = app.MakeMonitor();
        QCOMPARE(monitor.m_alwaysWatched->text(), QStringLiteral("常に監視する(&A)"));
        // All of each text can be read at the smallest size.
        for (const QWidget* const control : {static_cast<const QWidget*>(monitor.m_alwaysWatched),
                                             static_cast<const QWidget*>(monitor.m_calibrate),
                                             static_cast<const QWidget*>(monitor.m_copy)})
            QVERIFY(control->sizeHint().width() <= monitor.width() / 2);
    }
};

QTEST_MAIN(MonitorTest)
#include "MonitorTest.moc"
