#include "controls/CableDialog.h"
#include "controls/LcdPanel.h"
#include "controls/RecorderPicture.h"
#include "controls/SkinButton.h"
#include "setup/view/SetupApp.h"

#include <QPushButton>
#include <QTest>

#include <atomic>

using namespace skeldon;
using skeldon::test::CSetupApp;

namespace {

/// A cable that is out, and counts how often that is looked at.
class CCountedCable final : public CCableFinder
{
public:
    explicit CCountedCable(int& looks)
        : m_looks(looks)
    {}
    [[nodiscard]] std::optional<std::string> FindPort() override
    {
        ++m_looks;
        return std::nullopt;
    }

private:
    int& m_looks;
};

/// Whether the read-out of the start option shows pixels of that colour.
bool Shows(CSetupApp& app, const QColor& colour)
{
    const QImage image = app.Panel(SetupPanel::StartOption).grab().toImage();
    for (int y = 18; y < 38; ++y) {
        for (int x = 8; x < 85; ++x) {
            if (image.pixelColor(x, y) == colour)
                return true;
        }
    }
    return false;
}

/// Has the recorder's next report tell that start option.
void GiveStartOption(CSetupApp& app, const std::string& option)
{
    CMeasureCondition condition;
    condition.StartOpt = 10;
    QVERIFY(app.m_app->Link().WriteConditions(condition));
    app.m_change = test::WireChange{"@wait=10", "@wait=" + option};
}

} // namespace

/// Receiving what a recorder holds, and the change of its range.
class RecorderCommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void ReceivedConditionsAreShown();
    void ReceivedConditionsCanBeAdded();
    void IllegalStartOptionBlinksAndIsRepaired();
    void HighStartOptionIsShownAsItIs();
    void RecorderThatDoesNotAnswerIsTold();
    void ConnectionGoneBehindThePredicateIsTold();
    void DisconnectionBlanksTheRecords();
    void RangeChangesToTheOther_data();
    void RangeChangesToTheOther();
    void RangeStaysWithoutAYes();
    void FailedRangeChangeIsTold();
    void RangeIsOfferedWhereThereAreTwo_data();
    void RangeIsOfferedWhereThereAreTwo();
    void CableDialogWaitsForConversations();
    void CableThatIsOutClosesItsDialogAtTheFirstLook();
};

void RecorderCommandsTest::ReceivedConditionsAreShown()
{
    CSetupApp app;
    app.Show();
    app.Play({"--type", "50", "--alpha", "--lines", "123"});
    CMeasureCondition sent;
    sent.SetSampling(9);
    sent.SetInterval(11);
    sent.Threshold = 105;
    sent.SerialNo = 42;
    sent.StartOpt = 33;
    sent.Hazard = 200;
    sent.OverThreshold = true;
    sent.Endless = true;
    sent.Buzzer = true;
    QVERIFY(app.m_app->Link().WriteConditions(sent));
    app.Command(CommandId::ConditionChange);
    QVERIFY(app.State().m_bEditing);
    app.Click(SetupButton::Receive);
    QVERIFY(app.m_prompts->m_shown.empty());
    QVERIFY(!app.State().m_bEditing);
    QVERIFY(app.State().m_current.SameConditions(sent));
    QVERIFY(app.State().m_saved.SameConditions(sent));
    QCOMPARE(app.Panel(SetupPanel::Sampling).Value(), 100);
    QCOMPARE(app.Panel(SetupPanel::Interval).Value(), 15);
    QCOMPARE(app.Panel(SetupPanel::Threshold).Value(), 105);
    QCOMPARE(app.Panel(SetupPanel::Id).Value(), 42);
    QCOMPARE(app.Panel(SetupPanel::StartOption).Value(), 33);
    QCOMPARE(app.Panel(SetupPanel::Hazard).Value(), 200);
    QCOMPARE(app.Panel(SetupPanel::DetectOver).Value(), 1);
    QCOMPARE(app.Panel(SetupPanel::Endless).Value(), 1);
    QCOMPARE(app.Panel(SetupPanel::Buzzer).Value(), 1);
    QCOMPARE(app.Panel(SetupPanel::Records).Value(), 123);
    QVERIFY(!app.Panel(SetupPanel::Records).IsBlank());
    QVERIFY(app.Can(CommandId::StartPrompt));
}

void RecorderCommandsTest::ReceivedConditionsCanBeAdded()
{
    CSetupApp app;
    app.Show();
    app.Play({"--type", "10"});
    app.State().m_strName = QStringLiteral("received");
    QVERIFY(!app.Can(CommandId::AddProfile));
    app.Command(CommandId::Receive);
    QVERIFY(app.Can(CommandId::AddProfile));
    app.m_prompts->m_answers = {Answer::Yes};
    app.Command(CommandId::AddProfile);
    QCOMPARE(app.m_folder.Files(), QStringList("received.skp"));
}

