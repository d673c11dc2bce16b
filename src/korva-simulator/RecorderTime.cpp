#include "korva-simulator/RecorderTime.h"

#include <array>
#include <chrono>
#include <cstdio>

namespace skeldon {

namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

year_month_day DateOf(const CalendarFields& fields)
{
    return {year(fields.year), month(static_cast<unsigned>(fields.month)),
            day(static_cast<unsigned>(fields.day))};
}

/// The digits of `text` in the places of the letters of "YYYY-MM-DD HH:MM:SS" that it reaches.
bool ScanForm(std::string_view text, std::array<int, 6>& numbers)
{
    constexpr std::string_view Form = "0000-11-22 33:44:55";
    if (text.size() > Form.size())
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isNumber = Form[i] >= '0' && Form[i] <= '5';
        if (!isNumber) {
            if (text[i] != Form[i])
                return false;
            continue;
        }
        if (text[i] < '0' || text[i] > '9')
            return false;
        int& number = numbers[static_cast<std::size_t>(Form[i] - '0')];
        number = number * 10 + (text[i] - '0');
    }
    return true;
}

} // namespace

RecorderSeconds FromRecorderFields(const CalendarFields& fields)
{
    const RecorderSeconds date = sys_days(DateOf(fields)).time_since_epoch().count();
    return date * SecondsPerDay + fields.hour * 3600 + fields.minute * 60 + fields.second;
}

CalendarFields ToRecorderFields(RecorderSeconds seconds)
{
    const RecorderSeconds time = (seconds % SecondsPerDay + SecondsPerDay) % SecondsPerDay;
    const auto date = static_cast<days::rep>((seconds - time) / SecondsPerDay);
    const year_month_day fields{sys_days(days(date))};
    return {.year = static_cast<int>(fields.year()),
            .month = static_cast<int>(static_cast<unsigned>(fields.month())),
            .day = static_cast<int>(static_cast<unsigned>(fields.day())),
            .hour = static_cast<int>(time / 3600),
            .minute = static_cast<int>(time / 60 % 60),
            .second = static_cast<int>(time % 60)};
}

std::optional<RecorderSeconds> ParseRecorderTime(std::string_view text)
{
    constexpr std::size_t DateLength = 10;
    constexpr std::size_t MinuteLength = 16;
    constexpr std::size_t WholeLength = 19;
    if (text.size() != DateLength && text.size() != MinuteLength && text.size() != WholeLength)
        return std::nullopt;
    std::array<int, 6> numbers{};
    if (!ScanForm(text, numbers))
        return std::nullopt;
    const CalendarFields fields{.year = numbers[0],
                                .month = numbers[1],
                                .day = numbers[2],
                                .hour = numbers[3],
                                .minute = numbers[4],
                                .second = numbers[5]};
    if (!DateOf(fields).ok() || fields.hour > 23 || fields.minute > 59 || fields.second > 59)
        return std::nullopt;
    return FromRecorderFields(fields);
}

std::string RecorderTimeText(RecorderSeconds seconds)
{
    const CalendarFields fields = ToRecorderFields(seconds);
    std::array<char, 64> text{};
    (void)std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", fields.year,
                        fields.month, fields.day, fields.hour, fields.minute, fields.second);
    return text.data();
}

} // namespace skeldon
