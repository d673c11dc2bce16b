#include "setup/view/SettingColorPage.h"
#include "setup/view/SettingCsvPage.h"
#include "setup/view/SettingDialog.h"
#include "setup/view/SettingFilePage.h"
#include "setup/view/SettingValues.h"
#include "setup/view/SheetPage.h"
#include "support/window/TestApp.h"

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

using namespace skeldon;
using skeldon::test::CTestApp;

namespace {

/// Stands for a key that the store has not.
constexpr int Absent = -12345;

const QStringList FileKeys = {"ProfileWizard", "SaveInfo", "NoProfileUpdate"};
const QStringList CsvKeys = {"CsvAccel",    "CsvTemperature", "CsvHumidity",
                             "CsvDateTime", "CsvRavelin",     "CsvUnit"};

void Set(const QString& key, int value)
{
    App().Settings().WriteInt(SystemSection, key, value);
}

int Get(const QString& key)
{
    return App().Settings().GetInt(SystemSection, key, Absent);
}

QList<int> Get(const QStringList& keys)
{
    QList<int> values;
    for (const QString& key : keys)
        values << Get(key);
    return values;
}

/// A page that notes what it is told.
class CNotingPage : public CSheetPage
{
public:
    CNotingPage(QString name, QStringList& notes)
        : m_name(std::move(name))
        , m_notes(notes)
    {}
    void OnInitDialog() override { m_notes << m_name + QStringLiteral(" shown"); }
    void OnOK() override { m_notes << m_name + QStringLiteral(" taken"); }

private:
    QString m_name;
    QStringList& m_notes;
};

constexpr int FileTab = 0;
constexpr int CsvTab = 1;
constexpr int DisplayTab = 2;

} // namespace

/// The settings sheet, its pages, and the sheet in general.
class SettingsSheetTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void SheetOpensPagesAsTheyAreShown();
    void SheetThatCanOnlyBeClosedHasOneButton();
    void SheetOffersHelpWhereItHasSome();
    void SheetHasThreePages();
    void SheetOpensInTheMiddleOfItsWindow();
    void FilePageShowsItsKeys_data();
    void FilePageShowsItsKeys();
    void FilePageStoresItsKeys_data();
    void FilePageStoresItsKeys();
    void OkAtOnceWritesTheFilePageAlone();
    void OkAtOnceLeavesOtherKeysAsTheyAre();
    void CancelWritesNothing();
    void CsvPageShowsItsKeys();
    void CsvUnitOfOtherNumbersIsG_data();
    void CsvUnitOfOtherNumbersIsG();
    void CsvPageStoresItsKeys();
    void RavelinGreysAllElse();
    void RavelinOfTheStoreGreysAllElse();
    void GreyedValuesAreStored();
    void ColourPageShowsItsKey_data();
    void ColourPageShowsItsKey();
    void ChangedColourIsToldAndStored();
    void UnchangedColourIsStoredWithoutAWord_data();
    void UnchangedColourIsStoredWithoutAWord();
    void ThereAndBackIsNoChange();
    void ColourOfTheRunningProgramStays();
    void RunTellsHowTheSheetWasClosed();
    void EnterIsOkAndEscapeIsCancel();
    void MnemonicOfAGroupLeadsToItsChoice();

private:
    CSettingDialog& Sheet();

    std::unique_ptr<CTestApp> m_app;
    std::unique_ptr<CSettingDialog> m_sheet;
};

void SettingsSheetTest::init()
{
    m_app = std::make_unique<CTestApp>();
}

void SettingsSheetTest::cleanup()
{
    m_sheet.reset();
    m_app.reset();
}

CSettingDialog& SettingsSheetTest::Sheet()
{
    m_sheet = std::make_unique<CSettingDialog>();
    m_sheet->show();
    return *m_sheet;
}

void SettingsSheetTest::SheetOpensPagesAsTheyAreShown()
{
    QStringList notes;
    CSheetDialog sheet(QStringLiteral("Title"), SheetMode::OkCancel, false);
    sheet.AddPage(new CNotingPage(QStringLiteral("a"), notes), QStringLiteral("A"));
    sheet.AddPage(new CNotingPage(QStringLiteral("b"), notes), QStringLiteral("B"));
    sheet.AddPage(new CNotingPage(QStringLiteral("c"), notes), QStringLiteral("C"));
    sheet.show();
    QCOMPARE(sheet.windowTitle(), QStringLiteral("Title"));
    QCOMPARE(notes, QStringList({"a shown"}));
    sheet.m_tabs->setCurrentIndex(2);
    sheet.m_tabs->setCurrentIndex(0);
    sheet.m_tabs->setCurrentIndex(2);
    QCOMPARE(notes, QStringList({"a shown", "c shown"}));
    notes.clear();
    sheet.m_ok->click();
    QCOMPARE(notes, QStringList({"a taken", "c taken"}));
    QCOMPARE(sheet.result(), int(QDialog::Accepted));
}

