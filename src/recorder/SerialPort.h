#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

namespace skeldon {

/// How a port is set up and how long its reads wait.
namespace SerialSetting {
/// What the cable's driver is told, in baud; eight data bits go with it. Parity, stop bits and flow
/// control stay as the driver reports them.
inline constexpr unsigned Baud = 131072;
/// A read of one byte waits at most for the time of the byte and the constant together.
inline constexpr std::uint32_t ReadPerByteMs = 100;
inline constexpr std::uint32_t ReadConstantMs = 50;
inline constexpr std::uint32_t ReadWaitMs = ReadPerByteMs + ReadConstantMs;
} // namespace SerialSetting

/// An open serial port. Used by one thread at a time.
class CSerialPort
{
public:
    struct Transfer
    {
        std::size_t count = 0;
        std::error_code error; ///< set where the call failed
    };
    struct LineState
    {
        bool errors = false;    ///< a line error since the last look: parity, frame, overrun, break
        std::size_t queued = 0; ///< bytes that have arrived and were not read
    };

    virtual ~CSerialPort() = default;

    /// Waits up to `ReadWaitMs` for the first byte, then gives what has arrived, at most as much
    /// as `buffer` holds. A count of 0 without an error means that the time is over; with an
    /// error (the cable is gone) the call may have come back at once.
    [[nodiscard]] virtual Transfer Read(std::span<char> buffer) = 0;
    /// Writes all of `bytes`.
    [[nodiscard]] virtual Transfer Write(std::string_view bytes) = 0;
    /// Tells and clears the line errors; nothing where the port can not be asked any more.
    [[nodiscard]] virtual std::optional<LineState> ClearErrors() = 0;
};

/// Opens the port of a path (see `PortPath`); null and the reason where that fails.
using PortOpener =
    std::function<std::unique_ptr<CSerialPort>(const std::string& path, std::error_code& error)>;

} // namespace skeldon
