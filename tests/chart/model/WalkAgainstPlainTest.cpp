// The searches, the two walks and their extremes against scans and walks over every line, on random
// data.
#include "chart/model/PlainWalk.h"
#include "chart/model/RandomCharts.h"

#include <algorithm>

namespace skeldon {
namespace {

std::string Told(const ChartStroke& s)
{
    return "(" + std::to_string(s.x1) + "," + std::to_string(s.y1) + ")-(" + std::to_string(s.x2) +
           "," + std::to_string(s.y2) + ") series " + std::to_string(Index(s.series)) + " kind " +
           std::to_string(int(s.kind)) + (s.isDimmed ? " dimmed" : "");
}

/// Empty where both are the same, else the first difference.
std::string Difference(const std::vector<ChartStroke>& strokes,
                       const std::vector<ChartStroke>& plain)
{
    for (std::size_t i = 0; i < std::min(strokes.size(), plain.size()); ++i) {
        if (!(strokes[i] == plain[i]))
            return std::to_string(i) + ": " + Told(strokes[i]) + " for " + Told(plain[i]);
    }
    return strokes.size() == plain.size()
               ? std::string()
               : std::to_string(strokes.size()) + " strokes for " + std::to_string(plain.size());
}

struct Drawn
{
    CLineIndex index;
    Lines lines;
    WalkView view;
    int current = -1;
};

/// The data set of a seed: mostly small, some of many blocks, some with falling times.
Drawn Make(std::uint64_t seed, int most)
{
    CRandomCharts random(seed);
    Drawn drawn;
    const std::int64_t counts[] = {1, 2, 3, 20, 150, 150, 400};
    const std::int64_t count = seed % 50 == 0 ? 5000 : random.Below(1 + counts[seed % 7]);
    drawn.lines = random.MakeLines(count, random.OneIn(4));
    drawn.view = random.MakeView(drawn.lines, most);
    drawn.current = static_cast<int>(random.Below(count + 1)) - 1;
    if (drawn.view.lastLine >= 0 && random.OneIn(2)) {
        const int inView = drawn.view.lastLine - drawn.view.firstLine + 1;
        drawn.current = drawn.view.firstLine + static_cast<int>(random.Below(inView));
    }
    drawn.index.Build(drawn.lines);
    return drawn;
}

TEST(WalkAgainstPlain, GivesTheSameStrokesInTheSameOrder)
{
    std::size_t columns = 0;
    std::size_t stretches = 0;
    for (std::uint64_t seed = 1; seed <= 12000; ++seed) {
        SCOPED_TRACE(seed);
        const Drawn drawn = Make(seed, seed % 4 == 0 ? 40000 : 700);
        const PlainPicture plain = PlainLineChart(drawn.lines, drawn.view, drawn.current);
        std::vector<ChartStroke> strokes;
        CLineWalk(drawn.index, drawn.view).Walk(strokes);
        ASSERT_EQ(Difference(strokes, plain.strokes), "");
        const LineSpan span{drawn.view.firstLine, drawn.view.lastLine};
        ASSERT_EQ(CursorColumn(drawn.index, drawn.view.window, span, drawn.current, false),
                  plain.cursor);
        const ValueSpan extremes = DrawnLineExtremes(drawn.index, drawn.view);
        ASSERT_EQ(extremes.minimum, plain.visibleMin);
        ASSERT_EQ(extremes.maximum, plain.visibleMax);
        for (const ChartStroke& stroke : strokes)
            ++(stroke.kind == StrokeKind::Column ? columns : stretches);
    }
    // Little would be proved if lines never met in a column, or always did.
    EXPECT_GT(columns, 20000U);
    EXPECT_GT(stretches, 100000U);
}

/// A surface of bar colours: 0 is bare, 1 to 6 the series, 7 to 12 their lightened colours.
class CSurface
{
public:
    CSurface(int width, int top, int bottom)
        : m_width(width)
        , m_top(top)
        , m_bottom(bottom)
        , m_pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(bottom - top))
    {}

