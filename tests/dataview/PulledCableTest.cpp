#include "FrameApp.h"

#include "controls/CableDialog.h"
#include "data/RecordFlags.h"
#include "online/MonitorDialog.h"
#include "setup/view/ReservedStartDialog.h"
#include "setup/view/SetupForm.h"
#include "setup/view/SetupView.h"
#include "support/recorder/CutTalk.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <utility>

using namespace skeldon;
using namespace skeldon::test;

namespace {

const QString CouldNotStart = QStringLiteral("Could not start measuring.");
const QString CouldNotCalibrate = QStringLiteral("Could not start calibrating.");
const QString RangeChanged =
    QStringLiteral("The maximum scanning level of KORVA has been changed successfully.");
const QString RangeFailed =
    QStringLiteral("An error has occurred while changing the maximum scanning level of KORVA.");
const QString NotReceived = QStringLiteral("Failed to receive the values of KORVA settings.");
const QString NotGot = QStringLiteral("Failed to get the data.");
const QString NotRecorded = QStringLiteral("An error has occurred during online recording.");

/// How long the cable is out where it comes back before anybody has looked for it.
constexpr std::int64_t ShortMs = 1000;
constexpr std::int64_t NeverMs = std::int64_t{1} << 50;

constexpr PlayedModel WithData{.type = 10, .alpha = true, .lines = 20};

/// The whole program on a virtual recorder in virtual time. Dialogs of a start are closed with OK.
class CCutApp
{
public:
    explicit CCutApp(const PlayedModel& model)
        : m_played(model)
        , m_app(QStringLiteral("English"), {},
                [this](AppServices& services) {
                    services.finder = m_played.m_recorder.MakeFinder();
                    services.opener = m_played.m_recorder.Opener();
                    services.clock = &m_played.m_clock;
                })
        , m_model(model)
    {
        constexpr int PauseMs = 2;
        m_watch.callOnTimeout(&m_watch, [this] { Look(); });
        m_watch.start(PauseMs);
    }

    bool Start(const QString& view)
    {
        if (!m_app.Start({view, QStringLiteral("-mon")}))
            return false;
        m_app.Frame().Poll().Stop();
        if (!m_app.Connect())
            return false;
        CSetupView& setup = m_app.Frame().SetupView();
        CMeasureCondition condition;
        condition.SerialNo = 7;
        setup.State().TakeEdited(condition);
        setup.Form().ShowConditions(condition);
        setup.RefreshControls();
        return true;
    }

    /// The recorder as it was at the beginning, met by the window anew.
    bool Renew()
    {
        m_played.m_recorder.Pull();
        if (!m_app.Connect(false))
            return false;
        m_played.m_recorder.Replace(m_model.type, m_model.alpha, m_model.lines);
        return PlugAgain();
    }
    bool PlugAgain()
    {
        m_played.PlugAgain();
        return m_app.Connect();
    }

    void Forget()
    {
        m_app.m_prompts->m_shown.clear();
        m_app.m_prompts->m_answers.clear();
        m_cableDialogs = 0;
        m_app.View().Data().StoreSignature();
    }

    [[nodiscard]] bool IsAtRest()
    {
        const bool isInSetup = m_app.Frame().CurrentView() == ViewIndex::Setup;
        return !m_app.m_app->Conversation().IsUnderWay() && !m_app.m_app->Link().m_busy &&
               (isInSetup || m_app.View().CanOperate()) &&
               QGuiApplication::overrideCursor() == nullptr &&
               QApplication::activeModalWidget() == nullptr;
    }

    PlayedRecorder m_played;
    CFrameApp m_app;
    int m_cableDialogs = 0;

private:
    void Look()
    {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (auto* const cable = qobject_cast<CCableDialog*>(dialog)) {
            m_cableDialogs += std::exchange(m_seen, dialog) != dialog ? 1 : 0;
            cable->m_ok->click();
        } else if (auto* const reserved = qobject_cast<CReservedStartDialog*>(dialog)) {
            reserved->m_ok->click();
        } else {
            m_seen = nullptr;
        }
    }

