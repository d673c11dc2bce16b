#include "controls/LcdPanel.h"
#include "controls/NameEdit.h"
#include "controls/RecorderPicture.h"
#include "controls/SkinButton.h"
#include "controls/SpinButton.h"
#include "setup/view/ProfileList.h"
#include "setup/view/SetupApp.h"

#include <QClipboard>
#include <QLabel>
#include <QTest>
#include <QTextDocument>

using namespace skeldon;
using skeldon::test::CSetupApp;

namespace {

constexpr std::array Conditions = {
    SetupPanel::Interval,  SetupPanel::StartOption, SetupPanel::Sampling,
    SetupPanel::Threshold, SetupPanel::Hazard,      SetupPanel::DetectOver,
    SetupPanel::Endless,   SetupPanel::Id,          SetupPanel::Buzzer,
};

/// How many of the nine read-outs of the conditions are blank.
int CountBlank(CSetupApp& app)
{
    int count = 0;
    for (const SetupPanel panel : Conditions)
        count += app.Panel(panel).IsBlank() ? 1 : 0;
    return count;
}

/// Whether the read-out shows pixels of that colour.
bool Shows(CSetupApp& app, SetupPanel panel, const QColor& colour)
{
    const QImage image = app.Panel(panel).grab().toImage();
    for (int y = 18; y < 38; ++y) {
        for (int x = 8; x < 85; ++x) {
            if (image.pixelColor(x, y) == colour)
                return true;
        }
    }
    return false;
}

int CountShownSpins(CSetupApp& app)
{
    int count = 0;
    for (const StepRule& rule : StepRules())
        count += app.Form().Spin(rule.step).isVisible() ? 1 : 0;
    return count;
}

} // namespace

/// The setup view without a recorder, by mouse and keys.
class SetupViewTest : public QObject
{
    Q_OBJECT

private slots:
    void FirstUpdateShowsProfilesAndNoConditions();
    void ControlsStandInTheirPlaces();
    void FormHasItsLines_data();
    void FormHasItsLines();
    void ClickingALineLoadsIt();
    void KeysGoThroughTheList();
    void FocusAloneSelectsNothing();
    void SelectionIsNotLost();
    void TipOfALineIsItsPlainText();
    void SelectedLineIsSeenInAnInactiveWindow();
    void SelectedLineCanBeTakenAgain();
    void EditModeShowsArrowsInYellow();
    void EditModeEndsInGreenHoweverItEnds();
    void EditingWithNothingLoadedMakesConditions();
    void ArrowsStepOnlyInEditMode();
    void StepsHaveTheirHints();
    void HeldArrowRepeatsAndSpeedsUp();
    void RestoreBringsTheSavedValuesBack();
    void TypedNameDecidesBetweenAddAndUpdate();
    void LongForeignNameIsShownWhole();
    void LongForeignNameCanOnlyBecomeShorter();
    void PressingThePressedButtonSwapsTheModes();
    void TemplateIsOfferedAFreeNumber();
    void TemplateModeAllowsAStartAlone();
    void LeavingDataDisplayButtonFollowsTheMouse();
};

void SetupViewTest::FirstUpdateShowsProfilesAndNoConditions()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=5\r\n");
    app.Show();
    QCOMPARE(app.Lines(), QStringList("05 crate"));
    QCOMPARE(app.Form().m_list->currentRow(), -1);
    QVERIFY(app.Button(SetupButton::Profile).IsPressed());
    QVERIFY(!app.Button(SetupButton::Template).IsPressed());
    QVERIFY(!app.Button(SetupButton::Change).IsPressed());
    QCOMPARE(CountBlank(app), 9);
    QVERIFY(app.Panel(SetupPanel::Records).IsBlank());
    QCOMPARE(CountShownSpins(app), 0);
    QCOMPARE(app.Form().m_label->text(), QStringLiteral("Profile"));
    QCOMPARE(app.Form().m_name->maxLength(), 32);
    for (const SetupButton button :
         {SetupButton::StartPrompt, SetupButton::StartReserved, SetupButton::Add,
          SetupButton::Update, SetupButton::Delete, SetupButton::Receive, SetupButton::Restore})
        QVERIFY(!app.Button(button).isEnabled());
    for (const SetupButton button :
         {SetupButton::Profile, SetupButton::Template, SetupButton::Change, SetupButton::Wizard})
        QVERIFY(app.Button(button).isEnabled());
    for (const SetupButton button : {SetupButton::Automatic, SetupButton::CalibrateWizard}) {
        QVERIFY(!app.Button(button).isVisible());
        QVERIFY(!app.Button(button).isEnabled());
    }
}

