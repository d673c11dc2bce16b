#include "setup/view/ShownState.h"

#include <QTest>

using namespace skeldon;
using skeldon::test::CCrateShown;
using skeldon::test::CProfileFolder;
using skeldon::test::CShown;

/// The rules between conditions, profiles and list.
class SetupStateTest : public QObject
{
    Q_OBJECT

private slots:
    void NothingIsOnShowAtTheStart();
    void LinesStandInOrderOfHostNumber();
    void SelectingLoadsAndEndsEditing();
    void AddWantsANameThatIsFreeAndConditions();
    void AddOffersAFreeNumber_data();
    void AddOffersAFreeNumber();
    void AddEndsWithNinetyNineProfiles();
    void AddStoresAndSelects();
    void UpdateWantsTheLoadedName();
    void UpdateWantsADifference();
    void UpdateWantsANumberOfItsOwn();
    void UpdateMovesTheLineToItsNewNumber();
    void UpdateKeepsTheFileWhateverTheLetterCase();
    void UpdateShowsWhatWasReceived();
    void UpdateStoresAReceivedNumberZero();
    void DeleteTakesTheFileAndTheConditions();
    void ProfilesStayAsTheyAreWhereThatIsSet();
    void TemplatesCanNotBeChanged();
    void TemplateBecomesAProfile();
    void EditingStartsWithAFreeNumber();
    void RestoreLooksAtConditionsAlone();
    void ReceivedConditionsTakeTheNameInTheBox();
    void EditedConditionsBringTheirName();
};

void SetupStateTest::NothingIsOnShowAtTheStart()
{
    const CProfileFolder folder;
    const CShown state(folder);
    QVERIFY(!state.m_bConditionsValid);
    QVERIFY(!state.m_bEditing);
    QCOMPARE(state.m_nListSel, -1);
    QCOMPARE(state.m_nStoreIndex, -1);
    QVERIFY(!state.CanAdd() && !state.CanUpdate() && !state.CanDelete() && !state.CanRestore());
}

void SetupStateTest::LinesStandInOrderOfHostNumber()
{
    const CProfileFolder folder;
    folder.WriteProfile("alpha", "SerialNo=12\r\n");
    folder.WriteProfile("Beta", "SerialNo=3\r\n");
    folder.WriteProfile("beta two", "SerialNo=3\r\n");
    folder.WriteProfile("zero", "");
    CShown state(folder);
    QCOMPARE(state.Texts(), QStringList({"00 zero", "03 Beta", "03 beta two", "12 alpha"}));
    folder.WriteTemplate("sea", "SerialNo=7\r\n");
    folder.WriteTemplate("Air", "");
    state.SetListMode(ListMode::Templates);
    QCOMPARE(state.Texts(), QStringList({"Air", "sea"}));
}

void SetupStateTest::SelectingLoadsAndEndsEditing()
{
    const CProfileFolder folder;
    folder.WriteProfile("b", "SerialNo=1\r\nThreshold=25\r\n");
    folder.WriteProfile("a", "SerialNo=2\r\n");
    CShown state(folder);
    state.SetEditing(true);
    state.Choose("01 b");
    QVERIFY(!state.m_bEditing);
    QVERIFY(state.m_bConditionsValid);
    QCOMPARE(state.m_nListSel, 0);
    QCOMPARE(state.m_nStoreIndex, 1);
    QCOMPARE(state.m_strName, QStringLiteral("b"));
    QCOMPARE(state.m_current.Threshold, 25);
    QVERIFY(state.m_saved.SameConditions(state.m_current));
    QVERIFY(state.CanDelete());
    QVERIFY(!state.CanUpdate());
}

void SetupStateTest::AddWantsANameThatIsFreeAndConditions()
{
    const CProfileFolder folder;
    folder.WriteProfile("Crate", "SerialNo=1\r\n");
    CShown state(folder);
    state.m_strName = QStringLiteral("box");
    QVERIFY(!state.CanAdd());
    state.SetEditing(true);
    QVERIFY(state.CanAdd());
    state.m_strName = QStringLiteral("cRATE");
    QVERIFY(!state.CanAdd());
    state.m_strName.clear();
    QVERIFY(!state.CanAdd());
}

