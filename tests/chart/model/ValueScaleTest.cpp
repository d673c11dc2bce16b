#include "chart/model/ValueScale.h"

#include <limits>

namespace skeldon {
namespace {

constexpr int LabelHeight = 15;

CValueScale At(int step)
{
    CValueScale scale;
    scale.SetStep(step, LabelHeight);
    return scale;
}

TEST(ValueScale, LaysOutTheContentForEachStep)
{
    const std::vector<int> heights{300, 450, 900, 1800, 4500, 9000, 18000, 36000, 45000};
    const std::vector<double> intervals{5.0, 5.0, 5.0, 2.0, 1.0, 0.5, 0.2, 0.1, 0.1};
    const std::vector<double> divisors{3.0, 2.0, 1.0, 0.5, 0.2, 0.1, 0.05, 0.025, 0.02};
    for (int step = 0; step < CValueScale::StepCount; ++step) {
        const auto i = static_cast<std::size_t>(step);
        const CValueScale scale = At(step);
        EXPECT_EQ(scale.Divisor(), divisors[i]);
        EXPECT_EQ(CValueScale::GridInterval(step), intervals[i]);
        EXPECT_EQ(scale.m_plotBottom, heights[i] + 24);
        EXPECT_EQ(scale.m_contentHeight, heights[i] + 24 + 7);
        EXPECT_EQ(scale.m_zeroY, heights[i] / 2 + 24);
    }
}

TEST(ValueScale, LimitsAStep)
{
    EXPECT_EQ(At(-1).GetStep(), 0);
    EXPECT_EQ(At(9).GetStep(), 8);
}

TEST(ValueScale, RoundsRowsOfNegativeValuesDifferently)
{
    const CValueScale scale = At(2); // 9 pixels a unit
    EXPECT_EQ(scale.Row(0.0), 474);
    EXPECT_EQ(scale.Row(1.0), 465);
    EXPECT_EQ(scale.Row(-1.0), 482);
    EXPECT_EQ(scale.Row(0.1), 473);
    EXPECT_EQ(scale.Row(-0.1), 474);
    EXPECT_EQ(scale.Row(-50.0), 474 + 449);
    EXPECT_EQ(scale.Row(50.0), 24);
}

TEST(ValueScale, ReachesFarRowsAtTheFinestStep)
{
    const CValueScale scale = At(8);
    EXPECT_EQ(scale.m_zeroY - scale.Row(50.0), 22500);
    EXPECT_EQ(scale.Row(60.0), 22524 - 27000);
    EXPECT_TRUE(scale.VertScroll(600).isEnabled);
    EXPECT_EQ(scale.VertScroll(600).maximum, 45031);
    EXPECT_EQ(scale.VertScroll(600).page, 600);
}

TEST(ValueScale, PicksTheFinestStepThatFits)
{
    // 9 * span / 450 is span / 50.
    EXPECT_EQ(CValueScale::AutomaticStep(0.0, 1.0, 450), 8);
    EXPECT_EQ(CValueScale::AutomaticStep(0.0, 1.01, 450), 7);
    EXPECT_EQ(CValueScale::AutomaticStep(-1.0, 1.5, 450), 6);
    EXPECT_EQ(CValueScale::AutomaticStep(-50.0, 50.0, 450), 1);
    EXPECT_EQ(CValueScale::AutomaticStep(-50.0, 50.5, 450), 0);
    EXPECT_EQ(CValueScale::AutomaticStep(-500.0, 500.0, 450), 0);
    EXPECT_EQ(CValueScale::AutomaticStep(0.0, 0.0, 450), 8);
    EXPECT_EQ(CValueScale::AutomaticStep(0.0, std::numeric_limits<double>::infinity(), 450), 0);
}

TEST(ValueScale, ScalesASmallSpanWhereNothingCounted)
{
    const ValueSpan none;
    EXPECT_EQ(none.OrEmpty(), (ValueSpan{-0.01, 0.01}));
    EXPECT_EQ(CValueScale::AutomaticStep(-0.01, 0.01, 450), 8);
    ValueSpan some;
    some.Take(2.0, 3.0);
    EXPECT_EQ(some.OrEmpty(), (ValueSpan{2.0, 3.0}));
    // The start is a value like any other: what lies beyond it does not count.
    ValueSpan beyond;
    beyond.Take(100000.0, 100001.0);
    EXPECT_EQ(beyond.OrEmpty(), (ValueSpan{-0.01, 0.01}));
}

TEST(ValueScale, KeepsTheValueAtTheMiddleWhenTheStepChanges)
{
    CValueScale scale = At(2);
    scale.m_scrollY = 300;
    // The middle is content row 500, 476 from the plot's top; twice that at half the divisor.
    scale.ChangeStep(3, 2, 400, LabelHeight);
    EXPECT_EQ(scale.m_scrollY, 952 - 200 + 24);
    EXPECT_EQ(scale.GetStep(), 3);
    scale.ChangeStep(2, 3, 400, LabelHeight);
    EXPECT_EQ(scale.m_scrollY, 300 + 0);
}

TEST(ValueScale, TakesTheMiddleNoLowerThanTheZeroLine)
{
    CValueScale scale = At(0); // zero line at 174, content 331
    scale.ChangeStep(2, 0, 600, LabelHeight);
    // From 174 in place of 300: 150 from the top becomes 450.
    EXPECT_EQ(scale.m_scrollY, 450 - 174 + 24);
}

TEST(ValueScale, LimitsTheScrollPositionAtAStepChange)
{
    CValueScale scale = At(8);
    scale.m_scrollY = 45031 - 400;
    scale.ChangeStep(3, 8, 400, LabelHeight);
    EXPECT_EQ(scale.m_scrollY, 1831 - 400);
    scale.m_scrollY = 0;
    scale.ChangeStep(2, 3, 400, LabelHeight);
    EXPECT_EQ(scale.m_scrollY, 0);
    scale.m_scrollY = 77;
    scale.ChangeStep(0, 2, 400, LabelHeight);
    EXPECT_EQ(scale.m_scrollY, 0);
}

TEST(ValueScale, CentresOnAValue)
{
    CValueScale scale = At(4); // 45 pixels a unit, zero line at 2274
    scale.CentreOn(0.0, 400);
    EXPECT_EQ(scale.m_scrollY, 2074);
    scale.CentreOn(10.0, 400);
    EXPECT_EQ(scale.m_scrollY, 2074 - 450);
    // Cut off, not rounded: 45 * 0.11 is 4.95.
    scale.CentreOn(-0.11, 400);
    EXPECT_EQ(scale.m_scrollY, 2078);
    scale.CentreOn(50.0, 400);
    EXPECT_EQ(scale.m_scrollY, 0);
    scale.CentreOn(-50.0, 400);
    EXPECT_EQ(scale.m_scrollY, 4324);
    scale.LimitScroll(400);
    EXPECT_EQ(scale.m_scrollY, 4531 - 400);
}

TEST(ValueScale, HasNoScrollBarWhereTheContentFits)
{
    CValueScale scale = At(0);
    scale.m_scrollY = 5;
    EXPECT_FALSE(scale.VertScroll(331).isEnabled);
    scale.LimitScroll(331);
    EXPECT_EQ(scale.m_scrollY, 0);
    scale.m_scrollY = 5;
    scale.LimitScroll(330);
    EXPECT_EQ(scale.m_scrollY, 1);
    EXPECT_TRUE(scale.VertScroll(330).isEnabled);
}

TEST(ValueScale, ScrollsByLinesAndPages)
{
    CValueScale scale = At(3);
    scale.m_scrollY = 500;
    const auto scrolled = [&scale](ScrollRequest request, bool isCtrlDown = false) {
        return scale.Scrolled(request, 321, isCtrlDown, 400);
    };
    EXPECT_EQ(scrolled(ScrollRequest::LineBack), 484);
    EXPECT_EQ(scrolled(ScrollRequest::LineForward), 516);
    EXPECT_EQ(scrolled(ScrollRequest::PageBack), 436);
    EXPECT_EQ(scrolled(ScrollRequest::PageForward), 564);
    EXPECT_EQ(scrolled(ScrollRequest::LineBack, true), 496);
    EXPECT_EQ(scrolled(ScrollRequest::LineForward, true), 504);
    EXPECT_EQ(scrolled(ScrollRequest::PageBack, true), 484);
    EXPECT_EQ(scrolled(ScrollRequest::PageForward, true), 516);
    EXPECT_EQ(scrolled(ScrollRequest::Thumb), 321);
    EXPECT_EQ(scrolled(ScrollRequest::Begin), 0);
    EXPECT_EQ(scrolled(ScrollRequest::End), 1831 - 400);
    scale.m_scrollY = 10;
    EXPECT_EQ(scrolled(ScrollRequest::LineBack), 0);
    scale.m_scrollY = 1430;
    EXPECT_EQ(scrolled(ScrollRequest::LineForward), 1431);
}

} // namespace
} // namespace skeldon
