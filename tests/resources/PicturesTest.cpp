#include "resources/PictureProbe.h"

#include <QtTest>

#include <algorithm>
#include <array>
#include <set>
#include <utility>
#include <vector>

using namespace skeldon;

namespace {

constexpr std::array Ratios{1.0, 1.25, 1.5, 2.0, 3.0};

std::vector<PictureId> AllPictures()
{
    std::vector<PictureId> all;
    for (int i = 0; i < static_cast<int>(PictureId::Count); ++i)
        all.push_back(static_cast<PictureId>(i));
    return all;
}

/// Size of a source, which its view box must repeat.
QSize SizeOfSource(const QString& name)
{
    static const QRegularExpression size(
        R"re(width="(\d+)" height="(\d+)" viewBox="0 0 (\d+) (\d+)")re");
    QFile file(QStringLiteral(":/pictures/") + name);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const auto match = size.match(QString::fromUtf8(file.readAll()));
    if (match.captured(1) != match.captured(3) || match.captured(2) != match.captured(4))
        return {};
    return {match.captured(1).toInt(), match.captured(2).toInt()};
}

QRect FaceRect(int face)
{
    return {0, face * ButtonFaceHeight, PictureSize(PictureId::ButtonFaces).width(),
            ButtonFaceHeight};
}

} // namespace

class PicturesTest : public QObject
{
    Q_OBJECT

private slots:
    void EveryPictureHasItsSizeAtEveryRatio();
    void EveryPictureShowsSomething();
    void TheFittedSourcesShowTheSamePictures();
    void SourcesAreDrawnAtTheStatedSizes();
    void NoSourceIsLeftOver();
    void PicturesNeedNoFont();
    void APictureIsDrawnOnceAndRemembered();
    void WhatIsNoPictureIsNull();
    void PartsThatTouchNeitherOverlapNorLeaveAGap();
    void TheSixFacesDiffer();
    void FacesTellTheirStateByLight();
    void TheMiddleOfAFaceCanBeStretched();
    void TheFocusRingIsVisible();
    void TheTwoStatesDiffer();
    void TheRecordersCableLeavesThePicture();
    void TheGaugesMiddleColumnsCanBeStretched();
    void TheGaugeShowsHowFullItIs();
    void TextStandsOutFromTheGauge();
    void TheAboutBoxIsCalmInTheMiddle();
    void SwatchAndLettersTakeTheChannelsColour();
    void PointersPointFromWithin();
    void EdgesAreSharp();
    void TheApplicationIconComesInAllSizes();
};

void PicturesTest::EveryPictureHasItsSizeAtEveryRatio()
{
    for (const PictureId id : AllPictures()) {
        for (const double ratio : Ratios) {
            const QImage picture = Picture(id, ratio);
            QVERIFY2(!picture.isNull(), qPrintable(NameOf(id, ratio)));
            QCOMPARE(picture.devicePixelRatio(), ratio);
            const QSize logical = PictureSize(id);
            QCOMPARE(picture.width(), static_cast<int>(std::floor(logical.width() * ratio + 0.5)));
            QCOMPARE(picture.height(),
                     static_cast<int>(std::floor(logical.height() * ratio + 0.5)));
        }
    }
    QCOMPARE(PictureSize(PictureId::ButtonFaces), QSize(40, 6 * 28));
    QCOMPARE(PictureSize(PictureId::LcdBack), QSize(96, 42));
    QCOMPARE(PictureSize(PictureId::LcdBackTall), QSize(96, 54));
    QCOMPARE(PictureSize(PictureId::LcdDigits), QSize(11 * 8, 20));
    QCOMPARE(PictureSize(PictureId::LcdSamplingTrace), QSize(80, 32));
    QCOMPARE(PictureSize(PictureId::SpinUp), QSize(11, 9));
    QCOMPARE(PictureSize(PictureId::Recorder), QSize(2 * 90, 160));
    QCOMPARE(PictureSize(PictureId::Connection), QSize(2 * 48, 28));
    QCOMPARE(PictureSize(PictureId::Progress), QSize(36, 48));
    QCOMPARE(PictureSize(PictureId::GaugeThumb), QSize(12, 24));
}

