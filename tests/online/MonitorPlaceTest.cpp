#include "OnlineApp.h"

#include "online/MonitorList.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

const QString Key = QStringLiteral("Monitor");

QRect PlaceOf(const QWidget& window)
{
    return {window.pos(), window.size()};
}

QRect Stored(const COnlineApp& app)
{
    return CSettings(app.m_settingsFile).GetProfileRect(SystemSection, Key, {});
}

} // namespace

/// Where the monitor window stands, and how its parts follow its size.
class MonitorPlaceTest : public QObject
{
    Q_OBJECT

private slots:
    void PlaceIsRememberedWhenTheWindowGoes()
    {
        const QRect place(120, 90, 560, 420);
        QTemporaryDir folder;
        const QString settings = folder.filePath(QStringLiteral("kept.ini"));
        {
            COnlineApp app(QStringLiteral("English"), settings);
            app.MakeMonitor();
            app.Link().ShowMonitor();
            app.Monitor().move(place.topLeft());
            app.Monitor().resize(place.size());
            app.Monitor().close();
        }
        COnlineApp again(QStringLiteral("English"), settings);
        QCOMPARE(Stored(again), place);
        QCOMPARE(PlaceOf(again.MakeMonitor()), place);
        again.Link().ShowMonitor();
        QCOMPARE(PlaceOf(again.Monitor()), place);
    }

    void PlaceOfAWindowThatNeverCameUpIsKept()
    {
        const QRect place(120, 90, 560, 420);
        COnlineApp app;
        app.Settings().WriteProfileRect(SystemSection, Key, place);
        app.MakeMonitor();
        app.Link().SetMonitor(nullptr);
        QCOMPARE(app.Settings().GetProfileRect(SystemSection, Key, {}), place);
    }

    void FirstPlaceIsTheMiddleOfTheScreen()
    {
        COnlineApp app;
        app.MakeMonitor();
        const QSize size = app.Monitor().size();
        app.Link().SetMonitor(nullptr);
        const QRect stored = app.Settings().GetProfileRect(SystemSection, Key, {});
        QCOMPARE(stored.size(), size);
        QCOMPARE(stored.center(), QGuiApplication::primaryScreen()->availableGeometry().center());
    }

    void PlaceWithoutTheOldOneIsRememberedToo()
    {
        COnlineApp app;
        app.Settings().WriteProfileRect(SystemSection, Key, {120, 90, 560, 460});
        app.m_app->m_ctrlAtStart = true;
        app.MakeMonitor();
        app.Link().SetMonitor(nullptr);
        const QRect stored = app.Settings().GetProfileRect(SystemSection, Key, {});
        QVERIFY(stored.size() != QSize(560, 460));
        QVERIFY(stored.topLeft() != QPoint(120, 90));
    }

    void CtrlSetsThePlaceAside_data()
    {
        QTest::addColumn<bool>("atStart");
        QTest::newRow("at the program's start") << true;
        QTest::newRow("now") << false;
    }

    void CtrlSetsThePlaceAside()
    {
        QFETCH(bool, atStart);
        COnlineApp app;
        app.Settings().WriteProfileRect(SystemSection, Key, {120, 90, 560, 460});
        app.m_app->m_ctrlAtStart = atStart;
        if (!atStart)
            qputenv("SKELDON_CTRL_AT_START", "1");
        const CMonitorDialog& monitor = app.MakeMonitor();
        qunsetenv("SKELDON_CTRL_AT_START");
        QCOMPARE(monitor.size(), monitor.minimumSize());
    }

    void PlaceOffTheScreensGivesTheSizeAlone()
    {
        COnlineApp app;
        app.Settings().WriteProfileRect(SystemSection, Key, {-5000, 90, 560, 420});
        app.MakeMonitor();
        QCOMPARE(app.Monitor().size(), QSize(560, 420));
        app.Link().ShowMonitor();
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        QVERIFY(screen.intersects(app.Monitor().geometry()));
    }

    void SizeIsHeldBetweenTheSmallestAndTheScreen()
    {
        COnlineApp app;
        app.Settings().WriteProfileRect(SystemSection, Key, {10, 10, 5, 7});
        const CMonitorDialog& small = app.MakeMonitor();
        QCOMPARE(small.size(), small.minimumSize());
        app.Settings().WriteProfileRect(SystemSection, Key, {10, 10, 90'000, 80'000});
        const CMonitorDialog& large = app.MakeMonitor();
        QCOMPARE(large.size(), QGuiApplication::primaryScreen()->availableSize());
    }

    void WindowIsNotSmallerThanAtFirst()
    {
        COnlineApp app;
        CMonitorDialog& monitor = app.MakeMonitor();
        const QSize first = monitor.size();
        app.Link().ShowMonitor();
        monitor.resize(10, 10);
        QCOMPARE(monitor.size(), first);
    }

    void PartsFollowTheSize()
    {
        COnlineApp app;
        CMonitorDialog& monitor = app.MakeMonitor();
        app.Link().ShowMonitor();
        QVERIFY(QTest::qWaitForWindowExposed(&monitor));
        const auto places = [&] {
            return QList<QRect>{monitor.m_command->geometry(),  monitor.m_list->geometry(),
                                monitor.m_copy->geometry(),     monitor.m_clear->geometry(),
                                monitor.m_close->geometry(),    monitor.m_set->geometry(),
                                monitor.m_calibrate->geometry()};
        };
        const QList<QRect> before = places();
        const int lines = monitor.m_list->VisibleLines();
        const QSize by(130, 200);
        monitor.resize(monitor.size() + by);
        QTRY_COMPARE(places()[0], before[0].adjusted(0, 0, by.width(), 0));
        QCOMPARE(places()[1], before[1].adjusted(0, 0, by.width(), by.height()));
        QCOMPARE(places()[2], before[2].translated(0, by.height()));
        QCOMPARE(places()[3], before[3].translated(0, by.height()));
        QCOMPARE(places()[4], before[4].translated(by.width(), by.height()));
        QCOMPARE(places()[5], before[5]);
        QCOMPARE(places()[6], before[6]);
        QVERIFY(monitor.m_list->VisibleLines() > lines);
    }
};

QTEST_MAIN(MonitorPlaceTest)
#include "MonitorPlaceTest.moc"
