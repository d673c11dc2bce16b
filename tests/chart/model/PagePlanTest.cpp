#include "chart/model/PagePlan.h"

namespace skeldon {
namespace {

using testing::ElementsAre;

/// A4 landscape at 600 dpi with margins of a sixth of an inch.
constexpr PrintPaper A4{600, 600, 6816, 4758};
constexpr NaturalSize Chart{900, 450, 0};
constexpr NaturalSize List{636, 16, 48};

PrintSettings ChartSettings(const PageForm& form)
{
    PrintSettings settings;
    settings.chart = form;
    return settings;
}

PrintSettings ListSettings(const PageForm& form)
{
    PrintSettings settings;
    settings.graph = 0;
    settings.list = form;
    return settings;
}

TEST(PagePlan, StartsWithTheChartInLandscapeAtFullZoom)
{
    const PrintSettings settings;
    EXPECT_EQ(settings.graph, 1);
    for (const PageForm& form : {settings.list, settings.chart}) {
        EXPECT_EQ(form.match, 0);
        EXPECT_EQ(form.horz, 1);
        EXPECT_EQ(form.zoom, 100);
        EXPECT_EQ(form.blank, PrintMargins{});
    }
    EXPECT_EQ(settings.mark, 1);
    EXPECT_EQ(settings.extract, 1);
}

TEST(PagePlan, TheDialogStoresTheChartFittedWithoutTints)
{
    const PrintSettings& settings = PrintDialogSettings;
    EXPECT_EQ(settings.graph, 1);
    for (const PageForm& form : {settings.list, settings.chart}) {
        EXPECT_EQ(form.match, 1);
        EXPECT_EQ(form.horz, 1);
        EXPECT_EQ(form.zoom, 100);
        EXPECT_EQ(form.blank, PrintMargins{});
    }
    EXPECT_EQ(settings.mark, 0);
    EXPECT_EQ(settings.extract, 0);
}

TEST(PagePlan, AFittedChartFillsThePaperLessOneMillimetre)
{
    const auto plan = PlanPages(PrintDialogSettings, A4, Chart, {});
    ASSERT_TRUE(plan);
    // A millimetre at 600 dpi is 23.6 pixels.
    EXPECT_EQ(*plan, (PagePlan{0, 0, 6793, 4735, 6793, 4735, 0, 0, 1}));
}

TEST(PagePlan, MarginsMoveAndShrinkThePicture)
{
    const auto plan = PlanPages(ChartSettings({1, 1, {10, 20, 30, 40}, 100}), A4, Chart, {});
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->left, 236);           // 236.2
    EXPECT_EQ(plan->top, 472);            // 472.4
    EXPECT_EQ(plan->width, 6816 - 968);   // 41 mm are 968.5
    EXPECT_EQ(plan->height, 4758 - 1440); // 61 mm are 1440.9
    EXPECT_EQ(plan->drawWidth, plan->width);
    EXPECT_EQ(plan->drawHeight, plan->height);
}

TEST(PagePlan, EachDirectionHasItsOwnResolution)
{
    const PrintPaper paper{300, 600, 3000, 4000};
    const auto plan = PlanPages(ChartSettings({1, 1, {5, 5, 0, 0}, 100}), paper, Chart, {});
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->left, 59);
    EXPECT_EQ(plan->top, 118);
    EXPECT_EQ(plan->width, 3000 - 70);
    EXPECT_EQ(plan->height, 4000 - 141);
}

TEST(PagePlan, AZoomedChartTakesAPointForEachPixel)
{
    const auto plan = PlanPages(ChartSettings({0, 1, {1, 2, 0, 0}, 50}), A4, {901, 450, 0}, {});
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->left, 23);
    EXPECT_EQ(plan->top, 47);
    EXPECT_EQ(plan->width, 3754); // 3754.2
    EXPECT_EQ(plan->height, 1875);
    EXPECT_EQ(plan->drawWidth, 3754);
    EXPECT_EQ(plan->drawHeight, 1875);
    EXPECT_EQ(plan->pageCount, 1);
}

TEST(PagePlan, AZoomedChartMayBeLargerThanThePaper)
{
    const auto plan = PlanPages(ChartSettings({0, 1, {}, 400}), A4, Chart, {});
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->width, 30000);
    EXPECT_EQ(plan->height, 15000);
}

TEST(PagePlan, PaperIsTooSmallBelowFiftyPixelsEachWay)
{
    // 25 dpi: the spare millimetre is less than a pixel.
    const PrintSettings fit = PrintDialogSettings;
    EXPECT_TRUE(PlanPages(fit, {25, 25, 50, 50}, Chart, {}));
    EXPECT_FALSE(PlanPages(fit, {25, 25, 49, 50}, Chart, {}));
    EXPECT_FALSE(PlanPages(fit, {25, 25, 50, 49}, Chart, {}));
    // Here it is 23 pixels.
    EXPECT_TRUE(PlanPages(fit, {600, 600, 73, 4758}, Chart, {}));
    EXPECT_FALSE(PlanPages(fit, {600, 600, 72, 4758}, Chart, {}));
}

TEST(PagePlan, MarginsWiderThanThePaperLeaveNothing)
{
    EXPECT_FALSE(PlanPages(ChartSettings({1, 1, {200, 0, 200, 0}, 100}), A4, Chart, {}));
    const int huge = 2147483647;
    EXPECT_FALSE(PlanPages(ChartSettings({1, 1, {huge, huge, huge, huge}, 100}), A4, Chart, {}));
}

