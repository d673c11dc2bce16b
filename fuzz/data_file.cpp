// Any bytes as a data file: reading ends with a data set or an error; what was read and written
// again reads as the same data set, and writes as the same bytes.
#include "Check.h"
#include "files/CsvFile.h"
#include "files/DataFile.h"
#include "files/StringOutput.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

using namespace skeldon;
using test::CStringOutput;

namespace {

constexpr CalendarSeconds SomeTime = 1'700'000'000;

/// A file in memory that has a path.
class CMemoryFile
{
public:
    explicit CMemoryFile(std::string_view bytes)
        : m_descriptor(memfd_create("fuzz", 0))
    {
        FUZZ_CHECK(m_descriptor >= 0);
        FUZZ_CHECK(::write(m_descriptor, bytes.data(), bytes.size()) ==
                   static_cast<ssize_t>(bytes.size()));
    }
    ~CMemoryFile() { ::close(m_descriptor); }
    CMemoryFile(const CMemoryFile&) = delete;
    CMemoryFile& operator=(const CMemoryFile&) = delete;

    [[nodiscard]] std::filesystem::path Path() const
    {
        return "/proc/self/fd/" + std::to_string(m_descriptor);
    }

private:
    int m_descriptor;
};

std::string Written(const CMeasureData& data)
{
    CStringOutput output;
    FUZZ_CHECK(!FormatDataFile(data, SomeTime, output));
    return output.m_text;
}

CMeasureData ReadBack(std::string_view text)
{
    const CMemoryFile file(text);
    CMeasureData data;
    FUZZ_CHECK(static_cast<bool>(ReadFile(data, file.Path())));
    return data;
}

/// The format has four places for the year.
bool FitsFormat(const CMeasureData& data)
{
    return std::ranges::all_of(data.Records(), [](const CMeasureRecord& record) {
        return record.GetYear() >= 1000 && record.GetYear() <= 9999;
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    const CMemoryFile file({reinterpret_cast<const char*>(bytes), count});
    CMeasureData data;
    const DataFileResult result = ReadFile(data, file.Path());
    if (!result) {
        FUZZ_CHECK(data.IsEmpty());
        FUZZ_CHECK(!DescribeDataFileError(result).empty());
        return 0;
    }
    data.Analyse({0, 0, SomeTime});
    (void)data.ComputeSignature();

    CStringOutput csv;
    FUZZ_CHECK(!FormatCsv(data, {}, {}, {}, csv));

    const std::string first = Written(data);
    const std::string second = Written(ReadBack(first));
    if (FitsFormat(data)) {
        FUZZ_CHECK(second == Written(ReadBack(second)));
    }
    return 0;
}
