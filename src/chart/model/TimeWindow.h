#pragma once

#include "chart/model/ChartTypes.h"
#include "chart/model/Rounding.h"

#include <cstdint>
#include <optional>

namespace skeldon {

/// The time axis: the window of milliseconds that is shown and its mapping to columns of the plot.
/// All times are milliseconds since the epoch.
class CTimeWindow
{
public:
    /// The narrowest window in milliseconds.
    static constexpr std::int64_t NarrowestMs = 100;
    /// Bar width where the lines give none.
    static constexpr std::int64_t PlainBarWidthMs = 2500;

    /// Time of the first and the last line.
    void SetData(std::int64_t start, std::int64_t end);
    void SetBarWidth(std::int64_t milliseconds);
    /// Shows a window; the padded bounds follow.
    void SetView(std::int64_t start, std::int64_t end);
    void ShowAll() { SetView(m_dataStart, m_dataEnd); }
    /// Takes away what of the window lies outside the data.
    void LimitToData();

    /// Recomputes the scale for a plot of these columns, which is at least one wide. A window
    /// below 101 ms is widened at its end and `m_atMaxZoom` tells so; one without extent is drawn
    /// as if 5000 ms wide.
    void SetPlot(int left, int right);

    /// Content column of a time; far outside the window it does not fit 16 bits.
    [[nodiscard]] std::int64_t Column(std::int64_t time) const
    {
        return RoundPixel64(static_cast<double>(time - m_paddedStart) * m_pixelsPerMs) + m_plotLeft;
    }
    /// The time at a content column, the fraction of a millisecond cut off.
    [[nodiscard]] std::int64_t TimeAt(int column) const;
    /// Half the width of a bar in columns.
    [[nodiscard]] int HalfBar() const;

    [[nodiscard]] CChartRange View() const { return {m_viewStart, m_viewEnd}; }
    [[nodiscard]] bool ShowsAll() const
    {
        return m_viewStart == m_dataStart && m_viewEnd == m_dataEnd;
    }

    /// The window that a request of the horizontal scroll bar leads to, which may be the present
    /// one at the data's end; nothing where the request itself is for the present place. `tracked`
    /// is the thumb's position.
    [[nodiscard]] std::optional<CChartRange> Scrolled(ScrollRequest request, int tracked,
                                                      bool isCtrlDown) const;
    [[nodiscard]] ScrollBarState HorzScroll(bool hasLines) const;
    /// The window less a quarter of its width at each end.
    [[nodiscard]] CChartRange ZoomedIn() const;
    /// A window as wide as this one about a time, moved back into the data.
    [[nodiscard]] CChartRange CentredOn(std::int64_t time) const;
    /// The window between two content columns, cut to the data.
    [[nodiscard]] CChartRange Between(int column, int otherColumn) const;

    std::int64_t m_dataStart = 0;
    std::int64_t m_dataEnd = 0;
    std::int64_t m_viewStart = 0;
    std::int64_t m_viewEnd = 0;
    std::int64_t m_paddedStart = 0; ///< `m_viewStart` less half a bar
    std::int64_t m_paddedEnd = 0;   ///< `m_viewEnd` and half a bar
    std::int64_t m_barWidthMs = 5000;
    double m_scrollUnit = 1.0; ///< milliseconds a unit of the horizontal scroll bar
    double m_pixelsPerMs = 1.0;
    bool m_atMaxZoom = false;
    int m_plotLeft = 0;
    int m_plotRight = 0;

private:
    void UpdateScrollUnit();
};

} // namespace skeldon
