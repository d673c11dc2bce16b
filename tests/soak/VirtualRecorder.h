#pragma once

#include "Random.h"
#include "base/Clock.h"
#include "korva-simulator/SimulatedRecorder.h"
#include "recorder/CableFinder.h"
#include "recorder/SerialPort.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace skeldon::soak {

/// Time that passes only where somebody waits for the recorder.
class CVirtualClock final : public CClock
{
public:
    [[nodiscard]] std::uint32_t TickMs() override { return static_cast<std::uint32_t>(m_ms); }
    void SleepMs(std::uint32_t milliseconds) override { m_ms += milliseconds; }
    [[nodiscard]] CalendarSeconds Now() override { return Start + m_ms / 1000; }

    static constexpr CalendarSeconds Start = 1'748'772'000; ///< 2025-06-01
    std::atomic<std::int64_t> m_ms = 1000;
};

/// The simulated recorder behind a cable, without a wire: bytes arrive in pieces of any size, and
/// only virtual time passes. May be used by several threads.
class CVirtualRecorder
{
public:
    CVirtualRecorder(CVirtualClock& clock, std::uint64_t seed);

    /// A recorder of any model with so many lines takes the place of the one that was there.
    void Replace(int type, bool alpha, std::size_t lines);
    void Plug();
    void Pull();
    [[nodiscard]] bool IsPlugged();
    /// From now on these faults alone, as the simulator's command line names them.
    void SetFaults(const std::vector<std::string>& faults);
    /// Lines in the memory as they go over the wire.
    [[nodiscard]] std::string Memory();
    /// All bytes that the port gave since the last command to read the memory.
    [[nodiscard]] std::string Delivered();

    [[nodiscard]] std::unique_ptr<CCableFinder> MakeFinder();
    [[nodiscard]] PortOpener Opener();

    static constexpr const char* PortName = "/dev/recorder";

private:
    class CPort;
    class CFinder;

    CSerialPort::Transfer Read(std::span<char> buffer);
    CSerialPort::Transfer Write(std::string_view bytes);
    std::optional<CSerialPort::LineState> ClearErrors();
    void Close();
    void WaitForBytes();

    CVirtualClock& m_clock;
    std::mutex m_lock;
    CRandom m_random;
    std::optional<CSimulatedRecorder> m_recorder;
    bool m_isPlugged = false;
    int m_plugs = 0; ///< a port that was open when the cable was pulled stays dead
    std::string m_delivered;
};

/// Any fault of the simulator's, with a value that suits a memory of so many lines.
[[nodiscard]] std::string AnyFault(CRandom& random, int lines);

} // namespace skeldon::soak
