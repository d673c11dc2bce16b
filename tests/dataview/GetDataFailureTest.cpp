#include "FrameApp.h"
#include "StripWatch.h"

#include "app/PumpMessages.h"
#include "data/RecordFlags.h"
#include "support/window/PaintCounter.h"

#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

const QString Failed = QStringLiteral("Failed to get the data.");
const QString NoData = QStringLiteral("No measured data is available.");
const QString NoRecorder = QStringLiteral("Can not connect to KORVA.");
const QString Unsaved = QStringLiteral("Unsaved");
/// Bytes of a line of alpha firmware on the wire, CR and LF included, and lines of which the gauge
/// tells when they have all arrived.
constexpr int LineBytes = 22;
constexpr int ArrivedLines = 200;

void GetData(CFrameApp& app)
{
    app.Press(Qt::Key_D, Qt::ControlModifier);
}

/// Starts the program on five unsaved lines, with a recorder that holds ten.
bool StartOverLines(CFrameApp& app)
{
    constexpr std::size_t OldLines = 5;
    if (!app.StartWith({"--lines", "10"}))
        return false;
    app.TakeLines(OldLines);
    app.m_prompts->m_shown.clear();
    return true;
}

/// Moves the clock behind the end of a silence once the strip tells of all lines that will arrive,
/// after so many looks more.
std::function<void(CProgressWindow&)> MovingOn(CFrameApp& app, int moreLooks = 0)
{
    return [&app, looks = -moreLooks](CProgressWindow& strip) mutable {
        if (strip.Position() >= ArrivedLines && ++looks > 0)
            app.m_clock.MoveOn(CRecorderTransport::TimeoutMs);
    };
}

/// Closes the frame while lines come: when the link waits for its end, closing is refused.
/// `isWanted` tells whether that was done.
void CloseOnce(CFrameApp& app, const CProgressWindow& strip, bool& isWanted)
{
    if (IsPumping() && !strip.GetText().isEmpty() && !std::exchange(isWanted, true))
        app.Frame().close();
}

} // namespace

