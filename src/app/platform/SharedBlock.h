#pragma once

#include "base/platform/Descriptor.h"

#include <array>
#include <cstdint>
#include <string>

namespace skeldon {

/// Three words of memory that processes of the user share under a name. Who uses the block holds a
/// shared lock on it, so that one can tell whether one is alone.
class CSharedBlock
{
public:
    using Words = std::array<std::uint32_t, 3>;

    /// Creates or opens the block; where that fails there is none. Whoever is alone with it counts
    /// as its creator, and then it holds zeros.
    explicit CSharedBlock(const std::string& name);
    CSharedBlock(const CSharedBlock&) = delete;
    CSharedBlock& operator=(const CSharedBlock&) = delete;
    ~CSharedBlock();

    /// Null where there is no block.
    [[nodiscard]] volatile std::uint32_t* GetWords() const { return m_words; }
    /// Whether no other process uses the block now.
    [[nodiscard]] bool IsAlone() const;

private:
    CDescriptor m_descriptor;
    std::uint32_t* m_words = nullptr;
};

} // namespace skeldon
