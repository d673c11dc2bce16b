#include "controls/FloatComboEdit.h"
#include "controls/IntComboEdit.h"
#include "controls/LcdPanel.h"
#include "resources/Translation.h"
#include "setup/conditions/ProfileStore.h"
#include "setup/view/ConditionEditors.h"
#include "setup/view/ConditionOptionDialog.h"
#include "setup/view/ConditionOptions.h"
#include "setup/view/ProfileFolder.h"
#include "setup/view/SetupApp.h"
#include "support/window/TestApp.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace skeldon;
using skeldon::test::CProfileFolder;
using skeldon::test::CSetupApp;
using skeldon::test::CTestApp;

namespace {

QStringList Items(const QComboBox& box)
{
    QStringList items;
    for (int i = 0; i < box.count(); ++i)
        items << box.itemText(i);
    return items;
}

CMeasureCondition Sample()
{
    CMeasureCondition c;
    c.ProfileName = "Parcel";
    c.SetSampling(5);
    c.SetInterval(11);
    c.Threshold = 105;
    c.OverThreshold = true;
    c.SerialNo = 7;
    c.StartOpt = 30;
    c.Hazard = 250;
    c.Endless = true;
    c.Buzzer = false;
    return c;
}

} // namespace

/// The card form of the conditions.
class CardFormTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void RowsAreListedInWords();
    void LevelsFollowTheScale();
    void UsedHostNumbersAreNotOffered();
    void UnknownRowSelectsTheFallback_data();
    void UnknownRowSelectsTheFallback();
    void ThresholdIsCutTowardZero();
    void BoxesShowTheConditions();
    void ListsOpenAtTheValueOnShow();
    void HostNumberNoneShowsTheLowest();
    void OkTakesTheConditions();
    void UnchangedProfileMustTakeANewNumber();
    void OkNeverTakesHazardEndlessAndBuzzer();
    void BadBoxHasTheFocusAndIsTold_data();
    void BadBoxHasTheFocusAndIsTold();
    void BoxesAreCheckedInTheirOrder();
    void CallerGetsTheResult();
    void CancelLeavesConditions();
    void EnterInABoxIsOk();
    void TabGoesDownTheColumns();
    void MnemonicsLeadToTheBoxes_data();
    void MnemonicsLeadToTheBoxes();
    void ListsSpeakTheUsersLanguage();
    void SetupViewOpensItOnItsProfiles();

private:
    /// A card of `Sample` on the profiles of the folder.
    CConditionOptionDialog& Card();

    std::unique_ptr<CTestApp> m_app;
    std::unique_ptr<CProfileFolder> m_folder;
    std::unique_ptr<CProfileStore> m_store;
    std::unique_ptr<CConditionOptionDialog> m_card;
};

void CardFormTest::init()
{
    m_app = std::make_unique<CTestApp>();
    m_folder = std::make_unique<CProfileFolder>();
    m_folder->WriteProfile("five", "SerialNo=5\r\n");
    m_folder->WriteProfile("nine", "SerialNo=9\r\n");
    m_store = std::make_unique<CProfileStore>(m_folder->Folders());
    QVERIFY(m_store->Load(false));
}

void CardFormTest::cleanup()
{
    InstallTranslation(false);
    m_card.reset();
    m_store.reset();
    m_folder.reset();
    m_app.reset();
}

CConditionOptionDialog& CardFormTest::Card()
{
    m_card = std::make_unique<CConditionOptionDialog>(Sample(), *m_store);
    m_card->show();
    return *m_card;
}

void CardFormTest::RowsAreListedInWords()
{
    const QStringList sampling = SamplingOptions();
    QCOMPARE(sampling.size(), 10);
    QCOMPARE(sampling[0], QStringLiteral("0.5000 sec"));
    QCOMPARE(sampling[4], QStringLiteral("0.0312 sec"));
    QCOMPARE(sampling[5], QStringLiteral("0.0312 sec Trace mode"));
    QCOMPARE(sampling[9], QStringLiteral("0.0100 sec Trace mode"));
    const QStringList interval = IntervalOptions();
    QCOMPARE(interval.size(), 15);
    QCOMPARE(interval[0], QStringLiteral("30 minute"));
    QCOMPARE(interval[8], QStringLiteral("1 minute"));
    QCOMPARE(interval[11], QStringLiteral("15 sec"));
    QCOMPARE(interval[14], QStringLiteral("1 sec"));
}

