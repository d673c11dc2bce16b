#include "controls/ConnectionIcon.h"
#include "controls/LcdPanel.h"
#include "controls/Pixels.h"
#include "controls/ProgressWindow.h"
#include "controls/SkinButton.h"
#include "controls/SpinButton.h"
#include "support/window/EachRatio.h"

#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

/// The controls on screens of several pixel ratios: pictures go to the screen pixel by pixel, never
/// scaled.
class RatioTest : public QObject
{
    Q_OBJECT

public:
    explicit RatioTest(double ratio)
        : m_ratio(ratio)
    {}

private slots:
    void ScreenHasRatio();
    void ButtonIsTakenPixelByPixel();
    void ReadOutIsTakenPixelByPixel();
    void StripIsTakenPixelByPixel();
    void StripFillsToDevicePixel();
    void PicturesAreTakenPixelByPixel();

private:
    /// Whether `part` of a picture stands at `place`, both in logical pixels.
    [[nodiscard]] bool Stands(const QImage& painted, const QImage& picture, const QRect& part,
                              QPoint place) const;

    double m_ratio;
};

bool RatioTest::Stands(const QImage& painted, const QImage& picture, const QRect& part,
                       QPoint place) const
{
    const QRect from = PicturePixels(part, m_ratio);
    const QPoint to = PicturePixels(QRect(place, part.size()), m_ratio).topLeft();
    for (int y = 0; y < from.height(); ++y) {
        for (int x = 0; x < from.width(); ++x) {
            const QRgb pixel = picture.pixel(from.left() + x, from.top() + y);
            if (qAlpha(pixel) == 255 && painted.pixel(to.x() + x, to.y() + y) != pixel)
                return false;
        }
    }
    return true;
}

void RatioTest::ScreenHasRatio()
{
    QCOMPARE(QWidget().devicePixelRatioF(), m_ratio);
}

void RatioTest::ButtonIsTakenPixelByPixel()
{
    CSkinButton button;
    button.Move(0, 0, 76);
    const QImage painted = Painted(button);
    QCOMPARE(painted.size(), PicturePixels(button.rect(), m_ratio).size());
    const QImage faces = Picture(PictureId::ButtonFaces, m_ratio);
    const int end = ButtonFaceEnd;
    QVERIFY(Stands(painted, faces, {0, ButtonFaceHeight, end, ButtonFaceHeight}, {0, 0}));
    QVERIFY(Stands(painted, faces, {10, ButtonFaceHeight, 16, ButtonFaceHeight}, {30, 0}));
    QVERIFY(
        Stands(painted, faces, {40 - end, ButtonFaceHeight, end, ButtonFaceHeight}, {76 - end, 0}));
    button.SetUpPicture(PictureId::IconOpen);
    QVERIFY(
        Stands(Painted(button), Picture(PictureId::IconOpen, m_ratio), {0, 0, 16, 16}, {10, 6}));
}

void RatioTest::ReadOutIsTakenPixelByPixel()
{
    CLcdPanel panel(LcdPanelKind::Threshold);
    panel.SetValue(105);
    const QImage painted = Painted(panel);
    const QImage back = Picture(PictureId::LcdBack, m_ratio);
    QVERIFY(Stands(painted, back, {0, 0, 96, 17}, {0, 0}));
    QVERIFY(Stands(painted, back, {0, 38, 96, 4}, {0, 38}));
    const QImage strip = Picture(PictureId::LcdDigits, m_ratio);
    const QRect cell = PicturePixels(QRect(QPoint(8 + 29, 18), LcdCellSize), m_ratio);
    for (int y = 0; y < cell.height(); ++y) {
        for (int x = 0; x < cell.width(); ++x) {
            const QRgb seen = painted.pixel(cell.left() + x, cell.top() + y);
            QCOMPARE(qGreen(seen), qGreen(strip.pixel(x, y)));
            QCOMPARE(qRed(seen), 0);
        }
    }
}

void RatioTest::StripIsTakenPixelByPixel()
{
    CProgressWindow strip(nullptr, 100);
    strip.SetPosition(50);
    const QImage painted = Painted(strip);
    const QImage gauge = Picture(PictureId::Progress, m_ratio);
    QVERIFY(Stands(painted, gauge, {0, 0, 17, 48}, {0, 0}));
    QVERIFY(Stands(painted, gauge, {35, 0, 1, 48}, {30, 0}));
    QVERIFY(Stands(painted, gauge, {17, 0, 1, 48}, {70, 0}));
    const QRect end = PicturePixels({18, 0, 17, 48}, m_ratio);
    QCOMPARE(painted.copy(painted.width() - end.width(), 0, end.width(), painted.height()),
             gauge.copy(end).convertToFormat(painted.format()));
}

void RatioTest::StripFillsToDevicePixel()
{
    CProgressWindow strip(nullptr, 400);
    strip.SetRange(7);
    strip.SetPosition(3);
    const QImage painted = Painted(strip);
    const QImage gauge = Picture(PictureId::Progress, m_ratio);
    const int y = painted.height() / 2;
    const QRgb filled = gauge.pixel(PicturePixels({35, 0, 1, 1}, m_ratio).left(), y);
    const QRgb empty = gauge.pixel(PicturePixels({17, 0, 1, 1}, m_ratio).left(), y);
    QVERIFY(filled != empty);
    const int end = PicturePixels({0, 0, 17, 1}, m_ratio).width();
    const int otherEnd = PicturePixels({18, 0, 17, 1}, m_ratio).width();
    const QRect middle(end, 0, painted.width() - end - otherEnd, 1);
    const int edge = middle.left() + middle.width() * 3 / 7;
    QCOMPARE(QColor(painted.pixel(middle.left(), y)), QColor(filled));
    QCOMPARE(QColor(painted.pixel(edge - 1, y)), QColor(filled));
    QCOMPARE(QColor(painted.pixel(edge, y)), QColor(empty));
    QCOMPARE(QColor(painted.pixel(middle.right(), y)), QColor(empty));
}

void RatioTest::PicturesAreTakenPixelByPixel()
{
    CConnectionIcon icon;
    const QImage both = Picture(PictureId::Connection, m_ratio);
    QVERIFY(Stands(Painted(icon), both, {0, 0, 48, 28}, {0, 0}));
    icon.SetConnected(true);
    QVERIFY(Stands(Painted(icon), both, {48, 0, 48, 28}, {0, 0}));
    CSpinButton up(SpinKind::Up);
    QVERIFY(Stands(Painted(up), Picture(PictureId::SpinUp, m_ratio), {0, 0, 11, 9}, {0, 0}));
}

int main(int argc, char** argv)
{
    return RunAtEachRatio<RatioTest>(argc, argv);
}

#include "RatioTest.moc"
