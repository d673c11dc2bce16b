#include "files/TextBuffer.h"

#include <new>

namespace skeldon {

CTextBuffer::CTextBuffer(COutput& output)
    : m_output(output)
    , m_buffers{std::make_unique_for_overwrite<char[]>(Capacity), nullptr}
    , m_begin(m_buffers[0].get())
    , m_end(m_begin)
{}

CTextBuffer::~CTextBuffer()
{
    Stop();
}

void CTextBuffer::Append(std::string_view text)
{
    while (!text.empty()) {
        const std::string_view part = text.substr(0, LargestPiece);
        char* const out = Room(part.size());
        Advance(out + part.copy(out, part.size()));
        text.remove_prefix(part.size());
    }
}

std::error_code CTextBuffer::Finish()
{
    Stop();
    Write({m_begin, static_cast<std::size_t>(m_end - m_begin)});
    m_end = m_begin;
    return m_error;
}

void CTextBuffer::Flush()
{
    if (!m_thread.joinable() && !StartThread()) {
        Write({m_begin, static_cast<std::size_t>(m_end - m_begin)});
        m_end = m_begin;
        return;
    }
    {
        std::unique_lock lock(m_lock);
        m_changed.wait(lock, [this] { return m_piece.empty(); });
        m_piece = {m_begin, static_cast<std::size_t>(m_end - m_begin)};
    }
    m_changed.notify_one();
    m_filled = 1 - m_filled;
    m_begin = m_buffers[m_filled].get();
    m_end = m_begin;
}

/// False where the system has no thread or memory left: the pieces are then written in turn.
bool CTextBuffer::StartThread()
{
    try {
        if (m_buffers[1] == nullptr)
            m_buffers[1] = std::make_unique_for_overwrite<char[]>(Capacity);
        m_thread = std::thread(&CTextBuffer::WriteInBackground, this);
        return true;
    } catch (const std::system_error&) {
        return false;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

void CTextBuffer::WriteInBackground()
{
    std::unique_lock lock(m_lock);
    for (;;) {
        m_changed.wait(lock, [this] { return m_stop || !m_piece.empty(); });
        if (m_piece.empty())
            return;
        const std::string_view piece = m_piece;
        lock.unlock();
        Write(piece);
        lock.lock();
        m_piece = {};
        m_changed.notify_one();
    }
}

void CTextBuffer::Write(std::string_view text)
{
    if (!m_error && !text.empty())
        m_error = m_output.Write(text);
}

void CTextBuffer::Stop()
{
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_lock);
        m_stop = true;
    }
    m_changed.notify_one();
    m_thread.join();
}

} // namespace skeldon
