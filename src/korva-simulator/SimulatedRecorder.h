#pragma once

#include "korva-simulator/CommandReader.h"
#include "korva-simulator/LiveStream.h"
#include "korva-simulator/OutputQueue.h"
#include "korva-simulator/RecorderState.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace skeldon {

/// The recorder behind its cable: takes what the host sends, and has bytes for it. Times are
/// milliseconds since the simulation began, by which the recorder's clock runs.
class CSimulatedRecorder
{
public:
    explicit CSimulatedRecorder(RecorderState state);

    /// What the host sent. Commands that come during a download wait for its end.
    void Receive(std::string_view bytes, std::int64_t nowMs);
    /// Lets time go on.
    void Advance(std::int64_t nowMs);
    /// When `Advance` has something to do; nothing while the recorder only waits for the host.
    [[nodiscard]] std::optional<std::int64_t> NextMs() const;

    /// The next bytes for the host in one piece; empty while there are none.
    [[nodiscard]] std::string_view Output() const { return m_output.Front(); }
    /// The first `count` bytes of `Output` have gone out.
    void Sent(std::size_t count);
    /// The host has closed the port: what waits to be sent is lost.
    void LoseOutput();

    [[nodiscard]] const RecorderState& State() const { return m_state; }

private:
    enum class Transfer
    {
        None,
        Download,
        Stream,
    };

    void ReadInput();
    void Execute(const std::string& command);
    void ExecuteSetting(const std::string& command);
    void BeginDownload();
    void BeginStream();
    void Answer(const std::string& command);
    [[nodiscard]] RecorderSeconds Clock() const;
    [[nodiscard]] bool CanChangeRange(int maximum) const;

    RecorderState m_state;
    CCommandReader m_reader;
    std::string m_input;
    COutputQueue m_output;
    Transfer m_transfer = Transfer::None;
    std::optional<CLiveStream> m_stream;
    std::int64_t m_nowMs = 0;
};

} // namespace skeldon
