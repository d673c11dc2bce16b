// Reader and writers against the plain way, on random and spoilt files.
#include "base/ZoneScope.h"
#include "files/DataFile.h"
#include "files/PlainReader.h"
#include "files/PlainWriter.h"
#include "files/RandomFiles.h"
#include "files/StringOutput.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace skeldon::test {
namespace {

constexpr CalendarSeconds SaveTime = 1234567890;

/// Reads `text` both ways. True if it is a data file.
bool ReadBothWays(const std::filesystem::path& path, const std::string& text)
{
    WriteText(path, text);
    CMeasureData data;
    data.m_title = text.size() % 2 == 0 ? "" : "of an earlier file";
    const PlainFile plain = PlainRead(text, data.m_title);
    const DataFileResult result = ReadFile(data, path);
    EXPECT_EQ(static_cast<bool>(result), plain.isGood) << DescribeDataFileError(result);
    if (result && plain.isGood)
        ExpectSame(data, plain);
    else
        EXPECT_TRUE(data.IsEmpty());
    return plain.isGood;
}

TEST(ReadFileAgainstPlain, ReadsThousandsOfOddFilesAlike)
{
    const CTemporaryFolder folder;
    int good = 0;
    for (std::uint64_t seed = 1; seed <= 2000; ++seed) {
        SCOPED_TRACE(seed);
        const CZoneScope zone(Zone::All[seed % std::size(Zone::All)]);
        CRandomFiles random(seed);
        const std::uint64_t rarities[] = {4, 20, 100, 1'000'000};
        std::string text = random.Text(random.Below(30), rarities[seed % 4]);
        if (seed % 3 == 0)
            random.Spoil(text);
        good += ReadBothWays(folder / "a.skd", text) ? 1 : 0;
        if (HasFailure())
            return;
    }
    // The random texts would prove little if few of them were data files.
    EXPECT_GT(good, 1000);
}

TEST(ReadFileAgainstPlain, ReadsFilesOfManyBlocksAlike)
{
    const CTemporaryFolder folder;
    for (std::uint64_t seed = 1; seed <= 4; ++seed) {
        SCOPED_TRACE(seed);
        CRandomFiles random(seed);
        std::string text = random.Text(24000, seed % 2 == 0 ? 1000 : 20);
        if (seed >= 3) {
            // A line longer than a block that says nothing, and a record without an end.
            text.insert(text.find("<record>", text.size() / 3), std::string(1'300'000, '<') + "\n");
            text.insert(text.find("<x>", text.size() / 4 * 3), "<record>\r\n");
        }
        ASSERT_GT(text.size(), 4'500'000U); // so that a second thread takes part
        EXPECT_TRUE(ReadBothWays(folder / "a.skd", text));
        if (HasFailure())
            return;
    }
}

TEST(ReadFileAgainstPlain, ReadsAFileCutAnywhereAlike)
{
    const CTemporaryFolder folder;
    CRandomFiles random(7);
    CMeasureData data = random.Data(6, false);
    data.AddRecord(CMeasureRecord(SaveTime));
    const std::string text = PlainDataFile(data, SaveTime);
    for (std::size_t length = 0; length <= text.size(); length += 1 + length % 3) {
        SCOPED_TRACE(length);
        ReadBothWays(folder / "a.skd", text.substr(0, length));
        if (HasFailure())
            return;
    }
}

TEST(ReadFileAgainstPlain, ReadsEveryChangeOfOneByteInARecordAlike)
{
    const CTemporaryFolder folder;
    CRandomFiles random(12);
    CMeasureData data;
    while (data.GetSize() < 6)
        data.AddRecords(random.Data(3, false).Records());
    data.m_hasHumidity = true;
    const std::string text = PlainDataFile(data, SaveTime);
    const std::size_t begin = text.find("\t\t<record>");
    const std::size_t end = text.find("\t\t<record>", begin + 1);
    for (std::size_t at = begin; at < end; ++at) {
        SCOPED_TRACE(at);
        std::string changed = text;
        for (const char c : std::string_view("\n\r\0 9-.<ex", 10)) {
            changed[at] = c;
            ReadBothWays(folder / "a.skd", changed);
        }
        ReadBothWays(folder / "a.skd", std::string(text).erase(at, 1));
        ReadBothWays(folder / "a.skd", std::string(text).insert(at, 1, text[at]));
        if (HasFailure())
            return;
    }
}

TEST(WriteFileAgainstPlain, WritesThousandsOfDataSetsAlike)
{
    for (std::uint64_t seed = 1; seed <= 1500; ++seed) {
        SCOPED_TRACE(seed);
        const CZoneScope zone(Zone::All[seed % std::size(Zone::All)]);
        CRandomFiles random(seed);
        const CMeasureData data = random.Data(40, seed % 2 == 0);
        CStringOutput output;
        ASSERT_FALSE(FormatDataFile(data, SaveTime, output));
        ASSERT_EQ(output.m_text, PlainDataFile(data, SaveTime));
    }
}

TEST(WriteFileAgainstPlain, WritesAFileOfManyPiecesAlike)
{
    const CTemporaryFolder folder;
    CRandomFiles random(8);
    CMeasureData data = random.Data(1, false);
    while (data.GetSize() < 8000)
        data.AddRecords(random.Data(100, true).Records());
    ASSERT_FALSE(WriteFile(data, folder / "a.skd", SaveTime));
    EXPECT_TRUE(ReadText(folder / "a.skd") == PlainDataFile(data, SaveTime));
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"a.skd"});
}

