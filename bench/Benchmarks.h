#pragma once

#include "Rounds.h"

namespace skeldon::bench {

// Each registers the contenders of one kind of work and gives its row of the table.
[[nodiscard]] Work AddLoad();
[[nodiscard]] Work AddSave();
[[nodiscard]] Work AddCsv();
[[nodiscard]] Work AddDecode();
[[nodiscard]] Work AddAnalysisOfFile();
[[nodiscard]] Work AddAnalysisOfDownload();
[[nodiscard]] Work AddSignature();
[[nodiscard]] Work AddDownload();
[[nodiscard]] Work AddMonitor();
[[nodiscard]] Work AddChartWhole();
[[nodiscard]] Work AddChartNoise();
[[nodiscard]] Work AddChartPart();
[[nodiscard]] Work AddChartBars();
[[nodiscard]] Work AddChartIndex();

} // namespace skeldon::bench
