#include "Pixels.h"

#include <QApplication>
#include <QFontMetrics>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

constexpr ChartLine LevelX{0, 10.0};
const QColor& ColourX = SeriesColours[Index(Series::X)];

} // namespace

/// The chart's whole window at the pixel ratio of its screen. Every coordinate of the chart times
/// the ratio is rounded to a device pixel, where one area ends and the next begins; lines of one
/// pixel begin there and are as thick as each other.
class RatioTest : public QObject
{
    Q_OBJECT

public:
    explicit RatioTest(double ratio)
        : m_ratio(ratio)
    {}

private slots:
    void ThePictureHasTheRatioOfTheScreen()
    {
        CChartApp app(SecondLines(20));
        QCOMPARE(app.Chart().devicePixelRatioF(), m_ratio);
        QCOMPARE(app.Picture().size(), QSize(Y(900), Y(600)));
    }

    void GridAndCurveLieOnTheirDevicePixels()
    {
        CChartApp app(SecondLines(20, LevelX));
        app.ShowAlone(Series::X);
        const QImage picture = app.Picture();
        const int between = X(app.Column(5500));
        QSet<int> rows;
        for (int value = -50; value <= 50; value += 5)
            rows |= Line(Y(CoarseRow(value) - 1));
        QCOMPARE(RowsOf(picture, between, GridGrey), rows);
        const int curve = Y(CoarseRow(10.0));
        QCOMPARE(RowsOf(picture, between, ColourX), Span(curve, curve + Y(1)));
        QSet<int> columns;
        for (int second = 1; second < 20; second += 2)
            columns |= Line(X(app.Column(second * 1000)));
        QCOMPARE(ColumnsOf(picture, Y(30), GridGrey), columns);
        QCOMPARE(ColumnsOf(picture, Y(CoarseRow(20.0) - 1), GridGrey),
                 Span(X(app.PlotLeft()), X(app.PlotRight())));
    }