void SettingsSheetTest::SheetThatCanOnlyBeClosedHasOneButton()
{
    CSheetDialog sheet(QString(), SheetMode::Close, false);
    sheet.show();
    QCOMPARE(sheet.m_ok->text(), QStringLiteral("Close"));
    QVERIFY(sheet.m_cancel == nullptr);
    QCOMPARE(sheet.findChildren<QPushButton*>().size(), 1);
}

void SettingsSheetTest::SheetOffersHelpWhereItHasSome()
{
    CSheetDialog sheet(QString(), SheetMode::OkCancel, true);
    QVERIFY(sheet.m_help != nullptr);
    const QSignalSpy asked(&sheet, &CSheetDialog::HelpAsked);
    sheet.m_help->click();
    QCOMPARE(asked.size(), 1);
}

void SettingsSheetTest::SheetHasThreePages()
{
    const CSettingDialog& sheet = Sheet();
    QCOMPARE(sheet.windowTitle(), QStringLiteral("Configuration"));
    QCOMPARE(sheet.m_tabs->count(), 3);
    QCOMPARE(sheet.m_tabs->tabText(FileTab), QStringLiteral("File"));
    QCOMPARE(sheet.m_tabs->tabText(CsvTab), QStringLiteral("CSV"));
    QCOMPARE(sheet.m_tabs->tabText(DisplayTab), QStringLiteral("Display"));
    QCOMPARE(sheet.m_tabs->currentIndex(), FileTab);
    QCOMPARE(sheet.m_ok->text(), QStringLiteral("OK"));
    QCOMPARE(sheet.m_cancel->text(), QStringLiteral("Cancel"));
    QVERIFY(sheet.m_help == nullptr);
    QCOMPARE(sheet.findChildren<QPushButton*>().size(), 2);
}

void SettingsSheetTest::SheetOpensInTheMiddleOfItsWindow()
{
    QWidget window;
    window.setGeometry(120, 90, 500, 420);
    window.show();
    CSettingDialog sheet(&window);
    sheet.show();
    const QPoint off = sheet.frameGeometry().center() - window.frameGeometry().center();
    QVERIFY2(off.manhattanLength() <= 4,
             qPrintable(QStringLiteral("%1 %2").arg(off.x()).arg(off.y())));
}

void SettingsSheetTest::FilePageShowsItsKeys_data()
{
    QTest::addColumn<int>("wizard");
    QTest::addColumn<int>("saveInfo");
    QTest::addColumn<int>("noUpdate");
    QTest::addColumn<bool>("isInteractive");
    QTest::addColumn<bool>("isPrompted");
    QTest::addColumn<bool>("isProhibited");
    QTest::newRow("absent") << Absent << Absent << Absent << true << true << false;
    QTest::newRow("all 0") << 0 << 0 << 0 << false << false << false;
    QTest::newRow("all 1") << 1 << 1 << 1 << true << true << true;
    QTest::newRow("other numbers") << 5 << -1 << 2 << true << true << true;
}

void SettingsSheetTest::FilePageShowsItsKeys()
{
    QFETCH(int, wizard);
    QFETCH(int, saveInfo);
    QFETCH(int, noUpdate);
    QFETCH(bool, isInteractive);
    QFETCH(bool, isPrompted);
    QFETCH(bool, isProhibited);
    const QList<int> values = {wizard, saveInfo, noUpdate};
    for (int i = 0; i < 3; ++i) {
        if (values[i] != Absent)
            Set(FileKeys[i], values[i]);
    }
    const CSettingFilePage& page = *Sheet().m_file;
    QCOMPARE(page.m_interactively->isChecked(), isInteractive);
    QCOMPARE(page.m_cardForm->isChecked(), !isInteractive);
    QCOMPARE(page.m_prompt->isChecked(), isPrompted);
    QCOMPARE(page.m_notPrompt->isChecked(), !isPrompted);
    QCOMPARE(page.m_prohibitUpdate->isChecked(), isProhibited);
}

