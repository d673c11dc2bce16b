#include "controls/ColourSample.h"
#include "controls/ConnectionIcon.h"
#include "controls/Pixels.h"
#include "controls/RecorderPicture.h"
#include "resources/Pictures.h"

#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

/// Colour sample, recorder picture and connection icon.
class SmallPicturesTest : public QObject
{
    Q_OBJECT

private slots:
    void StatesStandSideBySide_data();
    void StatesStandSideBySide();
    void StateIsSaid();
    void FormBelowSeesMouse();
    void SampleIsBarOnWhite();
    void DisabledSampleShowsNothing();
    void SampleSaysColour();
};

void SmallPicturesTest::StatesStandSideBySide_data()
{
    QTest::addColumn<bool>("isIcon");
    QTest::addColumn<QSize>("size");
    QTest::newRow("connection icon") << true << QSize(48, 28);
    QTest::newRow("recorder picture") << false << QSize(90, 160);
}

void SmallPicturesTest::StatesStandSideBySide()
{
    QFETCH(bool, isIcon);
    QFETCH(QSize, size);
    CConnectionIcon icon;
    CRecorderPicture recorder;
    CStatePicture& picture = isIcon ? static_cast<CStatePicture&>(icon) : recorder;
    QCOMPARE(picture.size(), size);
    QVERIFY(!picture.IsConnected());
    const QImage source = Picture(isIcon ? PictureId::Connection : PictureId::Recorder, 1);
    for (const bool isConnected : {false, true, false}) {
        picture.SetConnected(isConnected);
        const QImage painted = Painted(picture);
        int opaque = 0;
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const QRgb wanted = source.pixel(x + (isConnected ? size.width() : 0), y);
                if (qAlpha(wanted) == 255) {
                    QCOMPARE(QColor(painted.pixel(x, y)), QColor(wanted));
                    ++opaque;
                } else if (qAlpha(wanted) == 0) {
                    QCOMPARE(QColor(painted.pixel(x, y)), QColor(Qt::magenta));
                }
            }
        }
        QVERIFY(opaque > 100);
    }
}

void SmallPicturesTest::StateIsSaid()
{
    CConnectionIcon icon;
    QCOMPARE(AccessibleRoleOf(icon), QAccessible::Graphic);
    QCOMPARE(AccessibleText(icon, QAccessible::Name), QStringLiteral("Connection to the recorder"));
    QCOMPARE(AccessibleText(icon, QAccessible::Value), QStringLiteral("Not connected"));
    QCOMPARE(icon.toolTip(), QStringLiteral("Not connected"));
    icon.SetConnected(true);
    QCOMPARE(AccessibleText(icon, QAccessible::Value), QStringLiteral("Connected"));
    QCOMPARE(icon.toolTip(), QStringLiteral("Connected"));
    CRecorderPicture recorder;
    QCOMPARE(AccessibleText(recorder, QAccessible::Name), QStringLiteral("Recorder"));
}

void SmallPicturesTest::FormBelowSeesMouse()
{
    class CForm : public QWidget
    {
    public:
        void mouseMoveEvent(QMouseEvent* event) override { m_last = event->position().toPoint(); }
        QPoint m_last;
    } form;
    form.setMouseTracking(true);
    form.resize(200, 200);
    CRecorderPicture recorder(&form);
    recorder.move(50, 20);
    QVERIFY(ShowActive(form));
    QTest::mouseMove(&recorder, QPoint(10, 30));
    QTRY_COMPARE(form.m_last, QPoint(60, 50));
}

void SmallPicturesTest::SampleIsBarOnWhite()
{
    CColourSample sample;
    sample.SetColour(0xC50CC5);
    QFont font;
    font.setPixelSize(12);
    sample.setFont(font);
    const int line = QFontMetrics(font).height();
    sample.resize(60, 40);
    QImage painted = Painted(sample);
    QCOMPARE(CountPixels(painted, QRect(4, (40 - line) / 2, 52, line), 0xFFC50CC5), 52 * line);
    QCOMPARE(CountPixels(painted, painted.rect(), 0xFFFFFFFF), 60 * 40 - 52 * line);
    sample.resize(60, 18); // the inset goes before the line
    painted = Painted(sample);
    QCOMPARE(CountPixels(painted, QRect(4, 4, 52, 10), 0xFFC50CC5), 52 * 10);
    QCOMPARE(CountPixels(painted, painted.rect(), 0xFFFFFFFF), 60 * 18 - 52 * 10);
    sample.resize(60, 6);
    QCOMPARE(CountPixels(Painted(sample), sample.rect(), 0xFFFFFFFF), 60 * 6);
}

void SmallPicturesTest::DisabledSampleShowsNothing()
{
    CColourSample sample;
    sample.resize(60, 20);
    sample.setEnabled(false);
    QCOMPARE(CountPixels(Painted(sample), sample.rect(), 0xFFFF00FF), 60 * 20);
}

void SmallPicturesTest::SampleSaysColour()
{
    CColourSample sample;
    sample.SetColour(0x800001);
    QCOMPARE(AccessibleText(sample, QAccessible::Value), QStringLiteral("#010080"));
    QCOMPARE(AccessibleText(sample, QAccessible::Name), QStringLiteral("Colour sample"));
}

QTEST_MAIN(SmallPicturesTest)
#include "SmallPicturesTest.moc"
