#include "WindowBench.h"

#include "ChartData.h"
#include "Rounds.h"
#include "SampleData.h"

#include "chart/view/ChartWnd.h"
#include "dataview/DisplayView.h"
#include "dataview/MeasuredList.h"
#include "files/DataFile.h"
#include "support/window/TestApp.h"

#include <QCoreApplication>
#include <QtTest/QTest>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

namespace skeldon::bench {

namespace {

constexpr int Width = 1600;
constexpr int Height = 900;

/// The data view in a window of its own, with a file of a million lines.
class CLoadedView
{
public:
    CLoadedView()
    {
        const auto path = OutputPath("window.skd");
        if (WriteFile(OrdinaryData(ManyLines), path))
            std::abort();
        m_app.m_frame.m_window = &m_view;
        m_view.OnInitialUpdate();
        m_view.resize(Width, Height);
        m_view.show();
        QCoreApplication::processEvents();
        m_app.m_prompts->m_paths = {QString::fromStdString(path.string())};
        m_view.OnCommand(CommandId::Open);
        if (m_view.Data().GetSize() != ManyLines)
            std::abort();
    }

    CDisplayView& View() { return m_view; }
    CChartWnd& Chart() { return m_view.Chart(); }
    QScrollBar& Scroll(Qt::Orientation orientation)
    {
        for (QScrollBar* const bar : Chart().findChildren<QScrollBar*>()) {
            if (bar->orientation() == orientation)
                return *bar;
        }
        std::abort();
    }

private:
    test::CTestApp m_app;
    CDisplayView m_view;
};

double Measure(int rounds, const std::function<void()>& action)
{
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        const auto start = std::chrono::steady_clock::now();
        action();
        QCoreApplication::processEvents();
        const std::chrono::duration<double, std::milli> time =
            std::chrono::steady_clock::now() - start;
        times.push_back(time.count());
    }
    return Median(times);
}

void Print(const char* what, double milliseconds, double must)
{
    std::printf("| %s | %.2f | %.0f |\n", what, milliseconds, must);
}

} // namespace

void PrintWindowActions(int rounds)
{
    constexpr double ControlMust = 5.0;
    constexpr double ChartMust = 8.0;
    CLoadedView loaded;
    CDisplayView& view = loaded.View();
    CMeasuredList& list = view.List();
    CChartWnd& chart = loaded.Chart();
    QWidget* const rows = list.viewport();
    std::printf("\n| window with 1,000,000 lines, 1600 x 900 | ms | must, ms |\n|---|---:|---:|\n");
    Print("refresh of the controls", Measure(rounds, [&] { view.RefreshControls(); }), ControlMust);
    list.setFocus();
    Print("the list's focus moves by a key, the chart follows",
          Measure(rounds, [&] { QTest::keyClick(rows, Qt::Key_Down); }), ControlMust);
    Print("a page of scrolling in the list",
          Measure(rounds, [&] { QTest::keyClick(rows, Qt::Key_PageDown); }), ControlMust);
    int step = 0;
    Print("step of the value scale",
          Measure(rounds, [&] { chart.ChangeScaleStep(4 + step++ % 2); }), ChartMust);
    Print(
        "vertical scroll by 16",
        Measure(rounds,
                [&] {
                    loaded.Scroll(Qt::Vertical).triggerAction(QAbstractSlider::SliderSingleStepAdd);
                }),
        ChartMust);
    Print("zoom in and out in time",
          Measure(rounds,
                  [&] {
                      chart.ZoomInTime();
                      chart.ZoomBack();
                  }) /
              2.0,
          ChartMust);
    for (int i = 0; i < 6; ++i)
        chart.ZoomInTime();
    Print(
        "horizontal scroll by a page",
        Measure(rounds,
                [&] {
                    loaded.Scroll(Qt::Horizontal).triggerAction(QAbstractSlider::SliderPageStepAdd);
                }),
        ChartMust);
    Print("a key in the list recentres the chart",
          Measure(rounds, [&] { QTest::keyClick(rows, Qt::Key_Down); }), ChartMust);
    const QPoint middle(chart.width() / 2, chart.height() / 3);
    Print("a click on the chart",
          Measure(rounds, [&] { QTest::mouseClick(&chart, Qt::LeftButton, {}, middle); }),
          ChartMust);
    chart.BeginAreaSelection();
    QTest::mousePress(&chart, Qt::LeftButton, {}, middle);
    int column = 0;
    Print("a drag of the selection",
          Measure(rounds, [&] { QTest::mouseMove(&chart, middle + QPoint(5 + column++ % 50, 0)); }),
          ChartMust);
    QTest::mouseRelease(&chart, Qt::LeftButton, {}, middle);
}

} // namespace skeldon::bench
