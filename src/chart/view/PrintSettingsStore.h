#pragma once

#include "chart/model/PrintSettings.h"

namespace skeldon {

class CSettings;

[[nodiscard]] PrintSettings ReadPrintSettings(const CSettings& settings);
void WritePrintSettings(CSettings& settings, const PrintSettings& print);

} // namespace skeldon
