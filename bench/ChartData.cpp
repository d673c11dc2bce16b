#include "ChartData.h"

#include <cmath>
#include <map>
#include <random>

namespace skeldon::bench {

namespace {

constexpr CalendarSeconds FirstLine = 1'772'600'400; // a morning in March 2026
constexpr double Radian = 6.283185307179586 / 86'400.0;

/// Makes a data set once for each number of lines.
template <typename Fill>
const CMeasureData& Made(std::map<std::size_t, CMeasureData>& known, std::size_t lines, Fill fill)
{
    const auto [entry, isNew] = known.try_emplace(lines);
    CMeasureData& data = entry->second;
    if (!isNew)
        return data;
    std::mt19937 random(21);
    data.m_hasHumidity = true;
    data.m_fromFile = true;
    CalendarSeconds time = FirstLine;
    for (CMeasureRecord& record : data.NewLines(lines)) {
        record = CMeasureRecord(time);
        fill(record, time, random);
        time += 1;
    }
    data.Analyse({.startMonth = 0, .startDay = 0, .now = time});
    return data;
}

} // namespace

const CMeasureData& OrdinaryData(std::size_t lines)
{
    static std::map<std::size_t, CMeasureData> known;
    return Made(known, lines, [](CMeasureRecord& record, CalendarSeconds time, auto& random) {
        const int reach = random() % 2000 == 0 ? 80 : 2;
        const auto axis = [&] {
            return (static_cast<int>(random() % unsigned(2 * reach + 1)) - reach) / 2.0;
        };
        const double day = std::sin(Radian * static_cast<double>(time % 86'400));
        const double x = axis();
        const double y = axis();
        const double z = axis() + 1.0;
        record.SetValues(time, 0, x, y, z,
                         15.0 + 10.0 * day + static_cast<double>(random() % 5) / 10.0,
                         50.0 - 20.0 * day + static_cast<double>(random() % 3));
    });
}

const CMeasureData& NoiseData(std::size_t lines)
{
    static std::map<std::size_t, CMeasureData> known;
    return Made(known, lines, [](CMeasureRecord& record, CalendarSeconds time, auto& random) {
        const auto axis = [&] { return static_cast<double>(random() % 2001) / 20.0 - 50.0; };
        const double x = axis() / 2.0;
        const double y = axis() / 2.0;
        const double z = axis() / 2.0;
        record.SetValues(time, 0, x, y, z, axis(), static_cast<double>(random() % 101));
    });
}

} // namespace skeldon::bench
