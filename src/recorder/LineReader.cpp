#include "recorder/LineReader.h"

namespace skeldon {

std::size_t CLineReader::ReadLine(char* line, std::size_t most)
{
    std::size_t length = 0;
    while (length < most) {
        if (m_pos == m_end) {
            const std::string_view chunk = m_stream->NextChunk();
            m_pos = chunk.data();
            m_end = chunk.data() + chunk.size();
        }
        const char c = *m_pos++;
        if ((c >= '0' && c <= '9') || (c >= 'A' && c <= 'F'))
            line[length++] = c;
        else if (c == '#' || (IsLineEnd(c) && length > 0))
            break;
    }
    return length;
}

} // namespace skeldon