void SetupStateTest::AddOffersAFreeNumber_data()
{
    QTest::addColumn<int>("shown");
    QTest::addColumn<HostNumberOffer::Kind>("kind");
    QTest::addColumn<int>("offered");
    QTest::newRow("free") << 3 << HostNumberOffer::Kind::Free << 3;
    QTest::newRow("used") << 2 << HostNumberOffer::Kind::Taken << 3;
    QTest::newRow("none given") << 0 << HostNumberOffer::Kind::Taken << 3;
}

void SetupStateTest::AddOffersAFreeNumber()
{
    QFETCH(int, shown);
    const CProfileFolder folder;
    folder.WriteProfile("one", "SerialNo=1\r\n");
    folder.WriteProfile("two", "SerialNo=2\r\n");
    const HostNumberOffer offer = CShown(folder).OfferHostNumber(shown);
    QTEST(offer.kind, "kind");
    QTEST(offer.offered, "offered");
}

void SetupStateTest::AddEndsWithNinetyNineProfiles()
{
    const CProfileFolder folder;
    for (int i = 1; i <= 99; ++i)
        folder.WriteProfile("p" + std::to_string(i), "SerialNo=" + std::to_string(i) + "\r\n");
    const CShown state(folder);
    QCOMPARE(state.m_lines.GetCount(), 99);
    QCOMPARE(state.OfferHostNumber(50).kind, HostNumberOffer::Kind::NoneLeft);
    QCOMPARE(state.OfferHostNumber(0).kind, HostNumberOffer::Kind::NoneLeft);
}

void SetupStateTest::AddStoresAndSelects()
{
    const CProfileFolder folder;
    folder.WriteProfile("a", "SerialNo=1\r\n");
    folder.WriteProfile("c", "SerialNo=9\r\n");
    CShown state(folder);
    state.Create("b", 5);
    state.m_current.Hazard = 30;
    QVERIFY(!state.Add());
    QCOMPARE(state.Texts(), QStringList({"01 a", "05 b", "09 c"}));
    QCOMPARE(state.m_nListSel, 1);
    QCOMPARE(state.m_nStoreIndex, 2);
    QVERIFY(state.m_bEditing);
    QCOMPARE(folder.Read("b").SerialNo, 5);
    QCOMPARE(folder.Read("b").Hazard, 30);
    QCOMPARE(state.m_saved.ProfileName, std::string("b"));
    QVERIFY(!state.CanAdd());
    QVERIFY(!state.CanUpdate());
}

void SetupStateTest::UpdateWantsTheLoadedName()
{
    CCrateShown state;
    state.m_current.Hazard = 10;
    QVERIFY(state.CanUpdate());
    QVERIFY(!state.CanAdd());
    state.m_strName = QStringLiteral("box");
    QVERIFY(!state.CanUpdate());
    QVERIFY(state.CanAdd());
    state.m_strName = QStringLiteral("CRATE");
    QVERIFY(state.CanUpdate());
    QVERIFY(!state.CanAdd());
}

void SetupStateTest::UpdateWantsADifference()
{
    CCrateShown state;
    QVERIFY(!state.CanUpdate());
    state.m_current.ClearData = 2;
    QVERIFY(state.CanUpdate());
    state.m_current = state.m_saved;
    state.m_current.Buzzer = true;
    QVERIFY(state.CanUpdate());
}

void SetupStateTest::UpdateWantsANumberOfItsOwn()
{
    CCrateShown state(2);
    state.m_current.SerialNo = 2;
    QVERIFY(!state.CanUpdate());
    state.m_current.SerialNo = 3;
    QVERIFY(state.CanUpdate());
}