TEST(WriteFileAgainstPlain, WritesWhatItReadAgainToTheSameBytes)
{
    const CTemporaryFolder folder;
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        CRandomFiles random(seed);
        CMeasureData data = random.Data(40, false);
        data.m_typeNumber = 50;
        data.m_hazard = 10;
        data.m_threshold = 20;
        data.m_hostNumber = 5;
        data.m_hasHumidity = data.m_hasHumidity && !data.IsEmpty();
        const std::string text = PlainDataFile(data, SaveTime);
        WriteText(folder / "a.skd", text);
        CMeasureData read;
        read.m_title = data.m_title;
        ASSERT_TRUE(ReadFile(read, folder / "a.skd"));
        read.m_hasHumidity = data.m_hasHumidity; // unless all of its lines were deleted
        ASSERT_EQ(PlainDataFile(read, SaveTime), text);
    }
}

/// Every combination of the options.
std::vector<CsvOptions> AllOptions()
{
    std::vector<CsvOptions> all;
    for (int bits = 0; bits < 32; ++bits) {
        for (const int unit : {0, 1, 2})
            all.push_back({(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0,
                           (bits & 16) != 0, CsvUnitOf(unit)});
    }
    return all;
}

TEST(CsvAgainstPlain, WritesAllFormsOfRandomDataAlike)
{
    for (std::uint64_t seed = 1; seed <= 40; ++seed) {
        const CZoneScope zone(Zone::All[seed % std::size(Zone::All)]);
        CRandomFiles random(seed);
        const bool isWild = seed % 2 == 0;
        const CMeasureData data = random.Data(30, isWild);
        for (const CsvOptions& options : AllOptions()) {
            // What is no int can not be printed as one by the plain way.
            if (options.ravelin && isWild)
                continue;
            const CsvFilter filter{random.OneIn(4), random.OneIn(4)};
            CStringOutput output;
            ASSERT_FALSE(FormatCsv(data, options, {}, filter, output));
            ASSERT_EQ(output.m_text, PlainCsvFile(data, options, filter)) << "seed " << seed;
        }
    }
}

TEST(CsvAgainstPlain, WritesAFileOfManyPiecesAlike)
{
    const CTemporaryFolder folder;
    CRandomFiles random(9);
    CMeasureData data = random.Data(1, false);
    data.m_hasHumidity = true;
    while (data.GetSize() < 20000)
        data.AddRecords(random.Data(100, true).Records());
    ASSERT_FALSE(ExportCsv(data, folder / "a.csv", {}));
    EXPECT_TRUE(ReadText(folder / "a.csv") == PlainCsvFile(data, {}, {}));
}

} // namespace
} // namespace skeldon::test
