#include "FrameApp.h"

#include "base/CalendarTime.h"
#include "controls/SkinButton.h"
#include "online/OnlineCounter.h"
#include "online/OnlineDialog.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <functional>
#include <utility>

using namespace skeldon;
using namespace skeldon::test;

namespace {

/// Gives the command; `watch` is called again and again with the dialog that is shown.
void Record(CFrameApp& app, const std::function<void(COnlineDialog&)>& watch = {})
{
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (auto* const dialog = qobject_cast<COnlineDialog*>(QApplication::activeModalWidget()))
            watch(*dialog);
    });
    if (watch)
        timer.start(5);
    app.Frame().OnCommand(CommandId::OnlineRecording);
}

} // namespace

/// The command "Online Recording".
class OnlineRecordingTest : public QObject
{
    Q_OBJECT

private slots:
    void RecordingBecomesTheDataOfTheView()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.Settings().WriteInt(SystemSection, QStringLiteral("OnlineSecond"), 1);
        app.PlugIn({"--type", "pl20", "--time-scale", "4"});
        QVERIFY(app.Connect());
        QString whileRunning(QStringLiteral("(never)"));
        bool canOperate = true;
        Record(app, [&](COnlineDialog&) {
            whileRunning = app.View().Summary();
            canOperate = app.View().CanOperate();
        });
        QCOMPARE(whileRunning, QString());
        QVERIFY(!canOperate);
        const CMeasureData& data = app.View().Data();
        QCOMPARE(data.GetSize(), std::size_t{200});
        QCOMPARE(data.m_typeNumber, app.m_app->m_link.m_type);
        QCOMPARE(data.m_modelName, app.m_app->m_link.GetModelName());
        QCOMPARE(data.m_release, app.m_app->m_link.m_release);
        QVERIFY(!data.m_hasTemperature);
        QCOMPARE(data.m_minStepMs, 5);
        QCOMPARE(app.View().DataPath(), QStringLiteral("Unsaved"));
        QVERIFY(app.Frame().windowTitle().endsWith(QStringLiteral("Unsaved")));
        QVERIFY(app.View().Summary().contains(QStringLiteral("200")));
        QVERIFY(app.View().HasData());
        QVERIFY(!data.SignatureUnchanged());
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
        QVERIFY(app.View().CanOperate());
    }

    void LinesBeforeTheReportsDayGoToTheNextYear()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.Settings().WriteInt(SystemSection, QStringLiteral("OnlineSecond"), 1);
        app.PlugIn({"--time-scale", "4"});
        QVERIFY(app.Connect());
        // Behind every day of the year: whenever this runs, the stream is dated before it.
        app.m_app->m_link.m_month = 12;
        app.m_app->m_link.m_day = 32;
        Record(app);
        const CMeasureData& data = app.View().Data();
        QCOMPARE(data.GetSize(), std::size_t{200});
        const CalendarSeconds begin = app.m_app->m_link.m_onlineStart;
        QCOMPARE(data.GetRecord(0).m_time, OneYearLater(ToLocalFields(begin)));
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
    }

    void OtherHeaderValuesStayAsTheyWere()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.TakeLines(3);
        CMeasureData& data = app.View().Data();
        data.m_hazard = 35;
        data.m_endless = true;
        data.m_title = "Crate 7";
        app.Settings().WriteInt(SystemSection, QStringLiteral("OnlineSecond"), 1);
        app.PlugIn({"--type", "qm70", "--alpha", "--time-scale", "4"});
        QVERIFY(app.Connect());
        app.m_prompts->m_answers = {Answer::No};
        Record(app);
        QCOMPARE(data.GetSize(), std::size_t{200});
        QCOMPARE(data.m_modelName, std::string("QM70"));
        // Neither those of the connected recorder nor none.
        QCOMPARE(data.m_hazard, 35);
        QVERIFY(data.m_endless);
        QCOMPARE(data.m_title, std::string("Crate 7"));
        // What a clearing takes away is not filled in again.
        QCOMPARE(data.GetSampling(), -1);
        QCOMPARE(data.GetInterval(), -1);
        QCOMPARE(data.m_threshold, -1);
        QCOMPARE(data.m_hostNumber, -1);
    }

    void LongestRecordingReachesTheViewWhole()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.Settings().WriteInt(SystemSection, QStringLiteral("OnlineSecond"), 10'000);
        app.PlugIn({"--type", "qm70", "--time-scale", "2000"});
        QVERIFY(app.Connect());
        QString total;
        Record(app, [&](COnlineDialog& dialog) { total = dialog.m_totalText->GetText(); });
        QCOMPARE(total, QStringLiteral("4999"));
        const CMeasureData& data = app.View().Data();
        QCOMPARE(data.GetSize(), std::size_t{999'800});
        QCOMPARE(data.m_minStepMs, 5);
        const auto& lines = data.Records();
        QCOMPARE(lines.back().TimeMs() - lines.front().TimeMs(), std::int64_t{4'998'995});
        QVERIFY(app.View().Summary().contains(QStringLiteral("999800")));
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
    }

    void UnsavedDataIsAskedAbout()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.Settings().WriteInt(SystemSection, QStringLiteral("OnlineSecond"), 1);
        app.PlugIn({"--time-scale", "4"});
        QVERIFY(app.Connect());
        Record(app);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{200});
        const CalendarSeconds first = app.View().Data().GetRecord(0).m_time;
        app.m_prompts->m_answers = {Answer::Cancel};
        Record(app, [](COnlineDialog& dialog) { dialog.reject(); });
        QCOMPARE(app.m_prompts->Boxes(),
                 QStringList({QStringLiteral("The data is not saved. \nDo you want to save it?")}));
        QCOMPARE(app.View().Data().GetSize(), std::size_t{200});
        QCOMPARE(app.View().Data().GetRecord(0).m_time, first);
    }

    void NoRecorderKeepsTheOldData()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.Settings().WriteInt(SystemSection, QStringLiteral("OnlineSecond"), 1);
        app.PlugIn({"--time-scale", "4"});
        QVERIFY(app.Connect());
        Record(app);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{200});
        // The cable goes while the question about the unsaved data stands.
        app.m_prompts->m_answers = {Answer::No};
        app.m_prompts->m_whileShown = [&](const Prompt& prompt) {
            if (prompt.boxKind != BoxKind::YesNoCancel)
                return;
            app.Pull();
            QVERIFY(app.Connect(false));
        };
        Record(app);
        QCOMPARE(app.m_prompts->Boxes().last(), QStringLiteral("Can not connect to KORVA."));
        QCOMPARE(app.View().Data().GetSize(), std::size_t{200});
        QCOMPARE(app.View().DataPath(), QStringLiteral("Unsaved"));
    }

    void CancelKeepsTheLinesSoFarWithoutAMessage()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--time-scale", "10"}));
        Record(app, [&](COnlineDialog& dialog) {
            if (app.m_app->m_link.m_onlineLines > 300)
                dialog.m_cancel->click();
        });
        const std::size_t lines = app.View().Data().GetSize();
        QVERIFY(lines > 300);
        QVERIFY(lines < 6000);
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
        QVERIFY(app.View().HasData());
    }

    void CablePulledKeepsTheLinesSoFarAndSaysSo()
    {
        CFrameApp app;
        QVERIFY(app.StartWith({"--time-scale", "10"}));
        bool isPulled = false;
        Record(app, [&](COnlineDialog&) {
            if (app.m_app->m_link.m_onlineLines <= 100)
                return;
            if (!std::exchange(isPulled, true))
                app.Pull();
            app.m_clock.MoveOn(CRecorderTransport::TimeoutMs);
        });
        QVERIFY(app.View().Data().GetSize() > 100);
        QCOMPARE(app.m_prompts->Boxes(),
                 QStringList({QStringLiteral("An error has occurred during online recording.")}));
        QCOMPARE(app.m_prompts->m_shown[0].boxKind, BoxKind::Warning);
        QCOMPARE(app.View().DataPath(), QStringLiteral("Unsaved"));
    }

    void StartThatFailsIsNotTold()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.Settings().WriteInt(SystemSection, QStringLiteral("OnlineSecond"), 1);
        app.PlugIn({"--time-scale", "4"});
        QVERIFY(app.Connect());
        Record(app);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{200});
        app.m_prompts->m_answers = {Answer::No};
        app.m_prompts->m_whileShown = [&](const Prompt&) { app.Pull(); };
        Record(app);
        // The question alone: the frame has not missed the recorder yet.
        QCOMPARE(app.m_prompts->Boxes().size(), 1);
        QVERIFY(app.View().Data().IsEmpty());
        QVERIFY(!app.View().HasData());
        QVERIFY(!app.m_app->m_link.m_busy);
    }

    void CommandNeedsARecorder()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        QVERIFY(!app.View().StateOf(CommandId::OnlineRecording).isEnabled);
        Record(app, [](COnlineDialog& dialog) { dialog.reject(); });
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
        app.PlugIn({});
        QVERIFY(app.Connect());
        QVERIFY(app.View().StateOf(CommandId::OnlineRecording).isEnabled);
        QVERIFY(app.View().Button(DataViewButton::OnlineRecording).isEnabled());
    }
};

QTEST_MAIN(OnlineRecordingTest)
#include "OnlineRecordingTest.moc"
