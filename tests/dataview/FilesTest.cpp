#include "ViewApp.h"
#include "app/DataFolder.h"
#include "base/CalendarTime.h"
#include "controls/SkinButton.h"
#include "files/DataFile.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QTimer>

using namespace skeldon;
using namespace skeldon::test;

namespace {

using PromptKind = Prompt::Kind;

const QString AskSave = QStringLiteral("The data is not saved. \nDo you want to save it?");

QString Kept(CViewApp& app, const char* key)
{
    return app.Settings().GetText(SystemSection, QLatin1String(key), QString());
}

void KeepFolder(CViewApp& app, const QString& folder)
{
    app.Settings().WriteText(SystemSection, QStringLiteral("DataPath"), folder);
}

/// The order in which boxes and dialogs came, as their words.
QStringList Shown(CViewApp& app)
{
    QStringList words;
    for (const Prompt& prompt : app.Prompts().m_shown)
        words << prompt.text;
    return words;
}

void SaveAs(CViewApp& app, const QString& path)
{
    app.Prompts().m_paths.push_back(path);
    app.View().OnCommand(CommandId::SaveAs);
}

std::size_t LinesIn(const QString& path)
{
    CMeasureData data;
    return ReadFile(data, path.toStdString()) ? data.GetSize() : 0;
}

/// A changed data set in the view, and nothing in the memory of the prompts.
void OpenChanged(CViewApp& app)
{
    app.Show();
    app.OpenLines(3);
    app.Modify();
    app.Prompts().m_shown.clear();
}

/// Opens lines that a hand has changed.
QStringList BoxesAfterOpening(const std::function<void(CMeasureRecord&)>& change)
{
    CMeasureData measured = MeasuredLines(3);
    measured.m_hasHumidity = true;
    CMeasureRecord line = measured.GetRecord(1);
    change(line);
    measured.SetRecord(1, line);
    CViewApp app;
    app.Show();
    app.Open(app.FileOf(measured, QStringLiteral("odd.skd")));
    if (app.List().model()->rowCount() != 3)
        QTest::qFail("not all lines are shown", __FILE__, __LINE__);
    return app.Prompts().Boxes();
}

} // namespace

/// Opening and saving, what is asked and told about it, and the title that goes with it.
class FilesTest : public QObject
{
    Q_OBJECT

private slots:
    void OpenAsksForAFile()
    {
        CViewApp app;
        app.Show();
        app.View().OnCommand(CommandId::Open);
        QCOMPARE(app.Prompts().m_shown.size(), 1U);
        const Prompt& dialog = app.Prompts().m_shown[0];
        QVERIFY(dialog.kind == PromptKind::OpenPath);
        QCOMPARE(dialog.question.title, QStringLiteral("Open measured data"));
        QCOMPARE(dialog.question.filters,
                 (QStringList{"SKELDON file(skd,sks) (*.skd *.sks)", "All (*)"}));
        QCOMPARE(dialog.question.folder, DefaultDataFolder());
        QVERIFY(dialog.question.folder.endsWith(QStringLiteral("/KORVA")));
        QCOMPARE(dialog.question.name, QString());
    }

    void FolderOfTheLastFileIsOffered_data()
    {
        QTest::addColumn<QString>("kept");
        QTest::addColumn<QString>("offered");
        QTest::newRow("plain") << "/data/crates"
                               << "/data/crates";
        QTest::newRow("separator at the end") << "/data/crates/"
                                              << "/data/crates";
        QTest::newRow("root") << "/"
                              << "/";
    }
    void FolderOfTheLastFileIsOffered()
    {
        QFETCH(QString, kept);
        CViewApp app;
        app.Show();
        KeepFolder(app, kept);
        app.View().OnCommand(CommandId::Open);
        QTEST(app.Prompts().m_shown[0].question.folder, "offered");
    }

    void FolderIsKeptEvenWhereReadingOrWritingFails()
    {
        CViewApp app;
        OpenChanged(app);
        SaveAs(app, app.Path(QStringLiteral("nowhere/b.skd")));
        QCOMPARE(app.Prompts().Boxes().size(), 1);
        QCOMPARE(Kept(app, "DataPath"), app.Path(QStringLiteral("nowhere")));
        app.Prompts().m_answers = {Answer::No};
        app.Open(app.Path(QStringLiteral("elsewhere/a.skd")));
        QVERIFY(app.View().Data().IsEmpty());
        QCOMPARE(Kept(app, "DataPath"), app.Path(QStringLiteral("elsewhere")));
    }