void CardFormTest::LevelsFollowTheScale()
{
    const QStringList levels = LevelOptions(490);
    QCOMPARE(levels.first(), QStringLiteral("0.0"));
    QCOMPARE(levels[99], QStringLiteral("9.9"));
    QCOMPARE(levels.mid(100, 5), QStringList({"10.0", "10.2", "10.4", "10.5", "10.6"}));
    QCOMPARE(levels.last(), QStringLiteral("49.0"));
    QVERIFY(levels.contains(QStringLiteral("19.8")));
    QVERIFY(!levels.contains(QStringLiteral("20.2")));
    QCOMPARE(LevelOptions(495).last(), QStringLiteral("49.5"));
}

void CardFormTest::UsedHostNumbersAreNotOffered()
{
    const QStringList free = FreeHostNumbers(*m_store);
    QCOMPARE(free.size(), 97);
    QCOMPARE(free.first(), QStringLiteral("1"));
    QCOMPARE(free.last(), QStringLiteral("99"));
    QVERIFY(!free.contains(QStringLiteral("5")));
    QVERIFY(!free.contains(QStringLiteral("9")));
    QVERIFY(free.contains(QStringLiteral("7")));
    QCOMPARE(Items(*Card().m_hostNumber), free);
    QCOMPARE(m_card->m_startOption->count(), 91);
    QCOMPARE(m_card->m_startOption->itemText(90), QStringLiteral("90"));
}

void CardFormTest::UnknownRowSelectsTheFallback_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("sampling");
    QTest::addColumn<int>("interval");
    QTest::newRow("below") << -1 << 4 << 0;
    QTest::newRow("first") << 0 << 0 << 0;
    QTest::newRow("in both") << 9 << 9 << 9;
    QTest::newRow("behind one") << 10 << 4 << 10;
    QTest::newRow("behind both") << 15 << 4 << 0;
}

void CardFormTest::UnknownRowSelectsTheFallback()
{
    QFETCH(int, row);
    QTEST(OptionRow(row, 10, 4), "sampling");
    QTEST(OptionRow(row, 15, 0), "interval");
}

void CardFormTest::ThresholdIsCutTowardZero()
{
    QCOMPARE(TenthsOf(0.0), 0);
    QCOMPARE(TenthsOf(4.99), 49);
    for (int tenths = 1; tenths <= 490; ++tenths) {
        const QString g = QStringLiteral("%1.%2").arg(tenths / 10).arg(tenths % 10);
        QCOMPARE(TenthsOf(g.toDouble()), tenths);
    }
}

void CardFormTest::BoxesShowTheConditions()
{
    const CConditionOptionDialog& card = Card();
    QCOMPARE(card.windowTitle(), QStringLiteral("Option of measurement condition"));
    QCOMPARE(card.m_sampling->currentText(), QStringLiteral("0.0312 sec Trace mode"));
    QCOMPARE(card.m_interval->currentText(), QStringLiteral("15 sec"));
    QCOMPARE(card.m_threshold->currentText(), QStringLiteral("10.5"));
    QCOMPARE(card.m_hostNumber->currentText(), QStringLiteral("7"));
    QCOMPARE(card.m_startOption->currentText(), QStringLiteral("30"));
    QCOMPARE(card.m_hazard->currentText(), QStringLiteral("25.0"));
    QVERIFY(card.m_overThreshold->isChecked());
    QVERIFY(card.m_endless->isChecked());
    QVERIFY(!card.m_buzzer->isChecked());
    QVERIFY(!card.m_sampling->isEditable());
    QVERIFY(!card.m_interval->isEditable());
}

