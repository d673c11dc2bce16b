#include "ViewApp.h"
#include "chart/view/ChartWnd.h"
#include "controls/ConnectionIcon.h"
#include "controls/SkinButton.h"
#include "dataview/DataViewLayout.h"

#include <QScopeGuard>
#include <QTest>

#include <limits>

using namespace skeldon;
using namespace skeldon::test;

namespace {

constexpr int ButtonCount = static_cast<int>(DataViewButton::Count);
constexpr int TopButtons = 6;
constexpr int Width = CViewApp::Smallest.width();
constexpr int Height = CViewApp::Smallest.height();
const QColor Face(0xEC, 0xE9, 0xD8);
const QColor Grey(0x80, 0x80, 0x80);

QList<QPair<int, int>> PlacesOf(CViewApp& app)
{
    QList<QPair<int, int>> places;
    for (int i = 0; i < ButtonCount; ++i) {
        const QRect place = app.View().Button(static_cast<DataViewButton>(i)).geometry();
        places << qMakePair(place.x(), place.width());
    }
    return places;
}

QList<int> RowsOf(CViewApp& app)
{
    QList<int> rows;
    for (int i = 0; i < ButtonCount; ++i)
        rows << app.View().Button(static_cast<DataViewButton>(i)).y();
    return rows;
}

int BorderOf(CViewApp& app)
{
    return app.List().geometry().bottom() + 1;
}

/// Takes hold of the splitter `below` its top and lets it go at `y`.
void Drag(CViewApp& app, int below, int y)
{
    const int x = 100;
    QTest::mousePress(&app.View(), Qt::LeftButton, {}, {x, BorderOf(app) + below});
    QTest::mouseMove(&app.View(), {x, y});
    QTest::mouseRelease(&app.View(), Qt::LeftButton, {}, {x, y});
}

void StoreBorder(CViewApp& app, int border)
{
    app.Settings().WriteInt(SystemSection, QStringLiteral("ListBorder"), border);
}

int StoredBorder(CViewApp& app)
{
    return app.Settings().GetInt(SystemSection, QStringLiteral("ListBorder"), -1);
}

} // namespace

/// Where everything stands on the data view.
class LayoutTest : public QObject
{
    Q_OBJECT

private slots:
    void ButtonsHaveTheirPlaces()
    {
        CViewApp app;
        app.Show();
        QCOMPARE(PlacesOf(app), (QList<QPair<int, int>>{{8, 76},
                                                        {86, 76},
                                                        {164, 76},
                                                        {242, 100},
                                                        {344, 132},
                                                        {480, 94},
                                                        {8, 44},
                                                        {54, 44},
                                                        {100, 44},
                                                        {146, 80},
                                                        {228, 80},
                                                        {310, 90},
                                                        {402, 80},
                                                        {484, 80},
                                                        {566, 96}}));
        for (int i = 0; i < ButtonCount; ++i)
            QCOMPARE(app.View().Button(static_cast<DataViewButton>(i)).height(), 28);
    }

    void JapaneseButtonsHaveTheirOwnPlaces()
    {
        CViewApp app(QStringLiteral("Japanese"));
        app.Show({658, 488});
        QCOMPARE(PlacesOf(app), (QList<QPair<int, int>>{{8, 76},
                                                        {86, 76},
                                                        {164, 76},
                                                        {242, 100},
                                                        {344, 120},
                                                        {468, 94},
                                                        {8, 66},
                                                        {76, 66},
                                                        {144, 66},
                                                        {212, 66},
                                                        {280, 66},
                                                        {348, 66},
                                                        {418, 66},
                                                        {486, 66},
                                                        {556, 94}}));
    }

    void JapaneseCaptionsAreJapanese()
    {
        CViewApp app(QStringLiteral("Japanese"));
        app.Show({658, 488});
        for (int i = 0; i < ButtonCount; ++i) {
            const QString name = app.View().Button(static_cast<DataViewButton>(i)).accessibleName();
            const bool isJapanese = std::any_of(name.begin(), name.end(),
                                                [](QChar c) { return c.unicode() >= 0x3000; });
            QVERIFY2(isJapanese, qPrintable(name));
        }
    }

