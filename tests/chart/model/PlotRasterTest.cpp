#include "chart/model/PlotRaster.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <vector>

namespace skeldon {
namespace {

constexpr std::uint32_t White = 0xFFFFFFFF;
constexpr std::uint32_t Ink = 0xFF0000FF;
constexpr int Side = 40;

/// A picture of 40 x 40 pixels.
using Picture = std::vector<std::uint32_t>;

Picture PictureOf(const CPlotRaster& raster)
{
    Picture picture(Side * Side, 0);
    raster.CopyTo(picture.data(), Side);
    return picture;
}

/// Sets the pixel if it lies in the area.
void Set(Picture& picture, const ChartRect& area, std::int64_t x, std::int64_t y)
{
    if (x >= area.left && x < area.right && y >= area.top && y < area.bottom)
        picture[static_cast<std::size_t>(y * Side + x)] = Ink;
}

/// The line pixel by pixel: along the longer direction, from left to right, each at the place
/// nearest to the true one, halves down in rows of flat lines and towards the right in columns of
/// steep ones.
void PlainLine(Picture& picture, const ChartRect& area, std::int64_t x1, std::int64_t y1,
               std::int64_t x2, std::int64_t y2, int width)
{
    if (x1 > x2) {
        std::swap(x1, x2);
        std::swap(y1, y2);
    }
    const std::int64_t dx = x2 - x1;
    const std::int64_t dy = y2 - y1;
    const std::int64_t steps = std::max(dx, std::abs(dy));
    for (std::int64_t i = 0; i <= steps; ++i) {
        const bool isFlat = dx > std::abs(dy);
        // Whole numbers only: floor of the exact place plus a half.
        const auto nearest = [&](std::int64_t part) {
            if (steps == 0)
                return std::int64_t{0};
            const std::int64_t twice = 2 * i * part + steps;
            std::int64_t place = twice / (2 * steps);
            if (twice < 0 && place * 2 * steps != twice)
                --place;
            return place;
        };
        const std::int64_t x = x1 + (isFlat ? i : nearest(dx));
        const std::int64_t y = y1 + (isFlat ? nearest(dy) : dy >= 0 ? i : -i);
        for (int w = -((width - 1) / 2); w <= width / 2; ++w) {
            if (steps == 0) {
                for (int v = -((width - 1) / 2); v <= width / 2; ++v)
                    Set(picture, area, x + w, y + v);
            } else {
                Set(picture, area, isFlat ? x : x + w, isFlat ? y + w : y);
            }
        }
    }
}

TEST(PlotRaster, DrawsLinesAsOneWouldPixelByPixel)
{
    std::mt19937 random(7);
    const ChartRect area{3, 5, 37, 31};
    for (int i = 0; i < 4000; ++i) {
        const int reach = i % 3 == 0 ? 2000 : 45;
        std::uniform_int_distribution<int> place(-reach / 4, reach);
        const int x1 = place(random);
        const int y1 = place(random);
        const int x2 = i % 5 == 0 ? x1 + i % 3 : place(random);
        const int y2 = i % 7 == 0 ? y1 : place(random);
        const int width = 1 + i % 4;
        CPlotRaster raster;
        raster.Reset(area, White);
        raster.Line(x1, y1, x2, y2, width, Ink);
        Picture plain(Side * Side, 0);
        for (int y = area.top; y < area.bottom; ++y)
            std::fill_n(plain.begin() + y * Side + area.left, area.right - area.left, White);
        PlainLine(plain, area, x1, y1, x2, y2, width);
        ASSERT_EQ(PictureOf(raster), plain)
            << x1 << ',' << y1 << " to " << x2 << ',' << y2 << " width " << width;
        Picture direct(Side * Side, 0);
        raster.DrawOn(area, direct.data(), Side);
        raster.Fill(area, White);
        raster.Line(x1, y1, x2, y2, width, Ink);
        ASSERT_EQ(direct, plain) << "drawn on the image";
    }
}

TEST(PlotRaster, DrawsBothEndPoints)
{
    CPlotRaster raster;
    raster.Reset({0, 0, Side, Side}, White);
    raster.Line(30, 2, 4, 20, 1, Ink);
    const Picture picture = PictureOf(raster);
    EXPECT_EQ(picture[2 * Side + 30], Ink);
    EXPECT_EQ(picture[20 * Side + 4], Ink);
}

TEST(PlotRaster, KeepsTheSlopeOfLinesWithFarEnds)
{
    // Half the way up between the far ends.
    CPlotRaster raster;
    raster.Reset({0, 0, Side, Side}, White);
    raster.Line(-32768, 20 + 32768, 32767, 20 - 32767, 1, Ink);
    const Picture picture = PictureOf(raster);
    for (int x = 0; x <= 20; ++x)
        EXPECT_EQ(picture[static_cast<std::size_t>((20 - x) * Side + x)], Ink) << x;
}

TEST(PlotRaster, FillsWithinItsAreaAlone)
{
    CPlotRaster raster;
    raster.Reset({10, 12, 14, 15}, White);
    raster.Fill({-100, 13, 100, 14}, Ink);
    const Picture picture = PictureOf(raster);
    EXPECT_EQ(std::ranges::count(picture, Ink), 4);
    EXPECT_EQ(std::ranges::count(picture, White), 8);
    EXPECT_EQ(picture[13 * Side + 10], Ink);
    EXPECT_EQ(picture[13 * Side + 14], 0U);
}

TEST(PlotRaster, AnAreaWithoutExtentHoldsNothing)
{
    CPlotRaster raster;
    raster.Reset({10, 12, 8, 11}, White);
    raster.Fill({0, 0, Side, Side}, Ink);
    raster.Line(0, 0, 30, 30, 3, Ink);
    EXPECT_EQ(std::ranges::count(PictureOf(raster), 0U), Side * Side);
}

} // namespace
} // namespace skeldon
