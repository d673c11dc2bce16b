#include "controls/IntComboEdit.h"
#include "setup/view/OnlineConfigDialog.h"
#include "setup/view/OnlineOptions.h"
#include "support/window/TestApp.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>
#include <QTimer>

using namespace skeldon;
using skeldon::test::CTestApp;

namespace {

const QString Key = QStringLiteral("OnlineSecond");
constexpr int Absent = -12345;

int Stored()
{
    return App().Settings().GetInt(SystemSection, Key, Absent);
}

} // namespace

/// The length of an online recording.
class OnlineConfigTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void ListHasItsEntries();
    void NumberStandsAtTheStartOfAnEntry_data();
    void NumberStandsAtTheStartOfAnEntry();
    void ValueIsClampedOnOpening_data();
    void ValueIsClampedOnOpening();
    void ChosenEntryIsStoredAsItsNumber();
    void EntryChosenWithTheKeysIsTheNumber();
    void ListClosedWithoutChoicePutsTheValueBack();
    void ListOpensAtTheValue();
    void TypedNumberIsStored();
    void EditsAreCheckedAsTheyAreMade();
    void BadNumberKeepsTheDialog_data();
    void BadNumberKeepsTheDialog();
    void EnterStores();
    void CancelStoresNothing();
    void MnemonicLeadsToTheBox();
    void WordsStandRoundTheBox();

private:
    COnlineConfigDialog& Dialog();

    std::unique_ptr<CTestApp> m_app;
    std::unique_ptr<COnlineConfigDialog> m_dialog;
};

void OnlineConfigTest::init()
{
    // A list that has just opened passes over a click that may belong to the one that opened it.
    QApplication::setDoubleClickInterval(0);
    m_app = std::make_unique<CTestApp>();
}

void OnlineConfigTest::cleanup()
{
    m_dialog.reset();
    m_app.reset();
}

COnlineConfigDialog& OnlineConfigTest::Dialog()
{
    m_dialog = std::make_unique<COnlineConfigDialog>();
    m_dialog->show();
    [[maybe_unused]] const bool isActive = QTest::qWaitForWindowActive(m_dialog.get());
    return *m_dialog;
}

void OnlineConfigTest::ListHasItsEntries()
{
    const QStringList expected = {
        "10",          "20",          "30",          "40",          "50",          "60",
        "120(2min)",   "180(3min)",   "240(4min)",   "300(5min)",   "360(6min)",   "420(7min)",
        "480(8min)",   "540(9min)",   "600(10min)",  "1200(20min)", "1800(30min)", "2400(40min)",
        "3000(50min)", "3600(60min)", "4200(70min)", "4800(80min)"};
    QCOMPARE(OnlineSecondsOptions(), expected);
    const CIntComboEdit& box = *Dialog().m_seconds;
    QStringList shown;
    for (int i = 0; i < box.count(); ++i)
        shown << box.itemText(i);
    QCOMPARE(shown, expected);
}

void OnlineConfigTest::NumberStandsAtTheStartOfAnEntry_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<int>("seconds");
    QTest::newRow("plain") << "10" << 10;
    QTest::newRow("with minutes") << "120(2min)" << 120;
    QTest::newRow("longest") << "4800(80min)" << 4800;
}

void OnlineConfigTest::NumberStandsAtTheStartOfAnEntry()
{
    QFETCH(QString, option);
    QTEST(OnlineSecondsOf(option), "seconds");
}

void OnlineConfigTest::ValueIsClampedOnOpening_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<QString>("shown");
    QTest::newRow("absent") << Absent << "30";
    QTest::newRow("0") << 0 << "1";
    QTest::newRow("negative") << -5 << "1";
    QTest::newRow("1") << 1 << "1";
    QTest::newRow("2") << 2 << "2";
    QTest::newRow("between the entries") << 45 << "45";
    QTest::newRow("an entry") << 600 << "600";
    QTest::newRow("4998") << 4998 << "4998";
    QTest::newRow("4999") << 4999 << "4999";
    QTest::newRow("9999") << 9999 << "4999";
}

void OnlineConfigTest::ValueIsClampedOnOpening()
{
    QFETCH(int, stored);
    if (stored != Absent)
        App().Settings().WriteInt(SystemSection, Key, stored);
    QTEST(Dialog().m_seconds->currentText(), "shown");
}

void OnlineConfigTest::ChosenEntryIsStoredAsItsNumber()
{
    COnlineConfigDialog& dialog = Dialog();
    CIntComboEdit& box = *dialog.m_seconds;
    box.showPopup();
    QAbstractItemView* const list = box.view();
    QTRY_VERIFY(list->isVisible());
    QCoreApplication::processEvents();
    const QModelIndex entry = list->model()->index(6, 0);
    QCOMPARE(entry.data().toString(), QStringLiteral("120(2min)"));
    const QPoint place = list->visualRect(entry).center();
    QTest::mouseMove(list->viewport(), place);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    QTRY_VERIFY(!list->isVisible());
    QTRY_COMPARE(box.currentText(), QStringLiteral("120"));
    QCOMPARE(box.m_edit->selectedText(), QStringLiteral("120"));
    dialog.accept();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(Stored(), 120);
}