void SettingsSheetTest::FilePageStoresItsKeys_data()
{
    QTest::addColumn<bool>("isInteractive");
    QTest::addColumn<bool>("isPrompted");
    QTest::addColumn<bool>("isProhibited");
    QTest::addColumn<QList<int>>("stored");
    QTest::newRow("card form") << false << true << false << QList<int>{0, 1, 0};
    QTest::newRow("not prompted") << true << false << false << QList<int>{1, 0, 0};
    QTest::newRow("prohibited") << true << true << true << QList<int>{1, 1, 1};
}

void SettingsSheetTest::FilePageStoresItsKeys()
{
    QFETCH(bool, isInteractive);
    QFETCH(bool, isPrompted);
    QFETCH(bool, isProhibited);
    CSettingDialog& sheet = Sheet();
    const CSettingFilePage& page = *sheet.m_file;
    (isInteractive ? page.m_interactively : page.m_cardForm)->click();
    (isPrompted ? page.m_prompt : page.m_notPrompt)->click();
    page.m_prohibitUpdate->setChecked(isProhibited);
    sheet.m_ok->click();
    QTEST(Get(FileKeys), "stored");
}

void SettingsSheetTest::OkAtOnceWritesTheFilePageAlone()
{
    Sheet().m_ok->click();
    QCOMPARE(Get(FileKeys), QList<int>({1, 1, 0}));
    QCOMPARE(Get(CsvKeys), QList<int>(6, Absent));
    QCOMPARE(Get(QStringLiteral("ViewBase")), Absent);
    QVERIFY(m_app->m_prompts->Boxes().isEmpty());
}

void SettingsSheetTest::OkAtOnceLeavesOtherKeysAsTheyAre()
{
    for (int i = 0; i < CsvKeys.size(); ++i)
        Set(CsvKeys[i], 7 + i);
    Set(QStringLiteral("ViewBase"), 5);
    Sheet().m_ok->click();
    QCOMPARE(Get(CsvKeys), QList<int>({7, 8, 9, 10, 11, 12}));
    QCOMPARE(Get(QStringLiteral("ViewBase")), 5);
}

void SettingsSheetTest::CancelWritesNothing()
{
    CSettingDialog& sheet = Sheet();
    sheet.m_tabs->setCurrentIndex(CsvTab);
    sheet.m_tabs->setCurrentIndex(DisplayTab);
    sheet.m_color->m_classic->click();
    sheet.m_cancel->click();
    QCOMPARE(sheet.result(), int(QDialog::Rejected));
    QCOMPARE(Get(FileKeys), QList<int>(3, Absent));
    QCOMPARE(Get(CsvKeys), QList<int>(6, Absent));
    QCOMPARE(Get(QStringLiteral("ViewBase")), Absent);
    QVERIFY(m_app->m_prompts->Boxes().isEmpty());
}

void SettingsSheetTest::CsvPageShowsItsKeys()
{
    const CSettingCsvPage& fresh = *Sheet().m_csv;
    m_sheet->m_tabs->setCurrentIndex(CsvTab);
    for (const QCheckBox* const box :
         {fresh.m_resultant, fresh.m_temperature, fresh.m_humidity, fresh.m_dateTime})
        QVERIFY(box->isChecked());
    QVERIFY(fresh.m_g->isChecked());
    QVERIFY(!fresh.m_ravelin->isChecked());

    // Each key has its own box.
    const QStringList keys = CsvKeys.mid(0, 5);
    for (int unset = 0; unset < 5; ++unset) {
        for (int i = 0; i < 5; ++i)
            Set(keys[i], i == unset ? 0 : 1);
        const CSettingCsvPage& page = *Sheet().m_csv;
        m_sheet->m_tabs->setCurrentIndex(CsvTab);
        const std::vector<QCheckBox*> boxes = {page.m_resultant, page.m_temperature,
                                               page.m_humidity, page.m_dateTime, page.m_ravelin};
        for (int i = 0; i < 5; ++i)
            QCOMPARE(boxes[static_cast<std::size_t>(i)]->isChecked(), i != unset);
    }
}

void SettingsSheetTest::CsvUnitOfOtherNumbersIsG_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("shown");
    QTest::newRow("G") << 0 << 0;
    QTest::newRow("m/s^2") << 1 << 1;
    QTest::newRow("Gal") << 2 << 2;
    QTest::newRow("3") << 3 << 0;
    QTest::newRow("-1") << -1 << 0;
}

