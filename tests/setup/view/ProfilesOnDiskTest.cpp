#include "setup/view/ShownState.h"

#include <QTest>

#include <filesystem>

using namespace skeldon;
using skeldon::test::CProfileFolder;
using skeldon::test::CShown;

/// What the setup view makes of folders that are not as it left them, and of names that no file
/// has.
class ProfilesOnDiskTest : public QObject
{
    Q_OBJECT

private slots:
    void ForeignNamesKeepTheirBytes();
    void NamesInTwoLetterCasesBlockEachOther();
    void DuplicateNumbersAreListedAndBlockUpdate();
    void ForeignFilesAreNotListed();
    void MissingFolderIsAnEmptyList();
    void TwoHundredProfilesAreListed();
    void AddThatFailsChangesNothing_data();
    void AddThatFailsChangesNothing();
    void UpdateThatFailsChangesNothing();
    void DeleteThatFailsLeavesTheList();
};

void ProfilesOnDiskTest::ForeignNamesKeepTheirBytes()
{
    const CProfileFolder folder;
    folder.WriteProfile("Gl\xE4ser", "SerialNo=1\r\n");
    CShown state(folder);
    state.SelectLine(0);
    state.m_current.Hazard = 40;
    QVERIFY(state.CanUpdate());
    QVERIFY(!state.Update());
    QCOMPARE(state.m_store.GetCount(), 1);
    QCOMPARE(folder.Read("Gl\xE4ser").Hazard, 40);
    QVERIFY(!state.Delete());
    QCOMPARE(state.m_store.GetCount(), 0);
}

void ProfilesOnDiskTest::NamesInTwoLetterCasesBlockEachOther()
{
    const CProfileFolder folder;
    folder.WriteProfile("crate", "SerialNo=1\r\n");
    folder.WriteProfile("CRATE", "SerialNo=2\r\n");
    CShown state(folder);
    QCOMPARE(state.Texts(), QStringList({"01 crate", "02 CRATE"}));
    state.Choose("02 CRATE");
    state.m_current.Hazard = 10;
    QVERIFY(!state.CanUpdate());
    QVERIFY(!state.CanAdd());
    QVERIFY(!state.Delete());
    QCOMPARE(folder.Files(), QStringList("crate.skp"));
    state.Choose("01 crate");
    state.m_current.Hazard = 10;
    QVERIFY(state.CanUpdate());
}

void ProfilesOnDiskTest::DuplicateNumbersAreListedAndBlockUpdate()
{
    const CProfileFolder folder;
    folder.WriteProfile("a", "SerialNo=4\r\n");
    folder.WriteProfile("b", "SerialNo=4\r\n");
    CShown state(folder);
    QCOMPARE(state.Texts(), QStringList({"04 a", "04 b"}));
    state.Choose("04 b");
    state.m_current.Hazard = 10;
    QVERIFY(!state.CanUpdate());
    state.m_current.SerialNo = 5;
    QVERIFY(state.CanUpdate());
    QVERIFY(!state.Update());
    QCOMPARE(state.Texts(), QStringList({"04 a", "05 b"}));
}

void ProfilesOnDiskTest::ForeignFilesAreNotListed()
{
    const CProfileFolder folder;
    folder.WriteProfile("crate", "SerialNo=1\r\n");
    folder.WriteProfile("garbage", std::string("\0\xFF[[[=\n\n;", 9));
    std::filesystem::create_directory(folder.Profiles() / "sub.skp");
    std::filesystem::create_symlink("nowhere", folder.Profiles() / "gone.skp");
    for (const char* name : {"notes.txt", "skp", "x.skp.bak", ".hidden"})
        std::filesystem::copy_file(folder.Profiles() / "crate.skp", folder.Profiles() / name);
    CShown state(folder);
    QCOMPARE(state.Texts(), QStringList({"00 garbage", "01 crate"}));
}

