#include "controls/CableDialog.h"
#include "controls/LcdPanel.h"
#include "controls/SkinButton.h"
#include "setup/view/SetupApp.h"

#include <QTest>

using namespace skeldon;
using skeldon::test::CSetupApp;

namespace {

/// What a start gives a recorder, and what must come over the wire of it.
struct Fitting
{
    const char* name;
    std::vector<std::string> recorder;
    int threshold;
    int hazard;
    bool endless;
    bool buzzer;
    QByteArray wire;
};

CMeasureCondition ConditionsOf(const Fitting& fitting)
{
    CMeasureCondition condition;
    condition.SetSampling(3);
    condition.SetInterval(8);
    condition.Threshold = fitting.threshold;
    condition.OverThreshold = true;
    condition.SerialNo = 7;
    condition.StartOpt = 0;
    condition.Hazard = fitting.hazard;
    condition.Endless = fitting.endless;
    condition.Buzzer = fitting.buzzer;
    return condition;
}

const std::vector<Fitting>& Fittings()
{
    // Levels near the highest of each model, where the factor shows.
    static const std::vector<Fitting> All = {
        {"oldest", {"oldest"}, 99, 0, false, false, "i3jAd99k1N07"},
        {"oldest alpha", {"oldest", "--alpha"}, 25, 0, true, false, "i3jAd25k1N07Ox00Oz01"},
        {"1", {"1"}, 7, 0, false, true, "i3jAd70k1N07w00z0"},
        {"1 alpha", {"1", "--alpha"}, 9, 9, true, false, "i3jAd90k1N07w00Ox90Oz01z1"},
        {"2", {"2"}, 19, 0, false, false, "i3jAd95k1N07w00z1"},
        {"2 alpha", {"2", "--alpha"}, 3, 15, false, true, "i3jAd15k1N07w00Ox75Oz00z0"},
        {"3", {"3"}, 24, 0, false, true, "i3jAd96k1N07w00z0"},
        {"3 alpha", {"3", "--alpha"}, 24, 20, true, true, "i3jAd96k1N07w00Ox80Oz01z0"},
        {"5", {"5", "--no-buzzer"}, 49, 0, false, false, "i3jAd98k1N07w00"},
        {"5 alpha", {"5", "--alpha"}, 0, 49, false, false, "i3jAd00k1N07w00Ox98Oz00z1"},
        {"10", {"10"}, 99, 0, false, false, "i3jAd99k1N07w00z1"},
        {"10 alpha", {"10", "--alpha"}, 1, 50, true, true, "i3jAd01k1N07w00Ox50Oz01z0"},
        {"20", {"20"}, 198, 0, false, true, "i3jAd99k1N07w00z0"},
        {"20 alpha", {"20", "--alpha"}, 102, 100, true, false, "i3jAd51k1N07w00Ox50Oz01z1"},
        {"50", {"50"}, 490, 0, false, false, "i3jAd98k1N07w00"},
        {"50 alpha", {"50", "--alpha"}, 105, 495, true, true, "i3jAd21k1N07w00Ox99Oz01z0"},
        {"unknown", {"7"}, 99, 0, false, false, "i3jAd99k1N07w00z1"},
        {"unknown alpha", {"7", "--alpha"}, 99, 0, true, false, "i3jAd99k1N07w00Ox00Oz01z1"},
    };
    return All;
}

std::vector<std::string> Options(const Fitting& fitting, std::initializer_list<std::string> more)
{
    std::vector<std::string> options = {"--type"};
    options.insert(options.end(), fitting.recorder.begin(), fitting.recorder.end());
    options.insert(options.end(), more);
    return options;
}

const Fitting& Find(const char* name)
{
    for (const Fitting& fitting : Fittings()) {
        if (std::string(fitting.name) == name)
            return fitting;
    }
    throw std::invalid_argument(name);
}

/// What a question says in its second line and offers.
const QString Sure = QStringLiteral("Start measuring.\nAre you sure?");
const QString SureToClear =
    QStringLiteral("Start measuring after clearing the measured KORVA data.\nAre you sure?");
const QString WantToClear =
    QStringLiteral("Start measuring.\nDo you want to clear the KORVA measured data?");

} // namespace

