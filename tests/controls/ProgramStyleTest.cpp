#include "controls/ProgramStyle.h"

#include <QApplication>
#include <QIcon>
#include <QImage>
#include <QTest>

using namespace skeldon;

namespace {

/// Pixels of a picture that are not empty.
int PaintedPixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
    return count;
}

} // namespace

class ProgramStyleTest : public QObject
{
    Q_OBJECT

private slots:
    void EntriesWithoutRoomStandBehindAVisibleSign();
    void OtherPicturesAreTheDesktopsOwn();
};

void ProgramStyleTest::EntriesWithoutRoomStandBehindAVisibleSign()
{
    const CProgramStyle style;
    const QIcon icon =
        style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, nullptr, nullptr);
    const QImage image = icon.pixmap(16).toImage();
    QVERIFY(PaintedPixels(image) > 20);
    QVERIFY(PaintedPixels(image) < image.width() * image.height() / 2);
}

void ProgramStyleTest::OtherPicturesAreTheDesktopsOwn()
{
    const CProgramStyle style;
    for (const auto picture : {QStyle::SP_MessageBoxWarning, QStyle::SP_DirIcon}) {
        const QImage ours = style.standardIcon(picture, nullptr, nullptr).pixmap(32).toImage();
        const QImage desktops =
            QApplication::style()->standardIcon(picture, nullptr, nullptr).pixmap(32).toImage();
        QVERIFY(PaintedPixels(ours) > 0);
        QCOMPARE(ours, desktops);
    }
}

QTEST_MAIN(ProgramStyleTest)
#include "ProgramStyleTest.moc"
