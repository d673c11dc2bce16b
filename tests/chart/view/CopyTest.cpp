#include "ChartApp.h"

#include "support/window/EachRatio.h"

#include <QApplication>
#include <QClipboard>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QTest>

#include <cmath>

using namespace skeldon;
using namespace skeldon::test;

namespace {

constexpr ChartLine Level{0, 10.0, -10.0, 20.0, 24.0, 60.0, 160.0, 0};

} // namespace

/// The chart on the clipboard, at the pixel ratio that the window has.
class CopyTest : public QObject
{
    Q_OBJECT

public:
    explicit CopyTest(double ratio)
        : m_ratio(ratio)
    {}

private slots:
    void TheClipboardGetsWhatTheWindowShows()
    {
        CChartApp app(SecondLines(20, Level));
        QCOMPARE(app.Chart().devicePixelRatioF(), m_ratio);
        QVERIFY(app.Chart().ZoomInTime());
        app.Chart().ChangeScaleStep(3);
        QGuiApplication::clipboard()->clear();
        QVERIFY(app.Chart().CopyToClipboard());
        const QImage copy = QGuiApplication::clipboard()->image();
        const int label = QFontMetrics(app.Chart().font()).height();
        const QSize view(app.Chart().width() - app.Bar(Qt::Vertical).width() - CChartApp::Gauge,
                         app.ScrollBarTop());
        QCOMPARE(copy.size(), Device(view + QSize(5 * (label + 8), 2 * label + 8)));
        const QPoint top(0, Device(2 * label + 8));
        const QImage shown = app.Picture().convertToFormat(QImage::Format_RGB32);
        QImage window = shown.copy(QRect(QPoint(Device(CChartApp::Gauge), 0), Device(view)));
        window.setDevicePixelRatio(1.0);
        const QImage copied =
            copy.convertToFormat(QImage::Format_RGB32).copy(QRect(top, Device(view)));
        QCOMPARE(copied, window);
    }

    void ACopyIsNoNewDrawing()
    {
        CChartApp app(SecondLines(20, Level));
        QGuiApplication::clipboard()->clear();
        QVERIFY(app.Chart().CopyToClipboard());
        const QImage before = QGuiApplication::clipboard()->image();
        // Behind the window's back.
        CMeasureRecord line = app.m_data.GetRecord(10);
        line.m_x = -30.0;
        app.m_data.SetRecord(10, line);
        QVERIFY(app.Chart().CopyToClipboard());
        QCOMPARE(QGuiApplication::clipboard()->image(), before);
    }

    void TheTitleIsThatOfTheSettings()
    {
        CChartApp app(SecondLines(20, Level));
        const auto title = [this, &app] {
            if (!app.Chart().CopyToClipboard())
                return QImage();
            const QImage copy = QGuiApplication::clipboard()->image();
            const int label = QFontMetrics(app.Chart().font()).height();
            return copy.copy(0, 0, copy.width(), Device(label + 8));
        };
        const auto isBlank = [](const QImage& image) {
            QImage white = image;
            white.fill(Qt::white);
            return image == white;
        };
        const QImage usual = title();
        QVERIFY(!isBlank(usual));
        App().Settings().WriteText(SystemSection, QStringLiteral("GraphTitle"),
                                   QStringLiteral("KORVA measured result chart"));
        QCOMPARE(title(), usual);
        App().Settings().WriteText(SystemSection, QStringLiteral("GraphTitle"), QString());
        QVERIFY(isBlank(title()));
        app.m_data.m_fileName = "crate.skd";
        const QImage named = title();
        QVERIFY(!isBlank(named));
        QVERIFY(named != usual);
    }

    void AnEmptyChartCanBeCopiedToo()
    {
        CChartApp app({});
        QVERIFY(app.Chart().CopyToClipboard());
        QVERIFY(!QGuiApplication::clipboard()->image().isNull());
    }

    void AChartThatWasNeverShownIsNotCopied()
    {
        const CTestApp app;
        CChartWnd chart;
        QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
        QVERIFY(!chart.CopyToClipboard());
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
    }

    void ARefusingClipboardIsTold()
    {
        CChartApp app(SecondLines(20, Level));
        app.m_test.m_prompts->m_clipboardFails = true;
        QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
        QVERIFY(!app.Chart().CopyToClipboard());
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
    }

private:
    [[nodiscard]] int Device(int pixels) const
    {
        return static_cast<int>(std::ceil(pixels * m_ratio));
    }
    [[nodiscard]] QSize Device(QSize size) const
    {
        return {Device(size.width()), Device(size.height())};
    }
    double m_ratio;
};

int main(int argc, char** argv)
{
    return RunAtEachRatio<CopyTest>(argc, argv);
}

#include "CopyTest.moc"
