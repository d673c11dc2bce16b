#pragma once

#include <string_view>

namespace skeldon {

/// Where the record lines of a transfer come from.
class CByteStream
{
public:
    virtual ~CByteStream() = default;

    /// The bytes that follow those given before, waiting until there are some; never empty. They
    /// stay where they are until the next call. Behind the end of the stream each call gives a
    /// "#".
    [[nodiscard]] virtual std::string_view NextChunk() = 0;
};

/// A stream that lies in memory as a whole.
class CMemoryStream final : public CByteStream
{
public:
    explicit CMemoryStream(std::string_view bytes)
        : m_bytes(bytes)
    {}

    [[nodiscard]] std::string_view NextChunk() override
    {
        if (m_bytes.empty())
            return "#";
        const std::string_view chunk = m_bytes;
        m_bytes = {};
        return chunk;
    }

private:
    std::string_view m_bytes;
};

} // namespace skeldon
