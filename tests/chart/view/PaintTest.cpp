#include "Pixels.h"

#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

/// A row of its own for each series: 10, -10, 20, 24, 60 / 2 and 160 / 4 units of the axis.
constexpr ChartLine Level{0, 10.0, -10.0, 20.0, 24.0, 60.0, 160.0, 0};
constexpr std::array<double, SeriesCount> LevelValues{10.0, -10.0, 20.0, 24.0, 30.0, 40.0};

} // namespace

/// What the chart's window shows, pixel by pixel.
class PaintTest : public QObject
{
    Q_OBJECT

private slots:
    void GridLinesLieAtTheTicksOfBothAxesOnWhite()
    {
        CChartApp app(SecondLines(20));
        HideAll(app);
        const QImage picture = app.Picture();
        // 21.5 seconds with half a bar at each end: a tick every two, on even seconds of the day;
        // the data start at an odd one.
        QSet<int> columns;
        for (int second = 1; second < 20; second += 2)
            columns.insert(app.Column(second * 1000));
        QCOMPARE(ColumnsOf(picture, 30, GridGrey), columns);
        QCOMPARE(RowsOf(picture, app.Column(5000), GridGrey), Span(23, 323));

        const int between = app.Column(5500);
        QSet<int> rows;
        for (int value = -50; value <= 50; value += 5)
            rows.insert(CoarseRow(value) - 1);
        QCOMPARE(RowsOf(picture, between, GridGrey), rows);
        QCOMPARE(ColumnsOf(picture, CoarseRow(20) - 1, GridGrey),
                 Span(app.PlotLeft(), app.PlotRight()));
        for (int row = 30; row < 38; ++row)
            QCOMPARE(picture.pixelColor(between, row), White);
    }

    void EachSeriesRunsInItsColourAtTheRowOfItsValue()
    {
        for (const Series series : AllSeries) {
            CChartApp app(SecondLines(20, Level));
            app.ShowAlone(series);
            const QImage picture = app.Picture();
            const QSet<int> rows = RowsOf(picture, app.Column(5500), SeriesColours[Index(series)]);
            QCOMPARE(rows, QSet<int>{CoarseRow(LevelValues[Index(series)])});
        }
        // Half pixels round toward zero below the zero line and away from it above.
        QCOMPARE(CoarseRow(-10.0), CChartApp::CoarseZero + 29);
    }

    void TemperatureAndHumidityNeedADataSetThatCarriesThem()
    {
        CChartApp app(SecondLines(20, Level));
        app.m_data.m_hasTemperature = false;
        app.m_data.m_hasHumidity = false;
        app.Chart().ResetData();
        app.Chart().ChangeScaleStep(0);
        const QImage picture = app.Picture();
        const int between = app.Column(5500);
        QVERIFY(RowsOf(picture, between, SeriesColours[Index(Series::Temperature)]).isEmpty());
        QVERIFY(RowsOf(picture, between, SeriesColours[Index(Series::Humidity)]).isEmpty());
        QCOMPARE(RowsOf(picture, between, SeriesColours[Index(Series::Resultant)]).size(), 1);
    }

    void StretchesThatTouchAFlaggedLineAreLightened()
    {
        for (const std::uint16_t flag :
             {RecordFlag::BehindBreak, RecordFlag::Abnormal, RecordFlag::Deleted}) {
            std::vector<ChartLine> lines = SecondLines(20, Level);
            lines[10].flags = flag;
            CChartApp app(lines);
            app.ShowAlone(Series::X);
            const QImage picture = app.Picture();
            const int row = CoarseRow(10.0);
            const QColor plain = SeriesColours[Index(Series::X)];
            const QColor light((0xC5 + 1020) / 5, (0x0C + 1020) / 5, (0xC5 + 1020) / 5);
            QCOMPARE(picture.pixelColor(app.Column(8500), row), plain);
            QCOMPARE(picture.pixelColor(app.Column(9500), row), light);
            QCOMPARE(picture.pixelColor(app.Column(10500), row), light);
            QCOMPARE(picture.pixelColor(app.Column(11500), row), plain);
        }
    }

