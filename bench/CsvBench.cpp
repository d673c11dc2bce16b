#include "Benchmarks.h"
#include "PlainOutput.h"
#include "Rounds.h"
#include "SampleData.h"

#include "files/CsvFile.h"

#include <cstdio>
#include <cstdlib>
#include <fmt/format.h>
#include <iterator>
#include <string>
#include <unistd.h>

namespace skeldon::bench {

namespace {

double Skeldon(std::size_t lines)
{
    CPlainOutput output(OutputPath("skeldon.csv"));
    if (FormatCsv(SampleData(lines), {}, {}, {}, output))
        std::abort();
    return 0;
}

std::string Header()
{
    return CCsvText({}, true).Header() + "\r\n";
}

double Fprintf(std::size_t lines)
{
    std::FILE* const file = std::fopen(OutputPath("fprintf.csv").c_str(), "w");
    std::fputs(Header().c_str(), file);
    CLocalCalendar calendar;
    for (const CMeasureRecord& record : SampleData(lines).Records()) {
        const CalendarFields at = calendar.ToFields(record.m_time);
        std::fprintf(file,
                     "%04d/%02d/%02d %02d.%02d.%02d.%03d,%3.3f ,%3.3f ,%3.3f ,%3.3f ,%3.1f ,%3.1f "
                     "\r\n",
                     at.year, at.month, at.day, at.hour, at.minute, at.second,
                     static_cast<int>(record.m_msec), record.m_x, record.m_y, record.m_z,
                     record.m_resultant, record.m_temperature, record.m_humidity);
    }
    return std::fclose(file);
}

double Fmt(std::size_t lines)
{
    std::string text = Header();
    CLocalCalendar calendar;
    for (const CMeasureRecord& record : SampleData(lines).Records()) {
        const CalendarFields at = calendar.ToFields(record.m_time);
        fmt::format_to(std::back_inserter(text),
                       FMT_STRING("{:04}/{:02}/{:02} {:02}.{:02}.{:02}.{:03},{:3.3f} ,{:3.3f} ,"
                                  "{:3.3f} ,{:3.3f} ,{:3.1f} ,{:3.1f} \r\n"),
                       at.year, at.month, at.day, at.hour, at.minute, at.second, record.m_msec,
                       record.m_x, record.m_y, record.m_z, record.m_resultant, record.m_temperature,
                       record.m_humidity);
    }
    return static_cast<double>(text.size());
}

void Prepare(std::size_t lines)
{
    static bool checked = false;
    if (!checked) {
        checked = true;
        (void)Skeldon(FewLines);
        (void)Fprintf(FewLines);
        if (FileText(OutputPath("skeldon.csv")) != FileText(OutputPath("fprintf.csv")))
            std::abort();
    }
    (void)SampleData(lines);
    ::sync();
}

} // namespace

Work AddCsv()
{
    AddContender("csv", "skeldon", Skeldon, Prepare);
    AddContender("csv", "fprintf to a file", Fprintf, Prepare);
    AddContender("csv", "fmt to a buffer", Fmt, Prepare);
    return {"csv",
            "CSV export, all columns",
            {"fprintf to a file", "fmt to a buffer"},
            {{"fprintf to a file", true, 8.0, 15.0}}};
}

} // namespace skeldon::bench
