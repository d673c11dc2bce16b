#include "controls/AboutBox.h"
#include "base/Version.h"
#include "controls/Pixels.h"
#include "resources/Pictures.h"

#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

using Phase = CAboutFade::Phase;

/// A box that does not wait, and keeps what it would have waited.
struct QuickBox
{
    std::vector<int> delays;
    CAboutBox box{nullptr, [this](int delay) {
                      delays.push_back(delay);
                      return 0;
                  }};
};

} // namespace

/// The about box from opening to closing.
class AboutBoxTest : public QObject
{
    Q_OBJECT

private slots:
    void TellsVersionInFourNumbers();
    void PanelStandsInMiddle();
    void FadesInAndStays();
    void PanelIsBlendedOverPicture();
    void PressFadesOutAndCloses();
    void WaitsAsStated();
    void WorksFromKeyboard();
    void EscapeClosesAtOnce();
    void DoubleClickAtFirstIsNotHeard();
    void PressOutsideCounts();
};

void AboutBoxTest::TellsVersionInFourNumbers()
{
    CAboutBox box;
    QCOMPARE(box.Lines().size(), 2);
    const QStringList numbers = QString::fromLatin1(ProgramVersion).split(QLatin1Char('.'));
    QCOMPARE(numbers.size(), 4);
    QCOMPARE(box.Lines()[0],
             QStringLiteral("SKELDON Version ") + QString::fromLatin1(ProgramVersion));
    QVERIFY(box.Lines()[1].contains(QLatin1String("brennick-works")));
    QVERIFY(AccessibleText(box, QAccessible::Description).contains(box.Lines()[0]));
    QVERIFY(box.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(box.isModal());
}

void AboutBoxTest::PanelStandsInMiddle()
{
    CAboutBox box;
    QCOMPARE(box.size(), PictureSize(PictureId::About));
    QCOMPARE(box.PanelArea().size(), QSize(306, 80));
    QVERIFY((box.PanelArea().center() - box.rect().center()).manhattanLength() <= 2);
}

void AboutBoxTest::FadesInAndStays()
{
    QuickBox quick;
    QVERIFY(ShowActive(quick.box));
    QTRY_COMPARE(quick.box.Fade().Present(), Phase::Shown);
    const QImage painted = Painted(quick.box);
    const QPoint corner = quick.box.PanelArea().topLeft();
    QCOMPARE(QColor(painted.pixel(corner)), QColor(Qt::white));
    QCOMPARE(QColor(painted.pixel(corner + QPoint(2, 20))), QColor(0xCC, 0xD2, 0xF8));
    QCOMPARE(QColor(painted.pixel(corner + QPoint(305, 40))), QColor(0x90, 0x90, 0xB0));
    QVERIFY(CountPixels(painted, quick.box.PanelArea(), 0xFF202048) > 20); // the text's colour
    QCOMPARE(quick.box.Fade().DelayMs(), -1);
    QVERIFY(quick.box.isVisible());
    quick.box.hide();
}

void AboutBoxTest::PanelIsBlendedOverPicture()
{
    QuickBox quick;
    const QImage before = Painted(quick.box);
    const QRect area = quick.box.PanelArea();
    const QImage picture = Picture(PictureId::About, 1);
    QCOMPARE(before.copy(area), picture.copy(area).convertToFormat(before.format()));
}

void AboutBoxTest::PressFadesOutAndCloses()
{
    QuickBox quick;
    QVERIFY(ShowActive(quick.box));
    QTRY_COMPARE(quick.box.Fade().Present(), Phase::Shown);
    QTest::mousePress(&quick.box, Qt::LeftButton);
    QCOMPARE(quick.box.Fade().Present(), Phase::FadingOut);
    QTRY_VERIFY(!quick.box.isVisible());
    QCOMPARE(quick.box.Fade().Present(), Phase::Closed);
    QVERIFY(QWidget::mouseGrabber() == nullptr);
}

void AboutBoxTest::WaitsAsStated()
{
    QuickBox quick;
    QVERIFY(ShowActive(quick.box));
    QTRY_COMPARE(quick.box.Fade().Present(), Phase::Shown);
    QCOMPARE(quick.delays.size(), std::size_t{1 + 127});
    QCOMPARE(quick.delays[0], 300);
    QCOMPARE(quick.delays[1], 1);
    quick.delays.clear();
    QTest::mousePress(&quick.box, Qt::RightButton);
    QTRY_VERIFY(!quick.box.isVisible());
    QCOMPARE(quick.delays.size(), std::size_t{127 + 1});
    QCOMPARE(quick.delays.back(), 300);
}

void AboutBoxTest::WorksFromKeyboard()
{
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        QuickBox quick;
        QVERIFY(ShowActive(quick.box));
        QTRY_COMPARE(quick.box.Fade().Present(), Phase::Shown);
        QTest::keyClick(&quick.box, key);
        QCOMPARE(quick.box.Fade().Present(), Phase::FadingOut);
        QTRY_VERIFY(!quick.box.isVisible());
    }
}

void AboutBoxTest::EscapeClosesAtOnce()
{
    CAboutBox box;
    QVERIFY(ShowActive(box));
    QTest::keyClick(&box, Qt::Key_Escape);
    QVERIFY(!box.isVisible());
    QVERIFY(QWidget::mouseGrabber() == nullptr);
}

void AboutBoxTest::DoubleClickAtFirstIsNotHeard()
{
    QuickBox quick;
    QVERIFY(ShowActive(quick.box));
    QTRY_COMPARE(quick.box.Fade().Present(), Phase::Shown);
    QMouseEvent doubleClick(QEvent::MouseButtonDblClick, QPointF(5, 5), QPointF(5, 5),
                            Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&quick.box, &doubleClick);
    QCOMPARE(quick.box.Fade().Present(), Phase::Shown);
    QTest::mousePress(&quick.box, Qt::LeftButton);
    QCOMPARE(quick.box.Fade().Present(), Phase::FadingOut);
    quick.box.hide();
}

void AboutBoxTest::PressOutsideCounts()
{
    QuickBox quick;
    QVERIFY(ShowActive(quick.box));
    QTRY_COMPARE(QWidget::mouseGrabber(), &quick.box);
    quick.box.hide();
}

QTEST_MAIN(AboutBoxTest)
#include "AboutBoxTest.moc"
