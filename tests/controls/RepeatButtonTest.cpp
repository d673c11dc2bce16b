#include "controls/Pixels.h"
#include "controls/RepeatSteps.h"
#include "controls/SpinButton.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

/// Lets the timer of a button run out without waiting for it.
void Tick(CRepeatButton& button)
{
    QMetaObject::invokeMethod(&button.m_timer, "timeout");
    QCoreApplication::sendPostedEvents(&button);
}

} // namespace

/// The small buttons that go on while they are held.
class RepeatButtonTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void StepsComeAfterStatedDelays();
    void SpeedsUpAfterTenSteps();
    void StepCountStartsAnewAtEachPress();
    void ShortClickIsOneStep();
    void HoldStepsByTimer();
    void ReleaseAfterTickGivesNoFurtherStep();
    void StepOfTimerIsPosted();
    void ReleaseOutsideGivesNoStep();
    void OtherMouseButtonsDoNothing();
    void WithoutRepeatHoldIsOneStep();
    void SpaceHoldsAndEnterClicks();
    void LosingFocusEndsHold();
    void HidingOrSwitchingOffEndsHold();
    void RealHoldKeepsPace();
    void SpinButtonsAreSmallAndNamed();
    void LooksTellPushedAndFocus();

private:
    std::unique_ptr<QWidget> m_form;
    CSpinButton* m_button = nullptr;
    CSpinButton* m_other = nullptr;
    std::unique_ptr<QSignalSpy> m_steps;
};

void RepeatButtonTest::init()
{
    m_form = std::make_unique<QWidget>();
    m_form->resize(100, 50);
    m_button = new CSpinButton(SpinKind::Up, m_form.get());
    m_other = new CSpinButton(SpinKind::Reset, m_form.get());
    m_button->move(10, 10);
    m_other->move(40, 10);
    QVERIFY(ShowActive(*m_form));
    m_steps = std::make_unique<QSignalSpy>(m_button, &CRepeatButton::Stepped);
}

void RepeatButtonTest::cleanup()
{
    m_steps.reset();
    m_form.reset();
}

void RepeatButtonTest::StepsComeAfterStatedDelays()
{
    CRepeatSteps steps;
    QCOMPARE(steps.Press(), 500);
    for (int i = 0; i < 50; ++i)
        QCOMPARE(steps.Tick(), 100);
    steps.m_repeats = false;
    QCOMPARE(steps.Press(), 0);
}

void RepeatButtonTest::SpeedsUpAfterTenSteps()
{
    CRepeatSteps steps;
    steps.m_speedsUp = true;
    QCOMPARE(steps.Press(), 500);
    // The first step, then ten at 100 ms, then the fast ones.
    for (int i = 0; i < 10; ++i)
        QCOMPARE(steps.Tick(), 100);
    for (int i = 0; i < 50; ++i)
        QCOMPARE(steps.Tick(), 10);
}

void RepeatButtonTest::StepCountStartsAnewAtEachPress()
{
    CRepeatSteps steps;
    steps.m_speedsUp = true;
    steps.Press();
    for (int i = 0; i < 20; ++i)
        steps.Tick();
    QVERIFY(!steps.ClickIsStep());
    steps.Release();
    QVERIFY(steps.ClickIsStep());
    QCOMPARE(steps.Press(), 500);
    QCOMPARE(steps.Tick(), 100);
}

void RepeatButtonTest::ShortClickIsOneStep()
{
    QTest::mousePress(m_button, Qt::LeftButton);
    QCOMPARE(m_steps->count(), 0);
    QVERIFY(m_button->m_timer.isActive());
    QCOMPARE(m_button->m_timer.interval(), 500);
    QTest::mouseRelease(m_button, Qt::LeftButton);
    QCOMPARE(m_steps->count(), 1);
    QVERIFY(!m_button->m_timer.isActive());
}

void RepeatButtonTest::HoldStepsByTimer()
{
    QTest::mousePress(m_button, Qt::LeftButton);
    for (int i = 1; i <= 5; ++i) {
        Tick(*m_button);
        QCOMPARE(m_steps->count(), i);
        QCOMPARE(m_button->m_timer.interval(), 100);
        QVERIFY(m_button->m_timer.isActive());
    }
    QTest::mouseRelease(m_button, Qt::LeftButton);
}

