#include "setup/view/WizardPages.h"
#include "setup/conditions/ProfileStore.h"
#include "setup/view/ProfileFolder.h"
#include "setup/view/WizardConditions.h"

#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

/// What the wizard's pages show and change, without the wizard.
class WizardPagesTest : public QObject
{
    Q_OBJECT

private slots:
    void StepsOfEachPage_data();
    void StepsOfEachPage();
    void HostNumberSkipsNumbersInUse();
    void HostNumberStaysWhereNoneIsFree();
    void OffScaleLevelsStepLiterally();
    void TextsOfEachPage_data();
    void TextsOfEachPage();
    void ButtonsOfEachPage();
    void HeldArrowsOfLongScalesSpeedUp();
};

void WizardPagesTest::StepsOfEachPage_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("afterUp");
    QTest::addColumn<int>("afterDown");
    QTest::addColumn<int>("afterToggle");
    constexpr int None = -1;

    QTest::newRow("sampling") << 0 << 4 << 3 << 5 << None;
    QTest::newRow("sampling, longest") << 0 << 0 << 0 << 1 << None;
    QTest::newRow("sampling, shortest") << 0 << 9 << 8 << 9 << None;
    QTest::newRow("interval") << 1 << 8 << 7 << 9 << None;
    QTest::newRow("interval, longest") << 1 << 0 << 0 << 1 << None;
    QTest::newRow("interval, shortest") << 1 << 14 << 13 << 14 << None;
    QTest::newRow("threshold") << 2 << 104 << 105 << 102 << None;
    QTest::newRow("threshold, lowest") << 2 << 0 << 1 << 0 << None;
    QTest::newRow("threshold, highest") << 2 << 490 << 490 << 485 << None;
    QTest::newRow("detection off") << 3 << 0 << None << None << 1;
    QTest::newRow("detection on") << 3 << 1 << None << None << 0;
    QTest::newRow("host number") << 4 << 5 << 6 << 4 << None;
    QTest::newRow("host number, lowest") << 4 << 1 << 2 << 1 << None;
    QTest::newRow("host number, highest") << 4 << 99 << 99 << 98 << None;
    QTest::newRow("start option") << 5 << 5 << 6 << 4 << None;
    QTest::newRow("start option goes round at 90") << 5 << 90 << 0 << 89 << None;
    QTest::newRow("start option goes round at 0") << 5 << 0 << 1 << 90 << None;
    QTest::newRow("hazard") << 6 << 200 << 205 << 198 << None;
    QTest::newRow("hazard, off") << 6 << 0 << 1 << 0 << None;
    QTest::newRow("hazard, highest") << 6 << 495 << 495 << 490 << None;
    QTest::newRow("endless off") << 7 << 0 << None << None << 1;
    QTest::newRow("endless on") << 7 << 1 << None << None << 0;
    QTest::newRow("buzzer off") << 8 << 0 << None << None << 1;
    QTest::newRow("buzzer on") << 8 << 1 << None << None << 0;
}

void WizardPagesTest::StepsOfEachPage()
{
    QFETCH(int, page);
    QFETCH(int, start);
    QFETCH(int, afterUp);
    QFETCH(int, afterDown);
    QFETCH(int, afterToggle);
    const WizardPage& rule = WizardPages()[static_cast<std::size_t>(page)];
    const CProfileFolder folder;
    const CProfileStore empty(folder.Folders());
    const auto check = [&](WizardPage::Step step, int expected) {
        QCOMPARE(step != nullptr, expected >= 0);
        if (step == nullptr)
            return;
        CMeasureCondition condition = With(static_cast<WizardField>(page), start);
        step(condition, empty);
        QList<int> values(FieldCount, 0);
        values[page] = expected;
        QCOMPARE(Values(condition), values);
    };
    check(rule.up, afterUp);
    check(rule.down, afterDown);
    check(rule.toggle, afterToggle);
}

void WizardPagesTest::HostNumberSkipsNumbersInUse()
{
    const CProfileFolder folder;
    folder.WriteProfile("two", "SerialNo=2\r\n");
    folder.WriteProfile("three", "SerialNo=3\r\n");
    CProfileStore store(folder.Folders());
    QVERIFY(store.Load(false));
    const WizardPage& rule = WizardPages()[HostNumber];
    CMeasureCondition condition = With(HostNumber, 1);
    rule.up(condition, store);
    QCOMPARE(condition.SerialNo, 4);
    rule.down(condition, store);
    QCOMPARE(condition.SerialNo, 1);
}

void WizardPagesTest::HostNumberStaysWhereNoneIsFree()
{
    const CProfileFolder folder;
    folder.WriteProfile("last", "SerialNo=99\r\n");
    CProfileStore store(folder.Folders());
    QVERIFY(store.Load(false));
    CMeasureCondition condition = With(HostNumber, 98);
    WizardPages()[HostNumber].up(condition, store);
    QCOMPARE(condition.SerialNo, 98);
}

