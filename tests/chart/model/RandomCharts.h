#pragma once

#include "chart/model/PlainWalk.h"

#include <cstdint>
#include <random>

namespace skeldon {

/// Random lines and views of them: equal times, gaps, time running backwards, flags of every kind,
/// values that are no number or beyond every surface, windows of 100 ms and of years, plots wider
/// than 16 bits.
class CRandomCharts
{
public:
    explicit CRandomCharts(std::uint64_t seed)
        : m_random(seed)
    {}

    [[nodiscard]] std::int64_t Below(std::int64_t limit)
    {
        return static_cast<std::int64_t>(m_random() % static_cast<std::uint64_t>(limit));
    }
    [[nodiscard]] bool OneIn(std::int64_t chances) { return Below(chances) == 0; }

    [[nodiscard]] Lines MakeLines(std::int64_t count, bool mayFall);
    /// A view with the lines it draws; `most` is the widest plot.
    [[nodiscard]] WalkView MakeView(const Lines& lines, int most);

private:
    double Value(int kind);

    std::mt19937_64 m_random;
};

} // namespace skeldon
