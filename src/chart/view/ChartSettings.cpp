#include "chart/view/ChartSettings.h"

#include "resources/StringTable.h"

namespace skeldon {

namespace {

// Line weights are a number, 1 for thin and 2 for thick; the time axis is 0 for the time of day.
const QString ScreenWeightKey = QStringLiteral("DrawGraphPic");
const QString PrintWeightKey = QStringLiteral("PrintGraphPic");
const QString ElapsedKey = QStringLiteral("GraphHorz");
const QString TitleKey = QStringLiteral("GraphTitle");

} // namespace

ChartProperties ReadChartProperties(const CSettings& settings)
{
    ChartProperties properties;
    for (std::size_t i = 0; i < ChartColourCount; ++i) {
        const ChartColourChoice choice = ColourChoice(i);
        properties.colours[i] = static_cast<std::uint32_t>(
            settings.GetInt(SystemSection, QString::fromLatin1(choice.key),
                            static_cast<int>(choice.defaultColour)));
    }
    properties.screenWeight = settings.GetInt(SystemSection, ScreenWeightKey, ThinWeight);
    properties.printWeight = settings.GetInt(SystemSection, PrintWeightKey, ThickWeight);
    properties.isElapsed = settings.GetInt(SystemSection, ElapsedKey, 0) != 0;
    properties.title = settings.GetText(SystemSection, TitleKey, Text(StringId::ChartTitleDefault));
    return properties;
}

void WriteChartProperties(CSettings& settings, const ChartProperties& properties)
{
    for (std::size_t i = 0; i < ChartColourCount; ++i)
        settings.WriteInt(SystemSection, QString::fromLatin1(ColourChoice(i).key),
                          static_cast<int>(properties.colours[i]));
    settings.WriteInt(SystemSection, ScreenWeightKey, properties.screenWeight);
    settings.WriteInt(SystemSection, PrintWeightKey, properties.printWeight);
    settings.WriteInt(SystemSection, ElapsedKey, properties.isElapsed ? 1 : 0);
    settings.WriteText(SystemSection, TitleKey, properties.title);
}

} // namespace skeldon
