#include "resources/StringTableParts.h"

namespace skeldon {

namespace {

constexpr StringEntry Entries[] = {
    // Chart.
    {StringId::ChartNoMemory,
     QT_TRANSLATE_NOOP3("StringTable", "A chart can't be used by shortage of memory.",
                        "ChartNoMemory")},
    {StringId::MakingChart, QT_TRANSLATE_NOOP3("StringTable", "Making chart...", "MakingChart")},
    {StringId::ChartAxes, QT_TRANSLATE_NOOP3("StringTable", "XYZ axes ", "ChartAxes")},
    {StringId::ChartUnitG, QT_TRANSLATE_NOOP3("StringTable", "(G)", "ChartUnitG")},
    {StringId::ChartUnitMs2, QT_TRANSLATE_NOOP3("StringTable", "(m/s^2)", "ChartUnitMs2")},
    {StringId::ChartUnitGal, QT_TRANSLATE_NOOP3("StringTable", "(Gal)", "ChartUnitGal")},
    {StringId::ChartTemperature,
     QT_TRANSLATE_NOOP3("StringTable", "Temperature(C) ", "ChartTemperature")},
    {StringId::ChartHumidity, QT_TRANSLATE_NOOP3("StringTable", "Humidity(%)", "ChartHumidity")},
    {StringId::ChartTime, QT_TRANSLATE_NOOP3("StringTable", "Time", "ChartTime")},
    {StringId::ChartElapsedTime,
     QT_TRANSLATE_NOOP3("StringTable", "Elapsed Time", "ChartElapsedTime")},

    // Chart properties.
    {StringId::TitleChartProperties,
     QT_TRANSLATE_NOOP3("StringTable", "Chart properties", "TitleChartProperties")},
    {StringId::ChartColor, QT_TRANSLATE_NOOP3("StringTable", "Color", "ChartColor")},
    {StringId::ChartColorX, QT_TRANSLATE_NOOP3("StringTable", "&X axis :", "ChartColorX")},
    {StringId::ChartColorY, QT_TRANSLATE_NOOP3("StringTable", "&Y axis :", "ChartColorY")},
    {StringId::ChartColorZ, QT_TRANSLATE_NOOP3("StringTable", "&Z axis :", "ChartColorZ")},
    {StringId::ChartColorResultant,
     QT_TRANSLATE_NOOP3("StringTable", "&Resultant :", "ChartColorResultant")},
    {StringId::ChartColorTemperature,
     QT_TRANSLATE_NOOP3("StringTable", "deg &C :", "ChartColorTemperature")},
    {StringId::ChartColorHumidity,
     QT_TRANSLATE_NOOP3("StringTable", "&Humidity :", "ChartColorHumidity")},
    {StringId::ChartColorDirection,
     QT_TRANSLATE_NOOP3("StringTable", "&Direction :", "ChartColorDirection")},
    {StringId::ChartColorMark, QT_TRANSLATE_NOOP3("StringTable", "&Mark", "ChartColorMark")},
    {StringId::ChartBrowse, QT_TRANSLATE_NOOP3("StringTable", "Bowse...", "ChartBrowse")},
    {StringId::ChartStandardColors,
     QT_TRANSLATE_NOOP3("StringTable", "&Standard colors", "ChartStandardColors")},
    {StringId::ChartScreenLines,
     QT_TRANSLATE_NOOP3("StringTable", "&Lines weight for monitor", "ChartScreenLines")},
    {StringId::ChartPrintLines,
     QT_TRANSLATE_NOOP3("StringTable", "Line weight for &printing", "ChartPrintLines")},
    {StringId::ChartThin, QT_TRANSLATE_NOOP3("StringTable", "Thin", "ChartThin")},
    {StringId::ChartThick, QT_TRANSLATE_NOOP3("StringTable", "Thick", "ChartThick")},
    {StringId::ChartTimeFormat,
     QT_TRANSLATE_NOOP3("StringTable", "Time &format", "ChartTimeFormat")},
    {StringId::ChartFormatTime, QT_TRANSLATE_NOOP3("StringTable", "Time", "ChartFormatTime")},
    {StringId::ChartFormatElapsed,
     QT_TRANSLATE_NOOP3("StringTable", "Elapsed Time", "ChartFormatElapsed")},
    {StringId::ChartPrintTitle,
     QT_TRANSLATE_NOOP3("StringTable", "Print &title", "ChartPrintTitle")},

    // Printing.
    {StringId::PrintList, QT_TRANSLATE_NOOP3("StringTable", "List", "PrintList")},
    {StringId::PrintChart, QT_TRANSLATE_NOOP3("StringTable", "Chart", "PrintChart")},
    {StringId::PrintRangeOfChart,
     QT_TRANSLATE_NOOP3("StringTable", "Print range", "PrintRangeOfChart")},
    {StringId::PrintChartIsView,
     QT_TRANSLATE_NOOP3("StringTable", "Print of charts is in view image.", "PrintChartIsView")},
    {StringId::PrintRangeOfList,
     QT_TRANSLATE_NOOP3("StringTable", "Print r&ange", "PrintRangeOfList")},
    {StringId::PrintRangeTemplate,
     QT_TRANSLATE_NOOP3("StringTable", "Pring range is 1 to 9999 lines.", "PrintRangeTemplate")},
    {StringId::PrintRangeLines,
     QT_TRANSLATE_NOOP3("StringTable", "Allowable range is from 1 to %d lines.",
                        "PrintRangeLines")},
    {StringId::PrintCollate, QT_TRANSLATE_NOOP3("StringTable", "Colla&te", "PrintCollate")},
    {StringId::PrintPreview, QT_TRANSLATE_NOOP3("StringTable", "Pre&view", "PrintPreview")},
    {StringId::PrintOptions, QT_TRANSLATE_NOOP3("StringTable", "&Options...", "PrintOptions")},
    {StringId::PrintAdvancedChart,
     QT_TRANSLATE_NOOP3("StringTable", "Advanced Settings for Graph printing",
                        "PrintAdvancedChart")},
    {StringId::PrintAdvancedList,
     QT_TRANSLATE_NOOP3("StringTable", "Advanced Settings for List printing", "PrintAdvancedList")},
    {StringId::PrintMargins, QT_TRANSLATE_NOOP3("StringTable", "Mar&gins 0-%d", "PrintMargins")},
    {StringId::PrintZoom, QT_TRANSLATE_NOOP3("StringTable", "&Zoom %d-%d", "PrintZoom")},
    {StringId::PrintNoMemory,
     QT_TRANSLATE_NOOP3("StringTable", "There is not enough memory.", "PrintNoMemory")},
    {StringId::CollateNotSupported,
     QT_TRANSLATE_NOOP3("StringTable", "This printer does not support Collate Copies.",
                        "CollateNotSupported")},
    {StringId::PrintTooSmall,
     QT_TRANSLATE_NOOP3("StringTable", "The size of print is too small.\nSelect smaller margins.",
                        "PrintTooSmall")},
    {StringId::PrintListHead,
     QT_TRANSLATE_NOOP3("StringTable", "SKELDON : %s    %d/%d", "PrintListHead")},
};

static_assert(FollowsEnum(Entries));

} // namespace

std::span<const StringEntry> ChartTexts()
{
    return Entries;
}

} // namespace skeldon
