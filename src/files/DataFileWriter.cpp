#include "base/CalendarTime.h"
#include "base/Version.h"
#include "files/DataFile.h"
#include "files/RecordText.h"
#include "files/TextBuffer.h"
#include "files/TimeText.h"
#include "files/platform/SafeFile.h"
#include "setup/tables/IntervalTable.h"
#include "setup/tables/SamplingTable.h"

#include <string>

namespace skeldon {

namespace {

constexpr int DateVersion = 1;

/// "%Y/%m/%d %H:%M:%S" in local time.
std::string DateText(CalendarSeconds seconds)
{
    const CalendarFields fields = ToLocalFields(seconds);
    char text[64];
    char* end = WriteDate(text, fields);
    *end++ = ' ';
    end = WriteTimeOfDay(end, fields, ':');
    return {text, end};
}

/// The Configuration as lines. Texts go out as they stand, without any escaping.
class CHeaderText
{
public:
    explicit CHeaderText(CTextBuffer& buffer)
        : m_buffer(buffer)
    {}

    void Line(int tabs, std::string_view text)
    {
        for (int i = 0; i < tabs; ++i)
            m_buffer.Append("\t");
        m_buffer.Append(text);
        m_buffer.Append("\r\n");
    }
    void Element(std::string_view name, std::string_view value)
    {
        m_buffer.Append("\t\t<");
        m_buffer.Append(name);
        m_buffer.Append(">");
        m_buffer.Append(value);
        m_buffer.Append("</");
        m_buffer.Append(name);
        m_buffer.Append(">\r\n");
    }
    void Element(std::string_view name, int value) { Element(name, std::to_string(value)); }

private:
    CTextBuffer& m_buffer;
};

void WriteHeader(CHeaderText& text, const CMeasureData& data, CalendarSeconds saveTime)
{
    text.Line(0, R"(<?xml version="1.0" encoding="Shift_JIS" ?>)");
    text.Line(0, R"(<ravelin_data version="SKELDON 1.0">)");
    text.Line(1, "<Configuration>");
    text.Element("date_version", DateVersion);
    text.Element("skeldon_light", ProgramVersion);
    text.Element("save_date", DateText(saveTime));
    text.Element("korva_type", data.m_modelName);
    text.Element("korva_rls", data.m_release);
    text.Element("sampling", SamplingTable::Code(data.GetSampling()));
    text.Element("interval", IntervalTable::Code(data.GetInterval()));
    text.Element("threshold", data.m_threshold);
    text.Element("serial_no", data.m_hostNumber);
    text.Element("extract", ExtractConditionsToString(data.m_extract));
    if (data.m_hazard != 0)
        text.Element("hazard", data.m_hazard);
    if (data.m_endless)
        text.Element("endless", "yes");
    text.Element("type_num", data.m_typeNumber);
    if (!data.m_hasTemperature)
        text.Element("temp_nothing", "yes");
    text.Line(1, "</Configuration>");
    text.Line(1, "<GraphSetting>");
    text.Element("title", data.m_title);
    text.Line(1, "</GraphSetting>");
}

} // namespace

std::error_code FormatDataFile(const CMeasureData& data, CalendarSeconds saveTime, COutput& output)
{
    CTextBuffer buffer(output);
    CHeaderText text(buffer);
    WriteHeader(text, data, saveTime);
    text.Line(1, "<data>");
    CRecordWriter writer(data.m_hasHumidity);
    for (const CMeasureRecord& record : data.Records()) {
        if (!record.HasFlag(RecordFlag::Deleted))
            buffer.Advance(writer.Write(buffer.Room(RecordTextLimit), record));
    }
    text.Line(1, "</data>");
    text.Line(0, "</ravelin_data>");
    return buffer.Finish();
}

std::error_code WriteFile(const CMeasureData& data, const std::filesystem::path& path,
                          CalendarSeconds saveTime)
{
    CSafeFile file;
    if (const std::error_code error = file.Open(path))
        return error;
    if (const std::error_code error = FormatDataFile(data, saveTime, file))
        return error;
    return file.Commit();
}

} // namespace skeldon
