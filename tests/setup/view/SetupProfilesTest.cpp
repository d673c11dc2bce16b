#include "controls/LcdPanel.h"
#include "controls/NameEdit.h"
#include "controls/SkinButton.h"
#include "setup/view/ProfileList.h"
#include "setup/view/SetupApp.h"

#include <QTest>

#include <filesystem>

using namespace skeldon;
using skeldon::test::CSetupApp;

/// Profiles as the setup view adds, updates and deletes them, and what reaches it from outside.
class SetupProfilesTest : public QObject
{
    Q_OBJECT

private slots:
    void AddedProfileIsSelected();
    void AddEndsWithNinetyNineProfiles();
    void FailedSaveIsTold();
    void FailedSaveUnderAnotherNumberCanBeRestored();
    void FolderThatCanNotBeWrittenIsTold();
    void UpdatedNumberMovesTheLine();
    void DeleteAsksForTheName();
    void DeletedProfileLeavesBlankReadOuts();
    void FailedDeleteIsTold();
    void ForbiddenCharactersNeverReachTheFolder();
    void TwoHundredProfilesCanBeScrolled();
    void SettingFreezesTheList();
    void EditorFollowsTheSetting();
    void CancelledEditorChangesNothing();
    void ActiveViewIsToldToTheFrame();
    void ExitClosesTheFrame();
    void DormantCommandsDoNothing();
    void TextsAreJapaneseUnderJapanese();
};

void SetupProfilesTest::AddedProfileIsSelected()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=1\r\n");
    app.m_folder.WriteProfile("drum", "SerialNo=7\r\n");
    app.Show();
    app.Click(SetupButton::Change);
    QTest::keyClicks(app.Form().m_name, QStringLiteral("box"));
    app.Click(SetupButton::Add);
    QVERIFY(app.m_prompts->m_shown.empty());
    QCOMPARE(app.Lines(), QStringList({"01 crate", "02 box", "07 drum"}));
    QCOMPARE(app.Form().m_list->currentRow(), 1);
    QCOMPARE(app.Form().m_list->item(1)->data(Qt::UserRole).toInt(), 2);
    QVERIFY(app.Button(SetupButton::Delete).isEnabled());
    QVERIFY(!app.Button(SetupButton::Add).isEnabled());
    QVERIFY(app.State().m_bEditing);
}

void SetupProfilesTest::AddEndsWithNinetyNineProfiles()
{
    CSetupApp app;
    for (int i = 1; i <= 99; ++i)
        app.m_folder.WriteProfile("p" + std::to_string(i),
                                  "SerialNo=" + std::to_string(i) + "\r\n");
    app.Show();
    app.ClickLine(3);
    app.Form().m_name->SetName(QStringLiteral("one more"));
    app.Click(SetupButton::Add);
    QCOMPARE(app.m_prompts->Boxes(),
             QStringList("No further registration is available.\nDelete unnecessary profiles."));
    QCOMPARE(app.m_prompts->m_shown.front().boxKind, BoxKind::Information);
    QCOMPARE(app.m_folder.Files().size(), 99);
}

void SetupProfilesTest::FailedSaveIsTold()
{
    CSetupApp app;
    std::filesystem::create_directory(app.m_folder.Profiles() / "box.skp");
    app.m_folder.WriteProfile("crate", "SerialNo=4\r\n");
    app.Show();
    app.Click(SetupButton::Change);
    QTest::keyClicks(app.Form().m_name, QStringLiteral("box"));
    app.Click(SetupButton::Add);
    QCOMPARE(app.m_prompts->Boxes(), QStringList("Could not save profile."));
    QCOMPARE(app.m_prompts->m_shown.front().boxKind, BoxKind::Warning);
    QCOMPARE(app.Lines(), QStringList("04 crate"));
    app.ClickLine(0);
    std::filesystem::remove(app.m_folder.Profiles() / "crate.skp");
    std::filesystem::create_directory(app.m_folder.Profiles() / "crate.skp");
    app.Click(SetupButton::Change);
    app.Press(SetupStep::HazardUp);
    app.Click(SetupButton::Update);
    QCOMPARE(app.m_prompts->Boxes().size(), 2);
    QVERIFY(app.Button(SetupButton::Update).isEnabled());
}

