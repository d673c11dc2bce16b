#include "setup/view/StepRules.h"
#include "setup/view/ProfileFolder.h"
#include "setup/view/SetupState.h"

#include <QTest>

using namespace skeldon;
using skeldon::test::CProfileFolder;

namespace {

/// The value that a step works on.
int ValueOf(const CMeasureCondition& condition, SetupPanel panel)
{
    switch (panel) {
    case SetupPanel::Sampling:
        return condition.GetSampling();
    case SetupPanel::Interval:
        return condition.GetInterval();
    case SetupPanel::Threshold:
        return condition.Threshold;
    case SetupPanel::Id:
        return condition.SerialNo;
    case SetupPanel::Hazard:
        return condition.Hazard;
    case SetupPanel::StartOption:
        return condition.StartOpt;
    case SetupPanel::DetectOver:
        return condition.OverThreshold ? 1 : 0;
    case SetupPanel::Endless:
        return condition.Endless ? 1 : 0;
    default:
        return condition.Buzzer ? 1 : 0;
    }
}

void SetValue(CMeasureCondition& condition, SetupPanel panel, int value)
{
    switch (panel) {
    case SetupPanel::Sampling:
        condition.SetSampling(value);
        break;
    case SetupPanel::Interval:
        condition.SetInterval(value);
        break;
    case SetupPanel::Threshold:
        condition.Threshold = value;
        break;
    case SetupPanel::Id:
        condition.SerialNo = value;
        break;
    case SetupPanel::Hazard:
        condition.Hazard = value;
        break;
    case SetupPanel::StartOption:
        condition.StartOpt = value;
        break;
    case SetupPanel::DetectOver:
        condition.OverThreshold = value != 0;
        break;
    case SetupPanel::Endless:
        condition.Endless = value != 0;
        break;
    default:
        condition.Buzzer = value != 0;
        break;
    }
}

} // namespace

/// What the arrows and toggles do.
class StepRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void StepChangesItsValue_data();
    void StepChangesItsValue();
    void HostNumbersInUseAreStepped_data();
    void HostNumbersInUseAreStepped();
    void TemplatesUseNoNumber();
    void SomeSpeedUpAndTwoHaveAHint();
};

void StepRulesTest::StepChangesItsValue_data()
{
    QTest::addColumn<SetupStep>("step");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");

    QTest::newRow("longer period") << SetupStep::SamplingUp << 4 << 3;
    QTest::newRow("longest period") << SetupStep::SamplingUp << 0 << 0;
    QTest::newRow("shorter period") << SetupStep::SamplingDown << 4 << 5;
    QTest::newRow("shortest period") << SetupStep::SamplingDown << 9 << 9;
    QTest::newRow("longer interval") << SetupStep::IntervalUp << 9 << 8;
    QTest::newRow("longest interval") << SetupStep::IntervalUp << 0 << 0;
    QTest::newRow("shorter interval") << SetupStep::IntervalDown << 8 << 9;
    QTest::newRow("shortest interval") << SetupStep::IntervalDown << 14 << 14;
    QTest::newRow("threshold up") << SetupStep::ThresholdUp << 99 << 100;
    QTest::newRow("threshold up the scale") << SetupStep::ThresholdUp << 104 << 105;
    QTest::newRow("highest threshold") << SetupStep::ThresholdUp << 490 << 490;
    QTest::newRow("threshold down") << SetupStep::ThresholdDown << 205 << 200;
    QTest::newRow("lowest threshold") << SetupStep::ThresholdDown << 0 << 0;
    QTest::newRow("off the scale up") << SetupStep::ThresholdUp << 101 << 103;
    QTest::newRow("off the scale down") << SetupStep::ThresholdDown << 101 << 100;
    QTest::newRow("beyond the highest") << SetupStep::ThresholdUp << 489 << 494;
    QTest::newRow("hazard up") << SetupStep::HazardUp << 490 << 495;
    QTest::newRow("highest hazard") << SetupStep::HazardUp << 495 << 495;
    QTest::newRow("hazard down") << SetupStep::HazardDown << 106 << 105;
    QTest::newRow("no hazard") << SetupStep::HazardDown << 0 << 0;
    QTest::newRow("option up") << SetupStep::StartOptionUp << 5 << 6;
    QTest::newRow("highest option") << SetupStep::StartOptionUp << 90 << 90;
    QTest::newRow("option of a recorder stays") << SetupStep::StartOptionUp << 97 << 97;
    QTest::newRow("option of a recorder goes down") << SetupStep::StartOptionDown << 97 << 96;
    QTest::newRow("option down") << SetupStep::StartOptionDown << 1 << 0;
    QTest::newRow("lowest option") << SetupStep::StartOptionDown << 0 << 0;
    QTest::newRow("illegal option goes up") << SetupStep::StartOptionUp << -1 << 0;
    QTest::newRow("illegal option stays") << SetupStep::StartOptionDown << -1 << -1;
    QTest::newRow("detect") << SetupStep::DetectOver << 0 << 1;
    QTest::newRow("detect no more") << SetupStep::DetectOver << 1 << 0;
    QTest::newRow("endless") << SetupStep::Endless << 0 << 1;
    QTest::newRow("buzzer") << SetupStep::Buzzer << 1 << 0;
}

