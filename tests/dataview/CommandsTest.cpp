#include "DormantCommands.h"
#include "ViewApp.h"
#include "chart/view/ChartWnd.h"
#include "controls/SkinButton.h"
#include "dataview/ButtonForms.h"

#include <QDir>
#include <QMenu>
#include <QTest>

#include <algorithm>

using namespace skeldon;
using namespace skeldon::test;

namespace {

/// What the chart alone decides about; see its own tests.
bool IsOfTheChart(CommandId command)
{
    switch (command) {
    case CommandId::BarChart:
    case CommandId::DisplayAllArea:
    case CommandId::DisplayInCenter:
    case CommandId::VerticalInflate:
    case CommandId::VerticalDeflate:
    case CommandId::CopyChart:
    case CommandId::AddMarkAtClick:
    case CommandId::RemoveMarkAtClick:
        return true;
    default:
        return false;
    }
}

/// All commands that can be given now, in their order.
std::vector<CommandId> Enabled(CViewApp& app)
{
    std::vector<CommandId> commands;
    for (int i = 0; i < static_cast<int>(CommandId::Count); ++i) {
        const auto command = static_cast<CommandId>(i);
        if (!IsOfTheChart(command) && app.Can(command))
            commands.push_back(command);
    }
    return commands;
}

std::vector<CommandId> Sorted(std::vector<CommandId> commands)
{
    std::sort(commands.begin(), commands.end());
    return commands;
}

std::vector<CommandId> operator+(std::vector<CommandId> some, const std::vector<CommandId>& more)
{
    some.insert(some.end(), more.begin(), more.end());
    return some;
}

/// Whenever the view can operate.
const std::vector<CommandId> Always{CommandId::Open,
                                    CommandId::OnlineConfiguration,
                                    CommandId::ShowX,
                                    CommandId::ShowY,
                                    CommandId::ShowZ,
                                    CommandId::ShowResultant,
                                    CommandId::ShowTemperature,
                                    CommandId::ShowHumidity,
                                    CommandId::ChartProperties,
                                    CommandId::UnitG,
                                    CommandId::UnitMs2,
                                    CommandId::UnitGal,
                                    CommandId::ViewSetup,
                                    CommandId::Configuration,
                                    CommandId::Exit,
                                    CommandId::ConfigureReal};
const std::vector<CommandId> WithRecorder{CommandId::GetData, CommandId::OnlineRecording};
const std::vector<CommandId> WithData{CommandId::SaveAs, CommandId::ExportCsv, CommandId::Print,
                                      CommandId::CopyCsv};
const std::vector<CommandId> WithRisingTime{CommandId::SelectArea, CommandId::HorizontalInflate};

/// Every button follows its command.
void CheckButtons(CViewApp& app)
{
    for (const ButtonForm& form : ButtonForms())
        QCOMPARE(app.View().Button(form.button).isEnabled(), app.Can(form.command));
}

void Check(CViewApp& app, const std::vector<CommandId>& expected)
{
    app.View().RefreshControls();
    QVERIFY(Enabled(app) == Sorted(expected));
    CheckButtons(app);
}

/// A file with marks, an extraction, a condition, an error and two ordinary lines.
CMeasureData RichData()
{
    CMeasureData measured = MeasuredLines(5);
    measured.SetRecord(1, LineAfter(1, RecordFlag::Marked));
    measured.SetRecord(2, LineAfter(2, RecordFlag::HitX));
    measured.SetRecord(3, LineAfter(3, RecordFlag::Marked));
    CMeasureRecord hot = LineAfter(4);
    hot.m_temperature = 150.0;
    measured.SetRecord(4, hot);
    measured.m_extract = ExtractConditionsFromString("16,1.0,1,2.0,0,");
    return measured;
}

void GoTo(CViewApp& app, int row)
{
    app.List().OnMeasureGraph(MeasureGraphCode::CurrentLine, row);
}

} // namespace

