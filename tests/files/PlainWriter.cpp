#include "files/PlainWriter.h"

#include "base/PlainCalendar.h"
#include "base/Version.h"

#include <cstdarg>
#include <cstdio>

namespace skeldon::test {

namespace {

__attribute__((format(printf, 1, 2))) std::string Print(const char* format, ...)
{
    char text[1000];
    std::va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    return {text, static_cast<std::size_t>(length)};
}

std::string Date(CalendarSeconds time, const char* format)
{
    const std::tm tm = PlainLocal(time);
    char text[100];
    return {text, std::strftime(text, sizeof text, format, &tm)};
}

std::string Record(const CMeasureRecord& line, bool withHumidity)
{
    const std::tm tm = PlainLocal(line.m_time);
    std::string text = "\t\t<record>\n";
    text += Print("\t\t\t<date_time>%d/%02d/%02d %02d:%02d:%02d</date_time>\n", tm.tm_year + 1900,
                  tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec);
    text += Print("\t\t\t<msec>%03d</msec>\n", static_cast<int>(line.m_msec));
    text += Print("\t\t\t<x>%.3f</x>\n", line.m_x * 10.0);
    text += Print("\t\t\t<y>%.3f</y>\n", line.m_y * 10.0);
    text += Print("\t\t\t<z>%.3f</z>\n", line.m_z * 10.0);
    text += Print("\t\t\t<t>%0.1f</t>\n", line.m_temperature);
    if (withHumidity)
        text += Print("\t\t\t<h>%0.1f</h>\n", line.m_humidity);
    text += Print("\t\t\t<flag>%d</flag>\n", line.m_flags);
    return text + "\t\t</record>\n";
}

std::string WithLineEnds(const std::string& text)
{
    std::string result;
    for (const char c : text) {
        if (c == '\n')
            result += '\r';
        result += c;
    }
    return result;
}

} // namespace

std::string PlainDataFile(const CMeasureData& data, CalendarSeconds saveTime)
{
    const int samplingCodes[] = {20, 21, 0, 1, 2, 3, 4, 5, 6, 7};
    const int intervalCodes[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 14, 11, 12, 13};
    const int sampling = data.GetSampling() < 0 ? -1 : samplingCodes[data.GetSampling()];
    const int interval = data.GetInterval() < 0 ? -1 : intervalCodes[data.GetInterval()];
    std::string text = "<?xml version=\"1.0\" encoding=\"Shift_JIS\" ?>\n"
                       "<ravelin_data version=\"SKELDON 1.0\">\n"
                       "\t<Configuration>\n"
                       "\t\t<date_version>1</date_version>\n";
    text += "\t\t<skeldon_light>" + std::string(ProgramVersion) + "</skeldon_light>\n";
    text += "\t\t<save_date>" + Date(saveTime, "%Y/%m/%d %H:%M:%S") + "</save_date>\n";
    text += "\t\t<korva_type>" + data.m_modelName + "</korva_type>\n";
    text += "\t\t<korva_rls>" + data.m_release + "</korva_rls>\n";
    text += Print("\t\t<sampling>%d</sampling>\n", sampling);
    text += Print("\t\t<interval>%d</interval>\n", interval);
    text += Print("\t\t<threshold>%d</threshold>\n", data.m_threshold);
    text += Print("\t\t<serial_no>%d</serial_no>\n", data.m_hostNumber);
    text += "\t\t<extract>";
    for (const ExtractCondition& entry : data.m_extract)
        text += Print("%d,%f,%d,%f,%d,", entry.channel, entry.firstLevel, entry.firstEnabled,
                      entry.secondLevel, entry.secondEnabled);
    text += "</extract>\n";
    if (data.m_hazard != 0)
        text += Print("\t\t<hazard>%d</hazard>\n", data.m_hazard);
    if (data.m_endless)
        text += "\t\t<endless>yes</endless>\n";
    text += Print("\t\t<type_num>%d</type_num>\n", data.m_typeNumber);
    if (!data.m_hasTemperature)
        text += "\t\t<temp_nothing>yes</temp_nothing>\n";
    text += "\t</Configuration>\n\t<GraphSetting>\n";
    text += "\t\t<title>" + data.m_title + "</title>\n";
    text += "\t</GraphSetting>\n\t<data>\n";
    for (std::size_t i = 0; i < data.GetSize(); ++i) {
        const CMeasureRecord line = data.GetRecord(i);
        if ((line.m_flags & 0x8000) == 0)
            text += Record(line, data.m_hasHumidity);
    }
    text += "\t</data>\n</ravelin_data>\n";
    return WithLineEnds(text);
}

std::string PlainCsvRow(const CMeasureRecord& record, const CsvOptions& options, bool hasHumidity)
{
    const auto msec = static_cast<int>(record.m_msec);
    std::string row = Date(record.m_time, "%Y/%m/%d");
    if (options.ravelin) {
        row += " " + Print("%s.%03d", Date(record.m_time, "%H:%M:%S").c_str(), msec);
        for (const double axis : {record.m_x, record.m_y, record.m_z})
            row += Print(",%6d", static_cast<int>(axis * 10.0));
        return row + Print(",%4d", static_cast<int>(record.m_temperature));
    }
    row += options.dateTime ? " " : ",";
    row += Print("%s.%03d", Date(record.m_time, "%H.%M.%S").c_str(), msec);
    const auto cell = [&options](double value) {
        if (options.unit == CsvUnit::MetresPerSecondSquared)
            return Print(",%4.4f ", value * 9.8);
        if (options.unit == CsvUnit::Gal)
            return Print(",%6.2f ", value * 980.0);
        return Print(",%3.3f ", value * 1.0);
    };
    row += cell(record.m_x) + cell(record.m_y) + cell(record.m_z);
    if (options.accel)
        row += cell(record.m_resultant);
    if (options.temperature)
        row += Print(",%3.1f ", record.m_temperature);
    if (options.humidity && hasHumidity)
        row += Print(",%3.1f ", record.m_humidity);
    return row;
}

std::string PlainCsvFile(const CMeasureData& data, const CsvOptions& options,
                         const CsvFilter& filter)
{
    std::string text;
    if (options.ravelin) {
        text = "date time,x(G),y(G),z(G),temperature(C)";
    } else {
        const std::string unit = options.unit == CsvUnit::Gal ? "(Gal)"
                                 : options.unit == CsvUnit::G ? "(G)"
                                                              : "(m/s^2)";
        text = options.dateTime ? "Date/Time" : "Date,Time";
        for (const char* const name : {"X axis", "Y axis", "Z axis"})
            text += "," + (name + unit);
        text += options.accel ? ",Rsltnt" + unit : "";
        text += options.temperature ? ",Temperature(C)" : "";
        text += options.humidity && data.m_hasHumidity ? ",Humidity(%)" : "";
    }
    text += "\n";
    for (std::size_t i = 0; i < data.GetSize(); ++i) {
        const CMeasureRecord record = data.GetRecord(i);
        if (filter.onlyMarked && (record.m_flags & 1) == 0)
            continue;
        if (filter.onlyExtracted && (record.m_flags & 0x09F0) == 0)
            continue;
        text += PlainCsvRow(record, options, data.m_hasHumidity) + "\n";
    }
    return WithLineEnds(text);
}

} // namespace skeldon::test
