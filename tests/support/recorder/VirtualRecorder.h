#pragma once

#include "base/Clock.h"
#include "korva-simulator/SimulatedRecorder.h"
#include "recorder/CableFinder.h"
#include "recorder/SerialPort.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace skeldon::test {

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

/// What went over the wire, byte for byte.
struct Wire
{
    std::string bytes;
    std::string ways; ///< ">" for each byte from the host, "<" for each one to it
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
    /// A cable that a fault pulls is plugged in again after that time.
    void PlugAgainAfter(std::int64_t milliseconds);
    [[nodiscard]] bool IsPlugged();
    /// From now on these faults alone, as the simulator's command line names them.
    void SetFaults(const std::vector<std::string>& faults);
    /// Lines in the memory as they go over the wire.
    [[nodiscard]] std::string Memory();
    /// From now on all that goes over the wire is kept for `GetWire`.
    void KeepWire();
    [[nodiscard]] Wire GetWire();
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
    void Keep(std::string_view bytes, char way);
    /// Pulls the cable where a fault asks for that.
    void ObeyFault();
    /// Plugs the cable in again where its time has come.
    void CatchUp();
    void PlugIn();

    CVirtualClock& m_clock;
    std::mutex m_lock;
    std::mt19937_64 m_random; ///< of the sizes of what is read
    std::optional<CSimulatedRecorder> m_recorder;
    bool m_isPlugged = false;
    int m_plugs = 0; ///< a port that was open when the cable was pulled stays dead
    std::optional<std::int64_t> m_pause; ///< between a fault's pull and the next plug
    std::int64_t m_plugMs = 0;           ///< when that plug is due; only while there is one
    bool m_isPlugDue = false;
    std::optional<Wire> m_wire;
    std::string m_delivered;
};

} // namespace skeldon::test