/// Get data on recorders that fail.
class GetDataFailureTest : public QObject
{
    Q_OBJECT

private slots:
    void TooFewLinesAreKept()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "10", "--fault", "too-few=3"}));
        QString summaryAtBox;
        app.m_prompts->m_whileShown = [&](const Prompt& /*prompt*/) {
            summaryAtBox = app.View().Summary();
        };
        GetData(app);
        QCOMPARE(app.m_prompts->Boxes(), QStringList(Failed));
        QCOMPARE(app.m_prompts->m_shown[0].boxKind, BoxKind::Warning);
        QVERIFY2(summaryAtBox.contains(QStringLiteral("10")), qPrintable(summaryAtBox));
        QCOMPARE(app.View().Data().GetSize(), std::size_t{7});
        QVERIFY2(app.View().Summary().contains(QStringLiteral("7")) &&
                     app.View().Summary() != summaryAtBox,
                 qPrintable(app.View().Summary()));
        QCOMPARE(app.View().DataPath(), Unsaved);
        QVERIFY(app.View().HasData());
        QVERIFY(!app.View().Data().SignatureUnchanged());
    }

    void NoLinesAtAll()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "10", "--fault", "too-few=10"}));
        GetData(app);
        QCOMPARE(app.m_prompts->Boxes(), QStringList(NoData));
        QVERIFY(app.View().Data().IsEmpty());
        QCOMPARE(app.View().DataPath(), Unsaved);
        QCOMPARE(app.Frame().windowTitle(), QStringLiteral("SKELDON Light - Unsaved"));
        QVERIFY(!app.View().HasData());
        QVERIFY(app.View().CanGetData());
    }

    void SilentRecorder()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "400", "--alpha", "--fault",
                               "silence-after=" + std::to_string(LineBytes * ArrivedLines)}));
        QCOMPARE(app.m_app->Link().m_lineLength, LineBytes);
        CStripWatch watch;
        CPaintCounter paints(app.View());
        int painted = 0;
        watch.m_look = [&](CProgressWindow& strip) {
            if (strip.Position() < ArrivedLines)
                return;
            // All that will come has come: the windows go on painting.
            if (painted < paints.m_count)
                ++painted;
            paints.m_count = painted;
            app.View().update();
            if (painted == 5)
                app.m_clock.MoveOn(CRecorderTransport::TimeoutMs);
        };
        GetData(app);
        QVERIFY(painted >= 5);
        QCOMPARE(watch.m_positions.back(), ArrivedLines);
        QCOMPARE(app.m_prompts->Boxes(), QStringList(Failed));
        QCOMPARE(app.View().Data().GetSize(), std::size_t{ArrivedLines});
        QCOMPARE(app.View().DataPath(), Unsaved);
        QCOMPARE(app.View().Data().m_abnormalCount, std::size_t{0});
        // The recorder is still there, and answers again.
        QVERIFY(app.View().CanGetData());
        QVERIFY(!app.m_app->Link().IsOpen());
    }

    void LineCutShortBySilenceIsFlagged()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "400", "--alpha", "--fault",
                               "silence-after=" + std::to_string(LineBytes * ArrivedLines + 9)}));
        CStripWatch watch;
        // Until all that comes has come the link is not yet silent.
        watch.m_look = MovingOn(app, 20);
        GetData(app);
        const CMeasureData& data = app.View().Data();
        QCOMPARE(data.GetSize(), std::size_t{ArrivedLines + 1});
        QVERIFY(data.Records()[ArrivedLines].HasFlag(RecordFlag::Abnormal));
        QVERIFY(!data.Records()[ArrivedLines - 1].HasFlag(RecordFlag::Abnormal));
        QCOMPARE(app.m_prompts->Boxes().first(), Failed);
    }

    void CablePulledInTheMiddle()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "400", "--alpha", "--fault",
                               "pull-after=" + std::to_string(LineBytes * ArrivedLines)}));
        app.m_hints.clear();
        CStripWatch watch;
        watch.m_look = MovingOn(app);
        GetData(app);
        QCOMPARE(app.m_prompts->Boxes(), QStringList(Failed));
        QCOMPARE(app.View().Data().GetSize(), std::size_t{ArrivedLines});
        QCOMPARE(app.View().DataPath(), Unsaved);
        // Only now the window hears that the cable is gone.
        QVERIFY(app.Connect(false));
        QCOMPARE(app.m_hints, QStringLiteral("2:0 "));
        QVERIFY(!app.View().CanGetData());
        QCOMPARE(app.View().Data().GetSize(), std::size_t{ArrivedLines});
        // Plugged in again it gives all of them.
        app.PlugInAgain();
        QVERIFY(app.Connect());
        app.m_prompts->m_answers = {Answer::No};
        GetData(app);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{400});
    }

    void MissingMarkAtTheEndCostsNoLine()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "400", "--fault", "no-mark=D"}));
        QTimer mover;
        bool isFinishing = false;
        connect(&mover, &QTimer::timeout, this, [&] {
            // The lines have been taken, and the link waits for the mark.
            if (app.View().Data().GetSize() == 400) {
                isFinishing = isFinishing || app.m_app->Conversation().IsUnderWay();
                app.m_clock.MoveOn(CRecorderTransport::TimeoutMs);
            }
        });
        mover.start(5);
        GetData(app);
        QVERIFY(isFinishing);
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
        QCOMPARE(app.View().Data().GetSize(), std::size_t{400});
        QVERIFY(!app.m_app->Link().m_busy);
    }

    void CloseWaitsForTheMissingMarkToo()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "400", "--fault", "no-mark=D", "--rate", "20000"}));
        CStripWatch watch;
        bool isWanted = false;
        watch.m_look = [&](CProgressWindow& strip) {
            CloseOnce(app, strip, isWanted);
            if (app.View().Data().GetSize() == 400)
                app.m_clock.MoveOn(CRecorderTransport::TimeoutMs);
        };
        std::size_t linesAtTheQuestion = 0;
        app.m_prompts->m_whileShown = [&](const Prompt& /*prompt*/) {
            linesAtTheQuestion = app.View().Data().GetSize();
        };
        app.m_prompts->m_answers = {Answer::No};
        GetData(app);
        QVERIFY(isWanted);
        QTRY_VERIFY(!app.Frame().isVisible());
        QCOMPARE(linesAtTheQuestion, std::size_t{400});
    }

    void CloseWaitsForTheBoxThatTellsOfTheFailure()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "80", "--fault", "too-few=3"}));
        CStripWatch watch;
        bool isWanted = false;
        watch.m_look = [&](CProgressWindow& strip) { CloseOnce(app, strip, isWanted); };
        bool isEarly = false;
        app.m_prompts->m_whileShown = [&](const Prompt& prompt) {
            if (prompt.text != Failed)
                return;
            // A box stands in a loop of its own.
            QDialog box(&app.Frame());
            QTimer::singleShot(100, &box, &QDialog::reject);
            box.exec();
            isEarly = app.m_prompts->m_shown.size() > 1 || !app.Frame().isVisible();
        };
        app.m_prompts->m_answers = {Answer::Ok, Answer::No};
        GetData(app);
        QVERIFY(isWanted);
        QVERIFY(!isEarly);
        QTRY_VERIFY(!app.Frame().isVisible());
    }

    void StatusThatCanNotBeRead()
    {
        CFrameApp app;
        QVERIFY(StartOverLines(app));
        app.Pull();
        app.PlugInJunk();
        app.m_prompts->m_answers = {Answer::No};
        CStripWatch watch;
        GetData(app);
        QCOMPARE(app.m_prompts->Boxes().last(), Failed);
        QCOMPARE(watch.m_looks, 0);
        // The old data was cleared before.
        QVERIFY(app.View().Data().IsEmpty());
        QCOMPARE(app.View().DataPath(), QString());
        QCOMPARE(app.View().Summary(), QString());
        QCOMPARE(app.Frame().windowTitle(), QStringLiteral("SKELDON Light"));
        QVERIFY(app.View().CanOperate());
        app.RemoveJunk();
    }

    void NothingIsLeftToBeSavedWhereNoReadBackBegan()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "10"}));
        // Lines as they are stored: there is nothing to ask about them.
        app.m_prompts->m_paths.push_back(app.WriteLines(QStringLiteral("stored.skd"), 5));
        app.View().OnCommand(CommandId::Open);
        QVERIFY(app.View().Data().m_signature != 0);
        app.Pull();
        app.PlugInJunk();
        GetData(app);
        QVERIFY(app.View().Data().IsEmpty());
        QCOMPARE(app.m_prompts->Boxes(), QStringList{Failed});
        // Nor about none at all.
        QVERIFY(app.View().Data().SignatureUnchanged());
        app.View().OnCommand(CommandId::ViewSetup);
        QCOMPARE(app.m_prompts->Boxes(), QStringList{Failed});
        QCOMPARE(app.Frame().CurrentView(), ViewIndex::Setup);
        app.RemoveJunk();
    }

    void RecorderThatFallsSilentBeforeItsStatus()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "10"}));
        app.PlugIn({"--lines", "10", "--fault", "silence=p"});
        CPaintCounter paints(app.View());
        int painted = 0;
        bool canOperate = false;
        bool hasWaitCursor = true;
        QTimer mover;
        connect(&mover, &QTimer::timeout, this, [&] {
            if (!app.m_app->Conversation().IsUnderWay())
                return;
            canOperate = canOperate || app.View().CanOperate();
            hasWaitCursor = hasWaitCursor && QGuiApplication::overrideCursor() != nullptr;
            painted += std::exchange(paints.m_count, 0) > 0 ? 1 : 0;
            app.View().update();
            if (painted >= 5)
                app.m_clock.MoveOn(CRecorderTransport::TimeoutMs);
        });
        mover.start(5);
        GetData(app);
        QVERIFY(painted >= 5);
        QVERIFY(!canOperate);
        QVERIFY(hasWaitCursor);
        QCOMPARE(app.m_prompts->Boxes(), QStringList(Failed));
        QCOMPARE(app.View().DataPath(), QString());
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    }

    void CancelledQuestionLeavesEverything()
    {
        CFrameApp app;
        QVERIFY(StartOverLines(app));
        const QString path = app.View().DataPath();
        app.m_prompts->m_answers = {Answer::Cancel};
        CStripWatch watch;
        GetData(app);
        QCOMPARE(app.m_prompts->m_shown.size(), std::size_t{1});
        QCOMPARE(watch.m_looks, 0);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{5});
        QCOMPARE(app.View().DataPath(), path);
    }

    void CablePulledDuringTheQuestionKeepsTheData()
    {
        CFrameApp app;
        QVERIFY(StartOverLines(app));
        const QString path = app.View().DataPath();
        app.m_prompts->m_answers = {Answer::No};
        app.m_prompts->m_whileShown = [&](const Prompt& prompt) {
            if (prompt.boxKind != BoxKind::YesNoCancel)
                return;
            app.Pull();
            QVERIFY(app.Connect(false));
        };
        GetData(app);
        QCOMPARE(app.m_prompts->Boxes().last(), NoRecorder);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{5});
        QCOMPARE(app.View().DataPath(), path);
    }

    void SecondTransferFollowsAFailedOne()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--lines", "120", "--fault", "too-few=60"}));
        GetData(app);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{60});
        app.PlugIn({"--lines", "120"});
        app.m_prompts->m_answers = {Answer::No};
        GetData(app);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{120});
        QCOMPARE(app.m_prompts->Boxes().size(), 2); // the failure, and the question
    }
};

QTEST_MAIN(GetDataFailureTest)
#include "GetDataFailureTest.moc"
