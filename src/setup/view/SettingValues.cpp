#include "setup/view/SettingValues.h"

#include "app/Settings.h"

namespace skeldon {

namespace {

const QString ProfileWizard = QStringLiteral("ProfileWizard");
const QString SaveInfo = QStringLiteral("SaveInfo");
const QString NoProfileUpdate = QStringLiteral("NoProfileUpdate");
const QString ViewBase = QStringLiteral("ViewBase");

/// Any number but 0 is a yes.
bool IsSet(const CSettings& settings, const QString& key, bool fallback)
{
    return settings.GetInt(SystemSection, key, fallback ? 1 : 0) != 0;
}

void Write(CSettings& settings, const QString& key, bool value)
{
    settings.WriteInt(SystemSection, key, value ? 1 : 0);
}

} // namespace

FileChoices ReadFileChoices(const CSettings& settings)
{
    return {IsSet(settings, ProfileWizard, true) ? WizardStyle::Interactively
                                                 : WizardStyle::CardForm,
            IsSet(settings, SaveInfo, true), IsSet(settings, NoProfileUpdate, false)};
}

void WriteFileChoices(CSettings& settings, const FileChoices& choices)
{
    Write(settings, ProfileWizard, choices.wizard == WizardStyle::Interactively);
    Write(settings, SaveInfo, choices.asksToSave);
    Write(settings, NoProfileUpdate, choices.prohibitsUpdate);
}

void WriteCsvOptions(CSettings& settings, const CsvOptions& options)
{
    Write(settings, QStringLiteral("CsvAccel"), options.accel);
    Write(settings, QStringLiteral("CsvTemperature"), options.temperature);
    Write(settings, QStringLiteral("CsvHumidity"), options.humidity);
    Write(settings, QStringLiteral("CsvDateTime"), options.dateTime);
    Write(settings, QStringLiteral("CsvRavelin"), options.ravelin);
    settings.WriteInt(SystemSection, QStringLiteral("CsvUnit"), static_cast<int>(options.unit));
}

FormColour ReadFormColour(const CSettings& settings)
{
    return IsSet(settings, ViewBase, true) ? FormColour::WindowsXp : FormColour::Classic;
}

void WriteFormColour(CSettings& settings, FormColour colour)
{
    settings.WriteInt(SystemSection, ViewBase, static_cast<int>(colour));
}

} // namespace skeldon
