#include "setup/view/SetupLayout.h"
#include "setup/view/StepRules.h"

#include <QTest>

using namespace skeldon;

/// Where everything stands on the form.
class SetupLayoutTest : public QObject
{
    Q_OBJECT

private slots:
    void ButtonsStandInTheirPlaces_data();
    void ButtonsStandInTheirPlaces();
    void StartButtonsStandByLanguage();
    void PanelsStandInTheirPlaces_data();
    void PanelsStandInTheirPlaces();
    void NothingLeavesTheFormOrOverlaps();
    void TablesFollowTheirNumbers();
};

void SetupLayoutTest::ButtonsStandInTheirPlaces_data()
{
    QTest::addColumn<SetupButton>("button");
    QTest::addColumn<QRect>("place");
    QTest::newRow("prompt") << SetupButton::StartPrompt << QRect(16, 3, 136, 28);
    QTest::newRow("reserved") << SetupButton::StartReserved << QRect(158, 3, 136, 28);
    QTest::newRow("add") << SetupButton::Add << QRect(260, 148, 88, 28);
    QTest::newRow("update") << SetupButton::Update << QRect(260, 184, 88, 28);
    QTest::newRow("delete") << SetupButton::Delete << QRect(260, 220, 88, 28);
    QTest::newRow("receive") << SetupButton::Receive << QRect(260, 256, 88, 28);
    QTest::newRow("profile") << SetupButton::Profile << QRect(36, 386, 100, 28);
    QTest::newRow("template") << SetupButton::Template << QRect(140, 386, 100, 28);
    QTest::newRow("change") << SetupButton::Change << QRect(396, 312, 96, 28);
    QTest::newRow("restore") << SetupButton::Restore << QRect(396, 348, 96, 28);
    QTest::newRow("wizard") << SetupButton::Wizard << QRect(396, 386, 140, 28);
    QTest::newRow("data display") << SetupButton::DataDisplay << QRect(621, 298, 78, 28);
    QTest::newRow("automatic") << SetupButton::Automatic << QRect();
    QTest::newRow("calibrate") << SetupButton::CalibrateWizard << QRect();
}

void SetupLayoutTest::ButtonsStandInTheirPlaces()
{
    QFETCH(SetupButton, button);
    QFETCH(QRect, place);
    QCOMPARE(PlaceOf(button, false), place);
}

void SetupLayoutTest::StartButtonsStandByLanguage()
{
    QCOMPARE(PlaceOf(SetupButton::StartPrompt, true), QRect(16, 3, 112, 28));
    QCOMPARE(PlaceOf(SetupButton::StartReserved, true), QRect(134, 3, 112, 28));
    QCOMPARE(PlaceOf(SetupButton::Wizard, true), PlaceOf(SetupButton::Wizard, false));
}

void SetupLayoutTest::PanelsStandInTheirPlaces_data()
{
    QTest::addColumn<SetupPanel>("panel");
    QTest::addColumn<LcdPanelKind>("kind");
    QTest::addColumn<QPoint>("place");
    QTest::newRow("interval") << SetupPanel::Interval << LcdPanelKind::Interval << QPoint(396, 66);
    QTest::newRow("option") << SetupPanel::StartOption << LcdPanelKind::StartOption
                            << QPoint(504, 66);
    QTest::newRow("sampling") << SetupPanel::Sampling << LcdPanelKind::Sampling << QPoint(612, 66);
    QTest::newRow("threshold") << SetupPanel::Threshold << LcdPanelKind::Threshold
                               << QPoint(396, 124);
    QTest::newRow("hazard") << SetupPanel::Hazard << LcdPanelKind::Hazard << QPoint(504, 124);
    QTest::newRow("over") << SetupPanel::DetectOver << LcdPanelKind::DetectOverTemperature
                          << QPoint(396, 182);
    QTest::newRow("endless") << SetupPanel::Endless << LcdPanelKind::Endless << QPoint(504, 182);
    QTest::newRow("records") << SetupPanel::Records << LcdPanelKind::Records << QPoint(612, 182);
    QTest::newRow("id") << SetupPanel::Id << LcdPanelKind::Id << QPoint(396, 240);
    QTest::newRow("buzzer") << SetupPanel::Buzzer << LcdPanelKind::Buzzer << QPoint(504, 240);
}

void SetupLayoutTest::PanelsStandInTheirPlaces()
{
    QFETCH(SetupPanel, panel);
    QFETCH(LcdPanelKind, kind);
    QFETCH(QPoint, place);
    const SetupPanelForm& form = SetupPanels()[static_cast<std::size_t>(panel)];
    QCOMPARE(form.kind, kind);
    QCOMPARE(form.place, place);
}

void SetupLayoutTest::NothingLeavesTheFormOrOverlaps()
{
    using namespace setup_layout;
    std::vector<QRect> places = {NameLabel, NameBox, List, PicturePlace};
    for (const SetupButtonForm& form : SetupButtons()) {
        if (!form.place.isEmpty() && form.button != SetupButton::DataDisplay)
            places.push_back(form.place);
    }
    for (const SetupPanelForm& form : SetupPanels())
        places.emplace_back(form.place, LcdLayoutOf(form.kind).size);
    const QRect form(QPoint(), Form);
    for (std::size_t i = 0; i < places.size(); ++i) {
        QVERIFY(form.contains(places[i]));
        for (std::size_t j = 0; j < i; ++j)
            QVERIFY(!places[i].intersects(places[j]));
    }
    QVERIFY(form.contains(LeftGroup) && form.contains(RightGroup));
    QVERIFY(!LeftGroup.intersects(RightGroup));
    QVERIFY(PictureHotArea.contains(PlaceOf(SetupButton::DataDisplay, false)));
}

void SetupLayoutTest::TablesFollowTheirNumbers()
{
    for (std::size_t i = 0; i < SetupPanels().size(); ++i)
        QCOMPARE(static_cast<std::size_t>(SetupPanels()[i].panel), i);
    for (std::size_t i = 0; i < SetupButtons().size(); ++i)
        QCOMPARE(static_cast<std::size_t>(SetupButtons()[i].button), i);
    for (std::size_t i = 0; i < StepRules().size(); ++i)
        QCOMPARE(static_cast<std::size_t>(StepRules()[i].step), i);
}

QTEST_APPLESS_MAIN(SetupLayoutTest)
#include "SetupLayoutTest.moc"
