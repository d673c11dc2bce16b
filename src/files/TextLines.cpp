#include "files/TextLines.h"

#include "base/TextScan.h"

#include <cstring>

namespace skeldon {

CTextLines::CTextLines(const CInputFile& file, std::uint64_t offset)
    : m_file(file)
    , m_buffer(std::make_unique_for_overwrite<char[]>(LongestLine))
    , m_offset(offset)
{}

void CTextLines::Consume(std::size_t size)
{
    m_begin += size;
    m_offset += size;
}

/// Makes room and reads on. False where nothing was added: the file has ended, can not be read, or
/// the buffer is full.
bool CTextLines::Fill()
{
    std::memmove(m_buffer.get(), m_buffer.get() + m_begin, m_end - m_begin);
    m_end -= m_begin;
    m_begin = 0;
    std::size_t got = 0;
    // Small steps: the header of a file is all that is read this way as a rule.
    constexpr std::size_t Step = std::size_t{64} * 1024;
    const std::size_t room = LongestLine - m_end;
    m_error =
        m_file.ReadAt(m_offset + m_end, m_buffer.get() + m_end, room < Step ? room : Step, got);
    m_end += got;
    return got > 0 && !m_error;
}

void CTextLines::SkipToLineEnd()
{
    for (;;) {
        const char* const from = m_buffer.get() + m_begin;
        const void* const found = std::memchr(from, '\n', m_end - m_begin);
        if (found != nullptr) {
            Consume(static_cast<std::size_t>(static_cast<const char*>(found) - from) + 1);
            return;
        }
        Consume(m_end - m_begin);
        if (!Fill())
            return;
    }
}

bool CTextLines::Next(std::string_view& line)
{
    m_isCut = false;
    std::size_t searched = 0;
    bool atStart = true;
    for (;;) {
        const char* const from = m_buffer.get() + m_begin;
        const std::size_t left = m_end - m_begin;
        const void* const found = std::memchr(from + searched, '\n', left - searched);
        if (found != nullptr) {
            const auto length = static_cast<std::size_t>(static_cast<const char*>(found) - from);
            line = TrimWhite({from, length});
            Consume(length + 1);
            return true;
        }
        searched = left;
        // Blanks before a line are dropped at once, so that any number of them fits.
        if (const std::size_t blank = left - TrimWhite({from, left}).size();
            blank == left && left > 0) {
            atStart = false;
            Consume(left);
            searched = 0;
        }
        if (Fill())
            continue;
        if (m_error || (m_end == m_begin && atStart))
            return false;
        line = TrimWhite({m_buffer.get() + m_begin, m_end - m_begin});
        m_isCut = m_end == LongestLine;
        if (m_isCut) {
            // What follows is read over the line.
            m_start = line.substr(0, StartLength);
            line = m_start;
            SkipToLineEnd();
        } else {
            Consume(m_end - m_begin);
        }
        return !m_error;
    }
}

} // namespace skeldon
