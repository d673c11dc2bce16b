#include "ViewApp.h"
#include "app/DataFolder.h"
#include "files/DataFile.h"

#include <QClipboard>
#include <QDir>
#include <QRegularExpression>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

void Option(CViewApp& app, const char* key, int value)
{
    app.Settings().WriteInt(SystemSection, QLatin1String(key), value);
}

/// A view with two lines of a recorder with humidity, or without.
void OpenTwoLines(CViewApp& app, bool hasHumidity = true)
{
    app.Show();
    CMeasureData measured = MeasuredLines(2);
    measured.m_hasHumidity = hasHumidity;
    CMeasureRecord second = LineAfter(61);
    second.SetValues(second.m_time, 5, -0.19, 0.0, 2.0, 23.9, 45.0);
    measured.SetRecord(1, second);
    app.Open(app.FileOf(measured, QStringLiteral("crate.skd")));
    app.View().Data().m_hasHumidity = hasHumidity;
}

void Export(CViewApp& app, const QString& path)
{
    app.Prompts().m_paths.push_back(path);
    app.View().OnCommand(CommandId::ExportCsv);
}

QByteArray Exported(CViewApp& app)
{
    const QString path = app.Path(QStringLiteral("out.csv"));
    QFile::remove(path);
    Export(app, path);
    return BytesOf(path);
}

/// The data code page follows the environment.
class CEnvironmentScope
{
public:
    CEnvironmentScope(const char* name, const QByteArray& value)
        : m_name(name)
        , m_before(qgetenv(name))
    {
        qputenv(name, value);
    }
    ~CEnvironmentScope() { qputenv(m_name, m_before); }
    CEnvironmentScope(const CEnvironmentScope&) = delete;
    CEnvironmentScope& operator=(const CEnvironmentScope&) = delete;

private:
    const char* m_name;
    QByteArray m_before;
};

} // namespace

/// Comma separated text, in a file and on the clipboard.
class CsvExportTest : public QObject
{
    Q_OBJECT

private slots:
    void ExportAsksForAName()
    {
        CViewApp app;
        OpenTwoLines(app);
        app.View().OnCommand(CommandId::ExportCsv);
        const Prompt& dialog = app.Prompts().m_shown.back();
        QVERIFY(dialog.kind == Prompt::Kind::SavePath);
        QCOMPARE(dialog.question.title, QStringLiteral("Export in CSV format"));
        QCOMPARE(dialog.question.filters,
                 (QStringList{"Comma separated text(csv) (*.csv)", "All (*)"}));
        QCOMPARE(dialog.question.folder, DefaultDataFolder());
        const QRegularExpression name(QStringLiteral("^07_\\d{8}_\\d{6}\\.csv$"));
        QVERIFY(name.match(dialog.question.name).hasMatch());
    }

    void FolderIsKeptApartFromThatOfTheData()
    {
        CViewApp app;
        OpenTwoLines(app);
        QVERIFY(QDir(app.m_test.Folder()).mkdir(QStringLiteral("csv")));
        Export(app, app.Path(QStringLiteral("csv/a.csv")));
        const auto kept = [&app](const char* key) {
            return app.Settings().GetText(SystemSection, QLatin1String(key), QString());
        };
        QCOMPARE(kept("CsvPath"), app.Path(QStringLiteral("csv")));
        QCOMPARE(kept("DataPath"), app.m_test.Folder());
        app.Settings().WriteText(SystemSection, QStringLiteral("CsvPath"),
                                 QStringLiteral("/data/"));
        app.View().OnCommand(CommandId::ExportCsv);
        QCOMPARE(app.Prompts().m_shown.back().question.folder, QStringLiteral("/data"));
    }

    void CancelledExportWritesNothing()
    {
        CViewApp app;
        OpenTwoLines(app);
        const QStringList files = QDir(app.m_test.Folder()).entryList(QDir::Files);
        app.View().OnCommand(CommandId::ExportCsv);
        QCOMPARE(QDir(app.m_test.Folder()).entryList(QDir::Files), files);
        QCOMPARE(app.Settings().GetText(SystemSection, QStringLiteral("CsvPath"), QString()),
                 QString());
    }

