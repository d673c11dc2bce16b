#pragma once

#include "chart/model/ChartTypes.h"
#include "chart/model/Rounding.h"

#include <array>

namespace skeldon {

/// The value axis: -50 to +50 in nine scale steps, with what of it is scrolled off the top. Rows of
/// the content run from its top; the window shows them less `m_scrollY`.
///
/// `hgt`, where it is asked for, is the room above the time strip: the client height less the
/// horizontal scroll bar and the time strip.
class CValueScale
{
public:
    static constexpr int StepCount = 9;
    static constexpr int PlotTop = 24;
    /// Extremes where nothing counted: no value can be below the one and above the other.
    static constexpr double NoMinimum = 99999.0;
    static constexpr double NoMaximum = -99999.0;
    /// What stands in for them.
    static constexpr double EmptyMinimum = -0.01;
    static constexpr double EmptyMaximum = 0.01;

    /// Units per 9 pixels of a step, 0 the coarsest; a step outside is the nearest there is.
    [[nodiscard]] static double Divisor(int step);
    /// Units between two grid lines.
    [[nodiscard]] static double GridInterval(int step);

    /// Takes a step and lays out the content for it. `labelHeight` is the height of a label.
    void SetStep(int step, int labelHeight);
    [[nodiscard]] int GetStep() const { return m_step; }
    [[nodiscard]] double Divisor() const { return m_divisor; }
    [[nodiscard]] double PixelsPerUnit() const { return m_pixelsPerUnit; }

    /// Pixels of an axis value above the zero line, negative below it.
    [[nodiscard]] int Offset(double value) const { return RoundPixel(m_pixelsPerUnit * value); }
    /// Content row of an axis value.
    [[nodiscard]] int Row(double value) const { return m_zeroY - Offset(value); }

    /// The finest step at which the span fits into `hgt`; 0 if none does.
    [[nodiscard]] static int AutomaticStep(double minimum, double maximum, int hgt);
    /// Takes a step and keeps the value at the window's middle in place. `previousStep` is the step
    /// that the scroll position belongs to.
    void ChangeStep(int step, int previousStep, int hgt, int labelHeight);
    /// Scrolls an axis value to the window's middle as far as the top allows; the other end is the
    /// matter of `LimitScroll`.
    void CentreOn(double value, int hgt);
    /// Takes away what is scrolled too far, as an update of the scroll bar does.
    void LimitScroll(int hgt);
    [[nodiscard]] ScrollBarState VertScroll(int hgt) const;
    /// The scroll position that a request leads to. `tracked` is the thumb's.
    [[nodiscard]] int Scrolled(ScrollRequest request, int tracked, bool isCtrlDown, int hgt) const;

    int m_plotBottom = PlotTop; ///< `m_plotRect.bottom`
    int m_contentHeight = 0;    ///< everything above the time strip
    int m_zeroY = PlotTop;      ///< row of value 0
    int m_scrollY = 0;          ///< pixels scrolled off the top

private:
    int m_step = 0;
    double m_divisor = Divisor(0);
    double m_pixelsPerUnit = 9.0 / Divisor(0);
};

/// The extremes to scale by: where no series counted, a small span about 0.
struct ValueSpan
{
    double minimum = CValueScale::NoMinimum;
    double maximum = CValueScale::NoMaximum;

    bool operator==(const ValueSpan&) const = default;
    void Take(double low, double high)
    {
        minimum = low < minimum ? low : minimum;
        maximum = high > maximum ? high : maximum;
    }
    /// Itself, or the small span if its minimum is untouched.
    [[nodiscard]] ValueSpan OrEmpty() const
    {
        return minimum == CValueScale::NoMinimum
                   ? ValueSpan{CValueScale::EmptyMinimum, CValueScale::EmptyMaximum}
                   : *this;
    }
    [[nodiscard]] double Middle() const { return (minimum + maximum) / 2.0; }
};

} // namespace skeldon
