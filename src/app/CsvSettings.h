#pragma once

#include "files/CsvText.h"

namespace skeldon {

class CSettings;

/// The CSV options of the settings store.
[[nodiscard]] CsvOptions ReadCsvOptions(const CSettings& settings);
/// The column names in the user's language, as bytes of the data code page.
[[nodiscard]] CsvNames LocalCsvNames();

} // namespace skeldon
