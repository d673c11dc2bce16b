#pragma once

#include "chart/view/ChartWnd.h"
#include "support/window/TestApp.h"

#include <QImage>

#include <memory>
#include <utility>
#include <vector>

namespace skeldon::test {

/// A line `ms` milliseconds after 2009-05-01 12:30:15.000 local time. The resultant is given too,
/// so that each series has a row of its own.
struct ChartLine
{
    std::int64_t ms = 0;
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    double resultant = 0.0;
    double temperature = 0.0;
    double humidity = 0.0;
    std::uint16_t flags = 0;
};

[[nodiscard]] std::int64_t ChartStart();
/// An analysed data set with temperature and humidity; the flags are set behind the analysis.
[[nodiscard]] CMeasureData ChartData(const std::vector<ChartLine>& lines);
/// So many lines like `line`, a second apart.
[[nodiscard]] std::vector<ChartLine> SecondLines(int count, const ChartLine& line = {});

/// A chart in a window of its own. At the coarsest step, 300 rows for the whole axis, all of it is
/// shown: rows of the picture are rows of the content.
class CChartApp
{
public:
    static constexpr QSize Tall{900, 600};
    static constexpr int Gauge = 16;
    static constexpr int PlotTop = 24;
    static constexpr int CoarsePlotBottom = PlotTop + 300;
    static constexpr int CoarseZero = PlotTop + 150;

    explicit CChartApp(const std::vector<ChartLine>& lines, QSize size = Tall);
    ~CChartApp();

    [[nodiscard]] CChartWnd& Chart() { return m_chart; }
    [[nodiscard]] QImage Picture() { return m_chart.grab().toImage(); }
    /// Shows one series alone, at the coarsest step.
    void ShowAlone(Series series);
    /// What was emitted since the last call; what was posted has arrived.
    [[nodiscard]] std::vector<std::pair<MeasureGraphCode, int>> Codes();

    [[nodiscard]] int PlotLeft() const;  ///< column of the window
    [[nodiscard]] int PlotRight() const; ///< likewise
    /// First row of the horizontal scroll bar.
    [[nodiscard]] int ScrollBarTop() const { return Bar(Qt::Horizontal).y(); }
    [[nodiscard]] QScrollBar& Bar(Qt::Orientation orientation) const;
    /// Column of the window of an instant after the start, the whole data being shown.
    [[nodiscard]] int Column(std::int64_t ms) const;
    /// A point in the plot's middle rows, above the zero line.
    [[nodiscard]] QPoint InPlot(int column) const { return {column, CoarseZero - 50}; }

    CTestApp m_test;
    CMeasureData m_data;

private:
    CChartWnd m_chart;
    std::vector<std::pair<MeasureGraphCode, int>> m_codes;
};

/// Row at the coarsest step, 3 pixels a unit, of an axis value.
[[nodiscard]] int CoarseRow(double value);

} // namespace skeldon::test