void SetupViewTest::ControlsStandInTheirPlaces()
{
    for (const QString& language : {QStringLiteral("English"), QStringLiteral("Japanese")}) {
        CSetupApp app(language);
        app.Show();
        QCOMPARE(app.View().size(), QSize(744, 450));
        QCOMPARE(app.Form().geometry(), QRect(2, 2, 740, 446));
        for (const SetupButtonForm& form : SetupButtons()) {
            if (!form.place.isEmpty())
                QCOMPARE(app.Button(form.button).geometry(),
                         PlaceOf(form.button, language == QLatin1String("Japanese")));
        }
        for (const SetupPanelForm& form : SetupPanels())
            QCOMPARE(app.Panel(form.panel).pos(), form.place);
        const CSetupForm& controls = app.Form();
        QCOMPARE(controls.m_label->geometry(), QRect(32, 66, 316, 28));
        QCOMPARE(controls.m_name->geometry(), QRect(32, 102, 212, 22));
        QCOMPARE(controls.m_list->geometry(), QRect(32, 132, 212, 238));
        QCOMPARE(controls.m_picture->pos(), QPoint(615, 258));
        for (const StepRule& rule : StepRules()) {
            const int down = rule.kind == StepKind::Up ? 18 : rule.kind == StepKind::Down ? 29 : 23;
            QCOMPARE(controls.Spin(rule.step).geometry(),
                     QRect(app.Panel(rule.panel).pos() + QPoint(85, down), QSize(11, 9)));
        }
        for (const QWidget* const small : std::initializer_list<QWidget*>{
                 controls.m_name, controls.m_list, &app.Panel(SetupPanel::Id)})
            QCOMPARE(small->font().pixelSize(), 12);
    }
}

void SetupViewTest::FormHasItsLines_data()
{
    QTest::addColumn<ColourRef>("face");
    QTest::newRow("light") << ColourRef{0xD8E9EC};
    QTest::newRow("older") << ColourRef{0xC8D0D4};
}

void SetupViewTest::FormHasItsLines()
{
    QFETCH(ColourRef, face);
    CSetupApp app;
    app.m_app->m_viewBaseColour = face;
    app.Show();
    const QImage form = app.Form().grab().toImage();
    const QColor plain = ToColour(face);
    QCOMPARE(form.pixelColor(8, 40), plain);
    QCOMPARE(form.pixelColor(370, 200), plain);
    const auto isLight = [&](int x, int y) {
        return form.pixelColor(x, y).lightness() > plain.lightness();
    };
    const auto isDark = [&](int x, int y) {
        return form.pixelColor(x, y).lightness() < plain.lightness();
    };
    QVERIFY(isLight(300, 0) && isLight(0, 200));
    QVERIFY(isDark(300, 445) && isDark(739, 200));
    QVERIFY(isDark(500, 33) && isLight(500, 34));
    QCOMPARE(form.pixelColor(500, 32), plain);
    QCOMPARE(form.pixelColor(500, 35), plain);
    QVERIFY(isDark(16, 200) && isDark(380, 200));
    QVERIFY(isLight(16 + 348 - 1, 200) && isLight(380 + 344 - 1, 200));
}

void SetupViewTest::ClickingALineLoadsIt()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=5\r\nThreshold=105\r\nInterval=14\r\n"
                                       "Sampling=7\r\nEndless=yes\r\nStartOpt=30\r\n");
    app.m_folder.WriteProfile("box", "SerialNo=2\r\n");
    app.Show();
    app.ClickLine(1);
    QCOMPARE(app.Form().m_name->text(), QStringLiteral("crate"));
    QCOMPARE(CountBlank(app), 0);
    QCOMPARE(app.Panel(SetupPanel::Id).Value(), 5);
    QCOMPARE(app.Panel(SetupPanel::Threshold).Value(), 105);
    QCOMPARE(app.Panel(SetupPanel::Interval).Value(), 15);
    QCOMPARE(app.Panel(SetupPanel::Sampling).Value(), 100);
    QCOMPARE(app.Panel(SetupPanel::StartOption).Value(), 30);
    QCOMPARE(app.Panel(SetupPanel::Endless).Value(), 1);
    QCOMPARE(app.Panel(SetupPanel::Buzzer).Value(), 0);
    QVERIFY(app.Button(SetupButton::Delete).isEnabled());
    QVERIFY(!app.Button(SetupButton::Update).isEnabled());
    QVERIFY(!app.Button(SetupButton::Add).isEnabled());
}

