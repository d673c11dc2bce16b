#include "app/CsvSettings.h"

#include "app/DataText.h"
#include "app/Settings.h"
#include "resources/StringTable.h"

namespace skeldon {

CsvOptions ReadCsvOptions(const CSettings& settings)
{
    const auto number = [&settings](const char* key, int fallback) {
        return settings.GetInt(SystemSection, QLatin1String(key), fallback);
    };
    CsvOptions options;
    options.accel = number("CsvAccel", 1) != 0;
    options.temperature = number("CsvTemperature", 1) != 0;
    options.humidity = number("CsvHumidity", 1) != 0;
    options.dateTime = number("CsvDateTime", 1) != 0;
    options.ravelin = number("CsvRavelin", 0) != 0;
    options.unit = CsvUnitOf(number("CsvUnit", 0));
    return options;
}

CsvNames LocalCsvNames()
{
    const auto name = [](StringId id) { return ToDataText(Text(id)); };
    return {
        name(StringId::CsvDateTime),  name(StringId::CsvDate),        name(StringId::CsvTime),
        name(StringId::CsvX),         name(StringId::CsvY),           name(StringId::CsvZ),
        name(StringId::CsvResultant), name(StringId::CsvTemperature), name(StringId::CsvHumidity)};
}

} // namespace skeldon
