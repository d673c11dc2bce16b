#include "korva-simulator/SyntheticMemory.h"

#include "korva-simulator/Surroundings.h"
#include "setup/tables/IntervalTable.h"

#include <algorithm>
#include <string>

namespace skeldon {

namespace {

/// The longest interval that is not above `step`, else the shortest.
char IntervalFor(std::int64_t step, int type)
{
    const int last = type == OldestType ? IntervalTable::LastMinuteRow : IntervalTable::Count - 1;
    for (int row = 0; row < last; ++row) {
        const char interval = IntervalTable::Character(row);
        if (IntervalSeconds(interval) * 100 <= step)
            return interval;
    }
    return IntervalTable::Character(last);
}

} // namespace

std::int64_t DefaultStep(std::size_t count)
{
    constexpr std::int64_t Longest = 500;
    constexpr std::int64_t Span = 20000 * Longest;
    if (count == 0)
        return Longest;
    return std::clamp<std::int64_t>(Span / static_cast<std::int64_t>(count), 1, Longest);
}

void FillMemory(RecorderState& state, const SyntheticLines& lines)
{
    const CSurroundings surroundings(state.seed, state.Model().countsPerG, lines.step);
    const LineKind kind = state.Kind();
    state.conditions.interval = IntervalFor(lines.step, state.type);
    state.begun = lines.from;
    state.capacity = std::max(state.capacity, lines.count);
    state.memory.Clear();
    state.memory.Reserve(lines.count, LineDigits(kind));
    std::string line;
    std::int64_t time = lines.from * 100;
    for (std::size_t i = 0; i < lines.count; ++i, time += lines.step) {
        line.clear();
        AppendLine(line, kind, surroundings.At(time));
        state.memory.Append(line);
    }
}

} // namespace skeldon
