#include "OnlineApp.h"
#include "StreamRecorder.h"

#include "online/MonitorList.h"
#include "online/OnlineCounter.h"
#include "online/OnlineDialog.h"
#include "recorder/ReadBack.h"

#include <QTest>

#include <array>
#include <cstdio>

using namespace skeldon;
using namespace skeldon::test;

namespace {

/// Runs the dialog to the end of the stream.
bool Record(COnlineApp& app, CMeasureData& data)
{
    COnlineDialog dialog(data, nullptr);
    dialog.open();
    constexpr int LongestMs = 120'000;
    const bool isEnded = QTest::qWaitFor(
        [&] { return !dialog.m_totalText->GetText().isEmpty() && app.Link().m_threadDone; },
        LongestMs);
    dialog.OnSecond();
    return isEnded && !dialog.isVisible();
}

/// The signed bytes of a line by its number: all lines of the longest recording differ.
std::array<int, 3> CountsOf(int line)
{
    const auto byte = [](int value) {
        return static_cast<int>(static_cast<std::int8_t>(value & 0xFF));
    };
    return {byte(line >> 16), byte(line >> 8), byte(line)};
}

/// Keeps the bytes that arrive.
class CKeptTraffic final : public CTrafficSink
{
public:
    explicit CKeptTraffic(std::string& bytes)
        : m_bytes(bytes)
    {}
    void ReportCommand(std::string_view text) override { m_bytes.append(text) += '\r'; }
    void ReportBytes(std::string_view bytes) override { m_bytes += bytes; }
    void SetEnabled(bool /*enabled*/) override {}
    void ShowMonitor() override {}

private:
    std::string& m_bytes;
};

/// Reads the recorder back while the windows live.
void ReadBack(COnlineApp& app, CMeasureData& data)
{
    CRecorderLink& link = app.Link();
    const int expected = link.StartDownload();
    link.SetWhileWaiting([] { QCoreApplication::processEvents(); });
    ReadLines(link, expected, data, nullptr);
    link.SetWhileWaiting({});
    link.FinishDownload(data);
}

} // namespace

/// Long transfers through the windows.
class StreamTest : public QObject
{
    Q_OBJECT

private slots:
    void LongestRecordingLosesNoLine()
    {
        COnlineApp app;
        int next = 0;
        CStreamRecorder recorder([&next] {
            std::string piece = next == 0 ? "01\r" : "";
            std::array<char, 16> line{};
            for (int i = 0; i < 500; ++i) {
                std::snprintf(line.data(), line.size(), "G%06X\r", next++);
                piece += line.data();
            }
            return piece;
        });
        QVERIFY(app.Attach(recorder.Port()));
        app.Link().m_countsPerG = 1;
        app.Set("OnlineSecond", 4999);
        CMeasureData data;
        QVERIFY(Record(app, data));
        QVERIFY(!app.Link().m_timedOut);
        QCOMPARE(data.GetSize(), std::size_t{999'800});
        for (int i = 0; i < 999'800; ++i) {
            const CMeasureRecord& line = data.Records()[static_cast<std::size_t>(i)];
            const std::array<int, 3> counts = CountsOf(i);
            if (line.m_x != counts[0] || line.m_y != counts[1] || line.m_z != counts[2])
                QFAIL(qPrintable(QStringLiteral("line %1 is another").arg(i)));
        }
        const CMeasureRecord& last = data.Records().back();
        QCOMPARE(last.m_time, app.Link().m_onlineStart + 4998);
        QCOMPARE(last.m_msec, std::uint16_t{995});
    }

    void LongestRecordingOfTheSimulatorLosesNoLine()
    {
        COnlineApp app;
        app.PlugIn({"--type", "qm70", "--time-scale", "2000"}, COnlineApp::Trace::Off);
        app.Set("OnlineSecond", 4999);
        CMeasureData data;
        QVERIFY(Record(app, data));
        QVERIFY(!app.Link().m_timedOut);
        QCOMPARE(app.Link().m_onlineLines.load(), 999'800U);
        QCOMPARE(data.GetSize(), std::size_t{999'800});
        // Every one of them had a sample: none is a line of the present time.
        std::int64_t time = app.Link().m_onlineStart * 1000;
        for (const CMeasureRecord& line : data.Records()) {
            if (line.TimeMs() != time)
                QFAIL("a line had no sample");
            time += 5;
        }
        QVERIFY(app.Link().ReadStatus());
    }

    void MonitorLosesNoByteOfALongDownload()
    {
        constexpr int Lines = 100'000;
        COnlineApp app;
        app.PlugIn({"--lines", std::to_string(Lines)}, COnlineApp::Trace::Off);
        std::string bytes;
        app.Link().SetMonitor(std::make_unique<CKeptTraffic>(bytes));
        app.Link().m_alwaysWatched = true;
        CMeasureData alone;
        ReadBack(app, alone);
        QCOMPARE(alone.GetSize(), std::size_t{Lines});
        QStringList expected = QString::fromStdString(bytes).remove(QLatin1Char('\n')).split('\r');

        app.Link().m_alwaysWatched = false;
        app.Set("MonitorLines", 2 * Lines);
        app.MakeMonitor();
        app.Link().ShowMonitor();
        QVERIFY(QTest::qWaitForWindowActive(&app.Monitor()));
        CMeasureData watched;
        ReadBack(app, watched);
        QCOMPARE(watched.ComputeSignature(), alone.ComputeSignature());
        QCOMPARE(app.Log(), expected);
        QVERIFY(expected.size() > Lines);

        // A lower limit keeps the end of the same log.
        app.Set("MonitorLines", 30'000);
        app.MakeMonitor();
        app.Link().ShowMonitor();
        ReadBack(app, watched);
        QCOMPARE(app.Log(), expected.last(30'001));
    }
};

QTEST_MAIN(StreamTest)
#include "StreamTest.moc"
