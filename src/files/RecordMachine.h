#pragma once

#include "base/CalendarTime.h"
#include "data/MeasureRecord.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace skeldon {

/// Finds records in the lines of a data file, line by line, whatever the order of their elements
/// and whatever stands between. Not for use by two threads at once.
class CRecordMachine
{
public:
    enum class Outcome
    {
        None,       ///< the line ended no record
        Record,     ///< the line ended a record: see `GetRecord`
        ElementCut, ///< a value is longer than any line may be
    };

    /// `withFlags`: whether the file's version has flags.
    explicit CRecordMachine(bool withFlags)
        : m_withFlags(withFlags)
    {}

    /// Takes a line without white space at its ends. `isCut`: it is only the start of one.
    [[nodiscard]] Outcome TakeLine(std::string_view line, bool isCut = false);
    /// The file has ended: a record without its end still counts.
    [[nodiscard]] Outcome TakeEnd();

    [[nodiscard]] bool IsInRecord() const { return m_inRecord; }
    [[nodiscard]] const CMeasureRecord& GetRecord() const { return m_record; }
    /// The record has a humidity element.
    [[nodiscard]] bool HasHumidity() const { return !m_texts[Humidity].empty(); }

    /// Whether the line begins a record, and so counts.
    [[nodiscard]] static bool IsRecordStart(std::string_view line);
    [[nodiscard]] static bool IsRecordEnd(std::string_view line);

private:
    enum Text : std::size_t
    {
        DateTime,
        Msec,
        X,
        Y,
        Z,
        Temperature,
        Humidity,
        Flag,
        Count
    };

    [[nodiscard]] Outcome TakeElement(std::string_view line, bool isCut);
    [[nodiscard]] Outcome Finish();
    [[nodiscard]] CalendarSeconds Time();

    bool m_withFlags;
    bool m_inRecord = false;
    std::array<std::string, Count> m_texts;
    CMeasureRecord m_record;
    CLocalCalendar m_calendar;
};

} // namespace skeldon
