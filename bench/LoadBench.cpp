#include "Benchmarks.h"
#include "Rounds.h"
#include "SampleData.h"

#include "files/DataFile.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <pugixml.hpp>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace skeldon::bench {

namespace {

constexpr AnalysisSetting Setting{0, 0, 2'000'000'000};

double Skeldon(std::size_t lines)
{
    CMeasureData data;
    if (!ReadFile(data, SampleFile(lines)) || data.GetSize() != lines)
        std::abort();
    data.Analyse(Setting);
    return data.m_maxAbs;
}

/// The instant of "2026/03/04 05:06:07", with our calendar: the peers are spared the system's.
CalendarSeconds Instant(CLocalCalendar& calendar, const char* text)
{
    CalendarFields at;
    if (std::sscanf(text, "%d/%d/%d %d:%d:%d", &at.year, &at.month, &at.day, &at.hour, &at.minute,
                    &at.second) != 6)
        std::abort();
    return calendar.ToSeconds(at);
}

double Pugixml(std::size_t lines)
{
    std::string text = FileText(SampleFile(lines));
    pugi::xml_document document;
    if (!document.load_buffer_inplace(text.data(), text.size(), pugi::parse_minimal))
        std::abort();
    CMeasureData data;
    data.Reserve(lines);
    CLocalCalendar calendar;
    for (const pugi::xml_node node : document.child("ravelin_data").child("data")) {
        const auto number = [&](const char* name) {
            return std::strtod(node.child_value(name), nullptr);
        };
        CMeasureRecord record{CalendarSeconds{0}};
        record.SetValues(Instant(calendar, node.child_value("date_time")),
                         static_cast<std::uint32_t>(std::atoi(node.child_value("msec"))),
                         number("x") * 0.1, number("y") * 0.1, number("z") * 0.1, number("t"),
                         number("h"));
        record.SetFlags(static_cast<std::uint16_t>(std::atoi(node.child_value("flag"))));
        data.AddRecord(record);
    }
    if (data.GetSize() != lines)
        std::abort();
    data.m_fromFile = true;
    data.Analyse(Setting);
    return data.m_maxAbs;
}

/// What one line of a record says, by `sscanf`.
void TakeLine(const char* line, CMeasureRecord& record, CLocalCalendar& calendar, unsigned& flags)
{
    CalendarFields at;
    while (*line == '\t')
        ++line;
    if (std::sscanf(line, "<date_time>%d/%d/%d %d:%d:%d", &at.year, &at.month, &at.day, &at.hour,
                    &at.minute, &at.second) == 6)
        record.m_time = calendar.ToSeconds(at);
    else if (std::sscanf(line, "<msec>%u", &record.m_msec) != 1 &&
             std::sscanf(line, "<x>%lf", &record.m_x) != 1 &&
             std::sscanf(line, "<y>%lf", &record.m_y) != 1 &&
             std::sscanf(line, "<z>%lf", &record.m_z) != 1 &&
             std::sscanf(line, "<t>%lf", &record.m_temperature) != 1 &&
             std::sscanf(line, "<h>%lf", &record.m_humidity) != 1)
        std::sscanf(line, "<flag>%u", &flags);
}

double GetlineSscanf(std::size_t lines)
{
    std::ifstream file(SampleFile(lines));
    CMeasureData data;
    data.Reserve(lines);
    CLocalCalendar calendar;
    CMeasureRecord record{CalendarSeconds{0}};
    unsigned flags = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.find("</record>") != std::string::npos) {
            record.SetValues(record.m_time, record.m_msec, record.m_x * 0.1, record.m_y * 0.1,
                             record.m_z * 0.1, record.m_temperature, record.m_humidity);
            record.SetFlags(static_cast<std::uint16_t>(flags));
            data.AddRecord(record);
        } else {
            TakeLine(line.c_str(), record, calendar, flags);
        }
    }
    if (data.GetSize() != lines)
        std::abort();
    data.m_fromFile = true;
    data.Analyse(Setting);
    return data.m_maxAbs;
}

/// Finds every line end of the mapped file and does nothing else.
double ScanLineEnds(std::size_t lines)
{
    const int file = ::open(SampleFile(lines).c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status
    {};
    ::fstat(file, &status);
    const auto size = static_cast<std::size_t>(status.st_size);
    void* const map = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE | MAP_POPULATE, file, 0);
    if (map == MAP_FAILED)
        std::abort();
    const char* at = static_cast<const char*>(map);
    const char* const end = at + size;
    double count = 0;
    while ((at = static_cast<const char*>(
                std::memchr(at, '\n', static_cast<std::size_t>(end - at)))) != nullptr) {
        ++count;
        ++at;
    }
    ::munmap(map, size);
    ::close(file);
    return count;
}

void Prepare(std::size_t lines)
{
    (void)SampleFile(lines);
}

} // namespace

Work AddLoad()
{
    AddContender("load", "skeldon", Skeldon, Prepare);
    AddContender("load", "pugixml in place", Pugixml, Prepare);
    AddContender("load", "getline + sscanf", GetlineSscanf, Prepare);
    AddContender("load", "scan of the mapped file", ScanLineEnds, Prepare);
    return {"load",
            "Load a data file into an analysed data set",
            {"pugixml in place", "getline + sscanf", "scan of the mapped file"},
            {{"pugixml in place", true, 3.5, 5.0},
             {"getline + sscanf", true, 4.5, 0.0},
             {"scan of the mapped file", false, 0.0, 2.5}}};
}

} // namespace skeldon::bench