    const PlayedModel m_model;
    QTimer m_watch;
    QPointer<QWidget> m_seen; ///< another one may come to stand in its place
};

/// A conversation of the window's.
struct WindowTalk
{
    QString view = QStringLiteral("-setup"); ///< the word that the program is started with
    std::function<void(CCutApp&)> run;
    /// Looks at what a cable pulled behind so many bytes has left; empty where all is well.
    std::function<QString(CCutApp&, const Wire&, std::size_t bytes)> check;
    /// Looks at a conversation that nobody disturbed.
    std::function<bool(CCutApp&)> isWhole;
    /// Places of its own beside those of every conversation.
    std::function<std::vector<std::size_t>(const Wire&)> places;
    bool isSlow = false; ///< a window that stands for a while: every other place then
};

std::vector<Stage> PlacesOf(const WindowTalk& talk, const Wire& wire)
{
    std::vector<Stage> stages = StagesOf(wire);
    if (talk.places) {
        for (const std::size_t bytes : talk.places(wire))
            stages.push_back({bytes, NameOf(wire, bytes)});
    }
    return stages;
}

/// Pulls the cable at one place, and looks at the window then and when the cable is back.
QString PullOnce(CCutApp& app, const WindowTalk& talk, const Wire& wire, std::size_t bytes)
{
    app.Forget();
    app.m_played.PullAt(bytes);
    talk.run(app);
    if (!app.IsAtRest())
        return QStringLiteral("the window is not at rest");
    if (const QString wrong = talk.check(app, wire, bytes); !wrong.isEmpty())
        return wrong + QStringLiteral("; boxes: ") +
               app.m_app.m_prompts->Boxes().join(QLatin1Char('/'));
    // A port that died is missed by the next look, even where the cable is back.
    const bool isWholeTalk = bytes == wire.bytes.size();
    app.m_app.Frame().Poll().Tick();
    if (!isWholeTalk && app.m_app.Frame().IsConnected())
        return QStringLiteral("the cable is not missed");
    if (!app.PlugAgain())
        return QStringLiteral("the cable is not found again");
    return {};
}

/// Looks at a conversation that nobody disturbs; empty where all is well.
QString RunWhole(CCutApp& app, const WindowTalk& talk)
{
    app.Forget();
    talk.run(app);
    if (!app.IsAtRest())
        return QStringLiteral("the window is not at rest");
    if (talk.isWhole(app))
        return {};
    return QStringLiteral("not whole; wishes for the cable: %1; boxes: %2")
        .arg(app.m_cableDialogs)
        .arg(app.m_app.m_prompts->Boxes().join(QLatin1Char('/')));
}

/// Pulls the cable at every stage, and has it back later or before the window has looked for it.
void PullAtEveryStage(const WindowTalk& talk)
{
    CCutApp app(WithData);
    QVERIFY(app.Start(talk.view));
    app.m_played.m_recorder.KeepWire();
    talk.run(app);
    const Wire wire = app.m_played.m_recorder.GetWire();
    QVERIFY(app.IsAtRest() && talk.isWhole(app));
    bool isOdd = false;
    for (const Stage& stage : PlacesOf(talk, wire)) {
        isOdd = !isOdd;
        for (const bool isBackSoon : {false, true}) {
            if (talk.isSlow && isBackSoon != isOdd)
                continue;
            QVERIFY2(app.Renew(), stage.name.c_str());
            app.m_played.m_recorder.PlugAgainAfter(isBackSoon ? ShortMs : NeverMs);
            const QString wrong = PullOnce(app, talk, wire, stage.bytes);
            QVERIFY2(wrong.isEmpty(),
                     qPrintable(QString::fromStdString(stage.name) + QStringLiteral(": ") + wrong));
            QVERIFY2(app.Renew(), stage.name.c_str());
            if (isBackSoon == isOdd)
                QCOMPARE(QString::fromStdString(stage.name) + RunWhole(app, talk),
                         QString::fromStdString(stage.name));
        }
    }
}

/// The last box, if any.
QString LastBox(CCutApp& app)
{
    const QStringList boxes = app.m_app.m_prompts->Boxes();
    return boxes.isEmpty() ? QString() : boxes.last();
}

/// Whether the last box is this one exactly where it must be.
QString BoxExactlyIf(CCutApp& app, const QString& box, bool isExpected)
{
    if ((LastBox(app) == box) == isExpected)
        return {};
    return isExpected ? QStringLiteral("nothing is told of the failure")
                      : QStringLiteral("a failure is told of");
}

/// A start of any kind, with the answer to its question.
WindowTalk StartTalk(CommandId command, Answer answer)
{
    WindowTalk talk;
    talk.run = [command, answer](CCutApp& app) {
        app.m_app.m_prompts->m_answers = {answer};
        app.m_app.Frame().OnCommand(command);
    };
    talk.check = [](CCutApp& app, const Wire& wire, std::size_t bytes) {
        const bool isStarted = bytes == wire.bytes.size();
        if (app.m_cableDialogs != (isStarted ? 1 : 0))
            return QStringLiteral("the wish for the cable to be pulled: %1 times")
                .arg(app.m_cableDialogs);
        return BoxExactlyIf(app, CouldNotStart, !isStarted);
    };
    talk.isWhole = [](CCutApp& app) { return app.m_cableDialogs == 1; };
    talk.isSlow = true;
    return talk;
}

/// What a download of so many bytes holds.
struct Arrived
{
    bool isAsked = false; ///< the command to send the lines has gone out
    std::size_t lines = 0;
};

Arrived ArrivedOf(const Wire& wire, std::size_t bytes)
{
    const std::size_t get = SentAt(wire, "D");
    // A command with which the cable goes counts as not sent.
    if (bytes <= get)
        return {};
    const std::string text = wire.bytes.substr(get, bytes - get);
    Arrived arrived{true, 0};
    bool isInLine = false;
    for (const char c : text) {
        const bool isDigit = c != '\r' && c != '\n' && c != '#';
        arrived.lines += isDigit && !isInLine ? 1 : 0;
        isInLine = isDigit;
    }
    return arrived;
}

QString CheckDownload(CCutApp& app, const Wire& wire, std::size_t bytes)
{
    const Arrived arrived = ArrivedOf(wire, bytes);
    const std::size_t held = app.m_app.View().Data().GetSize();
    if (held != arrived.lines)
        return QStringLiteral("%1 lines held, %2 arrived").arg(held).arg(arrived.lines);
    const QStringList boxes = app.m_app.m_prompts->Boxes();
    const QString first = boxes.isEmpty() ? QString() : boxes.first();
    const bool isAll = arrived.lines == WithData.lines;
    if (isAll ? boxes.contains(NotGot) : first != NotGot)
        return QStringLiteral("the failure is told of wrongly");
    const bool isUnsaved = app.m_app.View().DataPath() == QStringLiteral("Unsaved");
    return isUnsaved == arrived.isAsked ? QString() : QStringLiteral("the data's name");
}

/// Inside, at the end of and behind the first, a middle and the last line, and before the mark.
std::vector<std::size_t> PlacesInLines(const Wire& wire)
{
    const std::size_t get = SentAt(wire, "D");
    const std::size_t line = (wire.bytes.size() - 1 - get) / WithData.lines;
    std::vector<std::size_t> places;
    for (const std::size_t number : {std::size_t{0}, WithData.lines / 2, WithData.lines - 1}) {
        const std::size_t begin = get + number * line;
        places.insert(places.end(), {begin + 1, begin + line / 2, begin + line - 2,
                                     begin + line - 1, begin + line});
    }
    return places;
}

} // namespace

