#include "ChartApp.h"

#include "chart/view/ChartPicture.h"
#include "chart/view/ScaledPainter.h"

#include <QFontMetrics>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

const QColor CurveX(0xC5, 0x0C, 0xC5);
const QColor Grid(0xC0, 0xC0, 0xC0);
const QColor White(Qt::white);
constexpr ChartLine Level{0, 10.0, -10.0, 20.0, 24.0, 60.0, 160.0, 0};

/// Rows and columns that pixels of a colour reach over; empty where there are none.
QRect Bounds(const QImage& picture, const QColor& colour, const QRect& within)
{
    QRect bounds;
    for (int y = within.top(); y <= within.bottom(); ++y) {
        for (int x = within.left(); x <= within.right(); ++x) {
            if (picture.pixelColor(x, y) == colour)
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

} // namespace

/// The same painter on other devices, and the picture with title and legend.
class PictureTest : public QObject
{
    Q_OBJECT

private slots:
    void CoordinatesAreMultipliedAndRounded()
    {
        QImage target(100, 100, QImage::Format_RGB32);
        target.fill(Qt::white);
        CScaledPainter painter(target, QFont(), 1.5, 2.0);
        painter.FillRectScaled(3, 4, 5, 6, 0x000000);
        // 4.5 and 7.5 pixels round up.
        QCOMPARE(Bounds(target, Qt::black, target.rect()), QRect(QPoint(5, 8), QPoint(7, 11)));
    }

    void AVeilLetsTheGroundThrough()
    {
        QImage target(20, 20, QImage::Format_RGB32);
        target.fill(Qt::white);
        CScaledPainter painter(target, QFont(), 1.0, 1.0);
        painter.BlendRectScaled(5, 5, 10, 10, 0x804040, 25);
        const QColor tinted = target.pixelColor(7, 7);
        QVERIFY(std::abs(tinted.red() - (255 * 230 + 0x40 * 25) / 255) <= 1);
        QVERIFY(std::abs(tinted.blue() - (255 * 230 + 0x80 * 25) / 255) <= 1);
        QCOMPARE(target.pixelColor(10, 7), White);
    }

    void VerticalTextReadsUpwardAndWipesItsGround()
    {
        using Vertical = CScaledPainter::Vertical;
        QFont font;
        font.setPixelSize(11);
        const QColor ground(0x10, 0x20, 0x30);
        const QFontMetrics metrics(font);
        const QString text = QStringLiteral("XYZ axes (G)");
        const int length = metrics.horizontalAdvance(text);
        const int height = metrics.height();
        const auto placed = [&](Vertical alignment) {
            QImage target(200, 400, QImage::Format_RGB32);
            target.fill(ground);
            CScaledPainter painter(target, font, 1.0, 1.0);
            if (painter.DrawRotatedText(100, 200, alignment, text, 0x000000) != length)
                return QRect();
            return Bounds(target, White, target.rect());
        };
        QCOMPARE(placed(Vertical::Centred), QRect(100, 200 + length / 2 - length, height, length));
        QCOMPARE(placed(Vertical::Downward), QRect(100, 200, height, length));
        QCOMPARE(placed(Vertical::Upward), QRect(100, 200 - length, height, length));
        QCOMPARE(placed(Vertical::Column), QRect(100 - height / 2, 200, height, length));
    }

    void AStrokeLiesWhereDoubledCoordinatesSay()
    {
        CChartApp app(SecondLines(20, Level));
        app.ShowAlone(Series::X);
        const ChartColours colours;
        const CChartModel& model = app.Chart().Model();
        const auto painted = [&](int ratio) {
            QImage layer(QSize(900, 600) * ratio, QImage::Format_RGB32);
            layer.fill(Qt::white);
            CChartPainter painter(model, colours, app.Chart().font());
            painter.SetRatio(ratio);
            painter.PaintChart(layer);
            return layer;
        };
        const QImage one = painted(1);
        const QImage two = painted(2);
        const int between = app.Column(6500) - CChartApp::Gauge;
        const int row = CoarseRow(10.0);
        QCOMPARE(one.pixelColor(between, row), CurveX);
        const QRect all(2 * between, 0, 1, two.height());
        const QRect stroke = Bounds(two, CurveX, all);
        QCOMPARE(stroke.height(), 2);
        QVERIFY(stroke.contains(2 * between, 2 * row));
        // A grid line of one row is two rows, exactly where one times two says.
        const QRect grid(2 * between, 2 * CoarseRow(15.0) - 10, 1, 20);
        QCOMPARE(Bounds(two, Grid, grid), QRect(2 * between, 2 * CoarseRow(15.0) - 2, 1, 2));
        QCOMPARE(Bounds(one, Grid, {between, CoarseRow(15.0) - 5, 1, 10}),
                 QRect(between, CoarseRow(15.0) - 1, 1, 1));
    }

    void ThePictureHasRoomForTitleAndLegend()
    {
        constexpr int LabelHeight = 14;
        QCOMPARE(ChartPictureSize({600, 300}, LabelHeight), QSize(600 + 5 * 22, 300 + 36));
        QCOMPARE(ChartInPicture(ChartPictureSize({600, 300}, LabelHeight), LabelHeight),
                 QSize(600, 300));
    }

    void TheTitleNamesTheFileWhereThereIsOne()
    {
        CMeasureData data;
        QCOMPARE(ChartTitle("Chart", data), "Chart");
        data.m_fileName = "crate.skd";
        QCOMPARE(ChartTitle("Chart", data), "Chart : crate.skd");
    }

    void TheCopyIsTheViewWithTitleAndLegend()
    {
        CChartApp app(SecondLines(20, Level));
        const CChartModel& model = app.Chart().Model();
        const QFont font = app.Chart().font();
        const int label = QFontMetrics(font).height();
        const int width = app.Chart().width() - app.Bar(Qt::Vertical).width() - CChartApp::Gauge;
        const int height = app.ScrollBarTop();
        const QImage copy = ChartPicture(model, ChartColours(), font, QStringLiteral("Crate"), 1.0);
        QCOMPARE(copy.size(), QSize(width + 5 * (label + 8), height + 2 * label + 8));
        const int top = 2 * label + 8;
        const QImage view = app.Picture()
                                .convertToFormat(QImage::Format_RGB32)
                                .copy(CChartApp::Gauge, 0, width, height);
        QCOMPARE(copy.copy(0, top, width, height), view);

        // The title ends 8 pixels short of the right edge.
        const int right = width + 5 * label + 32;
        QRect title;
        for (int x = 0; x < copy.width(); ++x) {
            for (int y = 8; y < 8 + label; ++y) {
                if (copy.pixelColor(x, y) != White)
                    title |= QRect(x, y, 1, 1);
            }
        }
        QVERIFY(!title.isEmpty());
        QVERIFY(title.right() < right && title.right() > right - 10);
        // Six lines in the series' colours, a row of the label's height and 4 apart.
        for (const Series series : AllSeries) {
            const int row = top + static_cast<int>(Index(series)) * (label + 4) + (label + 4) / 2;
            const QRect line = Bounds(copy, ToColour(ChartColours().series[Index(series)]),
                                      {width, top, copy.width() - width, height});
            QCOMPARE(line.top(), row);
            QCOMPARE(line.height(), 1);
            QCOMPARE(line.right(), right - 1);
        }
    }

    void AtTwiceTheRatioThePictureIsTwiceAsLarge()
    {
        CChartApp app(SecondLines(20, Level));
        const CChartModel& model = app.Chart().Model();
        const QFont font = app.Chart().font();
        const QImage one = ChartPicture(model, ChartColours(), font, QStringLiteral("Crate"), 1.0);
        const QImage two = ChartPicture(model, ChartColours(), font, QStringLiteral("Crate"), 2.0);
        QCOMPARE(two.size(), one.size() * 2);
        const int top = 2 * QFontMetrics(font).height() + 8;
        const int between = app.Column(6500) - CChartApp::Gauge;
        QCOMPARE(one.pixelColor(between, top + CoarseRow(10.0)), CurveX);
        QCOMPARE(two.pixelColor(2 * between, 2 * (top + CoarseRow(10.0))), CurveX);
    }
};

QTEST_MAIN(PictureTest)
#include "PictureTest.moc"
