#include "controls/AboutFade.h"
#include "controls/VersionText.h"

#include <QTest>

using namespace skeldon;

namespace {

using Phase = CAboutFade::Phase;

/// Ticks until the phase changes; gives how many it took.
int TicksToNext(CAboutFade& fade)
{
    const Phase before = fade.Present();
    int ticks = 0;
    while (fade.Present() == before && ticks < 1000) {
        fade.Tick();
        ++ticks;
    }
    return ticks;
}

CAboutFade FadeIn(Phase phase)
{
    CAboutFade fade;
    for (int i = 0; i < 2000 && fade.Present() != phase; ++i) {
        if (fade.Present() == Phase::Shown)
            fade.Press();
        else
            fade.Tick();
    }
    return fade;
}

} // namespace

/// The course of the about box.
class AboutFadeTest : public QObject
{
    Q_OBJECT

private slots:
    void WaitsThenFadesInBySteps();
    void StaysUntilPressed();
    void FadesOutBySteps();
    void PressEndsFadeInAtOnce();
    void PressEndsFadeOutAtOnce();
    void PressInFadeInDoesNotStartFadeOut();
    void LastWaitIsCutShortByPress();
    void PressInFirstWaitChangesNothing();
    void DoubleClickCountsOnlyBehindFirstPress();
    void VersionHasFourNumbers_data();
    void VersionHasFourNumbers();
};

void AboutFadeTest::WaitsThenFadesInBySteps()
{
    CAboutFade fade;
    QCOMPARE(fade.Present(), Phase::Before);
    QCOMPARE(fade.Alpha(), 0);
    QCOMPARE(fade.DelayMs(), 300);
    fade.Tick();
    QCOMPARE(fade.Present(), Phase::FadingIn);
    QCOMPARE(fade.Alpha(), 0);
    QVERIFY(fade.DelayMs() >= 1);
    fade.Tick();
    QCOMPARE(fade.Alpha(), 2);
    fade.Tick();
    QCOMPARE(fade.Alpha(), 4);
    QCOMPARE(TicksToNext(fade), 127 - 2);
    QCOMPARE(fade.Present(), Phase::Shown);
    QCOMPARE(fade.Alpha(), 255);
}

void AboutFadeTest::StaysUntilPressed()
{
    CAboutFade fade = FadeIn(Phase::Shown);
    QCOMPARE(fade.DelayMs(), -1);
    fade.Tick();
    QCOMPARE(fade.Present(), Phase::Shown);
    fade.Press();
    QCOMPARE(fade.Present(), Phase::FadingOut);
    QCOMPARE(fade.Alpha(), 255);
}

void AboutFadeTest::FadesOutBySteps()
{
    CAboutFade fade = FadeIn(Phase::FadingOut);
    fade.Tick();
    QCOMPARE(fade.Alpha(), 253);
    QCOMPARE(TicksToNext(fade), 127 - 1);
    QCOMPARE(fade.Present(), Phase::After);
    QCOMPARE(fade.Alpha(), 0);
    QCOMPARE(fade.DelayMs(), 300);
    fade.Tick();
    QCOMPARE(fade.Present(), Phase::Closed);
    QCOMPARE(fade.DelayMs(), -1);
}

void AboutFadeTest::PressEndsFadeInAtOnce()
{
    CAboutFade fade = FadeIn(Phase::FadingIn);
    fade.Tick();
    fade.Press();
    QCOMPARE(fade.DelayMs(), 0);
    fade.Tick();
    QCOMPARE(fade.Present(), Phase::Shown);
    QCOMPARE(fade.Alpha(), 255);
}

void AboutFadeTest::PressEndsFadeOutAtOnce()
{
    CAboutFade fade = FadeIn(Phase::FadingOut);
    fade.Tick();
    fade.Press();
    fade.Tick();
    QCOMPARE(fade.Present(), Phase::After);
    QCOMPARE(fade.Alpha(), 0);
}

void AboutFadeTest::PressInFadeInDoesNotStartFadeOut()
{
    CAboutFade fade = FadeIn(Phase::FadingIn);
    fade.Press();
    fade.Press();
    fade.Tick();
    QCOMPARE(fade.Present(), Phase::Shown);
    fade.Press();
    fade.Tick();
    QCOMPARE(fade.Alpha(), 253); // the flag of the first fade is gone
}

void AboutFadeTest::LastWaitIsCutShortByPress()
{
    CAboutFade fade = FadeIn(Phase::After);
    fade.Press();
    QCOMPARE(fade.Present(), Phase::Closed);
}

void AboutFadeTest::PressInFirstWaitChangesNothing()
{
    CAboutFade fade;
    fade.Press();
    QCOMPARE(fade.Present(), Phase::Before);
    fade.Tick();
    fade.Tick();
    QCOMPARE(fade.Present(), Phase::FadingIn);
}

void AboutFadeTest::DoubleClickCountsOnlyBehindFirstPress()
{
    CAboutFade fade;
    while (fade.Present() != Phase::Shown)
        fade.Tick();
    fade.DoubleClick();
    QCOMPARE(fade.Present(), Phase::Shown);
    fade.Press();
    fade.Tick();
    fade.DoubleClick();
    fade.Tick();
    QCOMPARE(fade.Present(), Phase::After);
}

void AboutFadeTest::VersionHasFourNumbers_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("four") << QByteArray("1.0.0.0") << QByteArray("1.0.0.0");
    QTest::newRow("two digits") << QByteArray("2.10.3.12") << QByteArray("2.10.3.12");
    QTest::newRow("two numbers") << QByteArray("1.2") << QByteArray("1.2.0.0");
    QTest::newRow("five numbers") << QByteArray("1.2.3.4.5") << QByteArray("1.2.3.4");
    QTest::newRow("leading zero") << QByteArray("1.02.3.4") << QByteArray("1.2.3.4");
    QTest::newRow("empty") << QByteArray() << QByteArray("0.0.0.0");
}

void AboutFadeTest::VersionHasFourNumbers()
{
    QFETCH(QByteArray, version);
    QFETCH(QByteArray, text);
    QCOMPARE(QByteArray::fromStdString(FourNumbers(version.toStdString())), text);
}

QTEST_MAIN(AboutFadeTest)
#include "AboutFadeTest.moc"
