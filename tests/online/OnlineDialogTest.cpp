#include "OnlineApp.h"
#include "StreamRecorder.h"

#include "controls/SkinButton.h"
#include "online/OnlineCounter.h"
#include "online/OnlineDialog.h"
#include "resources/Pictures.h"

#include <QAccessible>
#include <QLabel>
#include <QTest>
#include <QWindow>

using namespace skeldon;
using namespace skeldon::test;

namespace {

const std::string Sample = "G010203\r";

/// The same bytes again and again.
CStreamRecorder::Source Endless(std::string piece)
{
    return [piece = std::move(piece)] { return piece; };
}

/// A piece, and then nothing more.
CStreamRecorder::Source Once(std::string piece)
{
    return [piece = std::move(piece)]() mutable { return std::exchange(piece, {}); };
}

std::string Repeated(const std::string& text, int count)
{
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

/// The dialog as the data view runs it, with its seconds in the hands of the test.
class CRun
{
public:
    explicit CRun(COnlineApp& app)
        : m_app(app)
        , m_dialog(m_data, nullptr)
    {}

    /// Shows the window and waits until the stream is under way, or could not be started.
    [[nodiscard]] bool Start()
    {
        m_dialog.open();
        return QTest::qWaitFor([this] {
            return !m_dialog.m_totalText->GetText().isEmpty() &&
                   !m_app.m_app->Conversation().IsUnderWay();
        });
    }

    /// Waits for the end of the stream and has the dialog see it.
    [[nodiscard]] bool End()
    {
        if (!QTest::qWaitFor([this] { return m_app.Link().m_threadDone.load(); }))
            return false;
        m_dialog.OnSecond();
        return !m_dialog.isVisible();
    }

    /// The same where nothing comes for 15 seconds.
    [[nodiscard]] bool EndBySilence()
    {
        return QTest::qWaitFor([this] {
                   m_app.m_clock.MoveOn(CRecorderTransport::TimeoutMs);
                   return m_app.Link().m_threadDone.load();
               }) &&
               End();
    }

    COnlineApp& m_app;
    CMeasureData m_data;
    COnlineDialog m_dialog;
};

} // namespace

/// The window of the online recording and what it does with the link.
class OnlineDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void RecordsBySecondsOfItsOwn()
    {
        COnlineApp app;
        app.PlugIn({"--type", "qm70", "--time-scale", "4"});
        app.Set("OnlineSecond", 2);
        CMeasureData data;
        COnlineDialog dialog(data, nullptr);
        QStringList counted;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            const QString text = dialog.m_elapsedText->GetText();
            if (counted.isEmpty() || counted.back() != text)
                counted << text;
        });
        watch.start(5);
        QCOMPARE(dialog.exec(), static_cast<int>(QDialog::Accepted));
        if (counted.last() != dialog.m_elapsedText->GetText())
            counted << dialog.m_elapsedText->GetText();
        // Nothing stands there at first, and the first second is shown as 0.
        QVERIFY(counted.size() >= 2);
        for (int i = 1; i < counted.size(); ++i)
            QCOMPARE(counted[i], QString::number(i - 1));
        QCOMPARE(dialog.m_totalText->GetText(), QStringLiteral("2"));
        QCOMPARE(data.GetSize(), std::size_t{400});
        QVERIFY(!app.Link().m_timedOut);
        QVERIFY(!app.Link().m_busy);
        QVERIFY(!app.Link().IsOpen());
        QVERIFY(!data.m_hasTemperature);
        QVERIFY(!data.m_hasHumidity);
        for (std::size_t i = 0; i < data.GetSize(); ++i) {
            const CMeasureRecord line = data.GetRecord(i);
            const auto elapsed = static_cast<std::int64_t>(i) * 5;
            QCOMPARE(line.m_time, app.Link().m_onlineStart + elapsed / 1000);
            QCOMPARE(line.m_msec, static_cast<std::uint16_t>(elapsed % 1000));
        }
        QCOMPARE(app.Heard(), QStringLiteral("m x #"));
    }

    void TimeComesFromTheSettings_data()
    {
        QTest::addColumn<int>("setting");
        QTest::addColumn<int>("seconds");
        QTest::newRow("none") << -1 << 30;
        QTest::newRow("zero") << 0 << 1;
        QTest::newRow("one") << 1 << 1;
        QTest::newRow("two") << 2 << 2;
        QTest::newRow("too much") << 10'000 << 4999;
    }

    void TimeComesFromTheSettings()
    {
        QFETCH(int, setting);
        QFETCH(int, seconds);
        COnlineApp app;
        CStreamRecorder recorder(Endless(Sample));
        QVERIFY(app.Attach(recorder.Port()));
        if (setting >= 0)
            app.Set("OnlineSecond", setting);
        CRun run(app);
        QVERIFY(run.Start());
        QCOMPARE(run.m_dialog.m_totalText->GetText(), QString::number(seconds));
        QCOMPARE(app.Link().m_onlineLimit, static_cast<std::uint32_t>(seconds * 200));
        run.m_dialog.reject();
        QVERIFY(run.End());
    }

    void CancelEndsTheStreamAtItsNextLine_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("click") << 0;
        QTest::newRow("Escape") << 1;
        QTest::newRow("Enter") << 2;
        QTest::newRow("Space") << 3;
        QTest::newRow("window closed") << 4;
    }

    void CancelEndsTheStreamAtItsNextLine()
    {
        QFETCH(int, way);
        COnlineApp app;
        CStreamRecorder recorder(Endless(Sample));
        QVERIFY(app.Attach(recorder.Port()));
        app.Set("OnlineSecond", 4999);
        CRun run(app);
        QVERIFY(run.Start());
        QVERIFY(QTest::qWaitForWindowActive(&run.m_dialog));
        QTRY_VERIFY(app.Link().m_onlineLines > 100);
        run.m_dialog.OnSecond();
        QVERIFY(!app.Link().m_stopRequest);
        switch (way) {
        case 0:
            QTest::mouseClick(run.m_dialog.m_cancel, Qt::LeftButton);
            break;
        case 1:
            QTest::keyClick(run.m_dialog.windowHandle(), Qt::Key_Escape);
            break;
        case 2:
            QTest::keyClick(run.m_dialog.windowHandle(), Qt::Key_Return);
            break;
        case 3:
            QTest::keyClick(run.m_dialog.windowHandle(), Qt::Key_Space);
            break;
        default:
            run.m_dialog.close();
        }
        QVERIFY(app.Link().m_stopRequest);
        // The window stays until its next second.
        QVERIFY(run.m_dialog.isVisible());
        QVERIFY(run.End());
        QCOMPARE(run.m_data.GetSize(), std::size_t{app.Link().m_onlineLines});
        QVERIFY(run.m_data.GetSize() > 100);
        QVERIFY(!app.Link().m_timedOut);
        QTRY_COMPARE(recorder.Heard(), std::string("mx#"));
    }

    void CancelBeforeTheStartIsNotForgotten()
    {
        COnlineApp app;
        CStreamRecorder recorder(Endless(Sample));
        QVERIFY(app.Attach(recorder.Port()));
        app.Set("OnlineSecond", 4999);
        CRun run(app);
        run.m_dialog.open();
        run.m_dialog.reject();
        QVERIFY(run.m_dialog.isVisible());
        QTRY_VERIFY(!run.m_dialog.m_totalText->GetText().isEmpty());
        QVERIFY(run.End());
        QVERIFY(run.m_data.GetSize() < 999'800);
    }

    void SecondsDuringTheStartAreNotCounted()
    {
        COnlineApp app;
        CStreamRecorder recorder(Endless(Sample));
        QVERIFY(app.Attach(recorder.Port()));
        CRun run(app);
        run.m_dialog.open();
        // Waking the recorder takes 300 ms, in which the windows live on.
        int seconds = 0;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            if (app.m_app->Conversation().IsUnderWay()) {
                ++seconds;
                run.m_dialog.OnSecond();
            }
        });
        watch.start(5);
        QTRY_VERIFY(!run.m_dialog.m_totalText->GetText().isEmpty());
        QVERIFY(!app.m_app->Conversation().IsUnderWay());
        watch.stop();
        QVERIFY(seconds > 1);
        QVERIFY(run.m_dialog.isVisible());
        QCOMPARE(run.m_dialog.m_elapsedText->GetText(), QString());
        run.m_dialog.OnSecond();
        QCOMPARE(run.m_dialog.m_elapsedText->GetText(), QStringLiteral("0"));
        run.m_dialog.OnSecond();
        QCOMPARE(run.m_dialog.m_elapsedText->GetText(), QStringLiteral("1"));
        run.m_dialog.reject();
        QVERIFY(run.End());
    }

    void ComingBackFromTheTaskBarStartsNothing()
    {
        COnlineApp app;
        CStreamRecorder recorder(Endless(Sample));
        QVERIFY(app.Attach(recorder.Port()));
        app.Set("OnlineSecond", 4999);
        CRun run(app);
        QVERIFY(run.Start());
        run.m_dialog.OnSecond();
        run.m_dialog.OnSecond();
        QCOMPARE(run.m_dialog.m_elapsedText->GetText(), QStringLiteral("1"));
        app.Set("OnlineSecond", 30); // what a start would read
        run.m_dialog.windowHandle()->setWindowState(Qt::WindowMinimized);
        QCoreApplication::processEvents();
        QVERIFY(run.m_dialog.isMinimized());
        run.m_dialog.windowHandle()->setWindowState(Qt::WindowNoState);
        QCoreApplication::processEvents();
        QTest::qWait(150); // longer than the timer of the start
        QCOMPARE(run.m_dialog.m_totalText->GetText(), QStringLiteral("4999"));
        run.m_dialog.reject();
        QVERIFY(run.End());
    }

    void FailedStartEndsAtTheFirstSecondWithNoLines()
    {
        COnlineApp app;
        // Lines of a transfer before do not count.
        app.Link().m_onlineLines = 77;
        CRun run(app);
        run.m_data.SetSize(5);
        QVERIFY(run.Start());
        QVERIFY(app.Link().m_threadDone);
        QVERIFY(run.m_dialog.isVisible());
        run.m_dialog.OnSecond();
        QVERIFY(!run.m_dialog.isVisible());
        QVERIFY(run.m_data.IsEmpty());
        QVERIFY(!app.Link().m_timedOut);
        QVERIFY(!app.Link().m_busy);
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
    }

    void SilenceIsToldAndEndsWithAnError()
    {
        COnlineApp app;
        CStreamRecorder recorder(Once("02\r" + Repeated(Sample, 50)));
        QVERIFY(app.Attach(recorder.Port()));
        CRun run(app);
        QVERIFY(run.Start());
        QTRY_COMPARE(app.Link().m_onlineLines.load(), 50U);
        run.m_dialog.OnSecond();
        QVERIFY(!run.m_dialog.m_waitText->isVisible());
        run.m_dialog.OnSecond();
        QVERIFY(run.m_dialog.m_waitText->isVisible());
        // There is no next line at which the stream could end.
        run.m_dialog.reject();
        run.m_dialog.OnSecond();
        QVERIFY(run.m_dialog.isVisible());
        QVERIFY(run.EndBySilence());
        QVERIFY(app.Link().m_timedOut);
        QCOMPARE(run.m_data.GetSize(), std::size_t{50});
        // The recorder is left streaming.
        QCOMPARE(recorder.Heard(), std::string("mx"));
    }

    void NothingAtAllIsToldFromTheFirstSecondOn()
    {
        COnlineApp app;
        CStreamRecorder recorder(Once({}));
        QVERIFY(app.Attach(recorder.Port()));
        CRun run(app);
        QVERIFY(run.Start());
        QVERIFY(!run.m_dialog.m_waitText->isVisible());
        run.m_dialog.OnSecond();
        QVERIFY(run.m_dialog.m_waitText->isVisible());
        QCOMPARE(run.m_dialog.m_waitText->text(), QStringLiteral("Waiting for KORVA..."));
        QVERIFY(run.EndBySilence());
        QVERIFY(app.Link().m_timedOut);
        QVERIFY(run.m_data.IsEmpty());
    }

    void GarbageBetweenTheSamplesIsRunOver()
    {
        COnlineApp app;
        CStreamRecorder recorder(
            Once("\r" + Repeated("\x01~zz\xFFG010203!\n\r", 30) + Repeated("\r\n", 200)));
        QVERIFY(app.Attach(recorder.Port()));
        app.Link().m_countsPerG = 1;
        app.Set("OnlineSecond", 1);
        CRun run(app);
        QVERIFY(run.Start());
        QVERIFY(run.End());
        QCOMPARE(run.m_data.GetSize(), std::size_t{200});
        QCOMPARE(run.m_data.GetRecord(29).m_x, 1.0);
        QCOMPARE(run.m_data.GetRecord(29).m_y, 2.0);
        QCOMPARE(run.m_data.GetRecord(29).m_z, 3.0);
        // The lines that had no sample stay lines of the present time.
        QCOMPARE(run.m_data.GetRecord(30).m_x, 0.0);
        QCOMPARE(run.m_data.GetRecord(199).m_z, 0.0);
    }

    void StreamBeyondTheLimitIsCutThere()
    {
        COnlineApp app;
        CStreamRecorder recorder(Endless(Sample));
        QVERIFY(app.Attach(recorder.Port()));
        app.Set("OnlineSecond", 1);
        CRun run(app);
        QVERIFY(run.Start());
        QVERIFY(run.End());
        QCOMPARE(run.m_data.GetSize(), std::size_t{200});
        QVERIFY(!app.Link().m_timedOut);
        QTRY_COMPARE(recorder.Heard(), std::string("mx#"));
    }

    void MonitorsButtonsRestMeanwhile()
    {
        COnlineApp app;
        CStreamRecorder recorder(Endless(Sample));
        QVERIFY(app.Attach(recorder.Port()));
        const CMonitorDialog& monitor = app.MakeMonitor();
        QVERIFY(monitor.m_copy->isEnabled());
        CRun run(app);
        QVERIFY(run.Start());
        QVERIFY(!monitor.m_copy->isEnabled());
        run.m_dialog.reject();
        QVERIFY(run.End());
        QVERIFY(monitor.m_copy->isEnabled());
    }

    void WindowHasTheSizeOfItsPictureInTheMiddleOfItsOwner()
    {
        COnlineApp app;
        QWidget owner;
        owner.setGeometry(100, 100, 500, 400);
        owner.show();
        QVERIFY(QTest::qWaitForWindowExposed(&owner));
        CMeasureData data;
        COnlineDialog dialog(data, &owner);
        dialog.open();
        QCOMPARE(dialog.size(), QSize(216, 92));
        QVERIFY(dialog.isModal());
        QVERIFY(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
        const QPoint off = dialog.geometry().center() - owner.geometry().center();
        QVERIFY(off.manhattanLength() <= 2);
    }

    void CountersStandRightAlignedInTheirColour()
    {
        COnlineApp app;
        CMeasureData data;
        COnlineDialog dialog(data, nullptr);
        dialog.show();
        dialog.m_elapsedText->SetText(QStringLiteral("12"));
        const QImage ground = Picture(PictureId::OnlineBack, 1);
        QImage picture = dialog.grab().toImage();
        const auto inkIn = [&](const QRect& part, std::optional<QRgb> ink = {}) {
            int count = 0;
            for (int y = part.top(); y <= part.bottom(); ++y) {
                for (int x = part.left(); x <= part.right(); ++x) {
                    const QRgb seen = picture.pixel(x, y);
                    count += seen != ground.pixel(x, y) && seen == ink.value_or(seen) ? 1 : 0;
                }
            }
            return count;
        };
        QVERIFY(inkIn({160, 10, 22, 12}, qRgb(0x73, 0x81, 0xD7)) > 4);
        QCOMPARE(inkIn({138, 10, 20, 12}), 0);
        // No total before the start; the unit is there.
        QCOMPARE(inkIn({138, 24, 44, 14}), 0);
        QVERIFY(inkIn({186, 10, 20, 28}) > 4);
        dialog.m_totalText->SetText(QStringLiteral("4999"));
        picture = dialog.grab().toImage();
        QVERIFY(inkIn({138, 24, 44, 14}) > 20);
        // Nothing reaches out of the glass.
        QCOMPARE(inkIn({0, 0, 136, 46}), 0);
        QCOMPARE(inkIn({207, 0, 9, 46}), 0);
    }

    void CountersAreReadOut()
    {
        COnlineApp app;
        CMeasureData data;
        COnlineDialog dialog(data, nullptr);
        dialog.m_elapsedText->SetText(QStringLiteral("12"));
        QAccessibleInterface* const face =
            QAccessible::queryAccessibleInterface(dialog.m_elapsedText);
        QCOMPARE(face->role(), QAccessible::StaticText);
        QCOMPARE(face->text(QAccessible::Name), QStringLiteral("Elapsed seconds"));
        QCOMPARE(face->text(QAccessible::Value), QStringLiteral("12"));
        QCOMPARE(dialog.m_cancel->text(), QStringLiteral("Cancel"));
    }
};

QTEST_MAIN(OnlineDialogTest)
#include "OnlineDialogTest.moc"
