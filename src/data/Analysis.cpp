#include "data/MeasureData.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skeldon {

namespace {

constexpr double TemperatureLimit = 100.0; // degrees Celsius, either sign
constexpr double HumidityLimit = 100.0;    // percent
constexpr std::uint32_t MsecLimit = 999;
constexpr std::int64_t LongestStepMs = 5000;

/// Finds the lines dated before the month and day of the status report: those belong to the next
/// year. The date is converted once a day, not once a line.
class CStartDateRule
{
public:
    CStartDateRule(const AnalysisSetting& setting, bool fromFile)
        : m_start(std::int64_t{setting.startMonth} * 100 + setting.startDay)
        , m_on(!fromFile && m_start > 100)
    {}

    [[nodiscard]] CalendarSeconds Apply(CalendarSeconds time)
    {
        if (!m_on)
            return time;
        if (!m_day.Holds(time)) {
            m_day = PlainDayOf(time);
            if (!m_day.Holds(time))
                return ApplyTo(ToLocalFields(time), time);
            // A whole day moves alike only if the clock is not changed on the day it moves to.
            const CalendarSeconds moved =
                ApplyTo({m_day.year, m_day.month, m_day.day, 0, 0, 0}, m_day.begin);
            const LocalDay next = PlainDayOf(moved);
            m_shift = moved - m_day.begin;
            if (next.begin != moved || next.begin == next.end) {
                m_day = {};
                return ApplyTo(ToLocalFields(time), time);
            }
        }
        return time + m_shift;
    }

private:
    [[nodiscard]] CalendarSeconds ApplyTo(const CalendarFields& fields, CalendarSeconds time) const
    {
        return fields.month * 100 + fields.day < m_start ? OneYearLater(fields) : time;
    }

    std::int64_t m_start; ///< month x 100 + day
    bool m_on;
    LocalDay m_day;
    CalendarSeconds m_shift = 0;
};

/// The larger of the two, and `a` where `b` is no number.
double Largest(double a, double b)
{
    return b > a ? b : a;
}

bool IsBadTemperature(double celsius)
{
    return std::fabs(celsius) > TemperatureLimit;
}

bool IsBadHumidity(double percent)
{
    return percent < 0.0 || percent > HumidityLimit;
}

} // namespace

void CMeasureData::Analyse(const AnalysisSetting& setting)
{
    m_firstBreak = -1;
    m_abnormalCount = 0;
    m_marks.clear();
    m_maxAbs = 0.0;
    m_minStepMs = LongestStepMs;
    m_extractCount = 0;
    m_badTemperature = m_badHumidity = m_badMsec = m_badTime = m_yearRepairable = false;
    if (m_records.empty())
        return;

    CStartDateRule startDate(setting, m_fromFile);
    std::int64_t previous = m_records.front().TimeMs();
    std::ptrdiff_t breakAt = static_cast<std::ptrdiff_t>(m_records.size());
    std::uint16_t sticky = 0;
    double maxAbs = 0.0;
    std::int64_t minStep = LongestStepMs;
    std::uint32_t index = 0;
    for (CMeasureRecord& record : m_records) {
        maxAbs = Largest(maxAbs, std::fabs(record.m_x));
        maxAbs = Largest(maxAbs, std::fabs(record.m_y));
        maxAbs = Largest(maxAbs, std::fabs(record.m_z));
        if (record.HasFlag(RecordFlag::Extracted))
            ++m_extractCount;
        if (record.HasFlag(RecordFlag::Marked))
            m_marks.push_back(index);
        std::uint16_t own = 0;
        if (IsBadTemperature(record.m_temperature)) {
            own = RecordFlag::Abnormal;
            m_badTemperature = true;
        }
        if (IsBadHumidity(record.m_humidity)) {
            own = RecordFlag::Abnormal;
            m_badHumidity = true;
        }
        if (record.m_msec > MsecLimit) {
            record.m_msec = MsecLimit;
            own = RecordFlag::Abnormal;
            m_badMsec = true;
        }
        record.m_time = startDate.Apply(record.m_time);
        const std::int64_t time = record.TimeMs();
        if (sticky == 0 && previous > time) {
            breakAt = static_cast<std::ptrdiff_t>(index);
            m_yearRepairable = record.m_time > setting.now;
            sticky = RecordFlag::Abnormal | RecordFlag::BehindBreak;
            m_badTime = true;
        }
        if (((own | sticky) & RecordFlag::Abnormal) != 0)
            ++m_abnormalCount;
        if (index > 0 && m_abnormalCount == 0 && time > previous)
            minStep = std::min(minStep, time - previous);
        record.SetFlags(static_cast<std::uint16_t>(record.m_flags | own | sticky));
        previous = time;
        ++index;
    }
    m_maxAbs = maxAbs;
    m_minStepMs = minStep;
    m_firstBreak = breakAt;
    LinesChanged();
}

bool CMeasureData::RepairYear()
{
    const auto count = static_cast<std::ptrdiff_t>(m_records.size());
    if (!m_yearRepairable || count < 2)
        return false;
    // Lines may have been dropped since the analysis.
    if (m_firstBreak < 0 || m_firstBreak >= count)
        return false;
    const auto first = m_records.begin() + m_firstBreak;
    const auto runsBackwards = [](const CMeasureRecord& a, const CMeasureRecord& b) {
        return a.TimeMs() > b.TimeMs();
    };
    if (std::adjacent_find(first, m_records.end(), runsBackwards) != m_records.end())
        return false;
    CLocalCalendar before;
    CLocalCalendar after;
    for (auto record = first; record != m_records.end(); ++record) {
        CalendarFields fields = before.ToFields(record->m_time);
        fields.year += 1;
        record->m_time = after.ToSeconds(fields);
        record->SetFlags(record->m_flags & static_cast<std::uint16_t>(~RecordFlag::BehindBreak));
    }
    m_badTime = false;
    m_firstBreak = count;
    LinesChanged();
    return true;
}

} // namespace skeldon