    void CancelledOpenChangesNothing()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(3);
        const QString folder = Kept(app, "DataPath");
        app.View().OnCommand(CommandId::Open);
        QCOMPARE(app.View().Data().GetSize(), 3U);
        QCOMPARE(app.View().DataPath(), app.Path(QStringLiteral("crate.skd")));
        QCOMPARE(Kept(app, "DataPath"), folder);
        QVERIFY(app.Prompts().Boxes().isEmpty());
    }

    void OpenedFileIsShown()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(3);
        QCOMPARE(app.View().DataPath(), app.Path(QStringLiteral("crate.skd")));
        QCOMPARE(app.Frame().m_caption, QStringLiteral("crate.skd"));
        QCOMPARE(app.Frame().m_status, QStringLiteral("(reset)"));
        QCOMPARE(app.List().model()->rowCount(), 3);
        QCOMPARE(Kept(app, "DataPath"), app.m_test.Folder());
        QVERIFY(app.View().Data().SignatureUnchanged());
        QVERIFY(app.Prompts().Boxes().isEmpty());
    }

    void StatusBarTellsWhatTakesTime()
    {
        CViewApp app;
        app.Show();
        QSet<QString> told;
        QTimer every;
        connect(&every, &QTimer::timeout, &every, [&] { told << app.Frame().m_status; });
        every.start(0);
        app.OpenLines(3);
        QVERIFY(told.contains(QStringLiteral("Loading files...")));
        QVERIFY(told.contains(QStringLiteral("Making lists...")));
    }

    void FileThatIsNotReadLeavesTheViewEmpty_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("missing") << "missing.skd";
        QTest::newRow("a folder") << ".";
        QTest::newRow("no data file") << "letter.skd";
        QTest::newRow("empty") << "empty.skd";
    }
    void FileThatIsNotReadLeavesTheViewEmpty()
    {
        QFETCH(QString, name);
        CViewApp app;
        app.Show();
        WriteBytes(app.Path(QStringLiteral("letter.skd")), "Dear sir,\n");
        WriteBytes(app.Path(QStringLiteral("empty.skd")), "");
        app.OpenLines(3);
        app.Prompts().m_whileShown = [&](const Prompt& prompt) {
            if (prompt.kind == PromptKind::Box)
                QCOMPARE(app.Frame().m_status, QStringLiteral("(reset)"));
        };
        app.Open(app.Path(name));
        QCOMPARE(app.Prompts().Boxes(), QStringList{QStringLiteral("Failed to read.")});
        QVERIFY(app.Prompts().m_shown.back().boxKind == BoxKind::Warning);
        QCOMPARE(app.View().DataPath(), QString());
        QCOMPARE(app.Frame().m_caption, QString());
        QVERIFY(app.View().Data().IsEmpty());
        QVERIFY(app.View().Data().SignatureUnchanged());
        QCOMPARE(app.List().model()->rowCount(), 0);
        QVERIFY(!app.Can(CommandId::SaveAs));
        app.View().OnCommand(CommandId::Exit);
        QVERIFY(app.Frame().m_closed);
    }

    void StartFileIsOpenedOnceTheViewIsLaidOut()
    {
        CViewApp app;
        const QString path = app.FileOf(MeasuredLines(4), QStringLiteral("start.skd"));
        app.m_test.m_app->m_commandLine.m_fileName = path;
        app.View().OnInitialUpdate();
        app.Settle();
        QVERIFY(app.View().Data().IsEmpty());
        app.View().resize(CViewApp::Smallest);
        app.View().show();
        QTRY_COMPARE(app.View().DataPath(), path);
        QCOMPARE(app.View().Data().GetSize(), 4U);
        QCOMPARE(app.Frame().m_caption, QStringLiteral("start.skd"));
        QVERIFY(app.Prompts().m_shown.empty());
        QCOMPARE(Kept(app, "DataPath"), QString());
    }

    void StartFileThatIsNotReadIsTold_data() { FileThatIsNotReadLeavesTheViewEmpty_data(); }
    void StartFileThatIsNotReadIsTold()
    {
        QFETCH(QString, name);
        CViewApp app;
        WriteBytes(app.Path(QStringLiteral("letter.skd")), "Dear sir,\n");
        WriteBytes(app.Path(QStringLiteral("empty.skd")), "");
        app.m_test.m_app->m_commandLine.m_fileName = app.Path(name);
        app.Show();
        QTRY_COMPARE(Shown(app), QStringList{QStringLiteral("Failed to read.")});
        QCOMPARE(app.View().DataPath(), QString());
        app.View().resize(800, 600); // laid out again, not opened again
        app.Settle();
        QCOMPARE(app.Prompts().m_shown.size(), 1U);
    }

    void TitleIsTheFilePartOfThePath()
    {
        CViewApp app;
        app.Show();
        QCOMPARE(app.Frame().m_caption, QString());
        app.Open(app.FileOf(MeasuredLines(1), QStringLiteral("no extension")));
        QCOMPARE(app.Frame().m_caption, QStringLiteral("no extension"));
        app.Open(app.FileOf(MeasuredLines(1), QStringLiteral("two.points.skd")));
        QCOMPARE(app.Frame().m_caption, QStringLiteral("two.points.skd"));
    }

    void ReadBackDataIsUnsavedUntilItHasAName()
    {
        CViewApp app;
        app.Show();
        app.GetData(5);
        QCOMPARE(app.Frame().m_caption, QStringLiteral("Unsaved"));
        QVERIFY(!app.View().Data().SignatureUnchanged());
        SaveAs(app, app.Path(QStringLiteral("kept.skd")));
        QCOMPARE(app.Frame().m_caption, QStringLiteral("kept.skd"));
        QVERIFY(app.View().Data().SignatureUnchanged());
    }

    void UnsavedIsAWordOfTheLanguage()
    {
        CViewApp app(QStringLiteral("Japanese"));
        app.Show();
        app.GetData(2);
        QCOMPARE(app.Frame().m_caption, QString::fromUtf8("未保存"));
    }

    void SaveAsAsksForAName()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(3);
        KeepFolder(app, QStringLiteral("/data/"));
        app.View().OnCommand(CommandId::SaveAs);
        const Prompt& dialog = app.Prompts().m_shown.back();
        QVERIFY(dialog.kind == PromptKind::SavePath);
        QCOMPARE(dialog.question.title, QStringLiteral("Save measured data"));
        QCOMPARE(dialog.question.filters, (QStringList{"SKELDON file(skd) (*.skd)", "All (*)"}));
        QCOMPARE(dialog.question.folder, QStringLiteral("/data"));
        const QRegularExpression name(QStringLiteral("^07_\\d{8}_\\d{6}\\.skd$"));
        QVERIFY(name.match(dialog.question.name).hasMatch());
    }

    void SaveButtonIsSaveAs()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(3);
        app.Click(DataViewButton::Save);
        QVERIFY(app.Prompts().m_shown.back().kind == PromptKind::SavePath);
    }

    void ExtensionBecomesSkd_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("written");
        QTest::newRow("right") << "a.skd"
                               << "a.skd";
        QTest::newRow("none") << "a"
                              << "a.skd";
        QTest::newRow("other") << "a.b"
                               << "a.skd";
        QTest::newRow("older kind") << "a.sks"
                                    << "a.skd";
        QTest::newRow("last of two") << "a.b.c"
                                     << "a.b.skd";
        QTest::newRow("capitals") << "a.SKD"
                                  << "a.SKD";
    }
    void ExtensionBecomesSkd()
    {
        QFETCH(QString, chosen);
        QFETCH(QString, written);
        CViewApp app;
        app.Show();
        app.OpenLines(3);
        QVERIFY(QDir(app.m_test.Folder()).mkdir(QStringLiteral("out")));
        SaveAs(app, app.Path(QStringLiteral("out/") + chosen));
        const QString path = app.Path(QStringLiteral("out/") + written);
        QCOMPARE(QDir(app.Path(QStringLiteral("out"))).entryList(QDir::Files),
                 QStringList{written});
        QCOMPARE(LinesIn(path), 3U);
        QCOMPARE(app.View().DataPath(), path);
        QCOMPARE(app.Frame().m_caption, written);
        QCOMPARE(QString::fromStdString(app.View().Data().m_fileName), written);
        QCOMPARE(Kept(app, "DataPath"), app.Path(QStringLiteral("out")));
        QVERIFY(app.Prompts().Boxes().isEmpty());
    }

    void OverwritingIsAskedForTheFileThatIsWritten()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(3);
        const QString there = app.Path(QStringLiteral("there.skd"));
        WriteBytes(there, "kept");
        app.Prompts().m_shown.clear();
        app.Prompts().m_answers = {Answer::No};
        SaveAs(app, app.Path(QStringLiteral("there.txt")));
        // After No the dialog comes again, and is cancelled.
        QCOMPARE(Shown(app),
                 (QStringList{"Save measured data",
                              there + "\u0020already exists.\nDo you want to replace it?",
                              "Save measured data"}));
        QVERIFY(app.Prompts().m_shown[1].boxKind == BoxKind::YesNo);
        QCOMPARE(BytesOf(there), QByteArray("kept"));
        QCOMPARE(app.View().DataPath(), app.Path(QStringLiteral("crate.skd")));
        app.Prompts().m_answers = {Answer::Yes};
        SaveAs(app, app.Path(QStringLiteral("there.txt")));
        QCOMPARE(LinesIn(there), 3U);
        QCOMPARE(app.View().DataPath(), there);
    }

    void FailedSaveTellsThePathThatTheDataHad()
    {
        CViewApp app;
        OpenChanged(app);
        const QString old = app.Path(QStringLiteral("crate.skd"));
        SaveAs(app, app.Path(QStringLiteral("nowhere/b.skd")));
        const QStringList boxes = app.Prompts().Boxes();
        QCOMPARE(boxes.size(), 1);
        QVERIFY2(boxes[0].startsWith(old + QStringLiteral("\nFailed to write.")),
                 qPrintable(boxes[0]));
        QVERIFY(app.Prompts().m_shown.back().boxKind == BoxKind::Warning);
        QCOMPARE(app.View().DataPath(), old);
        QCOMPARE(app.View().Data().GetSize(), 3U);
        QVERIFY(!app.View().Data().SignatureUnchanged());
    }

    void SaveWritesToThePathWithoutAsking()
    {
        CViewApp app;
        OpenChanged(app);
        QVERIFY(app.Can(CommandId::Save));
        app.View().OnCommand(CommandId::Save);
        QVERIFY(app.Prompts().m_shown.empty());
        QVERIFY(!app.Can(CommandId::Save));
        CMeasureData data;
        QVERIFY(ReadFile(data, app.Path(QStringLiteral("crate.skd")).toStdString()));
        QVERIFY(data.GetRecord(0).HasFlag(RecordFlag::Marked));
    }

    void UnchangedFileIsNotSavedAgain()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(3);
        const QString path = app.Path(QStringLiteral("crate.skd"));
        QVERIFY(QFile::remove(path));
        app.View().OnCommand(CommandId::Save);
        QVERIFY(!QFile::exists(path));
    }

    void OlderFileIsStoredUnderANewNameOnly()
    {
        CViewApp app;
        app.Show();
        app.Open(app.FileOf(MeasuredLines(3), QStringLiteral("old.sks")));
        app.Modify();
        const QByteArray before = BytesOf(app.Path(QStringLiteral("old.sks")));
        app.View().OnCommand(CommandId::Save);
        QCOMPARE(BytesOf(app.Path(QStringLiteral("old.sks"))), before);
        SaveAs(app, app.Path(QStringLiteral("old.sks")));
        QCOMPARE(app.View().DataPath(), app.Path(QStringLiteral("old.skd")));
        QCOMPARE(LinesIn(app.Path(QStringLiteral("old.skd"))), 3U);
        QCOMPARE(BytesOf(app.Path(QStringLiteral("old.sks"))), before);
    }

    void UnsavedDataIsAskedAbout()
    {
        CViewApp app;
        OpenChanged(app);
        app.View().OnCommand(CommandId::Exit);
        QCOMPARE(Shown(app), QStringList{AskSave});
        QVERIFY(app.Prompts().m_shown[0].boxKind == BoxKind::YesNoCancel);
        QVERIFY(!app.Frame().m_closed); // Cancel is preselected
        QCOMPARE(app.View().Data().GetSize(), 3U);
    }

    void NoGoesOnWithoutSaving()
    {
        CViewApp app;
        OpenChanged(app);
        app.Prompts().m_answers = {Answer::No};
        app.View().OnCommand(CommandId::ViewSetup);
        QCOMPARE(Shown(app), QStringList{AskSave});
        QCOMPARE(app.Frame().m_view, ViewIndex::Setup);
    }

    void YesSavesAndGoesOn()
    {
        CViewApp app;
        OpenChanged(app);
        app.Prompts().m_answers = {Answer::Yes};
        app.Prompts().m_paths.push_back(app.Path(QStringLiteral("kept.skd")));
        app.View().OnCommand(CommandId::Exit);
        QCOMPARE(Shown(app), (QStringList{AskSave, "Save measured data"}));
        QVERIFY(app.Frame().m_closed);
        QCOMPARE(LinesIn(app.Path(QStringLiteral("kept.skd"))), 3U);
    }

    void YesAndACancelledDialogDropsTheData()
    {
        CViewApp app;
        OpenChanged(app);
        const QString other = app.FileOf(MeasuredLines(7), QStringLiteral("other.skd"));
        app.Prompts().m_answers = {Answer::Yes};
        app.Prompts().m_paths = {std::nullopt, other};
        app.View().OnCommand(CommandId::Open);
        QCOMPARE(Shown(app), (QStringList{AskSave, "Save measured data", "Open measured data"}));
        QCOMPARE(app.View().Data().GetSize(), 7U);
        QCOMPARE(app.View().DataPath(), other);
    }

    void YesAndAFailedWriteKeepsTheDataAndStops_data()
    {
        QTest::addColumn<int>("command");
        QTest::newRow("open") << static_cast<int>(CommandId::Open);
        QTest::newRow("setup") << static_cast<int>(CommandId::ViewSetup);
        QTest::newRow("exit") << static_cast<int>(CommandId::Exit);
        QTest::newRow("get data") << static_cast<int>(CommandId::GetData);
    }
    void YesAndAFailedWriteKeepsTheDataAndStops()
    {
        QFETCH(int, command);
        CViewApp app;
        OpenChanged(app);
        app.Frame().m_connected = true;
        app.Prompts().m_answers = {Answer::Yes};
        app.Prompts().m_paths = {app.Path(QStringLiteral("nowhere/x.skd"))};
        app.View().OnCommand(static_cast<CommandId>(command));
        QCOMPARE(app.Prompts().m_shown.size(), 3U); // question, dialog, failure
        QVERIFY(!app.Frame().m_closed);
        QCOMPARE(app.Frame().m_view, ViewIndex::Display);
        QCOMPARE(app.View().Data().GetSize(), 3U);
        QCOMPARE(app.View().DataPath(), app.Path(QStringLiteral("crate.skd")));
    }

    void QuestionCanBeSwitchedOff()
    {
        CViewApp app;
        app.Settings().WriteInt(SystemSection, QStringLiteral("SaveInfo"), 0);
        OpenChanged(app);
        app.View().OnCommand(CommandId::ViewSetup);
        QVERIFY(app.Prompts().m_shown.empty());
        QCOMPARE(app.Frame().m_view, ViewIndex::Setup);
    }

    void ChangedSettingsSwitchTheQuestion()
    {
        CViewApp app;
        OpenChanged(app);
        app.Settings().WriteInt(SystemSection, QStringLiteral("SaveInfo"), 0);
        app.View().OnCommand(CommandId::Exit);
        QCOMPARE(Shown(app), QStringList{AskSave}); // not read yet
        app.View().OnUpdate(DocumentHint::SettingsChanged, 0);
        app.View().OnCommand(CommandId::Exit);
        QVERIFY(app.Frame().m_closed);
    }

    void PlaySpeedStaysInTheStore()
    {
        CViewApp app;
        app.Settings().WriteInt(SystemSection, QStringLiteral("PlaySpeed"), 77);
        app.Show();
        app.View().OnUpdate(DocumentHint::SettingsChanged, 0);
        app.View().OnCommand(CommandId::Exit);
        QCOMPARE(app.Settings().GetInt(SystemSection, QStringLiteral("PlaySpeed"), -1), 77);
    }

    void ErrorsAreToldOneByOne()
    {
        QCOMPARE(BoxesAfterOpening([](CMeasureRecord&) {}), QStringList());
        QCOMPARE(BoxesAfterOpening([](CMeasureRecord& line) { line.m_msec = 1500; }),
                 QStringList{QStringLiteral("Error in date/time.\n")});
        QCOMPARE(BoxesAfterOpening([](CMeasureRecord& line) { line.m_time -= 1000; }),
                 QStringList{QStringLiteral("Error in date/time.\n")});
        QCOMPARE(BoxesAfterOpening([](CMeasureRecord& line) { line.m_temperature = 100.5; }),
                 QStringList{QStringLiteral("Error in temperature.\n")});
        QCOMPARE(BoxesAfterOpening([](CMeasureRecord& line) { line.m_humidity = 100.5; }),
                 QStringList{QStringLiteral("Error in Humidity.\n")});
    }

    void YearsOfAFileAreNotRepaired()
    {
        // A break that lies in the future, which a read-back would move by a year.
        constexpr CalendarSeconds Days = 24 * 60 * 60;
        CMeasureData measured = MeasuredLines(3);
        for (std::size_t i = 0; i < measured.GetSize(); ++i) {
            CMeasureRecord line = measured.GetRecord(i);
            line.m_time = Now() + (i == 0 ? 600 : 300) * Days + static_cast<CalendarSeconds>(i);
            measured.SetRecord(i, line);
        }
        CViewApp app;
        app.Show();
        app.Open(app.FileOf(measured, QStringLiteral("future.skd")));
        QCOMPARE(app.Prompts().Boxes(), QStringList{QStringLiteral("Error in date/time.\n")});
        QVERIFY(app.View().Data().m_yearRepairable);
        for (std::size_t i = 0; i < measured.GetSize(); ++i)
            QCOMPARE(app.View().Data().GetRecord(i).m_time, measured.GetRecord(i).m_time);
        QVERIFY(app.View().Data().GetRecord(2).HasFlag(RecordFlag::BehindBreak));
    }

    void ErrorsAreToldTogetherInTheirOrder()
    {
        const auto spoil = [](CMeasureRecord& line) {
            line.m_humidity = -1.0;
            line.m_temperature = -101.0;
            line.m_time -= 1000;
            line.m_msec = 1500;
        };
        QCOMPARE(BoxesAfterOpening(spoil),
                 QStringList{QStringLiteral(
                     "Error in date/time.\nError in temperature.\nError in Humidity.\n")});
    }

    void ErrorsAreToldWhenEverythingIsShown()
    {
        CMeasureData measured = MeasuredLines(3);
        CMeasureRecord hot = LineAfter(1);
        hot.m_temperature = 150.0;
        measured.SetRecord(1, hot);
        CViewApp app;
        app.Show();
        bool told = false;
        app.Prompts().m_whileShown = [&](const Prompt& prompt) {
            if (prompt.kind != PromptKind::Box)
                return;
            told = true;
            QVERIFY(prompt.boxKind == BoxKind::Warning);
            QCOMPARE(app.List().model()->rowCount(), 3);
            QVERIFY(app.View().Summary().startsWith(QStringLiteral("    # of Records:3")));
            QCOMPARE(app.View().DataPath(), QString());
        };
        app.Open(app.FileOf(measured, QStringLiteral("hot.skd")));
        QVERIFY(told);
        // What the analysis flagged belongs to what was loaded.
        QVERIFY(app.View().Data().GetRecord(1).HasFlag(RecordFlag::Abnormal));
        QVERIFY(app.View().Data().SignatureUnchanged());
        QCOMPARE(app.Frame().m_caption, QStringLiteral("hot.skd"));
    }

    void ReadFailureDropsTheOldErrors()
    {
        CMeasureData measured = MeasuredLines(2);
        CMeasureRecord hot = LineAfter(1);
        hot.m_temperature = 150.0;
        measured.SetRecord(1, hot);
        CViewApp app;
        app.Show();
        app.Open(app.FileOf(measured, QStringLiteral("hot.skd")));
        app.Open(app.Path(QStringLiteral("missing.skd")));
        QVERIFY(app.View().Data().m_marks.empty());
        QVERIFY(!app.Can(CommandId::SaveAs));
    }
};

QTEST_MAIN(FilesTest)
#include "FilesTest.moc"