    void NormalFormHoldsAllColumns()
    {
        CViewApp app;
        OpenTwoLines(app);
        QCOMPARE(Exported(app),
                 QByteArray("Date/Time,X axis(G),Y axis(G),Z axis(G),Rsltnt(G),Temperature(C),"
                            "Humidity(%)\r\n"
                            "2009/05/01 12.30.15.250,1.234 ,0.500 ,-0.250 ,1.355 ,23.5 ,45.8 \r\n"
                            "2009/05/01 12.31.16.005,-0.190 ,0.000 ,2.000 ,2.009 ,23.9 ,45.0 "
                            "\r\n"));
    }

    void HumidityNeedsARecorderThatMeasuresIt()
    {
        CViewApp app;
        OpenTwoLines(app, false);
        const QByteArray text = Exported(app);
        QVERIFY(!text.contains("Humidity"));
        QVERIFY(text.endsWith(",23.9 \r\n"));
    }

    void OptionsAreReadAfresh()
    {
        CViewApp app;
        OpenTwoLines(app);
        Option(app, "CsvAccel", 0);
        Option(app, "CsvTemperature", 0);
        Option(app, "CsvHumidity", 0);
        Option(app, "CsvDateTime", 0);
        Option(app, "CsvUnit", 1);
        QCOMPARE(Exported(app),
                 QByteArray("Date,Time,X axis(m/s^2),Y axis(m/s^2),Z axis(m/s^2)\r\n"
                            "2009/05/01,12.30.15.250,12.0932 ,4.9000 ,-2.4500 \r\n"
                            "2009/05/01,12.31.16.005,-1.8620 ,0.0000 ,19.6000 \r\n"));
        Option(app, "CsvUnit", 2);
        QVERIFY(Exported(app).contains("X axis(Gal),"));
        QVERIFY(Exported(app).contains(",-186.20 ,  0.00 ,1960.00 \r\n"));
        Option(app, "CsvUnit", 9);
        QVERIFY(Exported(app).contains("X axis(G),"));
    }

    void UnitOfTheScreenIsNotThatOfTheFile()
    {
        CViewApp app;
        OpenTwoLines(app);
        app.View().OnCommand(CommandId::UnitGal);
        QVERIFY(Exported(app).contains(",1.234 ,"));
    }

    void RavelinFormIgnoresAllElse()
    {
        CViewApp app;
        OpenTwoLines(app);
        Option(app, "CsvRavelin", 1);
        Option(app, "CsvUnit", 2);
        Option(app, "CsvDateTime", 0);
        QCOMPARE(Exported(app),
                 QByteArray("date time,x(G),y(G),z(G),temperature(C)\r\n"
                            "2009/05/01 12:30:15.250,    12,     5,    -2,  23\r\n"
                            "2009/05/01 12:31:16.005,    -1,     0,    20,  23\r\n"));
    }

    void JapaneseNamesAreInTheCodePageOfTheSystem()
    {
        const CEnvironmentScope scope("LC_ALL", "ja_JP.UTF-8");
        CViewApp app(QStringLiteral("Japanese"));
        OpenTwoLines(app);
        const QByteArray header = Exported(app).split('\r').first();
        const QList<QByteArray> names = header.split(',');
        QCOMPARE(names.size(), 7);
        QCOMPARE(names[0], QByteArray("\x93\xFA\x8E\x9E"));
        QCOMPARE(names[1], QByteArray("X\x8E\xB2(G)"));
        QCOMPARE(names[4], QByteArray("\x8D\x87\x90\xAC\x92\x6C(G)"));
        QCOMPARE(names[5], QByteArray("\x89\xB7\x93\x78(C)"));
        Option(app, "CsvRavelin", 1);
        QVERIFY(Exported(app).startsWith("date time,x(G),y(G),z(G),temperature(C)\r\n"));
    }

