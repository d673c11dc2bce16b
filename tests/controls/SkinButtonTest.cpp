#include "controls/SkinButton.h"
#include "controls/Caption.h"
#include "controls/Pixels.h"

#include <QSignalSpy>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

constexpr QRgb Channel = 0xFF12C534;
constexpr ColourRef ChannelRef = 0x34C512;

/// The colour of the middle column of a face in the common picture.
QRgb FacePixel(ButtonFace face, int y)
{
    const QImage faces = Picture(PictureId::ButtonFaces, 1);
    return faces.pixel(20, static_cast<int>(face) * ButtonFaceHeight + y);
}

} // namespace

Q_DECLARE_METATYPE(skeldon::ButtonFace)

/// The buttons of the views through real mouse and key events.
class SkinButtonTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void PaintsFaceOfState_data();
    void PaintsFaceOfState();
    void KeepsFocusWhenSwitchedOff();
    void GivesFocusAwayWhenHidden();
    void TakesFocusBackWhenSwitchedOnInActiveWindow();
    void TabLeavesDisabledButton();
    void ClickChangesNothingByItself();
    void SpaceAndEnterWork();
    void HeldEnterClicksOnce();
    void MnemonicSignIsOrdinary();
    void IsNeverNarrowerThan40();
    void EndsKeepTheirWidth();
    void SwatchTakesColour();
    void SwatchStandsAtLeftOrInMiddle();
    void TintLightensBackgroundOnly();
    void PictureIsFaintWhenDisabled();
    void CaptionIsReadableOnAllFaces_data();
    void CaptionIsReadableOnAllFaces();
    void LongCaptionStaysInside();
    void CaptionIsShrunkBeforeItIsCut();
    void SaysWhatItIs();

private:
    CSkinButton& Button() const { return *m_button; }

    std::unique_ptr<QWidget> m_form;
    CSkinButton* m_button = nullptr;
    CSkinButton* m_other = nullptr;
};

void SkinButtonTest::init()
{
    m_form = std::make_unique<QWidget>();
    m_form->resize(300, 100);
    m_button = new CSkinButton(m_form.get());
    m_other = new CSkinButton(m_form.get());
    m_button->Move(10, 10, 76);
    m_other->Move(110, 10, 76);
    QVERIFY(ShowActive(*m_form));
    m_other->setFocus();
}

void SkinButtonTest::cleanup()
{
    m_form.reset();
}

void SkinButtonTest::PaintsFaceOfState_data()
{
    QTest::addColumn<bool>("isPushed");
    QTest::addColumn<bool>("hasFocus");
    QTest::addColumn<bool>("isDisabled");
    QTest::addColumn<bool>("isPressed");
    QTest::addColumn<ButtonFace>("face");

    QTest::newRow("normal") << false << false << false << false << ButtonFace::Normal;
    QTest::newRow("pressed") << false << false << false << true << ButtonFace::Pressed;
    QTest::newRow("disabled") << false << false << true << false << ButtonFace::Disabled;
    QTest::newRow("pressed, disabled")
        << false << false << true << true << ButtonFace::PressedDisabled;
    QTest::newRow("focus") << false << true << false << false << ButtonFace::Focus;
    QTest::newRow("focus, pressed") << false << true << false << true << ButtonFace::Pushed;
    QTest::newRow("pushed") << true << true << false << false << ButtonFace::Pushed;
    QTest::newRow("focus, disabled") << false << true << true << false << ButtonFace::Focus;
    QTest::newRow("focus, disabled, pressed")
        << false << true << true << true << ButtonFace::Pushed;
}

void SkinButtonTest::PaintsFaceOfState()
{
    QFETCH(bool, isPushed);
    QFETCH(bool, hasFocus);
    QFETCH(bool, isDisabled);
    QFETCH(bool, isPressed);
    QFETCH(ButtonFace, face);
    if (hasFocus)
        Button().setFocus();
    if (isPushed)
        QTest::mousePress(&Button(), Qt::LeftButton);
    Button().setEnabled(!isDisabled);
    Button().SetPressed(isPressed);
    QCOMPARE(Button().Face(), face);
    const QImage image = Painted(Button());
    for (const int y : {1, 4, 14, 24, 26})
        QCOMPARE(QColor(image.pixel(38, y)), QColor(FacePixel(face, y)));
    if (isPushed)
        QTest::mouseRelease(&Button(), Qt::LeftButton);
}

