#include "korva-simulator/TraceText.h"

#include "base/NumberFormat.h"

#include <algorithm>
#include <array>

namespace skeldon {

namespace {

constexpr std::size_t BytesPerLine = 16;

void AppendHead(std::string& text, std::int64_t timeUs, char direction)
{
    constexpr std::size_t TimeWidth = 12;
    std::array<char, 40> time{};
    char* end = WriteUnsigned(time.data(), static_cast<std::uint64_t>(timeUs / 1'000'000));
    *end++ = '.';
    end = WriteZeroPadded(end, static_cast<std::uint64_t>(timeUs % 1'000'000), 6);
    const auto length = static_cast<std::size_t>(end - time.data());
    text.append(TimeWidth - std::min(TimeWidth, length), ' ');
    text.append(time.data(), length);
    text += ' ';
    text += direction;
    text += ' ';
}

} // namespace

void AppendTrace(std::string& text, std::int64_t timeUs, TraceDirection direction,
                 std::string_view bytes)
{
    constexpr std::string_view Digits = "0123456789ABCDEF";
    for (; !bytes.empty(); bytes.remove_prefix(std::min(BytesPerLine, bytes.size()))) {
        AppendHead(text, timeUs, static_cast<char>(direction));
        const std::string_view line = bytes.substr(0, BytesPerLine);
        for (const char c : line) {
            const auto byte = static_cast<unsigned char>(c);
            text += Digits[byte >> 4U];
            text += Digits[byte & 15U];
            text += ' ';
        }
        text.append(3 * (BytesPerLine - line.size()), ' ');
        text += '|';
        for (const char c : line)
            text += c >= ' ' && c <= '~' ? c : '.';
        text += "|\n";
    }
}

void AppendTraceEvent(std::string& text, std::int64_t timeUs, std::string_view event)
{
    AppendHead(text, timeUs, '-');
    text += event;
    text += '\n';
}

} // namespace skeldon
