#include "setup/view/ProfileName.h"
#include "setup/view/ShownState.h"
#include "support/LessPower.h"
#include "support/TemporaryFolder.h"

#include <QFileInfo>
#include <QTest>

#include <filesystem>

using namespace skeldon;
using namespace skeldon::test;

namespace {

/// Puts a folder in the place of a file, which nobody can write or delete as one.
void PutFolderInPlace(const std::filesystem::path& path)
{
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
}

/// Everything in the folder of the folder of profiles, and beside that.
QStringList AllAround(const CProfileFolder& folder)
{
    QStringList paths;
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(folder.Profiles() / "../../.."))
        paths << QString::fromStdString(entry.path().string());
    paths.sort();
    return paths;
}

/// Characters that some file system or code page refuses, takes for others, or uses for its own
/// ends; surrogates among them that are no half of a pair.
QStringList OddCharacters()
{
    QStringList characters;
    for (char16_t c = 0; c <= 0x80; ++c)
        characters << QString(QChar(c));
    for (const char16_t c :
         {u'\u0131',        u'\u017F',        u'\u200B',        u'\u200E',        u'\u202E',
          u'\u2044',        u'\u2215',        u'\u2216',        u'\u301C',        u'\uFE68',
          u'\uFEFF',        u'\uFF0E',        u'\uFF0F',        u'\uFF3C',        u'\uFF5E',
          u'\uFFFD',        u'\uFFFF',        char16_t(0xD800), char16_t(0xDBFF), char16_t(0xDC00),
          char16_t(0xDC2F), char16_t(0xDC80), char16_t(0xDCAF), char16_t(0xDCFF), char16_t(0xDFFF)})
        characters << QString(QChar(c));
    characters << QStringLiteral("\U0001F4E6") << QStringLiteral("\U0010FFFF");
    return characters;
}

} // namespace

