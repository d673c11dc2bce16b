#include "skeldonctl/DataSetJson.h"

#include "base/CodePage.h"
#include "base/NumberFormat.h"

#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>
#include <string>

namespace skeldon {

namespace {

using Json = nlohmann::ordered_json;

Json HeaderOf(const CMeasureData& data, const DataSetTold& told)
{
    const auto text = [page = DataCodePage()](const std::string& bytes) {
        return ToUtf8(bytes, page);
    };
    Json json;
    json["file"] = text(data.m_fileName);
    json["records"] = data.GetSize();
    json["firstBreak"] = data.m_firstBreak;
    json["abnormal"] = data.m_abnormalCount;
    json["extracted"] = data.m_extractCount;
    json["marks"] = data.m_marks;
    json["maxAbs"] = data.m_maxAbs;
    json["minStepMs"] = data.m_minStepMs;
    json["signature"] = std::to_string(data.ComputeSignature());
    json["badTemperature"] = data.m_badTemperature;
    json["badHumidity"] = data.m_badHumidity;
    json["badMsec"] = data.m_badMsec;
    json["badTime"] = data.m_badTime;
    json["yearRepairable"] = data.m_yearRepairable;
    json["yearRepaired"] = told.yearRepaired;
    json["model"] = text(data.m_modelName);
    json["release"] = text(data.m_release);
    json["sampling"] = data.GetSampling();
    json["interval"] = data.GetInterval();
    json["threshold"] = data.m_threshold;
    json["hostNumber"] = data.m_hostNumber;
    json["hazard"] = data.m_hazard;
    json["endless"] = data.m_endless;
    json["hasTemperature"] = data.m_hasTemperature;
    json["hasHumidity"] = data.m_hasHumidity;
    json["typeNumber"] = data.m_typeNumber;
    json["dateVersion"] = data.m_dateVersion;
    json["title"] = text(data.m_title);
    json["extract"] = ExtractConditionsToString(data.m_extract);
    if (told.expected)
        json["expected"] = *told.expected;
    return json;
}

char* WriteNumber(char* out, double value)
{
    constexpr std::size_t Longest = 32; // of the shortest form that gives the double back
    if (!std::isfinite(value))
        return out + std::string_view("null").copy(out, 4);
    return std::to_chars(out, out + Longest, value).ptr;
}

/// [time, msec, x, y, z, temperature, humidity, resultant, flags, "checkKey"]
void AppendLine(std::string& text, const CMeasureRecord& record)
{
    char line[320];
    char* out = line;
    *out++ = '[';
    const auto integer = [&](std::int64_t value) { out = WriteInt(out, value); };
    integer(record.m_time);
    *out++ = ',';
    integer(record.m_msec);
    for (const double value : {record.m_x, record.m_y, record.m_z, record.m_temperature,
                               record.m_humidity, record.m_resultant}) {
        *out++ = ',';
        out = WriteNumber(out, value);
    }
    *out++ = ',';
    integer(record.m_flags);
    *out++ = ',';
    *out++ = '"';
    integer(record.m_checkKey);
    *out++ = '"';
    *out++ = ']';
    text.append(line, out);
}

/// Hundreds of megabytes for a long recording, so the lines are not gathered in an object first.
std::error_code WriteLines(const CMeasureData& data, COutput& output)
{
    constexpr std::size_t Piece = 64 * 1024;
    std::string text = ",\"lines\":[";
    const char* separator = "\n";
    for (const CMeasureRecord& record : data.Records()) {
        text += separator;
        separator = ",\n";
        AppendLine(text, record);
        if (text.size() >= Piece) {
            if (const std::error_code error = output.Write(text))
                return error;
            text.clear();
        }
    }
    text += ']';
    return output.Write(text);
}

} // namespace

std::error_code WriteDataSetJson(const CMeasureData& data, const DataSetTold& told, COutput& output)
{
    std::string header = HeaderOf(data, told).dump();
    header.pop_back(); // the closing brace
    if (const std::error_code error = output.Write(header))
        return error;
    if (told.withRecords) {
        if (const std::error_code error = WriteLines(data, output))
            return error;
    }
    return output.Write("}\n");
}

} // namespace skeldon
