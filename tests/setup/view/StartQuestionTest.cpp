#include "setup/view/StartQuestion.h"
#include "base/CalendarTime.h"
#include "recorder/RecorderStatus.h"
#include "resources/StringTable.h"

#include <QTest>

using namespace skeldon;

namespace {

const QString Plain = QStringLiteral("Start measuring.\nAre you sure?");
const QString AfterClearing =
    QStringLiteral("Start measuring after clearing the measured KORVA data.\nAre you sure?");
const QString Choice =
    QStringLiteral("Start measuring.\nDo you want to clear the KORVA measured data?");

} // namespace

/// The questions before a start.
class StartQuestionTest : public QObject
{
    Q_OBJECT

private slots:
    void QuestionFollowsWhatTheRecorderHolds_data();
    void QuestionFollowsWhatTheRecorderHolds();
    void StartOptionIsToldWhereItCounts_data();
    void StartOptionIsToldWhereItCounts();
    void AnswerDecidesOverTheData_data();
    void AnswerDecidesOverTheData();
    void QuestionsLeaveRoomForAWord();
    void FittingAsksAndTells_data();
    void FittingAsksAndTells();
    void ReservationBeginsWithItsMinute();
    void PresentSecondCountsAsFuture();
};

void StartQuestionTest::QuestionFollowsWhatTheRecorderHolds_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("limit");
    QTest::addColumn<bool>("isPrompt");
    QTest::addColumn<QString>("text");
    QTest::addColumn<BoxKind>("kind");

    QTest::newRow("empty") << 0 << 0 << true << Plain << BoxKind::NoYes;
    QTest::newRow("less than empty") << -1 << 100 << true << Plain << BoxKind::NoYes;
    QTest::newRow("empty, reserved") << 0 << 100 << false << Plain << BoxKind::NoYes;
    QTest::newRow("no limit") << 100 << 0 << true << Choice << BoxKind::YesNoCancel;
    QTest::newRow("below its limit") << 99 << 100 << true << Choice << BoxKind::YesNoCancel;
    QTest::newRow("at its limit") << 100 << 100 << true << AfterClearing << BoxKind::NoYes;
    QTest::newRow("above its limit") << 101 << 100 << true << AfterClearing << BoxKind::NoYes;
    QTest::newRow("reserved") << 100 << 200 << false << AfterClearing << BoxKind::NoYes;
    QTest::newRow("reserved, no limit") << 100 << 0 << false << AfterClearing << BoxKind::NoYes;
}

void StartQuestionTest::QuestionFollowsWhatTheRecorderHolds()
{
    QFETCH(int, count);
    QFETCH(int, limit);
    QFETCH(bool, isPrompt);
    RecorderStatus recorder;
    recorder.m_count = count;
    recorder.m_countLimit = limit;
    const StartBox box = StartQuestion(recorder, 0, isPrompt);
    QTEST(box.text, "text");
    QTEST(box.kind, "kind");
}

void StartQuestionTest::StartOptionIsToldWhereItCounts_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("option");
    QTest::addColumn<bool>("isPrompt");
    QTest::addColumn<QString>("tail");

    QTest::newRow("delay") << 10 << 5 << true << "\n\n[ Start measuring in 5 seconds ]";
    QTest::newRow("mode") << 50 << 1 << true << "\n\n[ Magnet trigger only on start measuring ]";
    QTest::newRow("at once") << 10 << 0 << true << "";
    QTest::newRow("reserved") << 10 << 5 << false << "";
    QTest::newRow("oldest") << 0 << 5 << true << "";
    QTest::newRow("unknown type") << -2 << 90 << true << "\n\n[ Start measuring in 90 seconds ]";
}

void StartQuestionTest::StartOptionIsToldWhereItCounts()
{
    QFETCH(int, type);
    QFETCH(int, option);
    QFETCH(bool, isPrompt);
    QFETCH(QString, tail);
    RecorderStatus recorder;
    recorder.m_type = type;
    QCOMPARE(StartQuestion(recorder, option, isPrompt).text, Plain + tail);
}

