#include "korva-simulator/OutputQueue.h"

#include <utility>

namespace skeldon {

void COutputQueue::Append(std::string text)
{
    Push({.own = std::move(text), .memory = {}, .isOwn = true});
}

void COutputQueue::AppendView(std::string_view memory)
{
    Push({.own = {}, .memory = memory, .isOwn = false});
}

void COutputQueue::Push(Block block)
{
    if (block.Text().empty())
        return;
    m_size += block.Text().size();
    m_blocks.push_back(std::move(block));
}

void COutputQueue::Clear()
{
    m_blocks.clear();
    m_taken = 0;
    m_size = 0;
}

std::string_view COutputQueue::Front() const
{
    return m_blocks.empty() ? std::string_view() : m_blocks.front().Text().substr(m_taken);
}

void COutputQueue::Take(std::size_t count)
{
    m_taken += count;
    m_size -= count;
    if (!m_blocks.empty() && m_taken == m_blocks.front().Text().size()) {
        m_blocks.pop_front();
        m_taken = 0;
    }
}

} // namespace skeldon
