#include "skeldonctl/StatusOutput.h"

#include "base/CodePage.h"
#include "setup/conditions/StartOption.h"
#include "setup/tables/RecorderModel.h"
#include "skeldonctl/TextTable.h"
#include "skeldonctl/Wording.h"

#include <nlohmann/json.hpp>

namespace skeldon {

std::string StatusJson(const RecorderStatus& status, std::string_view port)
{
    const auto text = [page = DataCodePage()](std::string_view bytes) {
        return ToUtf8(bytes, page);
    };
    nlohmann::ordered_json json;
    json["port"] = text(port);
    json["model"] = text(status.GetModelName());
    json["type"] = status.m_type;
    json["maxG"] = status.GetMaxG();
    json["alpha"] = status.m_alphaFirmware;
    json["release"] = text(status.m_release);
    json["version"] = text(status.m_version);
    json["count"] = status.m_count;
    json["countLimit"] = status.m_countLimit;
    json["sampling"] = status.m_samplingRow;
    json["interval"] = status.m_intervalRow;
    json["threshold"] = status.m_threshold;
    json["hostNumber"] = status.m_hostNumber;
    json["warn"] = status.m_warn;
    json["wait"] = status.m_wait;
    json["hazard"] = status.m_hazard;
    json["endless"] = status.m_endless;
    json["buzzer"] = status.m_buzzer;
    json["hasBuzzer"] = status.HasBuzzer();
    json["year"] = status.m_year;
    json["month"] = status.m_month;
    json["day"] = status.m_day;
    json["lineLength"] = status.m_lineLength;
    return json.dump() + '\n';
}

std::string StatusText(const RecorderStatus& status, std::string_view port)
{
    CTextTable table;
    table.Add("Port", port);
    table.Add("Recorder",
              RecorderWords(std::string(status.GetModelName()), status.m_type, status.m_release));
    table.Add("Host number", std::to_string(status.m_hostNumber));
    table.Add("Lines",
              std::to_string(status.m_count) + " of " + std::to_string(status.m_countLimit));
    table.Add("Sampling", SamplingWords(status.m_samplingRow));
    table.Add("Interval", IntervalWords(status.m_intervalRow));
    table.Add("Threshold", LevelWords(status.m_threshold));
    table.Add("Warning", YesNo(status.m_warn));
    if (status.m_type != OldestType)
        table.Add("Start", StartOptionText(status.m_wait));
    if (status.m_alphaFirmware) {
        table.Add("Hazard", status.m_hazard == 0 ? "off" : LevelWords(status.m_hazard));
        table.Add("Cyclic", YesNo(status.m_endless));
    }
    if (status.HasBuzzer())
        table.Add("Buzzer", YesNo(status.m_buzzer));
    return table.Text();
}

} // namespace skeldon
