#pragma once

#include "data/MeasureData.h"
#include "files/CsvFile.h"

#include <string>

namespace skeldon::test {

// The texts of files made the plain way: a formatted print for each piece, a calendar call for each
// line.

std::string PlainDataFile(const CMeasureData& data, CalendarSeconds saveTime);

std::string PlainCsvRow(const CMeasureRecord& record, const CsvOptions& options, bool hasHumidity);

std::string PlainCsvFile(const CMeasureData& data, const CsvOptions& options,
                         const CsvFilter& filter);

} // namespace skeldon::test
