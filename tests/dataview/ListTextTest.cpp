#include "dataview/ListText.h"
#include "ViewApp.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace skeldon;
using namespace skeldon::test;

namespace {

QString CellOf(const CMeasureRecord& line, ListColumn column, DispUnit unit = DispUnit::G)
{
    CMeasureData measured;
    measured.AddRecord(line);
    measured.m_hasTemperature = true;
    measured.m_hasHumidity = true;
    return CListText(unit).CellText(measured, 0, column);
}

CMeasureRecord LineOf(double x, double temperature = 0.0, double humidity = 0.0)
{
    CMeasureRecord line{CalendarSeconds{0}};
    line.SetValues(FromLocalFields({2009, 5, 1, 2, 3, 4}), 5, x, 0.0, 0.0, temperature, humidity);
    return line;
}

} // namespace

/// The texts of the measured list's cells, and the widths of its columns.
class ListTextTest : public QObject
{
    Q_OBJECT

private slots:
    void NumberCountsFromOneInFivePlaces()
    {
        const CMeasureData measured = MeasuredLines(12);
        CListText text;
        QCOMPARE(text.CellText(measured, 0, ListColumn::Number), QStringLiteral("    1 "));
        QCOMPARE(text.CellText(measured, 11, ListColumn::Number), QStringLiteral("   12 "));
    }

    void NumberAboveFivePlacesStandsWhole()
    {
        CMeasureData measured;
        measured.SetSize(123456);
        QCOMPARE(CListText().CellText(measured, 123455, ListColumn::Number),
                 QStringLiteral("123456 "));
    }

    void DateAndTimeAreLocalWithZerosBefore()
    {
        const CMeasureRecord line = LineOf(0.0);
        QCOMPARE(CellOf(line, ListColumn::Date), QStringLiteral("2009/05/01 "));
        QCOMPARE(CellOf(line, ListColumn::Time), QStringLiteral("02:03:04.005 "));
    }

    void AccelerationFollowsTheUnit_data()
    {
        QTest::addColumn<int>("unit");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("G") << 0 << 1.2345 << "1.234 ";
        QTest::newRow("negative G") << 0 << -0.19 << "-0.190 ";
        QTest::newRow("large G") << 0 << 100.0 << "100.000 ";
        QTest::newRow("m/s2 is 9.8, not standard gravity") << 1 << 1.0 << "9.8000 ";
        QTest::newRow("negative m/s2") << 1 << -2.5 << "-24.5000 ";
        QTest::newRow("Gal is 980, in at least six places") << 2 << 1.0 << "980.00 ";
        QTest::newRow("small Gal is filled up with blanks") << 2 << 0.01 << "  9.80 ";
        QTest::newRow("Gal of nothing") << 2 << 0.0 << "  0.00 ";
    }
    void AccelerationFollowsTheUnit()
    {
        QFETCH(int, unit);
        QFETCH(double, value);
        QTEST(CellOf(LineOf(value), ListColumn::X, static_cast<DispUnit>(unit)), "text");
    }

    void EveryAxisHasItsColumn()
    {
        const CMeasureRecord line = LineAfter(0);
        QCOMPARE(CellOf(line, ListColumn::X), QStringLiteral("1.234 "));
        QCOMPARE(CellOf(line, ListColumn::Y), QStringLiteral("0.500 "));
        QCOMPARE(CellOf(line, ListColumn::Z), QStringLiteral("-0.250 "));
        QCOMPARE(CellOf(line, ListColumn::Resultant), QStringLiteral("1.355 "));
    }

    void TemperatureHasOneDecimal()
    {
        QCOMPARE(CellOf(LineOf(0.0, 23.44), ListColumn::Temperature), QStringLiteral("23.4 "));
        QCOMPARE(CellOf(LineOf(0.0, -5.0), ListColumn::Temperature), QStringLiteral("-5.0 "));
    }

    void TemperatureBelowThreePlacesIsNotFilledUp()
    {
        QCOMPARE(CellOf(LineOf(0.0, 5.0), ListColumn::Temperature), QStringLiteral("5.0 "));
    }

    void HumidityIsCutToAWholeNumber()
    {
        QCOMPARE(CellOf(LineOf(0.0, 0.0, 45.99), ListColumn::Humidity), QStringLiteral("45 "));
        QCOMPARE(CellOf(LineOf(0.0, 0.0, -0.9), ListColumn::Humidity), QStringLiteral("0 "));
    }

    void ValuesOutOfEveryRangeHaveATextToo()
    {
        const double infinite = std::numeric_limits<double>::infinity();
        QCOMPARE(CellOf(LineOf(0.0, 0.0, 1e300), ListColumn::Humidity),
                 QStringLiteral("2147483647 "));
        QCOMPARE(CellOf(LineOf(0.0, 0.0, std::nan("")), ListColumn::Humidity),
                 QStringLiteral("0 "));
        QCOMPARE(CellOf(LineOf(infinite), ListColumn::X), QStringLiteral("inf "));
        QVERIFY(
            CellOf(LineOf(1e300), ListColumn::X, DispUnit::Gal).endsWith(QStringLiteral(".00 ")));
    }

    void ColumnsWithoutAQuantityAreEmpty()
    {
        CMeasureData measured = MeasuredLines(1);
        measured.m_hasTemperature = false;
        measured.m_hasHumidity = false;
        CListText text;
        QCOMPARE(text.CellText(measured, 0, ListColumn::Temperature), QString());
        QCOMPARE(text.CellText(measured, 0, ListColumn::Humidity), QString());
        measured.m_hasHumidity = true;
        QCOMPARE(text.CellText(measured, 0, ListColumn::Humidity), QStringLiteral("45 "));
    }

    void NineColumnsHaveTheirWidths()
    {
        QList<int> widths;
        for (int i = 0; i < ListColumnCount; ++i)
            widths << DefaultColumnWidth(static_cast<ListColumn>(i));
        QCOMPARE(widths, (QList<int>{55, 85, 85, 65, 65, 65, 65, 65, 65}));
    }

    void WidthsThatNobodyCanUseAreNotTaken_data()
    {
        QTest::addColumn<int>("stored");
        QTest::addColumn<int>("used");
        QTest::newRow("none") << 0 << 85;
        QTest::newRow("negative") << -1 << 85;
        QTest::newRow("a million") << 1000000 << 85;
        QTest::newRow("too narrow to take hold of") << 7 << 85;
        QTest::newRow("narrow") << 8 << 8;
        QTest::newRow("wide") << 2000 << 2000;
        QTest::newRow("too wide") << 2001 << 85;
    }
    void WidthsThatNobodyCanUseAreNotTaken()
    {
        QFETCH(int, stored);
        QTEST(UsableColumnWidth(ListColumn::Date, stored), "used");
    }
};

QTEST_GUILESS_MAIN(ListTextTest)
#include "ListTextTest.moc"
