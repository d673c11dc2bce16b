#include "chart/model/TimeAxis.h"

#include "base/CalendarTime.h"
#include "base/NumberFormat.h"
#include "chart/model/Rounding.h"

#include <algorithm>
#include <array>
#include <span>

namespace skeldon {

namespace {

constexpr int MsPerSecond = 1000;
constexpr int SecondsPerMinute = 60;
constexpr int SecondsPerHour = 3600;
constexpr int SecondsPerDay = 86400;
constexpr int SecondsPerWeek = 7 * SecondsPerDay;
constexpr int SecondsPerMonth = 30 * SecondsPerDay;

/// What the first tick is rounded down in.
enum class Field
{
    Day,
    Hour,
    Minute,
    Second,
};

constexpr std::array DaySteps{1, 2, 5, 10, 30};
constexpr std::array HourSteps{1, 2, 3, 6, 12, 24};
constexpr std::array MinuteSteps{1, 2, 5, 10, 15, 20, 30, 60};

/// Spans of `atLeast` seconds and more are divided in steps of so many units.
struct TickRule
{
    std::int64_t atLeast;
    int unit; ///< in seconds
    std::span<const int> steps;
    Field field;
};

constexpr std::array<TickRule, 6> TickRules{{
    {5 * std::int64_t{SecondsPerMonth}, SecondsPerMonth, DaySteps, Field::Day},
    {5 * std::int64_t{SecondsPerWeek}, SecondsPerWeek, DaySteps, Field::Day},
    {5 * std::int64_t{SecondsPerDay}, SecondsPerDay, DaySteps, Field::Day},
    {5 * std::int64_t{SecondsPerHour}, SecondsPerHour, HourSteps, Field::Hour},
    {5 * std::int64_t{SecondsPerMinute}, SecondsPerMinute, MinuteSteps, Field::Minute},
    {0, 1, MinuteSteps, Field::Second},
}};

/// A span below this has ticks of less than a second.
constexpr std::int64_t SecondsFromMs = 5000;

struct FineRule
{
    std::int64_t atLeast; ///< milliseconds
    int tickMs;
};

constexpr std::array<FineRule, 5> FineRules{
    {{2500, 500}, {1000, 200}, {500, 100}, {250, 50}, {0, 20}}};

/// The ticks that a span should have at least.
constexpr int WantedTicks = 5;

/// The last step that is not above `limit`; the first one if all are.
int StepOf(std::span<const int> steps, std::int64_t limit)
{
    int step = steps.front();
    for (const int candidate : steps) {
        if (candidate <= limit)
            step = candidate;
    }
    return step;
}

/// The instant of `fields` rounded down to a multiple of `step` in `field`.
CalendarSeconds FirstTickSeconds(CalendarFields fields, Field field, int step)
{
    const auto roundDown = [step](int& value) { value = value / step * step; };
    switch (field) {
    case Field::Day:
        roundDown(fields.day);
        fields.hour = 0;
        fields.minute = 0;
        fields.second = 0;
        break;
    case Field::Hour:
        roundDown(fields.hour);
        fields.minute = 0;
        fields.second = 0;
        break;
    case Field::Minute:
        roundDown(fields.minute);
        fields.second = 0;
        break;
    case Field::Second:
        roundDown(fields.second);
        break;
    }
    // Before the first multiple of the month comes the last day of the month before.
    if (fields.day > 0)
        return FromLocalFields(fields);
    fields.day = 1;
    return FromLocalFields(fields) - SecondsPerDay;
}

/// Seconds and the milliseconds behind them, which are never negative.
struct SplitTime
{
    explicit SplitTime(std::int64_t time)
        : milliseconds(static_cast<unsigned>((time % MsPerSecond + MsPerSecond) % MsPerSecond))
        , seconds((time - milliseconds) / MsPerSecond)
    {}
    unsigned milliseconds;
    std::int64_t seconds;
};

std::string DateText(const CalendarFields& fields)
{
    char text[32];
    char* end = WriteInt(text, fields.month);
    *end++ = '/';
    return {text, WriteInt(end, fields.day)};
}

char* WriteMinuteAndSecond(char* out, int minute, int second)
{
    *out++ = ':';
    out = WriteTwoDigits(out, static_cast<unsigned>(minute));
    *out++ = ':';
    return WriteTwoDigits(out, static_cast<unsigned>(second));
}

std::string TimeText(const CalendarFields& fields)
{
    char text[32];
    char* const end = WriteTwoDigits(text, static_cast<unsigned>(fields.hour));
    return {text, WriteMinuteAndSecond(end, fields.minute, fields.second)};
}

std::string MillisecondText(unsigned milliseconds)
{
    char text[8] = ".";
    return {text, WriteZeroPadded(text + 1, milliseconds, 3)};
}

/// Whole hours, not wrapped at a day.
std::string ElapsedText(std::int64_t seconds)
{
    char text[40] = "+";
    char* const end = WriteInt(text + 1, seconds / SecondsPerHour);
    return {text,
            WriteMinuteAndSecond(end, static_cast<int>(seconds % SecondsPerHour / SecondsPerMinute),
                                 static_cast<int>(seconds % SecondsPerMinute))};
}

} // namespace

CTimeTicks PlanTimeTicks(std::int64_t paddedStart, std::int64_t paddedEnd,
                         std::optional<std::int64_t> elapsedFrom)
{
    const std::int64_t span = paddedEnd - paddedStart;
    if (span < SecondsFromMs) {
        int tickMs = FineRules.back().tickMs;
        for (const FineRule& rule : FineRules) {
            if (span >= rule.atLeast) {
                tickMs = rule.tickMs;
                break;
            }
        }
        return {elapsedFrom.value_or(paddedStart / tickMs * tickMs), 0, tickMs};
    }
    const std::int64_t seconds = span / MsPerSecond;
    const auto rule = std::ranges::find_if(
        TickRules, [seconds](const TickRule& r) { return seconds >= r.atLeast; });
    const int step = StepOf(rule->steps, seconds / rule->unit / WantedTicks);
    const std::int64_t first =
        elapsedFrom
            ? *elapsedFrom
            : FirstTickSeconds(ToLocalFields(paddedStart / MsPerSecond), rule->field, step) *
                  MsPerSecond;
    return {first, step * rule->unit, 0};
}

std::vector<TimeTick> VisibleTicks(const CTimeTicks& plan, const CTimeWindow& window)
{
    const std::int64_t interval = plan.Interval();
    // Ticks are on the plot from a column and a half before its start on: all earlier than two
    // columns are passed over at once.
    const std::int64_t before = window.m_paddedStart - Truncate64(2.0 / window.m_pixelsPerMs) - 1;
    const std::int64_t passed = std::max<std::int64_t>((before - plan.m_firstTick) / interval, 0);
    std::vector<TimeTick> ticks;
    for (std::int64_t time = plan.m_firstTick + passed * interval;; time += interval) {
        const std::int64_t column = window.Column(time);
        if (column > window.m_plotRight)
            break;
        if (column >= window.m_plotLeft)
            ticks.push_back({time, static_cast<int>(column)});
    }
    return ticks;
}

std::vector<TimeLabel> TimeLabels(const std::vector<TimeTick>& ticks, const CTimeTicks& plan,
                                  std::optional<std::int64_t> elapsedFrom, int labelHeight)
{
    std::vector<TimeLabel> labels;
    int dayBefore = 0;
    for (const TimeTick& tick : ticks) {
        const bool isElapsed = elapsedFrom && tick.time != *elapsedFrom;
        const bool isStart = elapsedFrom && !isElapsed;
        const SplitTime time(isElapsed ? tick.time - *elapsedFrom : tick.time);
        if (isElapsed) {
            labels.push_back({ElapsedText(time.seconds), tick.column});
        } else {
            const CalendarFields fields = ToLocalFields(time.seconds);
            if (isStart || fields.day != dayBefore)
                labels.push_back({DateText(fields), tick.column - labelHeight});
            dayBefore = fields.day;
            labels.push_back({TimeText(fields), tick.column});
        }
        if (plan.m_tickMs > 0 || isStart)
            labels.push_back({MillisecondText(time.milliseconds), tick.column + labelHeight});
    }
    return labels;
}

} // namespace skeldon
