#include "setup/view/ReservedStartDialog.h"
#include "setup/view/SetupApp.h"

#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimeEdit>

using namespace skeldon;
using skeldon::test::CSetupApp;

/// The dialog that asks for the time of a reserved start.
class ReservedStartDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void TwoMinutesAheadAreProposed();
    void ProposalMayLieInTheNextYear();
    void OkFollowsTheTime();
    void PresentMinuteLiesInThePast();
    void TimeThatPassesMeanwhileIsRefused();
    void StartIsTheBeginningOfTheMinute();
};

void ReservedStartDialogTest::TwoMinutesAheadAreProposed()
{
    CSetupApp app;
    app.m_clock.m_now = FromLocalFields({2031, 3, 4, 5, 6, 7});
    const CReservedStartDialog dialog;
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Reserved measurement start"));
    QCOMPARE(dialog.m_date->date(), QDate(2031, 3, 4));
    QCOMPARE(dialog.m_time->displayFormat(), QStringLiteral("HH:mm"));
    QCOMPARE(dialog.m_time->text(), QStringLiteral("05:08"));
    QVERIFY(dialog.m_ok->isEnabled());
    QCOMPARE(dialog.findChild<QGroupBox*>()->title(), QStringLiteral("Start date and time"));
    QStringList labels;
    for (const QLabel* const label : dialog.findChildren<QLabel*>())
        labels << label->text();
    labels.sort();
    QCOMPARE(labels, QStringList({"&Date :", "&Time :", "Start option is invalid."}));
}

void ReservedStartDialogTest::ProposalMayLieInTheNextYear()
{
    CSetupApp app;
    app.m_clock.m_now = FromLocalFields({2031, 12, 31, 23, 59, 0});
    const CReservedStartDialog dialog;
    QCOMPARE(dialog.m_date->date(), QDate(2032, 1, 1));
    QCOMPARE(dialog.m_time->text(), QStringLiteral("00:01"));
}

void ReservedStartDialogTest::OkFollowsTheTime()
{
    CSetupApp app;
    app.m_clock.m_now = FromLocalFields({2031, 3, 4, 5, 6, 7});
    CReservedStartDialog dialog;
    dialog.show();
    dialog.m_time->setTime(QTime(5, 5));
    QVERIFY(!dialog.m_ok->isEnabled());
    dialog.m_time->setTime(QTime(5, 7));
    QVERIFY(dialog.m_ok->isEnabled());
    dialog.m_date->setDate(QDate(2031, 3, 3));
    QVERIFY(!dialog.m_ok->isEnabled());
    dialog.m_date->setDate(QDate(2032, 3, 3));
    QVERIFY(dialog.m_ok->isEnabled());
    // By keys: the hours go down below the present one.
    dialog.m_date->setDate(QDate(2031, 3, 4));
    dialog.m_time->setFocus();
    dialog.m_time->setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClick(dialog.m_time, Qt::Key_Down);
    QVERIFY(!dialog.m_ok->isEnabled());
    QTest::keyClick(dialog.m_time, Qt::Key_Up);
    QVERIFY(dialog.m_ok->isEnabled());
}

void ReservedStartDialogTest::PresentMinuteLiesInThePast()
{
    CSetupApp app;
    app.m_clock.m_now = FromLocalFields({2031, 3, 4, 5, 6, 7});
    CReservedStartDialog dialog;
    dialog.m_time->setTime(QTime(5, 6));
    QVERIFY(!dialog.IsFuture());
    QVERIFY(!dialog.m_ok->isEnabled());
    app.m_clock.m_now = FromLocalFields({2031, 3, 4, 5, 6, 0});
    QVERIFY(dialog.IsFuture());
}

void ReservedStartDialogTest::TimeThatPassesMeanwhileIsRefused()
{
    CSetupApp app;
    app.m_clock.m_now = FromLocalFields({2031, 3, 4, 5, 6, 7});
    CReservedStartDialog dialog;
    dialog.show();
    app.m_clock.m_now = FromLocalFields({2031, 3, 4, 5, 8, 1});
    QTest::mouseClick(dialog.m_ok, Qt::LeftButton);
    QCOMPARE(app.m_prompts->Boxes(), QStringList("Reservation date should be in the future."));
    QCOMPARE(app.m_prompts->m_shown.front().boxKind, BoxKind::Warning);
    QVERIFY(!dialog.m_ok->isEnabled());
    QVERIFY(dialog.isVisible());
    dialog.m_time->setTime(QTime(5, 9));
    QVERIFY(dialog.m_ok->isEnabled());
    QTest::mouseClick(dialog.m_ok, Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
    QCOMPARE(app.m_prompts->m_shown.size(), std::size_t{1});
}

void ReservedStartDialogTest::StartIsTheBeginningOfTheMinute()
{
    CSetupApp app;
    app.m_clock.m_now = FromLocalFields({2031, 3, 4, 5, 6, 59});
    const CReservedStartDialog dialog;
    QCOMPARE(ToLocalFields(dialog.StartTime()), (CalendarFields{2031, 3, 4, 5, 8, 0}));
}

QTEST_MAIN(ReservedStartDialogTest)
#include "ReservedStartDialogTest.moc"
