#include "Benchmarks.h"
#include "Rounds.h"
#include "SimulatorPort.h"

#include "app/PumpMessages.h"
#include "online/MonitorDialog.h"
#include "online/MonitorList.h"
#include "online/log/MonitorLines.h"
#include "recorder/ReadBack.h"
#include "support/window/TestApp.h"

#include <QAbstractItemModel>

#include <chrono>
#include <cstdlib>

namespace skeldon::bench {

namespace {

/// Lets the windows live now and then, as the read-back of the data view does.
class CPumping final : public CReadBackObserver
{
public:
    void ShowWarning(bool /*red*/) override {}
    void ShowPosition(int /*line*/) override { PumpMessages(); }
};

/// Seconds from the recorder's first byte to its last line.
double Download(CRecorderLink& link, std::size_t lines)
{
    CMeasureData data;
    data.Reserve(lines);
    if (!link.FindRecorderPort() || link.StartDownload() != static_cast<int>(lines))
        std::abort();
    const auto begin = std::chrono::steady_clock::now();
    CPumping pumping;
    ReadLines(link, static_cast<int>(lines), data, &pumping);
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    if (data.GetSize() != lines)
        std::abort();
    link.FinishDownload(data);
    return time.count();
}

double Watched(std::size_t lines)
{
    test::CTestApp app;
    app.m_port = SimulatorPort(lines);
    CRecorderLink& link = app.m_app->m_link;
    auto monitor = std::make_unique<CMonitorDialog>();
    CMonitorDialog& window = *monitor;
    link.SetMonitor(std::move(monitor));
    link.ShowMonitor();
    PumpMessages();
    const double seconds = Download(link, lines);
    window.Tick();
    if (window.m_list->model()->rowCount() <= CMonitorLines::DefaultMaxLines)
        std::abort(); // the log is not full
    return seconds;
}

double Unwatched(std::size_t lines)
{
    test::CTestApp app;
    app.m_port = SimulatorPort(lines);
    return Download(app.m_app->m_link, lines);
}

} // namespace

Work AddMonitor()
{
    AddTimedContender("monitor", "skeldon", Watched);
    AddTimedContender("monitor", "the monitor hidden", Unwatched);
    return {"monitor",
            "Download with the monitor shown",
            {"the monitor hidden"},
            {{"the monitor hidden", false, 1.3, 1.1}}};
}

} // namespace skeldon::bench
