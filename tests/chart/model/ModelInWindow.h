#pragma once

#include "chart/model/ChartModel.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace skeldon::test {

/// An instant without a fraction of an hour.
inline constexpr std::int64_t Start = 1'300'000'000LL / 3600 * 3600;

/// One line a second with `x` as X value and nothing else.
inline CMeasureData DataOf(const std::vector<double>& x)
{
    CMeasureData data;
    for (std::size_t i = 0; i < x.size(); ++i) {
        CMeasureRecord line{CalendarSeconds{0}};
        line.SetValues(Start + static_cast<std::int64_t>(i), 0, x[i], 0, 0, 0, 0);
        data.AddRecord(line);
    }
    data.Analyse({0, 0, 0});
    return data;
}

inline std::vector<double> Ramp(int count)
{
    std::vector<double> x;
    for (int i = 0; i < count; ++i)
        x.push_back(i * 0.01);
    return x;
}

/// A chart in a window of 600 by 400. The plot runs from column 80 to 452; labels of the time strip
/// make it 64 rows high, so that 320 are left above it.
struct Chart
{
    CMeasureData data;
    CChartModel model;

    explicit Chart(CMeasureData shown)
        : data(std::move(shown))
    {
        model.Resize({600, 400, 16, 16, 16, 30, 12});
        model.Create(data,
                     [](const std::string& text) { return static_cast<int>(text.size()) * 7; });
        model.RescaleAndRepaint();
        model.ResetData();
        model.m_work = ChartWork::None;
    }
    explicit Chart(const std::vector<double>& x)
        : Chart(DataOf(x))
    {}

    /// What an operation left to be painted.
    ChartWork Work() { return std::exchange(model.m_work, ChartWork::None); }
    /// The window from and to so many seconds behind the first line.
    [[nodiscard]] std::pair<double, double> Seconds() const
    {
        const auto seconds = [](std::int64_t time) {
            return static_cast<double>(time - Start * 1000) / 1000.0;
        };
        return {seconds(model.m_window.m_viewStart), seconds(model.m_window.m_viewEnd)};
    }
    [[nodiscard]] int ColumnOf(int line) const
    {
        return static_cast<int>(model.m_window.Column(model.m_index.Time(line)));
    }
    void ShowOnlyX()
    {
        model.SetSeriesShown(0x09F0, false);
        model.SetSeriesShown(0x0010, true);
    }
};

using Seconds = std::pair<double, double>;

} // namespace skeldon::test