TEST(PagePlan, ThePaperIsJudgedBeforeTheZoom)
{
    // The zoomed chart would be small enough for the paper, and large enough for itself.
    EXPECT_FALSE(PlanPages(ChartSettings({0, 1, {}, 100}), {600, 600, 60, 60}, Chart, {}));
    // A chart that is zoomed away is nobody's mistake but the zoom's.
    const auto plan = PlanPages(ChartSettings({0, 1, {}, 0}), A4, Chart, {});
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->width, 0);
    EXPECT_EQ(plan->height, 0);
}

TEST(PagePlan, AFittedListGrowsByWholeFactors)
{
    const auto plan = PlanPages(ListSettings({1, 1, {}, 100}), A4, List, {1, 100});
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->width, 6793);
    EXPECT_EQ(plan->drawWidth, 6793);
    EXPECT_EQ(plan->drawHeight, 160); // 6793 / 636 is 10
    EXPECT_EQ(plan->headHeight, 480);
    EXPECT_EQ(plan->linesPerPage, 26); // (4735 - 480) / 160
    EXPECT_EQ(plan->pageCount, 4);
}

TEST(PagePlan, AFittedListFollowsBothResolutions)
{
    const auto plan =
        PlanPages(ListSettings({1, 1, {}, 100}), {300, 600, 3400, 4758}, List, {1, 1});
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->drawHeight, 160); // 5 times 16 pixels, twice as many downward
    EXPECT_EQ(plan->headHeight, 480);
}

TEST(PagePlan, AZoomedListKeepsThePicturesSize)
{
    const auto plan = PlanPages(ListSettings({0, 1, {}, 100}), A4, List, {1, 40});
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->width, 6793);
    EXPECT_EQ(plan->height, 4735);
    EXPECT_EQ(plan->drawWidth, 5300);
    EXPECT_EQ(plan->drawHeight, 133);
    EXPECT_EQ(plan->headHeight, 400);
    EXPECT_EQ(plan->linesPerPage, 32);
    EXPECT_EQ(plan->pageCount, 2);
}

TEST(PagePlan, APageMoreHoldsTheRemainder)
{
    const auto pages = [](int first, int last) {
        return PlanPages(ListSettings({1, 1, {}, 100}), A4, List, {first, last})->pageCount;
    };
    EXPECT_EQ(pages(1, 1), 1);
    EXPECT_EQ(pages(1, 26), 1);
    EXPECT_EQ(pages(1, 27), 2);
    EXPECT_EQ(pages(27, 52), 1);
    EXPECT_EQ(pages(27, 79), 3);
}

TEST(PagePlan, AListWithoutRoomForALineIsTooSmall)
{
    const PrintSettings settings = ListSettings({1, 1, {}, 100});
    // Narrower than the list: the factor is 0.
    EXPECT_FALSE(PlanPages(settings, {25, 25, 600, 4000}, List, {1, 5}));
    // Head and line take 64 rows.
    EXPECT_TRUE(PlanPages(settings, {25, 25, 700, 64}, List, {1, 5}));
    EXPECT_FALSE(PlanPages(settings, {25, 25, 700, 63}, List, {1, 5}));
    EXPECT_FALSE(PlanPages(ListSettings({0, 1, {}, 0}), A4, List, {1, 5}));
}

TEST(PagePlan, EachPageHasItsLines)
{
    PagePlan plan;
    plan.linesPerPage = 26;
    const PrintLines lines{5, 60};
    EXPECT_EQ(LinesOfPage(plan, lines, 1), (PrintLines{5, 30}));
    EXPECT_EQ(LinesOfPage(plan, lines, 2), (PrintLines{31, 56}));
    EXPECT_EQ(LinesOfPage(plan, lines, 3), (PrintLines{57, 60}));
}

TEST(PagePlan, TheLastLineOfAllIsReached)
{
    PagePlan plan;
    plan.linesPerPage = 1000;
    const PrintLines lines{2147483000, 2147483647};
    EXPECT_EQ(LinesOfPage(plan, lines, 1), lines);
}

TEST(PagePlan, LinesDoNotFadeOnFinePrinters)
{
    EXPECT_EQ(PrintedLineWidth(2, 300), 2);
    EXPECT_EQ(PrintedLineWidth(2, 600), 4);
    EXPECT_EQ(PrintedLineWidth(1, 600), 2);
    EXPECT_EQ(PrintedLineWidth(3, 72), 3);
    EXPECT_EQ(PrintedLineWidth(1, 400), 1);
}

TEST(PagePlan, ASmallPictureIsOneBand)
{
    EXPECT_THAT(PlanBands({10, 110}, 4000, 400'000, 8), ElementsAre(RowBand{10, 110}));
    EXPECT_THAT(PlanBands({10, 10}, 4000, 400'000, 8), ElementsAre());
}

TEST(PagePlan, ALargePictureComesInBandsThatOverlap)
{
    EXPECT_THAT(PlanBands({10, 111}, 4000, 400'000, 8),
                ElementsAre(RowBand{10, 110}, RowBand{102, 111}));
    EXPECT_THAT(PlanBands({0, 25}, 1, 10, 1),
                ElementsAre(RowBand{0, 10}, RowBand{9, 19}, RowBand{18, 25}));
}

TEST(PagePlan, EveryBandGoesOnByARow)
{
    EXPECT_THAT(PlanBands({0, 3}, 4000, 100, 8),
                ElementsAre(RowBand{0, 1}, RowBand{1, 2}, RowBand{2, 3}));
}

TEST(PagePlan, AnA3PageNeedsBandsAndAnA4PageNone)
{
    const auto bands = [](int width, int height) {
        return PlanBands({0, height}, std::int64_t{width} * 4, PageBandBytes, 16).size();
    };
    EXPECT_EQ(bands(6793, 4735), 1U);
    EXPECT_EQ(bands(9900, 7016), 3U);
}

} // namespace
} // namespace skeldon