void SetupStateTest::UpdateMovesTheLineToItsNewNumber()
{
    CCrateShown state(5);
    state.m_current.SerialNo = 9;
    QVERIFY(!state.Update());
    QCOMPARE(state.Texts(), QStringList({"05 box", "09 crate"}));
    QCOMPARE(state.m_nListSel, 1);
    QCOMPARE(state.m_lines.At(1).storeIndex, state.m_nStoreIndex);
    QCOMPARE(state.m_store.GetAt(state.m_nStoreIndex).SerialNo, 9);
    QCOMPARE(state.m_folder.Read("crate").SerialNo, 9);
    QVERIFY(!state.CanUpdate());
}

void SetupStateTest::UpdateKeepsTheFileWhateverTheLetterCase()
{
    const CProfileFolder folder;
    folder.WriteProfile("Crate", "SerialNo=1\r\n");
    CShown state(folder);
    state.Choose("01 Crate");
    state.m_strName = QStringLiteral("CRATE");
    state.m_current.Hazard = 10;
    QVERIFY(!state.Update());
    QCOMPARE(folder.Files(), QStringList("Crate.skp"));
    QCOMPARE(folder.Read("Crate").Hazard, 10);
    QCOMPARE(state.Texts(), QStringList("01 Crate"));
}

void SetupStateTest::UpdateShowsWhatWasReceived()
{
    CCrateShown state;
    CMeasureCondition received;
    received.SerialNo = 8;
    state.TakeReceived(received);
    QVERIFY(!state.CanUpdate());
    state.m_current.Hazard = 10;
    QVERIFY(state.CanUpdate());
    QVERIFY(!state.Update());
    QCOMPARE(state.Texts(), QStringList("08 crate"));
    QCOMPARE(state.m_folder.Read("crate").SerialNo, 8);
}

void SetupStateTest::UpdateStoresAReceivedNumberZero()
{
    CCrateShown state;
    state.TakeReceived({});
    state.m_current.Endless = true;
    QVERIFY(state.CanUpdate());
    QVERIFY(!state.Update());
    QCOMPARE(state.m_folder.Read("crate").SerialNo, 0);
    QCOMPARE(state.Texts(), QStringList("00 crate"));
}

void SetupStateTest::DeleteTakesTheFileAndTheConditions()
{
    const CProfileFolder folder;
    folder.WriteProfile("crate", "SerialNo=1\r\nHazard=20\r\n");
    folder.WriteProfile("box", "SerialNo=2\r\n");
    CShown state(folder);
    state.SetEditing(true);
    state.Choose("01 crate");
    state.SetEditing(true);
    QCOMPARE(state.SelectedName(), QStringLiteral("crate"));
    folder.WriteProfile("late", "SerialNo=3\r\n");
    QVERIFY(!state.Delete());
    QCOMPARE(folder.Files(), QStringList({"box.skp", "late.skp"}));
    QCOMPARE(state.Texts(), QStringList({"02 box", "03 late"}));
    QCOMPARE(state.m_nListSel, -1);
    QVERIFY(state.m_strName.isEmpty());
    QVERIFY(!state.m_bConditionsValid);
    QVERIFY(state.m_bEditing);
    QCOMPARE(state.m_current.Hazard, 20);
}

void SetupStateTest::ProfilesStayAsTheyAreWhereThatIsSet()
{
    CCrateShown state;
    state.m_current.Hazard = 10;
    QVERIFY(state.CanUpdate() && state.CanDelete());
    state.m_bNoProfileUpdate = true;
    QVERIFY(!state.CanUpdate() && !state.CanDelete());
    state.m_strName = QStringLiteral("box");
    QVERIFY(!state.CanAdd());
    state.m_bNoProfileUpdate = false;
    QVERIFY(state.CanAdd());
}

void SetupStateTest::TemplatesCanNotBeChanged()
{
    const CProfileFolder folder;
    folder.WriteTemplate("sea", "SerialNo=7\r\nHazard=10\r\n");
    CShown state(folder);
    state.SetListMode(ListMode::Templates);
    state.Choose("sea");
    QVERIFY(state.m_bConditionsValid);
    QCOMPARE(state.m_current.SerialNo, 0);
    state.m_current.Hazard = 20;
    QVERIFY(!state.CanAdd() && !state.CanUpdate() && !state.CanDelete());
}

