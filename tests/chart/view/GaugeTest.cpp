#include "ChartApp.h"

#include "chart/view/ScaleGauge.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

CChartScaleGauge& Gauge(CChartApp& app)
{
    return *app.Chart().findChild<CChartScaleGauge*>();
}

QImage Picture(CChartApp& app)
{
    return Gauge(app).grab().toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace

/// The scale gauge from the keyboard, for screen readers, and its picture.
class GaugeTest : public QObject
{
    Q_OBJECT

private slots:
    void IsReachedByTabAndNotByAClick()
    {
        CChartApp app(SecondLines(20));
        CChartScaleGauge& gauge = Gauge(app);
        QCOMPARE(gauge.focusPolicy(), Qt::TabFocus);
        app.Chart().activateWindow();
        QTRY_VERIFY(app.Chart().isActiveWindow());
        gauge.clearFocus();
        QTest::mouseClick(&gauge, Qt::LeftButton, {}, {8, 3});
        QVERIFY(!gauge.hasFocus());
        QTest::keyClick(&app.Chart(), Qt::Key_Tab);
        QVERIFY(gauge.hasFocus());
    }

    void ArrowKeysMoveItByAStep()
    {
        CChartApp app(SecondLines(20));
        CChartScaleGauge& gauge = Gauge(app);
        const auto stepAfter = [&](Qt::Key key) {
            QTest::keyClick(&gauge, key);
            QCoreApplication::processEvents();
            return app.Chart().Model().Step();
        };
        QCOMPARE(stepAfter(Qt::Key_Up), 1);
        QCOMPARE(stepAfter(Qt::Key_Right), 2);
        QCOMPARE(stepAfter(Qt::Key_Down), 1);
        QCOMPARE(stepAfter(Qt::Key_Left), 0);
        QCOMPARE(stepAfter(Qt::Key_End), 8);
        QCOMPARE(stepAfter(Qt::Key_Up), 8);
        QCOMPARE(stepAfter(Qt::Key_Home), 0);
        QCOMPARE(stepAfter(Qt::Key_Down), 0);
    }

    void AKeyIsPostedToTheChartLikeTheMouse()
    {
        CChartApp app(SecondLines(20));
        CChartScaleGauge& gauge = Gauge(app);
        QSignalSpy spy(&gauge, &CChartScaleGauge::MeasureGraph);
        QTest::keyClick(&gauge, Qt::Key_Up);
        QCOMPARE(app.Chart().Model().m_scale.GetStep(), 0);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.front().at(0).value<MeasureGraphCode>(), MeasureGraphCode::ScaleStep);
        QCOMPARE(spy.front().at(1).toInt(), 1);
        QCoreApplication::processEvents();
        QCOMPARE(app.Chart().Model().m_scale.GetStep(), 1);
        // At the end of the scale there is nothing to tell.
        QTest::keyClick(&gauge, Qt::Key_Home);
        QTest::keyClick(&gauge, Qt::Key_Down);
        QCOMPARE(spy.size(), 2);
    }

    void AKeyKeepsTheValueAtTheMiddleInPlace()
    {
        CChartApp app(SecondLines(20));
        app.Chart().ChangeScaleStep(4);
        const int before = app.Chart().Model().m_scale.m_scrollY;
        QTest::keyClick(&Gauge(app), Qt::Key_Up);
        QCoreApplication::processEvents();
        CChartApp other(SecondLines(20));
        other.Chart().ChangeScaleStep(4);
        QCOMPARE(other.Chart().Model().m_scale.m_scrollY, before);
        other.Chart().ChangeScaleStep(5);
        QCOMPARE(app.Chart().Model().m_scale.m_scrollY, other.Chart().Model().m_scale.m_scrollY);
    }

    void KeysAreIgnoredWhileTheThumbIsDragged()
    {
        CChartApp app(SecondLines(20));
        CChartScaleGauge& gauge = Gauge(app);
        const QPoint thumb(8, gauge.height() - 26 + 5);
        QTest::mousePress(&gauge, Qt::LeftButton, {}, thumb);
        QTest::keyClick(&gauge, Qt::Key_Up);
        QCoreApplication::processEvents();
        QCOMPARE(app.Chart().Model().Step(), 0);
        QTest::mouseRelease(&gauge, Qt::LeftButton, {}, thumb);
    }

    void OtherKeysAreLeftToTheWindow()
    {
        CChartApp app(SecondLines(20));
        QKeyEvent key(QEvent::KeyPress, Qt::Key_F5, Qt::NoModifier);
        QCoreApplication::sendEvent(&Gauge(app), &key);
        QVERIFY(!key.isAccepted());
    }

    void ScreenReadersHearWhatItIsAndItsStep()
    {
        CChartApp app(SecondLines(20));
        QAccessibleInterface* const gauge = QAccessible::queryAccessibleInterface(&Gauge(app));
        QCOMPARE(gauge->role(), QAccessible::Slider);
        QCOMPARE(gauge->text(QAccessible::Name), QStringLiteral("Vertical scale"));
        QCOMPARE(gauge->text(QAccessible::Value), QStringLiteral("step 1 of 9"));
        app.Chart().ChangeScaleStep(5);
        QCOMPARE(gauge->text(QAccessible::Value), QStringLiteral("step 6 of 9"));
        QAccessibleValueInterface* const numbers = gauge->valueInterface();
        QVERIFY(numbers != nullptr);
        QCOMPARE(numbers->currentValue().toInt(), 6);
        QCOMPARE(numbers->minimumValue().toInt(), 1);
        QCOMPARE(numbers->maximumValue().toInt(), 9);
    }

    void ItsFocusIsSeen()
    {
        CChartApp app(SecondLines(20));
        CChartScaleGauge& gauge = Gauge(app);
        app.Chart().activateWindow();
        QTRY_VERIFY(app.Chart().isActiveWindow());
        const QColor focus(0x00, 0x00, 0x80);
        gauge.clearFocus();
        QVERIFY(Picture(app).pixelColor(0, gauge.height() / 2) != focus);
        gauge.setFocus(Qt::TabFocusReason);
        const QImage picture = Picture(app);
        for (const QPoint point :
             {QPoint(0, 5), QPoint(15, 5), QPoint(5, 0), QPoint(5, gauge.height() - 1)})
            QCOMPARE(picture.pixelColor(point), focus);
        gauge.clearFocus();
        QVERIFY(Picture(app).pixelColor(0, 5) != focus);
    }

    void TheThumbLiesAtItsTickOnTheFaceColour()
    {
        CChartApp app(SecondLines(20));
        CChartScaleGauge& gauge = Gauge(app);
        const QColor face = ToColour(App().m_viewBaseColour);
        const QColor white(Qt::white);
        const QColor shadow(0x80, 0x80, 0x80);
        const auto rowsUnlikeFaceAt = [&](int column) {
            std::vector<int> rows;
            const QImage picture = Picture(app);
            for (int y = 1; y < picture.height() - 1; ++y) {
                if (picture.pixelColor(column, y) != face)
                    rows.push_back(y);
            }
            return rows;
        };
        // At step 0 the thumb ends 2 rows above the bottom. Beside the slot the other ticks are
        // marks of two rows, light above dark.
        const int height = gauge.height();
        QCOMPARE(height, app.Chart().height() - 2 * (app.Chart().height() - app.ScrollBarTop()));
        const QImage picture = Picture(app);
        for (int tick = 0; tick < 8; ++tick) {
            const int row = static_cast<int>(tick * (height - 28.0) / 8 + 0.5) + 2 + 12;
            QCOMPARE(picture.pixelColor(4, row - 1), white);
            QCOMPARE(picture.pixelColor(4, row), shadow);
        }
        const std::vector<int> rows = rowsUnlikeFaceAt(4);
        QCOMPARE(rows.size(), std::size_t{2 * 8 + 24});
        QCOMPARE(rows.back(), height - 3);
        app.Chart().ChangeScaleStep(8);
        QCOMPARE(rowsUnlikeFaceAt(4).front(), 2);
    }
};

QTEST_MAIN(GaugeTest)
#include "GaugeTest.moc"
