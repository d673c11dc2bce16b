#include "controls/LcdPanel.h"
#include "controls/SpinButton.h"
#include "setup/view/ConditionEditors.h"
#include "setup/view/ProfileFolder.h"
#include "setup/view/ProfileWizardDialog.h"
#include "setup/view/ProfileWizardPage.h"
#include "setup/view/SetupApp.h"
#include "setup/view/WizardConditions.h"
#include "setup/view/WizardPages.h"
#include "support/window/TestApp.h"

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>

using namespace skeldon;
using namespace skeldon::test;

namespace {

/// Lets the timer of a button run out without waiting for it.
void Tick(CSpinButton& button)
{
    QMetaObject::invokeMethod(&button.m_timer, "timeout");
    QCoreApplication::sendPostedEvents(&button);
}

void GoTo(CProfileWizardDialog& wizard, int page)
{
    while (wizard.CurrentPage() < page)
        wizard.m_next->click();
}

CProfileWizardDialog* OpenWizard()
{
    return qobject_cast<CProfileWizardDialog*>(QApplication::activeModalWidget());
}

} // namespace

/// The wizard that leads through the conditions.
class WizardTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void ButtonsOfEachPage_data();
    void ButtonsOfEachPage();
    void PagesShowTheirTexts();
    void StartOptionsAreToldInSixLines();
    void EachPageHasArrowsOrToggle();
    void PartsStandUnderTheHeading();
    void HeadingsAreWholeInLargeLetters();
    void DescriptionFollowsTheSize();
    void ValuesShowInYellow();
    void LampFlips();
    void HeldArrowsSpeedUp_data();
    void HeldArrowsSpeedUp();
    void HostNumberIsTheLowestFree();
    void HostNumberIsZeroWhereAllAreUsed();
    void HostNumberIsProposedOnce();
    void BackAndNextKeepValues();
    void FinishGivesTheResult();
    void CancelOnTheLastPageLeavesConditions();
    void EscapeLeavesConditions();
    void EnterGoesThroughAllPages();
    void MnemonicsGoBackAndForth();
    void ReadingTheTextDoesNotHoldEnter();
    void ArrowsWorkFromTheKeyboard();
    void RemarkOnBuzzerNeedsNoRecorder();
    void TitleIsEmpty();
    void SetupViewOpensIt();

private:
    std::unique_ptr<CTestApp> m_app;
    std::unique_ptr<CProfileFolder> m_folder;
};

void WizardTest::init()
{
    m_app = std::make_unique<CTestApp>();
    m_folder = std::make_unique<CProfileFolder>();
}

void WizardTest::cleanup()
{
    m_folder.reset();
    m_app.reset();
}

void WizardTest::ButtonsOfEachPage_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<bool>("hasBack");
    QTest::addColumn<bool>("hasNext");
    QTest::addColumn<bool>("hasFinish");
    QTest::newRow("first") << 0 << false << true << false;
    for (int page = 1; page < LastPage; ++page)
        QTest::addRow("page %d", page) << page << true << true << false;
    QTest::newRow("last") << LastPage << true << false << true;
}

void WizardTest::ButtonsOfEachPage()
{
    QFETCH(int, page);
    QFETCH(bool, hasBack);
    QFETCH(bool, hasNext);
    QFETCH(bool, hasFinish);
    CProfileWizardDialog wizard{CMeasureCondition()};
    wizard.show();
    GoTo(wizard, page);
    QCOMPARE(wizard.m_back->isVisible() && wizard.m_back->isEnabled(), hasBack);
    QCOMPARE(wizard.m_next->isVisible(), hasNext);
    QCOMPARE(wizard.m_finish->isVisible(), hasFinish);
    QVERIFY(wizard.m_cancel->isVisible());
    QVERIFY((hasFinish ? wizard.m_finish : wizard.m_next)->isDefault());
    // At the right edge, Cancel last.
    QVERIFY(wizard.m_cancel->geometry().right() > wizard.width() - 20);
    QVERIFY(wizard.m_back->x() > wizard.width() / 4);
}