    void LinesOfOneDeviceColumnAreOneStroke()
    {
        std::vector<ChartLine> lines = SecondLines(20);
        lines[9] = {9998, 30.0};
        lines[10] = {9999, -20.0};
        lines.insert(lines.begin() + 11, {10'000, 0.0});
        CChartApp app(lines);
        app.ShowAlone(Series::X);
        const CTimeWindow& window = app.Chart().Model().m_window;
        const auto column = [&](std::int64_t ms) {
            return static_cast<int>(window.Column(ChartStart() + ms)) + CChartApp::Gauge;
        };
        QCOMPARE(column(9998), column(10'000));
        QVERIFY(RowsOf(app.Picture(), X(column(10'000)), ColourX)
                    .contains(Span(Y(CoarseRow(30.0)), Y(CoarseRow(-20.0)) + 1)));
    }

    void TheCursorLiesOnItsDevicePixels()
    {
        CChartApp app(SecondLines(20));
        HideAll(app);
        app.Chart().OnMeasureGraph(MeasureGraphCode::CurrentLine, 6);
        const QImage picture = app.Picture();
        const int column = app.Column(6000);
        const QSet<int> plot = Span(0, Y(330));
        for (int x = X(column - 4); x < X(column + 5); ++x) {
            QSet<int> rows;
            if (x >= X(column - 2) && x < X(column + 3))
                rows = Span(Y(21), Y(26)) | Span(Y(320), Y(325));
            if (Line(X(column)).contains(x))
                rows |= Span(Y(26), Y(323));
            QCOMPARE(RowsOf(picture, x, Black) & plot, rows);
        }
    }

    void BarsLieOnTheirDevicePixels()
    {
        std::vector<ChartLine> lines = SecondLines(20, LevelX);
        CChartApp app(lines);
        app.ShowAlone(Series::X);
        app.Chart().SetBarChart(true);
        const CTimeWindow& window = app.Chart().Model().m_window;
        QSet<int> columns;
        for (const ChartLine& line : lines) {
            const int column = app.Column(line.ms);
            columns |= Span(X(column - window.HalfBar()), X(column + window.HalfBar() + 1));
        }
        const QImage picture = app.Picture();
        const int row = Y(CoarseRow(5.0));
        // Beyond the plot's sides bars are cut off two columns away.
        QCOMPARE(ColumnsOf(picture, row, ColourX),
                 columns & Span(X(app.PlotLeft() - 2), X(app.PlotRight() + 2)));
        QCOMPARE(RowsOf(picture, X(app.Column(5000)), ColourX),
                 Span(Y(CoarseRow(10.0)), Y(CChartApp::CoarseZero)));
    }

    void TheSelectionLiesOnItsDevicePixels()
    {
        CChartApp app(SecondLines(20));
        HideAll(app);
        QVERIFY(app.Chart().BeginAreaSelection());
        const int a = app.Column(4500);
        const int b = app.Column(8500);
        QTest::mousePress(&app.Chart(), Qt::LeftButton, {}, app.InPlot(a));
        QTest::mouseMove(&app.Chart(), app.InPlot(b));
        const QImage picture = app.Picture();
        QCOMPARE(ColumnsOf(picture, Y(30), SelectionEdge),
                 Span(X(a), X(a + 1)) | Span(X(b), X(b + 1)));
        QCOMPARE(RowsOf(picture, X(b), SelectionEdge), Span(Y(24), Y(324)));
        QVERIFY(IsNear(picture.pixelColor(X(a + 1), Y(30)), TintedWhite()));
        QVERIFY(IsNear(picture.pixelColor(X(b) - 1, Y(30)), TintedWhite()));
        QCOMPARE(picture.pixelColor(X(a) - 1, Y(30)), White);
        QCOMPARE(picture.pixelColor(X(b + 1), Y(30)), White);
        QTest::mouseRelease(&app.Chart(), Qt::LeftButton, {}, app.InPlot(b));
    }

    void TheStripFollowsTheContentAndBelowItAllIsWhite()
    {
        CChartApp app(SecondLines(20, LevelX));
        const ChartSizes sizes = app.Chart().Model().Sizes();
        QVERIFY(sizes.Hgt() > sizes.contentHeight);
        const QImage picture = app.Picture();
        const auto isBlank = [&](int top, int bottom, int left) {
            const QImage part = picture.copy(left, top, X(app.PlotRight()) - left, bottom - top);
            QImage blank = part;
            blank.fill(Qt::white);
            return part == blank;
        };
        const int strip = Y(sizes.contentHeight);
        const int below = Y(sizes.contentHeight + sizes.timeStripHeight);
        QVERIFY(isBlank(strip - Y(2), strip, X(app.PlotLeft())));
        QVERIFY(!isBlank(strip, below, X(CChartApp::Gauge)));
        QVERIFY(isBlank(below, Y(app.ScrollBarTop()), X(CChartApp::Gauge)));
    }

    void AScrolledPictureMovesByWholeDevicePixels()
    {
        CChartApp app(SecondLines(20, LevelX));
        app.Chart().ChangeScaleStep(4);
        const auto plot = [this, &app](const QImage& picture, int top, int rows) {
            return picture.copy(X(app.PlotLeft()), top, X(app.PlotRight()) - X(app.PlotLeft()),
                                rows);
        };
        const QImage before = app.Picture();
        constexpr int Rows = 32; // a whole number of device pixels at all these ratios
        QScrollBar& bar = app.Bar(Qt::Vertical);
        bar.setSliderPosition(bar.value() + Rows);
        const QImage after = app.Picture();
        QVERIFY(after != before);
        QCOMPARE(plot(after, Y(20), Y(300)), plot(before, Y(20 + Rows), Y(300)));
    }

    void CornerButtonsLieOnTheirDevicePixels()
    {
        CChartApp app(SecondLines(20));
        const QColor green(0, 0xFF, 0);
        const QColor red(0xFF, 0, 0);
        const int bar = app.Chart().height() - app.ScrollBarTop();
        const int left = app.Bar(Qt::Vertical).x();
        const int top = app.ScrollBarTop();
        QVERIFY(app.Chart().ZoomInTime());
        const QImage picture = app.Picture();
        QCOMPARE(ColumnsOf(picture, Y(top + 7), green),
                 Span(Y(left + 3), Y(app.Chart().width() - 3)));
        QCOMPARE(RowsOf(picture, Y(left + 8), green), Span(Y(top + 7), Y(top + bar - 7)));
        QCOMPARE(ColumnsOf(picture, Y(top - bar + 6), red), Span(Y(7), Y(9)));
        QCOMPARE(RowsOf(picture, Y(8), red),
                 Span(Y(top - bar + 4), Y(top - 4)) | Span(Y(top + 7), Y(top + bar - 7)));
    }

private:
    /// The device pixels of a line of one logical pixel.
    [[nodiscard]] QSet<int> Line(int first) const
    {
        return Span(first, first + static_cast<int>(m_ratio));
    }
    /// A logical pixel of the window as one of the device.
    [[nodiscard]] int Y(int pixel) const { return static_cast<int>(pixel * m_ratio + 0.5); }
    /// The same of a column, which counts from the gauge's right edge.
    [[nodiscard]] int X(int column) const
    {
        return Y(CChartApp::Gauge) + Y(column - CChartApp::Gauge);
    }

    double m_ratio;
};

int main(int argc, char** argv)
{
    int failed = 0;
    for (const double ratio : {1.0, 1.28125, 1.5, 2.0}) {
        qputenv("QT_SCALE_FACTOR", QByteArray::number(ratio));
        const QApplication application(argc, argv);
        RatioTest test(ratio);
        failed += QTest::qExec(&test, argc, argv);
    }
    return failed;
}

#include "RatioTest.moc"