void StartQuestionTest::AnswerDecidesOverTheData_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<BoxKind>("kind");
    QTest::addColumn<int>("clearing"); // -1 for no start

    QTest::newRow("yes") << Answer::Yes << BoxKind::NoYes << 1;
    QTest::newRow("no") << Answer::No << BoxKind::NoYes << -1;
    QTest::newRow("clear") << Answer::Yes << BoxKind::YesNoCancel << 1;
    QTest::newRow("keep") << Answer::No << BoxKind::YesNoCancel << 0;
    QTest::newRow("cancel") << Answer::Cancel << BoxKind::YesNoCancel << -1;
}

void StartQuestionTest::AnswerDecidesOverTheData()
{
    QFETCH(Answer, answer);
    QFETCH(BoxKind, kind);
    const std::optional<bool> clearing = ClearingOf(answer, kind);
    const int given = clearing ? int{*clearing} : -1;
    QTEST(given, "clearing");
}

void StartQuestionTest::QuestionsLeaveRoomForAWord()
{
    for (const StringId question :
         {StringId::AskStart, StringId::AskStartAfterClearing, StringId::AskStartAndClear})
        QVERIFY(Text(question).startsWith(QStringLiteral("Start %smeasuring")));
}

void StartQuestionTest::FittingAsksAndTells_data()
{
    QTest::addColumn<FitCode>("code");
    QTest::addColumn<int>("offered");
    QTest::addColumn<BoxKind>("kind");
    QTest::addColumn<QString>("text");

    QTest::newRow("sampling") << FitCode::SamplingUnusable << 4 << BoxKind::YesNo
                              << "This sampling rate cannot be used with the connected KORVA.\n"
                                 "Will you scan using the standard value 0.0312sec?";
    QTest::newRow("interval") << FitCode::IntervalUnusable << 8 << BoxKind::YesNo
                              << "This recording interval cannot be used with the connected "
                                 "KORVA.\nWill you scan using the standard value 1min?";
    QTest::newRow("threshold") << FitCode::ThresholdUnusable << 0 << BoxKind::YesNo
                               << "This threshold cannot be used with the connected KORVA.\n"
                                  "Will you scan with the threshold value of 0.0G?";
    QTest::newRow("threshold off step")
        << FitCode::ThresholdOffStep << 102 << BoxKind::YesNo
        << "This threshold cannot be used with the connected KORVA.\n"
           "Will you scan using the approximate value 10.2G?";
    QTest::newRow("no hazard") << FitCode::HazardNeedsAlpha << 0 << BoxKind::Warning
                               << "You cannot use the hazard with the connected KORVA.";
    QTest::newRow("hazard") << FitCode::HazardUnusable << 0 << BoxKind::YesNo
                            << "This hazard value cannot be used with the connected KORVA.\n"
                               "Will you cancel the hazard value and scan?";
    QTest::newRow("hazard off step")
        << FitCode::HazardOffStep << 100 << BoxKind::YesNo
        << "This hazard value cannot be used with the connected KORVA.\n"
           "Will you scan using the approximate value 10.0G?";
    QTest::newRow("endless") << FitCode::EndlessNeedsAlpha << 0 << BoxKind::Information
                             << "You cannot use the Endless mode (Cyclic Recording) with the "
                                "connected KORVA.";
    QTest::newRow("buzzer") << FitCode::BuzzerMissing << 0 << BoxKind::Information
                            << "You cannot use the buzzer with the connected KORVA.";
}

void StartQuestionTest::FittingAsksAndTells()
{
    QFETCH(FitCode, code);
    QFETCH(int, offered);
    const StartBox box = BoxOf({code, offered});
    QTEST(box.kind, "kind");
    QTEST(box.text, "text");
}

void StartQuestionTest::ReservationBeginsWithItsMinute()
{
    const CalendarSeconds time = ReserveTime(QDate(2031, 12, 24), QTime(17, 5, 59));
    QCOMPARE(ToLocalFields(time), (CalendarFields{2031, 12, 24, 17, 5, 0}));
}

void StartQuestionTest::PresentSecondCountsAsFuture()
{
    QVERIFY(IsFuture(1000, 999));
    QVERIFY(IsFuture(1000, 1000));
    QVERIFY(!IsFuture(1000, 1001));
}

QTEST_APPLESS_MAIN(StartQuestionTest)
#include "StartQuestionTest.moc"
