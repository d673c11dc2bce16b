#include "setup/conditions/SaveFileName.h"

#include "base/NumberFormat.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace skeldon {

namespace {

constexpr int LongestNumber = 20;

void AppendPadded(std::string& text, int value, int width)
{
    std::array<char, LongestNumber> buffer{};
    char* const begin = buffer.data();
    text.append(begin, WriteZeroPadded(begin, static_cast<std::uint64_t>(value), width));
}

} // namespace

std::string MakeTimeStamp(CalendarSeconds now)
{
    const CalendarFields time = ToLocalFields(now);
    std::string stamp;
    AppendPadded(stamp, time.year, 4);
    AppendPadded(stamp, time.month, 2);
    AppendPadded(stamp, time.day, 2);
    stamp += '_';
    AppendPadded(stamp, time.hour, 2);
    AppendPadded(stamp, time.minute, 2);
    AppendPadded(stamp, time.second, 2);
    return stamp;
}

std::string MakeSaveFileName(int saveType, int hostNumber, std::string_view text,
                             CalendarSeconds now)
{
    constexpr int HighestHostNumber = 99;
    std::string number;
    AppendPadded(number, std::clamp(hostNumber, 0, HighestHostNumber), 2);
    std::string name = number;
    if (saveType == 1 && !text.empty())
        name.append("_").append(text);
    else if (saveType == 2 && !text.empty())
        name.insert(0, "_").insert(0, text);
    return name + "_" + MakeTimeStamp(now) + ".skd";
}

} // namespace skeldon