void SetupProfilesTest::FailedSaveUnderAnotherNumberCanBeRestored()
{
    CSetupApp app;
    std::filesystem::create_directory(app.m_folder.Profiles() / "box.skp");
    app.m_folder.WriteProfile("crate", "SerialNo=1\r\n");
    app.Show();
    app.ClickLine(0);
    app.Click(SetupButton::Change);
    app.Form().m_name->SetName(QStringLiteral("box"));
    QVERIFY(!app.Button(SetupButton::Restore).isEnabled());
    app.m_prompts->m_answers = {Answer::Yes, Answer::Ok};
    app.Click(SetupButton::Add);
    QCOMPARE(app.m_prompts->Boxes().back(), QStringLiteral("Could not save profile."));
    // The number that was agreed to stays on show, and differs from the stored one.
    QCOMPARE(app.Panel(SetupPanel::Id).Value(), 2);
    QVERIFY(app.Can(CommandId::ConditionRestore));
    QVERIFY(app.Button(SetupButton::Restore).isEnabled());
    app.Click(SetupButton::Restore);
    QCOMPARE(app.Panel(SetupPanel::Id).Value(), 1);
}

void SetupProfilesTest::FolderThatCanNotBeWrittenIsTold()
{
    CSetupApp app;
    std::filesystem::remove(app.m_folder.Profiles());
    test::WriteText(app.m_folder.Profiles(), "precious");
    app.Show();
    QVERIFY(app.Lines().isEmpty());
    app.Click(SetupButton::Change);
    QTest::keyClicks(app.Form().m_name, QStringLiteral("box"));
    app.Click(SetupButton::Add);
    QCOMPARE(app.m_prompts->Boxes(), QStringList("Could not save profile."));
    QVERIFY(app.Lines().isEmpty());
    QVERIFY(app.Button(SetupButton::Add).isEnabled());
    QCOMPARE(test::ReadText(app.m_folder.Profiles()), std::string("precious"));
}

void SetupProfilesTest::UpdatedNumberMovesTheLine()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=1\r\n");
    app.m_folder.WriteProfile("drum", "SerialNo=2\r\n");
    app.Show();
    app.ClickLine(0);
    app.Click(SetupButton::Change);
    app.Press(SetupStep::IdUp);
    QCOMPARE(app.Panel(SetupPanel::Id).Value(), 3);
    app.Click(SetupButton::Update);
    QCOMPARE(app.Lines(), QStringList({"02 drum", "03 crate"}));
    QCOMPARE(app.Form().m_list->currentRow(), 1);
    QCOMPARE(app.Form().m_name->text(), QStringLiteral("crate"));
    QVERIFY(!app.Button(SetupButton::Update).isEnabled());
    QVERIFY(app.Button(SetupButton::Change).IsPressed());
}

void SetupProfilesTest::DeleteAsksForTheName()
{
    CSetupApp app;
    app.m_folder.WriteProfile("wooden crate", "SerialNo=1\r\n");
    app.Show();
    app.ClickLine(0);
    app.m_prompts->m_answers = {Answer::No};
    app.Click(SetupButton::Delete);
    QCOMPARE(app.m_prompts->Boxes(),
             QStringList("Are you sure you want to delete \nwooden crate ?"));
    QCOMPARE(app.m_prompts->m_shown.front().boxKind, BoxKind::NoYes);
    QCOMPARE(app.m_folder.Files().size(), 1);
    QCOMPARE(app.Form().m_list->currentRow(), 0);
}

void SetupProfilesTest::DeletedProfileLeavesBlankReadOuts()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=1\r\nHazard=30\r\n");
    app.m_folder.WriteProfile("drum", "SerialNo=2\r\n");
    app.Show();
    app.m_frame.m_connected = true;
    app.ClickLine(0);
    app.Click(SetupButton::Change);
    app.m_prompts->m_answers = {Answer::Yes};
    app.Click(SetupButton::Delete);
    QCOMPARE(app.m_folder.Files(), QStringList("drum.skp"));
    QCOMPARE(app.Lines(), QStringList("02 drum"));
    QCOMPARE(app.Form().m_list->currentRow(), -1);
    QVERIFY(app.Form().m_name->text().isEmpty());
    QVERIFY(app.Panel(SetupPanel::Hazard).IsBlank());
    QVERIFY(app.Panel(SetupPanel::Id).IsBlank());
    QVERIFY(!app.Can(CommandId::StartPrompt));
    QVERIFY(app.State().m_bEditing);
    // What was on show goes on behind the blank read-outs.
    app.Press(SetupStep::HazardUp);
    QVERIFY(!app.Panel(SetupPanel::Hazard).IsBlank());
    QCOMPARE(app.Panel(SetupPanel::Hazard).Value(), 31);
}