void PicturesTest::EveryPictureShowsSomething()
{
    for (const PictureId id : AllPictures()) {
        // The number of records has no unit: nothing but the ground of its digits.
        if (id == PictureId::LcdRecords)
            continue;
        for (const double ratio : {1.0, 1.5, 2.0}) {
            const QImage picture = Picture(id, ratio);
            QVERIFY2(!IsAll(picture, picture.pixel(0, 0)), qPrintable(NameOf(id, ratio)));
        }
    }
}

void PicturesTest::TheFittedSourcesShowTheSamePictures()
{
    // What is drawn at 3 and reduced to half looks much like what is drawn at 1.5.
    for (const PictureId id : AllPictures()) {
        const QImage fitted = Picture(id, 1.5).convertToFormat(QImage::Format_ARGB32);
        const QImage reduced =
            Picture(id, 3)
                .scaled(fitted.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_ARGB32);
        double sum = 0;
        for (int y = 0; y < fitted.height(); ++y) {
            for (int x = 0; x < fitted.width(); ++x) {
                const QRgb a = fitted.pixel(x, y);
                const QRgb b = reduced.pixel(x, y);
                sum += std::abs(qGray(a) * qAlpha(a) - qGray(b) * qAlpha(b)) / 255.0;
            }
        }
        const double mean = sum / (fitted.width() * fitted.height());
        QVERIFY2(mean < 40, qPrintable(NameOf(id, mean)));
    }
}

void PicturesTest::SourcesAreDrawnAtTheStatedSizes()
{
    std::multiset<std::pair<int, int>> stated;
    for (const PictureId id : AllPictures())
        stated.emplace(PictureSize(id).width(), PictureSize(id).height());
    std::multiset<std::pair<int, int>> drawn;
    for (const QString& name : QDir(QStringLiteral(":/pictures")).entryList({"*.svg"})) {
        QString base = name;
        base.remove(QLatin1String("@1.5x"));
        const QSize plain = SizeOfSource(base);
        if (base == name)
            drawn.emplace(plain.width(), plain.height());
        else
            QCOMPARE(SizeOfSource(name), PicturePixels(QRect(QPoint(), plain), 1.5).size());
    }
    QVERIFY(drawn == stated);
}

void PicturesTest::NoSourceIsLeftOver()
{
    const QStringList sources = QDir(QStringLiteral(":/pictures")).entryList({"*.svg"});
    const auto fitted = std::count_if(sources.begin(), sources.end(), [](const QString& name) {
        return name.contains(QLatin1String("@1.5x"));
    });
    QCOMPARE(sources.size() - fitted, static_cast<qsizetype>(PictureId::Count));
    for (const QString& name : sources) {
        QString base = name;
        QVERIFY2(sources.contains(base.remove(QLatin1String("@1.5x"))), qPrintable(name));
    }
}

void PicturesTest::PicturesNeedNoFont()
{
    const QDir folder(QStringLiteral(":/pictures"));
    for (const QString& name : folder.entryList({"*.svg"})) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray source = file.readAll();
        for (const char* element : {"<text", "<filter", "<clipPath", "<mask", "<image", "font-"})
            QVERIFY2(!source.contains(element), qPrintable(name + ": " + element));
    }
}

void PicturesTest::APictureIsDrawnOnceAndRemembered()
{
    const QImage first = Picture(PictureId::About, 1.75);
    QCOMPARE(Picture(PictureId::About, 1.75).cacheKey(), first.cacheKey());
    QVERIFY(Picture(PictureId::About, 1.0).cacheKey() != first.cacheKey());
}

void PicturesTest::WhatIsNoPictureIsNull()
{
    QVERIFY(Picture(PictureId::Count, 1).isNull());
    QVERIFY(Picture(static_cast<PictureId>(-1), 1).isNull());
    QVERIFY(Picture(PictureId::IconOpen, 0).isNull());
    QVERIFY(Picture(PictureId::IconOpen, -1).isNull());
    QVERIFY(PictureSize(PictureId::Count).isEmpty());
}