void SetupStateTest::TemplateBecomesAProfile()
{
    const CProfileFolder folder;
    folder.WriteTemplate("sea", "Hazard=10\r\n");
    CShown state(folder);
    state.m_strName = QStringLiteral("typed before");
    state.SetListMode(ListMode::Templates);
    QVERIFY(state.m_strName.isEmpty());
    state.Choose("sea");
    state.SetListMode(ListMode::Profiles);
    QCOMPARE(state.m_nListSel, -1);
    QCOMPARE(state.m_strName, QStringLiteral("sea"));
    QCOMPARE(state.m_current.Hazard, 10);
    QVERIFY(state.CanAdd());
    const HostNumberOffer offer = state.OfferHostNumber(state.m_current.SerialNo);
    QCOMPARE(offer.kind, HostNumberOffer::Kind::Taken);
    QCOMPARE(offer.offered, 1);
    state.m_current.SerialNo = offer.offered;
    QVERIFY(!state.Add());
    QCOMPARE(folder.Files(), QStringList("sea.skp"));
    QCOMPARE(state.Texts(), QStringList("01 sea"));
}

void SetupStateTest::EditingStartsWithAFreeNumber()
{
    const CProfileFolder folder;
    folder.WriteProfile("crate", "SerialNo=1\r\n");
    CShown state(folder);
    QVERIFY(state.SetEditing(true));
    QVERIFY(state.m_bConditionsValid);
    QCOMPARE(state.m_current.SerialNo, 2);
    QCOMPARE(state.m_saved.SerialNo, 2);
    QCOMPARE(state.m_current.StartOpt, 5);
    state.m_current.Hazard = 10;
    QVERIFY(!state.SetEditing(false));
    QVERIFY(!state.SetEditing(true));
    QCOMPARE(state.m_current.Hazard, 10);
}

void SetupStateTest::RestoreLooksAtConditionsAlone()
{
    const CProfileFolder folder;
    CShown state(folder);
    state.SetEditing(true);
    state.m_current.LoadProfName = "x";
    QVERIFY(!state.CanRestore());
    state.m_current.OverThreshold = true;
    QVERIFY(state.CanRestore());
    state.SetEditing(false);
    QVERIFY(!state.CanRestore());
    state.Restore();
    QVERIFY(!state.m_current.OverThreshold);
}

void SetupStateTest::ReceivedConditionsTakeTheNameInTheBox()
{
    const CProfileFolder folder;
    CShown state(folder);
    state.SetEditing(true);
    state.m_strName = QStringLiteral("box");
    CMeasureCondition received;
    received.StartOpt = -1;
    received.SerialNo = 4;
    state.TakeReceived(received);
    QVERIFY(!state.m_bEditing);
    QVERIFY(state.m_bConditionsValid);
    QVERIFY(state.IsStartOptionIllegal());
    QCOMPARE(state.m_current.ProfileName, std::string("box"));
    QCOMPARE(state.m_saved.SerialNo, 4);
    QVERIFY(state.CanAdd());
}

void SetupStateTest::EditedConditionsBringTheirName()
{
    const CProfileFolder folder;
    CShown state(folder);
    state.SetEditing(true);
    CMeasureCondition edited;
    edited.ProfileName = "Gl\xC3\xA4ser";
    edited.Threshold = 7;
    state.TakeEdited(edited);
    QVERIFY(!state.m_bEditing);
    QVERIFY(state.m_bConditionsValid);
    QCOMPARE(state.m_strName, QStringLiteral("Gläser"));
    QCOMPARE(state.m_saved.Threshold, 7);
    QVERIFY(!state.CanRestore());
}

QTEST_APPLESS_MAIN(SetupStateTest)
#include "SetupStateTest.moc"
