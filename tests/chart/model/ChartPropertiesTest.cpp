#include "chart/model/ChartProperties.h"

namespace skeldon {
namespace {

TEST(ChartProperties, ColoursStandInTheOrderOfTheForm)
{
    std::vector<std::string> keys;
    for (std::size_t i = 0; i < ChartColourCount; ++i)
        keys.emplace_back(ColourChoice(i).key);
    EXPECT_THAT(keys,
                testing::ElementsAre("IconColorX", "IconColorY", "IconColorZ", "IconColorG",
                                     "IconColorC", "IconColorH", "IconColorItem", "IconColorMark"));
}

TEST(ChartProperties, StandardColoursAreThoseOfTheRecorders)
{
    EXPECT_THAT(StandardColours(), testing::ElementsAre(0xC50CC5, 0x800000, 0x008000, 0x008080,
                                                        0x0202C1, 0xF98B49, 0x000000, 0x0000FF));
}

TEST(ChartProperties, OnlyTwoIsThick)
{
    EXPECT_TRUE(IsOfferedAsThick(2));
    for (const int weight : {-1, 0, 1, 3, 4, 2000})
        EXPECT_FALSE(IsOfferedAsThick(weight)) << weight;
}

TEST(ChartProperties, AChoiceIsOneOrTwo)
{
    EXPECT_EQ(ChosenWeight(false), 1);
    EXPECT_EQ(ChosenWeight(true), 2);
}

} // namespace
} // namespace skeldon
