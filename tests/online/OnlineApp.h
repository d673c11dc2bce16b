#pragma once

#include "online/MonitorDialog.h"
#include "support/Process.h"
#include "support/window/TestApp.h"

#include <memory>
#include <string>
#include <vector>

namespace skeldon::test {

/// An application object with a monitor window on its link, and a recorder on its cable.
class COnlineApp : public CTestApp
{
public:
    /// `settings` is used again where a test starts the program a second time.
    explicit COnlineApp(const QString& language = QStringLiteral("English"),
                        const QString& settings = {});
    ~COnlineApp();
    COnlineApp(const COnlineApp&) = delete;
    COnlineApp& operator=(const COnlineApp&) = delete;

    /// Makes the monitor window as the main window does; settings are given before this.
    CMonitorDialog& MakeMonitor();
    [[nodiscard]] CMonitorDialog& Monitor() { return *m_monitor; }
    /// Brings the monitor window up as the user sees it.
    [[nodiscard]] bool ShowUp();
    /// The monitor's lines as a screen reader gets them.
    [[nodiscard]] QStringList Log();

    enum class Trace
    {
        Off,
        On,
    };

    /// Puts a recorder at that port on the cable; false if the link does not find it.
    [[nodiscard]] bool Attach(const std::string& port);
    /// Plays a recorder on the cable. `options` are the simulator's.
    void PlugIn(std::vector<std::string> options = {}, Trace trace = Trace::On);
    /// What the recorder heard so far, as "m p m x #".
    [[nodiscard]] QString Heard() const;

    [[nodiscard]] CRecorderLink& Link() { return m_app->m_link; }
    [[nodiscard]] CSettings& Settings() { return m_app->Settings(); }
    void Set(const char* key, int value);

private:
    [[nodiscard]] std::string TraceFile() const;

    CMonitorDialog* m_monitor = nullptr;
    std::unique_ptr<CBackgroundProgram> m_simulator;
};

} // namespace skeldon::test