void SetupViewTest::KeysGoThroughTheList()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=5\r\n");
    app.m_folder.WriteProfile("box", "SerialNo=2\r\n");
    app.Show();
    app.ClickLine(0);
    QTest::keyClick(app.Form().m_list, Qt::Key_Down);
    QCOMPARE(app.Form().m_name->text(), QStringLiteral("crate"));
    QTest::keyClick(app.Form().m_list, Qt::Key_Home);
    QCOMPARE(app.Form().m_name->text(), QStringLiteral("box"));
}

void SetupViewTest::FocusAloneSelectsNothing()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=5\r\n");
    app.Show();
    CProfileList& list = *app.Form().m_list;
    app.Form().m_name->setFocus();
    QTest::keyClick(app.Form().m_name, Qt::Key_Tab);
    QVERIFY(list.hasFocus());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(50, 150));
    QCOMPARE(app.State().m_nListSel, -1);
    QVERIFY(!app.State().m_bConditionsValid);
    QVERIFY(list.selectedItems().isEmpty());
    QTest::keyClick(&list, Qt::Key_Space);
    QCOMPARE(app.State().m_nListSel, 0);
    QVERIFY(app.State().m_bConditionsValid);
}

void SetupViewTest::SelectionIsNotLost()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=5\r\n");
    app.Show();
    app.ClickLine(0);
    CProfileList& list = *app.Form().m_list;
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(50, 150));
    QCOMPARE(list.selectedItems().size(), 1);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier,
                      list.visualItemRect(list.item(0)).center());
    QCOMPARE(list.selectedItems().size(), 1);
    QCOMPARE(app.State().m_nListSel, 0);
}

void SetupViewTest::TipOfALineIsItsPlainText()
{
    CSetupApp app;
    app.m_folder.WriteProfile("<img src='x.svg'>  & <b>bold<", "SerialNo=5\r\n");
    app.Show();
    QTextDocument tip;
    tip.setHtml(app.Form().m_list->item(0)->toolTip());
    QCOMPARE(tip.toPlainText(), QStringLiteral("05 <img src='x.svg'>  & <b>bold<"));
    QCOMPARE(app.Form().m_list->item(0)->text(), tip.toPlainText());
}

void SetupViewTest::SelectedLineIsSeenInAnInactiveWindow()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=5\r\n");
    app.m_folder.WriteProfile("box", "SerialNo=9\r\n");
    app.Show();
    app.ClickLine(0);
    const auto backOf = [&app](int line) {
        CProfileList& list = *app.Form().m_list;
        const QRect place = list.visualItemRect(list.item(line));
        return list.viewport()->grab().toImage().pixelColor(place.right() - 8, place.center().y());
    };
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QCOMPARE(backOf(1), QColor(Qt::white));
    QVERIFY(backOf(0).lightness() < 160);
}

void SetupViewTest::SelectedLineCanBeTakenAgain()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=5\r\n");
    app.Show();
    app.ClickLine(0);
    app.Click(SetupButton::Change);
    app.Press(SetupStep::HazardUp);
    QCOMPARE(app.State().m_current.Hazard, 1);
    app.ClickLine(0);
    QCOMPARE(app.State().m_current.Hazard, 0);
    QCOMPARE(app.Panel(SetupPanel::Hazard).Value(), 0);
    QVERIFY(!app.Button(SetupButton::Change).IsPressed());
    QCOMPARE(CountShownSpins(app), 0);
}

void SetupViewTest::EditModeShowsArrowsInYellow()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=5\r\nThreshold=88\r\n");
    app.Show();
    app.ClickLine(0);
    QVERIFY(Shows(app, SetupPanel::Threshold, QColor(0, 255, 0)));
    app.Click(SetupButton::Change);
    QVERIFY(app.Button(SetupButton::Change).IsPressed());
    QVERIFY(app.View().StateOf(CommandId::ConditionChange).isChecked);
    QCOMPARE(CountShownSpins(app), 15);
    for (const SetupPanel panel : Conditions)
        QVERIFY(Shows(app, panel, QColor(255, 255, 0)));
    QVERIFY(!Shows(app, SetupPanel::Records, QColor(255, 255, 0)));
    QCOMPARE(app.State().m_current.Threshold, 88);
    app.Click(SetupButton::Change);
    QCOMPARE(CountShownSpins(app), 0);
    for (const SetupPanel panel : Conditions)
        QVERIFY(Shows(app, panel, QColor(0, 255, 0)));
}