    void MarkedAndExtractedLinesLookLikeAnyOther()
    {
        const auto picture = [](std::uint16_t flags, bool isBarChart) {
            ChartLine line = Level;
            line.flags = flags;
            CChartApp app(SecondLines(20, line));
            app.Chart().SetBarChart(isBarChart);
            return app.Picture();
        };
        for (const bool isBarChart : {false, true}) {
            const QImage plain = picture(0, isBarChart);
            QVERIFY(picture(RecordFlag::Marked, isBarChart) == plain);
            QVERIFY(picture(RecordFlag::Extracted, isBarChart) == plain);
        }
    }

    void AColumnOfManyLinesShowsTheirTruePeakAndTheLastOneNone()
    {
        std::vector<ChartLine> lines = SecondLines(20);
        lines[9].ms = lines[10].ms - 2; // three lines in one column
        lines[9].x = -20.0;
        lines[8].ms = lines[10].ms - 1;
        lines[8].x = 30.0;
        std::swap(lines[8].ms, lines[9].ms);
        lines[18].ms = lines[19].ms - 1;
        lines[18].x = 30.0;
        CChartApp app(lines);
        app.ShowAlone(Series::X);
        const QImage picture = app.Picture();
        const QColor colour = SeriesColours[Index(Series::X)];
        const int column = app.Column(9999);
        QCOMPARE(app.Column(10000), column);
        const QSet<int> rows = RowsOf(picture, column, colour);
        QVERIFY(rows.contains(Span(CoarseRow(30.0), CoarseRow(-20.0) + 1)));
        // The last column holds the end of the stretch to it, and no stroke down to the last line.
        const int last = app.Column(19000);
        QCOMPARE(app.Column(18999), last);
        QVERIFY(RowsOf(picture, last, colour).contains(CoarseRow(30.0)));
        QVERIFY(!RowsOf(picture, last, colour).contains(CoarseRow(5.0)));
    }

    void AValueOffTheAxisIsCutOffAtThePlot()
    {
        std::vector<ChartLine> lines = SecondLines(20);
        for (std::size_t i = 1; i < lines.size(); i += 2)
            lines[i].temperature = 120.0; // 60 units of an axis that ends at 50
        CChartApp app(lines);
        app.ShowAlone(Series::Temperature);
        const QColor colour = SeriesColours[Index(Series::Temperature)];
        const auto plot = [&](int row) {
            return ColumnsOf(app.Picture(), row, colour) & Span(app.PlotLeft(), app.PlotRight());
        };
        QVERIFY(!plot(CChartApp::PlotTop - 3).isEmpty());
        for (int row = 0; row < CChartApp::PlotTop - 3; ++row)
            QVERIFY(plot(row).isEmpty());
        app.Chart().SetBarChart(true);
        QCOMPARE(RowsOf(app.Picture(), app.Column(5000), colour),
                 Span(CChartApp::PlotTop - 3, CChartApp::CoarseZero));
    }

