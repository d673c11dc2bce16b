#include "korva-simulator/LiveStream.h"

#include <algorithm>

namespace skeldon {

namespace {

constexpr std::int64_t MsPerSecond = 1000;

void AppendHex(std::string& text, std::int8_t counts)
{
    constexpr char Digits[] = "0123456789ABCDEF";
    const auto byte = static_cast<std::uint8_t>(counts);
    text += Digits[byte >> 4U];
    text += Digits[byte & 15U];
}

} // namespace

CLiveStream::CLiveStream(const CSurroundings& surroundings, std::int64_t nowMs, std::int64_t clock)
    : m_surroundings(surroundings)
    , m_startMs(nowMs)
    , m_clock(clock)
{}

std::string CLiveStream::Due(std::int64_t nowMs, std::int64_t mostLines, bool lineFeeds)
{
    std::string text;
    const std::int64_t due = (nowMs - m_startMs) * LinesPerSecond / MsPerSecond;
    if (m_lines == 0 && due > 0)
        text = lineFeeds ? "01\r\n" : "01\r";
    const std::int64_t lines = std::min(due - m_lines, mostLines);
    for (std::int64_t i = 0; i < lines; ++i) {
        const std::int64_t centiseconds = m_clock + (m_lines + i) * 100 / LinesPerSecond;
        const Measurement measurement = m_surroundings.At(centiseconds);
        text += 'G';
        AppendHex(text, measurement.x);
        AppendHex(text, measurement.y);
        AppendHex(text, measurement.z);
        text += '\r';
        if (lineFeeds)
            text += '\n';
    }
    m_lines = std::max(m_lines, due);
    return text;
}

std::int64_t CLiveStream::NextMs() const
{
    return m_startMs + ((m_lines + 1) * MsPerSecond + LinesPerSecond - 1) / LinesPerSecond;
}

} // namespace skeldon
