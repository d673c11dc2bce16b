#include "files/CsvFile.h"

#include "base/Paths.h"
#include "files/TextBuffer.h"
#include "files/platform/SafeFile.h"

namespace skeldon {

namespace {

constexpr std::string_view LineEnd = "\r\n";

bool Passes(const CsvFilter& filter, const CMeasureRecord& record)
{
    return (!filter.onlyMarked || record.HasFlag(RecordFlag::Marked)) &&
           (!filter.onlyExtracted || record.HasFlag(RecordFlag::Extracted));
}

} // namespace

std::error_code FormatCsv(const CMeasureData& data, const CsvOptions& options,
                          const CsvNames& names, const CsvFilter& filter, COutput& output)
{
    CTextBuffer buffer(output);
    CCsvText text(options, data.m_hasHumidity);
    buffer.Append(text.Header(names));
    buffer.Append(LineEnd);
    for (const CMeasureRecord& record : data.Records()) {
        if (!Passes(filter, record))
            continue;
        char* const end = text.WriteRow(buffer.Room(CCsvText::RowLimit + LineEnd.size()), record);
        buffer.Advance(end + LineEnd.copy(end, LineEnd.size()));
    }
    return buffer.Finish();
}

std::error_code WriteCsvFile(const CMeasureData& data, const std::filesystem::path& path,
                             const CsvOptions& options, const CsvNames& names,
                             const CsvFilter& filter)
{
    CSafeFile file;
    if (const std::error_code error = file.Open(path))
        return error;
    if (const std::error_code error = FormatCsv(data, options, names, filter, file))
        return error;
    return file.Commit();
}

std::error_code ExportCsv(const CMeasureData& data, const std::filesystem::path& path,
                          const CsvOptions& options, const CsvNames& names, const CsvFilter& filter)
{
    return WriteCsvFile(data, WithExtension(path, "csv"), options, names, filter);
}

} // namespace skeldon
