#pragma once

#include "files/DataFile.h"
#include "files/StringOutput.h"

#include <gtest/gtest.h>

#include <string>

namespace skeldon::test {

/// So many lines, a second apart; `x` tells one data set from another.
inline CMeasureData Lines(std::size_t count, double x = 1.0)
{
    CMeasureData data;
    CMeasureRecord line{CalendarSeconds{0}};
    for (std::size_t i = 0; i < count; ++i) {
        line.SetValues(1234567890 + static_cast<CalendarSeconds>(i), 0, x, 2.0, 3.0, 20.0, 0.0);
        data.AddRecord(line);
    }
    return data;
}

/// The data file that a data set becomes, saved at `saveTime`.
inline std::string TextOf(const CMeasureData& data, CalendarSeconds saveTime = 0)
{
    CStringOutput output;
    EXPECT_FALSE(FormatDataFile(data, saveTime, output));
    return output.m_text;
}

} // namespace skeldon::test
