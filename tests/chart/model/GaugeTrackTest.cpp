#include "chart/model/GaugeTrack.h"

namespace skeldon {
namespace {

/// 9 ticks on a control of 228 rows: the first eight 25 rows apart.
CGaugeTrack Track()
{
    CGaugeTrack track;
    track.SetTickCount(9);
    track.SetHeight(228);
    return track;
}

TEST(GaugeTrack, PlacesItsTicksFromTheTop)
{
    EXPECT_EQ(Track().m_tickRows, (std::vector<int>{2, 27, 52, 77, 102, 127, 152, 177, 202}));
    // (i * (100 - 28) / 8 = 9 i), and the last one 26 rows above the bottom
    CGaugeTrack low = Track();
    low.SetHeight(101);
    EXPECT_EQ(low.m_tickRows, (std::vector<int>{2, 11, 20, 29, 39, 48, 57, 66, 75}));
}

TEST(GaugeTrack, RoundsRowsOfAControlThatIsTooLowTowardZero)
{
    CGaugeTrack track = Track();
    track.SetHeight(10);
    // -18 / 8 = -2.25 a tick: -1.75 to -1, -4 to -4, -6.25 to -6, ...
    EXPECT_EQ(track.m_tickRows, (std::vector<int>{2, 1, -2, -4, -6, -8, -11, -13, -16}));
}

TEST(GaugeTrack, MakesACountOfZeroOne)
{
    CGaugeTrack track;
    track.SetTickCount(0);
    track.SetHeight(100);
    EXPECT_EQ(track.m_tickCount, 1U);
    EXPECT_EQ(track.m_tickRows, std::vector<int>{74});
}

TEST(GaugeTrack, LimitsAStepThatIsSetAndForgetsThePreviousOne)
{
    CGaugeTrack track = Track();
    track.SetStep(4);
    EXPECT_EQ(track.m_step, 4U);
    EXPECT_EQ(track.m_previousStep, 4U);
    track.SetStep(9);
    EXPECT_EQ(track.m_step, 8U);
    EXPECT_EQ(track.m_previousStep, 8U);
}

TEST(GaugeTrack, ShowsTheFinestStepAtTheTop)
{
    CGaugeTrack track = Track();
    track.SetStep(8);
    EXPECT_EQ(track.ThumbRow(), 2);
    track.SetStep(0);
    EXPECT_EQ(track.ThumbRow(), 202);
    track.SetStep(7);
    EXPECT_EQ(track.ThumbRow(), 27);
}

TEST(GaugeTrack, TakesAThumbOnlyWithinItsPicture)
{
    CGaugeTrack track = Track();
    track.SetStep(8);
    EXPECT_FALSE(track.Press(1, 10));
    EXPECT_FALSE(track.Press(14, 10));
    EXPECT_FALSE(track.Press(5, 1));
    EXPECT_FALSE(track.Press(5, 26));
    EXPECT_TRUE(track.Press(2, 2));
    track.m_dragging = false;
    EXPECT_TRUE(track.Press(13, 25));
    EXPECT_EQ(track.m_grabOffset, 23);
    track.m_dragging = false;
    track.m_enabled = false;
    EXPECT_FALSE(track.Press(5, 5));
}

TEST(GaugeTrack, ChoosesTheTickNearestToADraggedThumb)
{
    CGaugeTrack track = Track();
    track.SetStep(8);
    ASSERT_TRUE(track.Press(5, 12));
    EXPECT_TRUE(track.Move(12 + 12));
    EXPECT_EQ(track.ThumbRow(), 14);
    // 2 * 14 is below 2 + 27: still the top tick
    EXPECT_TRUE(track.Release(24));
    EXPECT_EQ(track.m_step, 8U);
    EXPECT_EQ(track.m_previousStep, 8U);

    ASSERT_TRUE(track.Press(5, 12));
    EXPECT_TRUE(track.Move(12 + 13));
    // 2 * 15 is not
    EXPECT_TRUE(track.Release(25));
    EXPECT_EQ(track.m_step, 7U);
    EXPECT_EQ(track.m_previousStep, 8U);
    EXPECT_FALSE(track.m_dragging);
}

TEST(GaugeTrack, HoldsADraggedThumbOnTheControl)
{
    CGaugeTrack track = Track();
    track.SetStep(4);
    ASSERT_TRUE(track.Press(5, 110));
    EXPECT_TRUE(track.Move(-500));
    EXPECT_EQ(track.ThumbRow(), 2);
    EXPECT_TRUE(track.Move(900));
    EXPECT_EQ(track.ThumbRow(), 201);
    EXPECT_FALSE(track.Move(901));
    EXPECT_TRUE(track.Release(901));
    EXPECT_EQ(track.m_step, 0U);
    EXPECT_EQ(track.m_previousStep, 4U);
}

TEST(GaugeTrack, TakesAClickNearATick)
{
    CGaugeTrack track = Track();
    track.SetStep(8);
    // The middle of the thumb at the second tick is row 39.
    EXPECT_FALSE(track.Release(39 - 4));
    EXPECT_FALSE(track.Release(39 + 4));
    EXPECT_TRUE(track.Release(39 - 3));
    EXPECT_EQ(track.m_step, 7U);
    EXPECT_EQ(track.m_previousStep, 8U);
    // Also where the step is the same.
    EXPECT_TRUE(track.Release(39 + 3));
    EXPECT_EQ(track.m_step, 7U);
    EXPECT_EQ(track.m_previousStep, 7U);
    EXPECT_TRUE(track.Release(202 + 12));
    EXPECT_EQ(track.m_step, 0U);
}

TEST(GaugeTrack, IgnoresAMoveWithoutADrag)
{
    CGaugeTrack track = Track();
    EXPECT_FALSE(track.Move(50));
    EXPECT_EQ(track.ThumbRow(), 202);
}

TEST(GaugeTrack, TakesAStepFromTheKeyboardUnlessItIsDragged)
{
    CGaugeTrack track;
    track.SetTickCount(9);
    track.SetHeight(228);
    track.SetStep(3);
    EXPECT_TRUE(track.ChooseStep(5));
    EXPECT_EQ(track.m_step, 5U);
    EXPECT_EQ(track.m_previousStep, 3U);
    EXPECT_TRUE(track.ChooseStep(20));
    EXPECT_EQ(track.m_step, 8U);
    ASSERT_TRUE(track.Press(8, track.RowOfStep(8) + 3));
    EXPECT_FALSE(track.ChooseStep(0));
    EXPECT_EQ(track.m_step, 8U);
}

} // namespace
} // namespace skeldon