void RecorderCommandsTest::IllegalStartOptionBlinksAndIsRepaired()
{
    CSetupApp app;
    app.m_folder.WriteProfile("crate", "SerialNo=5\r\n");
    app.Show();
    app.Play({"--type", "10"});
    app.ClickLine(0);
    // More than any recorder should tell: the number has no sign on the wire.
    GiveStartOption(app, "4294967291");
    int reds = 0;
    int blanks = 0;
    bool wasBlank = true;
    QTimer look;
    connect(&look, &QTimer::timeout, &look, [&] {
        const CLcdPanel& panel = app.Panel(SetupPanel::StartOption);
        const bool isRed = Shows(app, QColor(255, 0, 0));
        if (panel.IsBlank() && !wasBlank)
            ++blanks;
        if (isRed && wasBlank)
            ++reds;
        wasBlank = panel.IsBlank();
        app.Command(CommandId::ConditionChange);
    });
    look.start(20);
    wasBlank = true;
    QElapsedTimer clock;
    clock.start();
    app.Command(CommandId::Receive);
    QVERIFY(clock.elapsed() >= 3400);
    look.stop();
    QCOMPARE(reds, 5);
    QCOMPARE(blanks, 5);
    QCOMPARE(app.m_frame.m_status,
             QStringLiteral("Start option is out of supported range. Default value is set"));
    QCOMPARE(app.State().m_current.StartOpt, 0);
    QCOMPARE(app.State().m_saved.StartOpt, -5);
    QCOMPARE(app.Panel(SetupPanel::StartOption).Value(), 0);
    QVERIFY(!app.Panel(SetupPanel::StartOption).IsBlank());
    QVERIFY(Shows(app, QColor(0, 255, 0)));
    QVERIFY(!app.State().m_bEditing);
    // The repair is a change, which can be stored or taken back.
    QVERIFY(app.Button(SetupButton::Update).isEnabled());
    app.Command(CommandId::ConditionChange);
    QVERIFY(app.Button(SetupButton::Restore).isEnabled());
}

void RecorderCommandsTest::HighStartOptionIsShownAsItIs()
{
    CSetupApp app;
    app.Show();
    app.Play({"--type", "10"});
    GiveStartOption(app, "97");
    app.Command(CommandId::Receive);
    QCOMPARE(app.Panel(SetupPanel::StartOption).Value(), 97);
    QCOMPARE(app.State().m_current.StartOpt, 97);
}

void RecorderCommandsTest::RecorderThatDoesNotAnswerIsTold()
{
    CSetupApp app;
    app.Show();
    app.Play({"--type", "10"});
    app.Unplug();
    app.m_clock.m_speed = 100;
    app.Command(CommandId::Receive);
    QCOMPARE(app.m_prompts->Boxes(),
             QStringList("Failed to receive the values of KORVA settings."));
    QCOMPARE(app.m_prompts->m_shown.front().boxKind, BoxKind::Warning);
    QVERIFY(!app.State().m_bConditionsValid);
    QVERIFY(app.Panel(SetupPanel::Id).IsBlank());
}

void RecorderCommandsTest::ConnectionGoneBehindThePredicateIsTold()
{
    CSetupApp app;
    app.Show();
    app.Command(CommandId::Receive);
    QVERIFY(app.m_prompts->m_shown.empty());
    app.m_frame.m_answers = {true, false};
    app.Command(CommandId::Receive);
    QCOMPARE(app.m_prompts->Boxes(), QStringList("Can not connect to KORVA."));
}

void RecorderCommandsTest::DisconnectionBlanksTheRecords()
{
    CSetupApp app;
    app.Show();
    app.Play({"--type", "10", "--lines", "5"});
    QVERIFY(app.Form().m_picture->IsConnected());
    app.Command(CommandId::Receive);
    QCOMPARE(app.Panel(SetupPanel::Records).Value(), 5);
    app.View().OnUpdate(DocumentHint::Connection, 1);
    QVERIFY(!app.Panel(SetupPanel::Records).IsBlank());
    QVERIFY(app.Button(SetupButton::Receive).isEnabled());
    QVERIFY(app.Button(SetupButton::StartPrompt).isEnabled());
    app.m_frame.m_connected = false;
    app.View().OnUpdate(DocumentHint::Connection, 0);
    QVERIFY(app.Panel(SetupPanel::Records).IsBlank());
    QVERIFY(!app.Panel(SetupPanel::Id).IsBlank());
    QVERIFY(!app.Form().m_picture->IsConnected());
    QVERIFY(!app.Button(SetupButton::Receive).isEnabled());
    QVERIFY(!app.Button(SetupButton::StartPrompt).isEnabled());
}

void RecorderCommandsTest::RangeChangesToTheOther_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("level");
    QTest::addColumn<QByteArray>("wire");
    QTest::newRow("1") << "1"
                       << "2.0" << QByteArray("m02");
    QTest::newRow("2") << "2"
                       << "1.0" << QByteArray("m01");
    QTest::newRow("10") << "10"
                        << "20.0" << QByteArray("m20");
    QTest::newRow("20") << "20"
                        << "10.0" << QByteArray("m10");
}

