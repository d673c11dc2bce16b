#include "chart/view/ChartWords.h"

#include "base/AccelerationUnits.h"
#include "base/CalendarTime.h"
#include "chart/model/Rounding.h"
#include "resources/StringTable.h"
#include "resources/TextFormat.h"

namespace skeldon {

namespace {

constexpr std::array<StringId, SeriesCount> Names{
    StringId::NameButtonX,         StringId::NameButtonY,           StringId::NameButtonZ,
    StringId::NameButtonResultant, StringId::NameButtonTemperature, StringId::NameButtonHumidity};

QString InstantWords(const CMeasureRecord& line)
{
    const CalendarFields fields = ToLocalFields(line.m_time);
    return FormatText(QStringLiteral("%d/%02d/%02d %02d:%02d:%02d.%03d"),
                      {fields.year, fields.month, fields.day, fields.hour, fields.minute,
                       fields.second, static_cast<int>(line.m_msec)});
}

QString AccelerationWords(double value, DisplayUnit unit)
{
    switch (unit) {
    case DisplayUnit::MetresPerSecond2:
        return FormatText(Text(StringId::ValueInMs2), {value * MetresPerSecond2PerG});
    case DisplayUnit::Gal:
        return FormatText(Text(StringId::ValueInGal), {value * GalPerG});
    case DisplayUnit::G:
        break;
    }
    return FormatText(Text(StringId::ValueInG), {value});
}

QString ValueWords(const CMeasureRecord& line, Series series, DisplayUnit unit)
{
    const double value = RecordValue(line, series);
    switch (series) {
    case Series::Temperature:
        return FormatText(Text(StringId::ValueInDegrees), {value});
    case Series::Humidity:
        return FormatText(Text(StringId::ValueInPercent), {Truncate(value)});
    default:
        return AccelerationWords(value, unit);
    }
}

} // namespace

QString CurrentLineWords(const CChartModel& model)
{
    if (model.m_currentLine < 0 || model.m_currentLine >= model.Count())
        return Text(StringId::ValueNoLine);
    const CMeasureRecord& line = model.m_index.Line(model.m_currentLine);
    QString words =
        FormatText(Text(StringId::ValueLineAt), {model.m_currentLine + 1, InstantWords(line)});
    for (const Series series : SeriesIn(model.DrawnSeries())) {
        words += FormatText(Text(StringId::ValueOfSeries),
                            {Text(Names[Index(series)]), ValueWords(line, series, model.m_unit)});
    }
    return words;
}

} // namespace skeldon
