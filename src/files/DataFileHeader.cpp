#include "files/DataFileHeader.h"

#include "base/TextScan.h"
#include "files/LineTags.h"
#include "setup/tables/IntervalTable.h"
#include "setup/tables/SamplingTable.h"

#include <algorithm>
#include <array>
#include <functional>

namespace skeldon {

namespace {

constexpr int HighestThreshold = 490; // tenths of G
constexpr int HighestHostNumber = 99;
constexpr int HighestHazard = 495; // tenths of G

using Taker = void (*)(CMeasureData&, std::string_view);

struct Key
{
    std::string_view open;
    std::string_view close; ///< empty where the opening tag alone counts
    Taker take;
};

int Clamped(std::string_view text, int highest)
{
    return std::clamp(ScanInt(text), CMeasureData::Unknown, highest);
}

constexpr std::array<Key, 12> Keys = {{
    {"<date_version>", "</date_version>",
     [](CMeasureData& data, std::string_view text) { data.m_dateVersion = ScanInt(text); }},
    {"<korva_type>", "</korva_type>",
     [](CMeasureData& data, std::string_view text) { data.m_modelName = text; }},
    {"<korva_rls>", "</korva_rls>",
     [](CMeasureData& data, std::string_view text) { data.m_release = text; }},
    {"<sampling>", "</sampling>",
     [](CMeasureData& data, std::string_view text) {
         data.SetSampling(SamplingTable::RowOfCode(ScanInt(text)));
     }},
    {"<interval>", "</interval>",
     [](CMeasureData& data, std::string_view text) {
         data.SetInterval(IntervalTable::RowOfCode(ScanInt(text)));
     }},
    {"<threshold>", "</threshold>",
     [](CMeasureData& data, std::string_view text) {
         data.m_threshold = Clamped(text, HighestThreshold);
     }},
    {"<serial_no>", "</serial_no>",
     [](CMeasureData& data, std::string_view text) {
         data.m_hostNumber = Clamped(text, HighestHostNumber);
     }},
    {"<extract>", "</extract>",
     [](CMeasureData& data, std::string_view text) {
         data.m_extract = ExtractConditionsFromString(text);
     }},
    {"<hazard>", "</hazard>",
     [](CMeasureData& data, std::string_view text) {
         data.m_hazard = Clamped(text, HighestHazard);
     }},
    {"<endless>", "", [](CMeasureData& data, std::string_view) { data.m_endless = true; }},
    {"<type_num>", "</type_num>",
     [](CMeasureData& data, std::string_view text) { data.m_typeNumber = ScanInt(text); }},
    {"<temp_nothing>", "",
     [](CMeasureData& data, std::string_view) { data.m_hasTemperature = false; }},
}};

constexpr std::string_view TitleOpen = "<title>";
constexpr std::string_view TitleClose = "</title>";

} // namespace

bool IsRootLine(std::string_view line)
{
    return StartsWithNoCase(line, "<ravelin_data version=");
}

FileVersion VersionOfRootLine(std::string_view line)
{
    if (EndsWithNoCase(line, "\"SKELDON 1.0\">"))
        return FileVersion::Skeldon;
    return EndsWithNoCase(line, "\"1.0\">") ? FileVersion::Older : FileVersion::Unknown;
}

bool TakeConfigurationLine(CMeasureData& data, FileVersion version, std::string_view line)
{
    if (StartsWithNoCase(line, "</Configuration>"))
        return false;
    if (version == FileVersion::Older && StartsWithNoCase(line, "<GraphSetting>"))
        return false;
    if (data.m_title.empty() && StartsWithNoCase(line, TitleOpen))
        data.m_title = Between(line, TitleOpen, TitleClose);
    if (version == FileVersion::Older)
        return true;
    for (const Key& key : Keys) {
        if (!StartsWithNoCase(line, key.open))
            continue;
        if (key.close.empty())
            key.take(data, {});
        else if (EndsWithNoCase(line, key.close))
            key.take(data, Between(line, key.open, key.close));
    }
    return true;
}

bool IsConfigurationText(std::string_view line)
{
    return StartsWithNoCase(line, TitleOpen) ||
           std::any_of(Keys.begin(), Keys.end(), [line](const Key& key) {
               return !key.close.empty() && StartsWithNoCase(line, key.open);
           });
}

} // namespace skeldon