void WizardTest::PagesShowTheirTexts()
{
    CProfileWizardDialog wizard{CMeasureCondition()};
    wizard.show();
    for (int page = 0; page <= LastPage; ++page) {
        GoTo(wizard, page);
        const WizardPage& rule = WizardPages()[static_cast<std::size_t>(page)];
        const CProfileWizardPage& shown = wizard.Page(page);
        QVERIFY(shown.isVisible());
        QCOMPARE(shown.m_heading->text(), Text(rule.heading));
        QCOMPARE(shown.m_description->toPlainText(),
                 Text(rule.description).remove(QLatin1Char('\r')));
        QVERIFY(shown.m_description->isReadOnly());
    }
}

void WizardTest::StartOptionsAreToldInSixLines()
{
    CProfileWizardDialog wizard{CMeasureCondition()};
    GoTo(wizard, StartOption);
    const CProfileWizardPage& page = wizard.Page(StartOption);
    QCOMPARE(page.m_description->blockCount(), 6);
    QVERIFY(page.m_description->toPlainText().contains(QStringLiteral("\n5\u301C90: Set")));
}

void WizardTest::EachPageHasArrowsOrToggle()
{
    CProfileWizardDialog wizard{CMeasureCondition()};
    wizard.show();
    const QSet<int> lamps = {OverThreshold, Endless, Buzzer};
    for (int page = 0; page <= LastPage; ++page) {
        GoTo(wizard, page);
        const CProfileWizardPage& shown = wizard.Page(page);
        const bool isLamp = lamps.contains(page);
        QCOMPARE(shown.m_toggle != nullptr, isLamp);
        QCOMPARE(shown.m_up != nullptr, !isLamp);
        QCOMPARE(shown.m_down != nullptr, !isLamp);
        QCOMPARE(shown.findChildren<CLcdPanel*>().size(), 1);
        QCOMPARE(shown.findChildren<CSpinButton*>().size(), isLamp ? 1 : 2);
    }
}

void WizardTest::PartsStandUnderTheHeading()
{
    CProfileWizardDialog wizard{CMeasureCondition()};
    wizard.show();
    GoTo(wizard, OverThreshold);
    const CProfileWizardPage& arrows = wizard.Page(Sampling);
    const QRect heading = arrows.m_heading->geometry();
    const QPoint panel(heading.left() + 16, heading.top() + heading.height() + 16);
    QCOMPARE(arrows.m_panel->pos(), panel);
    QCOMPARE(arrows.m_panel->size(), QSize(96, 54));
    QCOMPARE(arrows.m_up->pos(), panel + QPoint(85, 18));
    QCOMPARE(arrows.m_down->pos(), panel + QPoint(85, 29));
    QCOMPARE(arrows.m_description->y(), panel.y() + 54 + 16);
    const CProfileWizardPage& lamp = wizard.Page(OverThreshold);
    QCOMPARE(lamp.m_panel->pos(), panel);
    QCOMPARE(lamp.m_toggle->pos(), panel + QPoint(85, 23));
    QCOMPARE(lamp.m_description->y(), panel.y() + 42 + 16);
}

void WizardTest::HeadingsAreWholeInLargeLetters()
{
    const QFont usual = QApplication::font();
    const auto back = qScopeGuard([&] { QApplication::setFont(usual); });
    QFont large = usual;
    large.setPixelSize(24);
    QApplication::setFont(large);
    CProfileWizardDialog wizard{CMeasureCondition()};
    wizard.show();
    for (int page = 0; page <= LastPage; ++page) {
        GoTo(wizard, page);
        const QLabel& heading = *wizard.Page(page).m_heading;
        const QRect text = QFontMetrics(heading.font())
                               .boundingRect(QRect(0, 0, heading.width(), 10000), Qt::TextWordWrap,
                                             heading.text());
        QVERIFY2(text.width() <= heading.width(), qPrintable(heading.text()));
        QVERIFY2(text.height() <= heading.height(), qPrintable(heading.text()));
        QVERIFY(heading.geometry().bottom() < wizard.Page(page).m_panel->y());
    }
}