void RecorderCommandsTest::RangeChangesToTheOther()
{
    QFETCH(QString, type);
    QFETCH(QString, level);
    CSetupApp app;
    app.Show();
    app.Play({"--type", type.toStdString(), "--alpha"});
    QVERIFY(app.Can(CommandId::ChangeScanningLevel));
    app.m_prompts->m_answers = {Answer::Yes};
    app.Command(CommandId::ChangeScanningLevel);
    QCOMPARE(app.m_prompts->Boxes(),
             QStringList({QStringLiteral("Will you change the maximum scanning level of KORVA to "
                                         "%1G?")
                              .arg(level),
                          "The maximum scanning level of KORVA has been changed successfully."}));
    QCOMPARE(app.m_prompts->m_shown[0].boxKind, BoxKind::YesNo);
    QCOMPARE(app.m_prompts->m_shown[1].boxKind, BoxKind::Warning);
    QFETCH(QByteArray, wire);
    QCOMPARE(app.Sent(wire), wire);
    QVERIFY(app.m_app->Link().m_rangeChanged);
}

void RecorderCommandsTest::RangeStaysWithoutAYes()
{
    CSetupApp app;
    app.Show();
    app.Play({"--type", "10", "--alpha"});
    app.m_prompts->m_answers = {Answer::No};
    app.Command(CommandId::ChangeScanningLevel);
    QCOMPARE(app.m_prompts->m_shown.size(), std::size_t{1});
    QCOMPARE(app.Sent(), QByteArray());
}

void RecorderCommandsTest::FailedRangeChangeIsTold()
{
    CSetupApp app;
    app.Show();
    app.Play({"--type", "10", "--alpha"});
    app.Unplug();
    app.m_clock.m_speed = 100;
    app.m_prompts->m_answers = {Answer::Yes};
    app.Command(CommandId::ChangeScanningLevel);
    QCOMPARE(app.m_prompts->Boxes().back(),
             QStringLiteral("An error has occurred while changing the maximum scanning level of "
                            "KORVA."));
    QCOMPARE(app.m_prompts->m_shown.back().boxKind, BoxKind::Warning);
    QVERIFY(!app.m_app->Link().m_rangeChanged);
}

void RecorderCommandsTest::RangeIsOfferedWhereThereAreTwo_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isAlpha");
    QTest::addColumn<bool>("isOffered");
    for (const int type : {-2, 0, 1, 2, 3, 5, 10, 20, 50}) {
        const bool hasTwo = type == 1 || type == 2 || type == 10 || type == 20;
        QTest::addRow("%d", type) << type << false << false;
        QTest::addRow("%d alpha", type) << type << true << hasTwo;
    }
}

void RecorderCommandsTest::RangeIsOfferedWhereThereAreTwo()
{
    QFETCH(int, type);
    QFETCH(bool, isAlpha);
    QFETCH(bool, isOffered);
    CSetupApp app;
    app.Show();
    app.m_app->m_link.m_type = type;
    app.m_app->m_link.m_alphaFirmware = isAlpha;
    QVERIFY(!app.Can(CommandId::ChangeScanningLevel));
    app.m_frame.m_connected = true;
    QCOMPARE(app.Can(CommandId::ChangeScanningLevel), isOffered);
    app.Command(CommandId::ChangeScanningLevel);
    QCOMPARE(!app.m_prompts->m_shown.empty(), isOffered);
}

void RecorderCommandsTest::CableDialogWaitsForConversations()
{
    CSetupApp app;
    CCableDialog dialog(app.m_app->m_link);
    std::atomic<bool> mayEnd = false;
    bool isEnded = false;
    QVERIFY(app.m_app->Conversation().RunBeside(
        [&mayEnd] {
            while (!mayEnd)
                QThread::msleep(1);
        },
        [&isEnded] { isEnded = true; }));
    dialog.show();
    // Two ticks go by without a look at the port.
    QTest::qWait(2 * CCableDialog::IntervalMs + 100);
    QVERIFY(dialog.isVisible());
    mayEnd = true;
    QTRY_VERIFY(isEnded);
    QTRY_VERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
}

void RecorderCommandsTest::CableThatIsOutClosesItsDialogAtTheFirstLook()
{
    CSetupApp app;
    int looks = 0;
    CRecorderLink link(std::make_unique<CCountedCable>(looks), nullptr, app.m_clock);
    QElapsedTimer stood;
    stood.start();
    CCableDialog dialog(link);
    app.m_onCable = [](CCableDialog&) {};
    QCOMPARE(dialog.exec(), static_cast<int>(QDialog::Accepted));
    QCOMPARE(looks, 1);
    // The timer may be early by a twentieth, and by its rounding to whole milliseconds.
    QVERIFY(stood.elapsed() >= CCableDialog::IntervalMs * 9 / 10);
}

QTEST_MAIN(RecorderCommandsTest)
#include "RecorderCommandsTest.moc"
