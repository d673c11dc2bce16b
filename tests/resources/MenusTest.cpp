#include "resources/Menus.h"
#include "resources/Translation.h"
#include "support/window/DrawnMenu.h"

#include <QKeySequence>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <functional>

using namespace skeldon;
using namespace skeldon::test;

namespace {

/// The commands in the order of reading.
QList<CommandId> Commands(const Menu& menu)
{
    QList<CommandId> commands;
    for (const auto& entry : menu) {
        if (entry.kind == MenuEntryKind::Command)
            commands += entry.command;
        commands += Commands(entry.entries);
    }
    return commands;
}

/// The first entry with this text; null without one.
const MenuEntry* Find(const Menu& menu, StringId text)
{
    for (const auto& entry : menu) {
        if (entry.kind != MenuEntryKind::Separator && entry.text == text)
            return &entry;
        if (const auto* found = Find(entry.entries, text))
            return found;
    }
    return nullptr;
}

CommandId Wired(const Menu& menu, StringId text)
{
    const auto* entry = Find(menu, text);
    return entry == nullptr ? CommandId::None : entry->command;
}

void ForEachLevel(const Menu& menu, const std::function<void(const Menu&)>& visit)
{
    visit(menu);
    for (const auto& entry : menu) {
        if (entry.kind == MenuEntryKind::SubMenu)
            ForEachLevel(entry.entries, visit);
    }
}

} // namespace

Q_DECLARE_METATYPE(skeldon::CommandId)

class CMenusTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { InstallTranslation(false); }

    void DataViewBarReadsAsGiven()
    {
        QCOMPARE(Drawn(DataViewMenu(false)), QStringLiteral("&File\n"
                                                            "  &Open...\tCtrl+O\n"
                                                            "  Save &as...\tCtrl+A\n"
                                                            "  Export in &CSV format...\tCtrl+T\n"
                                                            "  -\n"
                                                            "  &Print...\tCtrl+P\n"
                                                            "  -\n"
                                                            "  Co&nfiguration...\n"
                                                            "  -\n"
                                                            "  E&xit SKELDON Light\n"
                                                            "Mea&sure\n"
                                                            "  &Get data\tCtrl+D\n"
                                                            "  -\n"
                                                            "  O&nline Recording\n"
                                                            "  Online Recording Config&uration...\n"
                                                            "Char&t\n"
                                                            "  Char&t View\n"
                                                            "    &X axis\n"
                                                            "    &Y axis\n"
                                                            "    &Z axis\n"
                                                            "    &Resultant force\n"
                                                            "    &Temperature\n"
                                                            "    &Humidity\n"
                                                            "  &Bar chart\n"
                                                            "  &Horizontal axis\n"
                                                            "    &Inflate\n"
                                                            "    &Deflate\n"
                                                            "    Display &all area\n"
                                                            "  &Vertical axis\n"
                                                            "    &Inflate\n"
                                                            "    &Deflate\n"
                                                            "    Display in &center\n"
                                                            "  -\n"
                                                            "  &Copy chart\n"
                                                            "  Pr&operty of chart...\n"
                                                            "&View\n"
                                                            "  Acceleration &unit\n"
                                                            "    &G\n"
                                                            "    &m/s^2\n"
                                                            "    G&al\n"
                                                            "  -\n"
                                                            "  &Setup view\n"
                                                            "  &Monitor\n"
                                                            "&Help\n"
                                                            "  &Help\n"
                                                            "  &About SKELDON Light...\n"
                                                            "  -\n"
                                                            "  Online &support\n"));
    }

    void SetupBarReadsAsGiven()
    {
        QCOMPARE(Drawn(SetupViewMenu()), QStringLiteral("&File\n"
                                                        "  Co&nfiguration...\n"
                                                        "  -\n"
                                                        "  E&xit SKELDON Light\n"
                                                        "&Edit\n"
                                                        "  &Add\n"
                                                        "  &Update\n"
                                                        "  &Delete\n"
                                                        "  Receive messa&ge\n"
                                                        "Mea&sure\n"
                                                        "  Start prompt &measuring...\tCtrl+M\n"
                                                        "  Start &reserved measuring...\n"
                                                        "  -\n"
                                                        "  Msrmnt C&ondition\n"
                                                        "    &Change\n"
                                                        "    &Restore\n"
                                                        "  &Wizard of setup...\tCtrl+W\n"
                                                        "  -\n"
                                                        "  &Change Maximum Scanning Level\n"
                                                        "&View\n"
                                                        "  &Profile\n"
                                                        "  &Template\n"
                                                        "  -\n"
                                                        "  &Data display\n"
                                                        "  &Monitor\n"
                                                        "&Help\n"
                                                        "  &Help\n"
                                                        "  &About SKELDON Light...\n"
                                                        "  -\n"
                                                        "  Online &support\n"));
    }

    void PopupsReadAsGiven()
    {
        QCOMPARE(Drawn(ListPopupMenu()), QStringLiteral("Add &mark\n"
                                                        "Mark &extracted lines\n"
                                                        "&Remove mark\n"
                                                        "Remove &all mark\n"
                                                        "-\n"
                                                        "&Delete one line\n"
                                                        "Delete &selected lines\n"
                                                        "Delete &illegal lines\n"
                                                        "-\n"
                                                        "&Copy in CSV format\n"
                                                        "-\n"
                                                        "Disp&lay extract condition\n"));
        QCOMPARE(Drawn(ChartPopupMenu()), QStringLiteral("&Copy graph\n"));
    }

    void DataViewEntriesGiveTheirCommands()
    {
        using enum CommandId;
        const QList<CommandId> japanese{Open,
                                        SaveAs,
                                        ExportCsv,
                                        Print,
                                        Configuration,
                                        Exit,
                                        GetData,
                                        OnlineRecording,
                                        OnlineConfiguration,
                                        ShowX,
                                        ShowY,
                                        ShowZ,
                                        ShowResultant,
                                        ShowTemperature,
                                        ShowHumidity,
                                        BarChart,
                                        HorizontalInflate,
                                        HorizontalDeflate,
                                        DisplayAllArea,
                                        VerticalInflate,
                                        VerticalDeflate,
                                        DisplayInCenter,
                                        CopyChart,
                                        ChartProperties,
                                        UnitG,
                                        UnitMs2,
                                        UnitGal,
                                        ViewSetup,
                                        Monitor,
                                        Help,
                                        About,
                                        OnlineSupport};
        QCOMPARE(Commands(DataViewMenu(true)), japanese);
    }

    void TwoEnglishEntriesGiveAnothersCommand()
    {
        const auto english = DataViewMenu(false);
        QCOMPARE(Wired(english, StringId::MenuChartDisplayAllArea), CommandId::ViewSetup);
        QCOMPARE(Wired(english, StringId::MenuChartDisplayInCenter), CommandId::Monitor);
        auto expected = Commands(DataViewMenu(true));
        expected[expected.indexOf(CommandId::DisplayAllArea)] = CommandId::ViewSetup;
        expected[expected.indexOf(CommandId::DisplayInCenter)] = CommandId::Monitor;
        QCOMPARE(Commands(english), expected);
    }

    void BothLanguagesHaveTheSameEntries()
    {
        QCOMPARE(Drawn(DataViewMenu(true)), Drawn(DataViewMenu(false)));
    }

    void SetupEntriesGiveTheirCommands()
    {
        using enum CommandId;
        const QList<CommandId> expected{Configuration,    Exit,          AddProfile,
                                        UpdateProfile,    DeleteProfile, Receive,
                                        StartPrompt,      StartReserved, ConditionChange,
                                        ConditionRestore, Wizard,        ChangeScanningLevel,
                                        ViewProfile,      ViewTemplate,  ViewDataDisplay,
                                        Monitor,          Help,          About,
                                        OnlineSupport};
        QCOMPARE(Commands(SetupViewMenu()), expected);
    }

    void PopupEntriesGiveTheirCommands()
    {
        using enum CommandId;
        const QList<CommandId> expected{AddMark,        MarkExtracted, RemoveMark,
                                        RemoveAllMarks, DeleteLine,    DeleteSelected,
                                        DeleteIllegal,  CopyCsv,       DisplayExtract};
        QCOMPARE(Commands(ListPopupMenu()), expected);
        QCOMPARE(Commands(ChartPopupMenu()), QList<CommandId>{CopyChart});
    }

    void WithoutTheMonitorTheEnglishMenuLosesDisplayInCenter()
    {
        auto menu = DataViewMenu(false);
        QVERIFY(RemoveFirstEntry(menu, CommandId::Monitor));
        QCOMPARE(Find(menu, StringId::MenuChartDisplayInCenter), nullptr);
        QCOMPARE(Wired(menu, StringId::MenuViewMonitor), CommandId::Monitor);
        QCOMPARE(Commands(menu).size(), Commands(DataViewMenu(false)).size() - 1);
    }

    void WithoutTheMonitorTheOtherMenusLoseTheMonitor()
    {
        for (auto menu : {DataViewMenu(true), SetupViewMenu()}) {
            QVERIFY(RemoveFirstEntry(menu, CommandId::Monitor));
            QCOMPARE(Find(menu, StringId::MenuViewMonitor), nullptr);
            QVERIFY(!Commands(menu).contains(CommandId::Monitor));
            QVERIFY(!RemoveFirstEntry(menu, CommandId::Monitor));
        }
        QCOMPARE(Wired(DataViewMenu(true), StringId::MenuChartDisplayInCenter),
                 CommandId::DisplayInCenter);
    }

    void NothingIsTakenForACommandThatNoEntryGives()
    {
        auto menu = DataViewMenu(false);
        for (const auto command : {CommandId::Save, CommandId::None}) {
            QVERIFY(!RemoveFirstEntry(menu, command));
            QVERIFY(menu == DataViewMenu(false));
        }
    }

    void MnemonicsOfOneJapaneseLevelDiffer()
    {
        QVERIFY(InstallTranslation(true));
        const QRegularExpression mnemonic(QStringLiteral("&(.)"));
        for (const auto& menu :
             {DataViewMenu(true), SetupViewMenu(), ListPopupMenu(), ChartPopupMenu()}) {
            ForEachLevel(menu, [&](const Menu& level) {
                QSet<QString> seen;
                for (const auto& entry : level) {
                    if (entry.kind == MenuEntryKind::Separator)
                        continue;
                    const auto letter = mnemonic.match(Text(entry.text)).captured(1).toUpper();
                    QVERIFY2(!letter.isEmpty(), qPrintable(Text(entry.text)));
                    QVERIFY2(!seen.contains(letter), qPrintable(Text(entry.text)));
                    seen += letter;
                }
            });
        }
    }

    void KeysGiveTheirCommands_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<CommandId>("command");
        const QList<std::pair<const char*, CommandId>> rows{
            {"Ctrl+A", CommandId::SaveAs},      {"Ctrl+C", CommandId::Copy},
            {"Ctrl+Ins", CommandId::Copy},      {"Ctrl+D", CommandId::GetData},
            {"Ctrl+M", CommandId::StartPrompt}, {"Ctrl+O", CommandId::Open},
            {"Ctrl+P", CommandId::Print},       {"Ctrl+S", CommandId::Save},
            {"Ctrl+T", CommandId::ExportCsv},   {"Ctrl+V", CommandId::Paste},
            {"Shift+Ins", CommandId::Paste},    {"Ctrl+W", CommandId::Wizard},
            {"Ctrl+X", CommandId::Cut},         {"Shift+Del", CommandId::Cut},
            {"Ctrl+Z", CommandId::Undo},        {"Alt+Backspace", CommandId::Undo},
            {"F6", CommandId::NextPane},        {"Shift+F6", CommandId::PreviousPane}};
        for (const auto& [key, command] : rows)
            QTest::newRow(key) << QString::fromUtf8(key) << command;
        QCOMPARE(static_cast<int>(Accelerators().size()), static_cast<int>(rows.size()));
    }

    void KeysGiveTheirCommands()
    {
        QFETCH(const QString, key);
        QFETCH(const CommandId, command);
        const auto sequence = QKeySequence::fromString(key, QKeySequence::PortableText);
        QList<CommandId> given;
        for (const auto& accelerator : Accelerators()) {
            if (QKeySequence(accelerator.key) == sequence)
                given += accelerator.command;
        }
        QCOMPARE(given, QList<CommandId>{command});
    }

    void KeysShownInTheMenusAreTheirEntriesKeys()
    {
        int shown = 0;
        for (const auto& menu : {DataViewMenu(true), SetupViewMenu()}) {
            ForEachLevel(menu, [&](const Menu& level) {
                for (const auto& entry : level) {
                    const auto parts = entry.kind == MenuEntryKind::Separator
                                           ? QStringList()
                                           : Text(entry.text).split(u'\t');
                    if (parts.size() < 2)
                        continue;
                    const auto key = QKeySequence::fromString(parts[1]);
                    for (const auto& accelerator : Accelerators()) {
                        if (QKeySequence(accelerator.key) == key) {
                            QCOMPARE(accelerator.command, entry.command);
                            ++shown;
                        }
                    }
                }
            });
        }
        QCOMPARE(shown, 7);
    }
};

QTEST_GUILESS_MAIN(CMenusTest)
#include "MenusTest.moc"
