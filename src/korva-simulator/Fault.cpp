#include "korva-simulator/Fault.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace skeldon {

namespace {

constexpr std::int64_t HalfLine = -1;

constexpr std::array<FaultForm, 22> Forms = {{
    {FaultKind::SilenceAfter, "silence-after", FaultValue::Number, "BYTES", 0,
     "a download or stream falls silent after so many bytes"},
    {FaultKind::Silence, "silence", FaultValue::Text, "COMMAND", 0,
     "commands that begin so are never heard"},
    {FaultKind::SilenceOnce, "silence-once", FaultValue::Text, "COMMAND", 0,
     "the next command that begins so is not heard"},
    {FaultKind::NoMark, "no-mark", FaultValue::OptionalText, "COMMAND", 0,
     "replies, or those to commands that begin so, lack their closing mark"},
    {FaultKind::Delay, "delay", FaultValue::Number, "MS", 0,
     "every reply comes so many milliseconds late"},
    {FaultKind::Garbage, "garbage", FaultValue::OptionalNumber, "BYTES", 16,
     "so many bytes of garbage, 16 without a number, before every reply"},
    {FaultKind::PullAfter, "pull-after", FaultValue::Number, "BYTES", 0,
     "the cable is pulled once, after so many bytes of a download or stream"},
    {FaultKind::PullAt, "pull-at", FaultValue::Number, "BYTES", 0,
     "the cable is pulled once, after so many bytes of whatever goes either way"},
    {FaultKind::TooFew, "too-few", FaultValue::OptionalNumber, "LINES", 1,
     "a download has so many lines, 1 without a number, less than announced"},
    {FaultKind::TooMany, "too-many", FaultValue::OptionalNumber, "LINES", 1,
     "a download has so many lines, 1 without a number, more than announced"},
    {FaultKind::ShortLine, "short-line", FaultValue::NumberPair, "LINE[:DIGITS]", HalfLine,
     "a line ends after so many digits, or half of them"},
    {FaultKind::CorruptLine, "corrupt-line", FaultValue::Number, "LINE", 0,
     "every third digit of a line arrives as another character"},
    {FaultKind::InvalidLine, "invalid-line", FaultValue::Number, "LINE", 0,
     "a line has a month that there is not"},
    {FaultKind::LowerCase, "lower-case", FaultValue::None, "", 0,
     "a download comes in lower-case digits"},
    {FaultKind::Break, "break", FaultValue::NumberPair, "LINE[:SECONDS]", 3600,
     "from a line on time stands back by so many seconds, or an hour"},
    {FaultKind::NewYear, "new-year", FaultValue::Number, "LINE", 0,
     "the memory is moved in time so that a line is the first of the next year"},
    {FaultKind::Count, "count", FaultValue::Text, "TEXT", 0,
     "the report announces that instead of its number of lines"},
    {FaultKind::NoCount, "no-count", FaultValue::None, "", 0,
     "the report does not tell its number of lines"},
    {FaultKind::YearOnly, "year-only", FaultValue::None, "", 0,
     "the report's date is a year without month and day"},
    {FaultKind::KeysTwice, "keys-twice", FaultValue::None, "", 0,
     "the report has keys a second time, with other values"},
    {FaultKind::EndlessReport, "endless-report", FaultValue::None, "", 0,
     "the report goes on until another command comes"},
    {FaultKind::LineFeeds, "line-feeds", FaultValue::None, "", 0,
     "the lines of the live stream end in carriage return and line feed"},
}};

/// Digits up to a million million; nothing else.
std::optional<std::int64_t> NumberOf(std::string_view text)
{
    constexpr std::size_t MostDigits = 12;
    const bool isNumber = !text.empty() && text.size() <= MostDigits &&
                          std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
    std::int64_t number = 0;
    if (!isNumber ||
        std::from_chars(text.data(), text.data() + text.size(), number).ec != std::errc())
        return std::nullopt;
    return number;
}

/// Whether `value`, if given, is of the form's kind; fills `fault` with it.
bool ReadValue(const FaultForm& form, std::optional<std::string_view> value, Fault& fault)
{
    switch (form.value) {
    case FaultValue::None:
        return !value;
    case FaultValue::Text:
    case FaultValue::OptionalText:
        fault.text = value.value_or("");
        return value || form.value == FaultValue::OptionalText;
    case FaultValue::OptionalNumber:
        fault.number = form.fallback;
        if (!value)
            return true;
        break;
    case FaultValue::NumberPair:
        fault.second = form.fallback;
        if (const std::size_t colon = value.value_or("").find(':');
            colon != std::string_view::npos) {
            const std::optional<std::int64_t> second = NumberOf(value->substr(colon + 1));
            if (!second)
                return false;
            fault.second = *second;
            value = value->substr(0, colon);
        }
        break;
    case FaultValue::Number:
        break;
    }
    const std::optional<std::int64_t> number = NumberOf(value.value_or(""));
    fault.number = number.value_or(0);
    return number.has_value();
}

} // namespace

std::span<const FaultForm> FaultForms()
{
    return Forms;
}

std::string FaultUsage(const FaultForm& form)
{
    std::string name(form.name);
    const std::string value(form.valueName);
    switch (form.value) {
    case FaultValue::None:
        return name;
    case FaultValue::OptionalNumber:
    case FaultValue::OptionalText:
        return name + "[=" + value + "]";
    default:
        return name + "=" + value;
    }
}

std::variant<Fault, std::string> ParseFault(std::string_view text)
{
    const std::size_t sign = text.find('=');
    const std::string_view name = text.substr(0, sign);
    const auto form = std::ranges::find(Forms, name, &FaultForm::name);
    if (form == Forms.end())
        return "\"" + std::string(name) + "\" is no fault";
    std::optional<std::string_view> value;
    if (sign != std::string_view::npos)
        value = text.substr(sign + 1);
    Fault fault{.kind = form->kind, .number = 0, .second = 0, .text = {}};
    if (!ReadValue(*form, value, fault))
        return "\"" + std::string(text) + "\" is not of the form " + FaultUsage(*form);
    return fault;
}

void CFaults::Remove(const Fault* fault)
{
    const auto place =
        std::ranges::find_if(m_faults, [&](const Fault& other) { return &other == fault; });
    if (place != m_faults.end())
        m_faults.erase(place);
}

void CFaults::CountDown(FaultKind kind, std::int64_t count)
{
    const auto fault = std::find_if(m_faults.rbegin(), m_faults.rend(),
                                    [&](const Fault& other) { return other.kind == kind; });
    if (fault != m_faults.rend())
        fault->number -= count;
}

const Fault* CFaults::Find(FaultKind kind) const
{
    const auto fault = std::find_if(m_faults.rbegin(), m_faults.rend(),
                                    [&](const Fault& other) { return other.kind == kind; });
    return fault == m_faults.rend() ? nullptr : &*fault;
}

const Fault* CFaults::FindFor(FaultKind kind, std::string_view command) const
{
    const auto fault = std::find_if(m_faults.rbegin(), m_faults.rend(), [&](const Fault& other) {
        return other.kind == kind && command.starts_with(other.text);
    });
    return fault == m_faults.rend() ? nullptr : &*fault;
}

} // namespace skeldon
