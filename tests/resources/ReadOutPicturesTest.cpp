#include "resources/PictureProbe.h"

#include <QtTest>

#include <array>
#include <utility>
#include <vector>

using namespace skeldon;

namespace {

/// Places of the digit cells, as the read-outs use them.
struct ReadOut
{
    PictureId id;
    std::vector<int> offsets;
    std::vector<int> points; ///< columns, in logical pixels, that a decimal point may use
};

std::vector<ReadOut> ReadOuts()
{
    return {
        {PictureId::LcdRecords, {11, 21, 31, 41, 51, 61}, {}},
        {PictureId::LcdSampling, {6, 20, 30, 40, 50}, {14, 20}},
        {PictureId::LcdSamplingTrace, {6, 20, 30, 40, 50}, {14, 20}},
        {PictureId::LcdIntervalMinutes, {25, 35}, {}},
        {PictureId::LcdIntervalSeconds, {25, 35}, {}},
        {PictureId::LcdThreshold, {19, 29, 43}, {37, 43}},
        {PictureId::LcdId, {31, 41}, {}},
        {PictureId::LcdStartOption, {31, 41}, {}},
    };
}

} // namespace

class ReadOutPicturesTest : public QObject
{
    Q_OBJECT

private slots:
    void DigitsKeepApart();
    void DigitsLightTheirBars();
    void DisplaysLeaveTheDigitsFree();
    void MasksAreWhiteOnBlack();
    void PointsStandBetweenTheirDigits();
    void UnitsDifferAndKeepClearOfTheArrows();
    void TraceLightsItsMarkUnderTheDigits();
    void OnAndOffDiffer();
    void TheGlassIsBlackAndTheCaptionPlain();
};

void ReadOutPicturesTest::DigitsKeepApart()
{
    for (const double ratio : {1.0, 1.5, 2.0, 3.0}) {
        for (int code = 0; code < 11; ++code) {
            const QImage gap = PartOf(PictureId::LcdDigits, {code * 8 + 7, 0, 1, 20}, ratio);
            QVERIFY2(IsAll(gap, qRgb(0, 0, 0)), qPrintable(QString::number(code)));
            QVERIFY(CountLit(PartOf(PictureId::LcdDigits, {code * 8, 0, 7, 20}, ratio)) > 0);
        }
    }
}

void ReadOutPicturesTest::DigitsLightTheirBars()
{
    // Bars in the order top, upper left, upper right, middle, lower left, lower right, bottom.
    constexpr std::array<QPoint, 7> Bars{QPoint(3, 2),  QPoint(0, 6),  QPoint(6, 6), QPoint(3, 9),
                                         QPoint(0, 13), QPoint(6, 13), QPoint(3, 17)};
    const std::array<const char*, 11> lit{"1110111", "0010010", "1011101", "1011011",
                                          "0111010", "1101011", "1101111", "1010010",
                                          "1111111", "1111011", "0001000"};
    for (const double ratio : {1.0, 1.5, 2.0}) {
        for (int code = 0; code < 11; ++code) {
            const QImage digit = PartOf(PictureId::LcdDigits, {code * 8, 0, 8, 20}, ratio);
            QString seen;
            for (const QPoint& bar : Bars) {
                const QPoint at(static_cast<int>(bar.x() * ratio),
                                static_cast<int>(bar.y() * ratio));
                seen += qGray(digit.pixel(at)) > 200 ? '1' : '0';
            }
            QCOMPARE(seen, QString(lit[static_cast<std::size_t>(code)]));
        }
    }
}

void ReadOutPicturesTest::DisplaysLeaveTheDigitsFree()
{
    for (const ReadOut& readOut : ReadOuts()) {
        for (const double ratio : {1.0, 1.5, 2.0, 3.0}) {
            for (const int x : readOut.offsets) {
                QVERIFY2(IsAll(PartOf(readOut.id, {x, 0, 8, 20}, ratio), qRgb(0, 0, 0)),
                         qPrintable(NameOf(readOut.id, ratio)));
            }
        }
    }
}

void ReadOutPicturesTest::MasksAreWhiteOnBlack()
{
    for (int i = static_cast<int>(PictureId::LcdDigits);
         i <= static_cast<int>(PictureId::LcdStartOption); ++i) {
        const QImage mask = Picture(static_cast<PictureId>(i), 1.5);
        for (int y = 0; y < mask.height(); ++y) {
            for (int x = 0; x < mask.width(); ++x) {
                const QRgb pixel = mask.pixel(x, y);
                QCOMPARE(qAlpha(pixel), 255);
                QVERIFY(qRed(pixel) == qGreen(pixel) && qGreen(pixel) == qBlue(pixel));
            }
        }
    }
}

