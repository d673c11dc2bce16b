#include "ChartApp.h"

#include "chart/view/ScaleGauge.h"

#include <QAction>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

using namespace skeldon;
using namespace skeldon::test;

namespace {

using Code = MeasureGraphCode;
using Codes = std::vector<std::pair<Code, int>>;

CChartScaleGauge& Gauge(CChartApp& app)
{
    return *app.Chart().findChild<CChartScaleGauge*>();
}

/// Row of the gauge where a tick's thumb begins; the finest step is tick 0.
int TickRow(const QWidget& gauge, int tick)
{
    constexpr int Last = CValueScale::StepCount - 1;
    if (tick == Last)
        return gauge.height() - 26;
    return static_cast<int>(tick * (gauge.height() - 28.0) / Last + 0.5) + 2;
}

int ScrollY(CChartApp& app)
{
    return app.Chart().Model().m_scale.m_scrollY;
}

CChartRange View(CChartApp& app)
{
    return app.Chart().Model().m_window.View();
}

void Wheel(CChartApp& app, QPoint delta, Qt::KeyboardModifiers modifiers = {})
{
    const QPoint at = app.InPlot(app.PlotLeft() + 50);
    QWheelEvent event(at, app.Chart().mapToGlobal(at), {}, delta, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&app.Chart(), &event);
}

void Drag(CChartApp& app, int from, int to)
{
    QTest::mousePress(&app.Chart(), Qt::LeftButton, {}, app.InPlot(from));
    QTest::mouseMove(&app.Chart(), app.InPlot(to));
    QTest::mouseRelease(&app.Chart(), Qt::LeftButton, {}, app.InPlot(to));
}

/// A key held while the scroll bars ask for it.
class CCtrlHeld
{
public:
    explicit CCtrlHeld(QWidget& window)
        : m_window(window)
    {
        QTest::keyPress(&m_window, Qt::Key_Control, Qt::ControlModifier);
    }
    ~CCtrlHeld() { QTest::keyRelease(&m_window, Qt::Key_Control, Qt::NoModifier); }
    CCtrlHeld(const CCtrlHeld&) = delete;
    CCtrlHeld& operator=(const CCtrlHeld&) = delete;

private:
    QWidget& m_window;
};

} // namespace

/// What the user does with the chart, and what it and its neighbours tell each other.
class InputTest : public QObject
{
    Q_OBJECT

private slots:
    void AClickAsksForTheLineAndChangesNothingByItself()
    {
        CChartApp app(SecondLines(20));
        QTest::mouseClick(&app.Chart(), Qt::LeftButton, {}, app.InPlot(app.Column(7000) - 3));
        QCOMPARE(app.Codes(), (Codes{{Code::CurrentLine, 7}}));
        QCOMPARE(app.Chart().Model().m_currentLine, -1);
        QVERIFY(app.Chart().Model().m_lineFromMouse);

        app.Chart().OnMeasureGraph(Code::CurrentLine, 7);
        QCOMPARE(app.Codes(), (Codes{{Code::LineTaken, 7}}));
        QCOMPARE(app.Chart().Model().m_currentLine, 7);
        QVERIFY(!app.Chart().Model().m_lineFromMouse);
    }

    void ALineSetByTheListIsTakenWithoutAWord()
    {
        CChartApp app(SecondLines(20));
        app.Chart().OnMeasureGraph(Code::CurrentLine, 4);
        QCOMPARE(app.Chart().Model().m_currentLine, 4);
        QCOMPARE(app.Codes(), Codes{});
    }