    void AStretchBetweenTwoFarLinesHasTheSlopeOfSixteenBits()
    {
        constexpr std::int64_t Day = 86'400'000;
        const std::vector<ChartLine> lines{{0, -20.0}, {Day, 20.0}};
        CChartApp app(lines);
        app.ShowAlone(Series::X);
        for (int i = 0; i < 10; ++i)
            QVERIFY(app.Chart().ZoomInTime());
        app.Bar(Qt::Horizontal).setSliderPosition(static_cast<int>(Day / 4));
        const CTimeWindow& window = app.Chart().Model().m_window;
        QCOMPARE(window.m_viewStart, ChartStart() + Day / 4);
        QVERIFY(window.Column(ChartStart()) < -32768);
        QVERIFY(window.Column(ChartStart() + Day) > 32767);
        // A quarter of the way the value is -10, but the ends drawn lie at columns -32767 and
        // 32767, and so the plot in the middle of the way.
        const int column = (app.PlotLeft() + app.PlotRight()) / 2;
        const double way = (column - CChartApp::Gauge + 32767) / 65534.0;
        const int row = qRound(CoarseRow(-20.0) + way * (CoarseRow(20.0) - CoarseRow(-20.0)));
        QCOMPARE(RowsOf(app.Picture(), column, SeriesColours[Index(Series::X)]), QSet<int>{row});
        QVERIFY(row < CoarseRow(-2.0));
    }

    void HumidityIsLabelledAtWholePercentsAlone()
    {
        CChartApp app(SecondLines(20));
        HideAll(app);
        app.Chart().ChangeScaleStep(8); // a tick is 0.4 percent
        app.Bar(Qt::Vertical).setSliderPosition(app.Bar(Qt::Vertical).value() - 200);
        const CValueScale& scale = app.Chart().Model().m_scale;
        const QImage picture = app.Picture();
        const int label = QFontMetrics(app.Chart().font()).horizontalAdvance("-99.9");
        const QRect column(QPoint(app.PlotRight() + label + 8, 0),
                           QPoint(app.PlotRight() + 2 * label + 12, 0));
        const auto isLabelled = [&](int tick) {
            const int row = scale.Row(tick * 0.1) - scale.m_scrollY;
            const QImage place = picture.copy(column.left(), row - 7, column.width(), 13);
            QImage blank = place;
            blank.fill(Qt::white);
            return place != blank;
        };
        for (int tick = 0; tick <= 7; ++tick)
            QCOMPARE(isLabelled(tick), tick % 5 == 0);
        for (int tick = -3; tick < 0; ++tick)
            QVERIFY(!isLabelled(tick));
    }

    void TheCursorHasCapsAndTakesTheItemColour()
    {
        CChartApp app(SecondLines(20));
        HideAll(app);
        app.Chart().OnMeasureGraph(MeasureGraphCode::CurrentLine, 6);
        const int column = app.Column(6000);
        const QImage picture = app.Picture();
        QCOMPARE(RowsOf(picture, column, Black) & Span(0, 330), Span(21, 325));
        const QSet<int> caps = Span(21, 26) | Span(320, 325);
        for (const int beside : {column - 2, column - 1, column + 1, column + 2})
            QCOMPARE(RowsOf(picture, beside, Black) & Span(0, 330), caps);
        for (const int beside : {column - 3, column + 3})
            QVERIFY((RowsOf(picture, beside, Black) & Span(0, 330)).isEmpty());

        ChartColours colours;
        colours.item = 0x0102FD;
        app.Chart().SetColors(colours);
        QCOMPARE(app.Picture().pixelColor(column, 200), QColor(0xFD, 0x02, 0x01));
    }

    void TheSelectionHasEdgesAndATintBetweenThem()
    {
        CChartApp app(SecondLines(20));
        HideAll(app);
        QVERIFY(app.Chart().BeginAreaSelection());
        const int a = app.Column(4500);
        const int b = app.Column(8500);
        QTest::mousePress(&app.Chart(), Qt::LeftButton, {}, app.InPlot(a));
        QCOMPARE(RowsOf(app.Picture(), a, SelectionEdge), Span(24, 324));
        QTest::mouseMove(&app.Chart(), app.InPlot(b));
        const QImage picture = app.Picture();
        QCOMPARE(ColumnsOf(picture, 30, SelectionEdge), (QSet<int>{a, b}));
        QCOMPARE(RowsOf(picture, b, SelectionEdge), Span(24, 324));
        QVERIFY(IsNear(picture.pixelColor(a + 1, 30), TintedWhite()));
        QVERIFY(IsNear(picture.pixelColor(b - 1, 30), TintedWhite()));
        QCOMPARE(picture.pixelColor(a - 1, 30), White);
        QCOMPARE(picture.pixelColor(b + 1, 30), White);
        QTest::mouseRelease(&app.Chart(), Qt::LeftButton, {}, app.InPlot(b));
        QVERIFY(ColumnsOf(app.Picture(), 30, SelectionEdge).isEmpty());
    }