    void ExtensionBecomesCsv()
    {
        CViewApp app;
        OpenTwoLines(app);
        Export(app, app.Path(QStringLiteral("a.txt")));
        Export(app, app.Path(QStringLiteral("b")));
        QVERIFY(QFile::exists(app.Path(QStringLiteral("a.csv"))));
        QVERIFY(QFile::exists(app.Path(QStringLiteral("b.csv"))));
        QVERIFY(!QFile::exists(app.Path(QStringLiteral("a.txt"))));
        QVERIFY(app.Prompts().Boxes().isEmpty());
        QCOMPARE(app.View().DataPath(), app.Path(QStringLiteral("crate.skd")));
        QVERIFY(app.View().Data().SignatureUnchanged());
    }

    void OverwritingIsAskedForTheFileThatIsWritten()
    {
        CViewApp app;
        OpenTwoLines(app);
        const QString there = app.Path(QStringLiteral("there.csv"));
        WriteBytes(there, "kept");
        app.Prompts().m_answers = {Answer::No};
        Export(app, app.Path(QStringLiteral("there.txt")));
        QCOMPARE(app.Prompts().Boxes().size(), 1);
        QVERIFY(app.Prompts().Boxes()[0].startsWith(there));
        QCOMPARE(BytesOf(there), QByteArray("kept"));
    }

    void FailedExportTellsThePathAsItWasChosen()
    {
        CViewApp app;
        OpenTwoLines(app);
        const QString chosen = app.Path(QStringLiteral("nowhere/a.txt"));
        Export(app, chosen);
        QCOMPARE(app.Prompts().Boxes().size(), 1);
        QVERIFY(app.Prompts().Boxes()[0].startsWith(chosen + QStringLiteral("\nFailed to write.")));
        QVERIFY(app.Prompts().m_shown.back().boxKind == BoxKind::Warning);
        QVERIFY(app.View().CanOperate());
        QVERIFY(app.View().Data().SignatureUnchanged());
    }

    void DeletedAndUnmarkedLinesAreExportedToo()
    {
        CViewApp app;
        OpenTwoLines(app);
        app.View().Data().AddRecord(LineAfter(99, RecordFlag::Deleted));
        QCOMPARE(Exported(app).count('\n'), 4);
    }

    void CopyPutsHeaderAndAllRowsOnTheClipboard()
    {
        CViewApp app;
        OpenTwoLines(app, false);
        Option(app, "CsvAccel", 0);
        app.View().OnCommand(CommandId::CopyCsv);
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 QStringLiteral("Date/Time,X axis(G),Y axis(G),Z axis(G),Temperature(C)\r\n"
                                "2009/05/01 12.30.15.250,1.234 ,0.500 ,-0.250 ,23.5 \r\n"
                                "2009/05/01 12.31.16.005,-0.190 ,0.000 ,2.000 ,23.9 \r\n"));
        QCOMPARE(app.Prompts().m_beeps, 1);
        QCOMPARE(app.Frame().m_status, QStringLiteral("Copied to the clipboard"));
        QVERIFY(app.Prompts().Boxes().isEmpty());
    }

    void CopyIsReadableInJapanese()
    {
        const CEnvironmentScope scope("LC_ALL", "ja_JP.UTF-8");
        CViewApp app(QStringLiteral("Japanese"));
        OpenTwoLines(app);
        app.View().OnCommand(CommandId::CopyCsv);
        QVERIFY(QGuiApplication::clipboard()->text().startsWith(
            QString::fromUtf8("日時,X軸(G),Y軸(G),Z軸(G),合成値(G),温度(C),")));
    }

    void CopyWithoutLinesDoesNothing()
    {
        CViewApp app;
        app.Show();
        QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
        app.View().OnCommand(CommandId::CopyCsv);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
        QCOMPARE(app.Prompts().m_beeps, 0);
    }

    void ControlsWorkAfterAnExport()
    {
        CViewApp app;
        OpenTwoLines(app);
        // A report of the chart arrives while the view is busy.
        app.Prompts().m_whileShown = [&app](const Prompt&) {
            QMetaObject::invokeMethod(
                &app.View(), [&app] { app.View().RefreshControls(); }, Qt::QueuedConnection);
        };
        Export(app, app.Path(QStringLiteral("a.csv")));
        QVERIFY(app.Frame().m_closeEnabled);
    }
};

QTEST_MAIN(CsvExportTest)
#include "CsvExportTest.moc"
