#pragma once

#include "korva-simulator/SimulatedRecorder.h"
#include "korva-simulator/SyntheticMemory.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace skeldon::test {

/// Instants of the recorder's calendar.
inline RecorderSeconds At(std::string_view text)
{
    return ParseRecorderTime(text).value();
}

/// A recorder with `lines` lines, five seconds apart from 2024-05-06 07:08:09 on.
inline RecorderState StateWith(int type, bool alpha, std::size_t lines)
{
    RecorderState state;
    state.type = type;
    state.alpha = alpha;
    state.hasBuzzerKey = type != OldestType;
    state.clock = At("2024-06-01 12:00:00");
    if (lines > 0)
        FillMemory(state, {.count = lines, .from = At("2024-05-06 07:08:09"), .step = 500});
    return state;
}

/// Takes all that the recorder has to say now, at most `most` bytes.
inline std::string Hear(CSimulatedRecorder& recorder, std::size_t most = 10'000'000)
{
    std::string heard;
    while (heard.size() < most && !recorder.Output().empty()) {
        const std::string_view part = recorder.Output().substr(0, most - heard.size());
        heard += part;
        recorder.Sent(part.size());
    }
    return heard;
}

/// Sends a command and takes the answer.
inline std::string Ask(CSimulatedRecorder& recorder, std::string_view command,
                       std::int64_t nowMs = 0)
{
    recorder.Receive(command, nowMs);
    return Hear(recorder);
}

/// The value behind a key of a report; nothing where the key is missing.
inline std::optional<std::string> ValueOf(const std::string& report, const std::string& key)
{
    const std::size_t place = report.find(key);
    if (place == std::string::npos)
        return std::nullopt;
    const std::size_t begin = place + key.size();
    return report.substr(begin, report.find('\r', begin) - begin);
}

/// The lines of a download, without their ends and the mark.
inline std::vector<std::string> Lines(const std::string& download)
{
    std::vector<std::string> lines;
    std::size_t begin = 0;
    for (std::size_t end = 0; (end = download.find("\r\n", begin)) != std::string::npos;
         begin = end + 2)
        lines.push_back(download.substr(begin, end - begin));
    return lines;
}

/// Puts a fault in force that is known to be well formed.
inline void Inflict(CSimulatedRecorder& recorder, std::string_view fault)
{
    recorder.m_faults.Add(std::get<Fault>(ParseFault(fault)));
}

} // namespace skeldon::test
