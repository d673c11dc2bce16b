#pragma once

#include "korva-simulator/SimulatedRecorder.h"
#include "korva-simulator/WirePacer.h"
#include "korva-simulator/platform/HostWatch.h"
#include "korva-simulator/platform/PortLink.h"
#include "korva-simulator/platform/PseudoTerminal.h"
#include "korva-simulator/platform/TraceFile.h"

#include <memory>
#include <optional>
#include <string>
#include <system_error>

namespace skeldon {

/// The time of a simulation: the real one, and the recorder's, which may run faster.
struct SimulationTime
{
    std::int64_t realUs = 0;
    std::int64_t recorderMs = 0;
};

/// The cable between a recorder and the host, while it is plugged in. Its end is the pulling of it.
class CCable
{
public:
    /// `link` is the stable name of the port, empty for none. Null on a failure, with the reason in
    /// `error`.
    [[nodiscard]] static std::unique_ptr<CCable>
    Plug(const std::string& link, std::int64_t bytesPerSecond, std::error_code& error);

    /// The name by which the host opens the port.
    [[nodiscard]] const std::string& Name() const { return m_name; }
    [[nodiscard]] int TerminalDescriptor() const { return m_terminal->Descriptor(); }
    [[nodiscard]] int HostDescriptor() const { return m_host.Descriptor(); }
    /// Whether bytes wait that would go now if the host took them.
    [[nodiscard]] bool WantsToWrite(const CSimulatedRecorder& recorder, std::int64_t realUs);
    /// When bytes that wait for the line's rate may go; nothing where none does.
    [[nodiscard]] std::optional<std::int64_t> NextUs(const CSimulatedRecorder& recorder) const;

    /// Moves what can be moved now. Gives whether the host has closed the port meanwhile.
    [[nodiscard]] bool Exchange(CSimulatedRecorder& recorder, CTraceFile& trace,
                                SimulationTime time, std::error_code& error);

    /// Lets the host read what has gone out before the cable is pulled.
    void Settle();

private:
    CCable(std::unique_ptr<CPseudoTerminal> terminal, std::int64_t bytesPerSecond);

    void Write(CSimulatedRecorder& recorder, CTraceFile& trace, SimulationTime time,
               std::error_code& error);

    std::unique_ptr<CPseudoTerminal> m_terminal;
    CHostWatch m_host;
    CPortLink m_link;
    CWirePacer m_pacer;
    std::string m_name;
};

} // namespace skeldon