/// What can be done on the data view, and when.
class CommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void EmptyViewOpensAndLeaves()
    {
        CViewApp app;
        app.Show();
        Check(app, Always);
    }

    void RecorderCanBeReadWhileItIsConnected()
    {
        CViewApp app;
        app.Show();
        app.Frame().m_connected = true;
        app.View().OnUpdate(DocumentHint::Connection, 1);
        CheckButtons(app);
        Check(app, Always + WithRecorder);
        app.Frame().m_connected = false;
        app.View().OnUpdate(DocumentHint::Connection, 0);
        CheckButtons(app);
        Check(app, Always);
    }

    void OpenedFileCanBeStoredUnderAnotherName()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(5);
        CheckButtons(app);
        Check(app, Always + WithData + WithRisingTime);
    }

    void OneLineCanNotBeZoomed()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(1);
        Check(app, Always + WithData);
    }

    void FileWithoutLinesIsNoData()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(0);
        QCOMPARE(app.Frame().m_caption, QStringLiteral("crate.skd"));
        Check(app, Always);
    }

    void LinesWithoutANameAreNoData()
    {
        CViewApp app;
        app.Show();
        app.View().Data().AddRecord(LineAfter(0));
        app.List().Rebuild();
        Check(app, Always + std::vector{CommandId::CopyCsv});
    }

    void ChangedFileCanBeSaved()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(5);
        app.Modify();
        Check(app, Always + WithData + WithRisingTime + std::vector{CommandId::Save});
    }

    void ChangedOlderFileCanNotBeSaved()
    {
        for (const char* const name : {"old.sks", "OLD.SKS"}) {
            CViewApp app;
            app.Show();
            app.Open(app.FileOf(MeasuredLines(5), QString::fromLatin1(name)));
            app.Modify();
            Check(app, Always + WithData + WithRisingTime);
        }
    }

    void ReadBackDataCanOnlyBeStoredUnderAName()
    {
        CViewApp app;
        app.Show();
        app.GetData(5);
        QCOMPARE(app.View().DataPath(), QStringLiteral("Unsaved"));
        Check(app, Always + WithRecorder + WithData + WithRisingTime);
    }

    void PressedZoomInTakesEverythingOut()
    {
        CViewApp app;
        app.Show();
        app.Frame().m_connected = true;
        app.OpenLines(5);
        QVERIFY(app.Frame().m_closeEnabled);
        app.Click(DataViewButton::ZoomIn);
        QVERIFY(app.View().Button(DataViewButton::ZoomIn).IsPressed());
        QVERIFY(!app.Frame().m_closeEnabled);
        Check(app, {CommandId::CopyCsv});
        const auto prompts = app.Prompts().m_shown.size();
        for (const CommandId command : Always)
            app.View().OnCommand(command);
        QCOMPARE(app.Prompts().m_shown.size(), prompts);
        QVERIFY(!app.Frame().m_closed);
        QCOMPARE(app.Frame().m_view, ViewIndex::Display);
        app.View().OnCommand(CommandId::SelectArea); // pressed: releases
        QVERIFY(!app.View().Button(DataViewButton::ZoomIn).IsPressed());
        QVERIFY(app.Frame().m_closeEnabled);
        Check(app, Always + WithRecorder + WithData + WithRisingTime);
    }

    void CloseOfTheSetupViewIsNotTouched()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(5);
        app.Frame().m_view = ViewIndex::Setup;
        app.Click(DataViewButton::ZoomIn);
        QVERIFY(app.Frame().m_closeEnabled);
    }

    void BusyViewTakesNoCommand()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(5);
        std::vector<CommandId> busy = Always;
        app.Prompts().m_paths.push_back(app.Path(QStringLiteral("copy.skd")));
        app.Prompts().m_whileShown = [&](const Prompt& prompt) {
            if (prompt.kind == Prompt::Kind::SavePath)
                QMetaObject::invokeMethod(
                    &app.View(),
                    [&] {
                        QVERIFY(!app.List().IsFilling());
                        busy = Enabled(app);
                    },
                    Qt::QueuedConnection);
        };
        app.View().OnCommand(CommandId::SaveAs);
        QVERIFY(busy.empty());
        Check(app, Always + WithData + WithRisingTime);
    }

    void NothingCanBeDoneBeforeTheViewIsLaidOut()
    {
        CViewApp app;
        QVERIFY(Enabled(app).empty());
    }

    void DormantCommandsFollowTheCurrentRow()
    {
        CViewApp app;
        app.Show();
        app.Open(app.FileOf(RichData(), QStringLiteral("rich.skd")));
        const std::vector<CommandId> any{CommandId::MarkExtracted, CommandId::RemoveAllMarks,
                                         CommandId::DeleteMarked,  CommandId::DeleteUnmarked,
                                         CommandId::DeleteIllegal, CommandId::DisplayExtract};
        const auto base = Always + WithData + WithRisingTime + any;
        using enum CommandId;
        Check(app, base);
        GoTo(app, 0);
        Check(app, base + std::vector{AddMark, DeleteLine, NextMark});
        GoTo(app, 1);
        Check(app, base + std::vector{RemoveMark, DeleteLine, NextMark});
        GoTo(app, 2);
        Check(app, base + std::vector{AddMark, DeleteLine, PreviousMark, NextMark});
        GoTo(app, 4);
        Check(app, base + std::vector{AddMark, DeleteLine, PreviousMark});
        app.List().selectRow(4);
        Check(app, base + std::vector{AddMark, DeleteLine, DeleteSelected, PreviousMark});
    }

    void MarksGoByTheirOwnRulesWhileAnAreaIsChosen()
    {
        CViewApp app;
        app.Show();
        app.Open(app.FileOf(RichData(), QStringLiteral("rich.skd")));
        app.Click(DataViewButton::ZoomIn);
        QVERIFY(!app.View().CanOperate());
        const std::vector<CommandId> any{CommandId::CopyCsv,        CommandId::MarkExtracted,
                                         CommandId::RemoveAllMarks, CommandId::DeleteMarked,
                                         CommandId::DeleteUnmarked, CommandId::DeleteIllegal,
                                         CommandId::DisplayExtract};
        // The way from mark to mark alone needs a view that can operate.
        GoTo(app, 2);
        Check(app, any + std::vector{CommandId::AddMark, CommandId::DeleteLine});
        GoTo(app, 1);
        Check(app, any + std::vector{CommandId::RemoveMark, CommandId::DeleteLine});
    }

    void ConditionsCanBeDisplayedWithoutALineThatMeetsThem()
    {
        CMeasureData measured = MeasuredLines(3);
        measured.m_extract = RichData().m_extract;
        CViewApp app;
        app.Show();
        app.Open(app.FileOf(measured, QStringLiteral("conditions.skd")));
        QVERIFY(app.Can(CommandId::DisplayExtract));
        QVERIFY(!app.Can(CommandId::MarkExtracted));
    }

    void MarksAtTheClickFollowTheLineOfTheLastClick()
    {
        CViewApp app;
        app.Show();
        app.Open(app.FileOf(RichData(), QStringLiteral("rich.skd")));
        CChartWnd& chart = app.View().Chart();
        const auto expect = [&app](bool canAdd, bool canRemove) {
            QCOMPARE(app.Can(CommandId::AddMarkAtClick), canAdd);
            QCOMPARE(app.Can(CommandId::RemoveMarkAtClick), canRemove);
        };
        const auto clickBeside = [&](int line, int columns) {
            const CChartModel& model = chart.Model();
            const auto column = static_cast<int>(model.m_window.Column(model.m_index.Time(line)));
            QTest::mousePress(&chart, Qt::RightButton, {},
                              {column + columns + model.Sizes().gaugeWidth, 60});
            for (QMenu* const popup : chart.findChildren<QMenu*>())
                popup->close();
            app.Settle();
        };
        expect(true, false); // the first line, as long as nothing was clicked
        clickBeside(1, 0);
        expect(false, true);
        clickBeside(1, 5);
        expect(false, false);
        clickBeside(2, 1);
        expect(true, false);
    }

    void EachErrorAloneEnablesTheIllegalLines()
    {
        CViewApp app;
        app.Show();
        CMeasureData& data = app.View().Data();
        for (bool CMeasureData::*const error :
             {&CMeasureData::m_badTemperature, &CMeasureData::m_badHumidity,
              &CMeasureData::m_badMsec, &CMeasureData::m_badTime}) {
            QVERIFY(!app.Can(CommandId::DeleteIllegal));
            data.*error = true;
            QVERIFY(app.Can(CommandId::DeleteIllegal));
            data.*error = false;
        }
    }

    void DormantCommandsDoNothing()
    {
        CViewApp app;
        app.Show();
        app.Open(app.FileOf(RichData(), QStringLiteral("rich.skd")));
        for (const int row : {1, 2}) {
            GoTo(app, row);
            app.List().selectRow(row);
            const auto prompts = app.Prompts().m_shown.size();
            const QByteArray file = BytesOf(app.Path(QStringLiteral("rich.skd")));
            const QStringList files = QDir(app.m_test.Folder()).entryList(QDir::Files);
            const QImage picture = app.Picture();
            for (const CommandId command : DormantCommands) {
                app.View().OnCommand(command);
                app.Settle();
            }
            QVERIFY(app.View().Data().SignatureUnchanged());
            QCOMPARE(app.View().Data().GetSize(), 5U);
            QCOMPARE(app.View().Data().m_marks.size(), 2U);
            QCOMPARE(app.View().Data().m_extract.size(), 1U);
            QCOMPARE(app.List().model()->rowCount(), 5);
            QCOMPARE(app.List().CurrentRow(), row);
            QCOMPARE(app.Prompts().m_shown.size(), prompts);
            QCOMPARE(app.Frame().m_caption, QStringLiteral("rich.skd"));
            QCOMPARE(BytesOf(app.Path(QStringLiteral("rich.skd"))), file);
            QCOMPARE(QDir(app.m_test.Folder()).entryList(QDir::Files), files);
            QCOMPARE(app.Picture(), picture);
        }
    }

    void WithoutMemoryForAChartTheRestWorksOn()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(20);
        app.View().Chart().resize(2'000'000, 2'000);
        QVERIFY(app.Prompts().Boxes().contains("A chart can't be used by shortage of memory."));
        Check(app, Always + WithData);
        for (const CommandId command :
             {CommandId::BarChart, CommandId::DisplayAllArea, CommandId::DisplayInCenter,
              CommandId::VerticalInflate, CommandId::VerticalDeflate, CommandId::CopyChart})
            QVERIFY(!app.Can(command));
        app.OpenLines(5);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{5});
        app.View().OnCommand(CommandId::UnitGal);
        app.List().SetCurrentRow(3);
        QVERIFY(!app.Picture().isNull());
    }

    void SeriesAreToggledByTheirButtons()
    {
        CViewApp app;
        app.Show();
        for (const ButtonForm& form : ButtonForms()) {
            if (!form.IsSeries())
                continue;
            QVERIFY(app.View().StateOf(form.command).isChecked);
            app.Click(form.button);
            QVERIFY(!app.View().Button(form.button).IsPressed());
            QVERIFY(!app.View().StateOf(form.command).isChecked);
            app.View().Button(form.button).setFocus();
            QTest::keyClick(&app.View().Button(form.button), Qt::Key_Space);
            QVERIFY(app.View().StateOf(form.command).isChecked);
            app.View().OnCommand(form.command);
            QVERIFY(!app.View().Button(form.button).IsPressed());
        }
    }

    void SeriesHaveTheirBits()
    {
        QMap<int, int> bits;
        for (const ButtonForm& form : ButtonForms()) {
            if (form.IsSeries())
                bits[static_cast<int>(form.command)] = form.series;
        }
        using enum CommandId;
        const QMap<int, int> expected{
            {static_cast<int>(ShowX), 0x10},          {static_cast<int>(ShowY), 0x20},
            {static_cast<int>(ShowZ), 0x40},          {static_cast<int>(ShowTemperature), 0x80},
            {static_cast<int>(ShowResultant), 0x100}, {static_cast<int>(ShowHumidity), 0x800}};
        QCOMPARE(bits, expected);
    }

    void UnitsAreCheckedByTheOneInUse()
    {
        CViewApp app;
        app.Show();
        const auto checked = [&app] {
            QString marks;
            for (const CommandId unit : {CommandId::UnitG, CommandId::UnitMs2, CommandId::UnitGal})
                marks += app.View().StateOf(unit).isChecked ? QLatin1Char('x') : QLatin1Char('-');
            return marks;
        };
        QCOMPARE(checked(), QStringLiteral("x--"));
        app.View().OnCommand(CommandId::UnitMs2);
        QCOMPARE(checked(), QStringLiteral("-x-"));
        QCOMPARE(app.m_test.m_app->m_dispUnit, 1);
        app.View().OnCommand(CommandId::UnitGal);
        QCOMPARE(checked(), QStringLiteral("--x"));
        QCOMPARE(app.m_test.m_app->m_dispUnit, 2);
        app.View().OnCommand(CommandId::UnitG);
        QCOMPARE(app.m_test.m_app->m_dispUnit, 0);
    }

    void EndOfAnAreaSelectionReleasesZoomIn()
    {
        for (const int argument : {1, 0}) {
            CViewApp app;
            app.Show();
            app.OpenLines(5);
            CSkinButton& zoomIn = app.View().Button(DataViewButton::ZoomIn);
            zoomIn.SetPressed(true);
            app.View().RefreshControls();
            QVERIFY(!zoomIn.isEnabled());
            emit app.View().Chart().MeasureGraph(MeasureGraphCode::AreaEnded, argument);
            QVERIFY(zoomIn.IsPressed()); // posted, not sent
            app.Settle();
            QVERIFY(!zoomIn.IsPressed());
            CheckButtons(app);
            QVERIFY(zoomIn.isEnabled());
            QCOMPARE(app.Prompts().m_beeps, argument == 0 ? 1 : 0);
            QCOMPARE(app.Frame().m_status,
                     argument == 0 ? QStringLiteral("Zoom to the maximum due to the small range")
                                   : QStringLiteral("(reset)"));
        }
    }

    void ReportsOfTheChartRefreshTheControls_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<bool>("refreshes");
        QTest::newRow("lines changed") << 3 << true;
        QTest::newRow("current line") << 4 << true;
        QTest::newRow("line taken over") << 5 << false;
        QTest::newRow("marks") << 6 << true;
        QTest::newRow("marks too") << 7 << true;
        QTest::newRow("corner button") << 8 << true;
    }
    void ReportsOfTheChartRefreshTheControls()
    {
        QFETCH(int, code);
        QFETCH(bool, refreshes);
        CViewApp app;
        app.Show();
        app.Settle();
        app.Frame().m_caption = QStringLiteral("(not refreshed)");
        emit app.View().Chart().MeasureGraph(static_cast<MeasureGraphCode>(code), 0);
        app.Settle();
        QCOMPARE(app.Frame().m_caption, refreshes ? QString() : QStringLiteral("(not refreshed)"));
    }

    void OwnActivationResetsTheStatus()
    {
        CViewApp app;
        app.Show();
        app.Frame().m_status = QStringLiteral("text");
        app.Frame().m_caption = QStringLiteral("text");
        app.View().OnUpdate(DocumentHint::ActiveView, static_cast<int>(ViewIndex::Setup));
        QCOMPARE(app.Frame().m_status, QStringLiteral("text"));
        QCOMPARE(app.Frame().m_caption, QStringLiteral("text"));
        app.View().OnUpdate(DocumentHint::ActiveView, static_cast<int>(ViewIndex::Display));
        QCOMPARE(app.Frame().m_status, QStringLiteral("(reset)"));
        QCOMPARE(app.Frame().m_caption, QString());
    }

    void SetupButtonSwitchesTheView()
    {
        CViewApp app;
        app.Show();
        app.Click(DataViewButton::Setup);
        QCOMPARE(app.Frame().m_view, ViewIndex::Setup);
        QVERIFY(!app.Frame().m_closed);
    }

    void ExitClosesTheFrame()
    {
        CViewApp app;
        app.Show();
        app.View().OnCommand(CommandId::Exit);
        QVERIFY(app.Frame().m_closed);
    }

    void CommandsOfTheSetupViewArePassedOver()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(5);
        for (int i = static_cast<int>(CommandId::AddProfile);
             i < static_cast<int>(CommandId::Count); ++i) {
            QVERIFY(!app.Can(static_cast<CommandId>(i)));
            app.View().OnCommand(static_cast<CommandId>(i));
        }
        QCOMPARE(app.Prompts().m_shown.size(), 1U);
    }

    void NoRecorderAtGetDataKeepsTheOldData()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(5);
        app.Modify();
        app.Frame().m_connected = true;
        app.Prompts().m_answers = {Answer::No};
        app.Prompts().m_whileShown = [&app](const Prompt&) { app.Frame().m_connected = false; };
        app.View().OnCommand(CommandId::GetData);
        QCOMPARE(app.Prompts().Boxes().last(), QStringLiteral("Can not connect to KORVA."));
        QCOMPARE(app.View().Data().GetSize(), 5U);
        QCOMPARE(app.View().DataPath(), app.Path(QStringLiteral("crate.skd")));
    }

    void FailedStatusEmptiesTheView()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(5);
        app.Frame().m_connected = true; // the frame has not noticed yet that nothing is there
        app.View().OnCommand(CommandId::GetData);
        QCOMPARE(app.Prompts().Boxes(), QStringList{QStringLiteral("Failed to get the data.")});
        QVERIFY(app.View().Data().IsEmpty());
        QCOMPARE(app.View().DataPath(), QString());
        Check(app, Always + WithRecorder);
    }
};

QTEST_MAIN(CommandsTest)
#include "CommandsTest.moc"
