#pragma once

#include "files/Output.h"

#include <cstddef>
#include <memory>
#include <string_view>
#include <system_error>

namespace skeldon {

/// Collects formatted text for an output in large pieces. After a failed write it goes on without
/// writing, so that a formatter need look only once, at the end.
class CTextBuffer
{
public:
    explicit CTextBuffer(COutput& output)
        : m_output(output)
        , m_buffer(std::make_unique_for_overwrite<char[]>(Capacity))
        , m_end(m_buffer.get())
    {}

    /// A place with room for `size` bytes, at most `LargestPiece`. `Advance` takes what was
    /// written there.
    [[nodiscard]] char* Room(std::size_t size)
    {
        if (static_cast<std::size_t>(m_buffer.get() + Capacity - m_end) < size)
            Flush();
        return m_end;
    }
    void Advance(char* end) { m_end = end; }

    void Append(std::string_view text)
    {
        while (!text.empty()) {
            const std::string_view part = text.substr(0, LargestPiece);
            char* const out = Room(part.size());
            Advance(out + part.copy(out, part.size()));
            text.remove_prefix(part.size());
        }
    }

    /// Writes what is left; gives the first failure.
    [[nodiscard]] std::error_code Finish()
    {
        Flush();
        return m_error;
    }

    static constexpr std::size_t LargestPiece = 16 * 1024;

private:
    static constexpr std::size_t Capacity = 256 * 1024;

    void Flush()
    {
        const auto size = static_cast<std::size_t>(m_end - m_buffer.get());
        if (!m_error && size > 0)
            m_error = m_output.Write({m_buffer.get(), size});
        m_end = m_buffer.get();
    }

    COutput& m_output;
    std::unique_ptr<char[]> m_buffer;
    char* m_end;
    std::error_code m_error;
};

} // namespace skeldon
