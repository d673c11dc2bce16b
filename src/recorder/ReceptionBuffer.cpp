#include "recorder/ReceptionBuffer.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace skeldon {

void CReceptionBuffer::Start(std::uint64_t capacity)
{
    Free();
    const std::lock_guard guard(m_rxLock);
    m_rxCapacity = capacity;
    m_finished = false;
}

void CReceptionBuffer::Free()
{
    const std::lock_guard guard(m_rxLock);
    m_rxBuffer.clear();
    m_spare.reset();
    m_rxCapacity = 0;
    m_rxWrite = 0;
    m_rxRead = 0;
    m_rxFreed = 0;
    m_finished = true;
}

void CReceptionBuffer::Append(std::string_view bytes)
{
    bool isEnough = false;
    {
        const std::lock_guard guard(m_rxLock);
        while (!bytes.empty()) {
            const auto inBlock = static_cast<std::size_t>(m_rxWrite % BlockSize);
            if (m_rxWrite == m_rxFreed + m_rxBuffer.size() * BlockSize)
                m_rxBuffer.push_back(m_spare ? std::move(m_spare)
                                             : std::make_unique_for_overwrite<Block>());
            const std::size_t count = std::min(bytes.size(), BlockSize - inBlock);
            std::memcpy(m_rxBuffer.back()->data() + inBlock, bytes.data(), count);
            m_rxWrite += count;
            bytes.remove_prefix(count);
        }
        isEnough = HasArrived();
    }
    if (isEnough)
        m_rxArrived.notify_one();
}

void CReceptionBuffer::Finish()
{
    {
        const std::lock_guard guard(m_rxLock);
        m_finished = true;
    }
    m_rxArrived.notify_one();
}

std::uint64_t CReceptionBuffer::GetCapacity() const
{
    const std::lock_guard guard(m_rxLock);
    return m_rxCapacity;
}

std::uint64_t CReceptionBuffer::GetWritten() const
{
    const std::lock_guard guard(m_rxLock);
    return m_rxWrite;
}

std::string_view CReceptionBuffer::NextChunk()
{
    std::unique_lock guard(m_rxLock);
    if (m_rxWrite == m_rxRead)
        WaitForBytes(guard);
    return m_rxWrite > m_rxRead ? TakeChunk() : std::string_view("#");
}

void CReceptionBuffer::WaitForBytes(std::unique_lock<std::mutex>& guard)
{
    const auto hasArrived = [this] { return HasArrived(); };
    const auto gather = [&] {
        m_rxWanted = GatheredSize;
        m_rxArrived.wait_for(guard, GatherTime, hasArrived);
    };
    gather();
    if (m_rxWrite > m_rxRead || m_finished)
        return;
    m_rxWanted = 1;
    if (m_whileWaiting) {
        while (!m_rxArrived.wait_for(guard, WaitStep, hasArrived)) {
            guard.unlock();
            m_whileWaiting();
            guard.lock();
        }
    }
    m_rxArrived.wait(guard, hasArrived);
    gather();
}

std::string CReceptionBuffer::TakeAll()
{
    const std::lock_guard guard(m_rxLock);
    std::string all;
    all.reserve(static_cast<std::size_t>(m_rxWrite - m_rxRead));
    while (m_rxWrite > m_rxRead)
        all += TakeChunk();
    return all;
}

/// What is at hand of the block that holds the next byte; the blocks before it are given back.
std::string_view CReceptionBuffer::TakeChunk()
{
    if (m_rxRead - m_rxFreed == BlockSize) {
        m_spare = std::move(m_rxBuffer.front());
        m_rxBuffer.pop_front();
        m_rxFreed += BlockSize;
    }
    const std::uint64_t end = std::min(m_rxWrite, m_rxFreed + BlockSize);
    const std::string_view chunk(m_rxBuffer.front()->data() + (m_rxRead - m_rxFreed),
                                 static_cast<std::size_t>(end - m_rxRead));
    m_rxRead = end;
    return chunk;
}

} // namespace skeldon