void StepRulesTest::StepChangesItsValue()
{
    QFETCH(SetupStep, step);
    QFETCH(int, before);
    QFETCH(int, after);
    const CProfileFolder folder;
    CSetupState state(folder.Folders());
    const StepRule& rule = RuleOf(step);
    SetValue(state.m_current, rule.panel, before);
    QCOMPARE(rule.apply(state), before != after);
    QCOMPARE(ValueOf(state.m_current, rule.panel), after);
}

void StepRulesTest::HostNumbersInUseAreStepped_data()
{
    QTest::addColumn<SetupStep>("step");
    QTest::addColumn<int>("loaded");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    // 1, 2, 5 and 99 are in use.
    QTest::newRow("over used ones") << SetupStep::IdUp << 0 << 0 << 3;
    QTest::newRow("to its own number") << SetupStep::IdUp << 5 << 4 << 5;
    QTest::newRow("past another's number") << SetupStep::IdUp << 2 << 4 << 6;
    QTest::newRow("no higher one") << SetupStep::IdUp << 0 << 98 << 98;
    QTest::newRow("no lower one") << SetupStep::IdDown << 0 << 3 << 3;
    QTest::newRow("down to its own number") << SetupStep::IdDown << 1 << 3 << 1;
    QTest::newRow("number 0 is stepped off") << SetupStep::IdUp << 0 << 0 << 3;
    QTest::newRow("and not back to") << SetupStep::IdDown << 0 << 3 << 3;
}

void StepRulesTest::HostNumbersInUseAreStepped()
{
    QFETCH(SetupStep, step);
    QFETCH(int, loaded);
    QFETCH(int, before);
    QFETCH(int, after);
    const CProfileFolder folder;
    for (const std::string number : {"1", "2", "5", "99"})
        folder.WriteProfile("p" + number, "SerialNo=" + number + "\r\n");
    CSetupState state(folder.Folders());
    state.SetListMode(ListMode::Profiles);
    state.m_saved.SerialNo = loaded;
    state.m_current.SerialNo = before;
    QCOMPARE(RuleOf(step).apply(state), before != after);
    QCOMPARE(state.m_current.SerialNo, after);
}

void StepRulesTest::TemplatesUseNoNumber()
{
    const CProfileFolder folder;
    folder.WriteTemplate("road", "SerialNo=1\r\n");
    CSetupState state(folder.Folders());
    state.SetListMode(ListMode::Templates);
    QCOMPARE(state.m_store.GetCount(), 1);
    QVERIFY(RuleOf(SetupStep::IdUp).apply(state));
    QCOMPARE(state.m_current.SerialNo, 1);
}

void StepRulesTest::SomeSpeedUpAndTwoHaveAHint()
{
    for (const StepRule& rule : StepRules()) {
        const bool speedsUp = rule.panel == SetupPanel::Threshold || rule.panel == SetupPanel::Id ||
                              rule.panel == SetupPanel::StartOption ||
                              rule.panel == SetupPanel::Hazard;
        QCOMPARE(rule.speedsUp, speedsUp);
        const StepHint hint = rule.panel == SetupPanel::StartOption ? StepHint::StartOption
                              : rule.panel == SetupPanel::Buzzer    ? StepHint::Buzzer
                                                                    : StepHint::None;
        QCOMPARE(rule.hint, hint);
    }
}

QTEST_APPLESS_MAIN(StepRulesTest)
#include "StepRulesTest.moc"