void SetupProfilesTest::FailedDeleteIsTold()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=1\r\n");
    app.Show();
    app.ClickLine(0);
    std::filesystem::remove(app.m_folder.Profiles() / "crate.skp");
    std::filesystem::create_directory(app.m_folder.Profiles() / "crate.skp");
    app.m_prompts->m_answers = {Answer::Yes};
    app.Click(SetupButton::Delete);
    QCOMPARE(app.m_prompts->m_shown.size(), std::size_t{2});
    QCOMPARE(app.m_prompts->m_shown.back().boxKind, BoxKind::Warning);
    QVERIFY(app.m_prompts->Boxes().back().contains(QStringLiteral("crate.skp")));
    QCOMPARE(app.Lines(), QStringList("01 crate"));
    QCOMPARE(app.Form().m_list->currentRow(), 0);
    QVERIFY(!app.Panel(SetupPanel::Id).IsBlank());
}

void SetupProfilesTest::ForbiddenCharactersNeverReachTheFolder()
{
    CSetupApp app;
    app.Show();
    app.Click(SetupButton::Change);
    QTest::keyClicks(app.Form().m_name, QStringLiteral("..\\a\"*./:<>?|b"));
    QCOMPARE(app.State().m_strName, QStringLiteral("ab"));
    // A name that got into the box by another way.
    app.Form().m_name->SetName(QStringLiteral("../../b"));
    app.Click(SetupButton::Add);
    QCOMPARE(app.m_prompts->Boxes(), QStringList("Could not save profile."));
    app.Form().m_name->SetName(QStringLiteral(".."));
    app.Click(SetupButton::Add);
    QCOMPARE(app.m_prompts->Boxes().size(), 2);
    QVERIFY(app.m_folder.Files().isEmpty());
}

void SetupProfilesTest::TwoHundredProfilesCanBeScrolled()
{
    CSetupApp app;
    for (int i = 0; i < 200; ++i)
        app.m_folder.WriteProfile("p" + std::to_string(1000 + i),
                                  "SerialNo=" + std::to_string(i % 99 + 1) + "\r\n");
    app.Show();
    QCOMPARE(app.Lines().size(), 200);
    app.ClickLine(0);
    QTest::keyClick(app.Form().m_list, Qt::Key_End);
    QCOMPARE(app.Form().m_list->currentRow(), 199);
    QCOMPARE(app.Form().m_name->text(), QStringLiteral("p1197"));
    QVERIFY(app.Form().m_list->viewport()->rect().contains(
        app.Form().m_list->visualItemRect(app.Form().m_list->item(199))));
}

void SetupProfilesTest::SettingFreezesTheList()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=1\r\n");
    app.m_app->Settings().WriteInt(SystemSection, QStringLiteral("NoProfileUpdate"), 1);
    app.Show();
    app.ClickLine(0);
    QVERIFY(!app.Button(SetupButton::Delete).isEnabled());
    app.m_app->Settings().WriteInt(SystemSection, QStringLiteral("NoProfileUpdate"), 0);
    QVERIFY(!app.Button(SetupButton::Delete).isEnabled());
    app.View().OnUpdate(DocumentHint::SettingsChanged, 0);
    QVERIFY(app.Button(SetupButton::Delete).isEnabled());
}

