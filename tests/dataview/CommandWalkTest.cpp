#include "DormantCommands.h"
#include "MenuApp.h"

#include "chart/view/ChartPropertyDialog.h"
#include "chart/view/ChartWnd.h"
#include "chart/view/DisplayPrintDialog.h"
#include "controls/SkinButton.h"
#include "dataview/MeasuredList.h"
#include "online/MonitorDialog.h"
#include "online/OnlineDialog.h"

#include <QClipboard>
#include <QDir>
#include <QImage>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <map>

using namespace skeldon;
using namespace skeldon::test;

namespace {

// The commands by when they can be given.
const Commands Always{CommandId::Help, CommandId::OnlineSupport, CommandId::About,
                      CommandId::Monitor};
const Commands AtRest{
    CommandId::Open,          CommandId::Configuration,   CommandId::Exit,
    CommandId::ShowX,         CommandId::ShowY,           CommandId::ShowZ,
    CommandId::ShowResultant, CommandId::ShowTemperature, CommandId::ShowHumidity,
    CommandId::BarChart,      CommandId::ChartProperties, CommandId::OnlineConfiguration,
    CommandId::UnitG,         CommandId::UnitMs2,         CommandId::UnitGal,
    CommandId::ViewSetup};
const Commands WithData{CommandId::SaveAs, CommandId::ExportCsv, CommandId::Print};
const Commands WithRecorder{CommandId::GetData, CommandId::OnlineRecording};
/// Just loaded, five lines that rise.
const Commands OfChart{CommandId::HorizontalInflate, CommandId::VerticalInflate,
                       CommandId::VerticalDeflate, CommandId::CopyChart};

/// In English menus other commands' entries stand in the place of these.
Commands OfJapanese(const CMenuApp& app)
{
    if (!app.m_isJapanese)
        return {};
    return {CommandId::DisplayAllArea, CommandId::DisplayInCenter};
}

void AddLanguages()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << QStringLiteral("English");
    QTest::newRow("Japanese") << QStringLiteral("Japanese");
}

/// Closes the dialog of a class when it stands; counts how often.
template <class Dialog>
class CCloser
{
public:
    CCloser()
    {
        constexpr int PauseMs = 5;
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || m_seen == dialog)
                return;
            m_seen = dialog;
            ++m_count;
            dialog->reject();
        });
        m_timer.start(PauseMs);
    }
    int m_count = 0;

private:
    QTimer m_timer;
    QPointer<QWidget> m_seen; ///< another one may come to stand in its place
};

} // namespace

/// The whole command set of the data view, in both languages, through the menus that users open.
class CommandWalkTest : public QObject
{
    Q_OBJECT

private:
    /// The dialogs of the program's own that the entry of a command shows, by class; cancelled.
    static QStringList DialogsOf(CMenuApp& app, CommandId command)
    {
        QStringList shown;
        app.m_prompts->m_dialogs = {[&shown](QDialog& dialog) {
            shown << QString::fromLatin1(dialog.metaObject()->className()) << dialog.windowTitle();
            return false;
        }};
        if (!app.Choose(command))
            shown << QStringLiteral("(disabled)");
        app.m_prompts->m_dialogs.clear();
        return shown;
    }

    /// The file dialogs and boxes that the entry shows.
    static QStringList PromptsOf(CMenuApp& app, CommandId command)
    {
        app.m_prompts->m_shown.clear();
        if (!app.Choose(command))
            return {QStringLiteral("(disabled)")};
        QStringList texts;
        for (const Prompt& prompt : app.m_prompts->m_shown)
            texts << prompt.text;
        return texts;
    }

private slots:
    void MenusHoldTheWholeCommandSet_data() { AddLanguages(); }

    void MenusHoldTheWholeCommandSet()
    {
        QFETCH(const QString, language);
        CMenuApp app(language);
        using enum CommandId;
        const Commands all = Always + AtRest + WithData + WithRecorder + OfChart +
                             Commands{HorizontalDeflate} + OfJapanese(app);
        QCOMPARE(NamesOf(app.InMenus()), NamesOf(all));
    }

    void EntriesFollowTheState_data() { AddLanguages(); }

