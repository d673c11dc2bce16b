// What is no data file, or one that no program wrote.
#include "files/FileTexts.h"
#include "support/LessPower.h"

#include <cerrno>
#include <cstdio>
#include <fstream>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace skeldon::test {
namespace {

constexpr std::size_t Mebibyte = std::size_t{1} << 20;

/// Reading `path` fails with `reason` and leaves no lines and no header.
void ExpectUnreadable(const std::filesystem::path& path, std::errc reason)
{
    SCOPED_TRACE(path);
    CMeasureData data;
    data.SetSize(3);
    data.m_modelName = "QM70";
    data.m_hazard = 5;
    data.m_fromFile = true;
    const DataFileResult result = ReadFile(data, path);
    EXPECT_EQ(result.error, DataFileError::CannotRead);
    EXPECT_EQ(result.reason, reason) << result.reason.message();
    EXPECT_EQ(DescribeDataFileError(result), result.reason.message());
    EXPECT_TRUE(data.IsEmpty());
    EXPECT_EQ(data.m_modelName, "");
    EXPECT_EQ(data.m_hazard, -1);
    EXPECT_FALSE(data.m_fromFile);
}

TEST(ReadBadFile, SaysWhyAPathCanNotBeRead)
{
    const CTemporaryFolder folder;
    WriteText(folder / "file", "x");
    std::filesystem::create_symlink("loop", folder / "loop");
    ExpectUnreadable(folder / "missing.skd", std::errc::no_such_file_or_directory);
    ExpectUnreadable("", std::errc::no_such_file_or_directory);
    ExpectUnreadable(folder / "file/a.skd", std::errc::not_a_directory);
    ExpectUnreadable(folder / "loop", std::errc::too_many_symbolic_link_levels);
    ExpectUnreadable(folder / std::string(300, 'a'), std::errc::filename_too_long);
}

TEST(ReadBadFile, SaysThatAFileMayNotBeRead)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", NewFile(""));
    std::filesystem::permissions(folder.Path(), std::filesystem::perms(0755));
    std::filesystem::permissions(folder / "a.skd", std::filesystem::perms::none);
    const CLessPower asSomebody;
    ExpectUnreadable(folder / "a.skd", std::errc::permission_denied);
}

TEST(ReadBadFile, RefusesAFolder)
{
    const CTemporaryFolder folder;
    ExpectUnreadable(folder.Path(), std::errc::is_a_directory);
    ExpectUnreadable("/proc/self", std::errc::is_a_directory);
}

TEST(ReadBadFile, RefusesPipesAndDevicesWithoutWaitingForThem)
{
    const CTemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    ExpectUnreadable(folder / "pipe", std::errc::not_supported);
    ExpectUnreadable("/dev/null", std::errc::not_supported);
    ExpectUnreadable("/dev/zero", std::errc::not_supported);
}

TEST(ReadBadFile, ReportsAReadThatFails)
{
    ExpectUnreadable("/proc/self/mem", std::errc::io_error);
}

TEST(ReadBadFile, ReadsAFileThatTellsNoSize)
{
    CMeasureData data;
    EXPECT_EQ(ReadFile(data, "/proc/self/status").error, DataFileError::NotADataFile);
}

TEST(ReadBadFile, WordsEachFailureInOneLine)
{
    for (const DataFileError error : {DataFileError::NotADataFile, DataFileError::UnknownVersion,
                                      DataFileError::ElementTooLong}) {
        const std::string text = DescribeDataFileError({error, {}});
        EXPECT_FALSE(text.empty());
        EXPECT_EQ(text.find('\n'), std::string::npos);
    }
}

/// Peak and present memory of this process in bytes.
std::size_t MemoryOf(std::string_view what)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(what))
            return std::stoul(line.substr(what.size())) * 1024;
    }
    return 0;
}

/// Writes `head`, a hole of `size` NUL bytes, and `tail`.
void WriteWithHole(const std::filesystem::path& path, const std::string& head, std::size_t size,
                   const std::string& tail)
{
    WriteText(path, head);
    std::filesystem::resize_file(path, head.size() + size);
    std::ofstream(path, std::ios::binary | std::ios::app) << tail;
}