    void EnglishCaptionsStandAsGiven()
    {
        CViewApp app;
        app.Show();
        QStringList captions;
        for (int i = 0; i < ButtonCount; ++i)
            captions << app.View().Button(static_cast<DataViewButton>(i)).text();
        QCOMPARE(captions, (QStringList{"Open", "Save", "Print", "Get Data", "Online Recording",
                                        "Setup", "", "", "", "Rsltnt", "deg C", "Humidity", "ZmIn",
                                        "ZmOut", "Properties"}));
    }

    void ButtonsAreCalledByTheirWholeNames()
    {
        CViewApp app;
        app.Show();
        QStringList names;
        for (int i = 0; i < ButtonCount; ++i) {
            const CSkinButton& button = app.View().Button(static_cast<DataViewButton>(i));
            names << button.accessibleName();
            QCOMPARE(button.toolTip(), button.accessibleName());
        }
        QCOMPARE(names, (QStringList{"Open measured data", "Save measured data", "Print",
                                     "Get Data", "Online Recording", "Setup", "X axis", "Y axis",
                                     "Z axis", "Resultant", "Temperature", "Humidity",
                                     "Zoom in on an area", "Zoom out", "Properties of the chart"}));
    }

    void OnlyTheFifteenButtonsAreThere()
    {
        CViewApp app;
        app.Show();
        const auto buttons =
            app.View().findChildren<CSkinButton*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(buttons.size(), ButtonCount);
        for (const CSkinButton* const button : buttons)
            QVERIFY(button->isVisible());
    }

    void SmallestSizeGoesByTheLanguage()
    {
        QCOMPARE(CViewApp().View().SmallestSize(), QSize(670, 488));
        QCOMPARE(CViewApp(QStringLiteral("Japanese")).View().SmallestSize(), QSize(658, 488));
    }

    void BottomRowFollowsTheHeightAndTopRowStays()
    {
        CViewApp app;
        app.Show();
        QList<int> rows = RowsOf(app);
        for (int i = 0; i < ButtonCount; ++i)
            QCOMPARE(rows[i], i < TopButtons ? 3 : Height - 49);
        app.View().resize(800, 700);
        rows = RowsOf(app);
        for (int i = 0; i < ButtonCount; ++i)
            QCOMPARE(rows[i], i < TopButtons ? 3 : 700 - 49);
    }

    void ListAndChartShareTheMiddle()
    {
        CViewApp app;
        app.Show();
        QCOMPARE(app.List().geometry(), QRect(2, 36, 666, 146));
        QCOMPARE(app.View().Chart().geometry(), QRect(2, 186, 666, 248));
        app.View().resize(800, 700);
        QCOMPARE(app.List().geometry(), QRect(2, 36, 796, 146));
        QCOMPARE(app.View().Chart().geometry(), QRect(2, 186, 796, 460));
        QVERIFY(app.List().isVisible());
        QVERIFY(app.View().Chart().isVisible());
    }

    void NothingIsLaidOutBeforeTheInitialUpdate()
    {
        CViewApp app;
        app.View().resize(800, 700);
        app.View().show();
        app.Settle();
        QVERIFY(!app.List().isVisible());
        QVERIFY(!app.View().CanOperate());
    }

    void ConnectionIconStandsAtTheRight()
    {
        CViewApp app;
        app.Show();
        auto* const icon = app.View().findChild<CConnectionIcon*>();
        QCOMPARE(icon->geometry(), QRect(Width - 64, 3, 48, 28));
        app.View().resize(900, Height);
        QCOMPARE(icon->geometry(), QRect(900 - 64, 3, 48, 28));
    }

    void ConnectionIconTellsTheConnection()
    {
        CViewApp app;
        app.Show();
        const QRect icon(Width - 64, 3, 48, 28);
        const QImage apart = app.Picture().copy(icon);
        app.View().OnUpdate(DocumentHint::Connection, 1);
        const QImage connected = app.Picture().copy(icon);
        QVERIFY(connected != apart);
        app.View().OnUpdate(DocumentHint::Connection, 0);
        QCOMPARE(app.Picture().copy(icon), apart);
    }