void CardFormTest::ListsOpenAtTheValueOnShow()
{
    const CConditionOptionDialog& card = Card();
    QCOMPARE(card.m_threshold->itemText(card.m_threshold->currentIndex()), QStringLiteral("10.5"));
    QCOMPARE(card.m_startOption->currentIndex(), 30);
    QTest::keyClick(card.m_threshold, Qt::Key_Down);
    QCOMPARE(card.m_threshold->currentText(), QStringLiteral("10.6"));
    // A value between the steps is shown as well.
    CMeasureCondition odd = Sample();
    odd.Threshold = 101;
    const CConditionOptionDialog other(odd, *m_store);
    QCOMPARE(other.m_threshold->currentText(), QStringLiteral("10.1"));
    QCOMPARE(other.m_threshold->currentIndex(), -1);
}

void CardFormTest::HostNumberNoneShowsTheLowest()
{
    CMeasureCondition none = Sample();
    none.SerialNo = 0;
    const CConditionOptionDialog card(none, *m_store);
    QCOMPARE(card.m_hostNumber->currentText(), QStringLiteral("1"));
}

void CardFormTest::OkTakesTheConditions()
{
    CConditionOptionDialog& card = Card();
    card.m_sampling->setCurrentIndex(2);
    card.m_interval->setCurrentIndex(14);
    card.m_threshold->setEditText(QStringLiteral("49.0"));
    card.m_overThreshold->setChecked(false);
    card.m_hostNumber->setEditText(QStringLiteral("99"));
    card.m_startOption->setEditText(QStringLiteral("90"));
    card.accept();
    QCOMPARE(card.result(), int(QDialog::Accepted));
    CMeasureCondition expected = Sample();
    expected.SetSampling(2);
    expected.SetInterval(14);
    expected.Threshold = 490;
    expected.OverThreshold = false;
    expected.SerialNo = 99;
    expected.StartOpt = 90;
    QVERIFY(card.m_condition.SameConditions(expected));
    QCOMPARE(m_app->m_prompts->m_beeps, 0);
}

void CardFormTest::UnchangedProfileMustTakeANewNumber()
{
    CMeasureCondition profile = m_store->GetAt(m_store->FindByHostId(5));
    CConditionOptionDialog card(profile, *m_store);
    card.show();
    QVERIFY(QTest::qWaitForWindowActive(&card));
    QCOMPARE(card.m_hostNumber->currentText(), QStringLiteral("5"));
    card.accept();
    QVERIFY(card.isVisible());
    QCOMPARE(m_app->m_frame.m_status, QStringLiteral("Host number (ID) 5 is in use"));
    QCOMPARE(m_app->m_prompts->m_beeps, 1);
    QVERIFY(m_app->m_prompts->Boxes().isEmpty());
    QVERIFY(card.m_hostNumber->m_edit->hasFocus());
    QCOMPARE(card.m_hostNumber->m_edit->selectedText(), QStringLiteral("5"));
    // Typing replaces the number.
    QTest::keyClicks(card.m_hostNumber->m_edit, QStringLiteral("6"));
    card.accept();
    QCOMPARE(card.result(), int(QDialog::Accepted));
    QCOMPARE(card.m_condition.SerialNo, 6);
}

void CardFormTest::OkNeverTakesHazardEndlessAndBuzzer()
{
    CConditionOptionDialog& card = Card();
    card.m_hazard->setEditText(QStringLiteral("1.5"));
    card.m_endless->setChecked(false);
    card.m_buzzer->setChecked(true);
    card.accept();
    QCOMPARE(card.result(), int(QDialog::Accepted));
    QCOMPARE(card.m_condition.Hazard, 250);
    QVERIFY(card.m_condition.Endless);
    QVERIFY(!card.m_condition.Buzzer);

    // Not even what would be no hazard at all keeps the dialog open.
    CConditionOptionDialog& other = Card();
    other.m_hazard->setEditText(QString());
    other.accept();
    QCOMPARE(other.result(), int(QDialog::Accepted));
    QCOMPARE(other.m_condition.Hazard, 250);
}