void PicturesTest::PartsThatTouchNeitherOverlapNorLeaveAGap()
{
    QCOMPARE(PicturePixels({17, 0, 1, 48}, 1.0), QRect(17, 0, 1, 48));
    QCOMPARE(PicturePixels({17, 0, 1, 48}, 1.5), QRect(26, 0, 1, 72));
    QCOMPARE(PicturePixels({35, 0, 1, 48}, 1.5), QRect(53, 0, 1, 72));
    for (const double ratio : {1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 2.25, 3.0}) {
        for (int x = 0; x < 40; ++x) {
            const QRect one = PicturePixels({x, 0, 1, 28}, ratio);
            QCOMPARE(PicturePixels({x + 1, 0, 1, 28}, ratio).left(), one.right() + 1);
            QVERIFY(one.width() >= 1);
        }
    }
}

void PicturesTest::TheSixFacesDiffer()
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        for (int i = 0; i < 6; ++i) {
            for (int j = i + 1; j < 6; ++j) {
                const double difference =
                    Difference(PartOf(PictureId::ButtonFaces, FaceRect(i), ratio),
                               PartOf(PictureId::ButtonFaces, FaceRect(j), ratio));
                QVERIFY2(difference > 0.1, qPrintable(QString("faces %1, %2").arg(i).arg(j)));
            }
        }
    }
}

void PicturesTest::FacesTellTheirStateByLight()
{
    const auto middle = [](int face) {
        return PartOf(PictureId::ButtonFaces, {10, face * ButtonFaceHeight + 6, 20, 16}, 1);
    };
    const double normal = MeanLuminance(middle(1));
    QVERIFY(MeanLuminance(middle(3)) < 0.7 * normal);
    QVERIFY(IsAll(middle(2), middle(2).pixel(0, 0)));
    // An engaged key is lit in a warm colour; at rest the faces are nearly grey.
    const QColor engaged = middle(4).pixelColor(10, 8);
    const QColor atRest = middle(1).pixelColor(10, 8);
    QVERIFY(engaged.hsvSaturationF() > 0.4);
    QVERIFY(atRest.hsvSaturationF() < 0.15);
    const QColor engagedDisabled = middle(5).pixelColor(10, 8);
    QVERIFY(engagedDisabled.hsvSaturationF() < engaged.hsvSaturationF() * 0.7);
    QVERIFY(engagedDisabled.hsvSaturationF() > middle(2).pixelColor(10, 8).hsvSaturationF());
}

void PicturesTest::TheMiddleOfAFaceCanBeStretched()
{
    const int width = PictureSize(PictureId::ButtonFaces).width();
    for (const double ratio : Ratios) {
        for (int face = 0; face < 6; ++face) {
            const QRect middle(ButtonFaceEnd, face * ButtonFaceHeight, width - 2 * ButtonFaceEnd,
                               ButtonFaceHeight);
            QVERIFY2(IsUniformAlongRows(PartOf(PictureId::ButtonFaces, middle, ratio)),
                     qPrintable(QString("face %1 at %2").arg(face).arg(ratio)));
        }
    }
}

void PicturesTest::TheFocusRingIsVisible()
{
    // Two pixels inside the rim the ring runs all around, dark against the face.
    const QImage focus = PartOf(PictureId::ButtonFaces, FaceRect(0), 1);
    const QImage normal = PartOf(PictureId::ButtonFaces, FaceRect(1), 1);
    const QRgb face = normal.pixel(20, 14);
    for (const QPoint at : {QPoint(20, 2), QPoint(20, 25), QPoint(2, 14), QPoint(37, 14)}) {
        QVERIFY(Contrast(focus.pixel(at), face) > 4);
        QVERIFY(Contrast(normal.pixel(at), face) < 4);
    }
}