void SetupViewTest::EditModeEndsInGreenHoweverItEnds()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=5\r\nThreshold=88\r\n");
    app.Show();
    app.View().m_wizard = [](CMeasureCondition&, const CProfileStore&, QWidget*) { return true; };
    const auto isLeft = [&app] {
        return !app.Button(SetupButton::Change).IsPressed() && CountShownSpins(app) == 0 &&
               Shows(app, SetupPanel::Threshold, QColor(0, 255, 0)) &&
               !Shows(app, SetupPanel::Threshold, QColor(255, 255, 0));
    };
    app.Click(SetupButton::Change);
    app.ClickLine(0);
    QVERIFY(isLeft());
    app.Click(SetupButton::Change);
    QVERIFY(!isLeft());
    app.Click(SetupButton::Wizard);
    QVERIFY(isLeft());
}

void SetupViewTest::EditingWithNothingLoadedMakesConditions()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=1\r\n");
    app.Show();
    QTest::keyClicks(app.Form().m_name, QStringLiteral("box"));
    QVERIFY(!app.Button(SetupButton::Add).isEnabled());
    app.Click(SetupButton::Change);
    QVERIFY(app.Button(SetupButton::Add).isEnabled());
    QCOMPARE(CountBlank(app), 0);
    QCOMPARE(app.Panel(SetupPanel::Id).Value(), 2);
    QCOMPARE(app.Panel(SetupPanel::StartOption).Value(), 5);
}

void SetupViewTest::ArrowsStepOnlyInEditMode()
{
    CSetupApp app;
    app.Show();
    app.Click(SetupButton::Change);
    app.Press(SetupStep::ThresholdUp);
    app.Press(SetupStep::ThresholdUp);
    app.Press(SetupStep::ThresholdDown);
    QCOMPARE(app.State().m_current.Threshold, 1);
    QCOMPARE(app.Panel(SetupPanel::Threshold).Value(), 1);
    QVERIFY(app.Button(SetupButton::Restore).isEnabled());
    app.Press(SetupStep::SamplingUp);
    QCOMPARE(app.Panel(SetupPanel::Sampling).Value(), 625);
    app.Press(SetupStep::Endless);
    QCOMPARE(app.Panel(SetupPanel::Endless).Value(), 1);
    // A step that was posted before the mode was left does nothing.
    app.Click(SetupButton::Change);
    emit app.Form().Stepped(SetupStep::ThresholdUp);
    QCOMPARE(app.State().m_current.Threshold, 1);
}

void SetupViewTest::StepsHaveTheirHints()
{
    CSetupApp app;
    app.Show();
    app.Click(SetupButton::Change);
    app.Press(SetupStep::StartOptionUp);
    QCOMPARE(app.m_frame.m_status, QStringLiteral("Start measuring in 6 seconds"));
    app.Press(SetupStep::ThresholdUp);
    QCOMPARE(app.m_frame.m_status, QStringLiteral("(reset)"));
    app.Press(SetupStep::Buzzer);
    QCOMPARE(app.m_frame.m_status,
             QStringLiteral("Buzzer configuration valid only with QM70 Alpha"));
    app.Press(SetupStep::DetectOver);
    QCOMPARE(app.m_frame.m_status, QStringLiteral("(reset)"));
    for (int i = 0; i < 7; ++i)
        app.Press(SetupStep::StartOptionDown);
    QCOMPARE(app.m_frame.m_status, QStringLiteral("Promptly, start measuring"));
    QCOMPARE(app.State().m_current.StartOpt, 0);
}

