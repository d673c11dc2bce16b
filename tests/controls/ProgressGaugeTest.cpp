#include "controls/ProgressGauge.h"

#include <QTest>

#include <climits>

using namespace skeldon;

/// How much of the progress strip is filled.
class ProgressGaugeTest : public QObject
{
    Q_OBJECT

private slots:
    void PositionIsAbsoluteAndLimited_data();
    void PositionIsAbsoluteAndLimited();
    void RangeIsAbsoluteAndFitsPosition();
    void FilledColumnsFollowPosition_data();
    void FilledColumnsFollowPosition();
};

void ProgressGaugeTest::PositionIsAbsoluteAndLimited_data()
{
    QTest::addColumn<int>("given");
    QTest::addColumn<int>("position");

    QTest::newRow("in range") << 40 << 40;
    QTest::newRow("negative counts as its absolute value") << -40 << 40;
    QTest::newRow("above the range is full") << 101 << 100;
    QTest::newRow("far below is full as well") << -1000 << 100;
    QTest::newRow("lowest number there is") << INT_MIN << 100;
}

void ProgressGaugeTest::PositionIsAbsoluteAndLimited()
{
    QFETCH(int, given);
    QFETCH(int, position);
    ProgressGauge gauge;
    gauge.SetPosition(given);
    QCOMPARE(gauge.position, position);
}

void ProgressGaugeTest::RangeIsAbsoluteAndFitsPosition()
{
    ProgressGauge gauge;
    QCOMPARE(gauge.range, 100);
    gauge.SetPosition(80);
    gauge.SetRange(-50);
    QCOMPARE(gauge.range, 50);
    QCOMPARE(gauge.position, 50);
    gauge.SetRange(INT_MIN);
    QCOMPARE(gauge.range, INT_MAX);
    QCOMPARE(gauge.position, 50);
}

void ProgressGaugeTest::FilledColumnsFollowPosition_data()
{
    QTest::addColumn<int>("range");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("filled");

    QTest::newRow("empty") << 100 << 0 << 366 << 0;
    QTest::newRow("full") << 100 << 100 << 366 << 366;
    QTest::newRow("half") << 100 << 50 << 366 << 183;
    QTest::newRow("cut to whole columns") << 3 << 1 << 100 << 33;
    QTest::newRow("just below full") << 1000000 << 999999 << 366 << 365;
    QTest::newRow("product beyond 32 bits") << INT_MAX << INT_MAX / 2 << 366 << 182;
    QTest::newRow("range 0 is empty at any position") << 0 << 77 << 366 << 0;
    QTest::newRow("narrowest strip") << 100 << 100 << 2 << 2;
}

void ProgressGaugeTest::FilledColumnsFollowPosition()
{
    QFETCH(int, range);
    QFETCH(int, position);
    QFETCH(int, columns);
    QFETCH(int, filled);
    ProgressGauge gauge;
    gauge.SetRange(range);
    gauge.SetPosition(position);
    QCOMPARE(gauge.FilledColumns(columns), filled);
}

QTEST_MAIN(ProgressGaugeTest)
#include "ProgressGaugeTest.moc"
