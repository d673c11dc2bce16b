#pragma once

namespace skeldon {

/// Gives the application the texts of the language: Japanese, or the English that the table holds.
/// Where the system has Qt's own translation, the buttons of its dialogs follow. Replaces what an
/// earlier call installed. False where the program's own translation could not be loaded; the
/// texts are English then.
bool InstallTranslation(bool japanese);

} // namespace skeldon