void SetupProfilesTest::EditorFollowsTheSetting()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=1\r\n");
    app.Show();
    QStringList opened;
    const auto editor = [&opened](const char* name) {
        return [&opened, name](CMeasureCondition& condition, const CProfileStore& store,
                               QWidget* /*parent*/) {
            opened << QString::fromLatin1(name) + QString::number(store.GetCount());
            condition.Hazard += 10;
            condition.ProfileName = name;
            return true;
        };
    };
    app.View().m_wizard = editor("wizard");
    app.View().m_cardForm = editor("card");
    app.Click(SetupButton::Change);
    app.Click(SetupButton::Wizard);
    QCOMPARE(opened, QStringList("wizard1"));
    QCOMPARE(app.Form().m_name->text(), QStringLiteral("wizard"));
    QCOMPARE(app.Panel(SetupPanel::Hazard).Value(), 10);
    QVERIFY(!app.State().m_bEditing);
    QCOMPARE(app.State().m_saved.Hazard, 10);
    app.m_app->Settings().WriteInt(SystemSection, QStringLiteral("ProfileWizard"), 0);
    app.Command(CommandId::Wizard);
    QCOMPARE(opened.back(), QStringLiteral("card1"));
    QCOMPARE(app.Panel(SetupPanel::Hazard).Value(), 20);
    QVERIFY(app.Button(SetupButton::Add).isEnabled());
}

void SetupProfilesTest::CancelledEditorChangesNothing()
{
    CSetupApp app;
    app.Show();
    app.View().m_wizard = [](CMeasureCondition& condition, const CProfileStore&, QWidget*) {
        condition.Hazard = 50;
        return false;
    };
    app.Click(SetupButton::Change);
    app.Click(SetupButton::Wizard);
    QVERIFY(app.State().m_bEditing);
    QCOMPARE(app.State().m_current.Hazard, 0);
}

void SetupProfilesTest::ActiveViewIsToldToTheFrame()
{
    CSetupApp app;
    app.Show();
    app.View().OnUpdate(DocumentHint::ActiveView, static_cast<int>(ViewIndex::Display));
    QCOMPARE(app.m_frame.m_caption, QStringLiteral("(none)"));
    app.View().OnUpdate(DocumentHint::ActiveView, static_cast<int>(ViewIndex::Setup));
    QCOMPARE(app.m_frame.m_caption, QString());
    QCOMPARE(app.m_frame.m_status, QStringLiteral("(reset)"));
    app.m_frame.m_status.clear();
    app.View().OnUpdate(DocumentHint::Closing, 0);
    QVERIFY(app.m_frame.m_status.isEmpty());
}

void SetupProfilesTest::ExitClosesTheFrame()
{
    CSetupApp app;
    app.Show();
    QVERIFY(app.Can(CommandId::Exit) && app.Can(CommandId::Configuration));
    app.Command(CommandId::Exit);
    QCOMPARE(app.m_frame.m_closed, 1);
}

void SetupProfilesTest::DormantCommandsDoNothing()
{
    CSetupApp app;
    app.Show();
    const auto dormant = {CommandId::Calibrate, CommandId::AdjustTemperatureCold,
                          CommandId::AdjustTemperatureHot};
    for (const CommandId command : dormant)
        QVERIFY(!app.Can(command));
    app.m_frame.m_connected = true;
    for (const CommandId command : dormant) {
        QVERIFY(app.Can(command));
        app.Command(command);
    }
    app.Command(CommandId::AutomaticOperation);
    app.Command(CommandId::CalibrateWizard);
    app.Command(CommandId::GetData);
    QVERIFY(!app.Can(CommandId::GetData));
    QVERIFY(app.m_prompts->m_shown.empty());
    QVERIFY(!app.State().m_bConditionsValid);
}

void SetupProfilesTest::TextsAreJapaneseUnderJapanese()
{
    CSetupApp app(QStringLiteral("Japanese"));
    app.Show();
    for (const SetupButtonForm& form : SetupButtons())
        QCOMPARE(app.Button(form.button).text(), Text(form.caption));
    QCOMPARE(app.Button(SetupButton::Add).text(), QStringLiteral("追加"));
    app.Click(SetupButton::Change);
    for (int i = 0; i < 5; ++i)
        app.Press(SetupStep::StartOptionDown);
    QCOMPARE(app.m_frame.m_status, Text(StringId::StartPromptly));
    QVERIFY(app.m_frame.m_status != QStringLiteral("Promptly, start measuring"));
}

QTEST_MAIN(SetupProfilesTest)
#include "SetupProfilesTest.moc"
