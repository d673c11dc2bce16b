#include "ChartApp.h"

#include "chart/view/ChartWords.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

using namespace skeldon;
using namespace skeldon::test;

namespace {

constexpr ChartLine Line{0, 10.0, -10.25, 20.0, 24.0, 60.04, 33.6, 0};

} // namespace

/// What the chart says to those who can not see it.
class WordsTest : public QObject
{
    Q_OBJECT

private slots:
    void WithoutACurrentLineThereIsNothingToTell()
    {
        CChartApp app(SecondLines(20, Line));
        QCOMPARE(CurrentLineWords(app.Chart().Model()), QStringLiteral("no current line"));
    }

    void TheCurrentLineIsToldWithItsTimeAndItsValues()
    {
        std::vector<ChartLine> lines = SecondLines(20, Line);
        lines[6].ms += 7;
        CChartApp app(lines);
        app.Chart().OnMeasureGraph(MeasureGraphCode::CurrentLine, 6);
        QCOMPARE(CurrentLineWords(app.Chart().Model()),
                 QStringLiteral("line 7, 2009/05/01 12:30:21.007, X axis 10.000 G, Y axis -10.250 "
                                "G, Z axis 20.000 G, Resultant 24.000 G, Temperature 60.0 C, "
                                "Humidity 33 %"));
    }

    void OnlyWhatIsDrawnIsTold()
    {
        CChartApp app(SecondLines(20, Line));
        app.Chart().OnMeasureGraph(MeasureGraphCode::CurrentLine, 0);
        app.ShowAlone(Series::Humidity);
        QVERIFY(CurrentLineWords(app.Chart().Model()).endsWith(", Humidity 33 %"));
        QVERIFY(!CurrentLineWords(app.Chart().Model()).contains("axis"));
        app.m_data.m_hasHumidity = false;
        QCOMPARE(CurrentLineWords(app.Chart().Model()),
                 QStringLiteral("line 1, 2009/05/01 12:30:15.000"));
    }

    void AccelerationsAreToldInTheUnitShown()
    {
        CChartApp app(SecondLines(20, Line));
        app.Chart().OnMeasureGraph(MeasureGraphCode::CurrentLine, 3);
        app.ShowAlone(Series::Y);
        app.Chart().SetDisplayUnit(DisplayUnit::MetresPerSecond2);
        QVERIFY(CurrentLineWords(app.Chart().Model()).endsWith(", Y axis -100.4500 m/s^2"));
        app.Chart().SetDisplayUnit(DisplayUnit::Gal);
        QVERIFY(CurrentLineWords(app.Chart().Model()).endsWith(", Y axis -10045.00 Gal"));
    }

    void ScreenReadersHearTheNameAndTheLine()
    {
        CChartApp app(SecondLines(20, Line));
        QAccessibleInterface* const chart = QAccessible::queryAccessibleInterface(&app.Chart());
        QCOMPARE(chart->role(), QAccessible::Chart);
        QCOMPARE(chart->text(QAccessible::Name), QStringLiteral("Chart of the measured data"));
        app.Chart().OnMeasureGraph(MeasureGraphCode::CurrentLine, 11);
        QVERIFY(chart->text(QAccessible::Description).startsWith("line 12, "));
        QCOMPARE(chart->text(QAccessible::Value), chart->text(QAccessible::Description));
    }

    void TheChartItselfTakesNoKeys()
    {
        CChartApp app(SecondLines(20, Line));
        QCOMPARE(app.Chart().focusPolicy(), Qt::NoFocus);
        app.Chart().OnMeasureGraph(MeasureGraphCode::CurrentLine, 4);
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down})
            QTest::keyClick(&app.Chart(), key);
        QCOMPARE(app.Chart().Model().m_currentLine, 4);
        QCOMPARE(app.Codes(), (std::vector<std::pair<MeasureGraphCode, int>>{}));
    }

    void CornerButtonsSayWhatTheyDo()
    {
        CChartApp app(SecondLines(20, Line));
        const int bar = app.Chart().height() - app.ScrollBarTop();
        const auto help = [&](QPoint at) {
            QToolTip::hideText();
            QHelpEvent event(QEvent::ToolTip, at, app.Chart().mapToGlobal(at));
            QCoreApplication::sendEvent(&app.Chart(), &event);
            return QToolTip::isVisible() ? QToolTip::text() : QString();
        };
        const int height = app.Chart().height();
        QCOMPARE(help({8, height - bar - 8}), QStringLiteral("Display in center"));
        QCOMPARE(help({8, height - 8}), QStringLiteral("Display all area"));
        QCOMPARE(help({app.Chart().width() - 8, height - 8}),
                 QStringLiteral("Line chart or bar chart"));
    }
};

QTEST_MAIN(WordsTest)
#include "WordsTest.moc"
