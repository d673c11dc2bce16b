#pragma once

#include "data/MeasureData.h"

#include <string>
#include <string_view>
#include <vector>

namespace skeldon::test {

/// What a data file says, read the plain way: line after line through the whole text, once to
/// count the records and once to read them, with the runtime's number conversions and a calendar
/// call for each record.
struct PlainFile
{
    bool isGood = false;
    std::string modelName;
    std::string release;
    std::string title;
    std::string extract; ///< text of the last extract element
    int sampling = -1;   ///< row
    int interval = -1;   ///< row
    int threshold = -1;
    int hostNumber = -1;
    int hazard = -1;
    int typeNumber = -1;
    int dateVersion = 0;
    bool endless = false;
    bool hasTemperature = true;
    bool hasHumidity = false;
    std::vector<CMeasureRecord> lines;
    std::size_t newLines = 0; ///< lines of the present time behind those
};

/// `title`: what the data set had before.
PlainFile PlainRead(std::string_view bytes, const std::string& title = {});

/// Fails the test where a data set is not what `plain` says.
void ExpectSame(const CMeasureData& data, const PlainFile& plain);

} // namespace skeldon::test
