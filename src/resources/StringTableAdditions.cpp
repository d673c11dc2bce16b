#include "resources/StringTableParts.h"

namespace skeldon {

namespace {

constexpr StringEntry Entries[] = {
    // Boxes and reasons of this system.
    {StringId::AskReplaceFile,
     QT_TRANSLATE_NOOP3("StringTable", "%s already exists.\nDo you want to replace it?",
                        "AskReplaceFile")},
    {StringId::CannotDeleteReason,
     QT_TRANSLATE_NOOP3("StringTable", "%s\nFailed to delete.\n%s", "CannotDeleteReason")},
    {StringId::FailedToWriteReason,
     QT_TRANSLATE_NOOP3("StringTable", "%s\nFailed to write.\n%s", "FailedToWriteReason")},
    {StringId::AboutCopyright,
     QT_TRANSLATE_NOOP3("StringTable", "Copyright (C) brennick-works", "AboutCopyright")},
    {StringId::AboutTitle, QT_TRANSLATE_NOOP3("StringTable", "About SKELDON Light", "AboutTitle")},

    // Names for what shows only a picture, for screen readers and as tool tips.
    {StringId::NameButtonX, QT_TRANSLATE_NOOP3("StringTable", "X axis", "NameButtonX")},
    {StringId::NameButtonY, QT_TRANSLATE_NOOP3("StringTable", "Y axis", "NameButtonY")},
    {StringId::NameButtonZ, QT_TRANSLATE_NOOP3("StringTable", "Z axis", "NameButtonZ")},
    {StringId::NameButtonResultant,
     QT_TRANSLATE_NOOP3("StringTable", "Resultant", "NameButtonResultant")},
    {StringId::NameButtonTemperature,
     QT_TRANSLATE_NOOP3("StringTable", "Temperature", "NameButtonTemperature")},
    {StringId::NameButtonHumidity,
     QT_TRANSLATE_NOOP3("StringTable", "Humidity", "NameButtonHumidity")},
    {StringId::NameButtonZoomIn,
     QT_TRANSLATE_NOOP3("StringTable", "Zoom in on an area", "NameButtonZoomIn")},
    {StringId::NameButtonZoomOut,
     QT_TRANSLATE_NOOP3("StringTable", "Zoom out", "NameButtonZoomOut")},
    {StringId::NameButtonProperties,
     QT_TRANSLATE_NOOP3("StringTable", "Properties of the chart", "NameButtonProperties")},
    {StringId::NameConnection,
     QT_TRANSLATE_NOOP3("StringTable", "Connection to the recorder", "NameConnection")},
    {StringId::NameRecorder, QT_TRANSLATE_NOOP3("StringTable", "Recorder", "NameRecorder")},
    {StringId::ValueConnected, QT_TRANSLATE_NOOP3("StringTable", "Connected", "ValueConnected")},
    {StringId::ValueNotConnected,
     QT_TRANSLATE_NOOP3("StringTable", "Not connected", "ValueNotConnected")},
    {StringId::NameSummary,
     QT_TRANSLATE_NOOP3("StringTable", "Measuring conditions", "NameSummary")},
    {StringId::NameMeasuredList,
     QT_TRANSLATE_NOOP3("StringTable", "Measured list", "NameMeasuredList")},
    {StringId::NameChart,
     QT_TRANSLATE_NOOP3("StringTable", "Chart of the measured data", "NameChart")},
    {StringId::NameScaleGauge,
     QT_TRANSLATE_NOOP3("StringTable", "Vertical scale", "NameScaleGauge")},
    {StringId::NameSplitter,
     QT_TRANSLATE_NOOP3("StringTable", "Border between list and chart", "NameSplitter")},
    {StringId::NameProgress, QT_TRANSLATE_NOOP3("StringTable", "Progress", "NameProgress")},
    {StringId::NameSpinUp, QT_TRANSLATE_NOOP3("StringTable", "Up", "NameSpinUp")},
    {StringId::NameSpinDown, QT_TRANSLATE_NOOP3("StringTable", "Down", "NameSpinDown")},
    {StringId::NameSpinReset, QT_TRANSLATE_NOOP3("StringTable", "Reset", "NameSpinReset")},
    {StringId::NameColourSample,
     QT_TRANSLATE_NOOP3("StringTable", "Colour sample", "NameColourSample")},

    // Values of the read-outs for screen readers.
    {StringId::ValueBlank, QT_TRANSLATE_NOOP3("StringTable", "blank", "ValueBlank")},
    {StringId::ValueOff, QT_TRANSLATE_NOOP3("StringTable", "off", "ValueOff")},
    {StringId::ValueOn, QT_TRANSLATE_NOOP3("StringTable", "on", "ValueOn")},
    {StringId::ValueSampling, QT_TRANSLATE_NOOP3("StringTable", "0.%04d seconds", "ValueSampling")},
    {StringId::ValueSamplingTrace,
     QT_TRANSLATE_NOOP3("StringTable", "0.%04d seconds, trace mode", "ValueSamplingTrace")},
    {StringId::ValueSeconds, QT_TRANSLATE_NOOP3("StringTable", "%d seconds", "ValueSeconds")},
    {StringId::ValueMinutes, QT_TRANSLATE_NOOP3("StringTable", "%d minutes", "ValueMinutes")},
    {StringId::ValueAcceleration, QT_TRANSLATE_NOOP3("StringTable", "%.1f G", "ValueAcceleration")},
    {StringId::NameFieldUp, QT_TRANSLATE_NOOP3("StringTable", "%s, up", "NameFieldUp")},
    {StringId::NameFieldDown, QT_TRANSLATE_NOOP3("StringTable", "%s, down", "NameFieldDown")},
    {StringId::NameFieldToggle,
     QT_TRANSLATE_NOOP3("StringTable", "%s, on or off", "NameFieldToggle")},
    {StringId::NameProfileList, QT_TRANSLATE_NOOP3("StringTable", "Profiles", "NameProfileList")},
    {StringId::NameTemplateList,
     QT_TRANSLATE_NOOP3("StringTable", "Templates", "NameTemplateList")},
    {StringId::NameProfileName,
     QT_TRANSLATE_NOOP3("StringTable", "Profile name", "NameProfileName")},
    {StringId::NameMonitorLines,
     QT_TRANSLATE_NOOP3("StringTable", "Traffic with the recorder", "NameMonitorLines")},
    {StringId::NameCenterButton,
     QT_TRANSLATE_NOOP3("StringTable", "Display in center", "NameCenterButton")},
    {StringId::NameAllAreaButton,
     QT_TRANSLATE_NOOP3("StringTable", "Display all area", "NameAllAreaButton")},
    {StringId::NameBarButton,
     QT_TRANSLATE_NOOP3("StringTable", "Line chart or bar chart", "NameBarButton")},
    {StringId::NameElapsed, QT_TRANSLATE_NOOP3("StringTable", "Elapsed seconds", "NameElapsed")},
    {StringId::NameTotal, QT_TRANSLATE_NOOP3("StringTable", "Seconds in all", "NameTotal")},
    {StringId::ValueScaleStep,
     QT_TRANSLATE_NOOP3("StringTable", "step %d of %d", "ValueScaleStep")},
    {StringId::ValueNoLine, QT_TRANSLATE_NOOP3("StringTable", "no current line", "ValueNoLine")},
    {StringId::ValueLineAt, QT_TRANSLATE_NOOP3("StringTable", "line %d, %s", "ValueLineAt")},
    {StringId::ValueOfSeries, QT_TRANSLATE_NOOP3("StringTable", ", %s %s", "ValueOfSeries")},
    {StringId::ValueInG, QT_TRANSLATE_NOOP3("StringTable", "%.3f G", "ValueInG")},
    {StringId::ValueInMs2, QT_TRANSLATE_NOOP3("StringTable", "%.4f m/s^2", "ValueInMs2")},
    {StringId::ValueInGal, QT_TRANSLATE_NOOP3("StringTable", "%.2f Gal", "ValueInGal")},
    {StringId::ValueInDegrees, QT_TRANSLATE_NOOP3("StringTable", "%.1f C", "ValueInDegrees")},
    {StringId::ValueInPercent, QT_TRANSLATE_NOOP3("StringTable", "%d %%", "ValueInPercent")},
    {StringId::OnlineWaiting,
     QT_TRANSLATE_NOOP3("StringTable", "Waiting for KORVA...", "OnlineWaiting")},

    // Wizard and print dialog: what the system's own dialogs would bring.
    {StringId::WizardBack, QT_TRANSLATE_NOOP3("StringTable", "< &Back", "WizardBack")},
    {StringId::WizardNext, QT_TRANSLATE_NOOP3("StringTable", "&Next >", "WizardNext")},
    {StringId::WizardFinish, QT_TRANSLATE_NOOP3("StringTable", "Finish", "WizardFinish")},
    {StringId::TitlePrint, QT_TRANSLATE_NOOP3("StringTable", "Print", "TitlePrint")},
    {StringId::PrintPrinter, QT_TRANSLATE_NOOP3("StringTable", "Printer", "PrintPrinter")},
    {StringId::PrintPrinterName, QT_TRANSLATE_NOOP3("StringTable", "&Name :", "PrintPrinterName")},
    {StringId::PrintPrinterProperties,
     QT_TRANSLATE_NOOP3("StringTable", "&Properties...", "PrintPrinterProperties")},
    {StringId::PrintCopies,
     QT_TRANSLATE_NOOP3("StringTable", "Number of &copies :", "PrintCopies")},
    {StringId::PrintFirstLine, QT_TRANSLATE_NOOP3("StringTable", "First line", "PrintFirstLine")},
    {StringId::PrintLastLine, QT_TRANSLATE_NOOP3("StringTable", "Last line", "PrintLastLine")},
    {StringId::PrintToPdf, QT_TRANSLATE_NOOP3("StringTable", "PDF file", "PrintToPdf")},
    {StringId::PrintFilterPdf,
     QT_TRANSLATE_NOOP3("StringTable", "PDF file(pdf)|*.pdf|All|*.*|", "PrintFilterPdf")},
    {StringId::PrintFailed, QT_TRANSLATE_NOOP3("StringTable", "Failed to print.", "PrintFailed")},
};

static_assert(FollowsEnum(Entries));

} // namespace

std::span<const StringEntry> AdditionsTexts()
{
    return Entries;
}

} // namespace skeldon
