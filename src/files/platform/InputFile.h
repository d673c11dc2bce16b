#pragma once

#include "base/platform/Descriptor.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <system_error>

namespace skeldon {

/// A regular file open for reading at any place, by several threads at once. It is read and not
/// mapped, so that a file that another program cuts short meanwhile merely ends early.
class CInputFile
{
public:
    /// Fails for what is missing, unreadable, or no regular file.
    [[nodiscard]] std::error_code Open(const std::filesystem::path& path);
    /// Size in bytes when it was opened.
    [[nodiscard]] std::uint64_t Size() const { return m_size; }
    /// Reads `size` bytes from `offset` on, fewer only at the end of the file. `got` is how many.
    [[nodiscard]] std::error_code ReadAt(std::uint64_t offset, char* buffer, std::size_t size,
                                         std::size_t& got) const;

private:
    CDescriptor m_descriptor;
    std::uint64_t m_size = 0;
};

} // namespace skeldon
