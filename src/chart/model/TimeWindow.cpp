#include "chart/model/TimeWindow.h"

#include <algorithm>
#include <limits>

namespace skeldon {

void CTimeWindow::SetData(std::int64_t start, std::int64_t end)
{
    m_dataStart = start;
    m_dataEnd = end;
    UpdateScrollUnit();
}

void CTimeWindow::SetBarWidth(std::int64_t milliseconds)
{
    m_barWidthMs = milliseconds;
    SetView(m_viewStart, m_viewEnd);
    UpdateScrollUnit();
}

void CTimeWindow::SetView(std::int64_t start, std::int64_t end)
{
    m_viewStart = start;
    m_viewEnd = end;
    m_paddedStart = start - m_barWidthMs / 2;
    m_paddedEnd = end + m_barWidthMs / 2;
}

void CTimeWindow::LimitToData()
{
    SetView(std::max(m_viewStart, m_dataStart), std::min(m_viewEnd, m_dataEnd));
}

void CTimeWindow::UpdateScrollUnit()
{
    // A scroll position has 32 bits.
    constexpr std::int64_t LargestPosition = std::numeric_limits<std::int32_t>::max();
    constexpr double UnitPerMs = 4.656612875245797e-10;
    const std::int64_t range = m_barWidthMs + m_dataEnd - m_dataStart;
    m_scrollUnit = range > LargestPosition ? static_cast<double>(range) * UnitPerMs : 1.0;
}

void CTimeWindow::SetPlot(int left, int right)
{
    // A window without extent is drawn as if 5000 ms wide.
    constexpr double PixelsPerMsOfNoExtent = 0.0002;
    m_plotLeft = left;
    m_plotRight = std::max(right, left + 1);
    m_atMaxZoom = false;
    const double width = m_plotRight - m_plotLeft;
    if (m_viewStart >= m_viewEnd) {
        m_pixelsPerMs = width * PixelsPerMsOfNoExtent;
        return;
    }
    if (m_viewEnd - m_viewStart < NarrowestMs + 1) {
        SetView(m_viewStart, m_viewStart + NarrowestMs);
        m_atMaxZoom = true;
    }
    m_pixelsPerMs = width / static_cast<double>(m_paddedEnd - m_paddedStart);
}

std::int64_t CTimeWindow::TimeAt(int column) const
{
    return Truncate64((column - m_plotLeft) / m_pixelsPerMs) + m_paddedStart;
}

int CTimeWindow::HalfBar() const
{
    const std::int64_t halfMs = m_barWidthMs / 2; // cut to a whole one
    return RoundPixel(static_cast<double>(halfMs) * m_pixelsPerMs);
}

std::optional<CChartRange> CTimeWindow::Scrolled(ScrollRequest request, int tracked,
                                                 bool isCtrlDown) const
{
    const std::int64_t line = RoundPixel64(ScrollStep(isCtrlDown) / m_pixelsPerMs);
    const std::int64_t page = ScrollStepsPerPage * line;
    std::int64_t start = m_viewStart;
    switch (request) {
    case ScrollRequest::LineBack:
        start -= line;
        break;
    case ScrollRequest::LineForward:
        start += line;
        break;
    case ScrollRequest::PageBack:
        start -= page;
        break;
    case ScrollRequest::PageForward:
        start += page;
        break;
    case ScrollRequest::Thumb:
        start = RoundPixel64(tracked * m_scrollUnit) + m_dataStart;
        break;
    case ScrollRequest::Begin:
        start = m_dataStart;
        break;
    case ScrollRequest::End:
        start = m_dataEnd;
        break;
    }
    if (start == m_viewStart)
        return std::nullopt;
    const std::int64_t width = m_viewEnd - m_viewStart;
    start = std::max(start, m_dataStart);
    std::int64_t end = start + width;
    if (end > m_dataEnd) {
        end = m_dataEnd;
        start = std::max(end - width, m_dataStart);
    }
    return CChartRange{start, end};
}

ScrollBarState CTimeWindow::HorzScroll(bool hasLines) const
{
    if (!hasLines || ShowsAll())
        return {};
    const auto units = [this](std::int64_t milliseconds) {
        constexpr std::int64_t Largest = std::numeric_limits<std::int32_t>::max();
        const std::int64_t position =
            RoundPixel64(static_cast<double>(milliseconds) / m_scrollUnit);
        return static_cast<int>(std::clamp<std::int64_t>(position, -Largest, Largest));
    };
    return {true, units(m_dataEnd - m_dataStart), units(m_viewEnd - m_viewStart),
            units(m_viewStart - m_dataStart)};
}

CChartRange CTimeWindow::ZoomedIn() const
{
    const std::int64_t quarter = (m_viewEnd - m_viewStart) / 4;
    return {m_viewStart + quarter, m_viewEnd - quarter};
}

CChartRange CTimeWindow::CentredOn(std::int64_t time) const
{
    const std::int64_t width = m_viewEnd - m_viewStart;
    const CChartRange window{time - width / 2, time + width / 2};
    if (window.start < m_dataStart)
        return {m_dataStart, std::min(m_dataStart + width, m_dataEnd)};
    if (window.end > m_dataEnd)
        return {std::max(m_dataEnd - width, m_dataStart), m_dataEnd};
    return window;
}

CChartRange CTimeWindow::Between(int column, int otherColumn) const
{
    return {std::max(TimeAt(std::min(column, otherColumn)), m_dataStart),
            std::min(TimeAt(std::max(column, otherColumn)), m_dataEnd)};
}

} // namespace skeldon
