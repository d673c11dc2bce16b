#include "files/RecordMachine.h"

#include "base/TextScan.h"
#include "files/AxisUnit.h"
#include "files/LineTags.h"

namespace skeldon {

namespace {

struct Tags
{
    std::string_view open;
    std::string_view close;
};

/// In the order in which a line is held against them.
constexpr std::array<Tags, 8> Elements = {{
    {"<date_time>", "</date_time>"},
    {"<msec>", "</msec>"},
    {"<x>", "</x>"},
    {"<y>", "</y>"},
    {"<z>", "</z>"},
    {"<t>", "</t>"},
    {"<h>", "</h>"},
    {"<flag>", "</flag>"},
}};

/// A number of the date text at its fixed place.
int Part(std::string_view text, std::size_t at, std::size_t length)
{
    return at < text.size() ? ScanInt(text.substr(at, length)) : 0;
}

} // namespace

bool CRecordMachine::IsRecordStart(std::string_view line)
{
    return StartsWithNoCase(line, "<record>");
}

bool CRecordMachine::IsRecordEnd(std::string_view line)
{
    return StartsWithNoCase(line, "</record>");
}

CRecordMachine::Outcome CRecordMachine::TakeLine(std::string_view line, bool isCut)
{
    if (m_inRecord)
        return IsRecordEnd(line) ? Finish() : TakeElement(line, isCut);
    if (IsRecordStart(line)) {
        m_inRecord = true;
        for (std::string& text : m_texts)
            text.clear();
    }
    return Outcome::None;
}

CRecordMachine::Outcome CRecordMachine::TakeEnd()
{
    return m_inRecord ? Finish() : Outcome::None;
}

CRecordMachine::Outcome CRecordMachine::TakeElement(std::string_view line, bool isCut)
{
    if (line.empty() || line.front() != '<')
        return Outcome::None;
    const std::size_t count = m_withFlags ? Text::Count : Text::Flag;
    for (std::size_t i = 0; i < count; ++i) {
        if (!m_texts[i].empty())
            continue;
        if (isCut && StartsWithNoCase(line, Elements[i].open))
            return Outcome::ElementCut;
        const std::string_view value = Between(line, Elements[i].open, Elements[i].close);
        if (!value.empty()) {
            m_texts[i] = value;
            break;
        }
    }
    return Outcome::None;
}

CalendarSeconds CRecordMachine::Time()
{
    const std::string_view text = m_texts[DateTime];
    return m_calendar.ToSeconds({Part(text, 0, 4), Part(text, 5, 2), Part(text, 8, 2),
                                 Part(text, 11, 2), Part(text, 14, 2), Part(text, 17, 2)});
}

CRecordMachine::Outcome CRecordMachine::Finish()
{
    m_inRecord = false;
    for (const Text needed : {DateTime, Msec, X, Y, Z, Temperature}) {
        if (m_texts[needed].empty())
            return Outcome::None;
    }
    m_record.SetValues(Time(), static_cast<std::uint32_t>(ScanInt(m_texts[Msec])),
                       ScanDouble(m_texts[X]) * GPerFileUnit, ScanDouble(m_texts[Y]) * GPerFileUnit,
                       ScanDouble(m_texts[Z]) * GPerFileUnit, ScanDouble(m_texts[Temperature]),
                       HasHumidity() ? ScanDouble(m_texts[Humidity]) : 0.0);
    m_record.SetFlags(static_cast<std::uint16_t>(ScanInt(m_texts[Flag])));
    return Outcome::Record;
}

} // namespace skeldon