void RepeatButtonTest::ReleaseAfterTickGivesNoFurtherStep()
{
    QTest::mousePress(m_button, Qt::LeftButton);
    Tick(*m_button);
    QTest::mouseRelease(m_button, Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(m_steps->count(), 1);
    QVERIFY(!m_button->m_timer.isActive());
    QTest::mouseClick(m_button, Qt::LeftButton); // the next click counts again
    QCOMPARE(m_steps->count(), 2);
}

void RepeatButtonTest::StepOfTimerIsPosted()
{
    QTest::mousePress(m_button, Qt::LeftButton);
    QMetaObject::invokeMethod(&m_button->m_timer, "timeout");
    QCOMPARE(m_steps->count(), 0);
    QCoreApplication::sendPostedEvents(m_button);
    QCOMPARE(m_steps->count(), 1);
    QTest::mouseRelease(m_button, Qt::LeftButton);
}

void RepeatButtonTest::ReleaseOutsideGivesNoStep()
{
    QTest::mousePress(m_button, Qt::LeftButton);
    QTest::mouseMove(m_button, QPoint(30, 30));
    QTest::mouseRelease(m_button, Qt::LeftButton, {}, QPoint(30, 30));
    QCOMPARE(m_steps->count(), 0);
    QVERIFY(!m_button->m_timer.isActive());
}

void RepeatButtonTest::OtherMouseButtonsDoNothing()
{
    QTest::mousePress(m_button, Qt::RightButton);
    QVERIFY(!m_button->m_timer.isActive());
    QTest::mouseRelease(m_button, Qt::RightButton);
    QCOMPARE(m_steps->count(), 0);
}

void RepeatButtonTest::WithoutRepeatHoldIsOneStep()
{
    const QSignalSpy steps(m_other, &CRepeatButton::Stepped);
    QTest::mousePress(m_other, Qt::LeftButton);
    QVERIFY(!m_other->m_timer.isActive());
    QTest::mouseRelease(m_other, Qt::LeftButton);
    QCOMPARE(steps.count(), 1);
}

void RepeatButtonTest::SpaceHoldsAndEnterClicks()
{
    m_button->setFocus();
    QTest::keyPress(m_button, Qt::Key_Space);
    QVERIFY(m_button->m_timer.isActive());
    QCOMPARE(m_button->m_timer.interval(), 500);
    Tick(*m_button);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
    QApplication::sendEvent(m_button, &repeated);
    QCOMPARE(m_button->m_timer.interval(), 100); // the keyboard's own repeat is not heard
    QTest::keyRelease(m_button, Qt::Key_Space);
    QCOMPARE(m_steps->count(), 1);
    QVERIFY(!m_button->m_timer.isActive());
    QTest::keyClick(m_button, Qt::Key_Return);
    QCOMPARE(m_steps->count(), 2);
    QTest::keyClick(m_button, Qt::Key_Space);
    QCOMPARE(m_steps->count(), 3);
}

void RepeatButtonTest::LosingFocusEndsHold()
{
    m_button->setFocus();
    QTest::keyPress(m_button, Qt::Key_Space);
    m_other->setFocus();
    QVERIFY(!m_button->m_timer.isActive());
    QCOMPARE(m_steps->count(), 0);
}

void RepeatButtonTest::HidingOrSwitchingOffEndsHold()
{
    QTest::mousePress(m_button, Qt::LeftButton);
    m_button->hide();
    QVERIFY(!m_button->m_timer.isActive());
    m_button->show();
    QTest::mousePress(m_button, Qt::LeftButton);
    m_button->setEnabled(false);
    QVERIFY(!m_button->m_timer.isActive());
    QCOMPARE(m_steps->count(), 0);
}

void RepeatButtonTest::RealHoldKeepsPace()
{
    QElapsedTimer clock;
    QList<qint64> times;
    connect(m_button, &CRepeatButton::Stepped, this, [&] { times << clock.elapsed(); });
    clock.start();
    QTest::mousePress(m_button, Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(times.size() >= 3, 5000);
    QTest::mouseRelease(m_button, Qt::LeftButton);
    // Never too early; how late they are is the machine's matter.
    QVERIFY(times[0] >= 500);
    QVERIFY(times[2] >= 700);
}

void RepeatButtonTest::SpinButtonsAreSmallAndNamed()
{
    const QList<std::pair<SpinKind, QString>> names = {{SpinKind::Up, QStringLiteral("Up")},
                                                       {SpinKind::Down, QStringLiteral("Down")},
                                                       {SpinKind::Reset, QStringLiteral("Reset")}};
    for (const auto& [kind, name] : names) {
        CSpinButton button(kind);
        QCOMPARE(button.size(), QSize(11, 9));
        QCOMPARE(AccessibleText(button, QAccessible::Name), name);
        QCOMPARE(AccessibleRoleOf(button), QAccessible::Button);
        QCOMPARE(button.toolTip(), name);
    }
}

void RepeatButtonTest::LooksTellPushedAndFocus()
{
    m_other->setFocus();
    const QImage rest = Painted(*m_button);
    m_button->setDown(true);
    const QImage pushed = Painted(*m_button);
    m_button->setDown(false);
    m_button->setFocus();
    const QImage focus = Painted(*m_button);
    m_other->setFocus();
    m_button->setEnabled(false);
    const QImage faint = Painted(*m_button);
    QCOMPARE(rest, Picture(PictureId::SpinUp, 1).convertToFormat(rest.format()));
    QVERIFY(rest != pushed && rest != focus && rest != faint && pushed != focus);
    // The arrow itself stays free of the frame.
    QCOMPARE(focus.copy(1, 1, 9, 7), rest.copy(1, 1, 9, 7));
}

QTEST_MAIN(RepeatButtonTest)
#include "RepeatButtonTest.moc"
