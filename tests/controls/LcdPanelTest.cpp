#include "controls/LcdPanel.h"
#include "controls/Caption.h"
#include "controls/IntervalPanel.h"
#include "controls/Pixels.h"
#include "controls/SamplingPanel.h"
#include "resources/StringTable.h"
#include "support/window/PaintCounter.h"

#include <QSignalSpy>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

constexpr QRgb Green = 0xFF00FF00;
constexpr QRgb Yellow = 0xFFFFFF00;
constexpr QRgb Red = 0xFFFF0000;
const QRect Glass(8, 18, 80, 20);

/// Whether one cell of a painted panel shows a digit, by the strip that the pictures give.
bool ShowsDigit(const QImage& panel, int cellX, int code)
{
    const QImage strip = Picture(PictureId::LcdDigits, 1);
    for (int y = 0; y < LcdCellSize.height(); ++y) {
        for (int x = 0; x < LcdCellSize.width(); ++x) {
            const bool isLit = qGreen(strip.pixel(code * LcdCellSize.width() + x, y)) > 200;
            const bool isShown =
                qGreen(panel.pixel(Glass.left() + cellX + x, Glass.top() + y)) > 200;
            if (isLit != isShown)
                return false;
        }
    }
    return true;
}

int LitPixels(const QImage& panel, const QRect& part)
{
    return part.width() * part.height() - CountPixels(panel, part, 0xFF000000);
}

QString ValueOf(CLcdPanel& panel)
{
    return AccessibleText(panel, QAccessible::Value);
}

} // namespace

/// The read-outs as they are painted and read out.
class LcdPanelTest : public QObject
{
    Q_OBJECT

private slots:
    void StartsBlankAndValueLightsIt();
    void DigitsStandInTheirCells();
    void NegativeValueShowsMinus();
    void DigitsTakeColour_data();
    void DigitsTakeColour();
    void BlankIsBlackAndKeepsValue();
    void RedrawCanBeLeftForLater();
    void LampShowsOffAndOn();
    void SamplingRowPicksDisplay_data();
    void SamplingRowPicksDisplay();
    void IntervalRowPicksDisplay_data();
    void IntervalRowPicksDisplay();
    void TintLiesOverBackgroundOnly();
    void CaptionIsReadableAndInside();
    void SaysWhatItShows_data();
    void SaysWhatItShows();
    void SaysBlank();
    void KeepsColoursOnDarkDesktop();
};

void LcdPanelTest::StartsBlankAndValueLightsIt()
{
    CLcdPanel panel(LcdPanelKind::Threshold);
    QVERIFY(panel.IsBlank());
    QCOMPARE(LitPixels(Painted(panel), Glass), 0);
    panel.SetValue(105);
    QVERIFY(!panel.IsBlank());
    QVERIFY(CountPixels(Painted(panel), Glass, Green) > 40);
    QCOMPARE(panel.size(), QSize(96, 42));
}

void LcdPanelTest::DigitsStandInTheirCells()
{
    CLcdPanel panel(LcdPanelKind::Threshold);
    panel.SetValue(105);
    QImage image = Painted(panel);
    QVERIFY(ShowsDigit(image, 19, 1));
    QVERIFY(ShowsDigit(image, 29, 0));
    QVERIFY(ShowsDigit(image, 43, 5));
    panel.SetValue(7);
    image = Painted(panel);
    QCOMPARE(LitPixels(image, QRect(8 + 19, 18, 8, 20)), 0);
    QVERIFY(ShowsDigit(image, 29, 0));
    QVERIFY(ShowsDigit(image, 43, 7));
}

void LcdPanelTest::NegativeValueShowsMinus()
{
    CLcdPanel panel(LcdPanelKind::Hazard);
    panel.SetValue(-1);
    const QImage image = Painted(panel);
    QVERIFY(ShowsDigit(image, 19, MinusCode));
    QVERIFY(ShowsDigit(image, 29, 0));
    QVERIFY(ShowsDigit(image, 43, 1));
}

void LcdPanelTest::DigitsTakeColour_data()
{
    QTest::addColumn<int>("colour");
    QTest::addColumn<QRgb>("seen");
    QTest::newRow("green") << 0 << Green;
    QTest::newRow("yellow") << 1 << Yellow;
    QTest::newRow("red") << 2 << Red;
}

