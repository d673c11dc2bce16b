#include "korva-simulator/CommandReader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace skeldon::test {

namespace {

std::vector<std::string> Commands(std::string_view bytes)
{
    CCommandReader reader;
    std::vector<std::string> commands;
    for (const char byte : bytes) {
        if (const auto command = reader.Feed(byte))
            commands.push_back(*command);
    }
    return commands;
}

using List = std::vector<std::string>;

TEST(CommandReader, FindsEveryCommandWithoutATerminator)
{
    for (const char* const command : {"m",           "p",
                                      "i5",          "j^",
                                      "d05",         "k1",
                                      "N07",         "w90",
                                      "Ox99",        "Oz01",
                                      "z0",          "t",
                                      "D",           "G",
                                      "x",           "#",
                                      "w99",         "01",
                                      "02",          "10",
                                      "20",          "s2024 05/06 07:08:09",
                                      "l05/06 07:08"})
        EXPECT_EQ(Commands(command), List{command});
}

TEST(CommandReader, TellsCommandsThatComeInOnePieceApart)
{
    EXPECT_EQ(Commands("mpmi5jTd00k0N00w05Ox00Oz00z1mt"),
              (List{"m", "p", "m", "i5", "jT", "d00", "k0", "N00", "w05", "Ox00", "Oz00", "z1", "m",
                    "t"}));
}

TEST(CommandReader, WaitsForTheRestOfACommand)
{
    EXPECT_EQ(Commands("s2024 05/06 07:08:0"), List{});
    EXPECT_EQ(Commands("d0"), List{});
    EXPECT_EQ(Commands("1"), List{});
}

TEST(CommandReader, DropsWhatBelongsToNoCommand)
{
    EXPECT_EQ(Commands("\r\n\xFF?p"), List{"p"});
    EXPECT_EQ(Commands(std::string("\0\0p", 3)), List{"p"});
    EXPECT_EQ(Commands("d0p"), List{"p"}) << "the byte that breaks a command may begin one";
    EXPECT_EQ(Commands("Oy01t"), (List{"01", "t"}));
    EXPECT_EQ(Commands("s2024-05/06mp"), (List{"05", "06", "m", "p"}));
}

TEST(CommandReader, TakesExcessDigitsForACommandOfTheirOwn)
{
    EXPECT_EQ(Commands("d4900t"), (List{"d49", "00", "t"}));
}

TEST(CommandReader, ForgetsAPartialCommand)
{
    CCommandReader reader;
    EXPECT_FALSE(reader.Feed('d'));
    EXPECT_FALSE(reader.Feed('0'));
    reader.Reset();
    EXPECT_FALSE(reader.Feed('5'));
}

} // namespace

} // namespace skeldon::test
