#include "setup/conditions/ProfileStore.h"
#include "support/LessPower.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <stdexcept>

namespace skeldon::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

/// A store over two folders of its own.
class ProfileStoreTest : public testing::Test
{
protected:
    ProfileStoreTest()
    {
        fs::create_directories(m_folder / "P");
        fs::create_directories(m_folder / "T");
    }

    void Put(const std::string& name, const std::string& text) const
    {
        WriteText(m_folder / ("P/" + name), text);
    }

    [[nodiscard]] std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        names.reserve(static_cast<std::size_t>(m_store.GetCount()));
        for (int i = 0; i < m_store.GetCount(); ++i)
            names.push_back(m_store.GetAt(i).ProfileName);
        return names;
    }

    /// Fills the store with entries of those host numbers.
    void Number(const std::vector<int>& numbers)
    {
        m_store.SetSize(static_cast<int>(numbers.size()));
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            CProfile entry;
            entry.SerialNo = numbers[i];
            entry.ProfileName = std::to_string(i);
            m_store.SetAt(static_cast<int>(i), entry);
        }
    }

    CTemporaryFolder m_folder;
    CProfileStore m_store{ProfileFolders{m_folder / "P", m_folder / "T"}};
};

TEST_F(ProfileStoreTest, ListsByNameWithoutRegardToCase)
{
    for (const char* name : {"b.skp", "A.skp", "C.skp", "a b.skp", "B1.skp", "10.skp", "9.skp"})
        Put(name, "");
    EXPECT_TRUE(m_store.Load(false));
    EXPECT_THAT(Names(), ElementsAre("10", "9", "A", "a b", "b", "B1", "C"));
}

TEST_F(ProfileStoreTest, OrdersNamesThatDifferInCaseByTheirBytes)
{
    for (const char* name : {"a.skp", "A.skp", "A.SKP", "a.Skp"})
        Put(name, "");
    m_store.Load(false);
    std::vector<std::string> files;
    files.reserve(static_cast<std::size_t>(m_store.GetCount()));
    for (int i = 0; i < m_store.GetCount(); ++i)
        files.push_back(m_store.GetAt(i).FilePath.filename().string());
    EXPECT_THAT(files, ElementsAre("A.SKP", "A.skp", "a.Skp", "a.skp"));
}

TEST_F(ProfileStoreTest, TakesTheExtensionInAnyCaseAndNothingElse)
{
    for (const char* name : {"a.skp", "b.SKP", "c.sKp", "d.skpx", "e.sk", "f", "skp", "g.skp.bak",
                             "h.skd", "i.skp~", ".skp"})
        Put(name, "");
    m_store.Load(false);
    EXPECT_THAT(Names(), ElementsAre("", "a", "b", "c"));
}

TEST_F(ProfileStoreTest, ListsRegularFilesWithLinksFollowed)
{
    Put("a.skp", "[Configuration]\nSerialNo=7\n");
    fs::create_symlink("a.skp", m_folder / "P/link.skp");
    fs::create_symlink("none", m_folder / "P/dangling.skp");
    fs::create_symlink("/dev/zero", m_folder / "P/device.skp");
    fs::create_symlink("loop.skp", m_folder / "P/loop.skp");
    fs::create_directories(m_folder / "P/folder.skp");
    EXPECT_TRUE(m_store.Load(false));
    EXPECT_THAT(Names(), ElementsAre("a", "link"));
    EXPECT_EQ(m_store.GetAt(1).SerialNo, 7);
}

TEST_F(ProfileStoreTest, SaysWhetherAnythingWasFound)
{
    EXPECT_FALSE(m_store.Load(false));
    Put("a.txt", "");
    EXPECT_FALSE(m_store.Load(false));
    fs::create_directories(m_folder / "P/folder.skp");
    EXPECT_TRUE(m_store.Load(false)); // found, and then passed over
    EXPECT_EQ(m_store.GetCount(), 0);
}

TEST_F(ProfileStoreTest, IsEmptyWithoutItsFolder)
{
    for (const fs::path& folder : {m_folder / "none", fs::path(), fs::path("/proc/self/mem")}) {
        CProfileStore store(ProfileFolders{folder, folder});
        store.SetSize(2);
        EXPECT_FALSE(store.Load(false)) << folder;
        EXPECT_EQ(store.GetCount(), 0) << folder;
        EXPECT_FALSE(store.Load(true)) << folder;
    }
}

TEST_F(ProfileStoreTest, ReplacesItsEntriesAtEachLoad)
{
    Put("a.skp", "");
    m_store.Load(false);
    fs::rename(m_folder / "P/a.skp", m_folder / "P/b.skp");
    m_store.Load(false);
    EXPECT_THAT(Names(), ElementsAre("b"));
    fs::remove(m_folder / "P/b.skp");
    EXPECT_FALSE(m_store.Load(false));
    EXPECT_EQ(m_store.GetCount(), 0);
}