void CardFormTest::BadBoxHasTheFocusAndIsTold_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    const QString threshold = QStringLiteral("Input the value of 49.0 from 0.0 to Thresholds.");
    const QString number = QStringLiteral("Input the value of 99 from 1 to Host Number (ID)");
    const QString start = QStringLiteral("Input the value of 90 from 0 to Start option");
    QTest::newRow("threshold too high") << "threshold"
                                        << "49.1" << threshold;
    QTest::newRow("threshold empty") << "threshold"
                                     << "" << threshold;
    QTest::newRow("host number 0") << "number"
                                   << "0" << number;
    QTest::newRow("host number empty") << "number"
                                       << "" << number;
    QTest::newRow("start option too high") << "start"
                                           << "91" << start;
    QTest::newRow("start option empty") << "start"
                                        << "" << start;
}

void CardFormTest::BadBoxHasTheFocusAndIsTold()
{
    QFETCH(QString, box);
    QFETCH(QString, text);
    CConditionOptionDialog& card = Card();
    QVERIFY(QTest::qWaitForWindowActive(&card));
    QComboBox* const bad = box == QStringLiteral("threshold") ? card.m_threshold
                           : box == QStringLiteral("number")
                               ? static_cast<QComboBox*>(card.m_hostNumber)
                               : card.m_startOption;
    bad->setEditText(text);
    card.accept();
    QVERIFY(card.isVisible());
    QTEST(m_app->m_frame.m_status, "message");
    QCOMPARE(m_app->m_prompts->m_beeps, 1);
    QVERIFY(bad->lineEdit()->hasFocus());
    QCOMPARE(bad->lineEdit()->selectedText(), text);
}

void CardFormTest::BoxesAreCheckedInTheirOrder()
{
    CConditionOptionDialog& card = Card();
    QVERIFY(QTest::qWaitForWindowActive(&card));
    card.m_threshold->setEditText(QStringLiteral("50"));
    card.m_hostNumber->setEditText(QStringLiteral("9"));
    card.m_startOption->setEditText(QStringLiteral("91"));
    card.accept();
    QVERIFY(card.m_threshold->m_edit->hasFocus());
    card.m_threshold->setEditText(QStringLiteral("5"));
    card.accept();
    QVERIFY(card.m_hostNumber->m_edit->hasFocus());
    QCOMPARE(m_app->m_frame.m_status, QStringLiteral("Host number (ID) 9 is in use"));
    card.m_hostNumber->setEditText(QStringLiteral("10"));
    card.accept();
    QVERIFY(card.m_startOption->m_edit->hasFocus());
    QVERIFY(card.isVisible());
}

void CardFormTest::CallerGetsTheResult()
{
    CMeasureCondition condition = Sample();
    QTimer::singleShot(0, this, [&] {
        auto* const card = qobject_cast<CConditionOptionDialog*>(QApplication::activeModalWidget());
        QVERIFY(card != nullptr);
        card->m_threshold->setEditText(QStringLiteral("2.5"));
        card->accept();
    });
    QVERIFY(RunConditionOption(condition, *m_store, nullptr));
    QCOMPARE(condition.Threshold, 25);
    QCOMPARE(condition.ProfileName, std::string("Parcel"));
}

void CardFormTest::CancelLeavesConditions()
{
    CMeasureCondition condition = Sample();
    QTimer::singleShot(0, this, [&] {
        auto* const card = qobject_cast<CConditionOptionDialog*>(QApplication::activeModalWidget());
        QVERIFY(card != nullptr);
        card->m_threshold->setEditText(QStringLiteral("2.5"));
        QTest::keyClick(card, Qt::Key_Escape);
    });
    QVERIFY(!RunConditionOption(condition, *m_store, nullptr));
    QVERIFY(condition.SameConditions(Sample()));
}

void CardFormTest::EnterInABoxIsOk()
{
    CConditionOptionDialog& card = Card();
    QVERIFY(QTest::qWaitForWindowActive(&card));
    card.m_hostNumber->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY(!card.isVisible());
    QCOMPARE(card.result(), int(QDialog::Accepted));
}

