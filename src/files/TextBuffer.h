#pragma once

#include "files/Output.h"

#include <array>
#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string_view>
#include <system_error>
#include <thread>

namespace skeldon {

/// Collects formatted text for an output in large pieces. While one piece is written, by a thread
/// of its own, the next is formatted; text that fits one piece needs no thread. After a failed
/// write it goes on without writing, so that a formatter need look only once, at the end.
class CTextBuffer
{
public:
    /// `output` is not used by the caller until `Finish`.
    explicit CTextBuffer(COutput& output);
    ~CTextBuffer();
    CTextBuffer(const CTextBuffer&) = delete;
    CTextBuffer& operator=(const CTextBuffer&) = delete;

    /// A place with room for `size` bytes, at most `LargestPiece`. `Advance` takes what was
    /// written there.
    [[nodiscard]] char* Room(std::size_t size)
    {
        if (static_cast<std::size_t>(m_begin + Capacity - m_end) < size)
            Flush();
        return m_end;
    }
    void Advance(char* end) { m_end = end; }

    void Append(std::string_view text);

    /// Writes what is left; gives the first failure.
    [[nodiscard]] std::error_code Finish();

    static constexpr std::size_t LargestPiece = std::size_t{16} * 1024;

private:
    static constexpr std::size_t Capacity = std::size_t{256} * 1024;

    void Flush();
    [[nodiscard]] bool StartThread();
    void WriteInBackground();
    void Write(std::string_view text);
    void Stop();

    COutput& m_output;
    std::array<std::unique_ptr<char[]>, 2> m_buffers; ///< the one filled and the one written
    std::size_t m_filled = 0;                         ///< which of them is being filled
    char* m_begin;
    char* m_end;

    std::thread m_thread; ///< none before the first piece is full
    std::mutex m_lock;
    std::condition_variable m_changed;
    std::string_view m_piece; ///< what the thread is to write; empty when it is done
    bool m_stop = false;
    std::error_code m_error; ///< the thread's while it runs
};

} // namespace skeldon
