#pragma once

#include "korva-simulator/CommandReader.h"
#include "korva-simulator/Fault.h"
#include "korva-simulator/LiveStream.h"
#include "korva-simulator/OutputQueue.h"
#include "korva-simulator/RecorderState.h"

#include <cstddef>
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

    /// The cable is plugged in or pulled; nothing that was under way outlives it.
    void Plug(std::int64_t nowMs);
    void Unplug(std::int64_t nowMs);
    /// The magnet comes near or goes away.
    void MoveMagnet(bool isNear, std::int64_t nowMs);
    /// What the start command does.
    void Start();

    /// What the host sent. Commands that come during a download wait for its end.
    void Receive(std::string_view bytes, std::int64_t nowMs);
    /// Lets time go on.
    void Advance(std::int64_t nowMs);
    /// When `Advance` has something to do; nothing while the recorder only waits for the host.
    [[nodiscard]] std::optional<std::int64_t> NextMs() const;

    /// The next bytes for the host in one piece; empty while there are none.
    [[nodiscard]] std::string_view Output() const;
    /// The first `count` bytes of `Output` have gone out.
    void Sent(std::size_t count);
    /// The host has closed the port: what waits to be sent is lost.
    void LoseOutput();
    /// Whether a fault asks for the cable to be pulled now.
    [[nodiscard]] bool HasPullRequest() const { return m_pullRequested; }

    [[nodiscard]] const RecorderState& State() const { return m_state; }
    /// The recorder as it stands at that moment, its clock included.
    [[nodiscard]] RecorderState StateAt(std::int64_t nowMs) const;
    /// Rises with every change of what is worth keeping.
    [[nodiscard]] std::uint64_t Changes() const { return m_changes; }

    /// The faults in force; may be changed at any time.
    CFaults m_faults;

private:
    enum class Transfer
    {
        None,
        Download,
        Stream,
        Report, ///< a report without end
    };

    void ReadInput();
    void Execute(const std::string& command);
    [[nodiscard]] bool IsDeafTo(const std::string& command);
    /// Carries out a setting; gives whether this recorder knows it.
    [[nodiscard]] bool TakeSetting(const std::string& command);
    [[nodiscard]] bool TakeStartOption(int option);
    [[nodiscard]] bool TakeAlphaSetting(char name, int value);
    [[nodiscard]] bool SetClock(const std::string& command);
    [[nodiscard]] bool Reserve(const std::string& command);
    [[nodiscard]] bool ChangeRange(int maximum);
    void Answer(const std::string& command, std::string text);
    void BeginReply();
    void BeginEndlessReport();
    void BeginDownload();
    void BeginStream();
    void LimitTransfer();
    void EndTransfer();
    void CheckLimit();
    /// Bytes of either direction that still pass before a fault pulls the cable.
    [[nodiscard]] std::size_t BytesToPull() const;
    void CountToPull(std::size_t count);
    [[nodiscard]] RecorderSeconds Clock() const;

    RecorderState m_state;
    CCommandReader m_reader;
    std::string m_input;
    COutputQueue m_output;
    Transfer m_transfer = Transfer::None;
    std::optional<CLiveStream> m_stream;
    /// Bytes that a transfer may still send before a fault ends it.
    std::optional<std::size_t> m_bytesLeft;
    std::int64_t m_heldUntilMs = 0; ///< a late reply waits till then
    bool m_pullRequested = false;
    std::int64_t m_nowMs = 0;
    std::uint64_t m_changes = 0;
};

} // namespace skeldon
