#pragma once

#include "recorder/CableFinder.h"
#include "recorder/SerialPort.h"

#include <memory>
#include <string_view>

namespace skeldon {

/// The way to the recorder on this machine: the port at `path` if one is given, else the one that
/// the environment variable `SKELDON_PORT` names, else the recorder's USB cable.
[[nodiscard]] std::unique_ptr<CCableFinder> MakeCableFinder(std::string_view path = {});

/// Opens serial ports of this machine.
[[nodiscard]] PortOpener SystemPortOpener();

} // namespace skeldon