    void CornerButtonsShowWhatCanBeDone()
    {
        const QColor red(0xFF, 0, 0);
        const QColor green(0, 0xFF, 0);
        const QColor dark(0x40, 0x40, 0x40);
        const QColor disabled(0x80, 0x80, 0x80);
        CChartApp app(SecondLines(20));
        const int scrollBar = app.Chart().height() - app.ScrollBarTop();
        const int centre = app.Chart().height() - 2 * scrollBar;
        const int area = app.Chart().height() - scrollBar;
        const int form = app.Chart().width() - scrollBar;
        app.Chart().DisplayInCenter();
        QImage picture = app.Picture();
        QCOMPARE(picture.pixelColor(6, centre + 6), disabled);
        QVERIFY(picture.pixelColor(7, centre + 6) != red);
        QCOMPARE(picture.pixelColor(5, area + 6), disabled);
        QVERIFY(picture.pixelColor(8, area + 7) != red);
        QCOMPARE(picture.pixelColor(form + 3, area + 6), dark);
        QCOMPARE(picture.pixelColor(form + 4, area + 7), green);

        QVERIFY(app.Chart().ZoomInTime());
        app.Chart().SetBarChart(true);
        picture = app.Picture();
        QCOMPARE(picture.pixelColor(6, centre + 6), dark);
        QCOMPARE(picture.pixelColor(7, centre + 6), red);
        QCOMPARE(picture.pixelColor(5, area + 6), dark);
        QCOMPARE(picture.pixelColor(8, area + 7), red);
        QCOMPARE(picture.pixelColor(form + 6, area + 4), dark);
        QCOMPARE(picture.pixelColor(form + 7, area + 4), green);
        // The frame: face, light from the top left, dark outside at the bottom right.
        QCOMPARE(picture.pixelColor(1, area + 3), White);
        QCOMPARE(picture.pixelColor(15, area + 5), dark);
        QCOMPARE(picture.pixelColor(14, area + 5), disabled);
        QCOMPARE(picture.pixelColor(0, area + 3), QColor(0xEC, 0xE9, 0xD8));
    }

    void BelowTheStripAWindowTallerThanTheContentIsWhite()
    {
        CChartApp app(SecondLines(20, Level));
        const int bottom = app.ScrollBarTop();
        const QImage picture = app.Picture();
        for (int row = bottom - 60; row < bottom; ++row) {
            for (int x = CChartApp::Gauge; x < app.PlotRight(); ++x)
                QCOMPARE(picture.pixelColor(x, row), White);
        }
        // The strip lies right below the content and holds the labels.
        const int content =
            CChartApp::CoarsePlotBottom + QFontMetrics(app.Chart().font()).height() / 2;
        bool hasText = false;
        for (int row = content; row < content + 60; ++row)
            hasText |= !ColumnsOf(picture, row, Black).isEmpty();
        QVERIFY(hasText);
    }

    void TheUpperCapSitsAtTheEdgeWhereThePlotsTopIsScrolledOff()
    {
        CChartApp app(SecondLines(20));
        HideAll(app);
        app.Chart().ChangeScaleStep(4);
        app.Chart().OnMeasureGraph(MeasureGraphCode::CurrentLine, 6);
        QVERIFY(app.Chart().Model().m_scale.m_scrollY > CChartApp::PlotTop);
        const QImage picture = app.Picture();
        const int column = app.Column(6000);
        QCOMPARE(RowsOf(picture, column + 2, Black) & Span(0, 20), Span(0, 2));
        QVERIFY(!RowsOf(picture, column, Black).isEmpty());
    }

