#include "resources/StringTableParts.h"

namespace skeldon {

namespace {

constexpr StringEntry Entries[] = {
    // Settings sheet.
    {StringId::TitleConfiguration,
     QT_TRANSLATE_NOOP3("StringTable", "Configuration", "TitleConfiguration")},
    {StringId::PageFile, QT_TRANSLATE_NOOP3("StringTable", "File", "PageFile")},
    {StringId::FileWizard, QT_TRANSLATE_NOOP3("StringTable", "Setup &wizard", "FileWizard")},
    {StringId::FileInteractively,
     QT_TRANSLATE_NOOP3("StringTable", "Interactively", "FileInteractively")},
    {StringId::FileCardForm, QT_TRANSLATE_NOOP3("StringTable", "Card Form", "FileCardForm")},
    {StringId::FileConfirmSaved,
     QT_TRANSLATE_NOOP3("StringTable", "Confirm data is &saved before closing.",
                        "FileConfirmSaved")},
    {StringId::FilePrompt, QT_TRANSLATE_NOOP3("StringTable", "Prompt", "FilePrompt")},
    {StringId::FileNotPrompt, QT_TRANSLATE_NOOP3("StringTable", "Not prompt", "FileNotPrompt")},
    {StringId::FileProhibitUpdate,
     QT_TRANSLATE_NOOP3("StringTable", "&Prohibit the update of profile.", "FileProhibitUpdate")},
    {StringId::PageCsv, QT_TRANSLATE_NOOP3("StringTable", "CSV", "PageCsv")},
    {StringId::CsvPageResultant,
     QT_TRANSLATE_NOOP3("StringTable", "&Resultant", "CsvPageResultant")},
    {StringId::CsvPageTemperature,
     QT_TRANSLATE_NOOP3("StringTable", "&Temperature", "CsvPageTemperature")},
    {StringId::CsvPageHumidity, QT_TRANSLATE_NOOP3("StringTable", "&Humidity", "CsvPageHumidity")},
    {StringId::CsvPageDateTime, QT_TRANSLATE_NOOP3("StringTable", "Date&+Time", "CsvPageDateTime")},
    {StringId::CsvPageUnit, QT_TRANSLATE_NOOP3("StringTable", "Acceleration &unit", "CsvPageUnit")},
    {StringId::CsvPageUnitG, QT_TRANSLATE_NOOP3("StringTable", "G", "CsvPageUnitG")},
    {StringId::CsvPageUnitMs2, QT_TRANSLATE_NOOP3("StringTable", "m/s^2", "CsvPageUnitMs2")},
    {StringId::CsvPageUnitGal, QT_TRANSLATE_NOOP3("StringTable", "Gal", "CsvPageUnitGal")},
    {StringId::CsvPageRavelin,
     QT_TRANSLATE_NOOP3("StringTable", "RAV&ELIN Compatible", "CsvPageRavelin")},
    {StringId::PageDisplay, QT_TRANSLATE_NOOP3("StringTable", "Display", "PageDisplay")},
    {StringId::DisplayColor, QT_TRANSLATE_NOOP3("StringTable", "&Color", "DisplayColor")},
    {StringId::DisplayClassic, QT_TRANSLATE_NOOP3("StringTable", "Classic", "DisplayClassic")},
    {StringId::DisplayWindowsXp,
     QT_TRANSLATE_NOOP3("StringTable", "WindowsXP", "DisplayWindowsXp")},
    {StringId::ColorAtNextStart,
     QT_TRANSLATE_NOOP3("StringTable",
                        "When it starts next time,\nthe change of the color becomes effective.",
                        "ColorAtNextStart")},

    // Card form of the conditions.
    {StringId::TitleConditionOption,
     QT_TRANSLATE_NOOP3("StringTable", "Option of measurement condition", "TitleConditionOption")},
    {StringId::OptionSampling, QT_TRANSLATE_NOOP3("StringTable", "&Sampling :", "OptionSampling")},
    {StringId::OptionInterval, QT_TRANSLATE_NOOP3("StringTable", "&Interval :", "OptionInterval")},
    {StringId::OptionThreshold,
     QT_TRANSLATE_NOOP3("StringTable", "&Threshold :", "OptionThreshold")},
    {StringId::OptionG, QT_TRANSLATE_NOOP3("StringTable", "G", "OptionG")},
    {StringId::OptionDetectAbove,
     QT_TRANSLATE_NOOP3("StringTable", "Detect &Above T", "OptionDetectAbove")},
    {StringId::OptionEndless,
     QT_TRANSLATE_NOOP3("StringTable", "&Endless Recording", "OptionEndless")},
    {StringId::OptionBuzzer, QT_TRANSLATE_NOOP3("StringTable", "&Buzzer", "OptionBuzzer")},
    {StringId::OptionId, QT_TRANSLATE_NOOP3("StringTable", "I&D :", "OptionId")},
    {StringId::OptionStartOption,
     QT_TRANSLATE_NOOP3("StringTable", "Start &option :", "OptionStartOption")},
    {StringId::OptionHazard, QT_TRANSLATE_NOOP3("StringTable", "&Hazard :", "OptionHazard")},
    {StringId::ThresholdsName, QT_TRANSLATE_NOOP3("StringTable", "Thresholds", "ThresholdsName")},
    {StringId::HostNumberName,
     QT_TRANSLATE_NOOP3("StringTable", "Host Number (ID)", "HostNumberName")},
    {StringId::StartOptionName,
     QT_TRANSLATE_NOOP3("StringTable", "Start option", "StartOptionName")},
    {StringId::HostNumberInUse,
     QT_TRANSLATE_NOOP3("StringTable", "Host number (ID) %d is in use", "HostNumberInUse")},
};

static_assert(FollowsEnum(Entries));

} // namespace

std::span<const StringEntry> SettingsTexts()
{
    return Entries;
}

} // namespace skeldon