    void NoLineAndLinesOutsideAreIgnoredAndTheFlagStays()
    {
        CChartApp app(SecondLines(20));
        app.Chart().OnMeasureGraph(Code::CurrentLine, 4);
        const int cursor = app.Chart().Model().m_cursorX;
        QTest::mouseClick(&app.Chart(), Qt::LeftButton, {}, app.InPlot(app.Column(7000)));
        QCOMPARE(app.Codes().size(), std::size_t{1});
        for (const int line : {-1, 20, 1000, -7}) {
            app.Chart().OnMeasureGraph(Code::CurrentLine, line);
            QCOMPARE(app.Chart().Model().m_currentLine, 4);
            QCOMPARE(app.Chart().Model().m_cursorX, cursor);
            QVERIFY(app.Chart().Model().m_lineFromMouse);
        }
        QCOMPARE(app.Codes(), Codes{});
    }

    void AClickBehindTheLastShownLinePicksTheOneBehindIt()
    {
        CChartApp app(SecondLines(20));
        QTest::mouseClick(&app.Chart(), Qt::LeftButton, {}, app.InPlot(app.PlotRight() - 2));
        QCOMPARE(app.Codes(), (Codes{{Code::CurrentLine, 20}}));
    }

    void AClickRightOfTheLastDrawnLinePicksTheNextOne()
    {
        CChartApp app(SecondLines(20));
        // A window that ends before the first line: it is drawn as if it were 5 seconds wide.
        QVERIFY(app.Chart().BeginAreaSelection());
        Drag(app, app.PlotLeft(), app.PlotLeft() + 4);
        QCOMPARE(app.Codes(), (Codes{{Code::AreaEnded, 1}}));
        const CChartModel& model = app.Chart().Model();
        QVERIFY(model.m_window.m_viewEnd < model.m_window.m_viewStart);
        QCOMPARE(model.m_drawn, (LineSpan{0, 1}));
        const int third =
            static_cast<int>(model.m_window.Column(ChartStart() + 3000)) + CChartApp::Gauge;
        QTest::mouseClick(&app.Chart(), Qt::LeftButton, {}, app.InPlot(third));
        QCOMPARE(app.Codes(), (Codes{{Code::CurrentLine, 2}}));
        app.Chart().OnMeasureGraph(Code::CurrentLine, 2);
        QCOMPARE(model.m_currentLine, 2);
    }

    void AClickPicksABarUpToItsRightEdge()
    {
        CChartApp app(SecondLines(20));
        const auto picked = [&app](int column) {
            QTest::mouseClick(&app.Chart(), Qt::LeftButton, {}, app.InPlot(column));
            const Codes codes = app.Codes();
            return codes.size() == 1 && codes[0].first == Code::CurrentLine ? codes[0].second : -1;
        };
        QCOMPARE(picked(app.Column(7000)), 7);
        QCOMPARE(picked(app.Column(7000) + 1), 8);
        app.Chart().SetBarChart(true);
        QCOMPARE(picked(app.Column(7250)), 7); // a bar is 500 ms wide
        QCOMPARE(picked(app.Column(7250) + 1), 8);
    }

    void ALinePickedWithTheMouseNeverMovesTheWindow()
    {
        CChartApp app(SecondLines(100));
        QVERIFY(app.Chart().ZoomInTime());
        const CChartRange view = View(app);
        QTest::mouseClick(&app.Chart(), Qt::LeftButton, {}, app.InPlot(app.PlotRight() - 60));
        const int line = app.Codes().back().second;
        app.Chart().OnMeasureGraph(Code::CurrentLine, line);
        QCOMPARE(app.Chart().Model().m_currentLine, line);
        QCOMPARE(View(app), view);
        app.Chart().OnMeasureGraph(Code::CurrentLine, 30);
        QVERIFY(View(app).start < view.start);
    }

