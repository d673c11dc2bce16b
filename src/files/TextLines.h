#pragma once

#include "files/platform/InputFile.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

namespace skeldon {

/// The lines of a file from some place on, in bounded memory. A line ends at LF; the white space
/// at both its ends, the CR of CR LF with it, is no part of it.
class CTextLines
{
public:
    /// Of longer lines the start alone is given, as `IsCut` tells.
    static constexpr std::size_t LongestLine = std::size_t{1} << 20;
    /// How much that is; longer than any tag.
    static constexpr std::size_t StartLength = 64;

    explicit CTextLines(const CInputFile& file, std::uint64_t offset = 0);

    /// The next line, valid until the next call; false at the end of the file or where it can not
    /// be read.
    [[nodiscard]] bool Next(std::string_view& line);
    /// The line just given is only the start of one longer than `LongestLine`.
    [[nodiscard]] bool IsCut() const { return m_isCut; }
    /// Why the last call found no line, unless it was the end of the file.
    [[nodiscard]] std::error_code Error() const { return m_error; }
    /// Where the line behind the one just given begins.
    [[nodiscard]] std::uint64_t Offset() const { return m_offset; }

private:
    [[nodiscard]] bool Fill();
    void SkipToLineEnd();
    void Consume(std::size_t size);

    const CInputFile& m_file;
    std::unique_ptr<char[]> m_buffer;
    std::size_t m_begin = 0; ///< of what is not consumed yet
    std::size_t m_end = 0;
    std::uint64_t m_offset;
    bool m_isCut = false;
    std::string m_start; ///< of a line that is cut
    std::error_code m_error;
};

} // namespace skeldon
