#pragma once

#include "base/platform/Descriptor.h"
#include "recorder/SerialPort.h"

#include <array>

namespace skeldon {

/// A serial port on a terminal device; a pseudo terminal will do.
class CPosixSerialPort final : public CSerialPort
{
public:
    /// Opens the terminal at `path` for this program alone and sets it up: raw bytes, eight data
    /// bits, `SerialSetting::Baud`; parity, stop bits and hardware flow control stay as the driver
    /// reports them. Null and the reason where the path can not be opened, is no terminal or is in
    /// use; nothing is written to it then.
    [[nodiscard]] static std::unique_ptr<CSerialPort> Open(const std::string& path,
                                                           std::error_code& error);

    ~CPosixSerialPort() override;
    CPosixSerialPort(const CPosixSerialPort&) = delete;
    CPosixSerialPort& operator=(const CPosixSerialPort&) = delete;

    [[nodiscard]] Transfer Read(std::span<char> buffer) override;
    /// Gives up when the device takes nothing for as long as a recorder may be silent.
    [[nodiscard]] Transfer Write(std::string_view bytes) override;
    [[nodiscard]] std::optional<LineState> ClearErrors() override;

private:
    /// Overruns, parity, frame and break errors as the driver counts them.
    using ErrorCounts = std::array<int, 5>;

    explicit CPosixSerialPort(CDescriptor descriptor);
    [[nodiscard]] ErrorCounts CountErrors() const;

    CDescriptor m_descriptor;
    ErrorCounts m_errorCounts{};
};

} // namespace skeldon
