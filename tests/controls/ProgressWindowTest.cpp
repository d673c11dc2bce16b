#include "controls/ProgressWindow.h"

#include "controls/Caption.h"
#include "controls/Pixels.h"
#include "resources/StringTable.h"
#include "resources/Translation.h"
#include "support/window/PaintCounter.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <array>
#include <functional>

using namespace skeldon;
using namespace skeldon::test;

namespace {

/// Runs a strip modally with a job in it.
int RunWith(CProgressWindow& strip, const std::function<void()>& job)
{
    QObject::connect(&strip, &CProgressWindow::ProgressMessage, &strip, job);
    return strip.exec();
}

/// Whether two colours look alike.
bool IsNear(const QColor& a, const QColor& b)
{
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
               std::abs(a.blue() - b.blue()) <
           120;
}

/// Whether a colour is a mixture of two others, as the edge of a letter is.
bool IsBetween(const QColor& colour, const QColor& one, const QColor& other)
{
    constexpr int Rounding = 2;
    const auto isMixed = [](int value, int a, int b) {
        return value >= std::min(a, b) - Rounding && value <= std::max(a, b) + Rounding;
    };
    return isMixed(colour.red(), one.red(), other.red()) &&
           isMixed(colour.green(), one.green(), other.green()) &&
           isMixed(colour.blue(), one.blue(), other.blue());
}

/// Columns of the strip that look filled, at ratio 1.
int FilledColumns(CProgressWindow& strip)
{
    const QImage painted = Painted(strip);
    const QImage gauge = Picture(PictureId::Progress, 1);
    const int y = 16; // above the text
    int count = 0;
    for (int x = ProgressGauge::End; x < painted.width() - ProgressGauge::End; ++x)
        count += painted.pixel(x, y) == gauge.pixel(35, y) ? 1 : 0;
    return count;
}

} // namespace

/// The strip that is up while a long job runs.
class ProgressWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void IsFramelessModalStrip();
    void NarrowWidthIsRaised();
    void CallsOwnerOnceAndCloses();
    void JobBeginsWhenStripIsOnScreen();
    void JobLiesWithinOneCall();
    void CanBeUsedAgain();
    void ComingBackFromTheTaskBarStartsNothing();
    void CannotBeClosedWhileJobRuns();
    void CannotBeClosedBeforeJob();
    void StandsInMiddleOfOwner();
    void GaugeShowsPosition_data();
    void GaugeShowsPosition();
    void RangeFitsPosition();
    void PaintsOnlyWhatLooksDifferent();
    void MillionLinesPaintFewTimes();
    void TextTakesColour();
    void TextWaitsForRepaint();
    void TextIsReadableInBothColoursAndLanguages_data();
    void TextIsReadableInBothColoursAndLanguages();
    void TitleChangesText();
    void TextIsCopiedToBuffer();
    void SaysHowFarItIs();
};

