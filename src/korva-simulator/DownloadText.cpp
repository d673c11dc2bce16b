#include "korva-simulator/DownloadText.h"

#include "base/TextScan.h"

#include <algorithm>
#include <array>

namespace skeldon {

namespace {

constexpr std::array LineFaults = {
    FaultKind::TooFew,      FaultKind::TooMany,   FaultKind::ShortLine, FaultKind::CorruptLine,
    FaultKind::InvalidLine, FaultKind::LowerCase, FaultKind::Break,     FaultKind::NewYear};

/// The year that a line of the memory belongs to: dates before the one on which it begins lie in
/// the year after.
int YearOf(const CalendarFields& line, const CalendarFields& begun)
{
    const bool isNext = line.month * 100 + line.day < begun.month * 100 + begun.day;
    return isNext ? begun.year + 1 : begun.year;
}

/// Spoils one line after the other.
class CLineSpoiler
{
public:
    CLineSpoiler(const RecorderState& state, const CFaults& faults)
        : m_faults(faults)
        , m_begun(ToRecorderFields(state.begun))
        , m_newYearShift(NewYearShift(state, faults))
    {}

    void Append(std::string& text, std::int64_t number, std::string_view digits)
    {
        m_line = digits;
        RecorderSeconds shift = m_newYearShift;
        for (const Fault& fault : m_faults.All()) {
            if (fault.kind == FaultKind::Break && number >= fault.number)
                shift -= fault.second;
        }
        const std::optional<CalendarFields> time = LineTime(m_line);
        if (shift != 0 && time)
            ShiftLine(m_line, YearOf(*time, m_begun), shift);
        for (const Fault& fault : m_faults.All()) {
            if (fault.number == number || fault.kind == FaultKind::LowerCase)
                Spoil(fault);
        }
        text += m_line;
        text += "\r\n";
    }

private:
    void Spoil(const Fault& fault)
    {
        const auto size = static_cast<std::int64_t>(m_line.size());
        if (fault.kind == FaultKind::ShortLine) {
            const std::int64_t digits = fault.second < 0 ? size / 2 : fault.second;
            m_line.resize(static_cast<std::size_t>(std::min(digits, size)));
        } else if (fault.kind == FaultKind::CorruptLine) {
            for (std::size_t i = 2; i < m_line.size(); i += 3)
                m_line[i] = '?';
        } else if (fault.kind == FaultKind::InvalidLine && !m_line.empty()) {
            m_line.front() = '0';
        } else if (fault.kind == FaultKind::LowerCase) {
            std::ranges::transform(m_line, m_line.begin(), ToLowerAscii);
        }
    }

    const CFaults& m_faults;
    CalendarFields m_begun;
    RecorderSeconds m_newYearShift;
    std::string m_line;
};

/// The digits of line `number`; nothing where the memory ends before it.
std::optional<std::string_view> LineAt(const CRecordMemory& memory, std::int64_t number)
{
    if (number >= static_cast<std::int64_t>(memory.Count()))
        return std::nullopt;
    std::string_view wire = memory.Wire();
    for (std::int64_t i = 0; i < number; ++i)
        (void)TakeWireLine(wire);
    return TakeWireLine(wire);
}

} // namespace

RecorderSeconds NewYearShift(const RecorderState& state, const CFaults& faults)
{
    const Fault* const fault = faults.Find(FaultKind::NewYear);
    const std::optional<std::string_view> line =
        fault ? LineAt(state.memory, fault->number) : std::nullopt;
    std::optional<CalendarFields> time = line ? LineTime(*line) : std::nullopt;
    if (!time)
        return 0;
    const CalendarFields begun = ToRecorderFields(state.begun);
    time->year = YearOf(*time, begun);
    return FromRecorderFields({.year = begun.year + 1}) - FromRecorderFields(*time);
}

std::optional<std::string> SpoiltDownload(const RecorderState& state, const CFaults& faults)
{
    const bool isSpoilt =
        std::ranges::any_of(LineFaults, [&](FaultKind kind) { return faults.Has(kind); });
    if (!isSpoilt)
        return std::nullopt;
    const auto lines = static_cast<std::int64_t>(state.memory.Count());
    const Fault* const few = faults.Find(FaultKind::TooFew);
    const Fault* const many = faults.Find(FaultKind::TooMany);
    const std::int64_t sent = std::max<std::int64_t>(lines - (few ? few->number : 0), 0);
    CLineSpoiler spoiler(state, faults);
    std::string text;
    text.reserve(state.memory.Wire().size());
    std::string_view wire = state.memory.Wire();
    std::string_view line;
    for (std::int64_t i = 0; i < sent; ++i) {
        line = TakeWireLine(wire);
        spoiler.Append(text, i, line);
    }
    // What comes behind the memory is its last line over and over.
    constexpr std::int64_t MostLines = 10'000'000;
    const std::int64_t more = many && sent > 0 ? std::min(many->number, MostLines) : 0;
    for (std::int64_t i = 0; i < more; ++i)
        spoiler.Append(text, sent + i, line);
    return text;
}

} // namespace skeldon
