#pragma once

#include "chart/model/FieldValues.h"
#include "data/MeasureRecord.h"
#include "data/RecordArray.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace skeldon {

/// The least and the greatest of each quantity over some lines, in the records' own units.
class CValueRange
{
public:
    /// Of no line.
    CValueRange();
    explicit CValueRange(const CMeasureRecord& line);
    explicit CValueRange(std::span<const CMeasureRecord> lines);

    void Take(const CValueRange& other)
    {
        m_low.TakeLeast(other.m_low);
        m_high.TakeGreatest(other.m_high);
    }
    /// All of them.
    [[nodiscard]] const CSixValues& Lows() const { return m_low; }
    [[nodiscard]] const CSixValues& Highs() const { return m_high; }
    /// On the value axis.
    [[nodiscard]] double Low(Series series) const
    {
        return m_low[FieldOf(series)] * Info(series).factor;
    }
    [[nodiscard]] double High(Series series) const
    {
        return m_high[FieldOf(series)] * Info(series).factor;
    }

private:
    CSixValues m_low;
    CSixValues m_high;
};

/// What is precomputed over the lines of a chart, so that a picture costs by its columns and not by
/// its lines: the extremes of blocks of lines, of blocks of blocks and so on, the time at each
/// block's start, and where the time line falls. The lines are not owned; they must stay where and
/// as they are, or `Build` must run again. Costs less than 5 bytes a line of rising times.
///
/// Lines of rising or equal times in a row are a run. The lines before the first break of a data
/// set are one run; only a data set that was never analysed or whose years were repaired has more.
class CLineIndex
{
public:
    static constexpr int BlockLines = 32;
    static constexpr int Fan = 8;

    /// One pass over the lines.
    void Build(std::span<const CMeasureRecord> lines);
    void Clear() { Build({}); }

    [[nodiscard]] int Count() const { return static_cast<int>(m_lines.size()); }
    [[nodiscard]] bool IsEmpty() const { return m_lines.empty(); }
    [[nodiscard]] std::span<const CMeasureRecord> Lines() const { return m_lines; }
    [[nodiscard]] const CMeasureRecord& Line(int line) const
    {
        return m_lines[static_cast<std::size_t>(line)];
    }
    /// In milliseconds since the epoch.
    [[nodiscard]] std::int64_t Time(int line) const { return Line(line).TimeMs(); }

    /// Extremes over the lines from `first` to `last`, both included.
    [[nodiscard]] CValueRange Range(int first, int last) const;

    /// The line behind the last one of the run of `line`.
    [[nodiscard]] int RunEnd(int line) const;
    /// The first line of the run of `line`.
    [[nodiscard]] int RunStart(int line) const;
    /// The first line from `begin` to `end` - 1 at or after a time; `end` if there is none.
    [[nodiscard]] int FirstAtOrAfter(std::int64_t time, int begin, int end) const;
    /// The last line before `end` at or before a time; -1 if there is none.
    [[nodiscard]] int LastAtOrBefore(std::int64_t time, int end) const;

    /// The first line from `begin` on whose time no longer `holds`, or `end`. The lines must be of
    /// one run, and `holds` must not become true again as times rise. Cheap where it is near.
    template <typename Predicate>
    [[nodiscard]] int FirstNot(int begin, int end, Predicate holds) const;

    /// The last line from `begin` to `end` - 1 whose range `reaches`, or -1. `reaches` must be true
    /// for the range of some lines exactly if it is for that of one of them.
    template <typename Predicate>
    [[nodiscard]] int LastReaching(int begin, int end, Predicate reaches) const;

    /// Bytes held beside the lines.
    [[nodiscard]] std::size_t MemoryUse() const;

private:
    /// One step of the pyramid: `count` ranges of `lines` lines each from `offset` on.
    struct Level
    {
        std::size_t offset = 0;
        int count = 0;
        int lines = BlockLines;
    };

    /// The lines from `begin` to `end` - 1, none where that is less.
    [[nodiscard]] std::span<const CMeasureRecord> LinesFrom(int begin, int end) const
    {
        const auto first = static_cast<std::size_t>(begin);
        return m_lines.subspan(first, static_cast<std::size_t>(std::max(end - begin, 0)));
    }
    void TakeBlocks(CValueRange& range, int begin, int end) const;
    void BuildBlocks();
    void BuildLevels();
    [[nodiscard]] const CValueRange& Node(const Level& level, int node) const
    {
        return m_ranges[level.offset + static_cast<std::size_t>(node)];
    }
    template <typename Predicate>
    [[nodiscard]] int LastInNode(std::size_t level, int node, Predicate reaches) const;

    std::span<const CMeasureRecord> m_lines;
    std::vector<Level> m_levels;
    std::vector<CValueRange, CUnfilledAllocator<CValueRange>> m_ranges;
    std::vector<std::int64_t> m_blockTimes;
    std::vector<int> m_runStarts; ///< of all runs but the first
};

template <typename Predicate>
int CLineIndex::FirstNot(int begin, int end, Predicate holds) const
{
    constexpr int Near = 4;
    int low = begin; // all lines before it hold
    for (; low < end && low < begin + Near; ++low) {
        if (!holds(Time(low)))
            return low;
    }
    if (low >= end)
        return end;
    const int blocks = (end - 1) / BlockLines + 1;
    const auto blockHolds = [&](int block) {
        return holds(m_blockTimes[static_cast<std::size_t>(block)]);
    };
    int lowBlock = (low - 1) / BlockLines;
    int highBlock = lowBlock + 1;
    for (int stride = 1; highBlock < blocks && blockHolds(highBlock); stride *= 2) {
        lowBlock = highBlock;
        highBlock = stride < blocks - highBlock ? highBlock + stride : blocks;
    }
    while (highBlock - lowBlock > 1) {
        const int middle = lowBlock + (highBlock - lowBlock) / 2;
        (blockHolds(middle) ? lowBlock : highBlock) = middle;
    }
    low = std::max(low, lowBlock * BlockLines);
    int high = highBlock < blocks ? highBlock * BlockLines : end;
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (holds(Time(middle)))
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

template <typename Predicate>
int CLineIndex::LastReaching(int begin, int end, Predicate reaches) const
{
    while (end > begin) {
        // The largest node that ends here.
        std::size_t level = m_levels.size();
        while (level > 0 &&
               (end % m_levels[level - 1].lines != 0 || end - m_levels[level - 1].lines < begin))
            --level;
        if (level == 0) {
            --end;
            if (reaches(CValueRange(Line(end))))
                return end;
            continue;
        }
        const Level& nodes = m_levels[level - 1];
        const int node = end / nodes.lines - 1;
        if (reaches(Node(nodes, node)))
            return LastInNode(level - 1, node, reaches);
        end -= nodes.lines;
    }
    return -1;
}

template <typename Predicate>
int CLineIndex::LastInNode(std::size_t level, int node, Predicate reaches) const
{
    for (; level > 0; --level) {
        node = node * Fan + Fan - 1;
        while (!reaches(Node(m_levels[level - 1], node)))
            --node;
    }
    int line = node * BlockLines + BlockLines - 1;
    while (!reaches(CValueRange(Line(line))))
        --line;
    return line;
}

} // namespace skeldon