    void EntriesFollowTheState()
    {
        QFETCH(const QString, language);
        CMenuApp app(language);
        using enum CommandId;
        // Nothing loaded: the scale is at its coarsest.
        const Commands empty = Always + AtRest + Commands{VerticalInflate};
        QCOMPARE(NamesOf(app.Allowed()), NamesOf(empty));

        app.PlugIn({"--lines", "0"});
        QVERIFY(app.Connect());
        QCOMPARE(NamesOf(app.Allowed()), NamesOf(empty + WithRecorder));

        app.TakeLines(5);
        const Commands loaded = Always + AtRest + WithRecorder + WithData + OfChart;
        QCOMPARE(NamesOf(app.Allowed()), NamesOf(loaded));

        QVERIFY(app.Choose(HorizontalInflate));
        const Commands zoomed = loaded + Commands{HorizontalDeflate} + OfJapanese(app);
        QCOMPARE(NamesOf(app.Allowed()), NamesOf(zoomed));

        // An area is to be selected: what is left are the chart's own commands, whose corner
        // buttons work as well, and those of the window.
        app.View().Button(DataViewButton::ZoomIn).click();
        QVERIFY(app.View().Button(DataViewButton::ZoomIn).IsPressed());
        const Commands armed = Always + Commands{CopyChart} + OfJapanese(app);
        // "All area" and "in center" of English menus are other commands' entries.
        QCOMPARE(NamesOf(app.Allowed()), NamesOf(armed));
        app.View().OnCommand(SelectArea);
        QCOMPARE(NamesOf(app.Allowed()), NamesOf(zoomed));
    }

    void NothingIsAllowedInTheMiddleOfAnOperation_data() { AddLanguages(); }

    void NothingIsAllowedInTheMiddleOfAnOperation()
    {
        QFETCH(const QString, language);
        CMenuApp app(language);
        app.TakeLines(5);
        app.PlugIn({"--lines", "0"});
        QVERIFY(app.Connect());
        Commands allowed{CommandId::Open};
        bool canClose = true;
        app.m_prompts->m_paths = {app.m_folder.filePath(QStringLiteral("copy.skd"))};
        app.m_prompts->m_whileShown = [&](const Prompt& prompt) {
            // The windows breathe before the file is written.
            if (prompt.kind == Prompt::Kind::SavePath)
                QMetaObject::invokeMethod(
                    &app.View(),
                    [&] {
                        allowed.clear();
                        for (int i = 0; i < static_cast<int>(CommandId::Count); ++i) {
                            const auto command = static_cast<CommandId>(i);
                            if (app.Frame().StateOf(command).isEnabled)
                                allowed.insert(command);
                        }
                        app.View().RefreshControls();
                        canClose = app.View().Button(DataViewButton::Open).isEnabled();
                    },
                    Qt::QueuedConnection);
        };
        app.View().OnCommand(CommandId::SaveAs);
        QCOMPARE(NamesOf(allowed), NamesOf(Always));
        QVERIFY(!canClose);
        QVERIFY(app.View().Button(DataViewButton::Open).isEnabled());
    }

    void DisabledEntriesDoNothing_data() { AddLanguages(); }

    void DisabledEntriesDoNothing()
    {
        QFETCH(const QString, language);
        CMenuApp app(language);
        using enum CommandId;
        QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
        const Commands disabled = app.InMenus() - app.Allowed();
        QCOMPARE(disabled.size(), app.m_isJapanese ? std::size_t{11} : std::size_t{9});
        const QImage picture = app.Frame().grab().toImage();
        for (const CommandId command : disabled) {
            QVERIFY(!app.Choose(command));
            app.Frame().OnCommand(command);
        }
        app.Frame().OnCommand(Save); // has no entry
        app.Frame().OnCommand(CopyCsv);
        QVERIFY(app.m_prompts->m_shown.empty());
        QCOMPARE(app.m_prompts->m_beeps, 0);
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
        QCOMPARE(app.Frame().CurrentView(), ViewIndex::Display);
        QCOMPARE(app.Frame().grab().toImage(), picture);
    }

    void FileEntriesAskForTheirPaths_data() { AddLanguages(); }

    void FileEntriesAskForTheirPaths()
    {
        QFETCH(const QString, language);
        CMenuApp app(language);
        app.TakeLines(5);
        QCOMPARE(PromptsOf(app, CommandId::SaveAs), QStringList{Text(StringId::TitleSaveData)});
        QCOMPARE(PromptsOf(app, CommandId::ExportCsv), QStringList{Text(StringId::TitleExportCsv)});
        app.m_prompts->m_answers = {Answer::No};
        QCOMPARE(PromptsOf(app, CommandId::Open),
                 (QStringList{Text(StringId::AskSaveData), Text(StringId::TitleOpenData)}));
        QCOMPARE(app.View().Data().GetSize(), std::size_t{5});
        QCOMPARE(DialogsOf(app, CommandId::Print).value(0),
                 QString::fromLatin1(CDisplayPrintDialog::staticMetaObject.className()));
    }

    void MeasureEntriesReachTheRecorder_data() { AddLanguages(); }

