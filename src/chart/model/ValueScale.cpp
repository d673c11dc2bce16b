#include "chart/model/ValueScale.h"

#include <algorithm>
#include <cstddef>

namespace skeldon {

namespace {

struct ScaleStep
{
    double divisor;
    double gridInterval;
};

constexpr std::array<ScaleStep, CValueScale::StepCount> ScaleSteps{{
    {3.0, 5.0},
    {2.0, 5.0},
    {1.0, 5.0},
    {0.5, 2.0},
    {0.2, 1.0},
    {0.1, 0.5},
    {0.05, 0.2},
    {0.025, 0.1},
    {0.02, 0.1},
}};

/// The divisor is units per so many pixels.
constexpr double PixelsPerDivisor = 9.0;
/// The axis shows -50 to +50.
constexpr double AxisSpan = 100.0;

const ScaleStep& StepAt(int step)
{
    return ScaleSteps[static_cast<std::size_t>(std::clamp(step, 0, CValueScale::StepCount - 1))];
}

} // namespace

double CValueScale::Divisor(int step)
{
    return StepAt(step).divisor;
}

double CValueScale::GridInterval(int step)
{
    return StepAt(step).gridInterval;
}

void CValueScale::SetStep(int step, int labelHeight)
{
    m_step = std::clamp(step, 0, StepCount - 1);
    m_divisor = Divisor(m_step);
    m_pixelsPerUnit = PixelsPerDivisor / m_divisor;
    m_plotBottom = RoundPixel(m_pixelsPerUnit * AxisSpan) + PlotTop;
    m_contentHeight = labelHeight / 2 + m_plotBottom;
    m_zeroY = (m_plotBottom - PlotTop) / 2 + PlotTop;
}

int CValueScale::AutomaticStep(double minimum, double maximum, int hgt)
{
    const double need = (maximum - minimum) * PixelsPerDivisor / hgt;
    for (int step = StepCount - 1; step > 0; --step) {
        if (need <= Divisor(step))
            return step;
    }
    return 0;
}

void CValueScale::ChangeStep(int step, int previousStep, int hgt, int labelHeight)
{
    const int middle = std::min(hgt / 2, m_zeroY);
    const int oldRow = middle + m_scrollY - PlotTop;
    SetStep(step, labelHeight);
    const int newRow = RoundPixel(oldRow * Divisor(previousStep) / m_divisor);
    m_scrollY = 0;
    if (hgt <= m_contentHeight)
        m_scrollY = std::min(std::max(newRow - middle + PlotTop, 0), m_contentHeight - hgt);
}

void CValueScale::CentreOn(double value, int hgt)
{
    const int above = Truncate(-PixelsPerDivisor / m_divisor * value);
    m_scrollY = std::max(0, above - hgt / 2 + m_zeroY);
}

void CValueScale::LimitScroll(int hgt)
{
    m_scrollY = hgt < m_contentHeight ? std::min(m_scrollY, m_contentHeight - hgt) : 0;
}

ScrollBarState CValueScale::VertScroll(int hgt) const
{
    if (hgt >= m_contentHeight)
        return {};
    return {true, m_contentHeight, hgt, std::min(m_scrollY, m_contentHeight - hgt)};
}

int CValueScale::Scrolled(ScrollRequest request, int tracked, bool isCtrlDown, int hgt) const
{
    const int step = ScrollStep(isCtrlDown);
    int position = m_scrollY;
    switch (request) {
    case ScrollRequest::LineBack:
        position -= step;
        break;
    case ScrollRequest::LineForward:
        position += step;
        break;
    case ScrollRequest::PageBack:
        position -= ScrollStepsPerPage * step;
        break;
    case ScrollRequest::PageForward:
        position += ScrollStepsPerPage * step;
        break;
    case ScrollRequest::Thumb:
        position = tracked;
        break;
    case ScrollRequest::Begin:
        position = 0;
        break;
    case ScrollRequest::End:
        position = m_contentHeight;
        break;
    }
    return std::max(std::min(position, m_contentHeight - hgt), 0);
}

} // namespace skeldon
