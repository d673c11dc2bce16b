#pragma once

#include "files/CsvText.h"

namespace skeldon {

class CSettings;

// What the pages of the settings sheet show, and the keys of the settings store behind it. The CSV
// page's values are read by `ReadCsvOptions`.

/// How conditions are edited in dialogs.
enum class WizardStyle
{
    CardForm = 0,
    Interactively = 1,
};

/// Colour of the forms.
enum class FormColour
{
    Classic = 0,
    WindowsXp = 1,
};

/// What the file page holds.
struct FileChoices
{
    WizardStyle wizard = WizardStyle::Interactively;
    bool asksToSave = true;
    bool prohibitsUpdate = false;

    bool operator==(const FileChoices&) const = default;
};

/// What is not stored, or is no number, has the value that stands above.
[[nodiscard]] FileChoices ReadFileChoices(const CSettings& settings);
void WriteFileChoices(CSettings& settings, const FileChoices& choices);

/// What `ReadCsvOptions` reads again.
void WriteCsvOptions(CSettings& settings, const CsvOptions& options);

/// Windows XP where nothing is stored.
[[nodiscard]] FormColour ReadFormColour(const CSettings& settings);
void WriteFormColour(CSettings& settings, FormColour colour);

} // namespace skeldon