void PicturesTest::TheTwoStatesDiffer()
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        QVERIFY(Difference(PartOf(PictureId::Recorder, {0, 0, 90, 160}, ratio),
                           PartOf(PictureId::Recorder, {90, 0, 90, 160}, ratio)) > 0.05);
        QVERIFY(Difference(PartOf(PictureId::Connection, {0, 0, 48, 28}, ratio),
                           PartOf(PictureId::Connection, {48, 0, 48, 28}, ratio)) > 0.1);
        for (const auto& [free, pushed] :
             {std::pair(PictureId::SpinUp, PictureId::SpinUpPushed),
              std::pair(PictureId::SpinDown, PictureId::SpinDownPushed),
              std::pair(PictureId::SpinReset, PictureId::SpinResetPushed)})
            QVERIFY(Difference(Picture(free, ratio), Picture(pushed, ratio)) > 0.3);
        QVERIFY(Difference(Picture(PictureId::SpinUp, ratio), Picture(PictureId::SpinDown, ratio)) >
                0.03);
    }
}

void PicturesTest::TheRecordersCableLeavesThePicture()
{
    const auto isCovered = [](const QRect& part) {
        const QImage rows = PartOf(PictureId::Recorder, part, 1);
        for (int x = 0; x < rows.width(); ++x) {
            if (qAlpha(rows.pixel(x, 0)) == 255)
                return true;
        }
        return false;
    };
    QVERIFY(!isCovered({0, 159, 90, 1}));
    QVERIFY(isCovered({90, 159, 90, 1}));
}

void PicturesTest::TheGaugesMiddleColumnsCanBeStretched()
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        for (const int column : {17, 35})
            QVERIFY(IsUniformAlongRows(PartOf(PictureId::Progress, {column, 0, 1, 48}, ratio)));
        // Nothing shines through anywhere along the strip's middle.
        for (const int column : {17, 35}) {
            const QImage part = PartOf(PictureId::Progress, {column, 0, 1, 48}, ratio);
            for (int y = 0; y < part.height(); ++y)
                QCOMPARE(qAlpha(part.pixel(0, y)), 255);
        }
    }
}

void PicturesTest::TheGaugeShowsHowFullItIs()
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const QImage empty = PartOf(PictureId::Progress, {17, 0, 1, 48}, ratio);
        const QImage full = PartOf(PictureId::Progress, {35, 0, 1, 48}, ratio);
        QVERIFY(Difference(empty, full) > 0.5);
        // The frame above and below goes on unchanged.
        const int edge = static_cast<int>(4 * ratio);
        QCOMPARE(empty.copy(0, 0, empty.width(), edge), full.copy(0, 0, full.width(), edge));
        QCOMPARE(empty.copy(0, empty.height() - edge, empty.width(), edge),
                 full.copy(0, full.height() - edge, full.width(), edge));
    }
}

void PicturesTest::TextStandsOutFromTheGauge()
{
    // The band of the text, one line in the middle of 48 rows, and the two colours that the warning
    // blinks in.
    for (const int column : {17, 35}) {
        const QImage band = PartOf(PictureId::Progress, {column, 16, 1, 16}, 1);
        for (int y = 0; y < band.height(); ++y) {
            QVERIFY(Contrast(band.pixel(0, y), qRgb(255, 255, 255)) > 7);
            QVERIFY(Contrast(band.pixel(0, y), qRgb(255, 0, 0)) > 3);
        }
    }
}

void PicturesTest::TheAboutBoxIsCalmInTheMiddle()
{
    const QSize size = PictureSize(PictureId::About);
    const QRect panel((size.width() - 306) / 2, (size.height() - 80) / 2, 306, 80);
    const QImage middle = PartOf(PictureId::About, panel, 1);
    double least = 1;
    double greatest = 0;
    for (int y = 0; y < middle.height(); ++y) {
        for (int x = 0; x < middle.width(); ++x) {
            const double luminance = Luminance(middle.pixel(x, y));
            least = std::min(least, luminance);
            greatest = std::max(greatest, luminance);
        }
    }
    QVERIFY(greatest - least < 0.1);
}

