#pragma once

#include "korva-simulator/LineFormat.h"

#include <cstdint>

namespace skeldon {

/// What the recorder is exposed to: it lies still, is knocked now and then, and goes through warm
/// days and cold nights. Everything follows from the seed and the time alone.
class CSurroundings
{
public:
    /// `countsPerG` is the recorder's scale; `step` the hundredths of a second between two lines,
    /// at least 1.
    CSurroundings(std::uint64_t seed, int countsPerG, std::int64_t step);

    /// What is measured at that moment of the recorder's calendar. A knock comes once in 2500
    /// lines and fades over a few.
    [[nodiscard]] Measurement At(std::int64_t centiseconds) const;

private:
    struct Knock
    {
        int counts = 0; ///< 0 where nothing knocks
        unsigned axis = 0;
    };

    [[nodiscard]] Knock KnockAt(std::int64_t line) const;
    [[nodiscard]] std::uint64_t Chance(std::int64_t line, std::uint64_t purpose) const;

    std::uint64_t m_seed;
    int m_countsPerG;
    std::int64_t m_step;
};

} // namespace skeldon