TEST(ReadLongLine, TakesNoMemoryForALineThatSaysNothing)
{
    const CTemporaryFolder folder;
    constexpr std::size_t Hole = 256 * Mebibyte;
    WriteWithHole(folder / "a.skd", NewFile("<hazard>5</hazard>\n", Record("10") + "<record>\n"),
                  Hole, "\n<x>30</x>\n" + Record("20") + Record("40"));
    WriteText("/proc/self/clear_refs", "5"); // starts the peak anew
    const std::size_t before = MemoryOf("VmRSS:");
    CMeasureData data;
    ASSERT_TRUE(ReadFile(data, folder / "a.skd"));
    const std::size_t peak = MemoryOf("VmHWM:");
    ASSERT_GT(before, 0U);
    EXPECT_LT(peak, before + 40 * Mebibyte); // a sanitizer's own share among it
    ASSERT_EQ(data.GetSize(), 4U);
    EXPECT_EQ(data.GetRecord(0).m_x, 1.0);
    EXPECT_EQ(data.GetRecord(1).m_x, 30 * 0.1);
    EXPECT_EQ(data.GetRecord(2).m_x, 4.0);
}

TEST(ReadLongLine, SaysThatAValueIsTooLong)
{
    const CTemporaryFolder folder;
    const auto result = [&](const std::string& head) {
        WriteWithHole(folder / "a.skd", head, 3 * Mebibyte, "</x>\n" + Record());
        CMeasureData data;
        const DataFileResult read = ReadFile(data, folder / "a.skd");
        EXPECT_TRUE(read || data.IsEmpty());
        return read.error;
    };
    EXPECT_EQ(result(NewFile("", "<record>\n<x>")), DataFileError::ElementTooLong);
    EXPECT_EQ(result(NewFile("", Record() + "<record>\n<date_time>")),
              DataFileError::ElementTooLong);
    EXPECT_EQ(result(std::string(NewRoot) + "<korva_type>"), DataFileError::ElementTooLong);
    EXPECT_EQ(result(std::string(NewRoot) + "<title>"), DataFileError::ElementTooLong);
    EXPECT_EQ(result("<ravelin_data version="), DataFileError::UnknownVersion);
    EXPECT_EQ(result(""), DataFileError::NotADataFile);
    // These say all they have to say with their start.
    EXPECT_EQ(result(std::string(NewRoot) + "<endless>"), DataFileError::None);
    EXPECT_EQ(result(NewFile("", "<record>")), DataFileError::None);
    // This element has its value already, so the line is not looked at.
    EXPECT_EQ(result(NewFile("", "<record>\n<x>1</x>\n<x>")), DataFileError::None);
}

TEST(ReadLongLine, TakesNothingFromTheRestOfALongLine)
{
    const std::string junk(Mebibyte, 'j');
    const CMeasureData data =
        DataOfText(NewFile(junk + "<endless>\n<hazard>5</hazard>\n",
                           junk + "<record>\n" + Record("10") + junk + "<record>\n"));
    EXPECT_FALSE(data.m_endless);
    EXPECT_EQ(data.m_hazard, 5);
    ASSERT_EQ(data.GetSize(), 1U);
    EXPECT_EQ(data.GetRecord(0).m_x, 1.0);
}

TEST(ReadLongLine, ReadsAValueOfHalfAMebibyte)
{
    const std::string digits(Mebibyte / 2, '0');
    const CMeasureData data = DataOfText(
        NewFile("<korva_type>" + digits + "</korva_type>\n", Record(digits + "10") + Record("20")));
    EXPECT_EQ(data.m_modelName, digits);
    ASSERT_EQ(data.GetSize(), 2U);
    EXPECT_EQ(data.GetRecord(0).m_x, 1.0);
    EXPECT_EQ(data.GetRecord(1).m_x, 2.0);
}

TEST(ReadLongLine, SkipsAnyNumberOfBlanks)
{
    const std::string blanks(3 * Mebibyte, ' ');
    const CMeasureData data = DataOfText(
        blanks + NewFile(blanks + "<hazard>5</hazard>\n", blanks + Record("10") + blanks));
    EXPECT_EQ(data.m_hazard, 5);
    ASSERT_EQ(data.GetSize(), 1U);
    EXPECT_EQ(data.GetRecord(0).m_x, 1.0);
}

TEST(ReadLongFile, ReadsRecordsThatEndFarApart)
{
    // No record ends for the length of many blocks, then they end again.
    std::string records = Record("10") + "<record>\n";
    while (records.size() < 3 * Mebibyte)
        records += "<nothing>5</nothing>\n";
    const std::size_t count = 30000;
    for (std::size_t i = 0; i < count; ++i)
        records += Record(std::to_string(i));
    const CMeasureData data = DataOfText(NewFile("", records));
    ASSERT_EQ(data.GetSize(), count + 2);
    for (std::size_t i = 0; i < count; ++i)
        ASSERT_EQ(data.GetRecord(i + 1).m_x, static_cast<double>(i) * 0.1);
}

} // namespace
} // namespace skeldon::test
