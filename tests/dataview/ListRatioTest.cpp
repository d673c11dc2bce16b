#include "ViewApp.h"
#include "support/window/EachRatio.h"

#include <QHeaderView>
#include <QTest>

#include <cmath>

using namespace skeldon;
using namespace skeldon::test;

/// The measured list on screens of several pixel ratios.
class ListRatioTest : public QObject
{
    Q_OBJECT

public:
    explicit ListRatioTest(double ratio)
        : m_ratio(ratio)
    {}

private slots:
    void ScreenHasRatio() { QCOMPARE(QWidget().devicePixelRatioF(), m_ratio); }

    void GridLinesAreEquallyThick()
    {
        CViewApp app;
        app.Show({760, 488});
        app.OpenLines(7);
        const QImage rows = app.List().viewport()->grab().toImage();
        const QColor grid(0xC0, 0xC0, 0xC0);
        const int thickness = static_cast<int>(m_ratio);
        // Along the blank at the top of a row of two columns of numbers, and down between them.
        QCOMPARE(RunsOf(rows, Pixel(225), Pixel(420), Pixel(1), Qt::Horizontal, grid),
                 (std::vector<int>{thickness, thickness, thickness}));
        QCOMPARE(RunsOf(rows, Pixel(0), Pixel(6 * 16), Pixel(226), Qt::Vertical, grid),
                 std::vector<int>(6, thickness));
    }

    void BorderIsSeenOnAllSides()
    {
        CViewApp app;
        app.Show({761, 489});
        app.OpenLines(7);
        const QImage view = app.View().grab().toImage();
        const QRect list = app.List().geometry();
        const QRgb shadow = app.List().palette().color(QPalette::Dark).rgb();
        const QRgb light = app.List().palette().color(QPalette::Light).rgb();
        const QRgb face = qRgb(0xEC, 0xE9, 0xD8);
        QVERIFY(shadow != face);
        QVERIFY(light != face);
        const auto at = [&](double x, double y) {
            return view.pixel(static_cast<int>(x * m_ratio), static_cast<int>(y * m_ratio));
        };
        const double inside = 0.8; // within the outer of the border's two pixels
        const double middle = list.center().x();
        const double high = list.center().y();
        QCOMPARE(at(middle, list.y() + inside), shadow);
        QCOMPARE(at(list.x() + inside, high), shadow);
        QCOMPARE(at(middle, list.y() + list.height() - inside), light);
        QCOMPARE(at(list.x() + list.width() - inside, high), light);
    }

private:
    [[nodiscard]] int Pixel(int logical) const
    {
        return static_cast<int>(std::lround(logical * m_ratio));
    }

    /// How long the runs of a colour are, along a line of pixels.
    static std::vector<int> RunsOf(const QImage& image, int begin, int end, int across,
                                   Qt::Orientation direction, const QColor& colour)
    {
        std::vector<int> runs;
        bool isInside = false;
        for (int i = begin; i < end; ++i) {
            const QPoint point =
                direction == Qt::Horizontal ? QPoint(i, across) : QPoint(across, i);
            const bool isColour = image.pixelColor(point) == colour;
            if (isColour && !isInside)
                runs.push_back(0);
            if (isColour)
                ++runs.back();
            isInside = isColour;
        }
        return runs;
    }

    double m_ratio;
};

int main(int argc, char** argv)
{
    return RunAtEachRatio<ListRatioTest>(argc, argv);
}

#include "ListRatioTest.moc"