/// The way of a start from the button to the wire.
class StartTest : public QObject
{
    Q_OBJECT

private slots:
    void EveryRecorderGetsItsCommands_data();
    void EveryRecorderGetsItsCommands();
    void RefusedStartSendsNothing_data();
    void RefusedStartSendsNothing();
    void StartOptionIsToldAndSent();
    void SnapshotOfTheConditionsIsSent();
    void TemplateStartsWithoutHostNumber();
    void StartLeavesTheViewAsItIs();

private:
    /// One start; gives what was sent, and waits for `wire`.
    static QByteArray Start(CSetupApp& app, CommandId command, Answer answer,
                            const QString& question, const QByteArray& wire);
};

QByteArray StartTest::Start(CSetupApp& app, CommandId command, Answer answer,
                            const QString& question, const QByteArray& wire)
{
    app.m_prompts->m_shown.clear();
    app.m_prompts->m_answers = {answer};
    app.m_cableDialogs = 0;
    app.Command(command);
    if (app.m_prompts->Boxes() != QStringList(question))
        return "boxes: " + app.m_prompts->Boxes().join('/').toUtf8();
    if (app.m_cableDialogs != 1)
        return "no dialog about the cable";
    return app.Sent(wire);
}

void StartTest::EveryRecorderGetsItsCommands_data()
{
    QTest::addColumn<int>("index");
    for (std::size_t i = 0; i < Fittings().size(); ++i)
        QTest::newRow(Fittings()[i].name) << static_cast<int>(i);
}

void StartTest::EveryRecorderGetsItsCommands()
{
    QFETCH(int, index);
    const Fitting& fitting = Fittings()[static_cast<std::size_t>(index)];
    const QByteArray kept = "m" + fitting.wire + "mt";
    const QByteArray cleared = "m" + fitting.wire + "ms2031 03/04 05:06:07t";
    const QByteArray reserved = cleared + "ml03/04 05:08";
    CSetupApp app;
    app.Show();
    app.m_clock.m_now = FromLocalFields({2031, 3, 4, 5, 6, 7});
    app.Load(ConditionsOf(fitting));

    // Empty.
    app.Play(Options(fitting, {"--lines", "0"}));
    QCOMPARE(Start(app, CommandId::StartPrompt, Answer::Yes, Sure, cleared), cleared);
    QCOMPARE(Start(app, CommandId::StartReserved, Answer::Yes, Sure, reserved), reserved);

    // Partly filled. What the last status told stays true until the next one.
    app.Play(Options(fitting, {"--lines", "40"}));
    QCOMPARE(Start(app, CommandId::StartPrompt, Answer::No, WantToClear, kept), kept);
    QVERIFY(app.m_app->Link().ReadStatus());
    QCOMPARE(app.m_app->Link().m_count, 40);
    QCOMPARE(app.Sent("mp"), QByteArray("mp"));
    QCOMPARE(Start(app, CommandId::StartPrompt, Answer::Yes, WantToClear, cleared), cleared);
    QCOMPARE(Start(app, CommandId::StartReserved, Answer::Yes, SureToClear, reserved), reserved);
    QVERIFY(app.m_app->Link().ReadStatus());
    QCOMPARE(app.m_app->Link().m_count, 0);

    // Full.
    app.Play(Options(fitting, {"--lines", "40", "--capacity", "40"}));
    QCOMPARE(Start(app, CommandId::StartPrompt, Answer::Yes, SureToClear, cleared), cleared);
    QCOMPARE(Start(app, CommandId::StartReserved, Answer::Yes, SureToClear, reserved), reserved);
}

void StartTest::RefusedStartSendsNothing_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("capacity");
    QTest::addColumn<CommandId>("command");
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<BoxKind>("kind");
    using enum CommandId;
    QTest::newRow("empty") << 0 << 100 << StartPrompt << Answer::No << BoxKind::NoYes;
    QTest::newRow("empty, reserved") << 0 << 100 << StartReserved << Answer::No << BoxKind::NoYes;
    QTest::newRow("cancelled") << 40 << 100 << StartPrompt << Answer::Cancel
                               << BoxKind::YesNoCancel;
    QTest::newRow("reserved") << 40 << 100 << StartReserved << Answer::No << BoxKind::NoYes;
    QTest::newRow("full") << 40 << 40 << StartPrompt << Answer::No << BoxKind::NoYes;
    QTest::newRow("full, reserved") << 40 << 40 << StartReserved << Answer::No << BoxKind::NoYes;
}

