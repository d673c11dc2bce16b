#include "recorder/WireNumber.h"
#include "recorder/PortPath.h"

#include <gtest/gtest.h>

namespace skeldon {
namespace {

TEST(ReadWireNumber, TakesDigitsAndSkipsCommas)
{
    EXPECT_EQ(ReadWireNumber("0"), 0U);
    EXPECT_EQ(ReadWireNumber("0012"), 12U);
    EXPECT_EQ(ReadWireNumber("1,234"), 1234U);
    EXPECT_EQ(ReadWireNumber(",1,,2,"), 12U);
    EXPECT_EQ(ReadWireNumber("4294967295"), 4294967295U);
}

TEST(ReadWireNumber, FailsOnAnythingElse)
{
    for (const char* text : {"", "-1", "+1", " 1", "1 ", "1.5", "0x10", "12a", "4294967296",
                             "99999999999999999999999999"})
        EXPECT_EQ(ReadWireNumber(text), std::nullopt) << text;
}

TEST(ReadSignedWireNumber, TakesALeadingSignAnd31Bits)
{
    EXPECT_EQ(ReadSignedWireNumber("-5"), -5);
    EXPECT_EQ(ReadSignedWireNumber("+5"), 5);
    EXPECT_EQ(ReadSignedWireNumber("05"), 5);
    EXPECT_EQ(ReadSignedWireNumber("2147483647"), 2147483647);
    for (const char* text : {"", "-", "+", "--5", "5-", "2147483648", "-2147483648", " 5"})
        EXPECT_EQ(ReadSignedWireNumber(text), std::nullopt) << text;
}

TEST(PortPath, TakesADevicePathAsItStands)
{
    EXPECT_EQ(PortPath("/dev/ttyUSB0"), "/dev/ttyUSB0");
    EXPECT_EQ(PortPath("./korva"), "./korva");
    EXPECT_EQ(PortPath("/dev/pts/17"), "/dev/pts/17");
}

TEST(PortPath, OpensPortNineByItsPlainNameAndPortTenByTheDevicePath)
{
    EXPECT_EQ(PortPath("COM9"), "COM9");
    EXPECT_EQ(PortPath("COM10"), R"(\\.\COM10)");
    EXPECT_EQ(PortPath("com3"), "com3");
    EXPECT_EQ(PortPath("LPT12"), R"(\\.\COM12)");
    EXPECT_EQ(PortPath("COM+5"), "COM+5");
    EXPECT_EQ(PortPath("COM-12"), "COM-12");
    EXPECT_EQ(PortPath("COM1,2"), R"(\\.\COM12)");
}

TEST(PortPath, FailsForAnyOtherName)
{
    for (const char* name : {"", "COM", "COMX", "CO3", "COM 3", "COM3 ", "ttyUSB0", "1234", "C3M4",
                             "korva", "COM99999999999"})
        EXPECT_EQ(PortPath(name), std::nullopt) << name;
}

} // namespace
} // namespace skeldon