    void MeasureEntriesReachTheRecorder()
    {
        QFETCH(const QString, language);
        CMenuApp app(language);
        app.PlugIn({"--lines", "0", "--time-scale", "4"});
        QVERIFY(app.Connect());
        QCOMPARE(PromptsOf(app, CommandId::GetData), QStringList{Text(StringId::NoMeasuredData)});
        CCloser<COnlineDialog> closer;
        QVERIFY(app.Choose(CommandId::OnlineRecording));
        QCOMPARE(closer.m_count, 1);
        QCOMPARE(app.View().DataPath(), Text(StringId::Unsaved));
    }

    void ConfigurationEntriesShowTheirDialogs_data() { AddLanguages(); }

    void ConfigurationEntriesShowTheirDialogs()
    {
        QFETCH(const QString, language);
        CMenuApp app(language);
        QVERIFY(app.Choose(CommandId::Configuration));
        QCOMPARE(app.m_sheets, 1);
        {
            QString title;
            QTimer::singleShot(0, &app.Frame(), [&title] {
                auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                QVERIFY(dialog != nullptr);
                title = dialog->windowTitle();
                dialog->reject();
            });
            QVERIFY(app.Choose(CommandId::OnlineConfiguration));
            QCOMPARE(title, Text(StringId::TitleOnlineConfiguration));
        }
        QCOMPARE(
            DialogsOf(app, CommandId::ChartProperties),
            (QStringList{QString::fromLatin1(CChartPropertyDialog::staticMetaObject.className()),
                         Text(StringId::TitleChartProperties)}));
    }

    void SeriesEntriesToggle_data() { AddLanguages(); }

    void SeriesEntriesToggle()
    {
        QFETCH(const QString, language);
        CMenuApp app(language);
        app.TakeLines(5);
        using enum CommandId;
        const std::map<CommandId, std::pair<DataViewButton, Series>> all{
            {ShowX, {DataViewButton::X, Series::X}},
            {ShowY, {DataViewButton::Y, Series::Y}},
            {ShowZ, {DataViewButton::Z, Series::Z}},
            {ShowResultant, {DataViewButton::Resultant, Series::Resultant}},
            {ShowTemperature, {DataViewButton::Temperature, Series::Temperature}},
            {ShowHumidity, {DataViewButton::Humidity, Series::Humidity}}};
        for (const auto& [command, series] : all) {
            const auto& [button, shown] = series;
            for (const bool isShown : {false, true}) {
                QCOMPARE(app.IsTicked(command), !isShown);
                QVERIFY(app.Choose(command));
                QCOMPARE(app.View().Button(button).IsPressed(), isShown);
                for (const Series each : AllSeries)
                    QCOMPARE(app.View().Chart().Model().m_seriesShown[Index(each)],
                             each != shown || isShown);
            }
        }
    }

    void ChartEntriesWorkTheChart_data() { AddLanguages(); }

    void ChartEntriesWorkTheChart()
    {
        QFETCH(const QString, language);
        CMenuApp app(language);
        app.TakeLines(5);
        using enum CommandId;
        const CChartModel& model = app.View().Chart().Model();
        QVERIFY(!app.IsTicked(BarChart));
        QVERIFY(app.Choose(BarChart));
        QVERIFY(model.m_barChart && app.IsTicked(BarChart));
        QVERIFY(app.Choose(BarChart));
        QVERIFY(!model.m_barChart && !app.IsTicked(BarChart));

        const int step = model.Step();
        QVERIFY(app.Choose(VerticalInflate));
        QCOMPARE(model.Step(), step + 1);
        QVERIFY(app.Choose(VerticalDeflate));
        QVERIFY(app.Choose(VerticalDeflate));
        QCOMPARE(model.Step(), step - 1);

        QVERIFY(model.m_window.ShowsAll());
        QVERIFY(app.Choose(HorizontalInflate));
        QVERIFY(!model.m_window.ShowsAll());
        QVERIFY(app.Choose(HorizontalDeflate));
        QVERIFY(model.m_window.ShowsAll());
    }

    void ViewEntriesOfTheChartWorkInJapanese()
    {
        CMenuApp app(QStringLiteral("Japanese"));
        app.TakeLines(5);
        using enum CommandId;
        const CChartModel& model = app.View().Chart().Model();
        QVERIFY(app.Choose(HorizontalInflate));
        QVERIFY(app.Choose(HorizontalInflate));
        QVERIFY(app.Choose(DisplayAllArea));
        QVERIFY(model.m_window.ShowsAll() && model.m_history.IsEmpty());
        QVERIFY(!app.Choose(DisplayAllArea));
        const int step = model.Step();
        QVERIFY(app.Choose(VerticalDeflate));
        QVERIFY(app.Choose(DisplayInCenter));
        QCOMPARE(model.Step(), step);
        QVERIFY(!app.Choose(DisplayInCenter));
        QCOMPARE(app.Frame().CurrentView(), ViewIndex::Display);
    }