void ProfilesOnDiskTest::MissingFolderIsAnEmptyList()
{
    const CProfileFolder folder;
    std::filesystem::remove_all(folder.Profiles().parent_path());
    CShown state(folder);
    QCOMPARE(state.m_lines.GetCount(), 0);
    state.SetListMode(ListMode::Templates);
    QCOMPARE(state.m_lines.GetCount(), 0);
    state.SetListMode(ListMode::Profiles);
    // The first profile brings the folder.
    state.Create("first", 1);
    QVERIFY(!state.Add());
    QCOMPARE(folder.Files(), QStringList("first.skp"));
}

void ProfilesOnDiskTest::TwoHundredProfilesAreListed()
{
    const CProfileFolder folder;
    for (int i = 0; i < 200; ++i)
        folder.WriteProfile("p" + std::to_string(1000 + i),
                            "SerialNo=" + std::to_string(i % 98 + 1) + "\r\n");
    CShown state(folder);
    QCOMPARE(state.m_lines.GetCount(), 200);
    QCOMPARE(state.Texts().front(), QStringLiteral("01 p1000"));
    QCOMPARE(state.Texts().back(), QStringLiteral("98 p1195"));
    state.Create("new", 1);
    QCOMPARE(state.OfferHostNumber(1).offered, 99);
    state.m_current.SerialNo = 99;
    QVERIFY(!state.Add());
    QCOMPARE(state.Texts().back(), QStringLiteral("99 new"));
    QCOMPARE(state.m_nListSel, 200);
}

void ProfilesOnDiskTest::AddThatFailsChangesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("number");
    QTest::newRow("separator") << "../../outside" << 3;
    QTest::newRow("folder above") << ".." << 3;
    QTest::newRow("root") << "/tmp/outside" << 3;
    QTest::newRow("zero byte") << QString(QChar(u'\0')) << 3;
    QTest::newRow("number too high") << "box" << 100;
    QTest::newRow("name of a folder") << "folder" << 3;
}

void ProfilesOnDiskTest::AddThatFailsChangesNothing()
{
    QFETCH(QString, name);
    QFETCH(int, number);
    const CProfileFolder folder;
    std::filesystem::create_directory(folder.Profiles() / "folder.skp");
    const auto entries = [&folder] {
        QStringList paths;
        for (const auto& entry :
             std::filesystem::recursive_directory_iterator(folder.Profiles() / "../../.."))
            paths << QString::fromStdString(entry.path().string());
        paths.sort();
        return paths;
    };
    CShown state(folder);
    state.Create("", number);
    state.m_strName = name;
    const CMeasureCondition before = state.m_current;
    const QStringList there = entries();
    QVERIFY(state.Add());
    QCOMPARE(entries(), there);
    QVERIFY(state.m_current.SameConditions(before));
    QCOMPARE(state.m_current.ProfileName, before.ProfileName);
    QCOMPARE(state.m_nListSel, -1);
    QCOMPARE(state.m_store.GetCount(), 0);
}

void ProfilesOnDiskTest::UpdateThatFailsChangesNothing()
{
    const CProfileFolder folder;
    folder.WriteProfile("crate", "SerialNo=1\r\n");
    CShown state(folder);
    state.Choose("01 crate");
    std::filesystem::remove(folder.Profiles() / "crate.skp");
    std::filesystem::create_directory(folder.Profiles() / "crate.skp");
    state.m_current.SerialNo = 4;
    QVERIFY(state.Update());
    QCOMPARE(state.Texts(), QStringList("01 crate"));
    QCOMPARE(state.m_saved.SerialNo, 1);
    QCOMPARE(state.m_store.GetAt(0).SerialNo, 1);
    QVERIFY(state.CanUpdate());
}

void ProfilesOnDiskTest::DeleteThatFailsLeavesTheList()
{
    const CProfileFolder folder;
    folder.WriteProfile("crate", "SerialNo=1\r\n");
    CShown state(folder);
    state.Choose("01 crate");
    std::filesystem::remove(folder.Profiles() / "crate.skp");
    std::filesystem::create_directory(folder.Profiles() / "crate.skp");
    QVERIFY(state.Delete());
    QCOMPARE(state.Texts(), QStringList("01 crate"));
    QCOMPARE(state.m_nListSel, 0);
    QVERIFY(state.m_bConditionsValid);
}

QTEST_APPLESS_MAIN(ProfilesOnDiskTest)
#include "ProfilesOnDiskTest.moc"