    void RefreshTakesTheNewLinesAndKeepsTheWindow()
    {
        CChartApp app(SecondLines(20));
        CMeasureData more = ChartData(SecondLines(40));
        for (std::size_t i = 20; i < 40; ++i)
            app.m_data.AddRecord(more.GetRecord(i));
        app.m_data.m_firstBreak = 40;
        app.Chart().OnMeasureGraph(Code::Refresh, 0);
        QCOMPARE(app.Chart().Model().Count(), 40);
        QCOMPARE(View(app).Width(), 19'000);
        QVERIFY(app.Bar(Qt::Horizontal).isEnabled());
    }

    void CodesOfMarksPaintAgainAndOthersDoNothing()
    {
        CChartApp app(SecondLines(20));
        QStringList& statuses = app.m_test.m_frame.m_statuses;
        for (const Code code : {Code::Marks, Code::MarksToo}) {
            statuses.clear();
            app.Chart().OnMeasureGraph(code, 0);
            QCOMPARE(statuses.size(), 2);
        }
        statuses.clear();
        for (const Code code :
             {Code::AreaEnded, Code::LineTaken, Code::CornerUsed, Code{0}, Code{9}})
            app.Chart().OnMeasureGraph(code, 3);
        QVERIFY(statuses.isEmpty());
        QCOMPARE(app.Chart().Model().m_currentLine, -1);
        QCOMPARE(app.Codes(), Codes{});
    }

    void CornerButtonsDoTheirWorkAndSaySo()
    {
        CChartApp app(SecondLines(100));
        const int height = app.Chart().height();
        const int bar = height - app.ScrollBarTop();
        const QPoint centre(8, height - bar - 8);
        const QPoint area(8, height - 8);
        const QPoint form(app.Chart().width() - 8, height - 8);
        QTest::mouseClick(&app.Chart(), Qt::LeftButton, {}, form);
        QCOMPARE(app.Codes(), (Codes{{Code::CornerUsed, 0}}));
        QVERIFY(app.Chart().Model().m_barChart);

        // Nothing to go back from: the press falls through, and nothing lies below it.
        QTest::mouseClick(&app.Chart(), Qt::LeftButton, {}, area);
        QCOMPARE(app.Codes(), Codes{});
        QVERIFY(app.Chart().ZoomInTime());
        QTest::mouseClick(&app.Chart(), Qt::LeftButton, {}, area);
        QCOMPARE(app.Codes(), (Codes{{Code::CornerUsed, 0}}));
        QVERIFY(app.Chart().Model().m_window.ShowsAll());
        QVERIFY(!app.Chart().Model().CanDisplayAllArea());

        QTest::mouseClick(&app.Chart(), Qt::LeftButton, {}, centre);
        QCOMPARE(app.Codes(), (Codes{{Code::CornerUsed, 0}}));
        QVERIFY(!app.Chart().Model().CanDisplayInCenter());
        QTest::mouseClick(&app.Chart(), Qt::LeftButton, {}, centre);
        QCOMPARE(app.Codes(), Codes{});
    }

    void CornerButtonsWorkWhileASelectionIsArmed()
    {
        CChartApp app(SecondLines(100));
        const QPoint form(app.Chart().width() - 8, app.Chart().height() - 8);
        QVERIFY(app.Chart().BeginAreaSelection());
        QTest::mouseClick(&app.Chart(), Qt::LeftButton, {}, form);
        QCOMPARE(app.Codes(), (Codes{{Code::CornerUsed, 0}}));
        QVERIFY(app.Chart().Model().m_barChart);
        // It is still armed.
        QVERIFY(!app.Chart().BeginAreaSelection());
        Drag(app, app.Column(60'000), app.Column(20'000));
        QCOMPARE(app.Codes(), (Codes{{Code::AreaEnded, 1}}));
    }

    void ScrollBarsHaveTheirOddNames()
    {
        CChartApp app(SecondLines(20));
        QCOMPARE(app.Chart().findChild<QScrollBar*>(QStringLiteral("IDC_VERT_SCROOL")),
                 &app.Bar(Qt::Vertical));
        QCOMPARE(app.Chart().findChild<QScrollBar*>(QStringLiteral("IDC_HORZ_SCROOL")),
                 &app.Bar(Qt::Horizontal));
    }

    void ASelectionZoomsOnceAndIsOver()
    {
        CChartApp app(SecondLines(100));
        QVERIFY(app.Chart().BeginAreaSelection());
        QVERIFY(!app.Chart().BeginAreaSelection());
        Drag(app, app.Column(60'000), app.Column(20'000));
        QCOMPARE(app.Codes(), (Codes{{Code::AreaEnded, 1}}));
        QVERIFY(std::abs(View(app).start - (ChartStart() + 20'000)) < 200);
        QVERIFY(std::abs(View(app).end - (ChartStart() + 60'000)) < 200);
        QCOMPARE(app.Chart().cursor().shape(), Qt::ArrowCursor);
        QTest::mouseMove(&app.Chart(), app.InPlot(app.PlotLeft() + 20));
        QTest::mouseClick(&app.Chart(), Qt::LeftButton, {}, app.InPlot(app.PlotLeft() + 20));
        QCOMPARE(app.Codes().front().first, Code::CurrentLine);
        QVERIFY(app.Chart().ZoomBack());
        QVERIFY(app.Chart().Model().m_window.ShowsAll());
    }

    void APressOffThePlotLeavesTheSelectionArmed()
    {
        CChartApp app(SecondLines(100));
        QVERIFY(app.Chart().BeginAreaSelection());
        QTest::mouseMove(&app.Chart(), app.InPlot(app.Column(20'000)));
        const QPoint off(app.PlotLeft() - 20, 40);
        QTest::mouseMove(&app.Chart(), off);
        QTest::mouseClick(&app.Chart(), Qt::LeftButton, {}, off);
        QCOMPARE(app.Codes(), Codes{});
        QVERIFY(!app.Chart().BeginAreaSelection());
        QVERIFY(app.Chart().CanRedraw());
    }

    void NothingIsRedrawnFromOutsideWhileAnAreaIsDragged()
    {
        CChartApp app(SecondLines(100));
        app.Chart().ChangeScaleStep(4);
        QVERIFY(app.Chart().BeginAreaSelection());
        QVERIFY(app.Chart().CanRedraw());
        QTest::mousePress(&app.Chart(), Qt::LeftButton, {}, app.InPlot(app.Column(20'000)));
        QVERIFY(!app.Chart().CanRedraw());
        QTest::mouseClick(&app.Chart(), Qt::RightButton, {}, app.InPlot(app.Column(30'000)));
        QVERIFY(!app.Chart().CanRedraw());
        const int scrolled = ScrollY(app);
        Wheel(app, {0, -120});
        QCOMPARE(ScrollY(app), scrolled);
        QCOMPARE(app.Codes(), Codes{});
        QTest::mouseRelease(&app.Chart(), Qt::LeftButton, {}, app.InPlot(app.Column(20'000)));
        QVERIFY(app.Chart().CanRedraw());
    }

    void TheRightButtonCancelsAnArmedSelectionWithoutAMenu()
    {
        CChartApp app(SecondLines(100));
        QVERIFY(app.Chart().BeginAreaSelection());
        QTest::mouseClick(&app.Chart(), Qt::RightButton, {}, app.InPlot(app.Column(20'000)));
        QCOMPARE(app.Codes(), (Codes{{Code::AreaEnded, 1}}));
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QCOMPARE(app.Chart().Model().m_lineFromMouse, false);
        // The same once the pointer was seen on the plot.
        QVERIFY(app.Chart().BeginAreaSelection());
        QTest::mouseMove(&app.Chart(), app.InPlot(app.Column(20'000)));
        QTest::mouseClick(&app.Chart(), Qt::RightButton, {}, app.InPlot(app.Column(20'000)));
        QCOMPARE(app.Codes(), (Codes{{Code::AreaEnded, 1}}));
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QVERIFY(app.Chart().BeginAreaSelection());
        app.Chart().CancelAreaSelection();
        QCOMPARE(app.Codes(), (Codes{{Code::AreaEnded, 1}}));
    }

    void AClickWithoutAMoveEndsTheSelectionAndChangesNothing()
    {
        CChartApp app(SecondLines(100));
        QVERIFY(app.Chart().BeginAreaSelection());
        const CChartRange view = View(app);
        QTest::mouseClick(&app.Chart(), Qt::LeftButton, {}, app.InPlot(app.Column(20'000)));
        QCOMPARE(app.Codes(), (Codes{{Code::AreaEnded, 1}}));
        QCOMPARE(View(app), view);
        QVERIFY(!app.Chart().Model().CanDisplayAllArea());
    }

    void ThePointerCountsOnlyOnThePlot()
    {
        CChartApp app(SecondLines(100));
        QVERIFY(app.Chart().BeginAreaSelection());
        Drag(app, app.Column(90'000), app.Chart().width() - 1);
        QVERIFY(View(app).end <= ChartStart() + 99'000);
        app.Chart().DisplayAllArea();
        QVERIFY(app.Chart().BeginAreaSelection());
        Drag(app, app.Column(10'000), 0);
        QCOMPARE(View(app).start, ChartStart());
        QVERIFY(std::abs(View(app).end - (ChartStart() + 10'000)) < 200);
    }

    void ATooSmallRangeEndsAtTheLargestZoomWhichAllowsNoOther()
    {
        std::vector<ChartLine> lines = SecondLines(20);
        for (ChartLine& line : lines)
            line.ms /= 20;
        CChartApp app(lines);
        QVERIFY(app.Chart().BeginAreaSelection());
        Drag(app, app.Column(400), app.Column(430));
        QCOMPARE(app.Codes(), (Codes{{Code::AreaEnded, 0}}));
        QCOMPARE(View(app).Width(), 100);
        QVERIFY(!app.Chart().BeginAreaSelection());
        QVERIFY(!app.Chart().ZoomInTime());
        QVERIFY(app.Chart().ZoomBack());
        QVERIFY(app.Chart().BeginAreaSelection());
    }

    void ThePointersShapeTellsTheState()
    {
        CChartApp app(SecondLines(100));
        const QPoint off(app.PlotLeft() - 20, 40);
        QCOMPARE(app.Chart().cursor().shape(), Qt::ArrowCursor);
        QVERIFY(app.Chart().BeginAreaSelection());
        QTest::mouseMove(&app.Chart(), off);
        const QImage armedOff = app.Chart().cursor().pixmap().toImage();
        QTest::mouseMove(&app.Chart(), app.InPlot(app.Column(20'000)));
        const QImage armedOn = app.Chart().cursor().pixmap().toImage();
        QTest::mousePress(&app.Chart(), Qt::LeftButton, {}, app.InPlot(app.Column(20'000)));
        const QImage dragging = app.Chart().cursor().pixmap().toImage();
        QVERIFY(!armedOff.isNull() && armedOff != armedOn && armedOn != dragging &&
                dragging != armedOff);
        QTest::mouseRelease(&app.Chart(), Qt::LeftButton, {}, app.InPlot(app.Column(20'000)));
        QCOMPARE(app.Chart().cursor().shape(), Qt::ArrowCursor);
    }

    void TheGaugesThumbIsDraggedToTheNearestStep()
    {
        CChartApp app(SecondLines(20));
        CChartScaleGauge& gauge = Gauge(app);
        QCOMPARE(gauge.width(), 16);
        const QPoint thumb(8, TickRow(gauge, 8) + 5);
        QTest::mousePress(&gauge, Qt::LeftButton, {}, thumb);
        QTest::mouseMove(&gauge, {8, TickRow(gauge, 3) + 5 + 4});
        QCOMPARE(app.Chart().Model().Step(), 0);
        QTest::mouseRelease(&gauge, Qt::LeftButton, {}, {8, TickRow(gauge, 3) + 5 + 4});
        QCOMPARE(app.Chart().Model().Step(), 0); // it is posted
        QCoreApplication::processEvents();
        QCOMPARE(app.Chart().Model().Step(), 5);
    }

    void AClickCloseToATickOfTheGaugeTakesItsStep()
    {
        CChartApp app(SecondLines(20));
        CChartScaleGauge& gauge = Gauge(app);
        QSignalSpy spy(&gauge, &CChartScaleGauge::MeasureGraph);
        QTest::mouseClick(&gauge, Qt::LeftButton, {}, {8, TickRow(gauge, 2) + 12 + 3});
        QCoreApplication::processEvents();
        QCOMPARE(app.Chart().Model().Step(), 6);
        QTest::mouseClick(&gauge, Qt::LeftButton, {}, {8, TickRow(gauge, 4) + 12 + 4});
        QCoreApplication::processEvents();
        QCOMPARE(app.Chart().Model().Step(), 6);
        QCOMPARE(spy.size(), 1);
        // The present step is told again.
        QTest::mouseClick(&gauge, Qt::LeftButton, {}, {8, TickRow(gauge, 2) + 12});
        QCOMPARE(spy.size(), 2);
    }

    void TheVerticalBarMovesBySixteenAndAQuarterOfItWithCtrl()
    {
        CChartApp app(SecondLines(20));
        QVERIFY(!app.Bar(Qt::Vertical).isEnabled());
        app.Chart().ChangeScaleStep(4);
        QScrollBar& bar = app.Bar(Qt::Vertical);
        QVERIFY(bar.isEnabled());
        const int start = ScrollY(app);
        QCOMPARE(bar.value(), start);
        bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(ScrollY(app), start + 16);
        bar.triggerAction(QAbstractSlider::SliderPageStepSub);
        QCOMPARE(ScrollY(app), start + 16 - 64);
        {
            const CCtrlHeld ctrl(app.Chart());
            bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
            QCOMPARE(ScrollY(app), start + 16 - 64 + 4);
            bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
            QCOMPARE(ScrollY(app), start + 16 - 64 + 4 + 16);
        }
        QCOMPARE(bar.value(), ScrollY(app));
        bar.triggerAction(QAbstractSlider::SliderToMinimum);
        QCOMPARE(ScrollY(app), 0);
        bar.triggerAction(QAbstractSlider::SliderSingleStepSub);
        QCOMPARE(ScrollY(app), 0);
        bar.triggerAction(QAbstractSlider::SliderToMaximum);
        QCOMPARE(ScrollY(app), bar.maximum());
        bar.setSliderPosition(1000);
        QCOMPARE(ScrollY(app), 1000);
    }

    void TheHorizontalBarKeepsTheWidthOfTheWindow()
    {
        CChartApp app(SecondLines(100));
        QScrollBar& bar = app.Bar(Qt::Horizontal);
        QVERIFY(!bar.isEnabled());
        QVERIFY(app.Chart().ZoomInTime());
        QVERIFY(bar.isEnabled());
        const CChartRange view = View(app);
        QCOMPARE(bar.value(), view.start - ChartStart());
        const double pixelsPerMs = app.Chart().Model().m_window.m_pixelsPerMs;
        const auto step = static_cast<std::int64_t>(16 / pixelsPerMs + 0.5);
        bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(View(app), (CChartRange{view.start + step, view.end + step}));
        bar.triggerAction(QAbstractSlider::SliderPageStepSub);
        QCOMPARE(View(app).start, view.start + step - 4 * step);
        {
            const CCtrlHeld ctrl(app.Chart());
            const auto small = static_cast<std::int64_t>(4 / pixelsPerMs + 0.5);
            const std::int64_t before = View(app).start;
            bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
            QCOMPARE(View(app).start, before + small);
            bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
            QCOMPARE(View(app).start, before + small + 4 * small);
        }
        QCOMPARE(View(app).Width(), view.Width());
        bar.triggerAction(QAbstractSlider::SliderToMaximum);
        QCOMPARE(View(app).end, ChartStart() + 99'000);
        bar.triggerAction(QAbstractSlider::SliderToMinimum);
        QCOMPARE(View(app).start, ChartStart());
        QCOMPARE(View(app).Width(), view.Width());
    }

    void TheWheelScrolls()
    {
        CChartApp app(SecondLines(100));
        app.Chart().ChangeScaleStep(4);
        QVERIFY(app.Chart().ZoomInTime());
        const int start = ScrollY(app);
        Wheel(app, {0, -120});
        QCOMPARE(ScrollY(app), start + 3 * 16);
        Wheel(app, {0, 120});
        QCOMPARE(ScrollY(app), start);
        const CChartRange view = View(app);
        Wheel(app, {0, -120}, Qt::ShiftModifier);
        QCOMPARE(ScrollY(app), start);
        QVERIFY(View(app).start > view.start);
        Wheel(app, {0, 0});
        QCOMPARE(ScrollY(app), start);
    }

    void ThePopupTakesTheLineUnderThePointerAndCopiesTheGraph()
    {
        CChartApp app(SecondLines(20));
        QSignalSpy chosen(&app.Chart(), &CChartWnd::CommandChosen);
        QTest::mousePress(&app.Chart(), Qt::RightButton, {}, app.InPlot(app.Column(5000) + 1));
        QCOMPARE(app.Codes(), (Codes{{Code::CurrentLine, 5}}));
        QCOMPARE(app.Chart().PopupLine(), 5);
        auto* const menu = app.Chart().findChild<QMenu*>();
        QVERIFY(menu != nullptr && menu->isVisible());
        QCOMPARE(menu->actions().size(), 1);
        QCOMPARE(menu->actions().front()->text(), "&Copy graph");
        menu->actions().front()->trigger();
        QCOMPARE(chosen.size(), 1);
        menu->close();
        QTRY_VERIFY(app.Chart().findChild<QMenu*>() == nullptr);

        QTest::mousePress(&app.Chart(), Qt::RightButton, {}, app.InPlot(app.Column(5500)));
        QCOMPARE(app.Codes(), Codes{});
        QCOMPARE(app.Chart().PopupLine(), -1);
    }

    void ThePopupTakesALineLessThanTwoColumnsOff()
    {
        CChartApp app(SecondLines(20));
        for (const int off : {-2, -1, 0, 1, 2}) {
            const int line = std::abs(off) < 2 ? 5 : -1;
            QTest::mousePress(&app.Chart(), Qt::RightButton, {},
                              app.InPlot(app.Column(5000) + off));
            QCOMPARE(app.Chart().PopupLine(), line);
            QCOMPARE(app.Codes(), line < 0 ? Codes{} : (Codes{{Code::CurrentLine, line}}));
            QVERIFY(app.Chart().Model().m_lineFromMouse);
            QWidget* const menu = QApplication::activePopupWidget();
            QVERIFY(menu != nullptr);
            menu->close();
        }
    }

    void WithoutLinesNothingHappens()
    {
        CChartApp app({});
        QTest::mouseClick(&app.Chart(), Qt::LeftButton, {}, app.InPlot(app.PlotLeft() + 50));
        QTest::mouseClick(&app.Chart(), Qt::RightButton, {}, app.InPlot(app.PlotLeft() + 50));
        QVERIFY(app.Chart().findChild<QMenu*>() == nullptr);
        QCOMPARE(app.Codes(), Codes{});
        QVERIFY(!app.Bar(Qt::Horizontal).isEnabled());
        app.Chart().OnMeasureGraph(Code::CurrentLine, 0);
        app.Chart().OnMeasureGraph(Code::Refresh, 0);
        QCOMPARE(app.Chart().Model().m_currentLine, -1);
    }
};

QTEST_MAIN(InputTest)
#include "InputTest.moc"