void WizardTest::DescriptionFollowsTheSize()
{
    CProfileWizardDialog wizard{CMeasureCondition()};
    wizard.show();
    const CProfileWizardPage& page = wizard.Page(0);
    const int earlier = page.height();
    wizard.resize(wizard.width() + 40, wizard.height() + 50);
    QTRY_COMPARE(page.height(), earlier + 50);
    const QRect description = page.m_description->geometry();
    QCOMPARE(description.bottom() + 1, page.height());
    QCOMPARE(description.width(), page.width());
}

void WizardTest::ValuesShowInYellow()
{
    CProfileWizardDialog wizard{With(Threshold, 105)};
    wizard.show();
    GoTo(wizard, Threshold);
    CLcdPanel& panel = *wizard.Page(Threshold).m_panel;
    QCOMPARE(panel.Value(), 105);
    QVERIFY(!panel.IsBlank());
    const QImage image = panel.grab().toImage();
    int yellow = 0;
    int green = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            yellow += image.pixelColor(x, y) == QColor(255, 255, 0) ? 1 : 0;
            green += image.pixelColor(x, y) == QColor(0, 255, 0) ? 1 : 0;
        }
    }
    QVERIFY(yellow > 20);
    QCOMPARE(green, 0);
}

void WizardTest::LampFlips()
{
    CProfileWizardDialog wizard{CMeasureCondition()};
    wizard.show();
    GoTo(wizard, Endless);
    const CProfileWizardPage& page = wizard.Page(Endless);
    const QImage off = page.m_panel->grab().toImage();
    QTest::mouseClick(page.m_toggle, Qt::LeftButton);
    QVERIFY(wizard.m_condition.Endless);
    QVERIFY(page.m_panel->grab().toImage() != off);
    QTest::mouseClick(page.m_toggle, Qt::LeftButton);
    QVERIFY(!wizard.m_condition.Endless);
    QCOMPARE(page.m_panel->grab().toImage(), off);
}

void WizardTest::HeldArrowsSpeedUp_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<bool>("speedsUp");
    QTest::newRow("sampling") << int(Sampling) << false;
    QTest::newRow("interval") << int(Interval) << false;
    QTest::newRow("threshold") << int(Threshold) << true;
    QTest::newRow("host number") << int(HostNumber) << true;
    QTest::newRow("start option") << int(StartOption) << true;
    QTest::newRow("hazard") << int(Hazard) << true;
}

void WizardTest::HeldArrowsSpeedUp()
{
    QFETCH(int, page);
    QFETCH(bool, speedsUp);
    CProfileWizardDialog wizard{CMeasureCondition()};
    wizard.show();
    GoTo(wizard, page);
    for (CSpinButton* const arrow : {wizard.Page(page).m_up, wizard.Page(page).m_down}) {
        QTest::mousePress(arrow, Qt::LeftButton);
        QCOMPARE(arrow->m_timer.interval(), 500);
        for (int i = 0; i < 10; ++i) {
            Tick(*arrow);
            QCOMPARE(arrow->m_timer.interval(), 100);
        }
        Tick(*arrow);
        QCOMPARE(arrow->m_timer.interval(), speedsUp ? 10 : 100);
        QTest::mouseRelease(arrow, Qt::LeftButton);
    }
}

