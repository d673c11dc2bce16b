#pragma once

#include "base/CalendarTime.h"
#include "data/MeasureRecord.h"

#include <cstddef>

namespace skeldon {

/// Room that the group of one record may need, with the longest numbers in it.
inline constexpr std::size_t RecordTextLimit = 3072;

/// Writes records as groups of a data file, line ends CR LF. Not for use by two threads at once.
class CRecordWriter
{
public:
    explicit CRecordWriter(bool withHumidity)
        : m_withHumidity(withHumidity)
    {}

    /// Gives the end of the text; `out` has room for `RecordTextLimit`.
    char* Write(char* out, const CMeasureRecord& record);

private:
    bool m_withHumidity;
    CLocalCalendar m_calendar;
};

/// Reads groups exactly as `CRecordWriter` writes them, many times faster than line by line. Not
/// for use by two threads at once.
class CRecordReader
{
public:
    /// `withFlags`: whether the file's version has flags.
    explicit CRecordReader(bool withFlags)
        : m_withFlags(withFlags)
    {}

    /// Reads the group that begins at `text`. Gives its end, or null where the text up to `end`
    /// does not hold one of exactly that form: it must then be read line by line.
    [[nodiscard]] const char* Read(const char* text, const char* end, CMeasureRecord& record,
                                   bool& hasHumidity);

private:
    bool m_withFlags;
    CLocalCalendar m_calendar;
};

} // namespace skeldon