void SkinButtonTest::KeepsFocusWhenSwitchedOff()
{
    Button().setFocus();
    Button().setEnabled(false);
    QVERIFY(Button().hasFocus());
    QVERIFY(!m_other->hasFocus());
    QSignalSpy clicks(&Button(), &QAbstractButton::clicked);
    QTest::keyClick(m_form.get(), Qt::Key_Space);
    QTest::keyClick(&Button(), Qt::Key_Return);
    QCOMPARE(clicks.count(), 0);
    Button().setEnabled(true);
    QTest::keyClick(&Button(), Qt::Key_Return);
    QCOMPARE(clicks.count(), 1);
}

void SkinButtonTest::GivesFocusAwayWhenHidden()
{
    Button().setFocus();
    Button().setEnabled(false);
    Button().hide();
    QVERIFY(!Button().hasFocus());
    QVERIFY(m_other->hasFocus());
}

void SkinButtonTest::TakesFocusBackWhenSwitchedOnInActiveWindow()
{
    Button().setFocus();
    Button().setEnabled(false);
    QWidget box; // as a message box would
    QVERIFY(ShowActive(box));
    box.close();
    m_form->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_form.get()));
    Button().setEnabled(true);
    QVERIFY(Button().hasFocus());
}

void SkinButtonTest::TabLeavesDisabledButton()
{
    Button().setFocus();
    Button().setEnabled(false);
    QTest::keyClick(m_form->windowHandle(), Qt::Key_Tab);
    QVERIFY(m_other->hasFocus());
}

void SkinButtonTest::ClickChangesNothingByItself()
{
    QSignalSpy clicks(&Button(), &QAbstractButton::clicked);
    Button().SetPressed(true);
    QTest::mouseClick(&Button(), Qt::LeftButton);
    QVERIFY(Button().IsPressed());
    Button().SetPressed(false);
    QTest::mouseClick(&Button(), Qt::LeftButton);
    QVERIFY(!Button().IsPressed());
    QCOMPARE(clicks.count(), 2);
}

void SkinButtonTest::SpaceAndEnterWork()
{
    QSignalSpy clicks(&Button(), &QAbstractButton::clicked);
    Button().setFocus();
    QTest::keyPress(&Button(), Qt::Key_Space);
    QCOMPARE(Button().Face(), ButtonFace::Pushed);
    QTest::keyRelease(&Button(), Qt::Key_Space);
    QCOMPARE(Button().Face(), ButtonFace::Focus);
    QTest::keyClick(&Button(), Qt::Key_Return);
    QTest::keyClick(&Button(), Qt::Key_Enter);
    QCOMPARE(clicks.count(), 3);
}

void SkinButtonTest::HeldEnterClicksOnce()
{
    QSignalSpy clicks(&Button(), &QAbstractButton::clicked);
    QKeyEvent first(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"),
                       true);
    QApplication::sendEvent(&Button(), &first);
    QApplication::sendEvent(&Button(), &repeated);
    QApplication::sendEvent(&Button(), &repeated);
    QCOMPARE(clicks.count(), 1);
}

void SkinButtonTest::MnemonicSignIsOrdinary()
{
    Button().SetCaption(QStringLiteral("A&B"));
    QVERIFY(Button().shortcut().isEmpty());
    QSignalSpy clicks(&Button(), &QAbstractButton::clicked);
    QTest::keyClick(m_form.get(), Qt::Key_B, Qt::AltModifier);
    QCOMPARE(clicks.count(), 0);
}