void LcdPanelTest::DigitsTakeColour()
{
    QFETCH(int, colour);
    QFETCH(QRgb, seen);
    CLcdPanel panel(LcdPanelKind::Records);
    panel.SetValue(888888);
    panel.SetDigitColour(static_cast<DigitColour>(colour));
    const QImage image = Painted(panel);
    QVERIFY(CountPixels(image, Glass, seen) > 100);
    for (const QRgb other : {Green, Yellow, Red, 0xFFFFFFFF}) {
        if (other != seen)
            QCOMPARE(CountPixels(image, Glass, other), 0);
    }
}

void LcdPanelTest::BlankIsBlackAndKeepsValue()
{
    CLcdPanel panel(LcdPanelKind::Id);
    panel.SetValue(42);
    panel.SetBlank();
    QCOMPARE(LitPixels(Painted(panel), Glass), 0);
    QCOMPARE(panel.Value(), 42);
}

void LcdPanelTest::RedrawCanBeLeftForLater()
{
    CLcdPanel panel(LcdPanelKind::Id);
    panel.SetValue(42);
    QVERIFY(ShowActive(panel));
    QCoreApplication::processEvents();
    const CPaintCounter paints(panel);
    panel.SetBlank(false);
    panel.SetDigitColour(DigitColour::Red, false);
    panel.SetDisplay(PictureId::LcdStartOption, false);
    QCoreApplication::processEvents();
    QCOMPARE(paints.m_count, 0);
    panel.SetDigitColour(DigitColour::Yellow, true);
    QTRY_COMPARE(paints.m_count, 1);
}

void LcdPanelTest::LampShowsOffAndOn()
{
    for (const LcdPanelKind kind :
         {LcdPanelKind::Endless, LcdPanelKind::DetectOverTemperature, LcdPanelKind::Buzzer}) {
        CLcdPanel panel(kind);
        panel.SetValue(0);
        const QImage off = Painted(panel);
        panel.SetValue(1);
        const QImage on = Painted(panel);
        QVERIFY(LitPixels(off, Glass) > 0);
        QVERIFY(LitPixels(on, Glass) > 0);
        QVERIFY(off != on);
        panel.SetValue(0);
        QCOMPARE(Painted(panel), off);
    }
}

void LcdPanelTest::SamplingRowPicksDisplay_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("digits");
    QTest::addColumn<bool>("isTrace");
    QTest::newRow("longest") << 0 << QStringLiteral("05000") << false;
    QTest::newRow("0.1250") << 2 << QStringLiteral("01250") << false;
    QTest::newRow("0.0312") << 4 << QStringLiteral("00312") << false;
    QTest::newRow("0.0312 in trace mode") << 5 << QStringLiteral("00312") << true;
    QTest::newRow("shortest") << 9 << QStringLiteral("00100") << true;
}

void LcdPanelTest::SamplingRowPicksDisplay()
{
    QFETCH(int, row);
    QFETCH(QString, digits);
    QFETCH(bool, isTrace);
    CSamplingPanel panel;
    QCOMPARE(panel.size(), QSize(96, 54));
    panel.SetRow(row);
    const QImage image = Painted(panel);
    const int offsets[] = {6, 20, 30, 40, 50};
    for (int i = 0; i < 5; ++i)
        QVERIFY(ShowsDigit(image, offsets[i], digits[i].digitValue()));
    // The mark of the trace mode stands under the digits.
    QCOMPARE(LitPixels(image, QRect(8, 38, 80, 12)) > 0, isTrace);
    QCOMPARE(ValueOf(panel).contains(QLatin1String("trace")), isTrace);
}

void LcdPanelTest::IntervalRowPicksDisplay_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("value");
    QTest::newRow("half an hour") << 0 << QStringLiteral("30 minutes");
    QTest::newRow("a minute") << 8 << QStringLiteral("1 minutes");
    QTest::newRow("half a minute") << 9 << QStringLiteral("30 seconds");
    QTest::newRow("a second") << 14 << QStringLiteral("1 seconds");
}

void LcdPanelTest::IntervalRowPicksDisplay()
{
    QFETCH(int, row);
    QFETCH(QString, value);
    CIntervalPanel panel;
    panel.SetRow(row);
    QCOMPARE(ValueOf(panel), value);
    CLcdPanel by(LcdPanelKind::Interval);
    by.SetDisplay(row < 9 ? PictureId::LcdIntervalMinutes : PictureId::LcdIntervalSeconds);
    by.SetValue(value.section(QLatin1Char(' '), 0, 0).toInt());
    QCOMPARE(Painted(panel), Painted(by));
}