    void NoLinesLeaveAnAxisAlone()
    {
        CChartApp app({});
        const QImage picture = app.Picture();
        const int middle = (app.PlotLeft() + app.PlotRight()) / 2;
        QVERIFY(RowsOf(picture, middle, GridGrey).contains(CoarseRow(0.0) - 1));
        QVERIFY(ColumnsOf(picture, 30, GridGrey).isEmpty());
        QCOMPARE(app.Chart().Model().Count(), 0);
    }

    void OneLineIsNoCurveAndOneBar()
    {
        CChartApp app(SecondLines(1, Level));
        const QColor colour = SeriesColours[Index(Series::X)];
        app.ShowAlone(Series::X);
        QVERIFY(ColumnsOf(app.Picture(), CoarseRow(5.0), colour).isEmpty());
        app.Chart().SetBarChart(true);
        // 2.5 seconds of a window that is drawn as if it were 5 seconds wide.
        const double pixelsPerMs = (app.PlotRight() - app.PlotLeft()) * 0.0002;
        const int width = 2 * static_cast<int>(1250 * pixelsPerMs + 0.5) + 1;
        QCOMPARE(ColumnsOf(app.Picture(), CoarseRow(5.0), colour).size(), width);
    }

    void SaysThatItMakesTheChart()
    {
        CChartApp app(SecondLines(20));
        QStringList& statuses = app.m_test.m_frame.m_statuses;
        statuses.clear();
        app.Chart().SetLineWeight(2);
        QCOMPARE(statuses, (QStringList{"Making chart...", "(reset)"}));
        statuses.clear();
        app.Chart().OnMeasureGraph(MeasureGraphCode::CurrentLine, 3);
        QVERIFY(!app.Picture().isNull());
        QVERIFY(statuses.isEmpty());
    }

    void AChartThatMemoryDoesNotAllowIsNotThere()
    {
        CTestApp test;
        const CMeasureData data = ChartData(SecondLines(20, Level));
        CChartWnd chart;
        chart.resize(2'000'000, 2'000);
        chart.Create(data);
        QCOMPARE(test.m_prompts->Boxes(),
                 QStringList{"A chart can't be used by shortage of memory."});
        QVERIFY(chart.IsFree());
        QVERIFY(!chart.CanRedraw());
        // Nothing of what follows finds a chart, and the message comes once.
        chart.ResetData();
        chart.SetBarChart(true);
        chart.SetLineWeight(2);
        chart.ChangeScaleStep(3);
        chart.DisplayInCenter();
        chart.OnMeasureGraph(MeasureGraphCode::CurrentLine, 3);
        chart.OnMeasureGraph(MeasureGraphCode::Refresh, 0);
        chart.OnMeasureGraph(MeasureGraphCode::Marks, 0);
        QVERIFY(!chart.ZoomInTime());
        QVERIFY(!chart.ZoomBack());
        QVERIFY(!chart.Model().CanDisplayInCenter());
        QVERIFY(!chart.Model().CanDisplayAllArea());
        QVERIFY(!chart.Model().HasRisingTime());
        QCOMPARE(chart.Model().Count(), 0);
        QCOMPARE(test.m_prompts->Boxes().size(), 1);
    }

    void AMillionLinesAreOnePicture()
    {
        CChartApp app(SecondLines(1'000'000, Level));
        app.ShowAlone(Series::X);
        const QImage picture = app.Picture();
        const int row = CoarseRow(10.0);
        const QSet<int> columns = ColumnsOf(picture, row, SeriesColours[Index(Series::X)]);
        QVERIFY(columns.contains(Span(app.PlotLeft() + 1, app.PlotRight() - 1)));
    }
};

QTEST_MAIN(PaintTest)
#include "PaintTest.moc"