void SetupViewTest::HeldArrowRepeatsAndSpeedsUp()
{
    CSetupApp app;
    app.Show();
    app.Click(SetupButton::Change);
    CSpinButton& fast = app.Form().Spin(SetupStep::ThresholdUp);
    CSpinButton& slow = app.Form().Spin(SetupStep::IntervalDown);
    QTest::mousePress(&fast, Qt::LeftButton);
    QCOMPARE(fast.m_timer.interval(), 500);
    QTRY_COMPARE(app.State().m_current.Threshold, 1);
    QCOMPARE(fast.m_timer.interval(), 100);
    // The first step is none of the ten.
    QTRY_VERIFY(app.State().m_current.Threshold > 12);
    QCOMPARE(fast.m_timer.interval(), 10);
    QTest::mouseRelease(&fast, Qt::LeftButton);
    QVERIFY(!fast.m_timer.isActive());
    QTest::mousePress(&slow, Qt::LeftButton);
    QTRY_VERIFY(app.State().m_current.GetInterval() == 13);
    QCOMPARE(slow.m_timer.interval(), 100);
    QTest::mouseRelease(&slow, Qt::LeftButton);
}

void SetupViewTest::RestoreBringsTheSavedValuesBack()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=5\r\nHazard=40\r\n");
    app.Show();
    app.ClickLine(0);
    app.Click(SetupButton::Change);
    app.Press(SetupStep::HazardUp);
    app.Click(SetupButton::Restore);
    QCOMPARE(app.Panel(SetupPanel::Hazard).Value(), 40);
    QVERIFY(!app.Button(SetupButton::Restore).isEnabled());
    QVERIFY(app.State().m_bEditing);
}

void SetupViewTest::TypedNameDecidesBetweenAddAndUpdate()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=5\r\n");
    app.Show();
    app.ClickLine(0);
    app.Click(SetupButton::Change);
    app.Press(SetupStep::HazardUp);
    QVERIFY(app.Button(SetupButton::Update).isEnabled());
    app.Form().m_name->setFocus();
    QTest::keyClick(app.Form().m_name, Qt::Key_End);
    QTest::keyClicks(app.Form().m_name, QStringLiteral("/s"));
    QCOMPARE(app.State().m_strName, QStringLiteral("crates"));
    QVERIFY(!app.Button(SetupButton::Update).isEnabled());
    QVERIFY(app.Button(SetupButton::Add).isEnabled());
    QTest::keyClicks(app.Form().m_name, QString(40, QLatin1Char('x')));
    QCOMPARE(app.State().m_strName.size(), 32);
}

void SetupViewTest::LongForeignNameIsShownWhole()
{
    CSetupApp app;
    const std::string name(50, 'n');
    app.m_folder.WriteProfile(name, "SerialNo=5\r\n");
    app.m_folder.WriteProfile("crate", "SerialNo=6\r\n");
    app.Show();
    app.ClickLine(0);
    QCOMPARE(app.Form().m_name->text().size(), 50);
    app.Click(SetupButton::Change);
    app.Press(SetupStep::HazardUp);
    app.Click(SetupButton::Update);
    QCOMPARE(app.m_folder.Read(name).Hazard, 1);
    app.ClickLine(1);
    QCOMPARE(app.Form().m_name->maxLength(), 32);
}

void SetupViewTest::LongForeignNameCanOnlyBecomeShorter()
{
    CSetupApp app;
    app.m_folder.WriteProfile(std::string(50, 'n'), "SerialNo=5\r\n");
    app.Show();
    app.ClickLine(0);
    CNameEdit& name = *app.Form().m_name;
    name.setFocus();
    QTest::keyClick(&name, Qt::Key_End);
    for (int i = 0; i < 10; ++i)
        QTest::keyClick(&name, Qt::Key_Backspace);
    QTest::keyClicks(&name, QStringLiteral("xyz"));
    QCOMPARE(app.State().m_strName, QString(40, QLatin1Char('n')));
    name.setSelection(3, 2);
    QTest::keyClicks(&name, QStringLiteral("x"));
    QTest::keyClick(&name, Qt::Key_Delete);
    QCOMPARE(app.State().m_strName, QString(38, QLatin1Char('n')));
    QGuiApplication::clipboard()->setText(QString(36, QLatin1Char('y')));
    name.selectAll();
    name.paste();
    QCOMPARE(app.State().m_strName, QString(38, QLatin1Char('n')));
    name.selectAll();
    QTest::keyClick(&name, Qt::Key_Delete);
    QTest::keyClicks(&name, QString(40, QLatin1Char('x')));
    QCOMPARE(app.State().m_strName, QString(32, QLatin1Char('x')));
}