void OnlineConfigTest::EntryChosenWithTheKeysIsTheNumber()
{
    COnlineConfigDialog& dialog = Dialog();
    CIntComboEdit& box = *dialog.m_seconds;
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(&box, Qt::Key_Down);
        QCoreApplication::processEvents();
    }
    // From 30 past 60.
    QTRY_COMPARE(box.currentText(), QStringLiteral("180"));
    dialog.accept();
    QCOMPARE(Stored(), 180);
}

void OnlineConfigTest::ListClosedWithoutChoicePutsTheValueBack()
{
    COnlineConfigDialog& dialog = Dialog();
    CIntComboEdit& box = *dialog.m_seconds;
    box.showPopup();
    QTRY_VERIFY(box.view()->isVisible());
    box.m_edit->setText(QStringLiteral("77"));
    QTest::keyClick(box.view(), Qt::Key_Escape);
    QTRY_VERIFY(!box.view()->isVisible());
    QTRY_COMPARE(box.currentText(), QStringLiteral("30"));
    QCOMPARE(box.m_edit->selectedText(), QStringLiteral("30"));
    QVERIFY(dialog.isVisible());
}

void OnlineConfigTest::ListOpensAtTheValue()
{
    App().Settings().WriteInt(SystemSection, Key, 240);
    QCOMPARE(Dialog().m_seconds->currentIndex(), 8);
    App().Settings().WriteInt(SystemSection, Key, 45);
    QCOMPARE(Dialog().m_seconds->currentIndex(), -1);
    QCOMPARE(m_dialog->m_seconds->currentText(), QStringLiteral("45"));
}

void OnlineConfigTest::TypedNumberIsStored()
{
    COnlineConfigDialog& dialog = Dialog();
    QVERIFY(dialog.m_seconds->m_edit->hasFocus());
    QTest::keyClicks(dialog.m_seconds->m_edit, QStringLiteral("4x999"));
    QCOMPARE(dialog.m_seconds->currentText(), QStringLiteral("4999"));
    dialog.accept();
    QCOMPARE(Stored(), 4999);
    QCOMPARE(m_app->m_prompts->m_beeps, 0);
}

void OnlineConfigTest::EditsAreCheckedAsTheyAreMade()
{
    COnlineConfigDialog& dialog = Dialog();
    CIntComboEdit& box = *dialog.m_seconds;
    QTest::keyClick(box.m_edit, Qt::Key_Backspace);
    QCOMPARE(box.currentText(), QString());
    QCOMPARE(m_app->m_frame.m_status,
             QStringLiteral("Input the value of 4999 from 1 to Maximum number of recording"));
    QCOMPARE(m_app->m_prompts->m_beeps, 1);
    // The value went with it.
    box.showPopup();
    box.hidePopup();
    QTRY_COMPARE(box.currentText(), QStringLiteral("1"));
}

void OnlineConfigTest::BadNumberKeepsTheDialog_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("0") << "0";
    QTest::newRow("too long") << "5000";
}

void OnlineConfigTest::BadNumberKeepsTheDialog()
{
    QFETCH(QString, text);
    COnlineConfigDialog& dialog = Dialog();
    dialog.m_seconds->setEditText(text);
    dialog.accept();
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.m_seconds->m_edit->hasFocus());
    QCOMPARE(dialog.m_seconds->m_edit->selectedText(), text);
    QCOMPARE(m_app->m_frame.m_status,
             QStringLiteral("Input the value of 4999 from 1 to Maximum number of recording"));
    QCOMPARE(m_app->m_prompts->m_beeps, 1);
    QCOMPARE(Stored(), Absent);
}

void OnlineConfigTest::EnterStores()
{
    COnlineConfigDialog& dialog = Dialog();
    QTest::keyClicks(dialog.m_seconds->m_edit, QStringLiteral("55"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(Stored(), 55);
}

void OnlineConfigTest::CancelStoresNothing()
{
    QTimer::singleShot(0, this, [] {
        auto* const dialog = qobject_cast<COnlineConfigDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        QTest::keyClicks(dialog->m_seconds->m_edit, QStringLiteral("55"));
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    RunOnlineConfig(nullptr);
    QCOMPARE(Stored(), Absent);
}

void OnlineConfigTest::MnemonicLeadsToTheBox()
{
    COnlineConfigDialog& dialog = Dialog();
    QTest::keyClick(dialog.m_seconds->m_edit, Qt::Key_Tab);
    QVERIFY(!dialog.m_seconds->m_edit->hasFocus());
    QTest::keyClick(&dialog, Qt::Key_M, Qt::AltModifier);
    QTRY_VERIFY(dialog.m_seconds->m_edit->hasFocus());
}

void OnlineConfigTest::WordsStandRoundTheBox()
{
    const COnlineConfigDialog& dialog = Dialog();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Online Recording Configuration"));
    // Screen readers find the words in front of the box by their relation to it.
    QAccessibleInterface* const box = QAccessible::queryAccessibleInterface(dialog.m_seconds);
    const auto labels = box->relations(QAccessible::Label);
    QCOMPARE(labels.size(), 1);
    QVERIFY(labels[0]
                .first->text(QAccessible::Name)
                .contains(QStringLiteral("Maximum Recording Time")));
}

QTEST_MAIN(OnlineConfigTest)
#include "OnlineConfigTest.moc"
