#pragma once

namespace skeldon {

/// Sets the open terminal up as a recorder's port; see `CPosixSerialPort::Open`. False if it is no
/// terminal; a setting that the driver does not take is no failure.
[[nodiscard]] bool SetUpTerminal(int descriptor);

} // namespace skeldon
