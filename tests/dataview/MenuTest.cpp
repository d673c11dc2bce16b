#include "FrameApp.h"

#include "controls/SkinButton.h"
#include "dataview/ManualPath.h"
#include "dataview/MeasuredList.h"
#include "recorder/TrafficSink.h"
#include "support/window/DrawnMenu.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QUrl>

#include <vector>

using namespace skeldon;
using namespace skeldon::test;

namespace {

const QString Japanese = QStringLiteral("Japanese");
const QString English = QStringLiteral("English");

/// A monitor that counts how often it was brought up.
class CCountedMonitor final : public CTrafficSink
{
public:
    explicit CCountedMonitor(int& shown)
        : m_shown(shown)
    {}
    void ReportCommand(std::string_view /*text*/) override {}
    void ReportBytes(std::string_view /*bytes*/) override {}
    void SetEnabled(bool /*enabled*/) override {}
    void ShowMonitor() override { ++m_shown; }

private:
    int& m_shown;
};

/// The menu as lines: two blanks a level, "-" for a separator.
QString Drawn(const QList<QAction*>& actions, int level = 0)
{
    QString lines;
    for (const QAction* const action : actions) {
        lines += QString(2 * level, u' ');
        lines += action->isSeparator() ? QStringLiteral("-") : action->text();
        lines += u'\n';
        if (action->menu() != nullptr)
            lines += Drawn(action->menu()->actions(), level + 1);
    }
    return lines;
}

QStringList Lines(const QString& drawn)
{
    return drawn.split(u'\n', Qt::SkipEmptyParts);
}

/// The lines of `all` that `some` lacks.
QStringList Missing(const QString& all, const QString& some)
{
    QStringList rest = Lines(all);
    for (const QString& line : Lines(some))
        rest.removeOne(line);
    return rest;
}

/// A page beside the program, for as long as this lives.
class CPageBesideTheProgram
{
public:
    explicit CPageBesideTheProgram(const QString& name)
        : m_path(QCoreApplication::applicationDirPath() + QLatin1Char('/') + name)
        , m_isMine(!QFile::exists(m_path))
    {
        QFile file(m_path);
        if (m_isMine)
            m_isMine = file.open(QIODevice::WriteOnly);
    }
    CPageBesideTheProgram(const CPageBesideTheProgram&) = delete;
    CPageBesideTheProgram& operator=(const CPageBesideTheProgram&) = delete;
    ~CPageBesideTheProgram()
    {
        if (m_isMine)
            QFile::remove(m_path);
    }
    [[nodiscard]] QString Path() const { return m_path; }

private:
    QString m_path;
    bool m_isMine;
};

} // namespace

/// Menus and keys of the main window.
class MenuTest : public QObject
{
    Q_OBJECT

private:
    /// Opens a menu by its letter and walks through it by letters, as a person would.
    static void Walk(CFrameApp& app, Qt::Key menu, const QList<Qt::Key>& letters)
    {
        app.Press(menu, Qt::AltModifier);
        for (const Qt::Key letter : letters) {
            QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
            QTest::keyClick(QApplication::activePopupWidget(), letter);
        }
    }

