#include "FrameApp.h"

#include "controls/CableDialog.h"
#include "controls/NameEdit.h"
#include "controls/RecorderPicture.h"
#include "controls/SkinButton.h"
#include "controls/SpinButton.h"
#include "files/DataFile.h"
#include "resources/StringTable.h"
#include "setup/view/ReservedStartDialog.h"
#include "setup/view/SetupForm.h"
#include "setup/view/SetupView.h"

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace skeldon;
using namespace skeldon::test;

namespace {

/// Seconds of the recorder's time in one of the test's. A reservation must still lie ahead when it
/// reaches the recorder, whose clock was set a few commands before.
constexpr int TimeScale = 1000;
constexpr int ReservedTimeScale = 50;
constexpr int ShortestInterval = 14; // row of 1 second

void Click(QWidget& button, int times = 1)
{
    for (int i = 0; i < times; ++i)
        QTest::mouseClick(&button, Qt::LeftButton);
}

/// Does in the dialogs of a start what a user does: takes the time that is proposed, and pulls the
/// cable when asked to.
class CStartDialogs : public QObject
{
public:
    explicit CStartDialogs(CFrameApp& app)
        : m_app(app)
    {
        constexpr int PauseMs = 5;
        m_timer.callOnTimeout(this, [this] { Look(); });
        m_timer.start(PauseMs);
    }

    int m_reservations = 0;
    int m_pulls = 0;

private:
    void Look()
    {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || dialog == m_seen)
            return;
        m_seen = dialog;
        if (auto* const reservation = qobject_cast<CReservedStartDialog*>(dialog)) {
            ++m_reservations;
            reservation->m_ok->click();
        } else if (qobject_cast<CCableDialog*>(dialog) != nullptr) {
            ++m_pulls;
            m_app.Pull();
        }
    }

    CFrameApp& m_app;
    QTimer m_timer;
    QPointer<QWidget> m_seen; ///< another one may come to stand in its place
};

/// Edits conditions on the panel and keeps them as a profile: 0.5 G, a line a second, at once,
/// cyclic, host number 1.
void SetConditions(CFrameApp& app)
{
    const CSetupForm& form = app.Frame().SetupView().Form();
    Click(form.Button(SetupButton::Change));
    Click(form.Spin(SetupStep::ThresholdUp), 5);
    Click(form.Spin(SetupStep::IntervalDown), ShortestInterval);
    Click(form.Spin(SetupStep::StartOptionDown), 5);
    Click(form.Spin(SetupStep::Endless));
    form.m_name->setFocus();
    QTest::keyClicks(form.m_name, QStringLiteral("circle"));
    Click(form.Button(SetupButton::Add));
}

/// Goes to the data view by the button over the recorder's picture.
void GoToData(CFrameApp& app)
{
    const CSetupForm& form = app.Frame().SetupView().Form();
    // From elsewhere, so that the mouse moves even where an earlier test left it.
    for (const QPoint place : {QPoint(-20, -20), QPoint(40, 10)})
        QTest::mouseMove(app.Frame().windowHandle(), form.m_picture->mapTo(&app.Frame(), place));
    QTRY_VERIFY(form.Button(SetupButton::DataDisplay).isVisible());
    Click(form.Button(SetupButton::DataDisplay));
    QCOMPARE(app.Frame().CurrentView(), ViewIndex::Display);
}

/// Whether the data set tells of those conditions.
bool HasConditions(const CMeasureData& data)
{
    return data.m_threshold == 5 && data.GetInterval() == ShortestInterval && data.m_endless &&
           data.m_hostNumber == 1 && data.m_typeNumber == 50;
}

} // namespace

/// From conditions to a file of what was measured by them.
class FullCircleTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("XDG_DATA_HOME", m_home.path().toUtf8()); }

    void ConditionsGoOutAndDataComesBack_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<bool>("isReserved");
        QTest::newRow("at once") << QStringLiteral("English") << false;
        QTest::newRow("reserved") << QStringLiteral("English") << true;
        QTest::newRow("in Japanese") << QStringLiteral("Japanese") << false;
    }

    void ConditionsGoOutAndDataComesBack()
    {
        QFETCH(QString, language);
        QFETCH(bool, isReserved);
        CFrameApp app(language);
        QVERIFY(app.Start({}));
        QCOMPARE(app.Frame().CurrentView(), ViewIndex::Setup);
        const int timeScale = isReserved ? ReservedTimeScale : TimeScale;
        app.PlugIn({"--type", "50", "--alpha", "--lines", "12", "--time-scale",
                    std::to_string(timeScale)});
        QVERIFY(app.Connect());
        SetConditions(app);
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
        QVERIFY(QFile::remove(m_home.filePath(QStringLiteral("SKELDON/Profile/circle.skp"))));

        CStartDialogs dialogs(app);
        app.m_prompts->m_answers = {Answer::Yes};
        if (isReserved)
            app.Frame().OnCommand(CommandId::StartReserved);
        else
            app.Press(Qt::Key_M, Qt::ControlModifier);
        const StringId question =
            isReserved ? StringId::AskStartAfterClearing : StringId::AskStartAndClear;
        QCOMPARE(app.m_prompts->Boxes(), QStringList(Text(question).remove(QStringLiteral("%s"))));
        QCOMPARE(dialogs.m_reservations, isReserved ? 1 : 0);
        QCOMPARE(dialogs.m_pulls, 1);
        QVERIFY(app.Connect(false));

        // The recorder measures alone, three minutes at least, behind the two of the reservation.
        constexpr int LeastSeconds = 180;
        QTest::qWait((LeastSeconds + 120) * 1000 / timeScale);
        app.PlugInAgain();
        QVERIFY(app.Connect());
        GoToData(app);
        app.Press(Qt::Key_D, Qt::ControlModifier);
        const CMeasureData& data = app.View().Data();
        QVERIFY2(data.GetSize() >= LeastSeconds, qPrintable(QString::number(data.GetSize())));
        QVERIFY(HasConditions(data));
        QCOMPARE(data.m_abnormalCount, 0);

        const QString path = app.m_folder.filePath(QStringLiteral("circle.skd"));
        app.m_prompts->m_paths = {path};
        app.Press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(app.Frame().windowTitle(), QStringLiteral("SKELDON Light - circle.skd"));
        CMeasureData read;
        QVERIFY(ReadFile(read, path.toStdString()));
        QCOMPARE(read.GetSize(), data.GetSize());
        QVERIFY(HasConditions(read));
        QCOMPARE(read.Records().back().m_time, data.Records().back().m_time);
    }

private:
    QTemporaryDir m_home;
};

QTEST_MAIN(FullCircleTest)
#include "FullCircleTest.moc"
