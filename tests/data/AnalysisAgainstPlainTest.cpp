// The analysis, the year repair and the signature against the plain walk, on random data.
#include "base/ZoneScope.h"
#include "data/PlainAnalysis.h"

#include <limits>
#include <random>

#include <gtest/gtest.h>

namespace skeldon {
namespace {

class CRandomLines
{
public:
    explicit CRandomLines(std::uint64_t seed)
        : m_random(seed)
    {}

    [[nodiscard]] std::uint64_t Below(std::uint64_t limit) { return m_random() % limit; }

    std::vector<CMeasureRecord> Make(std::size_t count)
    {
        std::vector<CMeasureRecord> lines;
        // Anywhere from 2000 to 2030, half of all near the end of a year, a clock change or Feb 29.
        CalendarSeconds time = 946684800 + static_cast<CalendarSeconds>(Below(946684800));
        if (Below(2) == 0)
            time = NearASpecialDay();
        const CalendarSeconds step = Steps[Below(std::size(Steps))];
        const bool isClean = Below(3) == 0;
        for (std::size_t i = 0; i < count; ++i) {
            CMeasureRecord line{CalendarSeconds{0}};
            const bool isOdd = !isClean && Below(40) == 0;
            line.SetValues(time, isOdd ? OddMsec() : static_cast<std::uint32_t>(Below(1000)),
                           Axis(isOdd), Axis(isOdd), Axis(isOdd), Climate(isOdd, -60),
                           Climate(isOdd, 0));
            if (Below(8) == 0)
                line.SetFlags(static_cast<std::uint16_t>(Below(0x10000)));
            lines.push_back(line);
            time += static_cast<CalendarSeconds>(Below(static_cast<std::uint64_t>(step) + 1));
            if (!isClean && Below(200) == 0)
                time += static_cast<CalendarSeconds>(Below(80'000'000)) - 40'000'000;
        }
        return lines;
    }

private:
    static constexpr CalendarSeconds Steps[] = {0, 1, 5, 300, 3600, 40000, 1'000'000};

    CalendarSeconds NearASpecialDay()
    {
        const int year = 2004 + static_cast<int>(Below(20));
        const CalendarFields days[] = {{year, 12, 31, 23, 0, 0}, {year, 2, 28, 12, 0, 0},
                                       {year, 3, 28, 0, 0, 0},   {year, 10, 26, 0, 0, 0},
                                       {year, 10, 18, 20, 0, 0}, {year, 11, 1, 20, 0, 0}};
        return FromLocalFields(days[Below(std::size(days))]);
    }
    std::uint32_t OddMsec()
    {
        const std::uint32_t odd[] = {999, 1000, 65535, 0x80000000U, 0xFFFFFFFFU};
        return odd[Below(std::size(odd))];
    }
    double Axis(bool isOdd)
    {
        using Limits = std::numeric_limits<double>;
        const double odd[] = {Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(), -0.0,
                              -1e300};
        return isOdd ? odd[Below(std::size(odd))] : static_cast<double>(Below(2001)) / 20.0 - 50.0;
    }
    double Climate(bool isOdd, double lowest)
    {
        const double odd[] = {100.0,  100.1,  -0.1,
                              -100.0, -100.1, std::numeric_limits<double>::infinity()};
        return isOdd ? odd[Below(std::size(odd))]
                     : lowest + static_cast<double>(Below(1000)) / 10.0;
    }

    std::mt19937_64 m_random;
};

/// A data set of `lines`, filled in one of the ways there are.
CMeasureData Filled(const std::vector<CMeasureRecord>& lines, std::uint64_t way)
{
    CMeasureData data;
    if (way == 0) {
        data.AddRecords(lines);
    } else if (way == 1) {
        for (const CMeasureRecord& line : lines)
            data.AddRecord(line);
    } else {
        data.SetSize(lines.size());
        for (std::size_t i = 0; i < lines.size(); ++i)
            data.SetRecord(i, lines[i]);
    }
    return data;
}

TEST(AnalysisAgainstPlain, FindsTheSameInThousandsOfRandomDataSets)
{
    int repaired = 0;
    for (std::uint64_t seed = 1; seed <= 3000; ++seed) {
        SCOPED_TRACE(seed);
        const CZoneScope zone(Zone::All[seed % std::size(Zone::All)]);
        CRandomLines random(seed);
        PlainAnalysis plain;
        plain.lines = random.Make(random.Below(seed % 10 == 0 ? 1500 : 120));
        CMeasureData data = Filled(plain.lines, random.Below(3));
        data.m_fromFile = random.Below(3) == 0;
        const int month = static_cast<int>(random.Below(14));
        const int day = static_cast<int>(random.Below(32));
        // Half of the time the lines lie in the future.
        const CalendarSeconds now = random.Below(2) == 0 ? 0 : 2'000'000'000;
        // A second pass may move years once more.
        for (std::uint64_t pass = random.Below(2); pass < 2; ++pass) {
            data.Analyse({month, day, now});
            plain.Analyse(data.m_fromFile, month, day, now);
            ASSERT_NO_FATAL_FAILURE(ExpectSame(data, plain));
        }
        const bool changed = data.RepairYear();
        ASSERT_EQ(changed, plain.RepairYear());
        ASSERT_NO_FATAL_FAILURE(ExpectSame(data, plain));
        repaired += changed ? 1 : 0;
    }
    // The random data would prove little if it never came to a repair.
    EXPECT_GT(repaired, 50);
}

TEST(AnalysisAgainstPlain, MovesAWholeDownloadAcrossClockChangesAlike)
{
    for (const char* const name : Zone::All) {
        SCOPED_TRACE(name);
        const CZoneScope zone(name);
        for (const int startMonth : {1, 3, 4, 10, 11, 12}) {
            PlainAnalysis plain;
            for (int i = 0; i < 366 * 48; ++i) {
                CMeasureRecord line{CalendarSeconds{0}};
                line.SetValues(1199145600 + i * 1800, 0, 0.0, 0.0, 0.0, 0.0, 0.0);
                plain.lines.push_back(line);
            }
            CMeasureData data = Filled(plain.lines, 0);
            data.Analyse({startMonth, 20, 0});
            plain.Analyse(false, startMonth, 20, 0);
            ASSERT_NO_FATAL_FAILURE(ExpectSame(data, plain));
        }
    }
}

} // namespace
} // namespace skeldon