void StartTest::RefusedStartSendsNothing()
{
    QFETCH(int, lines);
    QFETCH(int, capacity);
    QFETCH(CommandId, command);
    QFETCH(Answer, answer);
    CSetupApp app;
    app.Show();
    app.Load(ConditionsOf(Find("10")));
    app.Play(Options(Find("10"),
                     {"--lines", std::to_string(lines), "--capacity", std::to_string(capacity)}));
    app.m_prompts->m_answers = {answer};
    app.Command(command);
    QCOMPARE(app.m_prompts->m_shown.size(), std::size_t{1});
    QTEST(app.m_prompts->m_shown.front().boxKind, "kind");
    QCOMPARE(app.m_cableDialogs, 0);
    QCOMPARE(app.Sent(), QByteArray());
}

void StartTest::StartOptionIsToldAndSent()
{
    CSetupApp app;
    app.Show();
    app.m_clock.m_now = FromLocalFields({2031, 3, 4, 5, 6, 7});
    CMeasureCondition condition = ConditionsOf(Find("10"));
    condition.StartOpt = 5;
    app.Load(condition);
    app.Play(Options(Find("10"), {}));
    QCOMPARE(Start(app, CommandId::StartPrompt, Answer::Yes,
                   Sure + QStringLiteral("\n\n[ Start measuring in 5 seconds ]"),
                   QByteArray("mi3jAd99k1N07w05z1ms2031 03/04 05:06:07t")),
             QByteArray("mi3jAd99k1N07w05z1ms2031 03/04 05:06:07t"));
    QCOMPARE(Start(app, CommandId::StartReserved, Answer::Yes, Sure,
                   QByteArray("mi3jAd99k1N07w05z1ms2031 03/04 05:06:07tml03/04 05:08")),
             QByteArray("mi3jAd99k1N07w05z1ms2031 03/04 05:06:07tml03/04 05:08"));
}

void StartTest::SnapshotOfTheConditionsIsSent()
{
    CSetupApp app;
    app.Show();
    app.m_clock.m_now = FromLocalFields({2031, 3, 4, 5, 6, 7});
    app.Load(ConditionsOf(Find("10")));
    app.Play(Options(Find("10"), {}));
    // The conditions change while the commands go out.
    app.DuringTheTalk([&app] { app.State().m_current.Threshold = 1; });
    app.m_prompts->m_answers = {Answer::Yes};
    app.Command(CommandId::StartPrompt);
    QCOMPARE(app.State().m_current.Threshold, 1);
    QCOMPARE(app.Sent("mi3jAd99k1N07w00z1ms2031 03/04 05:06:07t"),
             QByteArray("mi3jAd99k1N07w00z1ms2031 03/04 05:06:07t"));
}

void StartTest::TemplateStartsWithoutHostNumber()
{
    CSetupApp app;
    app.m_folder.WriteTemplate("sea", "SerialNo=7\r\nSampling=2\r\nStartOpt=0\r\n");
    app.Show();
    app.m_clock.m_now = FromLocalFields({2031, 3, 4, 5, 6, 7});
    app.Play(Options(Find("10"), {}));
    app.Click(SetupButton::Template);
    app.ClickLine(0);
    const QByteArray wire = "mi5j^d00k0N00w00z1ms2031 03/04 05:06:07t";
    QCOMPARE(Start(app, CommandId::StartPrompt, Answer::Yes, Sure, wire), wire);
}

void StartTest::StartLeavesTheViewAsItIs()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=7\r\nStartOpt=0\r\n");
    app.Show();
    app.Play(Options(Find("10"), {}));
    app.ClickLine(0);
    app.Click(SetupButton::Change);
    app.Press(SetupStep::ThresholdUp);
    const CMeasureCondition current = app.State().m_current;
    const CMeasureCondition saved = app.State().m_saved;
    // Edit mode may be on.
    app.m_prompts->m_answers = {Answer::Yes};
    app.Click(SetupButton::StartPrompt);
    QCOMPARE(app.m_cableDialogs, 1);
    QVERIFY(app.State().m_bEditing);
    QVERIFY(app.State().m_current.SameConditions(current));
    QVERIFY(app.State().m_saved.SameConditions(saved));
    QCOMPARE(app.Lines(), QStringList("07 crate"));
    QCOMPARE(app.State().m_nListSel, 0);
    QVERIFY(app.Button(SetupButton::Update).isEnabled());
}

QTEST_MAIN(StartTest)
#include "StartTest.moc"
