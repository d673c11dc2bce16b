#include "data/PlainAnalysis.h"

#include "base/PlainCalendar.h"
#include "data/SameRecord.h"

#include <gtest/gtest.h>

namespace skeldon {

namespace {

CalendarSeconds NextYear(CalendarSeconds time)
{
    const std::tm tm = PlainLocal(time);
    return PlainInstant(tm.tm_year + 1901, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min,
                        tm.tm_sec);
}

std::int64_t Milliseconds(const CMeasureRecord& line)
{
    return line.m_time * 1000 + static_cast<std::int64_t>(line.m_msec);
}

/// As a record keeps it; wraps.
void SetKey(CMeasureRecord& line)
{
    const auto instant = static_cast<std::uint64_t>(Milliseconds(line) + 1);
    line.m_checkKey = static_cast<std::int64_t>(instant * (std::uint64_t{line.m_flags} + 1));
}

} // namespace

void PlainAnalysis::Analyse(bool fromFile, int month, int day, CalendarSeconds now)
{
    std::vector<CMeasureRecord> kept;
    kept.swap(lines);
    *this = PlainAnalysis{};
    lines.swap(kept);
    if (lines.empty())
        return;
    std::int64_t previous = Milliseconds(lines[0]);
    auto breakAt = static_cast<long>(lines.size());
    int sticky = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        CMeasureRecord line = lines[i];
        int own = 0;
        for (const double axis : {line.m_x, line.m_y, line.m_z}) {
            const double size = axis < 0 ? -axis : axis;
            if (size > maxAbs)
                maxAbs = size;
        }
        if (line.m_flags & 0x09F0)
            ++extractCount;
        if (line.m_flags & 0x0001)
            marks.push_back(static_cast<std::uint32_t>(i));
        if (line.m_temperature > 100.0 || line.m_temperature < -100.0) {
            own = 0x4000;
            badTemperature = true;
        }
        if (line.m_humidity < 0.0 || line.m_humidity > 100.0) {
            own = 0x4000;
            badHumidity = true;
        }
        if (line.m_msec > 999) {
            line.m_msec = 999;
            own = 0x4000;
            badMsec = true;
        }
        const int start = month * 100 + day;
        if (!fromFile && start > 100) {
            const std::tm date = PlainLocal(line.m_time);
            if ((date.tm_mon + 1) * 100 + date.tm_mday < start)
                line.m_time = NextYear(line.m_time);
        }
        const std::int64_t time = Milliseconds(line);
        if (sticky == 0 && previous > time) {
            breakAt = static_cast<long>(i);
            if (line.m_time > now)
                yearRepairable = true;
            sticky = 0x6000;
            badTime = true;
        }
        if ((own | sticky) & 0x4000)
            ++abnormalCount;
        if (i > 0 && abnormalCount == 0 && time > previous && time - previous < minStepMs)
            minStepMs = time - previous;
        line.m_flags = static_cast<std::uint16_t>(line.m_flags | own | sticky);
        SetKey(line);
        lines[i] = line;
        previous = time;
    }
    firstBreak = breakAt;
}

bool PlainAnalysis::RepairYear()
{
    if (!yearRepairable || lines.size() < 2)
        return false;
    const auto first = static_cast<std::size_t>(firstBreak);
    for (std::size_t i = first + 1; i < lines.size(); ++i) {
        if (Milliseconds(lines[i]) < Milliseconds(lines[i - 1]))
            return false;
    }
    for (std::size_t i = first; i < lines.size(); ++i) {
        lines[i].m_time = NextYear(lines[i].m_time);
        lines[i].m_flags &= 0xDFFF;
        SetKey(lines[i]);
    }
    badTime = false;
    firstBreak = static_cast<long>(lines.size());
    return true;
}

std::int64_t PlainAnalysis::Signature() const
{
    auto s = static_cast<std::uint64_t>(lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::uint64_t product = static_cast<std::uint64_t>(lines[i].m_checkKey) * (i + 1);
        const std::uint64_t t = i % 2 == 1 ? s + product : s - product;
        s = t * 2 + (static_cast<std::int64_t>(t) < 0 ? 1 : 0);
    }
    return static_cast<std::int64_t>(s);
}

void ExpectSame(const CMeasureData& data, const PlainAnalysis& plain)
{
    ASSERT_EQ(data.GetSize(), plain.lines.size());
    for (std::size_t i = 0; i < plain.lines.size(); ++i)
        ASSERT_TRUE(SameRecord(data.GetRecord(i), plain.lines[i])) << "line " << i;
    EXPECT_EQ(data.m_firstBreak, plain.firstBreak);
    EXPECT_EQ(data.m_abnormalCount, plain.abnormalCount);
    EXPECT_EQ(data.m_marks, plain.marks);
    EXPECT_EQ(data.m_extractCount, plain.extractCount);
    EXPECT_TRUE(SameBits(data.m_maxAbs, plain.maxAbs));
    EXPECT_EQ(data.m_minStepMs, plain.minStepMs);
    EXPECT_EQ(data.m_badTemperature, plain.badTemperature);
    EXPECT_EQ(data.m_badHumidity, plain.badHumidity);
    EXPECT_EQ(data.m_badMsec, plain.badMsec);
    EXPECT_EQ(data.m_badTime, plain.badTime);
    EXPECT_EQ(data.m_yearRepairable, plain.yearRepairable);
    EXPECT_EQ(data.ComputeSignature(), plain.Signature());
}

} // namespace skeldon
