#include "FrameApp.h"
#include "StripWatch.h"

#include "base/CalendarTime.h"
#include "controls/SkinButton.h"
#include "data/RecordFlags.h"
#include "dataview/MeasuredList.h"

#include <QAbstractItemModel>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

void GetData(CFrameApp& app)
{
    app.Press(Qt::Key_D, Qt::ControlModifier);
}

/// Whether the strip's text is drawn in about this colour.
bool ShowsInk(CProgressWindow& strip, const QColor& ink)
{
    const QImage picture = strip.grab().toImage().convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 60; x < picture.width() - 60; ++x) {
            if (picture.pixelColor(x, y) == ink)
                return true;
        }
    }
    return false;
}

} // namespace

/// Get data on a recorder that does what it should, or nearly.
class GetDataTest : public QObject
{
    Q_OBJECT

private slots:
    void AllLinesArrive()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "100", "--type", "qm70", "--alpha"}));
        CStripWatch watch;
        GetData(app);
        const CMeasureData& data = app.View().Data();
        QCOMPARE(data.GetSize(), std::size_t{100});
        QCOMPARE(data.m_modelName, std::string("QM70"));
        QCOMPARE(data.m_typeNumber, 50);
        QVERIFY(data.m_hasTemperature);
        QVERIFY(data.m_hasHumidity);
        QCOMPARE(data.m_abnormalCount, std::size_t{0});
        QVERIFY(!data.SignatureUnchanged());
        QCOMPARE(app.Frame().windowTitle(), QStringLiteral("SKELDON Light - Unsaved"));
        QCOMPARE(app.View().DataPath(), QStringLiteral("Unsaved"));
        QVERIFY2(app.View().Summary().contains(QStringLiteral("100")),
                 qPrintable(app.View().Summary()));
        QCOMPARE(app.View().List().model()->rowCount(), 100);
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
        QVERIFY(app.View().HasData());
        QVERIFY(!app.View().CanSave());
        QVERIFY(!app.m_app->Link().IsOpen());
        QVERIFY(!app.m_app->Link().m_busy);
        QVERIFY(watch.m_looks > 0);
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    }

    void CaptionIsUnsavedInTheLanguage()
    {
        CFrameApp app(QStringLiteral("Japanese"));
        QVERIFY(app.StartWith({"--lines", "3"}));
        GetData(app);
        QVERIFY(Text(StringId::Unsaved) != QStringLiteral("Unsaved"));
        QCOMPARE(app.Frame().windowTitle(),
                 QStringLiteral("SKELDON Light - ") + Text(StringId::Unsaved));
    }

    void GaugeMovesEveryFortyLines()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "400"}));
        CStripWatch watch;
        int range = 0;
        watch.m_look = [&](CProgressWindow& strip) {
            if (!strip.GetText().isEmpty())
                range = strip.Range();
        };
        GetData(app);
        QCOMPARE(range, 400);
        QCOMPARE(watch.m_positions,
                 std::vector<int>({0, 40, 80, 120, 160, 200, 240, 280, 320, 360}));
    }

    void StripStandsInTheMiddleAndIsModal()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "100"}));
        CStripWatch watch;
        bool isSeen = false;
        watch.m_look = [&](CProgressWindow& strip) {
            if (std::exchange(isSeen, true))
                return;
            QVERIFY(strip.isModal());
            QCOMPARE(strip.size(), QSize(400, 48));
            QVERIFY(strip.windowFlags().testFlag(Qt::FramelessWindowHint));
            const QRect view(app.View().mapToGlobal(QPoint()), app.View().size());
            const QPoint off = strip.frameGeometry().center() - view.center();
            QVERIFY(off.manhattanLength() <= 2);
        };
        GetData(app);
        QVERIFY(isSeen);
    }

    void OtherMessagesOfTheStripAreIgnored()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "100"}));
        CStripWatch watch;
        std::vector<std::size_t> lines;
        watch.m_look = [&](CProgressWindow& strip) {
            if (!lines.empty())
                return;
            for (const int code : {0, 2, -1})
                emit strip.ProgressMessage(code, &strip);
            lines.push_back(app.View().Data().GetSize());
            QCOMPARE(strip.Range(), 100); // that of every strip: the work has not begun
            QVERIFY(strip.GetText().isEmpty());
        };
        GetData(app);
        QCOMPARE(lines, std::vector<std::size_t>{0});
        QCOMPARE(app.View().Data().GetSize(), std::size_t{100});
    }

    void WarningBlinksByTheLines()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "1600"}));
        CStripWatch watch;
        QList<int> wrong;
        int reds = 0;
        int whites = 0;
        int before = -1;
        watch.m_look = [&](CProgressWindow& strip) {
            // The warning is set before the gauge moves to the same line.
            if (strip.GetText().isEmpty() || strip.Position() == before)
                return;
            before = strip.Position();
            QCOMPARE(strip.GetText(), QStringLiteral("Do not separate KORVA"));
            const bool isRed = (strip.Position() & 512) != 0;
            (isRed ? reds : whites) += 1;
            if (ShowsInk(strip, Qt::red) != isRed)
                wrong += strip.Position();
        };
        GetData(app);
        QCOMPARE(wrong, QList<int>());
        // 40 lines a look: 520 to 1000 and 1560 are red.
        QCOMPARE(reds, 13 + 1);
        QCOMPARE(whites, 40 - 14);
    }

    void NothingElseCanBeCommandedMeanwhile()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "400"}));
        CStripWatch watch;
        bool canOperate = false;
        bool isTicked = false;
        connect(&app.Frame().Poll(), &CRecorderPoll::CableSeen, this, [&] { isTicked = true; });
        watch.m_look = [&](CProgressWindow& strip) {
            if (strip.GetText().isEmpty())
                return;
            canOperate = canOperate || app.View().CanOperate();
            app.Frame().Poll().Tick();
            app.Press(Qt::Key_O, Qt::ControlModifier);
            app.Press(Qt::Key_D, Qt::ControlModifier);
            QTest::keyClick(&strip, Qt::Key_Escape);
            strip.close();
            app.View().OnCommand(CommandId::Open);
            app.View().OnCommand(CommandId::ViewSetup);
            const QWidget& button = app.View().Button(DataViewButton::Setup);
            QTest::mouseClick(app.Frame().windowHandle(), Qt::LeftButton, {},
                              button.mapTo(&app.Frame(), button.rect().center()));
        };
        GetData(app);
        QVERIFY(watch.m_looks >= 10);
        QVERIFY(!canOperate);
        QVERIFY(!isTicked);
        QCOMPARE(app.m_prompts->m_shown.size(), std::size_t{0});
        QCOMPARE(app.Frame().CurrentView(), ViewIndex::Display);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{400});
        QVERIFY(app.View().CanOperate());
    }

    void CloseWaitsForTheEnd()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "400"}));
        CStripWatch watch;
        bool isWanted = false;
        bool isLost = false;
        watch.m_look = [&](CProgressWindow& strip) {
            if (!strip.GetText().isEmpty() && !std::exchange(isWanted, true))
                app.Frame().close();
            isLost = isLost || !app.Frame().isVisible() || !app.m_prompts->m_shown.empty();
        };
        // Behind the work the exit command runs, maybe before the key is let go; it asks about the
        // data.
        app.m_prompts->m_answers = {Answer::No};
        GetData(app);
        QVERIFY(isWanted);
        QVERIFY(!isLost);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{400});
        QTRY_VERIFY(!app.Frame().isVisible());
        QCOMPARE(app.m_prompts->Boxes(),
                 QStringList(QStringLiteral("The data is not saved. \nDo you want to save it?")));
    }

    void EmptyRecorderIsTold()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.TakeLines(3);
        app.PlugIn({"--lines", "0", "--type", "qm70"});
        QVERIFY(app.Connect());
        app.m_prompts->m_answers = {Answer::No};
        CStripWatch watch;
        GetData(app);
        QCOMPARE(app.m_prompts->Boxes().last(), QStringLiteral("No measured data is available."));
        QCOMPARE(app.m_prompts->m_shown.back().boxKind, BoxKind::Warning);
        QCOMPARE(watch.m_looks, 0);
        QVERIFY(app.View().Data().IsEmpty());
        QCOMPARE(app.View().DataPath(), QString());
        QCOMPARE(app.Frame().windowTitle(), QStringLiteral("SKELDON Light"));
        // The fields of the recorder stay.
        QVERIFY(!app.View().Summary().isEmpty());
        QCOMPARE(app.View().Data().m_modelName, std::string("QM70"));
        QVERIFY(app.View().Data().SignatureUnchanged());
        QVERIFY(app.View().CanGetData());
        QVERIFY(!app.View().HasData());
    }

    void LinesBeyondThoseAnnouncedAreDropped()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "80", "--fault", "too-many=30"}));
        GetData(app);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{80});
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
        // The port is free for the next one.
        app.PlugIn({"--lines", "70"});
        app.m_prompts->m_answers = {Answer::No};
        GetData(app);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{70});
    }

    void SpoiltLinesAreKeptAndFlagged()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "100", "--fault", "short-line=10", "--fault",
                               "invalid-line=20", "--fault", "corrupt-line=30"}));
        GetData(app);
        const CMeasureData& data = app.View().Data();
        QCOMPARE(data.GetSize(), std::size_t{100});
        QVERIFY(!data.Records()[9].HasFlag(RecordFlag::Abnormal));
        QVERIFY(data.Records()[10].HasFlag(RecordFlag::Abnormal));
        QVERIFY(data.Records()[20].HasFlag(RecordFlag::Abnormal));
        // One warning for all kinds, the time first.
        QCOMPARE(app.m_prompts->Boxes().size(), 1);
        QVERIFY(app.m_prompts->Boxes()[0].startsWith(QStringLiteral("Error in date/time.\n")));
        QCOMPARE(app.m_prompts->m_shown[0].boxKind, BoxKind::Warning);
        QCOMPARE(app.Frame().windowTitle(), QStringLiteral("SKELDON Light - Unsaved"));
    }

    void GarbageBeforeRepliesIsPassedOver()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "60", "--fault", "garbage=20"}));
        GetData(app);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{60});
        QCOMPARE(app.View().Data().m_abnormalCount, std::size_t{0});
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
    }

    void NewYearIsRepaired()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "100", "--fault", "new-year=40"}));
        GetData(app);
        const CMeasureData& data = app.View().Data();
        QCOMPARE(data.GetSize(), std::size_t{100});
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
        const int year = ToLocalFields(data.Records()[39].m_time).year;
        QCOMPARE(ToLocalFields(data.Records()[40].m_time).year, year + 1);
        QVERIFY(!data.m_badTime);
        for (std::size_t i = 1; i < data.GetSize(); ++i)
            QVERIFY(data.Records()[i].TimeMs() > data.Records()[i - 1].TimeMs());
    }

    void NewYearBehindTheClockIsRepairedWithoutAWord()
    {
        // A report without month and day, of a year to come: time falls at the new year, to an
        // instant that the PC's clock has not reached.
        const int year = ToLocalFields(Now()).year + 2;
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "100", "--fault", "new-year=40", "--fault", "year-only",
                               "--from", std::to_string(year) + "-06-13 07:00:00"}));
        GetData(app);
        const CMeasureData& data = app.View().Data();
        QCOMPARE(data.GetSize(), std::size_t{100});
        QCOMPARE(ToLocalFields(data.Records()[40].m_time).year,
                 ToLocalFields(data.Records()[39].m_time).year + 1);
        QVERIFY(!data.Records()[40].HasFlag(RecordFlag::BehindBreak));
        QVERIFY(data.Records()[40].HasFlag(RecordFlag::Abnormal)); // which the repair leaves
        QCOMPARE(data.m_firstBreak, std::ptrdiff_t{100});
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
    }

    void BreakInTimeIsTold()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "100", "--fault", "break=50:7200"}));
        GetData(app);
        QCOMPARE(app.m_prompts->Boxes(), QStringList(QStringLiteral("Error in date/time.\n")));
        const CMeasureData& data = app.View().Data();
        QCOMPARE(data.GetSize(), std::size_t{100});
        QVERIFY(!data.Records()[49].HasFlag(RecordFlag::BehindBreak));
        QVERIFY(data.Records()[50].HasFlag(RecordFlag::BehindBreak));
    }

    void HundredThousandLinesArrive()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "100000"}));
        GetData(app);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{100000});
        QCOMPARE(app.View().List().model()->rowCount(), 100000);
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
    }
};

QTEST_MAIN(GetDataTest)
#include "GetDataTest.moc"