void ReadOutPicturesTest::PointsStandBetweenTheirDigits()
{
    for (const ReadOut& readOut : ReadOuts()) {
        if (readOut.points.empty())
            continue;
        for (const double ratio : {1.0, 1.5, 2.0}) {
            const QRect gap(readOut.points[0], 0, readOut.points[1] - readOut.points[0], 20);
            const QImage part = PartOf(readOut.id, gap, ratio);
            QVERIFY(CountLit(part) > 0);
            QVERIFY(CountLit(part) <= static_cast<int>(9 * ratio * ratio));
            // On the base line of the digits, nothing higher up.
            QCOMPARE(CountLit(part.copy(0, 0, part.width(), static_cast<int>(14 * ratio))), 0);
        }
    }
}

void ReadOutPicturesTest::UnitsDifferAndKeepClearOfTheArrows()
{
    const QRect unit(43, 0, 34, 20);
    QVERIFY(PartOf(PictureId::LcdIntervalMinutes, unit, 1) !=
            PartOf(PictureId::LcdIntervalSeconds, unit, 1));
    for (const ReadOut& readOut : ReadOuts()) {
        for (const double ratio : {1.0, 1.5, 2.0}) {
            // The arrows of a read-out lie over the last three columns of its glass.
            const int height = PictureSize(readOut.id).height();
            QVERIFY(IsAll(PartOf(readOut.id, {77, 0, 3, height}, ratio), qRgb(0, 0, 0)));
        }
    }
    for (const PictureId id : {PictureId::LcdIntervalMinutes, PictureId::LcdIntervalSeconds})
        QVERIFY(CountLit(PartOf(id, unit, 1)) > 30);
    QVERIFY(CountLit(PartOf(PictureId::LcdSampling, {58, 0, 19, 20}, 1)) > 30);
    QVERIFY(CountLit(PartOf(PictureId::LcdThreshold, {51, 0, 26, 20}, 1)) > 30);
    QCOMPARE(CountLit(Picture(PictureId::LcdRecords, 1)), 0);
}

void ReadOutPicturesTest::TraceLightsItsMarkUnderTheDigits()
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        QCOMPARE(PartOf(PictureId::LcdSampling, {0, 0, 80, 19}, ratio),
                 PartOf(PictureId::LcdSamplingTrace, {0, 0, 80, 19}, ratio));
        QCOMPARE(CountLit(PartOf(PictureId::LcdSampling, {0, 20, 80, 12}, ratio)), 0);
        QVERIFY(CountLit(PartOf(PictureId::LcdSamplingTrace, {0, 20, 80, 12}, ratio)) >
                100 * ratio * ratio);
    }
}

void ReadOutPicturesTest::OnAndOffDiffer()
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        QVERIFY(CountLit(Picture(PictureId::LcdOn, ratio)) > 50);
        QVERIFY(CountLit(Picture(PictureId::LcdOff, ratio)) > 50);
        QVERIFY(Picture(PictureId::LcdOn, ratio) != Picture(PictureId::LcdOff, ratio));
    }
}

void ReadOutPicturesTest::TheGlassIsBlackAndTheCaptionPlain()
{
    for (const auto& [id, bottom] :
         {std::pair(PictureId::LcdBack, 38), std::pair(PictureId::LcdBackTall, 50)}) {
        for (const double ratio : {1.0, 1.5, 2.0}) {
            QVERIFY(IsAll(PartOf(id, {8, 18, 80, bottom - 18}, ratio), qRgb(0, 0, 0)));
            // The caption is drawn on the colour in the middle of its rectangle.
            const QImage caption = PartOf(id, {7, 2, 82, 14}, ratio);
            QVERIFY(IsAll(caption, caption.pixel(0, 0)));
            QVERIFY(Contrast(caption.pixel(0, 0), qRgb(0, 0, 0)) > 7);
            QCOMPARE(qAlpha(caption.pixel(0, 0)), 255);
        }
    }
}

QTEST_MAIN(ReadOutPicturesTest)
#include "ReadOutPicturesTest.moc"
