#pragma once

#include "chart/model/ChartTypes.h"

#include <optional>
#include <vector>

namespace skeldon {

/// Earlier time windows, the latest last.
class CZoomHistory
{
public:
    void Push(const CChartRange& window) { m_windows.push_back(window); }
    /// Takes the latest window away; nothing where there is none.
    std::optional<CChartRange> Pop()
    {
        if (m_windows.empty())
            return std::nullopt;
        const CChartRange window = m_windows.back();
        m_windows.pop_back();
        return window;
    }
    void Clear() { m_windows.clear(); }
    [[nodiscard]] bool IsEmpty() const { return m_windows.empty(); }

private:
    std::vector<CChartRange> m_windows;
};

} // namespace skeldon
