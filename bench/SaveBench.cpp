#include "Benchmarks.h"
#include "PlainOutput.h"
#include "Rounds.h"
#include "SampleData.h"

#include "files/DataFile.h"

#include <cstdio>
#include <cstdlib>
#include <fmt/format.h>
#include <iterator>
#include <map>
#include <string>
#include <unistd.h>

namespace skeldon::bench {

namespace {

constexpr CalendarSeconds SaveTime = 1'800'000'000;

const std::string& Finished(std::size_t lines)
{
    static std::map<std::size_t, std::string> made;
    std::string& text = made[lines];
    if (text.empty()) {
        const std::filesystem::path path = OutputPath("finished.skd");
        {
            CPlainOutput output(path);
            (void)FormatDataFile(SampleData(lines), SaveTime, output);
        }
        text = FileText(path);
    }
    return text;
}

/// The text up to the first record, and behind the last.
std::string_view Head(std::size_t lines)
{
    const std::string_view text = Finished(lines);
    return text.substr(0, text.find("\t\t<record>"));
}
std::string_view Tail(std::size_t lines)
{
    const std::string_view text = Finished(lines);
    return text.substr(text.rfind("\t</data>"));
}

/// A figure counts only if its bytes are right.
void MustBeFinished(const std::filesystem::path& path, std::size_t lines)
{
    if (FileText(path) != Finished(lines))
        std::abort();
}

double Skeldon(std::size_t lines)
{
    CPlainOutput output(OutputPath("skeldon.skd"));
    if (FormatDataFile(SampleData(lines), SaveTime, output))
        std::abort();
    return 0;
}

double Fprintf(std::size_t lines)
{
    std::FILE* const file = std::fopen(OutputPath("fprintf.skd").c_str(), "w");
    std::fwrite(Head(lines).data(), 1, Head(lines).size(), file);
    CLocalCalendar calendar;
    for (const CMeasureRecord& record : SampleData(lines).Records()) {
        const CalendarFields at = calendar.ToFields(record.m_time);
        std::fprintf(file,
                     "\t\t<record>\r\n\t\t\t<date_time>%d/%02d/%02d %02d:%02d:%02d</date_time>\r\n"
                     "\t\t\t<msec>%03d</msec>\r\n\t\t\t<x>%.3f</x>\r\n\t\t\t<y>%.3f</y>\r\n"
                     "\t\t\t<z>%.3f</z>\r\n\t\t\t<t>%0.1f</t>\r\n\t\t\t<h>%0.1f</h>\r\n"
                     "\t\t\t<flag>%d</flag>\r\n\t\t</record>\r\n",
                     at.year, at.month, at.day, at.hour, at.minute, at.second,
                     static_cast<int>(record.m_msec), record.m_x * 10.0, record.m_y * 10.0,
                     record.m_z * 10.0, record.m_temperature, record.m_humidity,
                     int{record.m_flags});
    }
    std::fwrite(Tail(lines).data(), 1, Tail(lines).size(), file);
    return std::fclose(file);
}

double Fmt(std::size_t lines)
{
    std::string text(Head(lines));
    CLocalCalendar calendar;
    for (const CMeasureRecord& record : SampleData(lines).Records()) {
        const CalendarFields at = calendar.ToFields(record.m_time);
        fmt::format_to(
            std::back_inserter(text),
            FMT_STRING("\t\t<record>\r\n\t\t\t<date_time>{}/{:02}/{:02} {:02}:{:02}:{:02}"
                       "</date_time>\r\n\t\t\t<msec>{:03}</msec>\r\n\t\t\t<x>{:.3f}</x>\r\n"
                       "\t\t\t<y>{:.3f}</y>\r\n\t\t\t<z>{:.3f}</z>\r\n\t\t\t<t>{:.1f}</t>\r\n"
                       "\t\t\t<h>{:.1f}</h>\r\n\t\t\t<flag>{}</flag>\r\n\t\t</record>\r\n"),
            at.year, at.month, at.day, at.hour, at.minute, at.second, record.m_msec,
            record.m_x * 10.0, record.m_y * 10.0, record.m_z * 10.0, record.m_temperature,
            record.m_humidity, record.m_flags);
    }
    text += Tail(lines);
    return static_cast<double>(text.size());
}

double BareWrite(std::size_t lines)
{
    CPlainOutput output(OutputPath("write.skd"));
    (void)output.Write(Finished(lines));
    return 0;
}

void Prepare(std::size_t lines)
{
    static bool checked = false;
    if (!checked) {
        checked = true;
        (void)Skeldon(FewLines);
        MustBeFinished(OutputPath("skeldon.skd"), FewLines);
        (void)Fprintf(FewLines);
        MustBeFinished(OutputPath("fprintf.skd"), FewLines);
    }
    (void)Finished(lines);
    ::sync();
}

} // namespace

Work AddSave()
{
    AddContender("save", "skeldon", Skeldon, Prepare);
    AddContender("save", "fprintf to a file", Fprintf, Prepare);
    AddContender("save", "fmt to a buffer", Fmt, Prepare);
    AddContender("save", "one bare write", BareWrite, Prepare);
    return {"save",
            "Save, without the sync",
            {"fprintf to a file", "fmt to a buffer", "one bare write"},
            {{"fprintf to a file", true, 6.0, 10.0}, {"one bare write", false, 0.0, 2.0}}};
}

} // namespace skeldon::bench
