// Repaints of the chart's layers beside those of a plotting widget that many would take. Neither
// is brought to a screen.
#include "Benchmarks.h"
#include "ChartData.h"

#include "chart/view/ChartPainter.h"

#include <QFontMetrics>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <memory>
#include <qcustomplot.h>
#include <utility>

namespace skeldon::bench {

namespace {

constexpr int Width = 1600;
constexpr int Height = 700;
constexpr int LetterSize = 11;
constexpr double MsecPerSecond = 1000.0;

using Source = const CMeasureData& (*)(std::size_t);

QFont ChartFont()
{
    QFont font;
    font.setPixelSize(LetterSize);
    return font;
}

/// A chart of 1600 x 700 with everything that a window would hold.
struct Chart
{
    explicit Chart(const CMeasureData& data)
        : metrics(ChartFont())
        , painter(model, colours, ChartFont())
        , layer(Width, Height, QImage::Format_RGB32)
        , strip(Width, TimeStripHeight * 2, QImage::Format_RGB32)
    {
        ChartMetrics sizes;
        sizes.clientWidth = Width;
        sizes.clientHeight = Height;
        sizes.gaugeWidth = 0;
        sizes.labelWidth = metrics.horizontalAdvance(QStringLiteral("-99.9"));
        sizes.labelHeight = metrics.height();
        model.Create(data, [this](const std::string& text) {
            return metrics.horizontalAdvance(QString::fromStdString(text));
        });
        model.Resize(sizes);
        model.ResetData();
    }

    double Paint()
    {
        painter.PaintChart(layer);
        painter.DrawTimeStrip(strip, 0);
        return layer.pixel(Width / 2, Height / 2);
    }

