#include "controls/PixelLine.h"

#include <QImage>
#include <QPainter>
#include <QTest>

using namespace skeldon;

namespace {

constexpr int Side = 40; // of the image, in logical pixels

QImage White(double ratio)
{
    const int pixels = static_cast<int>(Side * ratio);
    QImage image(pixels, pixels, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    return image;
}

/// Rows or columns of the image that are black in the middle of the other direction.
std::vector<int> Black(const QImage& image, Qt::Orientation lines)
{
    std::vector<int> black;
    const int middle = image.width() / 2;
    for (int i = 0; i < image.width(); ++i) {
        const QPoint point = lines == Qt::Horizontal ? QPoint(middle, i) : QPoint(i, middle);
        const QColor colour = image.pixelColor(point);
        if (colour == Qt::black)
            black.push_back(i);
        else if (colour != Qt::white)
            return {}; // a line that is not crisp
    }
    return black;
}

} // namespace

class PixelLineTest : public QObject
{
    Q_OBJECT

private slots:
    void LinesAreEquallyThickWhereverTheyStand_data()
    {
        QTest::addColumn<double>("ratio");
        QTest::addColumn<std::size_t>("thickness");
        QTest::newRow("1") << 1.0 << std::size_t{1};
        QTest::newRow("1.25") << 1.25 << std::size_t{1};
        QTest::newRow("1.5") << 1.5 << std::size_t{1};
        QTest::newRow("2") << 2.0 << std::size_t{2};
        QTest::newRow("3") << 3.0 << std::size_t{3};
    }

    void LinesAreEquallyThickWhereverTheyStand()
    {
        QFETCH(const double, ratio);
        QFETCH(const std::size_t, thickness);
        for (int at = 0; at < Side - 1; ++at) {
            QImage across = White(ratio);
            QImage down = White(ratio);
            QPainter acrossPainter(&across);
            FillLine(acrossPainter, {0, at, Side, 1}, Qt::black);
            QPainter downPainter(&down);
            FillLine(downPainter, {at, 0, 1, Side}, Qt::black);
            QCOMPARE(Black(across, Qt::Horizontal).size(), thickness);
            QCOMPARE(Black(down, Qt::Vertical), Black(across, Qt::Horizontal));
        }
    }

    void LineBeginsAtTheNearestPixelEdge()
    {
        QImage image = White(1.5);
        QPainter painter(&image);
        FillLine(painter, {0, 4, Side, 1}, Qt::black); // at 6.0
        FillLine(painter, {0, 7, Side, 1}, Qt::black); // at 10.5
        QCOMPARE(Black(image, Qt::Horizontal), (std::vector<int>{6, 11}));
    }

    void WidgetThatBeginsInsideOfAPixelHasCrispLinesToo()
    {
        QImage image = White(1.5);
        QPainter painter(&image);
        painter.translate(1, 1); // to 1.5
        FillLine(painter, {0, 4, Side, 1}, Qt::black);
        QCOMPARE(Black(image, Qt::Horizontal), (std::vector<int>{8}));
    }

    void LineIsAsLongAsStated()
    {
        QImage image = White(2);
        QPainter painter(&image);
        FillLine(painter, {3, 5, 20, 1}, Qt::black);
        QCOMPARE(image.pixelColor(5, 10), QColor(Qt::white));
        QCOMPARE(image.pixelColor(6, 10), QColor(Qt::black));
        QCOMPARE(image.pixelColor(45, 11), QColor(Qt::black));
        QCOMPARE(image.pixelColor(46, 11), QColor(Qt::white));
    }
};

QTEST_MAIN(PixelLineTest)
#include "PixelLineTest.moc"
