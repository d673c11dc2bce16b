#pragma once

#include "recorder/ByteStream.h"

#include <array>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

namespace skeldon {

/// Where one thread stores what arrives and another takes it. Memory is taken as bytes come and
/// given back as they are read, so that an announced size costs nothing. Locked per block of
/// bytes; a reader without bytes sleeps.
class CReceptionBuffer final : public CByteStream
{
public:
    /// Drops what is left of an earlier transfer; at most `capacity` bytes will be stored.
    void Start(std::uint64_t capacity);
    /// Drops everything; the stream is at its end.
    void Free();

    // The storing side.

    /// Stores bytes, of which there are at most `GetCapacity` in all.
    void Append(std::string_view bytes);
    /// No more bytes will come.
    void Finish();
    [[nodiscard]] std::uint64_t GetCapacity() const;
    [[nodiscard]] std::uint64_t GetWritten() const;

    // The taking side.

    /// Has `step` called every few hundredths of a second while a reader waits for bytes.
    void SetWhileWaiting(std::function<void()> step) { m_whileWaiting = std::move(step); }
    [[nodiscard]] std::string_view NextChunk() override;
    /// All bytes not taken yet, once no more will come.
    [[nodiscard]] std::string TakeAll();

private:
    static constexpr std::size_t BlockSize = 65536;
    // A reader that has used up all it had lets that much gather, for at most that long, before it
    // goes on: on a fast wire it would be woken for every few bytes.
    static constexpr std::uint64_t GatheredSize = 32768;
    static constexpr std::chrono::milliseconds GatherTime{10};
    /// Between two calls of `m_whileWaiting`.
    static constexpr std::chrono::milliseconds WaitStep{20};
    using Block = std::array<char, BlockSize>;

    void WaitForBytes(std::unique_lock<std::mutex>& guard);
    [[nodiscard]] std::string_view TakeChunk();
    [[nodiscard]] bool HasArrived() const
    {
        return m_rxWrite - m_rxRead >= m_rxWanted || m_finished;
    }

    std::function<void()> m_whileWaiting; ///< empty where the reader just sleeps
    mutable std::mutex m_rxLock;
    std::condition_variable m_rxArrived;
    std::deque<std::unique_ptr<Block>> m_rxBuffer; ///< the first block holds the byte `m_rxRead`
    std::unique_ptr<Block> m_spare;                ///< a block given back, for the next one
    std::uint64_t m_rxCapacity = 0;
    std::uint64_t m_rxWrite = 0;  ///< bytes stored so far
    std::uint64_t m_rxRead = 0;   ///< bytes handed out so far
    std::uint64_t m_rxWanted = 1; ///< bytes that a sleeping reader is woken for
    std::uint64_t m_rxFreed = 0;  ///< bytes in blocks given back; a multiple of the block size
    bool m_finished = true;
};

} // namespace skeldon
