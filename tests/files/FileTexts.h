#pragma once

#include "data/MeasureData.h"
#include "files/DataFile.h"
#include "support/TemporaryFolder.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace skeldon::test {

// Pieces of data files, written as people would write them: LF, no indents.

inline constexpr std::string_view NewRoot = "<ravelin_data version=\"SKELDON 1.0\">\n";
inline constexpr std::string_view OldRoot = "<ravelin_data version=\"1.0\">\n";
inline constexpr std::string_view EndOfConfiguration = "</Configuration>\n";

/// A whole record whose x is `x` tenths of G; `more` stands before its end.
inline std::string Record(const std::string& x = "1.000", const std::string& more = {})
{
    return "<record>\n<date_time>2009/05/01 12:30:15</date_time>\n<msec>250</msec>\n<x>" + x +
           "</x>\n<y>-2.000</y>\n<z>0.500</z>\n<t>21.5</t>\n" + more + "</record>\n";
}

/// A current file with `keys` as its Configuration.
inline std::string NewFile(std::string_view keys, std::string_view records = {})
{
    return std::string(NewRoot) + std::string(keys) + std::string(EndOfConfiguration) +
           std::string(records);
}

inline std::string OldFile(std::string_view header, std::string_view records = {})
{
    return std::string(OldRoot) + std::string(header) + std::string(EndOfConfiguration) +
           std::string(records);
}

/// The outcome of reading `text`; `data` takes what it holds.
inline DataFileResult ReadDataText(CMeasureData& data, std::string_view text)
{
    const CTemporaryFolder folder;
    WriteText(folder / "a.skd", text);
    return ReadFile(data, folder / "a.skd");
}

/// The data set of `text`, which must be a data file.
inline CMeasureData DataOfText(std::string_view text)
{
    CMeasureData data;
    if (const DataFileResult result = ReadDataText(data, text); !result)
        throw std::runtime_error(DescribeDataFileError(result));
    return data;
}

} // namespace skeldon::test
