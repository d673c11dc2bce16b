#include "korva-simulator/StateText.h"

#include "base/TextScan.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace skeldon {

namespace {

constexpr std::string_view Heading = "korva-simulator state 1";
constexpr std::array<std::string_view, 3> PhaseWords = {"idle", "started", "measuring"};
constexpr std::int64_t MostNumber = std::numeric_limits<std::int64_t>::max();

void AppendKey(std::string& text, std::string_view key, const std::string& value)
{
    text += key;
    text += ' ';
    text += value;
    text += '\n';
}

std::string_view TakeTextLine(std::string_view& text)
{
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

/// Reads the keys of a state text into a state.
class CStateReader
{
public:
    explicit CStateReader(CalendarSeconds now)
        : m_now(now)
    {}

    /// Gives false for a key that there is not, or a value that it can not have.
    bool Take(std::string_view key, std::string_view value)
    {
        return TakeRecorder(key, value) || TakeConditions(key, value) || TakeProgress(key, value);
    }

    /// The state with its clock gone on since it was saved.
    RecorderState Finish()
    {
        m_state.clock += std::max<std::int64_t>(m_now - m_saved, 0);
        return std::move(m_state);
    }

    RecorderState m_state;
    std::int64_t m_lines = 0;

private:
    bool TakeRecorder(std::string_view key, std::string_view value)
    {
        constexpr std::int64_t MostLines = 100'000'000;
        if (key == "seed") {
            const char* const end = value.data() + value.size();
            const auto [place, error] = std::from_chars(value.data(), end, m_state.seed);
            return error == std::errc() && place == end;
        }
        std::int64_t capacity = 0;
        if (key == "capacity" && Number(value, 0, MostLines, capacity)) {
            m_state.capacity = static_cast<std::size_t>(capacity);
            return true;
        }
        return (key == "type" && Number(value, 0, 999, m_state.type)) ||
               (key == "alpha" && Flag(value, m_state.alpha)) ||
               (key == "buzzer-key" && Flag(value, m_state.hasBuzzerKey)) ||
               (key == "saved" && Number(value, 0, MostNumber, m_saved)) ||
               (key == "lines" && Number(value, 0, MostLines, m_lines));
    }

    bool TakeConditions(std::string_view key, std::string_view value)
    {
        RecorderConditions& conditions = m_state.conditions;
        return (key == "sampling" && Character(value, conditions.sampling)) ||
               (key == "interval" && Character(value, conditions.interval)) ||
               (key == "threshold" && Number(value, 0, 99, conditions.threshold)) ||
               (key == "warn" && Number(value, 0, 9, conditions.warn)) ||
               (key == "host-number" && Number(value, 0, 99, conditions.hostNumber)) ||
               (key == "start-option" && Number(value, 0, 99, conditions.startOption)) ||
               (key == "hazard" && Number(value, 0, 99, conditions.hazard)) ||
               (key == "endless" && Flag(value, conditions.endless)) ||
               (key == "buzzer" && Flag(value, conditions.buzzer));
    }

    bool TakeProgress(std::string_view key, std::string_view value)
    {
        if (key == "phase") {
            const auto word = std::ranges::find(PhaseWords, value);
            m_state.phase = static_cast<RecorderPhase>(word - PhaseWords.begin());
            return word != PhaseWords.end();
        }
        return (key == "clock" && Time(value, m_state.clock)) ||
               (key == "begun" && Time(value, m_state.begun)) ||
               (key == "reservation" && Time(value, m_state.reservation)) ||
               (key == "running" && Time(value, m_state.runningSince)) ||
               (key == "noted" && Number(value, 0, MostNumber, m_state.noted)) ||
               (key == "magnet-seen" && Flag(value, m_state.magnetSeen)) ||
               (key == "over" && Flag(value, m_state.over));
    }

    template <typename Integer>
    static bool Number(std::string_view text, std::int64_t least, std::int64_t most,
                       Integer& number)
    {
        std::int64_t value = 0;
        const char* const end = text.data() + text.size();
        const auto [place, error] = std::from_chars(text.data(), end, value);
        if (error != std::errc() || place != end || value < least || value > most)
            return false;
        number = static_cast<Integer>(value);
        return true;
    }

    static bool Flag(std::string_view text, bool& flag)
    {
        flag = text == "1";
        return text == "0" || text == "1";
    }

    static bool Character(std::string_view text, char& character)
    {
        if (text.size() != 1)
            return false;
        character = text.front();
        return true;
    }

    template <typename Seconds>
    static bool Time(std::string_view text, Seconds& seconds)
    {
        const std::optional<RecorderSeconds> time = ParseRecorderTime(text);
        if (time)
            seconds = *time;
        return time.has_value();
    }

    CalendarSeconds m_now;
    std::int64_t m_saved = 0;
};

} // namespace

std::string StateText(const RecorderState& state, CalendarSeconds now)
{
    const RecorderConditions& conditions = state.conditions;
    std::string text;
    text.reserve(state.memory.Wire().size() + 1024);
    text += Heading;
    text += '\n';
    const auto number = [&](std::string_view key, auto value) {
        AppendKey(text, key, std::to_string(value));
    };
    const auto time = [&](std::string_view key, std::optional<RecorderSeconds> seconds) {
        if (seconds)
            AppendKey(text, key, RecorderTimeText(*seconds));
    };
    number("type", state.type);
    number("alpha", int{state.alpha});
    number("buzzer-key", int{state.hasBuzzerKey});
    number("seed", state.seed);
    number("capacity", state.capacity);
    AppendKey(text, "sampling", std::string(1, conditions.sampling));
    AppendKey(text, "interval", std::string(1, conditions.interval));
    number("threshold", conditions.threshold);
    number("warn", conditions.warn);
    number("host-number", conditions.hostNumber);
    number("start-option", conditions.startOption);
    number("hazard", conditions.hazard);
    number("endless", int{conditions.endless});
    number("buzzer", int{conditions.buzzer});
    time("clock", state.clock);
    number("saved", now);
    time("begun", state.begun);
    AppendKey(text, "phase", std::string(PhaseWords[static_cast<std::size_t>(state.phase)]));
    time("reservation", state.reservation);
    time("running", state.runningSince);
    number("noted", state.noted);
    number("magnet-seen", int{state.magnetSeen});
    number("over", int{state.over});
    number("lines", state.memory.Count());
    for (std::string_view wire = state.memory.Wire(); !wire.empty();) {
        text += TakeWireLine(wire);
        text += '\n';
    }
    return text;
}

std::variant<RecorderState, std::string> ParseStateText(std::string_view text, CalendarSeconds now)
{
    if (TakeTextLine(text) != Heading)
        return std::string("is no state of a recorder");
    CStateReader reader(now);
    for (int number = 2;; ++number) {
        if (text.empty())
            return std::string("ends before the recorder's lines");
        const std::string_view line = TakeTextLine(text);
        const std::size_t blank = std::min(line.find(' '), line.size());
        const std::string_view key = line.substr(0, blank);
        const std::string_view value = line.substr(std::min(blank + 1, line.size()));
        if (!reader.Take(key, value))
            return "line " + std::to_string(number) + " is not understood";
        if (key == "lines")
            break;
    }
    TakeRecordLines(reader.m_state.memory, text);
    if (static_cast<std::int64_t>(reader.m_state.memory.Count()) != reader.m_lines)
        return std::string("has another number of record lines than it says");
    return reader.Finish();
}

void TakeRecordLines(CRecordMemory& memory, std::string_view text)
{
    while (!text.empty()) {
        const std::string_view line = TrimWhite(TakeTextLine(text));
        if (!line.empty())
            memory.Append(line);
    }
}

std::optional<RecorderSeconds> BeginningOf(const CRecordMemory& memory, int year)
{
    std::optional<CalendarFields> time = LineTime(memory.First());
    if (!time)
        return std::nullopt;
    time->year = year;
    return FromRecorderFields(*time);
}

} // namespace skeldon
