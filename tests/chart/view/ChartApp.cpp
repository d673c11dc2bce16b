#include "ChartApp.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QTest>

#include <cmath>

namespace skeldon::test {

std::int64_t ChartStart()
{
    return FromLocalFields({2009, 5, 1, 12, 30, 15}) * 1000;
}

std::vector<ChartLine> SecondLines(int count, const ChartLine& line)
{
    std::vector<ChartLine> lines(static_cast<std::size_t>(count), line);
    for (std::size_t i = 0; i < lines.size(); ++i)
        lines[i].ms = static_cast<std::int64_t>(i) * 1000;
    return lines;
}

CMeasureData ChartData(const std::vector<ChartLine>& lines)
{
    CMeasureData data;
    data.m_fromFile = true;
    data.Reserve(lines.size());
    for (const ChartLine& line : lines) {
        CMeasureRecord record{CalendarSeconds{0}};
        const std::int64_t time = ChartStart() + line.ms;
        record.SetValues(time / 1000, static_cast<std::uint32_t>(time % 1000), line.x, line.y,
                         line.z, line.temperature, line.humidity);
        record.m_resultant = line.resultant;
        data.AddRecord(record);
    }
    data.Analyse({.startMonth = 0, .startDay = 0, .now = ChartStart() / 1000 + 1'000'000});
    for (std::size_t i = 0; i < lines.size(); ++i) {
        CMeasureRecord record = data.GetRecord(i);
        if (record.m_flags == lines[i].flags)
            continue;
        record.SetFlags(lines[i].flags);
        data.SetRecord(i, record);
    }
    data.m_hasTemperature = true;
    data.m_hasHumidity = true;
    return data;
}

CChartApp::CChartApp(const std::vector<ChartLine>& lines, QSize size)
    : m_data(ChartData(lines))
{
    QObject::connect(
        &m_chart, &CChartWnd::MeasureGraph, &m_chart,
        [this](MeasureGraphCode code, int argument) { m_codes.emplace_back(code, argument); });
    m_chart.resize(size);
    m_chart.show();
    m_chart.Create(m_data);
    m_chart.ResetData();
    if (!QTest::qWaitForWindowExposed(&m_chart))
        QTest::qFail("the chart was not shown", __FILE__, __LINE__);
    m_chart.ChangeScaleStep(0);
}

CChartApp::~CChartApp() = default;

void CChartApp::ShowAlone(Series series)
{
    for (const Series each : AllSeries)
        m_chart.SetSeriesShown(Info(each).mask, each == series);
    m_chart.ChangeScaleStep(0);
}

std::vector<std::pair<MeasureGraphCode, int>> CChartApp::Codes()
{
    QCoreApplication::processEvents();
    return std::exchange(m_codes, {});
}

QScrollBar& CChartApp::Bar(Qt::Orientation orientation) const
{
    const QList<QScrollBar*> bars = m_chart.findChildren<QScrollBar*>();
    return bars.front()->orientation() == orientation ? *bars.front() : *bars.back();
}

int CChartApp::PlotLeft() const
{
    const QFontMetrics metrics(m_chart.font());
    return Gauge + metrics.height() + metrics.horizontalAdvance(QStringLiteral("-99.9")) + 38;
}

int CChartApp::PlotRight() const
{
    const QFontMetrics metrics(m_chart.font());
    const int bitmapWidth = m_chart.width() - Bar(Qt::Vertical).width() - Gauge;
    return Gauge + bitmapWidth - (PlotLeft() - Gauge) -
           metrics.horizontalAdvance(QStringLiteral("-99.9")) - 6;
}

int CChartApp::Column(std::int64_t ms) const
{
    const std::int64_t last = m_data.Records().back().TimeMs() - ChartStart();
    const std::int64_t bar = last > 0 ? m_data.m_minStepMs / 2 : 2500;
    const std::int64_t start = -(bar / 2);
    const double pixelsPerMs =
        (PlotRight() - PlotLeft()) / static_cast<double>(last + bar / 2 - start);
    return PlotLeft() + static_cast<int>(static_cast<double>(ms - start) * pixelsPerMs + 0.5);
}

int CoarseRow(double value)
{
    return CChartApp::CoarseZero - static_cast<int>(3.0 * value + 0.5);
}

} // namespace skeldon::test