void PicturesTest::SwatchAndLettersTakeTheChannelsColour()
{
    const QColor colour(0x49, 0x8B, 0xF9);
    for (const double ratio : {1.0, 1.5, 2.0}) {
        for (const PictureId id :
             {PictureId::IconSwatch, PictureId::IconX, PictureId::IconY, PictureId::IconZ}) {
            const QImage mask = Picture(id, ratio);
            const QImage coloured = ColouredPicture(id, colour, ratio);
            QCOMPARE(coloured.size(), mask.size());
            QCOMPARE(coloured.devicePixelRatio(), ratio);
            int filled = 0;
            for (int y = 0; y < mask.height(); ++y) {
                for (int x = 0; x < mask.width(); ++x) {
                    if (coloured.pixelColor(x, y) == colour) {
                        QCOMPARE(mask.pixel(x, y), qRgb(255, 255, 255));
                        ++filled;
                    }
                }
            }
            QVERIFY2(filled > 20 * ratio * ratio, qPrintable(NameOf(id, ratio)));
        }
    }
    // The picture that is remembered stays a mask.
    QCOMPARE(Picture(PictureId::IconSwatch, 1).pixelColor(8, 8), QColor(Qt::white));
}

void PicturesTest::PointersPointFromWithin()
{
    for (const PictureId id : {PictureId::CursorSplitter, PictureId::CursorAreaOff,
                               PictureId::CursorAreaOn, PictureId::CursorAreaDrag}) {
        QVERIFY(QRect(QPoint(), PictureSize(id)).contains(PictureHotSpot(id)));
        // Both a dark and a light part, so that the pointer is seen on any ground.
        const QImage pointer = Picture(id, 1).convertToFormat(QImage::Format_ARGB32);
        std::set<QRgb> seen;
        for (int y = 0; y < pointer.height(); ++y) {
            for (int x = 0; x < pointer.width(); ++x)
                seen.insert(pointer.pixel(x, y));
        }
        QVERIFY(seen.count(qRgb(0, 0, 0)) == 1);
        QVERIFY(seen.count(qRgb(255, 255, 255)) == 1);
    }
}

void PicturesTest::EdgesAreSharp()
{
    // Where a bar meets the dark, no row or column is half lit.
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const QImage eight = PartOf(PictureId::LcdDigits, {8 * 8, 0, 8, 20}, ratio);
        const int column = static_cast<int>(3.5 * ratio);
        for (int y = 0; y < eight.height(); ++y) {
            const int grey = qGray(eight.pixel(column, y));
            QVERIFY2(grey == 0 || grey == 255,
                     qPrintable(QString("row %1 at %2").arg(y).arg(ratio)));
        }
        const int row = static_cast<int>(6.5 * ratio);
        for (int x = 0; x < eight.width(); ++x) {
            const int grey = qGray(eight.pixel(x, row));
            QVERIFY2(grey == 0 || grey == 255,
                     qPrintable(QString("column %1 at %2").arg(x).arg(ratio)));
        }
        // The rim of a key: the line and what lies inside it are plain.
        const QImage key = PartOf(PictureId::ButtonFaces, FaceRect(1), ratio);
        const int across = key.height() / 2;
        const QColor rim = key.pixelColor(0, across);
        const QColor light = key.pixelColor(static_cast<int>(ratio), across);
        QVERIFY(rim.lightness() < 60);
        QVERIFY(light.lightness() > 240);
        // The window of a read-out.
        const QImage back = Picture(PictureId::LcdBack, ratio);
        const int glass = static_cast<int>(8 * ratio);
        const int middle = static_cast<int>(28 * ratio);
        QCOMPARE(back.pixel(glass, middle), qRgb(0, 0, 0));
        QVERIFY(back.pixel(glass - 1, middle) != qRgb(0, 0, 0));
    }
}

void PicturesTest::TheApplicationIconComesInAllSizes()
{
    const QIcon icon = ApplicationIcon();
    for (const int size : {16, 32, 48, 256})
        QVERIFY(icon.availableSizes().contains(QSize(size, size)));
}

QTEST_MAIN(PicturesTest)
#include "PicturesTest.moc"
