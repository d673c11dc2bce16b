#pragma once

#include "online/log/MonitorPending.h"

#include <cstddef>
#include <deque>
#include <string>

namespace skeldon {

/// The lines that the monitor's list shows: the oldest go when there are too many. Belongs to one
/// thread.
class CMonitorLines
{
public:
    static constexpr int DefaultMaxLines = 30000;

    [[nodiscard]] std::size_t Size() const { return m_lines.size(); }
    /// The line at `index`, which must exist; bytes of the data code page.
    [[nodiscard]] const std::string& Line(std::size_t index) const { return m_lines[index]; }
    /// Bytes of the longest line since the list was empty.
    [[nodiscard]] std::size_t LongestLine() const { return m_longest; }

    /// Whether `part` changes anything.
    [[nodiscard]] bool IsNews(const MonitorPart& part) const;
    /// Moves taken lines to the end. The first of them replaces a last line that was not complete.
    /// With the limit reached each line drops the first one, so that one more than the limit stay.
    void Add(const MonitorPart& part);
    /// Drops lines from the top until there are no more than the limit. False if there were none to
    /// drop.
    bool Trim();
    void Clear();

    int m_maxLines = DefaultMaxLines; ///< greatest number of lines kept

private:
    [[nodiscard]] bool IsLastOpen() const { return !m_listLineClosed && !m_lines.empty(); }
    [[nodiscard]] bool IsOverLimit() const;

    std::deque<std::string> m_lines;
    bool m_listLineClosed = false; ///< the last line is complete
    std::size_t m_longest = 0;
};

} // namespace skeldon