/// The cable is pulled at every stage of every conversation that the window has, and plugged in
/// again.
class PulledCableTest : public QObject
{
    Q_OBJECT

private slots:
    void InTheLookForTheRecorder()
    {
        CCutApp app(WithData);
        QVERIFY(app.Start(QStringLiteral("-setup")));
        app.m_played.m_recorder.Pull();
        QVERIFY(app.m_app.Connect(false));
        app.m_played.m_recorder.KeepWire();
        QVERIFY(app.PlugAgain());
        const Wire wire = app.m_played.m_recorder.GetWire();
        for (const Stage& stage : StagesOf(wire)) {
            for (const bool isBackSoon : {false, true}) {
                app.m_played.m_recorder.Pull();
                QVERIFY2(app.m_app.Connect(false), stage.name.c_str());
                app.m_app.m_hints.clear();
                app.m_played.m_recorder.PlugAgainAfter(isBackSoon ? ShortMs : NeverMs);
                app.m_played.m_recorder.Plug();
                app.m_played.PullAt(stage.bytes);
                app.m_app.Frame().Poll().Tick();
                QTRY_VERIFY2(app.IsAtRest(), stage.name.c_str());
                // A report that the cable took with it is none.
                const bool isRead = stage.bytes == wire.bytes.size();
                QVERIFY2(app.m_app.Frame().IsConnected() == isRead, stage.name.c_str());
                QVERIFY2(app.m_app.Frame().PaneText(1).isEmpty() != isRead, stage.name.c_str());
                QVERIFY2(app.PlugAgain(), stage.name.c_str());
                QCOMPARE(app.m_app.Frame().PaneText(1), QStringLiteral(" PL20(Max 10.0G) Alpha"));
            }
        }
    }

    void InTheReceptionOfConditions()
    {
        WindowTalk talk;
        talk.run = [](CCutApp& app) { app.m_app.Frame().OnCommand(CommandId::Receive); };
        talk.check = [](CCutApp& app, const Wire& wire, std::size_t bytes) {
            return BoxExactlyIf(app, NotReceived, bytes < wire.bytes.size());
        };
        talk.isWhole = [](CCutApp& app) { return app.m_app.m_prompts->Boxes().isEmpty(); };
        PullAtEveryStage(talk);
    }

    void InAStartThatClears() { PullAtEveryStage(StartTalk(CommandId::StartPrompt, Answer::Yes)); }
    void InAStartThatKeepsTheData()
    {
        PullAtEveryStage(StartTalk(CommandId::StartPrompt, Answer::No));
    }
    void InAReservation() { PullAtEveryStage(StartTalk(CommandId::StartReserved, Answer::Yes)); }