TEST_F(ProfileStoreTest, GivesTemplatesTheHostNumberZero)
{
    WriteText(m_folder / "T/t.skp", "[Configuration]\nSerialNo=7\nThreshold=30\n");
    Put("p.skp", "[Configuration]\nSerialNo=7\n");
    EXPECT_TRUE(m_store.Load(true));
    ASSERT_THAT(Names(), ElementsAre("t"));
    EXPECT_EQ(m_store.GetAt(0).SerialNo, 0);
    EXPECT_EQ(m_store.GetAt(0).Threshold, 30);
    m_store.Load(false);
    ASSERT_THAT(Names(), ElementsAre("p"));
    EXPECT_EQ(m_store.GetAt(0).SerialNo, 7);
}

TEST_F(ProfileStoreTest, ReadsAnyNumberOfFilesAndDoubleHostNumbers)
{
    for (int i = 0; i < 120; ++i)
        Put("p" + std::to_string(1000 + i) + ".skp",
            "[Configuration]\nSerialNo=5\nThreshold=" + std::to_string(i) + "\n");
    m_store.Load(false);
    EXPECT_EQ(m_store.GetCount(), 120);
    EXPECT_EQ(m_store.FindByHostId(5), 0);
    EXPECT_EQ(m_store.GetAt(119).Threshold, 119);
}

TEST_F(ProfileStoreTest, TakesNothingOfOneFileIntoTheNext)
{
    Put("a.skp", "[Configuration]\nThreshold=30\nEndless=yes\n[KeepMode]\nExtract=16,1,1,2,1,\n"
                 "LoadProfName=x\n");
    Put("b.skp", "");
    m_store.Load(false);
    const CProfile b = m_store.GetAt(1);
    EXPECT_EQ(b.Threshold, 0);
    EXPECT_FALSE(b.Endless);
    EXPECT_TRUE(b.Extract.empty());
    EXPECT_EQ(b.LoadProfName, "");
}

TEST_F(ProfileStoreTest, ListsAFileThatCanNotBeReadByItsName)
{
    Put("a.skp", "[Configuration]\nThreshold=30\n");
    fs::create_symlink("/proc/self/mem", m_folder / "P/b.skp");
    m_store.Load(false);
    ASSERT_THAT(Names(), ElementsAre("a", "b"));
    EXPECT_EQ(m_store.GetAt(1).FilePath, m_folder / "P/b.skp");
    EXPECT_EQ(m_store.GetAt(1).Threshold, 0);
}

TEST_F(ProfileStoreTest, RepeatsTheEntryBeforeAFileThatVanished)
{
    Put("a.skp", "[Configuration]\nSerialNo=7\nThreshold=30\n");
    const auto entries =
        ReadProfiles({m_folder / "none.skp", m_folder / "P/a.skp", m_folder / "none.skp"}, false);
    ASSERT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries[0].ProfileName, "");
    EXPECT_EQ(entries[0].GetSampling(), 4); // a new object
    EXPECT_EQ(entries[1].Threshold, 30);
    EXPECT_EQ(entries[2].ProfileName, "a");
    EXPECT_EQ(entries[2].Threshold, 30);
    EXPECT_EQ(entries[2].SerialNo, 7);
}

TEST_F(ProfileStoreTest, HandsOutCopies)
{
    Number({1});
    CProfile copy = m_store.GetAt(0);
    copy.SerialNo = 2;
    EXPECT_EQ(m_store.GetAt(0).SerialNo, 1);
    m_store.SetAt(0, copy);
    copy.SerialNo = 3;
    EXPECT_EQ(m_store.GetAt(0).SerialNo, 2);
}

TEST_F(ProfileStoreTest, GrowsByOne)
{
    Number({1, 2});
    m_store.SetSize(m_store.GetCount() + 1);
    CProfile added;
    added.SerialNo = 9;
    m_store.SetAt(m_store.GetCount() - 1, added);
    EXPECT_EQ(m_store.GetCount(), 3);
    EXPECT_EQ(m_store.FindByHostId(9), 2);
    EXPECT_EQ(m_store.GetAt(1).SerialNo, 2);
}

TEST_F(ProfileStoreTest, RefusesAnIndexOfNoEntry)
{
    Number({1});
    EXPECT_THROW((void)m_store.GetAt(1), std::out_of_range);
    EXPECT_THROW((void)m_store.GetAt(-1), std::out_of_range);
    EXPECT_THROW(m_store.SetAt(1, CProfile()), std::out_of_range);
    EXPECT_THROW((void)m_store.RemoveAt(1), std::out_of_range);
}

TEST_F(ProfileStoreTest, RemovesFileAndEntryAndKeepsTheOrder)
{
    for (const char* name : {"a.skp", "b.skp", "c.skp"})
        Put(name, "");
    m_store.Load(false);
    EXPECT_FALSE(m_store.RemoveAt(1));
    EXPECT_THAT(Names(), ElementsAre("a", "c"));
    EXPECT_FALSE(fs::exists(m_folder / "P/b.skp"));
    EXPECT_TRUE(fs::exists(m_folder / "P/a.skp") && fs::exists(m_folder / "P/c.skp"));
}

