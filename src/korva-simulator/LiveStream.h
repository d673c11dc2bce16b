#pragma once

#include "korva-simulator/Surroundings.h"

#include <cstdint>
#include <string>

namespace skeldon {

/// The live stream of the axes: 200 lines a second, each "G", six digits and a carriage return.
class CLiveStream
{
public:
    static constexpr std::int64_t LinesPerSecond = 200;

    /// Begins at `nowMs` of the simulation, when the recorder's clock shows `clock` hundredths.
    CLiveStream(const CSurroundings& surroundings, std::int64_t nowMs, std::int64_t clock);

    /// The lines that have fallen due since the last call, at most `mostLines`; what is more is
    /// lost, as on a line that can not take it. The first piece begins in mid-line.
    [[nodiscard]] std::string Due(std::int64_t nowMs, std::int64_t mostLines, bool lineFeeds);
    /// When the next line falls due, in milliseconds of the simulation.
    [[nodiscard]] std::int64_t NextMs() const;

private:
    CSurroundings m_surroundings;
    std::int64_t m_startMs;
    std::int64_t m_clock;
    std::int64_t m_lines = 0;
};

} // namespace skeldon