    void LinesAndBandsArePainted()
    {
        CViewApp app;
        app.Show();
        const QImage picture = app.Picture();
        const int free = Width - 10; // right of the buttons, left of the edge
        QCOMPARE(picture.pixelColor(free, 0), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(free, 1), Face);
        QCOMPARE(picture.pixelColor(free, 32), Face);
        QCOMPARE(picture.pixelColor(free, 33), Grey);
        QCOMPARE(picture.pixelColor(free, 34), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(free, Height - 54), Face);
        QCOMPARE(picture.pixelColor(free, Height - 53), Grey);
        QCOMPARE(picture.pixelColor(free, Height - 52), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(free, Height - 20), Face);
        QCOMPARE(picture.pixelColor(free, Height - 19), Grey);
        for (const int y : {5, 100, Height - 30}) {
            QCOMPARE(picture.pixelColor(0, y), QColor(Qt::white));
            QCOMPARE(picture.pixelColor(Width - 1, y), Grey);
        }
        QCOMPARE(picture.pixelColor(free, 184), Face); // the splitter
    }

    void OlderFaceIsTaken()
    {
        CViewApp app;
        app.m_test.m_app->m_viewBaseColour = 0xC8D0D4;
        app.Show();
        QCOMPARE(app.Picture().pixelColor(Width - 10, Height - 10), QColor(0xD4, 0xD0, 0xC8));
        QCOMPARE(app.Picture().pixelColor(Width - 10, 10), QColor(0xD4, 0xD0, 0xC8));
    }

    void DarkDesktopChangesNothingOfTheForm()
    {
        CViewApp app;
        app.Show();
        const QImage usual = app.Picture();
        const QPalette palette = QApplication::palette();
        QPalette dark(QColor(0x20, 0x20, 0x20));
        QApplication::setPalette(dark);
        const QImage picture = app.Picture();
        QApplication::setPalette(palette);
        const QRect form(0, Height - 53, Width, 53);
        QCOMPARE(picture.copy(form), usual.copy(form));
        const QRect top(0, 0, Width, 35);
        QCOMPARE(picture.copy(top), usual.copy(top));
    }