void SkinButtonTest::IsNeverNarrowerThan40()
{
    Button().Move(3, 4, 12);
    QCOMPARE(Button().geometry(), QRect(3, 4, 40, 28));
    Button().resize(5, 28);
    QCOMPARE(Button().width(), 40);
}

void SkinButtonTest::EndsKeepTheirWidth()
{
    Button().Move(10, 10, 132);
    const QImage image = Painted(Button());
    const QImage faces = Picture(PictureId::ButtonFaces, 1);
    const int top = static_cast<int>(ButtonFace::Normal) * ButtonFaceHeight;
    for (int x = 1; x < ButtonFaceEnd; ++x) {
        QCOMPARE(QColor(image.pixel(x, 14)), QColor(faces.pixel(x, top + 14)));
        QCOMPARE(QColor(image.pixel(131 - x, 14)), QColor(faces.pixel(39 - x, top + 14)));
    }
    for (int x = ButtonFaceEnd; x < 132 - ButtonFaceEnd; ++x)
        QCOMPARE(QColor(image.pixel(x, 4)), QColor(faces.pixel(20, top + 4)));
}

void SkinButtonTest::SwatchTakesColour()
{
    Button().SetUpSwatch(PictureId::IconSwatch, false);
    Button().SetSwatchColour(ChannelRef);
    QVERIFY(CountPixels(Painted(Button()), Button().rect(), Channel) > 60);
    Button().SetSwatchColour(0x0000FF);
    QCOMPARE(CountPixels(Painted(Button()), Button().rect(), Channel), 0);
    QVERIFY(CountPixels(Painted(Button()), Button().rect(), 0xFFFF0000) > 60);
}

void SkinButtonTest::SwatchStandsAtLeftOrInMiddle()
{
    Button().SetSwatchColour(ChannelRef);
    Button().SetUpSwatch(PictureId::IconSwatch, false);
    QImage image = Painted(Button());
    const int all = CountPixels(image, Button().rect(), Channel);
    QCOMPARE(CountPixels(image, QRect(10, 6, 16, 16), Channel), all);
    Button().SetUpSwatch(PictureId::IconSwatch, true);
    image = Painted(Button());
    QCOMPARE(CountPixels(image, Button().rect(), Channel), all);
    QCOMPARE(CountPixels(image, QRect(30, 6, 16, 16), Channel), all);
}

void SkinButtonTest::TintLightensBackgroundOnly()
{
    Button().SetUpSwatch(PictureId::IconSwatch, false);
    Button().SetSwatchColour(ChannelRef);
    const QColor plain = Painted(Button()).pixelColor(60, 14);
    const int swatch = CountPixels(Painted(Button()), Button().rect(), Channel);
    Button().SetTint(TintOf(0xD8E9EC));
    const QImage tinted = Painted(Button());
    const auto mixed = [](int back, int tint) { return (back * (255 - 104) + tint * 104) / 255; };
    const QColor seen = tinted.pixelColor(60, 14);
    QVERIFY(std::abs(seen.red() - mixed(plain.red(), 0xFF)) <= 1);
    QVERIFY(std::abs(seen.green() - mixed(plain.green(), 0xFC)) <= 1);
    QVERIFY(std::abs(seen.blue() - mixed(plain.blue(), 0xEB)) <= 1);
    QCOMPARE(CountPixels(tinted, Button().rect(), Channel), swatch);
    // Outside of the rounded corners there is nothing to tint.
    QVERIFY(tinted.pixelColor(0, 0).green() < 16); // as good as magenta
    Button().SetTint(TintOf(0xC8D0D4));
    QCOMPARE(Painted(Button()).pixelColor(60, 14), plain);
}

void SkinButtonTest::PictureIsFaintWhenDisabled()
{
    Button().SetUpSwatch(PictureId::IconSwatch, false);
    Button().SetSwatchColour(ChannelRef);
    Button().setEnabled(false);
    const QImage image = Painted(Button());
    QCOMPARE(CountPixels(image, Button().rect(), Channel), 0);
    const QColor back(FacePixel(ButtonFace::Disabled, 14));
    QVERIFY(Contrast(image.pixelColor(18, 14), back) > 1.2);
}