    void ScaleEntriesEndAtTheLastSteps()
    {
        CMenuApp app(QStringLiteral("English"));
        app.TakeLines(5);
        using enum CommandId;
        const CChartModel& model = app.View().Chart().Model();
        for (int i = 0; i < 9; ++i)
            app.Choose(VerticalInflate);
        QCOMPARE(model.Step(), 8);
        QVERIFY(!app.Choose(VerticalInflate));
        for (int i = 0; i < 9; ++i)
            app.Choose(VerticalDeflate);
        QCOMPARE(model.Step(), 0);
        QVERIFY(!app.Choose(VerticalDeflate));
    }

    void CopyPutsThePictureOnTheClipboard_data() { AddLanguages(); }

    void CopyPutsThePictureOnTheClipboard()
    {
        QFETCH(const QString, language);
        CMenuApp app(language);
        app.TakeLines(5);
        QGuiApplication::clipboard()->clear();
        QVERIFY(app.Choose(CommandId::CopyChart));
        QVERIFY(!QGuiApplication::clipboard()->image().isNull());
        QCOMPARE(app.Frame().PaneText(0), Text(StringId::CopiedToClipboard));
    }

    void UnitsAreTicked_data() { AddLanguages(); }

    void UnitsAreTicked()
    {
        QFETCH(const QString, language);
        CMenuApp app(language);
        const std::vector<CommandId> units{CommandId::UnitG, CommandId::UnitMs2,
                                           CommandId::UnitGal};
        for (const int chosen : {1, 2, 0, 0}) {
            QVERIFY(app.Choose(units[static_cast<std::size_t>(chosen)]));
            QCOMPARE(app.m_app->m_dispUnit, chosen);
            for (int i = 0; i < 3; ++i)
                QCOMPARE(app.IsTicked(units[static_cast<std::size_t>(i)]), i == chosen);
        }
    }

    void EntriesOfTheWindowWork_data() { AddLanguages(); }

    void EntriesOfTheWindowWork()
    {
        QFETCH(const QString, language);
        CMenuApp app(language);
        QVERIFY(app.Choose(CommandId::About));
        QCOMPARE(app.m_abouts, 1);
        QVERIFY(app.Choose(CommandId::Help));
        QVERIFY(app.Choose(CommandId::OnlineSupport));
        QVERIFY(!app.Frame().Monitor().isVisible());
        QVERIFY(app.Choose(CommandId::Monitor));
        QVERIFY(app.Frame().Monitor().isVisible());
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
        QVERIFY(app.Choose(CommandId::ViewSetup));
        QCOMPARE(app.Frame().CurrentView(), ViewIndex::Setup);
    }

    void ExitEndsTheProgram_data() { AddLanguages(); }

    void ExitEndsTheProgram()
    {
        QFETCH(const QString, language);
        CMenuApp app(language);
        QVERIFY(app.Choose(CommandId::Exit));
        QTRY_VERIFY(!app.Frame().isVisible());
    }

    void DormantCommandsDoNothing_data() { AddLanguages(); }

    /// Whether they are allowed or not.
    void DormantCommandsDoNothing()
    {
        QFETCH(const QString, language);
        CMenuApp app(language);
        app.TakeLines(5);
        app.View().List().selectRow(2);
        QCoreApplication::processEvents();
        QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
        app.m_prompts->m_shown.clear();
        const Commands inMenus = app.InMenus();
        const QStringList files = QDir(app.m_folder.path()).entryList(QDir::Files);
        const QImage picture = app.Frame().grab().toImage();
        const QString title = app.Frame().windowTitle();
        const auto signature = app.View().Data().ComputeSignature();
        Commands allowed;
        for (const CommandId command : DormantCommands) {
            QVERIFY(!inMenus.contains(command));
            if (app.Frame().StateOf(command).isEnabled)
                allowed.insert(command);
            app.Frame().OnCommand(command);
            QCoreApplication::processEvents();
        }
        using enum CommandId;
        QCOMPARE(NamesOf(allowed),
                 NamesOf({AddMark, DeleteLine, DeleteSelected, AddMarkAtClick, ConfigureReal}));
        QCOMPARE(app.View().Data().ComputeSignature(), signature);
        QCOMPARE(app.View().List().CurrentRow(), 2);
        QVERIFY(app.m_prompts->m_shown.empty());
        QCOMPARE(app.m_prompts->m_beeps, 0);
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
        QCOMPARE(QApplication::activePopupWidget(), nullptr);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
        QCOMPARE(app.Frame().windowTitle(), title);
        QCOMPARE(QDir(app.m_folder.path()).entryList(QDir::Files), files);
        QCOMPARE(app.Frame().grab().toImage(), picture);
    }
};

QTEST_MAIN(CommandWalkTest)
#include "CommandWalkTest.moc"
