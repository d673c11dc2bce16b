#pragma once

#include "korva-simulator/SimulatedRecorder.h"
#include "korva-simulator/platform/HostWatch.h"
#include "korva-simulator/platform/PortLink.h"
#include "korva-simulator/platform/PseudoTerminal.h"
#include "korva-simulator/platform/SignalWatch.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <system_error>

namespace skeldon {

/// Moves bytes between a simulated recorder and its pseudo terminal, and sleeps in between.
class CSimulatorLoop
{
public:
    /// What the owner is told, a line at a time: "ready PATH".
    using Announce = std::function<void(const std::string&)>;

    CSimulatorLoop(CSimulatedRecorder& recorder, std::string link, Announce announce);

    /// Plugs the cable in.
    [[nodiscard]] std::error_code Plug();
    /// Works until it is asked to end.
    [[nodiscard]] std::error_code Run();

private:
    [[nodiscard]] bool Wait();
    void ReadFromHost();
    void WriteToHost();
    [[nodiscard]] std::int64_t NowMs() const;

    CSimulatedRecorder& m_recorder;
    std::string m_link;
    Announce m_announce;
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    CSignalWatch m_signals;
    std::unique_ptr<CPseudoTerminal> m_terminal;
    std::unique_ptr<CHostWatch> m_host;
    std::unique_ptr<CPortLink> m_portLink;
    std::error_code m_error;
};

} // namespace skeldon