    void Paint(const std::vector<ChartBarFill>& fills)
    {
        constexpr char Edge = 13;
        for (const ChartBarFill& fill : fills) {
            const auto colour = static_cast<char>(1 + Index(fill.series) + (fill.isDimmed ? 6 : 0));
            for (int y = std::max(fill.rect.top, m_top); y < std::min(fill.rect.bottom, m_bottom);
                 ++y) {
                for (int x = std::max(fill.rect.left, 0); x < std::min(fill.rect.right, m_width);
                     ++x)
                    m_pixels[static_cast<std::size_t>((y - m_top) * m_width + x)] =
                        fill.kind == BarFillKind::Edge ? Edge : colour;
            }
        }
    }
    [[nodiscard]] bool operator==(const CSurface& other) const
    {
        return m_pixels == other.m_pixels;
    }
    [[nodiscard]] bool IsBare() const
    {
        return std::ranges::all_of(m_pixels, [](char pixel) { return pixel == 0; });
    }

private:
    int m_width;
    int m_top;
    int m_bottom;
    std::vector<char> m_pixels;
};

TEST(WalkAgainstPlain, PaintsTheSameBars)
{
    int painted = 0;
    std::size_t plainFills = 0;
    std::size_t fills = 0;
    for (std::uint64_t seed = 1; seed <= 5000; ++seed) {
        SCOPED_TRACE(seed);
        Drawn drawn = Make(seed, 120);
        CRandomCharts random(seed);
        // Half of the time the zero line lies near the surface.
        if (random.OneIn(2))
            drawn.view.scale.m_scrollY =
                drawn.view.scale.m_zeroY - static_cast<int>(random.Below(100)) + 20;
        const PlainPicture plain = PlainBarChart(drawn.lines, drawn.view, drawn.current);
        const int top = static_cast<int>(random.Below(60)) - 20;
        const int bottom = top + static_cast<int>(random.Below(100));
        CBarWalk walk(drawn.index, drawn.view, drawn.current, top, bottom);
        std::vector<ChartBarFill> visible;
        walk.Walk(visible);
        for (const ChartBarFill& fill : visible) {
            ASSERT_LT(fill.rect.top, fill.rect.bottom);
            ASSERT_GE(fill.rect.top, top);
            ASSERT_LE(fill.rect.bottom, bottom);
        }
        CSurface expected(260, top, bottom);
        CSurface surface(260, top, bottom);
        expected.Paint(plain.fills);
        surface.Paint(visible);
        ASSERT_TRUE(surface == expected);
        painted += surface.IsBare() ? 0 : 1;
        plainFills += plain.fills.size();
        fills += visible.size();
        const LineSpan span{drawn.view.firstLine, drawn.view.lastLine};
        ASSERT_EQ(CursorColumn(drawn.index, drawn.view.window, span, drawn.current, true),
                  plain.cursor);
        const ValueSpan extremes = DrawnBarExtremes(drawn.index, drawn.view);
        ASSERT_EQ(extremes.minimum, plain.visibleMin);
        ASSERT_EQ(extremes.maximum, plain.visibleMax);
    }
    EXPECT_GT(painted, 2000);
    EXPECT_LT(fills * 2, plainFills);
}

TEST(WalkAgainstPlain, FindsTheSameLines)
{
    int picked = 0;
    for (std::uint64_t seed = 1; seed <= 8000; ++seed) {
        SCOPED_TRACE(seed);
        const Drawn drawn = Make(seed, 700);
        const CTimeWindow& window = drawn.view.window;
        const LineSpan span = DrawnLines(drawn.index, window);
        ASSERT_EQ(span, PlainDrawnLines(drawn.lines, window));
        const LineSpan visible = GetVisibleLines(drawn.index, window);
        const LineSpan plainVisible = PlainVisibleLines(drawn.lines, window);
        ASSERT_EQ(visible, plainVisible);
        if (span.IsEmpty())
            continue;
        CRandomCharts random(seed);
        for (int round = 0; round < 5; ++round) {
            int column = static_cast<int>(random.Below(900)) - 50;
            const int near =
                span.first + static_cast<int>(random.Below(span.last - span.first + 1));
            const std::int64_t columnOfLine = window.Column(drawn.index.Time(near));
            if (random.OneIn(2) && FitsShort(columnOfLine))
                column = static_cast<int>(columnOfLine + random.Below(7) - 3);
            for (const bool isBarChart : {false, true})
                ASSERT_EQ(PickLine(drawn.index, window, span, column, isBarChart),
                          PlainPick(drawn.lines, window, span, column, isBarChart));
            const int popup = LineNear(drawn.index, window, span, column);
            ASSERT_EQ(popup, PlainNear(drawn.lines, window, span, column));
            picked += popup >= 0 ? 1 : 0;
            ASSERT_EQ(EqualTimes(drawn.index, span, near),
                      PlainEqualTimes(drawn.lines, span, near));
        }
    }
    EXPECT_GT(picked, 3000);
}

} // namespace
} // namespace skeldon