TEST_F(ProfileStoreTest, RemovesAnEntryWhoseFileIsGoneOrThatHasNone)
{
    Put("a.skp", "");
    m_store.Load(false);
    m_store.SetSize(2);
    fs::remove(m_folder / "P/a.skp");
    EXPECT_FALSE(m_store.RemoveAt(0));
    EXPECT_FALSE(m_store.RemoveAt(0));
    EXPECT_EQ(m_store.GetCount(), 0);
}

TEST_F(ProfileStoreTest, KeepsEntryAndFileWhenADeleteFails)
{
    Put("a.skp", "");
    m_store.Load(false);
    fs::remove(m_folder / "P/a.skp");
    fs::create_directories(m_folder / "P/a.skp");
    EXPECT_EQ(m_store.RemoveAt(0), std::errc::is_a_directory);
    EXPECT_THAT(Names(), ElementsAre("a"));
    EXPECT_TRUE(fs::is_directory(m_folder / "P/a.skp"));
}

TEST_F(ProfileStoreTest, TellsWhyAFileOfAReadOnlyFolderStays)
{
    Put("a.skp", "");
    m_store.Load(false);
    SetMode(m_folder.Path(), 0755);
    SetMode(m_folder / "P", 0555);
    {
        const CLessPower user;
        EXPECT_EQ(m_store.RemoveAt(0), std::errc::permission_denied);
    }
    SetMode(m_folder / "P", 0755);
    EXPECT_THAT(Names(), ElementsAre("a"));
    EXPECT_TRUE(fs::exists(m_folder / "P/a.skp"));
}

TEST_F(ProfileStoreTest, FindsTheFirstEntryOfAHostNumber)
{
    EXPECT_EQ(m_store.FindByHostId(0), -1);
    EXPECT_EQ(m_store.FindByHostId(1), -1);
    Number({3, 5, 0, 5});
    EXPECT_EQ(m_store.FindByHostId(5), 1);
    EXPECT_EQ(m_store.FindByHostId(0), 2);
    EXPECT_EQ(m_store.FindByHostId(4), -1);
}

/// The host numbers 1 to 99 without `except`.
std::vector<int> AllBut(int except)
{
    std::vector<int> numbers;
    for (int i = 1; i <= 99; ++i) {
        if (i != except)
            numbers.push_back(i);
    }
    return numbers;
}

TEST_F(ProfileStoreTest, FindsTheNextFreeHostNumber)
{
    EXPECT_EQ(m_store.NextFreeHostId(0, -1), 1);
    EXPECT_EQ(m_store.NextFreeHostId(41, -1), 42);
    Number({1, 2, 4});
    EXPECT_EQ(m_store.NextFreeHostId(0, -1), 3);
    EXPECT_EQ(m_store.NextFreeHostId(3, -1), 5);
    EXPECT_EQ(m_store.NextFreeHostId(0, 2), 2); // its own old number stays reachable
    EXPECT_EQ(m_store.NextFreeHostId(2, 2), 3);
    Number(AllBut(0));
    EXPECT_EQ(m_store.NextFreeHostId(0, -1), 0);
    EXPECT_EQ(m_store.NextFreeHostId(40, -1), 40);
    EXPECT_EQ(m_store.NextFreeHostId(40, 50), 50);
    EXPECT_EQ(m_store.NextFreeHostId(50, 50), 50);
    Number(AllBut(99));
    EXPECT_EQ(m_store.NextFreeHostId(98, -1), 99);
    EXPECT_EQ(m_store.NextFreeHostId(0, -1), 99);
    EXPECT_EQ(m_store.NextFreeHostId(99, 5), 99);
    EXPECT_EQ(m_store.NextFreeHostId(150, -1), 150);
    EXPECT_EQ(m_store.NextFreeHostId(2147483647, -1), 2147483647);
}

TEST_F(ProfileStoreTest, FindsThePreviousFreeHostNumber)
{
    EXPECT_EQ(m_store.PrevFreeHostId(1, -1), 1);
    EXPECT_EQ(m_store.PrevFreeHostId(0, -1), 0);
    EXPECT_EQ(m_store.PrevFreeHostId(-2147483647 - 1, -1), -2147483647 - 1);
    EXPECT_EQ(m_store.PrevFreeHostId(99, -1), 98);
    Number({1, 2});
    EXPECT_EQ(m_store.PrevFreeHostId(3, 1), 1);
    EXPECT_EQ(m_store.PrevFreeHostId(3, -1), 3);
    EXPECT_EQ(m_store.PrevFreeHostId(4, -1), 3);
    Number(AllBut(7));
    EXPECT_EQ(m_store.PrevFreeHostId(99, -1), 7);
    EXPECT_EQ(m_store.PrevFreeHostId(7, -1), 7);
}

} // namespace
} // namespace skeldon::test