    /// Has the entries of the menu take the state that they have when it opens.
    static void Open(const QAction* entry)
    {
        for (QObject* const object : entry->associatedObjects()) {
            auto* const menu = qobject_cast<QMenu*>(object);
            if (menu == nullptr)
                continue;
            menu->popup({});
            menu->close();
        }
    }

private slots:
    void BarsReadAsTheMenusDo_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << English;
        QTest::newRow("Japanese") << Japanese;
    }

    void BarsReadAsTheMenusDo()
    {
        QFETCH(const QString, language);
        CFrameApp app(language);
        QVERIFY(app.Start({QStringLiteral("-mon"), QStringLiteral("-display")}));
        QCOMPARE(Drawn(app.Frame().MenuOf(ViewIndex::Display)->actions()),
                 Drawn(DataViewMenu(language == Japanese)));
        QCOMPARE(Drawn(app.Frame().MenuOf(ViewIndex::Setup)->actions()), Drawn(SetupViewMenu()));
    }

    void WithoutMonOneEntryGoesMissing()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        QCOMPARE(Missing(Drawn(DataViewMenu(false)),
                         Drawn(app.Frame().MenuOf(ViewIndex::Display)->actions())),
                 QStringList(QStringLiteral("    Display in &center")));
        QCOMPARE(
            Missing(Drawn(SetupViewMenu()), Drawn(app.Frame().MenuOf(ViewIndex::Setup)->actions())),
            QStringList(QStringLiteral("  &Monitor")));
        QVERIFY(app.Entry(ViewIndex::Display, QStringLiteral("&Monitor")) != nullptr);
    }

    void WithoutMonTheJapaneseMenusLoseTheMonitor()
    {
        CFrameApp app(Japanese);
        QVERIFY(app.Start());
        const QString monitor = QStringLiteral("  ") + Text(StringId::MenuViewMonitor);
        QCOMPARE(Missing(Drawn(DataViewMenu(true)),
                         Drawn(app.Frame().MenuOf(ViewIndex::Display)->actions())),
                 QStringList(monitor));
        QCOMPARE(
            Missing(Drawn(SetupViewMenu()), Drawn(app.Frame().MenuOf(ViewIndex::Setup)->actions())),
            QStringList(monitor));
        QVERIFY(app.Entry(ViewIndex::Display, Text(StringId::MenuChartDisplayInCenter)) != nullptr);
    }

    void MonitorOfTheEnglishDataMenuWorks()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        int shown = 0;
        app.m_app->Link().SetMonitor(std::make_unique<CCountedMonitor>(shown));
        Walk(app, Qt::Key_V, {Qt::Key_M});
        QCOMPARE(shown, 1);
    }

    void DisplayInCenterGivesTheMonitorInEnglish()
    {
        CFrameApp app;
        QVERIFY(app.Start({QStringLiteral("-display"), QStringLiteral("-mon")}));
        int shown = 0;
        app.m_app->Link().SetMonitor(std::make_unique<CCountedMonitor>(shown));
        Walk(app, Qt::Key_T, {Qt::Key_V, Qt::Key_C});
        QCOMPARE(shown, 1);
        QCOMPARE(app.Frame().CurrentView(), ViewIndex::Display);
    }

    void DisplayAllAreaGoesToTheSetupViewInEnglish()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        Walk(app, Qt::Key_T, {Qt::Key_H, Qt::Key_A});
        QCOMPARE(app.Frame().CurrentView(), ViewIndex::Setup);
        Walk(app, Qt::Key_V, {Qt::Key_D});
        QCOMPARE(app.Frame().CurrentView(), ViewIndex::Display);
    }

    void DisplayAllAreaStaysInTheDataViewInJapanese()
    {
        CFrameApp app(Japanese);
        QVERIFY(app.Start());
        QAction* const entry =
            app.Entry(ViewIndex::Display, Text(StringId::MenuChartDisplayAllArea));
        QVERIFY(entry != nullptr);
        entry->trigger();
        QCOMPARE(app.Frame().CurrentView(), ViewIndex::Display);
    }

    void EntriesTakeTheirStateWhenOpened()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        const auto isEnabled = [&](const char* text) {
            const QAction* const entry = app.Entry(ViewIndex::Display, QString::fromLatin1(text));
            Open(entry);
            return entry->isEnabled();
        };
        const QList<const char*> whenData{"Save &as...\tCtrl+A", "Export in &CSV format...\tCtrl+T",
                                          "&Print...\tCtrl+P"};
        const QList<const char*> always{"&Open...\tCtrl+O",
                                        "Co&nfiguration...",
                                        "E&xit SKELDON Light",
                                        "Online Recording Config&uration...",
                                        "&X axis",
                                        "&Humidity",
                                        "&G",
                                        "&m/s^2",
                                        "G&al",
                                        "&Setup view",
                                        "Pr&operty of chart...",
                                        "&Monitor",
                                        "&About SKELDON Light...",
                                        "Online &support"};
        const QList<const char*> whenConnected{"&Get data\tCtrl+D", "O&nline Recording"};
        for (const char* const text : whenData + whenConnected)
            QVERIFY2(!isEnabled(text), text);
        for (const char* const text : always)
            QVERIFY2(isEnabled(text), text);
        app.TakeLines(5);
        for (const char* const text : whenData + always)
            QVERIFY2(isEnabled(text), text);
        app.PlugIn({});
        QVERIFY(app.Connect());
        for (const char* const text : whenConnected)
            QVERIFY2(isEnabled(text), text);
        // In the middle of a zoom nothing of this can be done.
        app.View().Button(DataViewButton::ZoomIn).SetPressed(true);
        for (const char* const text : whenData + whenConnected)
            QVERIFY2(!isEnabled(text), text);
        for (const char* const text : {"&Open...\tCtrl+O", "Co&nfiguration...",
                                       "E&xit SKELDON Light", "&Setup view", "&X axis", "&G"})
            QVERIFY2(!isEnabled(text), text);
        QVERIFY(isEnabled("&About SKELDON Light..."));
    }

    void TickStandsAtTheUnitThatHolds()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        const QStringList units{QStringLiteral("&G"), QStringLiteral("&m/s^2"),
                                QStringLiteral("G&al")};
        const auto ticked = [&] {
            QStringList texts;
            for (const QString& unit : units) {
                const QAction* const entry = app.Entry(ViewIndex::Display, unit);
                Open(entry);
                if (entry->isChecked())
                    texts << unit;
            }
            return texts;
        };
        QCOMPARE(ticked(), QStringList(units[0]));
        for (const int unit : {1, 2, 0, 0}) {
            app.Entry(ViewIndex::Display, units[unit])->trigger();
            QCOMPARE(app.m_app->m_dispUnit, unit);
            QCOMPARE(ticked(), QStringList(units[unit]));
        }
    }

    void TickOfASeriesIsThatOfItsButton()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        QAction* const entry = app.Entry(ViewIndex::Display, QStringLiteral("&Y axis"));
        CSkinButton& button = app.View().Button(DataViewButton::Y);
        Open(entry);
        QVERIFY(entry->isChecked());
        entry->trigger();
        QVERIFY(!button.IsPressed());
        Open(entry);
        QVERIFY(!entry->isChecked());
        button.click();
        Open(entry);
        QVERIFY(entry->isChecked());
    }

    void CommandsOfTheFrameWorkInBothViews()
    {
        const CPageBesideTheProgram page(QStringLiteral("SKELDON_Light_En.html"));
        CFrameApp app;
        QVERIFY(app.Start());
        int times = 0;
        for (const ViewIndex view : {ViewIndex::Display, ViewIndex::Setup}) {
            app.Frame().SwitchView(view);
            ++times;
            app.Entry(view, QStringLiteral("&About SKELDON Light..."))->trigger();
            QCOMPARE(app.m_abouts, times);
            app.Entry(view, QStringLiteral("Co&nfiguration..."))->trigger();
            QCOMPARE(app.m_sheets, times);
            QAction* help = nullptr;
            for (QAction* const entry :
                 app.Frame().MenuOf(view)->actions().last()->menu()->actions()) {
                if (entry->text() == QLatin1String("&Help"))
                    help = entry;
            }
            QVERIFY(help != nullptr);
            help->trigger();
            QCOMPARE(app.m_prompts->m_pages.size(), std::size_t(times));
            QCOMPARE(app.m_prompts->m_pages.back(), QUrl::fromLocalFile(page.Path()));
        }
    }

    void ManualIsThatOfTheLanguage()
    {
        const QString english = QStringLiteral("SKELDON_Light_En.html");
        const QString japanese = QStringLiteral("SKELDON_Light_Jp.html");
        {
            const CPageBesideTheProgram page(japanese);
            QCOMPARE(ManualPath(true), page.Path());
            QVERIFY(!ManualPath(false).endsWith(japanese));
        }
        const CPageBesideTheProgram page(english);
        QCOMPARE(ManualPath(false), page.Path());
        QVERIFY(!ManualPath(true).endsWith(english));
    }

    void HelpOpensTheJapaneseManualInJapanese()
    {
        const CPageBesideTheProgram english(QStringLiteral("SKELDON_Light_En.html"));
        const CPageBesideTheProgram japanese(QStringLiteral("SKELDON_Light_Jp.html"));
        CFrameApp app(Japanese);
        QVERIFY(app.Start());
        app.Frame().OnCommand(CommandId::Help);
        QCOMPARE(app.m_prompts->m_pages, std::vector{QUrl::fromLocalFile(japanese.Path())});
    }

    void MissingManualIsPassedOver()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        const bool isThere = !ManualPath(false).isEmpty();
        app.Frame().OnCommand(CommandId::Help);
        QCOMPARE(app.m_prompts->m_pages.size(), std::size_t(isThere ? 1 : 0));
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
    }

    void SupportIsOpenedInJapanese()
    {
        CFrameApp app(QStringLiteral("Japanese"));
        QVERIFY(app.Start());
        app.Frame().OnCommand(CommandId::OnlineSupport);
        QCOMPARE(app.m_prompts->m_pages,
                 std::vector<QUrl>{QUrl(QLatin1String(CFrameApp::SupportAddress))});
    }

    void SupportIsNotOpenedInEnglish()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.Entry(ViewIndex::Display, QStringLiteral("Online &support"))->trigger();
        QVERIFY(app.m_prompts->m_pages.empty());
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
    }

    void KeysWithoutDataDoNothing()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        for (const Qt::Key key :
             {Qt::Key_A, Qt::Key_D, Qt::Key_M, Qt::Key_P, Qt::Key_S, Qt::Key_T, Qt::Key_W})
            app.Press(key, Qt::ControlModifier);
        QCOMPARE(app.m_prompts->m_shown.size(), std::size_t{0});
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
        app.Press(Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(app.m_prompts->m_shown.size(), std::size_t{1});
        QCOMPARE(app.m_prompts->m_shown[0].text, QStringLiteral("Open measured data"));
    }

    void KeysOfTheDataView()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.TakeLines(5);
        const auto shows = [&](Qt::Key key) {
            app.m_prompts->m_shown.clear();
            app.Press(key, Qt::ControlModifier);
            return app.m_prompts->m_shown.empty() ? QString() : app.m_prompts->m_shown[0].text;
        };
        QCOMPARE(shows(Qt::Key_A), QStringLiteral("Save measured data"));
        QCOMPARE(shows(Qt::Key_T), Text(StringId::TitleExportCsv));
        // The data has changed since it was read: saved without a question.
        QVERIFY(app.View().CanSave());
        QCOMPARE(shows(Qt::Key_S), QString());
        QVERIFY(app.View().Data().SignatureUnchanged());
        // Get data asks the recorder, which is empty.
        app.PlugIn({"--lines", "0"});
        QVERIFY(app.Connect());
        QCOMPARE(shows(Qt::Key_D), QStringLiteral("No measured data is available."));
    }

    void KeysOfTheDataViewDoNothingInTheSetupView()
    {
        CFrameApp app;
        QVERIFY(app.Start({app.WriteLines(QStringLiteral("crate.skd"), 4)}));
        QTRY_COMPARE(app.View().Data().GetSize(), std::size_t{4});
        app.View().Data().m_signature = 0;
        app.PlugIn({});
        QVERIFY(app.Connect());
        app.Frame().SwitchView(ViewIndex::Setup);
        for (const Qt::Key key : {Qt::Key_A, Qt::Key_D, Qt::Key_O, Qt::Key_P, Qt::Key_S, Qt::Key_T})
            app.Press(key, Qt::ControlModifier);
        QCOMPARE(app.m_prompts->m_shown.size(), std::size_t{0});
        QVERIFY(!app.View().Data().SignatureUnchanged());
        QCOMPARE(app.View().Data().GetSize(), std::size_t{4});
    }

    void KeysThatNeitherViewServesDoNothing()
    {
        CFrameApp app;
        QVERIFY(app.Start({app.WriteLines(QStringLiteral("crate.skd"), 4)}));
        QTRY_COMPARE(app.View().Data().GetSize(), std::size_t{4});
        const QString before = QStringLiteral("what was there");
        QGuiApplication::clipboard()->setText(before);
        app.View().List().setFocus();
        QTest::keyClick(&app.View().List(), Qt::Key_Down);
        QWidget* const focus = QApplication::focusWidget();
        const QList<std::pair<Qt::Key, Qt::KeyboardModifier>> keys{
            {Qt::Key_C, Qt::ControlModifier}, {Qt::Key_Insert, Qt::ControlModifier},
            {Qt::Key_V, Qt::ControlModifier}, {Qt::Key_Insert, Qt::ShiftModifier},
            {Qt::Key_X, Qt::ControlModifier}, {Qt::Key_Delete, Qt::ShiftModifier},
            {Qt::Key_Z, Qt::ControlModifier}, {Qt::Key_Backspace, Qt::AltModifier},
            {Qt::Key_F6, Qt::NoModifier},     {Qt::Key_F6, Qt::ShiftModifier},
        };
        for (const auto& [key, modifier] : keys)
            app.Press(key, modifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), before);
        QCOMPARE(app.m_prompts->m_shown.size(), std::size_t{0});
        QCOMPARE(QApplication::focusWidget(), focus);
        QCOMPARE(app.Frame().CurrentView(), ViewIndex::Display);
        QCOMPARE(app.View().Data().GetSize(), std::size_t{4});
    }

    void EditBoxesKeepTheirOwnKeys()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        QLineEdit edit(&app.View());
        edit.show();
        edit.setFocus();
        edit.setText(QStringLiteral("crate"));
        edit.selectAll();
        QGuiApplication::clipboard()->clear();
        app.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("crate"));
        app.Press(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(edit.text(), QString());
        app.Press(Qt::Key_V, Qt::ControlModifier);
        app.Press(Qt::Key_Insert, Qt::ShiftModifier);
        QCOMPARE(edit.text(), QStringLiteral("cratecrate"));
        app.Press(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(edit.text() != QStringLiteral("cratecrate"));
    }
};

QTEST_MAIN(MenuTest)
#include "MenuTest.moc"
