#pragma once

#include "korva-simulator/CommandLine.h"
#include "korva-simulator/SimulatedRecorder.h"
#include "korva-simulator/platform/Cable.h"
#include "korva-simulator/platform/ControlFifo.h"
#include "korva-simulator/platform/SignalWatch.h"
#include "korva-simulator/platform/TraceFile.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <system_error>

namespace skeldon {

/// A recorder that is played: its cable, its control pipe, its trace and the file that keeps it,
/// all served by one thread that sleeps while nothing happens.
class CSimulatorLoop
{
public:
    /// Takes a line for the owner, such as "ready PATH".
    using Announce = std::function<void(const std::string&)>;
    /// Takes a line about something that went wrong.
    using Complain = std::function<void(const std::string&)>;

    CSimulatorLoop(CSimulatedRecorder& recorder, const SimulatorOptions& options, Announce announce,
                   Complain complain);

    /// Works until it is asked to end; gives the program's exit status.
    [[nodiscard]] int Run();

private:
    [[nodiscard]] bool OpenFiles();
    void Plug();
    void Pull();
    void Serve();
    /// Sleeps until there is something to do; gives false when the program is asked to end.
    [[nodiscard]] bool Wait();
    [[nodiscard]] int Timeout();
    void ReadControl();
    void Obey(const ControlLine& line);
    void Save();
    void Fail(const std::string& what, const std::error_code& error);
    [[nodiscard]] SimulationTime Time() const;

    CSimulatedRecorder& m_recorder;
    const SimulatorOptions& m_options;
    Announce m_announce;
    Complain m_complain;
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    CSignalWatch m_signals;
    std::unique_ptr<CControlFifo> m_control = std::make_unique<CControlFifo>();
    CTraceFile m_trace;
    std::unique_ptr<CCable> m_cable; ///< null while it is pulled
    std::uint64_t m_savedChanges = 0;
    bool m_quit = false;
    int m_status = 0;
};

} // namespace skeldon
