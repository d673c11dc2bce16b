// Times on the command line.
#include "base/TextScan.h"
#include "skeldonctl/CommandLine.h"

#include <algorithm>
#include <string_view>

namespace skeldon {

namespace {

constexpr std::string_view MinuteForm = "dddd-dd-dd dd:dd";
constexpr std::string_view SecondForm = ":dd";
constexpr std::string_view MsecForm = ".ddd";
constexpr std::int64_t MsecPerSecond = 1000;

bool HasForm(std::string_view text, std::string_view form)
{
    return std::ranges::equal(text, form, [](char given, char wanted) {
        return wanted == 'd' ? given >= '0' && given <= '9' : given == wanted;
    });
}

int NumberAt(std::string_view text, std::size_t position, std::size_t digits)
{
    return ScanInt(text.substr(position, digits));
}

} // namespace

std::optional<CalendarFields> ParseMinute(const std::string& text)
{
    if (!HasForm(text, MinuteForm))
        return std::nullopt;
    const CalendarFields fields{.year = NumberAt(text, 0, 4),
                                .month = NumberAt(text, 5, 2),
                                .day = NumberAt(text, 8, 2),
                                .hour = NumberAt(text, 11, 2),
                                .minute = NumberAt(text, 14, 2),
                                .second = 0};
    // What the calendar would roll over, such as February 30th, names no day. An hour that the
    // clock skips is left to it. Noon is there on every day.
    CalendarFields noon = fields;
    noon.hour = 12;
    noon.minute = 0;
    const bool isDay = ToLocalFields(FromLocalFields(noon)) == noon;
    if (!isDay || fields.hour > 23 || fields.minute > 59)
        return std::nullopt;
    return fields;
}

std::optional<std::int64_t> ParseInstant(const std::string& text)
{
    constexpr int LastSecond = 59;
    const auto minute = ParseMinute(text.substr(0, MinuteForm.size()));
    if (!minute)
        return std::nullopt;
    const std::string_view rest = std::string_view(text).substr(MinuteForm.size());
    const std::string_view msec = rest.substr(std::min(rest.size(), SecondForm.size()));
    if (!HasForm(rest.substr(0, SecondForm.size()), SecondForm) ||
        (!msec.empty() && !HasForm(msec, MsecForm)))
        return std::nullopt;
    CalendarFields fields = *minute;
    fields.second = NumberAt(rest, 1, 2);
    if (fields.second > LastSecond)
        return std::nullopt;
    return FromLocalFields(fields) * MsecPerSecond + (msec.empty() ? 0 : NumberAt(msec, 1, 3));
}

} // namespace skeldon
