#include "ViewApp.h"

#include "dataview/ConditionSummary.h"
#include "dataview/SummaryStrip.h"

#include <QAccessible>
#include <QPainter>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

/// The character that stands before each "@" of two English texts.
const QString NoShape(QChar(0x81));
const QString Odd = NoShape + QLatin1Char('@') + NoShape + QLatin1Char('@');

QString SamplingOf(int row)
{
    ConditionSummary summary;
    summary.sampling = row;
    return SummaryText(summary);
}

QString IntervalOf(int row)
{
    ConditionSummary summary;
    summary.interval = row;
    return SummaryText(summary);
}

} // namespace

/// The line that tells under what conditions the data was measured.
class SummaryTest : public QObject
{
    Q_OBJECT

private slots:
    void NothingKnownIsNoText() { QCOMPARE(SummaryText({}), QString()); }

    void EveryFieldHasItsPlace()
    {
        QCOMPARE(SummaryText(SummaryOf(MeasuredLines(3))),
                 QStringLiteral("    # of Records:3    Sampling:0.0312sec    Interval:15sec"
                                "    Threshold:1.5G    ID:07") +
                     Odd + QStringLiteral("Hazard:30.0G") + Odd + QStringLiteral("Endless:on"));
    }

    void EveryFieldStandsAlone_data()
    {
        QTest::addColumn<int>("field");
        QTest::addColumn<QString>("text");
        QTest::newRow("records") << 0 << "    # of Records:12";
        QTest::newRow("sampling") << 1 << "    Sampling:0.0312sec";
        QTest::newRow("interval") << 2 << "    Interval:30min";
        QTest::newRow("threshold") << 3 << "    Threshold:0.0G";
        QTest::newRow("ID") << 4 << "    ID:05";
        QTest::newRow("hazard") << 5 << Odd + "Hazard:12.3G";
        QTest::newRow("endless") << 6 << Odd + "Endless:on";
    }
    void EveryFieldStandsAlone()
    {
        QFETCH(int, field);
        ConditionSummary summary;
        switch (field) {
        case 0:
            summary.records = 12;
            break;
        case 1:
            summary.sampling = 4;
            break;
        case 2:
            summary.interval = 0;
            break;
        case 3:
            summary.threshold = 0;
            break;
        case 4:
            summary.hostNumber = 5;
            break;
        case 5:
            summary.hazard = 123;
            break;
        default:
            summary.endless = true;
        }
        QTEST(SummaryText(summary), "text");
    }

    void ValuesBelowZeroAreBlank()
    {
        CMeasureData measured = MeasuredLines(1);
        measured.SetSampling(-1);
        measured.SetInterval(-1);
        measured.m_threshold = -1;
        measured.m_hostNumber = -1;
        measured.m_hazard = -1;
        measured.m_endless = false;
        QCOMPARE(SummaryText(SummaryOf(measured)), QStringLiteral("    # of Records:1"));
    }

    void ZeroIsAValueButForEndless()
    {
        CMeasureData measured = MeasuredLines(1);
        measured.m_threshold = 0;
        measured.m_hostNumber = 0;
        measured.m_hazard = 0;
        measured.m_endless = false;
        const QString text = SummaryText(SummaryOf(measured));
        QVERIFY(text.contains(QStringLiteral("    Threshold:0.0G    ID:00")));
        QVERIFY(text.endsWith(Odd + QStringLiteral("Hazard:0.0G")));
    }

    void TraceRowsSaySo()
    {
        QStringList traced;
        for (int row = 0; row < 10; ++row) {
            const QString text = SamplingOf(row);
            QVERIFY(text.startsWith(QStringLiteral("    Sampling:0.")));
            if (text.endsWith(QStringLiteral("sec(trace mode)")))
                traced << QString::number(row);
            else
                QVERIFY(text.endsWith(QStringLiteral("sec")));
        }
        QVERIFY(!traced.isEmpty());
        QVERIFY(!traced.contains(QStringLiteral("4")));
    }

    void IntervalsAreMinutesOrSeconds()
    {
        QCOMPARE(IntervalOf(8), QStringLiteral("    Interval:1min"));
        QCOMPARE(IntervalOf(9), QStringLiteral("    Interval:30sec"));
        QCOMPARE(IntervalOf(14), QStringLiteral("    Interval:1sec"));
    }

    void JapaneseHasWideBlanksBeforeTheLastTwo()
    {
        CViewApp app(QStringLiteral("Japanese"));
        const QString wide(2, QChar(0x3000));
        ConditionSummary summary;
        summary.hazard = 10;
        QVERIFY(SummaryText(summary).startsWith(wide));
        summary = {};
        summary.endless = true;
        QVERIFY(SummaryText(summary).startsWith(wide));
        summary = {};
        summary.records = 3;
        QVERIFY(SummaryText(summary).startsWith(QStringLiteral("    ")));
        QVERIFY(!SummaryText(summary).startsWith(QStringLiteral("     ")));
    }

    void ViewShowsTheSummaryOfWhatWasOpened()
    {
        CViewApp app;
        app.Show();
        QCOMPARE(app.View().Summary(), QString());
        app.OpenLines(4);
        QCOMPARE(app.View().Summary(), SummaryText(SummaryOf(MeasuredLines(4))));
    }

    void ScreenReadersFindTheSummary()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(4);
        const auto* const strip = app.View().findChild<CSummaryStrip*>();
        QVERIFY(strip != nullptr && strip->isVisible());
        QAccessibleInterface* const face =
            QAccessible::queryAccessibleInterface(app.View().findChild<CSummaryStrip*>());
        QCOMPARE(face->role(), QAccessible::StaticText);
        QCOMPARE(face->text(QAccessible::Name), QStringLiteral("Measuring conditions"));
        QVERIFY(face->text(QAccessible::Value).startsWith(QStringLiteral("# of Records:4")));
    }

    void FailedReadBlanksTheSummary()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(4);
        app.Open(app.Path(QStringLiteral("missing.skd")));
        QCOMPARE(app.View().Summary(), QString());
    }

    void CharactersWithoutAShapeAreNotDrawn()
    {
        CViewApp app;
        app.Show({900, 488});
        app.OpenLines(4);
        QString drawn = app.View().Summary();
        QVERIFY(drawn.contains(NoShape));
        drawn.remove(NoShape);
        QImage expected(900, 18, QImage::Format_RGB32);
        expected.fill(QColor(0xEC, 0xE9, 0xD8));
        QPainter painter(&expected);
        QFont font = app.View().font();
        font.setPixelSize(11);
        painter.setFont(font);
        painter.setPen(Qt::black);
        painter.drawText(expected.rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         drawn);
        painter.end();
        const QImage strip = app.Picture().copy(0, 470, 900, 18);
        QCOMPARE(strip.convertToFormat(QImage::Format_RGB32), expected);
    }

    void EmptySummaryLeavesTheStripPlain()
    {
        CViewApp app;
        app.Show();
        const QImage strip = app.Picture().copy(0, 470, 670, 18);
        QImage plain = strip;
        plain.fill(QColor(0xEC, 0xE9, 0xD8));
        QCOMPARE(strip, plain);
    }
};

QTEST_MAIN(SummaryTest)
#include "SummaryTest.moc"