void SettingsSheetTest::CsvUnitOfOtherNumbersIsG()
{
    QFETCH(int, stored);
    QFETCH(int, shown);
    Set(QStringLiteral("CsvUnit"), stored);
    CSettingDialog& sheet = Sheet();
    sheet.m_tabs->setCurrentIndex(CsvTab);
    QCOMPARE(sheet.m_csv->m_g->isChecked(), shown == 0);
    QCOMPARE(sheet.m_csv->m_ms2->isChecked(), shown == 1);
    QCOMPARE(sheet.m_csv->m_gal->isChecked(), shown == 2);
    sheet.m_ok->click();
    QCOMPARE(Get(QStringLiteral("CsvUnit")), shown);
}

void SettingsSheetTest::CsvPageStoresItsKeys()
{
    // Each box has its own key.
    for (int unset = 0; unset < 4; ++unset) {
        CSettingDialog& sheet = Sheet();
        sheet.m_tabs->setCurrentIndex(CsvTab);
        const CSettingCsvPage& page = *sheet.m_csv;
        const std::vector<QCheckBox*> boxes = {page.m_resultant, page.m_temperature,
                                               page.m_humidity, page.m_dateTime};
        QList<int> stored(4, 1);
        stored[unset] = 0;
        for (int i = 0; i < 4; ++i)
            boxes[static_cast<std::size_t>(i)]->setChecked(i != unset);
        page.m_gal->click();
        sheet.m_ok->click();
        QCOMPARE(Get(CsvKeys), stored + QList<int>({0, 2}));
    }
}

void SettingsSheetTest::RavelinGreysAllElse()
{
    CSettingDialog& sheet = Sheet();
    sheet.m_tabs->setCurrentIndex(CsvTab);
    const CSettingCsvPage& page = *sheet.m_csv;
    page.m_humidity->setChecked(false);
    page.m_ms2->click();
    const QList<QAbstractButton*> others = {page.m_resultant, page.m_temperature, page.m_humidity,
                                            page.m_dateTime,  page.m_g,           page.m_ms2,
                                            page.m_gal};
    QTest::mouseClick(page.m_ravelin, Qt::LeftButton, {}, {8, page.m_ravelin->height() / 2});
    QVERIFY(page.m_ravelin->isChecked());
    for (const QAbstractButton* const other : others)
        QVERIFY(!other->isEnabled());
    QTest::mouseClick(page.m_ravelin, Qt::LeftButton, {}, {8, page.m_ravelin->height() / 2});
    for (const QAbstractButton* const other : others)
        QVERIFY(other->isEnabled());
    // What was chosen is there again.
    QVERIFY(page.m_resultant->isChecked());
    QVERIFY(!page.m_humidity->isChecked());
    QVERIFY(page.m_ms2->isChecked());
}

void SettingsSheetTest::RavelinOfTheStoreGreysAllElse()
{
    Set(QStringLiteral("CsvRavelin"), 1);
    CSettingDialog& sheet = Sheet();
    sheet.m_tabs->setCurrentIndex(CsvTab);
    QVERIFY(!sheet.m_csv->m_resultant->isEnabled());
    QVERIFY(!sheet.m_csv->m_gal->isEnabled());
    QVERIFY(sheet.m_csv->m_ravelin->isEnabled());
}

void SettingsSheetTest::GreyedValuesAreStored()
{
    CSettingDialog& sheet = Sheet();
    sheet.m_tabs->setCurrentIndex(CsvTab);
    sheet.m_csv->m_temperature->setChecked(false);
    sheet.m_csv->m_ms2->click();
    sheet.m_csv->m_ravelin->click();
    sheet.m_ok->click();
    QCOMPARE(Get(CsvKeys), QList<int>({1, 0, 1, 1, 1, 1}));
}

void SettingsSheetTest::ColourPageShowsItsKey_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<bool>("isClassic");
    QTest::newRow("absent") << Absent << false;
    QTest::newRow("0") << 0 << true;
    QTest::newRow("1") << 1 << false;
    QTest::newRow("7") << 7 << false;
}

void SettingsSheetTest::ColourPageShowsItsKey()
{
    QFETCH(int, stored);
    QFETCH(bool, isClassic);
    if (stored != Absent)
        Set(QStringLiteral("ViewBase"), stored);
    CSettingDialog& sheet = Sheet();
    sheet.m_tabs->setCurrentIndex(DisplayTab);
    QCOMPARE(sheet.m_color->m_classic->isChecked(), isClassic);
    QCOMPARE(sheet.m_color->m_windowsXp->isChecked(), !isClassic);
}

