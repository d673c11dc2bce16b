#include "ChartApp.h"
#include "chart/view/ChartPage.h"

#include <QPainter>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

constexpr QSize Paper{1500, 900};

/// Lines whose curves go up and down through all of the plot.
std::vector<ChartLine> WildLines()
{
    constexpr int Count = 40;
    std::vector<ChartLine> lines = SecondLines(Count);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const double sign = i % 2 == 0 ? 1.0 : -1.0;
        lines[i].x = sign * 1.9;
        lines[i].y = sign * static_cast<double>(i) * 0.04;
        lines[i].temperature = static_cast<double>(i) * 0.05;
    }
    return lines;
}

QImage PageOf(CChartApp& app)
{
    QImage page(Paper, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    if (!app.Chart().PrintChart(painter, Paper.width(), Paper.height()))
        return {};
    return page;
}

} // namespace

class PageTest : public QObject
{
    Q_OBJECT

private slots:
    void TheNaturalSizeIsWhatTheWindowShowsWithTitleAndLegend()
    {
        CChartApp app(SecondLines(20));
        app.ShowAlone(Series::X); // the coarsest step: the window is higher than the content
        const ChartSizes sizes = app.Chart().Model().Sizes();
        const QSize size = app.Chart().GetNaturalSize();
        QCOMPARE(size.width(), sizes.PlotBitmapWidth() + 5 * sizes.labelHeight + 32);
        QCOMPARE(size.height(),
                 sizes.contentHeight + sizes.timeStripHeight + 2 * sizes.labelHeight);
        app.Chart().ChangeScaleStep(8); // now the content is higher
        QCOMPARE(app.Chart().GetNaturalSize().height(),
                 app.Chart().Model().Sizes().Hgt() + sizes.timeStripHeight + 2 * sizes.labelHeight);
    }

    void BandsMakeTheSamePictureAsOnePiece()
    {
        CChartApp app(WildLines());
        const CChartModel& model = app.Chart().Model();
        const auto curves = [&](std::int64_t bytes) {
            QImage picture(Paper, QImage::Format_RGB32);
            picture.fill(Qt::white);
            QPainter device(&picture);
            const ChartColours colours;
            CScaledPainter scaled(device, app.Chart().font(), 1.5, 1.25);
            CChartPainter painter(model, colours, app.Chart().font());
            painter.SetScale(1.5, 1.25);
            painter.SetPenWidth(3);
            if (!painter.PaintCurves(scaled, scaled.DeviceY(model.Sizes().Hgt()), bytes))
                return QImage();
            device.end();
            return picture;
        };
        const QImage whole = curves(PageBandBytes);
        QVERIFY(!whole.isNull());
        // Something is drawn from top to bottom of the plot.
        QImage empty(Paper, QImage::Format_RGB32);
        empty.fill(Qt::white);
        QVERIFY(whole != empty);
        for (const std::int64_t bytes : {1'000'000, 100'000, 30'000, 1})
            QCOMPARE(curves(bytes), whole);
    }

    void ThePagesOtherContentsSurviveIt()
    {
        CChartApp app(WildLines());
        QImage page(Paper, QImage::Format_RGB32);
        page.fill(Qt::white);
        QPainter painter(&page);
        painter.setPen(Qt::red);
        const QFont font = painter.font();
        QVERIFY(app.Chart().PrintChart(painter, Paper.width(), Paper.height()));
        QCOMPARE(painter.font(), font);
        QCOMPARE(painter.pen().color(), QColor(Qt::red));
        QVERIFY(!painter.hasClipping());
        QCOMPARE(painter.transform(), QTransform());
    }

    void PrintingLeavesTheWindowAsItWas()
    {
        CChartApp app(WildLines());
        const QImage before = app.Picture();
        QVERIFY(!PageOf(app).isNull());
        QCOMPARE(app.Picture(), before);
    }

    void TheTopRowsHoldNothingButTheTitle()
    {
        CChartApp app(WildLines());
        app.Chart().ChangeScaleStep(8); // curves run far off the top
        const QImage page = PageOf(app);
        const ChartSizes sizes = app.Chart().Model().Sizes();
        const QSize natural = app.Chart().GetNaturalSize();
        const double scaleY = static_cast<double>(Paper.height()) / natural.height();
        const int head = static_cast<int>(2 * sizes.labelHeight * scaleY);
        for (int y = head / 2 + 4; y < head; ++y) {
            for (int x = 0; x < page.width(); ++x)
                QCOMPARE(page.pixel(x, y), qRgb(255, 255, 255));
        }
    }

    void WithoutRoomNothingIsPrinted()
    {
        CChartApp app(SecondLines(20));
        QImage page(Paper, QImage::Format_RGB32);
        QPainter painter(&page);
        QVERIFY(!app.Chart().PrintChart(painter, 0, 100));
        QVERIFY(!app.Chart().PrintChart(painter, 100, 0));
    }
};

QTEST_MAIN(PageTest)
#include "PageTest.moc"
