#include "Benchmarks.h"
#include "Rounds.h"
#include "SampleData.h"

#include "data/RecordArray.h"
#include "recorder/RecordStream.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <istream>
#include <streambuf>
#include <string>

namespace skeldon::bench {

namespace {

/// An alpha QM70, whose lines have 20 digits.
RecorderStatus Recorder()
{
    RecorderStatus status;
    status.m_type = 50;
    status.m_countsPerG = 2;
    status.m_alphaFirmware = true;
    status.m_lineLength = 22;
    status.m_year = 2026;
    return status;
}

/// Room for the records, in memory that was used before: what fresh pages cost is no decoding.
RecordArray& Room()
{
    static RecordArray records(ManyLines, CMeasureRecord{CalendarSeconds{0}});
    records.clear();
    return records;
}

double Skeldon(std::size_t lines)
{
    RecordArray& records = Room();
    DecodeStream(SampleStream(lines), CRecordDecoder(Recorder(), true), lines, records);
    if (records.size() != lines)
        std::abort();
    return records.back().m_x;
}

class CMemoryBuffer : public std::streambuf
{
public:
    explicit CMemoryBuffer(const std::string& text)
    {
        char* const begin = const_cast<char*>(text.data());
        setg(begin, begin, begin + text.size());
    }
};

double GetlineSscanf(std::size_t lines)
{
    CMemoryBuffer buffer(SampleStream(lines));
    std::istream stream(&buffer);
    RecordArray& records = Room();
    CLocalCalendar calendar;
    CMeasureRecord record{CalendarSeconds{0}};
    for (std::string line; std::getline(stream, line);) {
        unsigned b[4];
        signed char v[6];
        if (std::sscanf(
                line.c_str(), "%2x%2x%2x%2x%2hhx%2hhx%2hhx%2hhx%2hhx%2hhx", &b[0], &b[1], &b[2],
                &b[3], reinterpret_cast<unsigned char*>(&v[0]),
                reinterpret_cast<unsigned char*>(&v[1]), reinterpret_cast<unsigned char*>(&v[2]),
                reinterpret_cast<unsigned char*>(&v[3]), reinterpret_cast<unsigned char*>(&v[4]),
                reinterpret_cast<unsigned char*>(&v[5])) != 10)
            std::abort();
        const CalendarFields at{.year = 2026,
                                .month = static_cast<int>(b[0] >> 4),
                                .day = static_cast<int>((b[0] & 3) << 3 | b[1] >> 5),
                                .hour = static_cast<int>(b[1] & 31),
                                .minute = static_cast<int>(b[2] >> 2),
                                .second = static_cast<int>((b[2] & 3) << 4 | b[3] >> 4)};
        const int tenths = static_cast<int>(b[3] & 15);
        const double temperature = v[3] < 0 ? -tenths * 0.1 + (v[3] + 1) : tenths * 0.1 + v[3];
        record.SetValues(calendar.ToSeconds(at), static_cast<std::uint32_t>(v[4] * 10), v[0] / 2.0,
                         v[1] / 2.0, v[2] / 2.0, temperature, v[5]);
        records.push_back(record);
    }
    if (records.size() != lines)
        std::abort();
    return records.back().m_x;
}

double ScanLineEnds(std::size_t lines)
{
    const std::string& text = SampleStream(lines);
    const char* at = text.data();
    const char* const end = at + text.size();
    double count = 0;
    while ((at = static_cast<const char*>(
                std::memchr(at, '\n', static_cast<std::size_t>(end - at)))) != nullptr) {
        ++count;
        ++at;
    }
    return count;
}

/// A figure counts only if the values are the same.
void CheckOnce()
{
    RecordArray records;
    DecodeStream(SampleStream(FewLines), CRecordDecoder(Recorder(), true), FewLines, records);
    const CMeasureData& wanted = SampleData(FewLines);
    for (std::size_t i = 0; i < FewLines; ++i) {
        if (records.at(i).m_time != wanted.GetRecord(i).m_time ||
            records[i].m_msec != wanted.GetRecord(i).m_msec ||
            records[i].m_x != wanted.GetRecord(i).m_x)
            std::abort();
    }
}

void Prepare(std::size_t lines)
{
    static bool checked = false;
    if (!checked) {
        checked = true;
        CheckOnce();
    }
    (void)SampleStream(lines);
}

} // namespace

Work AddDecode()
{
    AddContender("decode", "skeldon", Skeldon, Prepare);
    AddContender("decode", "getline + sscanf", GetlineSscanf, Prepare);
    AddContender("decode", "scan for line ends", ScanLineEnds, Prepare);
    return {"decode",
            "Decode the record stream from memory",
            {"getline + sscanf", "scan for line ends"},
            {{"getline + sscanf", true, 10.0, 15.0}}};
}

} // namespace skeldon::bench