void WizardTest::HostNumberIsTheLowestFree()
{
    m_folder->WriteProfile("a", "SerialNo=1\r\n");
    m_folder->WriteProfile("b", "SerialNo=2\r\n");
    m_folder->WriteProfile("c", "SerialNo=4\r\n");
    CProfileWizardDialog wizard{With(HostNumber, 77)};
    GoTo(wizard, HostNumber - 1);
    QCOMPARE(wizard.m_condition.SerialNo, 77);
    GoTo(wizard, HostNumber);
    QCOMPARE(wizard.Page(HostNumber).m_panel->Value(), 3);
    GoTo(wizard, LastPage);
    wizard.m_finish->click();
    QCOMPARE(wizard.result(), int(QDialog::Accepted));
    QCOMPARE(wizard.m_condition.SerialNo, 3);
}

void WizardTest::HostNumberIsZeroWhereAllAreUsed()
{
    for (int id = 1; id <= 99; ++id)
        m_folder->WriteProfile("p" + std::to_string(id), "SerialNo=" + std::to_string(id));
    CProfileWizardDialog wizard{With(HostNumber, 7)};
    GoTo(wizard, HostNumber);
    QCOMPARE(wizard.m_condition.SerialNo, 0);
}

void WizardTest::HostNumberIsProposedOnce()
{
    CProfileWizardDialog wizard{CMeasureCondition()};
    wizard.show();
    GoTo(wizard, HostNumber);
    QTest::mouseClick(wizard.Page(HostNumber).m_up, Qt::LeftButton);
    QCOMPARE(wizard.m_condition.SerialNo, 2);
    wizard.m_back->click();
    wizard.m_next->click();
    QCOMPARE(wizard.m_condition.SerialNo, 2);
}

void WizardTest::BackAndNextKeepValues()
{
    QList<int> values = {3, 7, 105, 1, 1, 90, 495, 1, 1};
    CProfileWizardDialog wizard{Condition(values)};
    wizard.show();
    for (int page = 0; page < LastPage; ++page) {
        const CProfileWizardPage& shown = wizard.Page(page);
        QTest::mouseClick(shown.m_up != nullptr ? shown.m_up : shown.m_toggle, Qt::LeftButton);
        wizard.m_next->click();
    }
    while (wizard.m_back->isEnabled())
        wizard.m_back->click();
    QCOMPARE(wizard.CurrentPage(), 0);
    QCOMPARE(Values(wizard.m_condition), QList<int>({2, 6, 106, 0, 2, 0, 495, 0, 1}));
    QCOMPARE(wizard.Page(Threshold).m_panel->Value(), 106);
}

void WizardTest::FinishGivesTheResult()
{
    CMeasureCondition condition = With(Threshold, 10);
    condition.ProfileName = "kept";
    QTimer::singleShot(0, this, [&] {
        CProfileWizardDialog* const wizard = OpenWizard();
        QVERIFY(wizard != nullptr);
        GoTo(*wizard, Threshold);
        QTest::mouseClick(wizard->Page(Threshold).m_up, Qt::LeftButton);
        QCOMPARE(condition.Threshold, 10);
        GoTo(*wizard, LastPage);
        wizard->m_finish->click();
    });
    QVERIFY(RunWizard(condition, nullptr));
    QCOMPARE(condition.Threshold, 11);
    QCOMPARE(condition.SerialNo, 1);
    QCOMPARE(condition.ProfileName, std::string("kept"));
}

void WizardTest::CancelOnTheLastPageLeavesConditions()
{
    CMeasureCondition condition = With(HostNumber, 8);
    QTimer::singleShot(0, this, [&] {
        CProfileWizardDialog* const wizard = OpenWizard();
        QVERIFY(wizard != nullptr);
        GoTo(*wizard, LastPage);
        QTest::mouseClick(wizard->Page(LastPage).m_toggle, Qt::LeftButton);
        wizard->m_cancel->click();
    });
    QVERIFY(!RunWizard(condition, nullptr));
    QVERIFY(condition.SameConditions(With(HostNumber, 8)));
}

void WizardTest::EscapeLeavesConditions()
{
    CMeasureCondition condition = With(HostNumber, 8);
    QTimer::singleShot(0, this, [] {
        CProfileWizardDialog* const wizard = OpenWizard();
        QVERIFY(wizard != nullptr);
        GoTo(*wizard, HostNumber);
        QTest::keyClick(wizard, Qt::Key_Escape);
    });
    QVERIFY(!RunWizard(condition, nullptr));
    QCOMPARE(condition.SerialNo, 8);
}

