#pragma once

#include "base/platform/Descriptor.h"
#include "korva-simulator/ControlLine.h"

#include <filesystem>
#include <string>
#include <system_error>

namespace skeldon {

/// A named pipe that takes lines from whoever writes into it. One that was not there is made, and
/// goes away with its owner.
class CControlFifo
{
public:
    /// No pipe.
    CControlFifo() = default;
    CControlFifo(const std::filesystem::path& path, std::error_code& error);
    CControlFifo(const CControlFifo&) = delete;
    CControlFifo& operator=(const CControlFifo&) = delete;
    ~CControlFifo();

    /// For poll(2); below 0 without a pipe.
    [[nodiscard]] int Descriptor() const { return m_descriptor.Get(); }
    /// Takes in what has been written, a block at the most.
    void Read();
    /// The next whole line of what was taken in; false where there is none.
    [[nodiscard]] bool Next(std::string& line) { return m_lines.Next(line); }

private:
    std::filesystem::path m_made; ///< empty where the pipe was there before
    CDescriptor m_descriptor;
    CLineCollector m_lines;
};

} // namespace skeldon
