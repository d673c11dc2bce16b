#include "Pixels.h"

#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

/// A row of its own for each series: 10, -10, 20, 24, 60 / 2 and 160 / 4 units of the axis.
constexpr ChartLine Level{0, 10.0, -10.0, 20.0, 24.0, 60.0, 160.0, 0};

const QColor& ColourX = SeriesColours[Index(Series::X)];
const QColor& ColourY = SeriesColours[Index(Series::Y)];
const QColor& ColourZ = SeriesColours[Index(Series::Z)];

/// Three lines of one instant, X, Y and Z reaching to 30, 20 and 10, between lines of their own.
std::vector<ChartLine> LinesOfOneTime()
{
    return {{0},           {10'000, 30.0}, {10'000, 0.0, 20.0}, {10'000, 0.0, 0.0, 10.0},
            {20'000, 5.0}, {30'000}};
}

void MakeCurrent(CChartApp& app, int line)
{
    app.Chart().OnMeasureGraph(MeasureGraphCode::CurrentLine, line);
}

/// A column of the window that a bar covers, beside the cursor.
int BesideTheMiddle(CChartApp& app, std::int64_t ms)
{
    constexpr int PastTheCaps = 4;
    const CTimeWindow& window = app.Chart().Model().m_window;
    return static_cast<int>(window.Column(ChartStart() + ms)) + CChartApp::Gauge + PastTheCaps;
}

/// What the bars show at 5, 15 and 25 units.
std::vector<QColor> ColoursOfTheRun(CChartApp& app)
{
    const QImage picture = app.Picture();
    const int column = BesideTheMiddle(app, 10'000);
    return {picture.pixelColor(column, CoarseRow(5.0)), picture.pixelColor(column, CoarseRow(15.0)),
            picture.pixelColor(column, CoarseRow(25.0))};
}

} // namespace

/// The chart's bars, pixel by pixel.
class BarsTest : public QObject
{
    Q_OBJECT

private slots:
    void BarsReachFromTheZeroLineToTheValueShortOnesInFront()
    {
        std::vector<ChartLine> lines = SecondLines(20, Level);
        for (ChartLine& line : lines)
            line.ms *= 10;
        CChartApp app(lines);
        app.Chart().SetBarChart(true);
        const QImage picture = app.Picture();
        const int column = app.Column(60'000);
        const auto colourAt = [&](double value) {
            return picture.pixelColor(column, CoarseRow(value));
        };
        QCOMPARE(colourAt(35.0), SeriesColours[Index(Series::Humidity)]);
        QCOMPARE(colourAt(27.0), SeriesColours[Index(Series::Temperature)]);
        QCOMPARE(colourAt(22.0), SeriesColours[Index(Series::Resultant)]);
        QCOMPARE(colourAt(15.0), SeriesColours[Index(Series::Z)]);
        QCOMPARE(colourAt(5.0), SeriesColours[Index(Series::X)]);
        QCOMPARE(colourAt(-5.0), SeriesColours[Index(Series::Y)]);
        QCOMPARE(colourAt(42.0), White);
        // A bar is half as wide as the smallest step, which counts for 5 seconds at most.
        const double pixelsPerMs = (app.PlotRight() - app.PlotLeft()) / 192'500.0;
        const int half = static_cast<int>(1250 * pixelsPerMs + 0.5);
        const int row = CoarseRow(37.0);
        QCOMPARE(picture.pixelColor(column - half - 1, row), White);
        QCOMPARE(picture.pixelColor(column - half, row), SeriesColours[Index(Series::Humidity)]);
        QCOMPARE(picture.pixelColor(column + half, row), SeriesColours[Index(Series::Humidity)]);
        QCOMPARE(picture.pixelColor(column + half + 1, row), White);
    }

    void AThinBarStaysVisibleThroughTheCursor()
    {
        CChartApp app(SecondLines(3000, Level));
        app.ShowAlone(Series::X);
        app.Chart().SetBarChart(true);
        app.Chart().OnMeasureGraph(MeasureGraphCode::CurrentLine, 1500);
        const QSet<int> rows = RowsOf(app.Picture(), app.Column(1500 * 1000), Black);
        const QSet<int> bar = Span(CoarseRow(10.0), CChartApp::CoarseZero);
        QVERIFY((rows & bar).isEmpty());
        QVERIFY(rows.contains(Span(26, CoarseRow(10.0))));
        QVERIFY(rows.contains(Span(CChartApp::CoarseZero, 323)));

        app.Chart().SetBarChart(false);
        QVERIFY(RowsOf(app.Picture(), app.Column(1500 * 1000), Black).contains(bar));
    }

    void EachLineOfOneTimeComesToTheFrontWhenItIsCurrent()
    {
        CChartApp app(LinesOfOneTime());
        app.Chart().SetBarChart(true);
        QStringList& statuses = app.m_test.m_frame.m_statuses;
        statuses.clear();
        QCOMPARE(ColoursOfTheRun(app), (std::vector{ColourZ, ColourY, ColourX}));
        MakeCurrent(app, 1);
        QCOMPARE(ColoursOfTheRun(app), (std::vector{ColourX, ColourX, ColourX}));
        MakeCurrent(app, 2);
        QCOMPARE(ColoursOfTheRun(app), (std::vector{ColourY, ColourY, ColourX}));
        MakeCurrent(app, 3);
        QCOMPARE(ColoursOfTheRun(app), (std::vector{ColourZ, ColourY, ColourX}));
        // None of it was a painting of the whole chart, and that gives the same.
        QVERIFY(statuses.isEmpty());
        MakeCurrent(app, 2);
        app.Chart().OnMeasureGraph(MeasureGraphCode::Marks, 0);
        QCOMPARE(statuses.size(), 2);
        QCOMPARE(ColoursOfTheRun(app), (std::vector{ColourY, ColourY, ColourX}));
    }

    void WhiteEdgesStayOnTheBarUntilTheChartIsPaintedAnew()
    {
        CChartApp app(LinesOfOneTime());
        app.Chart().SetBarChart(true);
        const int run = BesideTheMiddle(app, 10'000);
        const int alone = BesideTheMiddle(app, 20'000);
        const auto aboveTheBar = [&app](int column, double value) {
            return app.Picture().pixelColor(column, CoarseRow(value) - 1);
        };
        QCOMPARE(aboveTheBar(run, 30.0), GridGrey);
        QCOMPARE(aboveTheBar(run, 10.0), ColourY);
        MakeCurrent(app, 1);
        QCOMPARE(aboveTheBar(run, 30.0), White);
        MakeCurrent(app, 3);
        QCOMPARE(aboveTheBar(run, 10.0), White);
        // A line alone moves the cursor and nothing else.
        MakeCurrent(app, 4);
        QCOMPARE(aboveTheBar(run, 10.0), White);
        QCOMPARE(aboveTheBar(run, 30.0), White);
        QCOMPARE(aboveTheBar(alone, 5.0), GridGrey);
        app.Chart().OnMeasureGraph(MeasureGraphCode::Marks, 0);
        QCOMPARE(aboveTheBar(run, 10.0), ColourY);
        QCOMPARE(aboveTheBar(run, 30.0), GridGrey);
        QCOMPARE(aboveTheBar(alone, 5.0), White);
    }

    void BarsOfFlaggedLinesAreLightened()
    {
        for (const std::uint16_t flag :
             {RecordFlag::BehindBreak, RecordFlag::Abnormal, RecordFlag::Deleted}) {
            std::vector<ChartLine> lines = SecondLines(20, {0, 10.0});
            lines[10].flags = flag;
            CChartApp app(lines);
            app.ShowAlone(Series::X);
            app.Chart().SetBarChart(true);
            const QImage picture = app.Picture();
            const QColor light((0xC5 + 1020) / 5, (0x0C + 1020) / 5, (0xC5 + 1020) / 5);
            const int row = CoarseRow(5.0);
            QCOMPARE(picture.pixelColor(app.Column(9000), row), ColourX);
            QCOMPARE(picture.pixelColor(app.Column(10'000), row), light);
            QCOMPARE(picture.pixelColor(app.Column(11'000), row), ColourX);
        }
    }

    void ASeriesOfValueZeroPaintsNothingAndTheOthersStillDo()
    {
        std::vector<ChartLine> lines = SecondLines(20);
        lines[10].y = 10.0;
        CChartApp app(lines);
        app.Chart().SetBarChart(true);
        const QImage picture = app.Picture();
        QCOMPARE(RowsOf(picture, app.Column(10'000), ColourY),
                 Span(CoarseRow(10.0), CChartApp::CoarseZero));
        for (const QColor& colour : SeriesColours)
            QVERIFY(RowsOf(picture, app.Column(9000), colour).isEmpty());
    }
};

QTEST_MAIN(BarsTest)
#include "BarsTest.moc"