    QFontMetrics metrics;
    CChartModel model;
    ChartColours colours;
    CChartPainter painter;
    QImage layer;
    QImage strip;
};

Chart& ChartOf(Source source, std::size_t lines)
{
    static std::map<std::pair<Source, std::size_t>, std::unique_ptr<Chart>> made;
    std::unique_ptr<Chart>& chart = made[{source, lines}];
    if (!chart)
        chart = std::make_unique<Chart>(source(lines));
    return *chart;
}

/// The middle hundredth of the span.
CChartRange MiddlePart(const CTimeWindow& window)
{
    constexpr int Parts = 100;
    const std::int64_t middle = (window.m_dataStart + window.m_dataEnd) / 2;
    const std::int64_t half = (window.m_dataEnd - window.m_dataStart) / (2 * Parts);
    return {middle - half, middle + half};
}

template <Source source>
double PaintWhole(std::size_t lines)
{
    return ChartOf(source, lines).Paint();
}

double PaintPart(std::size_t lines)
{
    Chart& chart = ChartOf(OrdinaryData, lines);
    chart.model.ShowWindow(MiddlePart(chart.model.m_window));
    const double pixel = chart.Paint();
    chart.model.DisplayAllArea();
    return pixel;
}

double PaintBars(std::size_t lines)
{
    Chart& chart = ChartOf(OrdinaryData, lines);
    chart.model.m_barChart = true;
    const double pixel = chart.Paint();
    chart.model.m_barChart = false;
    return pixel;
}

/// Bars as one would paint them first: line by line, each filled whole.
double PaintBarsPlainly(std::size_t lines)
{
    Chart& chart = ChartOf(OrdinaryData, lines);
    const WalkView view = chart.model.View(1.0, 1.0);
    QPainter painter(&chart.layer);
    const int half = view.window.HalfBar();
    const int zero = view.scale.m_zeroY - view.scale.m_scrollY;
    for (const CMeasureRecord& line : chart.model.m_index.Lines()) {
        const auto column = static_cast<int>(view.window.Column(line.TimeMs()));
        std::array<std::pair<int, Series>, SeriesCount> bars;
        for (const Series series : AllSeries)
            bars[Index(series)] = {view.scale.Offset(AxisValue(line, series)), series};
        std::ranges::stable_sort(bars, [](const auto& a, const auto& b) {
            return std::abs(a.first) > std::abs(b.first);
        });
        for (const auto& [offset, series] : bars)
            painter.fillRect(column - half, std::min(zero, zero - offset), 2 * half + 1,
                             std::abs(offset), ToColour(chart.colours.series[Index(series)]));
    }
    return 0.0;
}

/// The peer: six graphs over the same lines.
std::unique_ptr<QCustomPlot> MakePlot(const CMeasureData& data)
{
    auto plot = std::make_unique<QCustomPlot>();
    plot->setNotAntialiasedElements(QCP::aeAll);
    plot->resize(Width, Height);
    const ChartColours colours;
    for (const Series series : AllSeries) {
        QVector<QCPGraphData> points;
        points.reserve(static_cast<qsizetype>(data.GetSize()));
        for (const CMeasureRecord& line : data.Records())
            points.push_back(
                {static_cast<double>(line.TimeMs()) / MsecPerSecond, AxisValue(line, series)});
        QCPGraph* const graph = plot->addGraph();
        graph->setAdaptiveSampling(true);
        graph->setPen(QPen(ToColour(colours.series[Index(series)]), 1));
        graph->data()->set(points, true);
    }
    plot->xAxis->setTicker(QSharedPointer<QCPAxisTickerDateTime>::create());
    plot->yAxis->setRange(-50.0, 50.0);
    return plot;
}

QCustomPlot& PlotOf(Source source, std::size_t lines)
{
    static std::map<std::pair<Source, std::size_t>, std::unique_ptr<QCustomPlot>> made;
    std::unique_ptr<QCustomPlot>& plot = made[{source, lines}];
    if (!plot)
        plot = MakePlot(source(lines));
    return *plot;
}

void ShowInPlot(QCustomPlot& plot, const CChartRange& window)
{
    plot.xAxis->setRange(static_cast<double>(window.start) / MsecPerSecond,
                         static_cast<double>(window.end) / MsecPerSecond);
    plot.replot(QCustomPlot::rpImmediateRefresh);
}

template <Source source>
double PlotWhole(std::size_t lines)
{
    const auto records = source(lines).Records();
    ShowInPlot(PlotOf(source, lines), {records.front().TimeMs(), records.back().TimeMs()});
    return 0.0;
}

double PlotPart(std::size_t lines)
{
    ShowInPlot(PlotOf(OrdinaryData, lines),
               MiddlePart(ChartOf(OrdinaryData, lines).model.m_window));
    return 0.0;
}

template <Source source>
void WarmUp(std::size_t lines)
{
    (void)ChartOf(source, lines);
    (void)PlotOf(source, lines);
}

double BuildIndex(std::size_t lines)
{
    static CLineIndex index;
    index.Build(OrdinaryData(lines).Records());
    return static_cast<double>(index.MemoryUse());
}

double SumLines(std::size_t lines)
{
    const auto records = OrdinaryData(lines).Records();
    const auto* const words = reinterpret_cast<const std::uint64_t*>(records.data());
    const std::size_t count = records.size_bytes() / sizeof(std::uint64_t);
    std::uint64_t sum = 0;
    for (std::size_t i = 0; i < count; ++i)
        sum += words[i];
    return static_cast<double>(sum);
}

} // namespace

Work AddChartWhole()
{
    AddContender("chart-whole", "skeldon", PaintWhole<OrdinaryData>, WarmUp<OrdinaryData>);
    AddContender("chart-whole", "QCustomPlot", PlotWhole<OrdinaryData>, WarmUp<OrdinaryData>);
    return {"chart-whole",
            "Repaint of the whole span, ordinary data",
            {"QCustomPlot"},
            {{"QCustomPlot", true, 3.5, 6.0}}};
}

Work AddChartNoise()
{
    AddContender("chart-noise", "skeldon", PaintWhole<NoiseData>, WarmUp<NoiseData>);
    AddContender("chart-noise", "QCustomPlot", PlotWhole<NoiseData>, WarmUp<NoiseData>);
    return {"chart-noise",
            "Repaint of the whole span, noise",
            {"QCustomPlot"},
            {{"QCustomPlot", true, 2.8, 4.5}}};
}

Work AddChartPart()
{
    AddContender("chart-part", "skeldon", PaintPart, WarmUp<OrdinaryData>);
    AddContender("chart-part", "QCustomPlot", PlotPart, WarmUp<OrdinaryData>);
    return {"chart-part",
            "Repaint of one hundredth of the span",
            {"QCustomPlot"},
            {{"QCustomPlot", true, 1.0, 2.0}}};
}

Work AddChartBars()
{
    AddContender("chart-bars", "skeldon", PaintBars, WarmUp<OrdinaryData>);
    AddContender("chart-bars", "plain walk over all lines", PaintBarsPlainly, WarmUp<OrdinaryData>);
    return {"chart-bars",
            "Repaint of the whole span in bar form",
            {"plain walk over all lines"},
            {{"plain walk over all lines", true, 10.0, 0.0}}};
}

Work AddChartIndex()
{
    AddContender("chart-index", "skeldon", BuildIndex, WarmUp<OrdinaryData>);
    AddContender("chart-index", "sum of the same memory", SumLines, WarmUp<OrdinaryData>);
    return {"chart-index",
            "What the chart precomputes at load",
            {"sum of the same memory"},
            {{"sum of the same memory", false, 4.0, 2.0}}};
}

} // namespace skeldon::bench