void CardFormTest::TabGoesDownTheColumns()
{
    CConditionOptionDialog& card = Card();
    QVERIFY(QTest::qWaitForWindowActive(&card));
    const std::vector<QWidget*> order = {
        card.m_sampling,      card.m_interval,   card.m_threshold,
        card.m_overThreshold, card.m_hostNumber, card.m_startOption,
        card.m_hazard,        card.m_endless,    card.m_buzzer};
    for (QWidget* const box : order) {
        QWidget* const focus = QApplication::focusWidget();
        QVERIFY2(focus == box || focus->parentWidget() == box, qPrintable(focus->objectName()));
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    QVERIFY(qobject_cast<QPushButton*>(QApplication::focusWidget()) != nullptr);
}

void CardFormTest::MnemonicsLeadToTheBoxes_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("box");
    QTest::newRow("sampling") << int(Qt::Key_S) << 0;
    QTest::newRow("interval") << int(Qt::Key_I) << 1;
    QTest::newRow("threshold") << int(Qt::Key_T) << 2;
    QTest::newRow("host number") << int(Qt::Key_D) << 3;
    QTest::newRow("start option") << int(Qt::Key_O) << 4;
    QTest::newRow("hazard") << int(Qt::Key_H) << 5;
    QTest::newRow("detect above") << int(Qt::Key_A) << 6;
    QTest::newRow("endless") << int(Qt::Key_E) << 7;
    QTest::newRow("buzzer") << int(Qt::Key_B) << 8;
}

void CardFormTest::MnemonicsLeadToTheBoxes()
{
    QFETCH(int, key);
    QFETCH(int, box);
    CConditionOptionDialog& card = Card();
    QVERIFY(QTest::qWaitForWindowActive(&card));
    const std::vector<QWidget*> boxes = {card.m_sampling,      card.m_interval,    card.m_threshold,
                                         card.m_hostNumber,    card.m_startOption, card.m_hazard,
                                         card.m_overThreshold, card.m_endless,     card.m_buzzer};
    QWidget* const wanted = boxes[static_cast<std::size_t>(box)];
    if (box == 0)
        card.m_buzzer->setFocus();
    QTest::keyClick(&card, static_cast<Qt::Key>(key), Qt::AltModifier);
    const auto isThere = [wanted] {
        QWidget* const focus = QApplication::focusWidget();
        return focus == wanted || (focus != nullptr && focus->parentWidget() == wanted);
    };
    QTRY_VERIFY(isThere());
}

void CardFormTest::ListsSpeakTheUsersLanguage()
{
    m_app.reset();
    m_app = std::make_unique<CTestApp>(QStringLiteral("Japanese"));
    QVERIFY(InstallTranslation(true));
    QCOMPARE(SamplingWords(4), QStringLiteral("0.0312 秒"));
    QCOMPARE(SamplingWords(5), QStringLiteral("0.0312 秒 トレースモード"));
    QCOMPARE(IntervalWords(0), QStringLiteral("30 分"));
    QCOMPARE(IntervalWords(14), QStringLiteral("1 秒"));
}

void CardFormTest::SetupViewOpensItOnItsProfiles()
{
    m_store.reset();
    m_folder.reset();
    m_app.reset();
    CSetupApp app;
    app.m_folder.WriteProfile("five", "SerialNo=5\r\nThreshold=10\r\n");
    App().Settings().WriteInt(SystemSection, QStringLiteral("ProfileWizard"), 0);
    app.Show();
    QTimer::singleShot(0, this, [] {
        auto* const card = qobject_cast<CConditionOptionDialog*>(QApplication::activeModalWidget());
        QVERIFY(card != nullptr);
        QCOMPARE(card->m_hostNumber->findText(QStringLiteral("5")), -1);
        card->m_hostNumber->setEditText(QStringLiteral("8"));
        card->m_threshold->setEditText(QStringLiteral("3.5"));
        card->accept();
    });
    app.Command(CommandId::Wizard);
    QCOMPARE(app.State().m_current.SerialNo, 8);
    QCOMPARE(app.Panel(SetupPanel::Threshold).Value(), 35);
}

QTEST_MAIN(CardFormTest)
#include "CardFormTest.moc"
