#include "skeldonctl/DataSetText.h"

#include "base/CodePage.h"
#include "base/NumberFormat.h"
#include "skeldonctl/TextTable.h"
#include "skeldonctl/Wording.h"

#include <algorithm>

namespace skeldon {

namespace {

/// "2026-03-04 05:06:07.010"
std::string TimeWords(const CMeasureRecord& record)
{
    const CalendarFields at = ToLocalFields(record.m_time);
    std::string words = std::to_string(at.year);
    const auto add = [&words](char separator, int value, std::size_t digits) {
        const std::string number = std::to_string(value);
        words += separator;
        words.append(digits - std::min(digits, number.size()), '0');
        words += number;
    };
    add('-', at.month, 2);
    add('-', at.day, 2);
    add(' ', at.hour, 2);
    add(':', at.minute, 2);
    add(':', at.second, 2);
    add('.', static_cast<int>(record.m_msec), 3);
    return words;
}

/// What the analysis found wrong, in the window's words.
std::string ErrorWords(const CMeasureData& data)
{
    std::string words;
    const auto add = [&words](bool isBad, std::string_view what) {
        if (isBad)
            words += (words.empty() ? "" : ", ") + std::string(what);
    };
    add(data.m_badMsec || data.m_badTime, "date/time");
    add(data.m_badTemperature, "temperature");
    add(data.m_badHumidity, "humidity");
    return words.empty() ? "none" : words;
}

/// "-6.1 to 22.2 C"
std::string RangeWords(const CMeasureData& data, double CMeasureRecord::*value,
                       std::string_view unit)
{
    const auto [lowest, highest] = std::ranges::minmax(data.Records(), {}, value);
    return FixedText(lowest.*value, 1) + " to " + FixedText(highest.*value, 1) + ' ' +
           std::string(unit);
}

void AddConditions(CTextTable& table, const CMeasureData& data)
{
    table.Add("Recorder", RecorderWords(data.m_modelName, data.m_typeNumber, data.m_release));
    table.Add("Host number", data.m_hostNumber < 0 ? "-" : std::to_string(data.m_hostNumber));
    table.Add("Sampling", SamplingWords(data.GetSampling()));
    table.Add("Interval", IntervalWords(data.GetInterval()));
    table.Add("Threshold", LevelWords(data.m_threshold));
    if (data.m_hazard > 0)
        table.Add("Hazard", LevelWords(data.m_hazard));
    table.Add("Cyclic", YesNo(data.m_endless));
}

void AddLines(CTextTable& table, const CMeasureData& data)
{
    table.Add("Lines", std::to_string(data.GetSize()));
    if (data.IsEmpty())
        return;
    table.Add("First line", TimeWords(data.Records().front()));
    table.Add("Last line", TimeWords(data.Records().back()));
    table.Add("Largest", FixedText(data.m_maxAbs, 2) + " G");
    if (data.m_hasTemperature)
        table.Add("Temperature", RangeWords(data, &CMeasureRecord::m_temperature, "C"));
    if (data.m_hasHumidity)
        table.Add("Humidity", RangeWords(data, &CMeasureRecord::m_humidity, "%"));
    table.Add("Marked", std::to_string(data.m_marks.size()));
    table.Add("Extracted", std::to_string(data.m_extractCount));
    table.Add("Abnormal", std::to_string(data.m_abnormalCount));
    table.Add("Errors", ErrorWords(data));
}

} // namespace

std::string DataSetText(const CMeasureData& data)
{
    CTextTable table;
    if (!data.m_fileName.empty())
        table.Add("File", ToUtf8(data.m_fileName, DataCodePage()));
    if (!data.m_title.empty())
        table.Add("Title", ToUtf8(data.m_title, DataCodePage()));
    AddConditions(table, data);
    AddLines(table, data);
    return table.Text();
}

} // namespace skeldon