void SkinButtonTest::CaptionIsReadableOnAllFaces_data()
{
    QTest::addColumn<ColourRef>("view");
    QTest::newRow("light") << ColourRef{0xD8E9EC};
    QTest::newRow("dark") << ColourRef{0xC8D0D4};
}

void SkinButtonTest::CaptionIsReadableOnAllFaces()
{
    QFETCH(ColourRef, view);
    Button().SetTint(TintOf(view));
    Button().SetCaption(QStringLiteral("\u2588\u2588\u2588")); // solid blocks show the pure ink
    for (int state = 0; state < 8; ++state) {
        Button().setDown((state & 1) != 0);
        Button().setEnabled((state & 2) == 0);
        Button().SetPressed((state & 4) != 0);
        const QImage image = Painted(Button());
        const double contrast = Contrast(image.pixelColor(38, 14), image.pixelColor(8, 14));
        const bool isFaint = !Button().isEnabled() && !Button().isDown();
        QVERIFY2(contrast >= (isFaint ? 3.0 : 4.5), qPrintable(QString::number(contrast)));
    }
}

void SkinButtonTest::LongCaptionStaysInside()
{
    Button().Move(10, 10, 60);
    Button().SetUpSwatch(PictureId::IconSwatch, false);
    const QImage without = Painted(Button());
    Button().SetCaption(QString(40, QLatin1Char('W')));
    const QImage with = Painted(Button());
    QRect changed;
    for (int y = 0; y < 28; ++y) {
        for (int x = 0; x < 60; ++x) {
            if (with.pixel(x, y) != without.pixel(x, y))
                changed |= QRect(x, y, 1, 1);
        }
    }
    QVERIFY(!changed.isEmpty());
    QVERIFY(changed.left() >= 26);  // beside the picture
    QVERIFY(changed.right() <= 57); // within the frame
    QVERIFY(changed.top() >= 3 && changed.bottom() <= 24);
}

void SkinButtonTest::CaptionIsShrunkBeforeItIsCut()
{
    QFont font;
    font.setPixelSize(12);
    const QString text = QStringLiteral("Online Recording");
    const int width = QFontMetrics(font).horizontalAdvance(text);
    QCOMPARE(FitCaption(text, font, width).font.pixelSize(), 12);
    const FittedCaption tight = FitCaption(text, font, width - 1);
    QVERIFY(tight.font.pixelSize() < 12);
    QCOMPARE(tight.text, text);
    const FittedCaption cut = FitCaption(text, font, width / 2);
    QCOMPARE(cut.font.pixelSize(), 10);
    QVERIFY(cut.text.endsWith(QChar(0x2026)));
    QVERIFY(QFontMetrics(cut.font).horizontalAdvance(cut.text) <= width / 2);
    font.setPixelSize(9);
    QCOMPARE(FitCaption(text, font, 10).font.pixelSize(), 9); // small letters are left alone
}

void SkinButtonTest::SaysWhatItIs()
{
    Button().SetCaption(QStringLiteral("Open"));
    QCOMPARE(AccessibleRoleOf(Button()), QAccessible::Button);
    QCOMPARE(AccessibleText(Button(), QAccessible::Name), QStringLiteral("Open"));
    QVERIFY(Button().toolTip().isEmpty());
    Button().SetCaption(QString());
    Button().SetName(QStringLiteral("X axis"));
    QCOMPARE(AccessibleText(Button(), QAccessible::Name), QStringLiteral("X axis"));
    QCOMPARE(Button().toolTip(), QStringLiteral("X axis"));
    const auto state = [this] { return QAccessible::queryAccessibleInterface(m_button)->state(); };
    QVERIFY(!state().checkable);
    Button().SetPressed(true);
    QVERIFY(state().checkable && state().checked);
    Button().SetPressed(false);
    QVERIFY(!state().checked);
}

QTEST_MAIN(SkinButtonTest)
#include "SkinButtonTest.moc"