void WizardTest::EnterGoesThroughAllPages()
{
    CProfileWizardDialog wizard{CMeasureCondition()};
    wizard.show();
    QVERIFY(QTest::qWaitForWindowActive(&wizard));
    for (int page = 0; page < LastPage; ++page) {
        QCOMPARE(wizard.CurrentPage(), page);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    QCOMPARE(wizard.CurrentPage(), LastPage);
    QVERIFY(wizard.isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY(!wizard.isVisible());
    QCOMPARE(wizard.result(), int(QDialog::Accepted));
}

void WizardTest::MnemonicsGoBackAndForth()
{
    CProfileWizardDialog wizard{CMeasureCondition()};
    wizard.show();
    QVERIFY(QTest::qWaitForWindowActive(&wizard));
    QTest::keyClick(&wizard, Qt::Key_N, Qt::AltModifier);
    QTRY_COMPARE(wizard.CurrentPage(), 1);
    QTest::keyClick(&wizard, Qt::Key_B, Qt::AltModifier);
    QTRY_COMPARE(wizard.CurrentPage(), 0);
}

void WizardTest::ReadingTheTextDoesNotHoldEnter()
{
    CProfileWizardDialog wizard{CMeasureCondition()};
    wizard.show();
    QVERIFY(QTest::qWaitForWindowActive(&wizard));
    QPlainTextEdit* const text = wizard.Page(0).m_description;
    text->setFocus();
    QTest::keyClick(text, Qt::Key_Return);
    QCOMPARE(wizard.CurrentPage(), 1);
}

void WizardTest::ArrowsWorkFromTheKeyboard()
{
    CProfileWizardDialog wizard{With(Sampling, 4)};
    wizard.show();
    QVERIFY(QTest::qWaitForWindowActive(&wizard));
    const CProfileWizardPage& page = wizard.Page(0);
    page.m_up->setFocus();
    QTest::keyClick(page.m_up, Qt::Key_Space);
    QCOMPARE(wizard.m_condition.GetSampling(), 3);
    QTest::keyClick(page.m_up, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(page.m_down));
    QTest::keyClick(page.m_down, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(page.m_description));
    QTest::keyClick(page.m_description, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(wizard.m_next));
}

void WizardTest::RemarkOnBuzzerNeedsNoRecorder()
{
    for (const bool isConnected : {false, true}) {
        m_app->m_frame.m_connected = isConnected;
        CProfileWizardDialog wizard{CMeasureCondition()};
        GoTo(wizard, LastPage);
        QVERIFY(wizard.Page(LastPage).m_description->toPlainText().contains(
            QStringLiteral("Valid only for type QM70 Alpha.")));
    }
}

void WizardTest::TitleIsEmpty()
{
    const CProfileWizardDialog wizard{CMeasureCondition()};
    QVERIFY(wizard.windowTitle().isEmpty());
}

void WizardTest::SetupViewOpensIt()
{
    m_folder.reset();
    m_app.reset();
    CSetupApp app;
    app.m_folder.WriteProfile("five", "SerialNo=5\r\nThreshold=10\r\n");
    app.Show();
    QTimer::singleShot(0, this, [] {
        CProfileWizardDialog* const wizard = OpenWizard();
        QVERIFY(wizard != nullptr);
        GoTo(*wizard, LastPage);
        wizard->m_finish->click();
    });
    app.Command(CommandId::Wizard);
    QVERIFY(app.State().m_bConditionsValid);
    QCOMPARE(app.State().m_current.SerialNo, 1);
    QCOMPARE(app.Panel(SetupPanel::Id).Value(), 1);
}

QTEST_MAIN(WizardTest)
#include "WizardTest.moc"
