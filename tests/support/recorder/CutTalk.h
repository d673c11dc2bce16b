#pragma once

#include "support/recorder/VirtualRecorder.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace skeldon::test {

/// What a recorder is at the beginning of a conversation.
struct PlayedModel
{
    int type = 10;
    bool alpha = false;
    std::size_t lines = 0;
};

/// A place in a conversation: so many bytes have passed, either way.
struct Stage
{
    std::size_t bytes = 0;
    std::string name; ///< for people
};

/// The places at which something differs for the host: before the first byte, and in every run of
/// bytes that go one way behind the first, in the middle, before the last and behind it.
[[nodiscard]] std::vector<Stage> StagesOf(const Wire& wire);

/// The place behind `bytes` bytes, with what has passed last.
[[nodiscard]] std::string NameOf(const Wire& wire, std::size_t bytes);

/// How many bytes have passed when the host has sent `text`, of which nothing goes the other way in
/// between; for the `nth` time, counted from 0. All of them and one where that never comes.
[[nodiscard]] std::size_t SentAt(const Wire& wire, std::string_view text, std::size_t nth = 0);

/// A recorder and its cable in a virtual time, freshly plugged in.
struct PlayedRecorder
{
    explicit PlayedRecorder(const PlayedModel& model);

    /// The cable goes when so many more bytes have passed.
    void PullAt(std::size_t bytes);
    /// The faults are gone, and the cable is plugged in.
    void PlugAgain();

    CVirtualClock m_clock;
    CVirtualRecorder m_recorder{m_clock, 1};
};

} // namespace skeldon::test