void LcdPanelTest::TintLiesOverBackgroundOnly()
{
    CLcdPanel panel(LcdPanelKind::Records);
    panel.SetValue(888888);
    const QImage plain = Painted(panel);
    QCOMPARE(panel.CaptionBackground(), plain.pixelColor(48, 9));
    panel.SetTint(TintOf(0xD8E9EC));
    const QImage tinted = Painted(panel);
    QCOMPARE(tinted.copy(Glass), plain.copy(Glass));
    QVERIFY(tinted.pixelColor(48, 9).lightness() > plain.pixelColor(48, 9).lightness());
    // Noted with the tint.
    QCOMPARE(panel.CaptionBackground(), tinted.pixelColor(48, 9));
    QVERIFY(tinted.pixelColor(0, 0).green() < 16); // as good as magenta outside of the corners
}

void LcdPanelTest::CaptionIsReadableAndInside()
{
    CLcdPanel panel(LcdPanelKind::Records);
    const QImage without = Painted(panel);
    panel.SetCaption(QStringLiteral("# of Records and some more"));
    const QImage with = Painted(panel);
    QVERIFY(Contrast(InkOn(panel.CaptionBackground()), panel.CaptionBackground()) > 4.5);
    QRect changed;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y))
                changed |= QRect(x, y, 1, 1);
        }
    }
    QVERIFY(!changed.isEmpty());
    QVERIFY(LcdCaptionArea.contains(changed));
}

void LcdPanelTest::SaysWhatItShows_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");
    const auto kind = [](LcdPanelKind which) { return static_cast<int>(which); };
    QTest::newRow("records") << kind(LcdPanelKind::Records) << 1234 << QStringLiteral("1234");
    QTest::newRow("digits without cell are not read out")
        << kind(LcdPanelKind::Records) << 12345678 << QStringLiteral("345678");
    QTest::newRow("sampling") << kind(LcdPanelKind::Sampling) << 1250
                              << QStringLiteral("0.1250 seconds");
    QTest::newRow("threshold") << kind(LcdPanelKind::Threshold) << 105 << QStringLiteral("10.5 G");
    QTest::newRow("below one G") << kind(LcdPanelKind::Threshold) << 5 << QStringLiteral("0.5 G");
    QTest::newRow("negative hazard")
        << kind(LcdPanelKind::Hazard) << -1 << QStringLiteral("-0.1 G");
    QTest::newRow("id") << kind(LcdPanelKind::Id) << 7 << QStringLiteral("7");
    QTest::newRow("start option") << kind(LcdPanelKind::StartOption) << 90 << QStringLiteral("90");
    QTest::newRow("endless off") << kind(LcdPanelKind::Endless) << 0 << QStringLiteral("off");
    QTest::newRow("buzzer on") << kind(LcdPanelKind::Buzzer) << 1 << QStringLiteral("on");
}

void LcdPanelTest::SaysWhatItShows()
{
    QFETCH(int, kind);
    QFETCH(int, value);
    QFETCH(QString, text);
    CLcdPanel panel(static_cast<LcdPanelKind>(kind));
    panel.SetCaption(QStringLiteral("Caption"));
    panel.SetValue(value);
    QCOMPARE(AccessibleRoleOf(panel), QAccessible::StaticText);
    QCOMPARE(AccessibleText(panel, QAccessible::Name), QStringLiteral("Caption"));
    QCOMPARE(ValueOf(panel), text);
    QCOMPARE(AccessibleText(panel, QAccessible::Description), text);
}

void LcdPanelTest::SaysBlank()
{
    CLcdPanel panel(LcdPanelKind::Threshold);
    QCOMPARE(ValueOf(panel), QStringLiteral("blank"));
    panel.SetValue(1);
    panel.SetBlank();
    QCOMPARE(ValueOf(panel), QStringLiteral("blank"));
}

void LcdPanelTest::KeepsColoursOnDarkDesktop()
{
    CLcdPanel panel(LcdPanelKind::Threshold);
    panel.SetCaption(QStringLiteral("Threshold"));
    panel.SetValue(105);
    const QImage usual = Painted(panel);
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Text, Qt::white);
    panel.setPalette(dark);
    panel.SetValue(105);
    QCOMPARE(Painted(panel), usual);
}

QTEST_MAIN(LcdPanelTest)
#include "LcdPanelTest.moc"