/// What the setup view makes of folders that are not as it left them, and of names that no file
/// has.
class ProfilesOnDiskTest : public QObject
{
    Q_OBJECT

private slots:
    void ForeignNamesKeepTheirBytes();
    void NamesInTwoLetterCasesBlockEachOther();
    void ExtensionInCapitalsIsNoSecondFile();
    void DuplicateNumbersAreListedAndBlockUpdate();
    void ForeignFilesAreNotListed();
    void MissingFolderIsAnEmptyList();
    void TwoHundredProfilesAreListed();
    void AddThatFailsChangesNothing_data();
    void AddThatFailsChangesNothing();
    void UpdateThatFailsChangesNothing();
    void DeleteThatFailsLeavesTheList();
    void FolderThatCanNotBeWrittenStaysAsItIs();
    void FileInPlaceOfTheFolderIsAnEmptyList();
    void NoCharacterLeadsOutOfTheFolder();
    void NamesThatNoFileHasAreNotMixedUp();
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

void ProfilesOnDiskTest::ExtensionInCapitalsIsNoSecondFile()
{
    CCrateShown state;
    const std::filesystem::path profiles = state.m_folder.Profiles();
    // As a memory stick may have it.
    std::filesystem::rename(profiles / "crate.skp", profiles / "crate.SKP");
    state.SetListMode(ListMode::Profiles);
    state.Choose("01 crate");
    state.m_current.Hazard = 10;
    QVERIFY(!state.Update());
    QCOMPARE(state.m_folder.Files(), QStringList("crate.SKP"));
    // What was received came from no file.
    state.TakeReceived({});
    state.m_current.Hazard = 20;
    QVERIFY(state.CanUpdate());
    QVERIFY(!state.Update());
    QCOMPARE(state.m_folder.Files(), QStringList("crate.SKP"));
    state.SetListMode(ListMode::Profiles);
    state.Choose("00 crate");
    QCOMPARE(state.m_current.Hazard, 20);
    QVERIFY(!state.Delete());
    QVERIFY(state.m_folder.Files().isEmpty());
    QCOMPARE(state.m_lines.GetCount(), 0);
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
    CShown state(folder);
    state.Create("", number);
    state.m_strName = name;
    const CMeasureCondition before = state.m_current;
    const QStringList there = AllAround(folder);
    QVERIFY(state.Add());
    QCOMPARE(AllAround(folder), there);
    QVERIFY(state.m_current.SameConditions(before));
    QCOMPARE(state.m_current.ProfileName, before.ProfileName);
    QCOMPARE(state.m_nListSel, -1);
    QCOMPARE(state.m_store.GetCount(), 0);
}

void ProfilesOnDiskTest::UpdateThatFailsChangesNothing()
{
    CCrateShown state;
    PutFolderInPlace(state.m_folder.Profiles() / "crate.skp");
    state.m_current.SerialNo = 4;
    QVERIFY(state.Update());
    QCOMPARE(state.Texts(), QStringList("01 crate"));
    QCOMPARE(state.m_saved.SerialNo, 1);
    QCOMPARE(state.m_store.GetAt(0).SerialNo, 1);
    QVERIFY(state.CanUpdate());
}

void ProfilesOnDiskTest::DeleteThatFailsLeavesTheList()
{
    CCrateShown state;
    PutFolderInPlace(state.m_folder.Profiles() / "crate.skp");
    QVERIFY(state.Delete());
    QCOMPARE(state.Texts(), QStringList("01 crate"));
    QCOMPARE(state.m_nListSel, 0);
    QVERIFY(state.m_bConditionsValid);
}

void ProfilesOnDiskTest::FolderThatCanNotBeWrittenStaysAsItIs()
{
    CCrateShown state;
    const std::filesystem::path profiles = state.m_folder.Profiles();
    SetMode(profiles / "../../..", 0755);
    SetMode(profiles, 0555);
    const QStringList there = AllAround(state.m_folder);
    state.m_current.Hazard = 10;
    {
        const CLessPower asSomebody;
        QVERIFY(state.CanUpdate() && state.CanDelete());
        QVERIFY(state.Update());
        QVERIFY(state.Delete());
        state.Create("box", 2);
        QVERIFY(state.CanAdd());
        QVERIFY(state.Add());
        // It can still be read.
        state.SetListMode(ListMode::Profiles);
    }
    QCOMPARE(AllAround(state.m_folder), there);
    QCOMPARE(state.m_folder.Read("crate").Hazard, 0);
    QCOMPARE(state.Texts(), QStringList("01 crate"));
}

void ProfilesOnDiskTest::FileInPlaceOfTheFolderIsAnEmptyList()
{
    const CProfileFolder folder;
    std::filesystem::remove(folder.Profiles());
    WriteText(folder.Profiles(), "precious");
    CShown state(folder);
    QCOMPARE(state.m_lines.GetCount(), 0);
    state.Create("box", 1);
    QVERIFY(state.CanAdd());
    QVERIFY(state.Add());
    QCOMPARE(ReadText(folder.Profiles()), std::string("precious"));
    QCOMPARE(state.m_nListSel, -1);
    QVERIFY(state.CanAdd());
}

void ProfilesOnDiskTest::NoCharacterLeadsOutOfTheFolder()
{
    const CProfileFolder folder;
    CShown state(folder);
    state.Create("", 1);
    QStringList added;
    QStringList tried = {QStringLiteral("."), QStringLiteral(".."), QStringLiteral("/"),
                         QStringLiteral("\\"), QStringLiteral("~")};
    for (const QString& character : OddCharacters())
        tried << QLatin1Char('a') + character + QLatin1Char('b');
    for (const QString& name : tried) {
        state.m_strName = name;
        if (state.CanAdd() && !state.Add())
            added << name;
    }
    QStringList files;
    for (const QString& path : AllAround(folder)) {
        if (!QFileInfo(path).isDir())
            files << path;
    }
    QCOMPARE(files.size(), added.size());
    // Whatever was stored is there under the very name that it was given.
    state.SetListMode(ListMode::Profiles);
    QStringList names;
    for (int i = 0; i < state.m_store.GetCount(); ++i)
        names << NameText(state.m_store.GetAt(i).ProfileName);
    names.sort();
    added.sort();
    QCOMPARE(names, added);
    QVERIFY(added.contains(QStringLiteral("a\u301Cb")) && added.contains(QStringLiteral("a\\b")));
    QVERIFY(!added.contains(QStringLiteral("a/b")) && !added.contains(QStringLiteral("..")));
}

void ProfilesOnDiskTest::NamesThatNoFileHasAreNotMixedUp()
{
    CCrateShown state;
    // Either would be written with the same bytes.
    for (const char16_t half : {char16_t(0xD800), char16_t(0xD801)}) {
        state.m_strName = QString(QChar(half));
        QVERIFY(state.CanAdd());
        QVERIFY(state.Add());
    }
    // What was received takes the name in the box, and is stored by it.
    for (const QString& name : {QString(QChar(u'\xD800')), QStringLiteral("..")}) {
        state.m_strName = name;
        state.TakeReceived(state.m_current);
        state.m_current.Hazard += 10;
        [[maybe_unused]] const std::error_code ignored = state.Update();
    }
    QCOMPARE(state.m_folder.Files(), QStringList("crate.skp"));
    QCOMPARE(state.m_folder.Read("crate").Hazard, 0);
}

QTEST_APPLESS_MAIN(ProfilesOnDiskTest)
#include "ProfilesOnDiskTest.moc"