void SetupViewTest::PressingThePressedButtonSwapsTheModes()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=5\r\n");
    app.m_folder.WriteTemplate("sea", "");
    app.Show();
    app.ClickLine(0);
    app.Click(SetupButton::Profile);
    QCOMPARE(app.Lines(), QStringList("sea"));
    QVERIFY(!app.Button(SetupButton::Profile).IsPressed());
    QVERIFY(app.Button(SetupButton::Template).IsPressed());
    QVERIFY(app.View().StateOf(CommandId::ViewTemplate).isChecked);
    QVERIFY(!app.View().StateOf(CommandId::ViewProfile).isChecked);
    QCOMPARE(app.Form().m_label->text(), QStringLiteral("Template"));
    QVERIFY(app.Form().m_name->isReadOnly());
    QVERIFY(app.Form().m_name->text().isEmpty());
    QCOMPARE(app.Panel(SetupPanel::Id).Value(), 5);
    app.Click(SetupButton::Template);
    QCOMPARE(app.Lines(), QStringList("05 crate"));
    QVERIFY(app.Button(SetupButton::Profile).IsPressed());
    QVERIFY(!app.Form().m_name->isReadOnly());
    QCOMPARE(app.Form().m_list->currentRow(), -1);
}

void SetupViewTest::TemplateIsOfferedAFreeNumber()
{
    CSetupApp app;
    app.m_folder.WriteTemplate("sea", "SerialNo=4\r\nHazard=20\r\n");
    app.Show();
    app.Click(SetupButton::Template);
    app.ClickLine(0);
    QCOMPARE(app.Panel(SetupPanel::Id).Value(), 0);
    QCOMPARE(app.Panel(SetupPanel::Hazard).Value(), 20);
    app.Click(SetupButton::Profile);
    QCOMPARE(app.Form().m_name->text(), QStringLiteral("sea"));
    app.m_prompts->m_answers = {Answer::No, Answer::Yes};
    app.Click(SetupButton::Add);
    QCOMPARE(app.m_prompts->Boxes(),
             QStringList("Host number (ID) 0 is not allowed. Are you sure you want to register "
                         "it as 1 ?"));
    QCOMPARE(app.m_prompts->m_shown.front().boxKind, BoxKind::NoYes);
    QVERIFY(app.m_folder.Files().isEmpty());
    QCOMPARE(app.Panel(SetupPanel::Id).Value(), 0);
    app.Click(SetupButton::Add);
    QCOMPARE(app.Lines(), QStringList("01 sea"));
    QCOMPARE(app.Form().m_list->currentRow(), 0);
    QCOMPARE(app.Panel(SetupPanel::Id).Value(), 1);
    QCOMPARE(app.m_folder.Read("sea").Hazard, 20);
}

void SetupViewTest::TemplateModeAllowsAStartAlone()
{
    CSetupApp app;
    app.m_folder.WriteTemplate("sea", "");
    app.Show();
    app.m_frame.m_connected = true;
    app.Click(SetupButton::Template);
    QVERIFY(!app.Can(CommandId::StartPrompt));
    app.ClickLine(0);
    QVERIFY(app.Can(CommandId::StartPrompt));
    QVERIFY(!app.Can(CommandId::AddProfile) && !app.Can(CommandId::UpdateProfile) &&
            !app.Can(CommandId::DeleteProfile));
    QVERIFY(app.Can(CommandId::Receive));
}

void SetupViewTest::LeavingDataDisplayButtonFollowsTheMouse()
{
    CSetupApp app;
    app.Show();
    const CSkinButton& button = app.Button(SetupButton::DataDisplay);
    QWindow* const window = app.View().windowHandle();
    const auto move = [&](QPoint onForm) {
        QTest::mouseMove(window, app.Form().mapTo(&app.View(), onForm));
        QCoreApplication::processEvents();
    };
    QVERIFY(!button.isVisible());
    move({660, 260});
    QVERIFY(button.isVisible());
    move({660, 310}); // on the button
    QVERIFY(button.isVisible());
    move({660, 366});
    QVERIFY(button.isVisible());
    move({660, 367});
    QVERIFY(!button.isVisible());
    move({615, 258});
    QVERIFY(button.isVisible());
    move({400, 80}); // on a read-out
    QVERIFY(!button.isVisible());
    move({704, 300});
    QVERIFY(button.isVisible());
    app.Click(SetupButton::DataDisplay);
    QCOMPARE(app.m_frame.m_switched, std::vector{ViewIndex::Display});
    app.View().OnUpdate(DocumentHint::ActiveView, static_cast<int>(ViewIndex::Setup));
    QVERIFY(!button.isVisible());
}

QTEST_MAIN(SetupViewTest)
#include "SetupViewTest.moc"
