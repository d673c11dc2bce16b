#pragma once

#include "recorder/ByteStream.h"

#include <cstddef>

namespace skeldon {

/// Cuts a stream of bytes into lines of upper-case hexadecimal digits.
class CLineReader
{
public:
    explicit CLineReader(CByteStream& stream)
        : m_stream(&stream)
    {}

    /// Where the next line is plain, `digits` bytes and an end of line within the bytes at hand,
    /// gives those bytes, not tested yet; else null. The line stays unread until `SkipPlainLine`.
    [[nodiscard]] const char* PlainLine(std::size_t digits)
    {
        while (m_pos != m_end && IsLineEnd(*m_pos))
            ++m_pos;
        if (static_cast<std::size_t>(m_end - m_pos) <= digits || !EndsLine(m_pos[digits]))
            return nullptr;
        return m_pos;
    }
    void SkipPlainLine(std::size_t digits) { m_pos += digits + 1; }

    /// Reads one line of at most `most` digits into `line` and gives their number. CR and LF end
    /// it if it has a digit and are skipped else; "#" ends it in any case; bytes that are no
    /// upper-case hexadecimal digits are dropped. 0 is the end of the stream.
    [[nodiscard]] std::size_t ReadLine(char* line, std::size_t most);

private:
    [[nodiscard]] static bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }
    [[nodiscard]] static bool EndsLine(char c) { return IsLineEnd(c) || c == '#'; }

    CByteStream* m_stream;
    const char* m_pos = nullptr;
    const char* m_end = nullptr;
};

} // namespace skeldon
