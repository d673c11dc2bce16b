#include "chart/model/LineIndex.h"

#include <limits>

namespace skeldon {

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

} // namespace

CValueRange::CValueRange()
    : m_low(CSixValues::Filled(Infinity))
    , m_high(CSixValues::Filled(-Infinity))
{}

CValueRange::CValueRange(const CMeasureRecord& line)
    : m_low(DrawableFields(line))
    , m_high(m_low)
{}

CValueRange::CValueRange(std::span<const CMeasureRecord> lines)
    : CValueRange()
{
    // This is the one pass over a whole data set, so lines without a number are told by a sum, and
    // only theirs go the long way.
    CSixValues sum = CSixValues::Filled(0.0);
    for (const CMeasureRecord& line : lines) {
        const CSixValues values = FieldValues(line);
        m_low.TakeLeast(values);
        m_high.TakeGreatest(values);
        sum.Add(values);
    }
    if (sum.AreNumbers())
        return;
    *this = CValueRange();
    for (const CMeasureRecord& line : lines)
        Take(CValueRange(line));
}

void CLineIndex::Build(std::span<const CMeasureRecord> lines)
{
    m_lines = lines.first(std::min<std::size_t>(lines.size(), std::numeric_limits<int>::max() / 2));
    m_levels.clear();
    m_runStarts.clear();
    std::size_t ranges = 0;
    Level level{0, (Count() + BlockLines - 1) / BlockLines, BlockLines};
    m_blockTimes.resize(static_cast<std::size_t>(level.count));
    while (level.count > 0) {
        m_levels.push_back(level);
        ranges += static_cast<std::size_t>(level.count);
        if (level.count == 1)
            break;
        level = {ranges, (level.count + Fan - 1) / Fan, level.lines * Fan};
    }
    m_ranges.clear();
    if (m_ranges.capacity() > 2 * ranges)
        m_ranges.shrink_to_fit();
    m_ranges.resize(ranges);
    BuildBlocks();
    BuildLevels();
}

void CLineIndex::BuildBlocks()
{
    std::int64_t previous = std::numeric_limits<std::int64_t>::min();
    const int count = Count();
    for (int first = 0; first < count; first += BlockLines) {
        const int lines = std::min(BlockLines, count - first);
        const auto block = static_cast<std::size_t>(first / BlockLines);
        m_blockTimes[block] = Time(first);
        for (int line = first; line < first + lines; ++line) {
            const std::int64_t time = Time(line);
            if (time < previous)
                m_runStarts.push_back(line);
            previous = time;
        }
        m_ranges[block] = CValueRange(LinesFrom(first, first + lines));
    }
}

void CLineIndex::BuildLevels()
{
    for (std::size_t level = 1; level < m_levels.size(); ++level) {
        const Level& below = m_levels[level - 1];
        for (int node = 0; node < m_levels[level].count; ++node) {
            CValueRange range = Node(below, node * Fan);
            const int end = std::min((node + 1) * Fan, below.count);
            for (int child = node * Fan + 1; child < end; ++child)
                range.Take(Node(below, child));
            m_ranges[m_levels[level].offset + static_cast<std::size_t>(node)] = range;
        }
    }
}

CValueRange CLineIndex::Range(int first, int last) const
{
    // The lines before the first whole block, those behind the last one, and what lies between.
    const int end = last + 1;
    const int firstWhole = (first + BlockLines - 1) / BlockLines;
    const int endOfWhole = end / BlockLines;
    if (firstWhole >= endOfWhole)
        return CValueRange(LinesFrom(first, end));
    CValueRange range(LinesFrom(first, firstWhole * BlockLines));
    range.Take(CValueRange(LinesFrom(endOfWhole * BlockLines, end)));
    TakeBlocks(range, firstWhole, endOfWhole);
    return range;
}

/// Takes in the blocks from `begin` to `end` - 1, by the largest nodes there are.
void CLineIndex::TakeBlocks(CValueRange& range, int begin, int end) const
{
    for (std::size_t level = 0; begin < end; ++level) {
        const Level& nodes = m_levels[level];
        while (begin < end && begin % Fan != 0)
            range.Take(Node(nodes, begin++));
        while (begin < end && end % Fan != 0)
            range.Take(Node(nodes, --end));
        begin /= Fan;
        end /= Fan;
    }
}

int CLineIndex::RunEnd(int line) const
{
    const auto next = std::ranges::upper_bound(m_runStarts, line);
    return next == m_runStarts.end() ? Count() : *next;
}

int CLineIndex::RunStart(int line) const
{
    const auto next = std::ranges::upper_bound(m_runStarts, line);
    return next == m_runStarts.begin() ? 0 : *(next - 1);
}

int CLineIndex::FirstAtOrAfter(std::int64_t time, int begin, int end) const
{
    while (begin < end) {
        const int runEnd = std::min(RunEnd(begin), end);
        const int line = FirstNot(begin, runEnd, [time](std::int64_t t) { return t < time; });
        if (line < runEnd)
            return line;
        begin = runEnd;
    }
    return end;
}

int CLineIndex::LastAtOrBefore(std::int64_t time, int end) const
{
    while (end > 0) {
        const int begin = RunStart(end - 1);
        const int line = FirstNot(begin, end, [time](std::int64_t t) { return t <= time; });
        if (line > begin)
            return line - 1;
        end = begin;
    }
    return -1;
}

std::size_t CLineIndex::MemoryUse() const
{
    return m_levels.capacity() * sizeof(Level) + m_ranges.capacity() * sizeof(CValueRange) +
           m_blockTimes.capacity() * sizeof(std::int64_t) + m_runStarts.capacity() * sizeof(int);
}

} // namespace skeldon
