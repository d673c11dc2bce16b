#include "korva-simulator/platform/TraceFile.h"

#include <algorithm>

#include <fcntl.h>

namespace skeldon {

namespace {

constexpr mode_t NewFileMode = 0666;
constexpr std::size_t FlushSize = 1U << 18U;

} // namespace

CTraceFile::CTraceFile(const std::filesystem::path& path, std::error_code& error)
    : m_file(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, NewFileMode))
{
    error.clear();
    if (!m_file.IsOpen())
        error = LastSystemError();
}

void CTraceFile::Bytes(std::int64_t timeUs, TraceDirection direction, std::string_view bytes)
{
    constexpr std::size_t PieceSize = 1U << 16U;
    while (m_file.IsOpen() && !bytes.empty()) {
        const std::string_view piece = bytes.substr(0, PieceSize);
        AppendTrace(m_text, timeUs, direction, piece);
        bytes.remove_prefix(piece.size());
        if (m_text.size() >= FlushSize)
            Flush();
    }
}

void CTraceFile::Event(std::int64_t timeUs, std::string_view event)
{
    if (m_file.IsOpen())
        AppendTraceEvent(m_text, timeUs, event);
}

void CTraceFile::Flush()
{
    if (m_file.IsOpen()) {
        if (const std::error_code error = WriteAll(m_file.Get(), m_text)) {
            m_error = error;
            m_file = CDescriptor();
        }
    }
    m_text.clear();
}

} // namespace skeldon