void ProgressWindowTest::IsFramelessModalStrip()
{
    CProgressWindow strip(nullptr);
    QCOMPARE(strip.size(), QSize(400, 48));
    QVERIFY(strip.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(strip.isModal());
    QCOMPARE(strip.Range(), 100);
    QCOMPARE(strip.Position(), 0);
    QVERIFY(strip.GetText().isEmpty());
}

void ProgressWindowTest::NarrowWidthIsRaised()
{
    QCOMPARE(CProgressWindow(nullptr, 35).width(), 36);
    QCOMPARE(CProgressWindow(nullptr, -5).width(), 36);
    QCOMPARE(CProgressWindow(nullptr, 36).width(), 36);
    QCOMPARE(CProgressWindow(nullptr, 37).width(), 37);
}

void ProgressWindowTest::CallsOwnerOnceAndCloses()
{
    CProgressWindow strip(nullptr);
    QSignalSpy calls(&strip, &CProgressWindow::ProgressMessage);
    QCOMPARE(strip.exec(), static_cast<int>(QDialog::Rejected));
    QCOMPARE(calls.count(), 1);
    QCOMPARE(calls[0][0].toInt(), 1);
    QCOMPARE(calls[0][1].value<CProgressWindow*>(), &strip);
    QVERIFY(!strip.isVisible());
    QTest::qWait(150); // longer than its timer: it does not start a second time
    QCOMPARE(calls.count(), 1);
}

void ProgressWindowTest::JobBeginsWhenStripIsOnScreen()
{
    CProgressWindow strip(nullptr);
    const CPaintCounter paints(strip);
    bool wasVisible = false;
    int paintsBefore = 0;
    qint64 waited = 0;
    QElapsedTimer clock;
    clock.start();
    RunWith(strip, [&] {
        waited = clock.elapsed();
        wasVisible = strip.isVisible();
        paintsBefore = paints.m_count;
    });
    QVERIFY(wasVisible);
    QVERIFY(paintsBefore > 0);
    QVERIFY(waited >= 95); // 100 ms, as coarse as timers are
}

void ProgressWindowTest::JobLiesWithinOneCall()
{
    CProgressWindow strip(nullptr);
    QStringList events;
    connect(&strip, &QDialog::finished, &strip, [&] { events << QStringLiteral("closed"); });
    RunWith(strip, [&] {
        events << QStringLiteral("begin");
        for (int i = 0; i < 10; ++i) {
            strip.SetPosition(i * 10);
            QCoreApplication::processEvents();
        }
        events << QStringLiteral("end");
    });
    QCOMPARE(events, QStringList({QStringLiteral("begin"), QStringLiteral("end"),
                                  QStringLiteral("closed")}));
}

void ProgressWindowTest::CanBeUsedAgain()
{
    CProgressWindow strip(nullptr);
    int runs = 0;
    connect(&strip, &CProgressWindow::ProgressMessage, &strip, [&] { ++runs; });
    strip.exec();
    strip.exec();
    QCOMPARE(runs, 2);
}

void ProgressWindowTest::ComingBackFromTheTaskBarStartsNothing()
{
    CProgressWindow strip(nullptr);
    int runs = 0;
    int hidden = 0;
    QPoint place;
    RunWith(strip, [&] {
        // What would begin anew must not end in a circle.
        if (++runs > 1)
            return;
        place = strip.pos() + QPoint(30, 40);
        strip.move(place);
        QCoreApplication::processEvents();
        strip.windowHandle()->setWindowState(Qt::WindowMinimized);
        QCoreApplication::processEvents();
        hidden = strip.isMinimized() ? 1 : 0;
        strip.windowHandle()->setWindowState(Qt::WindowNoState);
        QCoreApplication::processEvents();
        QTest::qWait(150); // longer than its timer
        place -= strip.pos();
    });
    QCOMPARE(hidden, 1);
    QCOMPARE(runs, 1);
    QCOMPARE(place, QPoint());
}

void ProgressWindowTest::CannotBeClosedWhileJobRuns()
{
    CProgressWindow strip(nullptr);
    bool stayed = true;
    RunWith(strip, [&] {
        QTest::keyClick(&strip, Qt::Key_Escape);
        stayed = stayed && strip.isVisible();
        strip.close(); // as the window system asks for it
        stayed = stayed && strip.isVisible();
        strip.reject();
        stayed = stayed && strip.isVisible();
        QCoreApplication::processEvents();
        stayed = stayed && strip.isVisible();
    });
    QVERIFY(stayed);
    QVERIFY(!strip.isVisible());
}

void ProgressWindowTest::CannotBeClosedBeforeJob()
{
    CProgressWindow strip(nullptr);
    QSignalSpy calls(&strip, &CProgressWindow::ProgressMessage);
    QTimer::singleShot(0, &strip, [&] { QTest::keyClick(&strip, Qt::Key_Escape); });
    strip.exec();
    QCOMPARE(calls.count(), 1);
}

void ProgressWindowTest::StandsInMiddleOfOwner()
{
    QWidget owner;
    owner.setGeometry(50, 60, 600, 400);
    QVERIFY(ShowActive(owner));
    CProgressWindow strip(&owner);
    QPoint middle;
    RunWith(strip, [&] { middle = strip.geometry().center(); });
    QVERIFY((middle - owner.geometry().center()).manhattanLength() <= 2);
}

void ProgressWindowTest::GaugeShowsPosition_data()
{
    QTest::addColumn<int>("range");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("filled");
    QTest::newRow("empty") << 100 << 0 << 0;
    QTest::newRow("half") << 100 << 50 << 183;
    QTest::newRow("full") << 100 << 100 << 366;
    QTest::newRow("negative") << 100 << -50 << 183;
    QTest::newRow("above") << 100 << 5000 << 366;
    QTest::newRow("range 0") << 0 << 40 << 0;
    QTest::newRow("negative range") << -200 << 100 << 183;
}

void ProgressWindowTest::GaugeShowsPosition()
{
    QFETCH(int, range);
    QFETCH(int, position);
    QFETCH(int, filled);
    CProgressWindow strip(nullptr);
    strip.SetRange(range);
    strip.SetPosition(position);
    QCOMPARE(FilledColumns(strip), filled);
}

void ProgressWindowTest::RangeFitsPosition()
{
    CProgressWindow strip(nullptr);
    strip.SetPosition(80);
    strip.SetRange(40);
    QCOMPARE(strip.Position(), 40);
    QCOMPARE(FilledColumns(strip), 366);
}

void ProgressWindowTest::PaintsOnlyWhatLooksDifferent()
{
    CProgressWindow strip(nullptr);
    strip.SetRange(366 * 100);
    RunWith(strip, [&] {
        QCoreApplication::processEvents();
        const CPaintCounter paints(strip);
        strip.SetPosition(50);
        strip.SetPosition(99);
        QCOMPARE(paints.m_count, 0);
        strip.SetPosition(100); // one column
        QCOMPARE(paints.m_count, 1);
        strip.SetText(QStringLiteral("text"), true);
        QCOMPARE(paints.m_count, 2);
        strip.SetText(QStringLiteral("text"), true);
        strip.SetTextColor(0x800000, true);
        QCOMPARE(paints.m_count, 2);
        strip.SetTextColor(0x0000FF, true);
        QCOMPARE(paints.m_count, 3);
    });
}

void ProgressWindowTest::MillionLinesPaintFewTimes()
{
    CProgressWindow strip(nullptr);
    constexpr int Lines = 1000000;
    strip.SetRange(Lines);
    int paints = 0;
    RunWith(strip, [&] {
        const CPaintCounter counter(strip);
        for (int i = 0; i < Lines; i += 40)
            strip.SetPosition(i);
        paints = counter.m_count;
    });
    QVERIFY(paints >= 300);
    QVERIFY(paints <= 367);
}

void ProgressWindowTest::TextTakesColour()
{
    CProgressWindow strip(nullptr);
    strip.SetText(QStringLiteral("\u2588\u2588\u2588"));
    QVERIFY(CountPixels(Painted(strip), strip.rect(), 0xFF000080) > 50);
    strip.SetTextColor(0x0000FF, true);
    QVERIFY(CountPixels(Painted(strip), strip.rect(), 0xFFFF0000) > 50);
    QCOMPARE(CountPixels(Painted(strip), strip.rect(), 0xFF000080), 0);
    // In the middle of the strip.
    QCOMPARE(QColor(Painted(strip).pixel(200, 24)), QColor(Qt::red));
}

void ProgressWindowTest::TextWaitsForRepaint()
{
    CProgressWindow strip(nullptr);
    RunWith(strip, [&] {
        QCoreApplication::processEvents();
        const CPaintCounter paints(strip);
        strip.SetTextColor(0xFFFFFF, false);
        strip.SetText(QStringLiteral("later"), false);
        QCoreApplication::processEvents();
        QCOMPARE(paints.m_count, 0);
        QCOMPARE(strip.GetText(), QStringLiteral("later"));
        strip.SetText(QStringLiteral("later"), true);
        QCOMPARE(paints.m_count, 1);
    });
}

void ProgressWindowTest::TextIsReadableInBothColoursAndLanguages_data()
{
    QTest::addColumn<bool>("isJapanese");
    QTest::addColumn<ColourRef>("colour");
    QTest::addColumn<int>("position");
    for (const bool isJapanese : {false, true}) {
        for (const ColourRef colour : {0xFFFFFFU, 0x0000FFU}) {
            for (const int position : {0, 100})
                QTest::addRow("%s %06x at %d", isJapanese ? "Japanese" : "English", colour,
                              position)
                    << isJapanese << colour << position;
        }
    }
}

void ProgressWindowTest::TextIsReadableInBothColoursAndLanguages()
{
    QFETCH(bool, isJapanese);
    QFETCH(ColourRef, colour);
    QFETCH(int, position);
    constexpr double LeastContrast = 3.0; // of large or bold letters
    const QColor ink = ToColour(colour);
    QVERIFY(InstallTranslation(isJapanese));
    CProgressWindow strip(nullptr);
    strip.SetPosition(position);
    const QImage without = Painted(strip);
    strip.SetTextColor(colour, false);
    strip.SetText(Text(StringId::DoNotSeparate));
    const QImage with = Painted(strip);
    InstallTranslation(false);
    QRect text;
    int inked = 0;
    double contrast = Contrast(Qt::white, Qt::black);
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            const QColor ground = without.pixelColor(x, y);
            const QColor drawn = with.pixelColor(x, y);
            if (drawn == ground)
                continue;
            text |= QRect(x, y, 1, 1);
            inked += IsNear(drawn, ink) ? 1 : 0;
            contrast = std::min(contrast, Contrast(ink, ground));
            // The gauge shines through around the letters.
            QVERIFY(IsBetween(drawn, ground, ink));
        }
    }
    QVERIFY(inked > 50);
    QVERIFY2(contrast >= LeastContrast, qPrintable(QString::number(contrast)));
    QVERIFY(text.left() > ProgressGauge::End);
    QVERIFY(text.right() < 400 - ProgressGauge::End);
    QVERIFY(std::abs(text.center().x() - 200) <= 2);
    QVERIFY(std::abs(text.center().y() - 24) <= 4);
}