    void InAChangeOfTheRange()
    {
        WindowTalk talk;
        talk.run = [](CCutApp& app) {
            app.m_app.Frame().OnCommand(CommandId::ChangeScanningLevel);
        };
        // An answer counts from its first byte on.
        talk.check = [](CCutApp& app, const Wire& wire, std::size_t bytes) {
            return BoxExactlyIf(app, bytes > SentAt(wire, "20") ? RangeChanged : RangeFailed, true);
        };
        talk.isWhole = [](CCutApp& app) { return LastBox(app) == RangeChanged; };
        PullAtEveryStage(talk);
    }

    void InACalibration()
    {
        WindowTalk talk;
        talk.run = [](CCutApp& app) { app.m_app.Frame().Monitor().m_calibrate->click(); };
        talk.check = [](CCutApp& app, const Wire& wire, std::size_t bytes) {
            const bool isStarted = bytes > SentAt(wire, "w99");
            if (app.m_cableDialogs != (isStarted ? 1 : 0))
                return QStringLiteral("the wish for the cable to be pulled");
            return BoxExactlyIf(app, CouldNotCalibrate, !isStarted);
        };
        talk.isWhole = [](CCutApp& app) { return app.m_cableDialogs == 1; };
        PullAtEveryStage(talk);
    }

    void InACommandOfTheMonitor()
    {
        WindowTalk talk;
        talk.run = [](CCutApp& app) {
            app.m_app.Frame().Monitor().m_command->setText(QStringLiteral("N05"));
            app.m_app.Frame().Monitor().show();
            QTest::keyClick(&app.m_app.Frame().Monitor(), Qt::Key_Return);
        };
        talk.check = [](CCutApp& app, const Wire&, std::size_t) {
            return app.m_app.m_prompts->Boxes().isEmpty() ? QString()
                                                          : QStringLiteral("something is told");
        };
        talk.isWhole = [](CCutApp& app) {
            return app.m_app.m_app->Link().SendCommand("N05") &&
                   app.m_app.m_app->Link().ReadStatus() &&
                   app.m_app.m_app->Link().m_hostNumber == 5;
        };
        PullAtEveryStage(talk);
    }

    void InADownload()
    {
        WindowTalk talk;
        talk.view = QStringLiteral("-display");
        talk.run = [](CCutApp& app) { app.m_app.Frame().OnCommand(CommandId::GetData); };
        talk.check = CheckDownload;
        talk.isWhole = [](CCutApp& app) {
            return app.m_app.View().Data().GetSize() == WithData.lines &&
                   app.m_app.m_prompts->Boxes().isEmpty();
        };
        talk.places = PlacesInLines;
        talk.isSlow = true;
        PullAtEveryStage(talk);
    }

    void InAnOnlineRecording()
    {
        CCutApp app(WithData);
        QVERIFY(app.Start(QStringLiteral("-display")));
        app.m_app.Settings().WriteInt(SystemSection, QStringLiteral("OnlineSecond"), 1);
        constexpr std::size_t LineBytes = 8;
        constexpr std::size_t StartBytes = 3; // wake-up, echo and the command
        // The first end of line only shows where lines begin.
        const std::vector<std::pair<std::size_t, std::size_t>> linesOfBytes = {
            {0, 0},
            {StartBytes, 0},
            {StartBytes + 3 + LineBytes / 2, 0},
            {StartBytes + 3 + 100 * LineBytes + 5, 100},
            {StartBytes + 3 + 200 * LineBytes - 1, 199},
            {StartBytes + 3 + 200 * LineBytes, 200},
        };
        for (const auto& [bytes, lines] : linesOfBytes) {
            app.Forget();
            app.m_played.PullAt(bytes);
            app.m_app.Frame().OnCommand(CommandId::OnlineRecording);
            QVERIFY(app.IsAtRest());
            QCOMPARE(app.m_app.View().Data().GetSize(), lines);
            // A stream that could not be begun is not told of.
            const bool isTold = bytes > StartBytes && lines < 200;
            QCOMPARE(app.m_app.m_prompts->Boxes(),
                     isTold ? QStringList(NotRecorded) : QStringList());
            app.m_app.Frame().Poll().Tick();
            QVERIFY(!app.m_app.Frame().IsConnected());
            QVERIFY(app.PlugAgain());
        }
        app.Forget();
        app.m_app.Frame().OnCommand(CommandId::OnlineRecording);
        QCOMPARE(app.m_app.View().Data().GetSize(), std::size_t{200});
    }
};

QTEST_MAIN(PulledCableTest)
#include "PulledCableTest.moc"
