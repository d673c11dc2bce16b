#include "FrameApp.h"

#include "dataview/MeasuredList.h"
#include "dataview/WindowPlacement.h"

#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QTest>

#include <array>
#include <limits>

using namespace skeldon;
using namespace skeldon::test;

namespace {

constexpr const char* CtrlVariable = "SKELDON_CTRL_AT_START";
const QString SetupSection = QStringLiteral("Setup2");
const QString DisplaySection = QStringLiteral("Display2");
const QRect Wanted(30, 20, 720, 560);

/// As it is stored: right and bottom lie outside.
void Store(const QString& file, const QString& section, const QRect& rect, int showCommand = 1)
{
    CSettings settings(file);
    settings.WriteProfileRect(section, QStringLiteral("NormalPos"), rect);
    settings.WriteInt(section, QStringLiteral("ShowCmd"), showCommand);
}

QRect Stored(const CSettings& settings, const QString& section)
{
    return settings.GetProfileRect(section, QStringLiteral("NormalPos"), {});
}

QRect PlaceOf(const CMainFrame& frame)
{
    return {frame.pos(), frame.size()};
}

} // namespace

/// Where the main window stands, from switch to switch and from start to start.
class PlacementTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { qunsetenv(CtrlVariable); }
    void cleanup() { qunsetenv(CtrlVariable); }

    void SizesFollowTheForms_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("width");
        QTest::newRow("English") << QStringLiteral("English") << 674;
        QTest::newRow("Japanese") << QStringLiteral("Japanese") << 662;
    }

    void SizesFollowTheForms()
    {
        QFETCH(const QString, language);
        QFETCH(const int, width);
        constexpr int Height = 492;
        CFrameApp app(language);
        QVERIFY(app.Start());
        QCOMPARE(app.Frame().centralWidget()->size(), QSize(width, Height));
        const int bars = app.Frame().menuBar()->height() + app.Frame().statusBar()->height();
        QCOMPARE(app.Frame().size(), QSize(width, Height + bars));
        QCOMPARE(app.Frame().minimumSize(), app.Frame().size());
        QVERIFY(app.Frame().maximumWidth() > 10000);
        app.Frame().resize(100, 100);
        QCOMPARE(app.Frame().size(), QSize(width, Height + bars));
        app.Frame().resize(760, 590);
        QCOMPARE(app.Frame().size(), QSize(760, 590));
    }

    void SetupViewHasOneSize()
    {
        CFrameApp app;
        QVERIFY(app.Start({}));
        const QSize form(744, 450);
        QCOMPARE(app.Frame().centralWidget()->size(), form);
        const int bars = app.Frame().menuBar()->height() + app.Frame().statusBar()->height();
        QCOMPARE(app.Frame().size(), form + QSize(0, bars));
        QCOMPARE(app.Frame().minimumSize(), app.Frame().size());
        QCOMPARE(app.Frame().maximumSize(), app.Frame().size());
        QVERIFY(!app.Frame().statusBar()->isSizeGripEnabled());
        app.Frame().resize(900, 700);
        QCOMPARE(app.Frame().centralWidget()->size(), form);
        app.Frame().SwitchView(ViewIndex::Display);
        QVERIFY(app.Frame().maximumWidth() > 10000);
        app.Frame().resize(780, 590);
        QCOMPARE(app.Frame().size(), QSize(780, 590));
        app.Frame().SwitchView(ViewIndex::Setup);
        QCOMPARE(app.Frame().centralWidget()->size(), form);
    }

    void KeysAreKeptPerView()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.Frame().move(40, 30);
        app.Frame().resize(700, 555);
        app.Frame().SwitchView(ViewIndex::Setup);
        app.Frame().close();
        QTRY_VERIFY(!app.Frame().isVisible());
        app.End();
        QSettings store(app.SettingsFile(), QSettings::IniFormat);
        for (const QString& section : {SetupSection, DisplaySection}) {
            store.beginGroup(section);
            QStringList keys = store.childKeys();
            keys.sort();
            QCOMPARE(keys, QStringList({"Flags", "Length", "MaxPosX", "MaxPosY", "MinPosX",
                                        "MinPosY", "NormalPosBottom", "NormalPosLeft",
                                        "NormalPosRight", "NormalPosTop", "ShowCmd"}));
            store.endGroup();
        }
        QCOMPARE(store.value("Display2/NormalPosLeft").toInt(), 40);
        QCOMPARE(store.value("Display2/NormalPosTop").toInt(), 30);
        QCOMPARE(store.value("Display2/NormalPosRight").toInt(), 40 + 700);
        QCOMPARE(store.value("Display2/NormalPosBottom").toInt(), 30 + 555);
        QCOMPARE(store.value("Display2/ShowCmd").toInt(), 1);
        QCOMPARE(store.value("Setup2/NormalPosLeft").toInt(), 40);
        QCOMPARE(store.value("Setup2/NormalPosTop").toInt(), 30);
        QCOMPARE(store.value("Setup2/NormalPosRight").toInt(), 40 + 744);
    }

    void SecondStartStandsWhereTheFirstEnded()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("kept.ini"));
        for (int i = 0; i < 3; ++i) {
            CFrameApp app(QStringLiteral("English"), file);
            QVERIFY(app.Start());
            if (i == 0)
                app.Frame().setGeometry(QRect(55, 44, 730, 570));
            static QRect place;
            if (i == 0)
                place = PlaceOf(app.Frame());
            QCOMPARE(PlaceOf(app.Frame()), place);
            QCOMPARE(app.Frame().IsPlacementRestored(), true);
            app.Frame().close();
            QTRY_VERIFY(!app.Frame().isVisible());
        }
    }

    void CornerOfTheScreenIsAPlaceToo_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("section");
        QTest::newRow("setup view") << QStringLiteral("-setup") << SetupSection;
        QTest::newRow("data view") << QStringLiteral("-display") << DisplaySection;
    }

    void CornerOfTheScreenIsAPlaceToo()
    {
        QFETCH(const QString, word);
        QFETCH(const QString, section);
        QSize size;
        {
            CFrameApp first;
            QVERIFY(first.Start({word}));
            size = first.Frame().size();
        }
        CFrameApp app;
        Store(app.SettingsFile(), section, QRect(QPoint(0, 0), size));
        QVERIFY(app.Start({word}));
        QCOMPARE(app.Frame().pos(), QPoint(0, 0));
        // What was never moved is placed by the window system, as it likes.
        QVERIFY(app.Frame().testAttribute(Qt::WA_Moved));
    }

    void FirstStartLeavesThePlaceToTheWindowSystem()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        QVERIFY(!app.Frame().testAttribute(Qt::WA_Moved));
    }

    void StoredPlaceIsTaken()
    {
        CFrameApp app;
        Store(app.SettingsFile(), DisplaySection, Wanted);
        QVERIFY(app.Start());
        QCOMPARE(PlaceOf(app.Frame()), Wanted);
        QVERIFY(app.Frame().IsPlacementRestored());
    }

    void SetupViewOnTheWayStandsWhereTheDataViewWill()
    {
        CFrameApp app;
        Store(app.SettingsFile(), DisplaySection, Wanted);
        Store(app.SettingsFile(), SetupSection, QRect(7, 5, 744, 500));
        QPoint onTheWay;
        app.m_made = [&] {
            connect(&app.Frame().Document(), &CSkeldonDoc::Updated, this,
                    [&](DocumentHint hint, int view) {
                        if (hint == DocumentHint::ActiveView && view == 0)
                            onTheWay = app.Frame().pos();
                    });
        };
        QVERIFY(app.Start());
        QCOMPARE(onTheWay, Wanted.topLeft());
    }

    void SetupViewFirstStandsAtItsOwnPlace()
    {
        CFrameApp app;
        Store(app.SettingsFile(), DisplaySection, Wanted);
        Store(app.SettingsFile(), SetupSection, QRect(7, 5, 744, 500));
        QVERIFY(app.Start({}));
        QCOMPARE(app.Frame().pos(), QPoint(7, 5));
        QVERIFY(!app.Frame().IsPlacementRestored());
    }

    void SwitchKeepsTheCorner()
    {
        CFrameApp app;
        Store(app.SettingsFile(), DisplaySection, Wanted);
        QVERIFY(app.Start());
        app.Frame().move(25, 35);
        app.Frame().SwitchView(ViewIndex::Setup);
        QCOMPARE(app.Frame().pos(), QPoint(25, 35));
        QCOMPARE(Stored(app.Settings(), SetupSection).topLeft(), QPoint(25, 35));
        app.Frame().move(15, 45);
        app.Frame().SwitchView(ViewIndex::Display);
        QCOMPARE(PlaceOf(app.Frame()), QRect(QPoint(15, 45), Wanted.size()));
        QCOMPARE(Stored(app.Settings(), DisplaySection), QRect(QPoint(15, 45), Wanted.size()));
    }

    void MaximisedDataViewComesBackMaximised()
    {
        CFrameApp app;
        Store(app.SettingsFile(), DisplaySection, Wanted);
        QVERIFY(app.Start());
        app.Frame().showMaximized();
        QTRY_VERIFY(app.Frame().isMaximized());
        QCOMPARE(Stored(app.Settings(), DisplaySection), Wanted);
        app.Frame().SwitchView(ViewIndex::Setup);
        QTRY_VERIFY(!app.Frame().isMaximized());
        QCOMPARE(app.Frame().centralWidget()->size(), QSize(744, 450));
        QCOMPARE(app.Frame().pos(), Wanted.topLeft());
        QCOMPARE(app.Settings().GetInt(DisplaySection, QStringLiteral("ShowCmd"), -1), 3);
        app.Frame().SwitchView(ViewIndex::Display);
        QTRY_VERIFY(app.Frame().isMaximized());
        QCOMPARE(app.Settings().GetInt(DisplaySection, QStringLiteral("ShowCmd"), -1), 3);
        app.Frame().showNormal();
        QTRY_VERIFY(!app.Frame().isMaximized());
        QCOMPARE(PlaceOf(app.Frame()), Wanted);
    }

    void MaximisedStartKeepsTheNormalPlace()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("kept.ini"));
        Store(file, DisplaySection, Wanted, 3);
        for (int i = 0; i < 2; ++i) {
            CFrameApp app(QStringLiteral("English"), file);
            QVERIFY(app.Start());
            QTRY_VERIFY(app.Frame().isMaximized());
            app.Frame().close();
            QTRY_VERIFY(!app.Frame().isVisible());
            QCOMPARE(Stored(app.Settings(), DisplaySection), Wanted);
            QCOMPARE(app.Settings().GetInt(DisplaySection, QStringLiteral("ShowCmd"), -1), 3);
        }
        CFrameApp app(QStringLiteral("English"), file);
        QVERIFY(app.Start());
        QTRY_VERIFY(app.Frame().isMaximized());
        app.Frame().showNormal();
        QTRY_COMPARE(PlaceOf(app.Frame()), Wanted);
    }

    void BorderOfALargeWindowSurvivesTheWayToIt_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<int>("showCommand");
        for (const char* const word : {"-display", "-setup"}) {
            QTest::addRow("%s", word) << QString::fromLatin1(word) << 1;
            QTest::addRow("%s maximised", word) << QString::fromLatin1(word) << 3;
        }
    }

    void BorderOfALargeWindowSurvivesTheWayToIt()
    {
        QFETCH(const QString, word);
        QFETCH(const int, showCommand);
        constexpr int Border = 450;
        CFrameApp app;
        app.Settings().WriteInt(SystemSection, QStringLiteral("ListBorder"), Border);
        const QRect place = showCommand == 1 ? QRect(10, 10, 720, 770) : Wanted;
        Store(app.SettingsFile(), DisplaySection, place, showCommand);
        QVERIFY(app.Start({word}));
        if (app.Frame().CurrentView() == ViewIndex::Setup)
            app.Frame().SwitchView(ViewIndex::Display);
        QTRY_VERIFY(app.Frame().height() > 750);
        QVERIFY(!app.Frame().IsPlacing());
        QCOMPARE(app.View().List().geometry().bottom() + 1, Border);
        // Only the window's own size holds it.
        app.Frame().showNormal();
        app.Frame().resize(720, 600);
        QTRY_COMPARE(app.View().List().geometry().bottom() + 1, app.View().height() - 234);
    }

    void BorderThatNoWindowHoldsIsBroughtInOnTheWay_data()
    {
        QTest::addColumn<int>("border");
        QTest::addColumn<bool>("isCtrlHeld");
        for (const bool isHeld : {false, true}) {
            const char* const ctrl = isHeld ? " with Ctrl" : "";
            QTest::addRow("largest%s", ctrl) << std::numeric_limits<int>::max() << isHeld;
            QTest::addRow("smallest%s", ctrl) << std::numeric_limits<int>::min() << isHeld;
        }
    }

    void BorderThatNoWindowHoldsIsBroughtInOnTheWay()
    {
        QFETCH(const int, border);
        QFETCH(const bool, isCtrlHeld);
        if (isCtrlHeld)
            qputenv(CtrlVariable, "1");
        for (const char* const word : {"-display", "-setup"}) {
            CFrameApp app;
            app.Settings().WriteInt(SystemSection, QStringLiteral("ListBorder"), border);
            QVERIFY(app.Start({QLatin1String(word)}));
            if (app.Frame().CurrentView() == ViewIndex::Setup)
                app.Frame().SwitchView(ViewIndex::Display);
            QCOMPARE(app.View().List().geometry().bottom() + 1,
                     border > 0 ? app.View().height() - 234 : 96);
        }
    }

    void CtrlAtStartSetsThePlacementAside()
    {
        qputenv(CtrlVariable, "1");
        CFrameApp app;
        Store(app.SettingsFile(), DisplaySection, Wanted, 3);
        QVERIFY(app.Start());
        QVERIFY(!app.Frame().isMaximized());
        QVERIFY(app.Frame().size() != Wanted.size());
        QCOMPARE(app.Frame().centralWidget()->size(), QSize(674, 492));
        QVERIFY(!app.Frame().IsPlacementRestored());
        QVERIFY(!app.Frame().testAttribute(Qt::WA_Moved));
    }

    void CtrlAtStartIsOfTheStartAlone()
    {
        qputenv(CtrlVariable, "1");
        CFrameApp app;
        Store(app.SettingsFile(), DisplaySection, QRect(5, 5, 700, 540));
        QVERIFY(app.Start());
        QCOMPARE(app.Frame().centralWidget()->size(), QSize(674, 492));
        app.Frame().move(Wanted.topLeft());
        app.Frame().resize(Wanted.size());
        app.Frame().SwitchView(ViewIndex::Setup);
        app.Frame().SwitchView(ViewIndex::Display);
        QCOMPARE(PlaceOf(app.Frame()), Wanted);
        QVERIFY(app.Frame().IsPlacementRestored());
    }

    void OtherWordsThanOneAreNoCtrl()
    {
        qputenv(CtrlVariable, "0");
        CFrameApp app;
        Store(app.SettingsFile(), DisplaySection, Wanted);
        QVERIFY(app.Start());
        QCOMPARE(PlaceOf(app.Frame()), Wanted);
    }

    void LostWindowIsBroughtBack_data()
    {
        QTest::addColumn<QRect>("rect");
        QTest::newRow("right") << QRect(50000, 100, 700, 560);
        QTest::newRow("left") << QRect(-5000, 100, 700, 560);
        QTest::newRow("above") << QRect(100, -3000, 700, 560);
        QTest::newRow("below") << QRect(100, 9000, 700, 560);
        QTest::newRow("huge") << QRect(90000, 90000, 200000000, 200000000);
        QTest::newRow("huge from where it is seen") << QRect(10, 10, 200000000, 200000000);
        QTest::newRow("inside out") << QRect(QPoint(9000, 9000), QSize(-700, -500));
    }

    void LostWindowIsBroughtBack()
    {
        QFETCH(const QRect, rect);
        for (const char* const word : {"-display", "-setup"}) {
            CFrameApp app;
            Store(app.SettingsFile(), DisplaySection, rect);
            Store(app.SettingsFile(), SetupSection, rect);
            QVERIFY(app.Start({QLatin1String(word)}));
            const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
            const QRect title(app.Frame().pos(), QSize(app.Frame().width(), 20));
            QVERIFY(screen.intersected(title).width() >= 60);
            QVERIFY(screen.intersected(title).height() >= 20);
            QVERIFY(app.Frame().width() <= std::max(screen.width(), 744));
        }
    }

    void NonsenseIsPassedOver()
    {
        CFrameApp app;
        {
            QSettings store(app.SettingsFile(), QSettings::IniFormat);
            for (const char* const key :
                 {"Length", "Flags", "ShowCmd", "MinPosX", "MinPosY", "MaxPosX", "MaxPosY",
                  "NormalPosLeft", "NormalPosTop", "NormalPosRight", "NormalPosBottom"})
                store.setValue(QStringLiteral("Display2/") + QLatin1String(key), "somewhere");
        }
        QVERIFY(app.Start());
        QVERIFY(!app.Frame().isMaximized());
        QCOMPARE(app.Frame().centralWidget()->size(), QSize(674, 492));
    }

    void WhatTheWindowSystemDoesNotTellStaysAsItWas()
    {
        CFrameApp app;
        {
            CSettings store(app.SettingsFile());
            store.WriteProfilePoint(DisplaySection, QStringLiteral("MinPos"), {-32000, -31000});
            store.WriteProfilePoint(DisplaySection, QStringLiteral("MaxPos"), {-4, -5});
            store.WriteInt(DisplaySection, QStringLiteral("Flags"), 2);
            store.WriteInt(DisplaySection, QStringLiteral("Length"), 44);
        }
        Store(app.SettingsFile(), DisplaySection, Wanted);
        QVERIFY(app.Start());
        app.Frame().move(60, 50);
        app.Frame().close();
        QTRY_VERIFY(!app.Frame().isVisible());
        const CSettings& store = app.Settings();
        QCOMPARE(store.GetProfilePoint(DisplaySection, QStringLiteral("MinPos"), {}),
                 QPoint(-32000, -31000));
        QCOMPARE(store.GetProfilePoint(DisplaySection, QStringLiteral("MaxPos"), {}),
                 QPoint(-4, -5));
        QCOMPARE(store.GetInt(DisplaySection, QStringLiteral("Flags"), -1), 2);
        QCOMPARE(store.GetInt(DisplaySection, QStringLiteral("Length"), -1), 44);
        QCOMPARE(Stored(store, DisplaySection), QRect(QPoint(60, 50), Wanted.size()));
    }

    void MinimisedWindowSavesNothing()
    {
        CFrameApp app;
        Store(app.SettingsFile(), DisplaySection, Wanted);
        QVERIFY(app.Start());
        app.Frame().move(33, 22);
        app.Frame().showMinimized();
        QTRY_VERIFY(app.Frame().isMinimized());
        // Its own place was kept before it went.
        QCOMPARE(Stored(app.Settings(), DisplaySection), QRect(QPoint(33, 22), Wanted.size()));
        Store(app.SettingsFile(), DisplaySection, QRect(1, 2, 700, 600));
        app.Settings().Sync();
        app.Frame().CloseFrame();
        QCOMPARE(Stored(app.Settings(), DisplaySection), QRect(1, 2, 700, 600));
    }

    void SetupViewIsNotSavedMaximised()
    {
        CFrameApp app;
        Store(app.SettingsFile(), SetupSection, {30, 40, 700, 500});
        QVERIFY(app.Start({}));
        app.Frame().move(90, 80);
        app.Frame().setWindowState(Qt::WindowMaximized);
        app.Frame().close();
        QTRY_VERIFY(!app.Frame().isVisible());
        const CSettings store(app.SettingsFile());
        QCOMPARE(store.GetProfileRect(SetupSection, QStringLiteral("NormalPos"), {}),
                 QRect(30, 40, 700, 500));
        QCOMPARE(store.GetInt(SetupSection, QStringLiteral("ShowCmd"), 0), 1);
    }

    void TitleMustBeSeenOnSomeScreen()
    {
        const std::array screens{QRect(0, 0, 1000, 800), QRect(1000, 0, 1000, 800)};
        const QSize size(400, 300);
        for (const QPoint seen :
             {QPoint(0, 0), QPoint(1500, 700), QPoint(-340, 10), QPoint(1940, 10), QPoint(10, 780)})
            QCOMPARE(OnScreens(QRect(seen, size), screens), QRect(seen, size));
        QCOMPARE(OnScreens({QPoint(-341, 10), size}, screens), QRect(QPoint(0, 10), size));
        QCOMPARE(OnScreens({QPoint(1941, 10), size}, screens), QRect(QPoint(600, 10), size));
        QCOMPARE(OnScreens({QPoint(10, 781), size}, screens), QRect(QPoint(10, 500), size));
        QCOMPARE(OnScreens({QPoint(10, -1), size}, screens), QRect(QPoint(10, 0), size));
        QCOMPARE(OnScreens(QRect(5000, 5000, 3000, 2000), screens), screens[0]);
        QCOMPARE(OnScreens(QRect(5000, 5000, 3, 4), {}), QRect(5000, 5000, 3, 4));
        QCOMPARE(OnScreens(QRect(500, 10, 2000, 800), screens), QRect(500, 10, 2000, 800));
        QCOMPARE(OnScreens(QRect(500, 10, 200000000, 801), screens), QRect(500, 10, 2000, 800));
    }
};

QTEST_MAIN(PlacementTest)
#include "PlacementTest.moc"