void WizardPagesTest::OffScaleLevelsStepLiterally()
{
    const CProfileFolder folder;
    const CProfileStore empty(folder.Folders());
    CMeasureCondition condition = With(Threshold, 101);
    WizardPages()[Threshold].up(condition, empty);
    QCOMPARE(condition.Threshold, 103);
    condition.Threshold = 101;
    WizardPages()[Threshold].down(condition, empty);
    QCOMPARE(condition.Threshold, 100);
}

void WizardPagesTest::TextsOfEachPage_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("heading");
    QTest::addColumn<QString>("description");
    QTest::newRow("sampling")
        << int(Sampling) << "Set the sampling."
        << "Set the cycle to measure.\r\n When trace mode is selected, recording starts every  "
           "specified sampling cycle, from the time when the excess of the threshold is first "
           "detected. (trigger mode)";
    QTest::newRow("interval")
        << int(Interval) << "Set recording intervals."
        << "Set the recording intervals.\r\n The maximum record of the measured sampling is "
           "recorded during the specified the recording intervals (One data per recording "
           "interval)";
    QTest::newRow("threshold")
        << int(Threshold) << "Set a threshold."
        << "Set a threshold.\r\n All sampling measurement data that exceeds the specified "
           "threshold will be recorded.\r\n When threshold is 0, one maximum data during the "
           "recording interval is recorded.";
    QTest::newRow("detection")
        << int(OverThreshold) << "Set it active, the detection of the excess of upper threshold."
        << "Set the option of the display \"SHOCKED\" on LCD when the excess of the threshold is "
           "detected.\r\n(Not applicable during the trace mode)";
    QTest::newRow("host number")
        << int(HostNumber) << "Set host number (ID)."
        << "Set the number from 1 to 99 to KORVA\r\nThe host number specified in an existing "
           "profile is not available.";
    // The wave dash, not the tilde that looks like it; one line lacks its colon.
    QTest::newRow("start option")
        << int(StartOption) << "Set the starting option."
        << "0: Promptly, start measuring. Maximum value display mode (magnet reset)\r\n"
           "1: Magnet trigger only on start measuring\r\n"
           "2: Magnet on start measuring. After start, measuring stop on magnet\r\n"
           "3 Magnet on start measuring. After start, measuring pause on magnet. Restart on "
           "releasing magnet\r\n"
           "4: Magnet on start measuring. After start, measuring pause on releasing magnet. "
           "Restart on magnet\r\n"
           "5\u301C90: Set the idling time (sec.) after USB cable is disconnected till measuring "
           "starts.";
    QTest::newRow("hazard") << int(Hazard) << "Configure hazard value."
                            << "When G higher than the configured level is detected, it will stop "
                               "after 1000 records.\r\nWhen is configured at 0, it will not stop.";
    QTest::newRow("endless")
        << int(Endless) << "Configure the Endless mode (Cyclic Recording)"
        << "Configure ON/OFF for Endless Recording (Cyclic Recording).\r\nWhen is ON, it will  "
           "not stop when data is full, but will overwrite the oldest data with the "
           "new,\r\nWhen is OFF, it will stop when data is full.";
    QTest::newRow("buzzer") << int(Buzzer) << "Configure the buzzer."
                            << "Configure the buzzer.\r\nValid only for type QM70 Alpha.";
}

void WizardPagesTest::TextsOfEachPage()
{
    QFETCH(int, page);
    const WizardPage& rule = WizardPages()[static_cast<std::size_t>(page)];
    QTEST(Text(rule.heading), "heading");
    QTEST(Text(rule.description), "description");
}

void WizardPagesTest::ButtonsOfEachPage()
{
    QCOMPARE(WizardPages().size(), std::size_t{FieldCount});
    QCOMPARE(WizardButtonsOf(Sampling), (WizardButtons{false, true, false}));
    for (int page = Interval; page < LastPage; ++page)
        QCOMPARE(WizardButtonsOf(page), (WizardButtons{true, true, false}));
    QCOMPARE(WizardButtonsOf(LastPage), (WizardButtons{true, false, true}));
}

void WizardPagesTest::HeldArrowsOfLongScalesSpeedUp()
{
    for (int page = 0; page < FieldCount; ++page) {
        const bool isLong =
            page == Threshold || page == HostNumber || page == StartOption || page == Hazard;
        QCOMPARE(WizardPages()[static_cast<std::size_t>(page)].speedsUp, isLong);
    }
}

QTEST_APPLESS_MAIN(WizardPagesTest)
#include "WizardPagesTest.moc"