    void LargeLettersOfTheDesktopChangeNothingOfTheForm_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << QStringLiteral("English");
        QTest::newRow("Japanese") << QStringLiteral("Japanese");
    }

    void LargeLettersOfTheDesktopChangeNothingOfTheForm()
    {
        QFETCH(QString, language);
        const auto pictureWith = [&](const QFont& letters) {
            QApplication::setFont(letters);
            CViewApp app(language);
            app.Show();
            return app.Picture();
        };
        const QFont usual = QApplication::font();
        const auto back = qScopeGuard([&] { QApplication::setFont(usual); });
        QFont large = usual;
        large.setPixelSize(20);
        const QImage form = pictureWith(usual);
        QCOMPARE(pictureWith(large), form);
    }

    void GrabbedBarJumpsByWhatItWasGrabbedBelowItsTop()
    {
        CViewApp app;
        app.Show({Width, 700});
        Drag(app, 0, 200);
        QCOMPARE(BorderOf(app), 200);
        Drag(app, 3, 250);
        QCOMPARE(BorderOf(app), 253);
        QCOMPARE(app.View().Chart().y(), 257);
        QCOMPARE(app.View().Chart().height(), 700 - 54 - 257);
    }

    void BarJumpsAtTheFirstMove()
    {
        CViewApp app;
        app.Show({Width, 700});
        const QPoint grab(100, BorderOf(app) + 2);
        QTest::mousePress(&app.View(), Qt::LeftButton, {}, grab);
        QCOMPARE(BorderOf(app), 182);
        QTest::mouseMove(&app.View(), grab + QPoint(1, 0));
        QCOMPARE(BorderOf(app), 186);
        QTest::mouseRelease(&app.View(), Qt::LeftButton, {}, grab);
    }

    void DragStopsAtItsLimits()
    {
        CViewApp app;
        app.Show();
        for (const int below : {0, 1, 2, 3}) {
            Drag(app, below, 5);
            QCOMPARE(BorderOf(app), 96);
            Drag(app, below, Height - 10);
            QCOMPARE(BorderOf(app), Height - 234);
        }
    }

    void LowestBorderWinsOverTheHighestInALowWindow()
    {
        const CDataViewLayout low({670, 300}, false);
        QCOMPARE(low.ClampListBorder(0), 66);
        QCOMPARE(low.ClampListBorder(96), 66);
        QCOMPARE(low.ClampListBorder(500), 66);
        const CDataViewLayout usual(CDataViewLayout::FormSize(false), false);
        QCOMPARE(usual.ClampListBorder(0), 96);
        QCOMPARE(usual.ClampListBorder(500), 254);
    }

    void OnlyTheBarCanBeDragged()
    {
        CViewApp app;
        app.Show();
        for (const QPoint beside : {QPoint(100, 10), QPoint(0, 183), QPoint(Width - 1, 183)}) {
            QTest::mousePress(&app.View(), Qt::LeftButton, {}, beside);
            QTest::mouseMove(&app.View(), {100, 220});
            QTest::mouseRelease(&app.View(), Qt::LeftButton, {}, {100, 220});
            QCOMPARE(BorderOf(app), 182);
        }
        QTest::mousePress(&app.View(), Qt::RightButton, {}, {100, 183});
        QTest::mouseMove(&app.View(), {100, 220});
        QTest::mouseRelease(&app.View(), Qt::RightButton, {}, {100, 220});
        QCOMPARE(BorderOf(app), 182);
    }

    void ReleasedBarStaysWhereItIs()
    {
        CViewApp app;
        app.Show();
        Drag(app, 0, 200);
        QTest::mouseMove(&app.View(), {100, 240});
        QCOMPARE(BorderOf(app), 200);
    }

    void PointerTellsTheBar()
    {
        CViewApp app;
        app.Show();
        QTest::mouseMove(&app.View(), {100, 184});
        const QCursor splitter = app.View().cursor();
        QCOMPARE(splitter.shape(), Qt::BitmapCursor);
        QCOMPARE(splitter.hotSpot(), QPoint(16, 16));
        const QImage drawn = splitter.pixmap().toImage();
        QCOMPARE(drawn.convertToFormat(QImage::Format_ARGB32_Premultiplied),
                 Picture(PictureId::CursorSplitter, 1)
                     .convertToFormat(QImage::Format_ARGB32_Premultiplied));
        for (const QWidget* const child :
             {app.List().viewport(), static_cast<QWidget*>(&app.View().Chart())})
            QCOMPARE(child->cursor().shape(), Qt::ArrowCursor);
        QTest::mouseMove(&app.View(), {Width - 5, 10});
        QCOMPARE(app.View().cursor().shape(), Qt::ArrowCursor);
    }

    void BorderIsReadAndWritten()
    {
        CViewApp app;
        StoreBorder(app, 230);
        app.Show();
        QCOMPARE(BorderOf(app), 230);
        Drag(app, 0, 210);
        QCOMPARE(StoredBorder(app), 230);
        app.View().OnCommand(CommandId::ViewSetup);
        QCOMPARE(StoredBorder(app), 210);
    }

    void StoredBordersOutsideTheWindowAreBroughtIn_data()
    {
        QTest::addColumn<int>("stored");
        QTest::addColumn<int>("used");
        QTest::newRow("none") << 0 << 96;
        QTest::newRow("negative") << std::numeric_limits<int>::min() << 96;
        QTest::newRow("above the form") << 95 << 96;
        QTest::newRow("highest") << 96 << 96;
        QTest::newRow("lowest") << Height - 234 << Height - 234;
        QTest::newRow("too low") << Height - 233 << Height - 234;
        QTest::newRow("the largest number") << std::numeric_limits<int>::max() << Height - 234;
    }
    void StoredBordersOutsideTheWindowAreBroughtIn()
    {
        QFETCH(int, stored);
        for (const bool isRestored : {false, true}) {
            CViewApp app;
            app.Frame().m_placementRestored = isRestored;
            StoreBorder(app, stored);
            app.Show();
            QTEST(BorderOf(app), "used");
        }
    }

    void BorderThatIsNoNumberIsTheUsualOne()
    {
        CViewApp app;
        app.Settings().WriteText(SystemSection, QStringLiteral("ListBorder"),
                                 QStringLiteral("low"));
        app.Show();
        QCOMPARE(BorderOf(app), 182);
    }

    void SmallerWindowMovesTheBorderOnceAPlacementWasRestored()
    {
        for (const bool isRestored : {false, true}) {
            CViewApp app;
            app.Frame().m_placementRestored = isRestored;
            StoreBorder(app, 400);
            app.Show({Width, 800});
            QCOMPARE(BorderOf(app), 400);
            app.View().resize(Width, 600);
            QCOMPARE(BorderOf(app), isRestored ? 366 : 400);
        }
    }

    void ComingBackLaysOutAgain()
    {
        CViewApp app;
        StoreBorder(app, 300);
        app.Show({Width, 600});
        app.View().resize(Width, 500);
        QCOMPARE(BorderOf(app), 300);
        app.Frame().m_placementRestored = true;
        app.View().OnUpdate(DocumentHint::ActiveView, static_cast<int>(ViewIndex::Setup));
        QCOMPARE(BorderOf(app), 300);
        app.View().OnUpdate(DocumentHint::ActiveView, static_cast<int>(ViewIndex::Display));
        QCOMPARE(BorderOf(app), 266);
    }

    void ChannelButtonsAreKept()
    {
        CViewApp app;
        app.Settings().WriteInt(SystemSection, QStringLiteral("ChkGraphY"), 0);
        app.Settings().WriteInt(SystemSection, QStringLiteral("ChkGraphC"), 0);
        app.Show();
        QVERIFY(app.View().Button(DataViewButton::X).IsPressed());
        QVERIFY(!app.View().Button(DataViewButton::Y).IsPressed());
        QVERIFY(!app.View().Button(DataViewButton::Temperature).IsPressed());
        QVERIFY(app.View().Button(DataViewButton::Humidity).IsPressed());
        app.Click(DataViewButton::X);
        app.Click(DataViewButton::Y);
        app.Click(DataViewButton::Humidity);
        app.View().OnCommand(CommandId::Exit);
        QStringList kept;
        for (const char letter : {'X', 'Y', 'Z', 'G', 'C', 'H'})
            kept << QString::number(app.Settings().GetInt(
                SystemSection, QStringLiteral("ChkGraph") + QLatin1Char(letter), -1));
        QCOMPARE(kept.join(u' '), QStringLiteral("0 1 1 1 0 0"));
    }

    void ChartAndListAreWrittenAsShownAndNeverRead()
    {
        CViewApp app;
        app.Settings().WriteInt(SystemSection, QStringLiteral("ChkGraphView"), 0);
        app.Settings().WriteInt(SystemSection, QStringLiteral("ChkListView"), 0);
        app.Show();
        QVERIFY(app.List().isVisible());
        QVERIFY(app.View().Chart().isVisible());
        app.View().OnCommand(CommandId::Exit);
        QCOMPARE(app.Settings().GetInt(SystemSection, QStringLiteral("ChkGraphView"), -1), 1);
        QCOMPARE(app.Settings().GetInt(SystemSection, QStringLiteral("ChkListView"), -1), 1);
    }

    void SwatchTakesTheStoredColour()
    {
        const auto showsColour = [](CViewApp& app, const QColor& colour) {
            const QImage face = app.View().Button(DataViewButton::Humidity).grab().toImage();
            for (int y = 0; y < face.height(); ++y) {
                for (int x = 0; x < face.width() / 2; ++x) {
                    if (face.pixelColor(x, y) == colour)
                        return true;
                }
            }
            return false;
        };
        const QColor usual(0x49, 0x8B, 0xF9);
        const QColor green(0x00, 0xEE, 0x11);
        {
            CViewApp app;
            app.Show();
            QVERIFY(showsColour(app, usual));
            QVERIFY(!showsColour(app, green));
        }
        CViewApp app;
        app.Settings().WriteInt(SystemSection, QStringLiteral("IconColorH"), 0x11EE00);
        app.Show();
        QVERIFY(showsColour(app, green));
        QVERIFY(!showsColour(app, usual));
    }
};

QTEST_MAIN(LayoutTest)
#include "LayoutTest.moc"
