#include "controls/ButtonFace.h"

#include <QTest>

using namespace skeldon;

/// Which face a button shows and where its picture stands.
class ButtonFaceTest : public QObject
{
    Q_OBJECT

private slots:
    void FaceFollowsStateAndPress_data();
    void FaceFollowsStateAndPress();
    void PictureStandsAtLeftOrInMiddle_data();
    void PictureStandsAtLeftOrInMiddle();
    void CaptionTakesWhatIsLeft();
    void CaptionHasNoWidthBelowZero();
};

void ButtonFaceTest::FaceFollowsStateAndPress_data()
{
    QTest::addColumn<bool>("isPushed");
    QTest::addColumn<bool>("hasFocus");
    QTest::addColumn<bool>("isDisabled");
    QTest::addColumn<int>("released");
    QTest::addColumn<int>("pressed");

    QTest::newRow("at rest") << false << false << false << 1 << 4;
    QTest::newRow("disabled") << false << false << true << 2 << 5;
    QTest::newRow("focus") << false << true << false << 0 << 3;
    QTest::newRow("focus goes before disabled") << false << true << true << 0 << 3;
    QTest::newRow("pushed") << true << false << false << 3 << 3;
    QTest::newRow("pushed goes before focus") << true << true << false << 3 << 3;
    QTest::newRow("pushed goes before disabled") << true << false << true << 3 << 3;
    QTest::newRow("pushed goes before both") << true << true << true << 3 << 3;
}

void ButtonFaceTest::FaceFollowsStateAndPress()
{
    QFETCH(bool, isPushed);
    QFETCH(bool, hasFocus);
    QFETCH(bool, isDisabled);
    QFETCH(int, released);
    QFETCH(int, pressed);
    QCOMPARE(static_cast<int>(FaceOf({isPushed, hasFocus, isDisabled, false})), released);
    QCOMPARE(static_cast<int>(FaceOf({isPushed, hasFocus, isDisabled, true})), pressed);
}

void ButtonFaceTest::PictureStandsAtLeftOrInMiddle_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("isCentred");
    QTest::addColumn<QPoint>("place");

    QTest::newRow("left") << 76 << 28 << false << QPoint(10, 6);
    QTest::newRow("left on a wide one") << 132 << 28 << false << QPoint(10, 6);
    QTest::newRow("middle") << 44 << 28 << true << QPoint(14, 6);
    QTest::newRow("middle, odd width") << 67 << 28 << true << QPoint(25, 6);
    QTest::newRow("smallest") << 40 << 28 << true << QPoint(12, 6);
    QTest::newRow("other height") << 80 << 40 << false << QPoint(10, 12);
}

void ButtonFaceTest::PictureStandsAtLeftOrInMiddle()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(bool, isCentred);
    QFETCH(QPoint, place);
    const OverlayPlace found = PlaceOverlay(width, height, 10, 16, 16, isCentred);
    QCOMPARE(QPoint(found.x, found.y), place);
}

void ButtonFaceTest::CaptionTakesWhatIsLeft()
{
    const OverlayPlace place = PlaceOverlay(132, 28, 10, 16, 16, false);
    QVERIFY(place.captionX > 10 + 16);
    QVERIFY(place.captionX + place.captionWidth < 132);
    QVERIFY(place.captionWidth > 90);
    const OverlayPlace alone = PlaceOverlay(100, 28, 10, 0, 0, false);
    QVERIFY(alone.captionX < 10);
    QCOMPARE(alone.captionX, 100 - alone.captionX - alone.captionWidth);
}

void ButtonFaceTest::CaptionHasNoWidthBelowZero()
{
    QCOMPARE(PlaceOverlay(20, 28, 10, 16, 16, false).captionWidth, 0);
}

QTEST_MAIN(ButtonFaceTest)
#include "ButtonFaceTest.moc"