void SettingsSheetTest::ChangedColourIsToldAndStored()
{
    Set(QStringLiteral("ViewBase"), 0);
    CSettingDialog& sheet = Sheet();
    sheet.m_tabs->setCurrentIndex(DisplayTab);
    sheet.m_color->m_windowsXp->click();
    QVERIFY(m_app->m_prompts->Boxes().isEmpty());
    sheet.m_ok->click();
    QCOMPARE(m_app->m_prompts->m_shown.size(), std::size_t{1});
    QCOMPARE(m_app->m_prompts->m_shown[0].boxKind, BoxKind::Information);
    QCOMPARE(m_app->m_prompts->m_shown[0].text,
             QStringLiteral("When it starts next time,\nthe change of the color becomes "
                            "effective."));
    QCOMPARE(Get(QStringLiteral("ViewBase")), 1);
    QVERIFY(!sheet.isVisible());
}

void SettingsSheetTest::UnchangedColourIsStoredWithoutAWord_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("after");
    QTest::newRow("absent") << Absent << 1;
    QTest::newRow("0") << 0 << 0;
    // Another number for the same choice.
    QTest::newRow("7") << 7 << 1;
}

void SettingsSheetTest::UnchangedColourIsStoredWithoutAWord()
{
    QFETCH(int, stored);
    if (stored != Absent)
        Set(QStringLiteral("ViewBase"), stored);
    CSettingDialog& sheet = Sheet();
    sheet.m_tabs->setCurrentIndex(DisplayTab);
    sheet.m_ok->click();
    QVERIFY(m_app->m_prompts->Boxes().isEmpty());
    QTEST(Get(QStringLiteral("ViewBase")), "after");
}

void SettingsSheetTest::ThereAndBackIsNoChange()
{
    Set(QStringLiteral("ViewBase"), 0);
    CSettingDialog& sheet = Sheet();
    sheet.m_tabs->setCurrentIndex(DisplayTab);
    sheet.m_color->m_windowsXp->click();
    sheet.m_color->m_classic->click();
    sheet.m_ok->click();
    QVERIFY(m_app->m_prompts->Boxes().isEmpty());
    QCOMPARE(Get(QStringLiteral("ViewBase")), 0);
}

void SettingsSheetTest::ColourOfTheRunningProgramStays()
{
    const ColourRef earlier = App().m_viewBaseColour;
    CSettingDialog& sheet = Sheet();
    sheet.m_tabs->setCurrentIndex(DisplayTab);
    sheet.m_color->m_classic->click();
    sheet.m_ok->click();
    QCOMPARE(Get(QStringLiteral("ViewBase")), 0);
    QCOMPARE(App().m_viewBaseColour, earlier);
}

void SettingsSheetTest::RunTellsHowTheSheetWasClosed()
{
    const auto close = [](bool isOk) {
        auto* const sheet = qobject_cast<CSettingDialog*>(QApplication::activeModalWidget());
        QVERIFY(sheet != nullptr);
        (isOk ? sheet->m_ok : sheet->m_cancel)->click();
    };
    QTimer::singleShot(0, this, [close] { close(true); });
    QVERIFY(RunSettings(nullptr));
    QTimer::singleShot(0, this, [close] { close(false); });
    QVERIFY(!RunSettings(nullptr));
}

void SettingsSheetTest::EnterIsOkAndEscapeIsCancel()
{
    CSettingDialog& first = Sheet();
    QVERIFY(QTest::qWaitForWindowActive(&first));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(first.result(), int(QDialog::Accepted));
    QVERIFY(!first.isVisible());
    CSettingDialog& second = Sheet();
    QVERIFY(QTest::qWaitForWindowActive(&second));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(!second.isVisible());
    QCOMPARE(second.result(), int(QDialog::Rejected));
}

void SettingsSheetTest::MnemonicOfAGroupLeadsToItsChoice()
{
    Set(QStringLiteral("SaveInfo"), 0);
    CSettingDialog& sheet = Sheet();
    QVERIFY(QTest::qWaitForWindowActive(&sheet));
    QTest::keyClick(&sheet, Qt::Key_S, Qt::AltModifier);
    QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(sheet.m_file->m_notPrompt));
    QTest::keyClick(&sheet, Qt::Key_P, Qt::AltModifier);
    QTRY_VERIFY(sheet.m_file->m_prohibitUpdate->isChecked());
}

QTEST_MAIN(SettingsSheetTest)
#include "SettingsSheetTest.moc"
