#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>

namespace skeldon {

/// What the recorder has yet to send, in blocks: texts of its own and memory that stands elsewhere.
class COutputQueue
{
public:
    void Append(std::string text);
    /// `memory` must stay as it is until it has gone out.
    void AppendView(std::string_view memory);
    void Clear();

    [[nodiscard]] bool IsEmpty() const { return m_blocks.empty(); }
    [[nodiscard]] std::size_t Size() const { return m_size; }
    /// The next bytes in one piece; empty only where nothing is left.
    [[nodiscard]] std::string_view Front() const;
    /// The first `count` bytes of `Front` have gone out.
    void Take(std::size_t count);

private:
    struct Block
    {
        std::string own;
        std::string_view memory; ///< used where `isOwn` is not set
        bool isOwn = false;

        [[nodiscard]] std::string_view Text() const { return isOwn ? own : memory; }
    };

    void Push(Block block);

    std::deque<Block> m_blocks;
    std::size_t m_taken = 0; ///< of the first block
    std::size_t m_size = 0;
};

} // namespace skeldon