void ProgressWindowTest::TitleChangesText()
{
    CProgressWindow strip(nullptr);
    strip.setWindowTitle(QStringLiteral("by title"));
    QCOMPARE(strip.GetText(), QStringLiteral("by title"));
    strip.SetText(QStringLiteral("by text"), false);
    QCOMPARE(strip.windowTitle(), QStringLiteral("by text"));
}

void ProgressWindowTest::TextIsCopiedToBuffer()
{
    CProgressWindow strip(nullptr);
    strip.SetText(QStringLiteral("KORVA"));
    std::array<char16_t, 8> buffer{};
    buffer.fill(u'x');
    QCOMPARE(strip.GetText(buffer), std::size_t{5});
    QCOMPARE(QString::fromUtf16(buffer.data()), QStringLiteral("KORVA"));
    QCOMPARE(strip.GetText(std::span(buffer).first(4)), std::size_t{3});
    QCOMPARE(QString::fromUtf16(buffer.data()), QStringLiteral("KOR"));
    QCOMPARE(strip.GetText(std::span(buffer).first(1)), std::size_t{0});
    QCOMPARE(buffer[0], u'\0');
    QCOMPARE(strip.GetText(std::span<char16_t>()), std::size_t{0});
}

void ProgressWindowTest::SaysHowFarItIs()
{
    CProgressWindow strip(nullptr);
    strip.SetRange(200);
    strip.SetPosition(50);
    QCOMPARE(AccessibleRoleOf(strip), QAccessible::ProgressBar);
    QCOMPARE(AccessibleText(strip, QAccessible::Name), QStringLiteral("Progress"));
    QCOMPARE(AccessibleText(strip, QAccessible::Value), QStringLiteral("25 %"));
    QAccessibleValueInterface* value =
        QAccessible::queryAccessibleInterface(&strip)->valueInterface();
    QVERIFY(value != nullptr);
    QCOMPARE(value->currentValue().toInt(), 50);
    QCOMPARE(value->maximumValue().toInt(), 200);
    QCOMPARE(value->minimumValue().toInt(), 0);
}

QTEST_MAIN(ProgressWindowTest)
#include "ProgressWindowTest.moc"
