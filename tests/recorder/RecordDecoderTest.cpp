#include "recorder/RecordDecoder.h"

#include "data/RecordFlags.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace skeldon {
namespace {

RecorderStatus Recorder(int type, int countsPerG, bool alpha, int lineLength)
{
    RecorderStatus status;
    status.m_type = type;
    status.m_countsPerG = countsPerG;
    status.m_alphaFirmware = alpha;
    status.m_lineLength = lineLength;
    status.m_year = 2024;
    return status;
}

RecorderStatus Oldest()
{
    return Recorder(0, 10, false, 18);
}
RecorderStatus Standard()
{
    return Recorder(10, 10, false, 20);
}
RecorderStatus Alpha(int type = 10, int countsPerG = 10)
{
    return Recorder(type, countsPerG, true, 22);
}

struct Decoded
{
    bool valid;
    CMeasureRecord record;
};

Decoded Decode(const RecorderStatus& status, const std::string& line, bool hasHumidity = true)
{
    CRecordDecoder decoder(status, hasHumidity);
    Decoded decoded{false, CMeasureRecord(0)};
    decoded.valid = decoder.DecodeLine(line, decoded.record);
    return decoded;
}

// May 21st 13:45:58, low bits 0: month 0101 00, day 10101, hour 01101, minute 101101, second
// 111010, 0000.
const std::string Time = "52ADB7A0";

TEST(HexByteSigned, ReadsTwoDigitsAsTwosComplement)
{
    EXPECT_EQ(HexByteSigned("00", 0), 0);
    EXPECT_EQ(HexByteSigned("7F", 0), 127);
    EXPECT_EQ(HexByteSigned("80", 0), -128);
    EXPECT_EQ(HexByteSigned("xFF0", 1), -1);
}

TEST(HexByteSigned, TestsNothing)
{
    // "a" is 97 - 55 = 42 and "g" 103 - 55 = 48; a blank is 32 - 48 = -16.
    EXPECT_EQ(HexByteSigned("0a", 0), 42);
    EXPECT_EQ(HexByteSigned("0g", 0), 48);
    EXPECT_EQ(HexByteSigned("1 ", 0), 0);
    EXPECT_EQ(HexByteSigned("a0", 0), static_cast<std::int8_t>(42 * 16));
}

TEST(DecodeLine, TakesTheTimeOutOfPackedBits)
{
    const Decoded decoded = Decode(Standard(), Time + "0000000000");
    EXPECT_TRUE(decoded.valid);
    EXPECT_EQ(ToLocalFields(decoded.record.m_time), (CalendarFields{2024, 5, 21, 13, 45, 58}));
    EXPECT_EQ(decoded.record.m_msec, 0U);
}

TEST(DecodeLine, Reads4820AsAprilFirst)
{
    const Decoded decoded = Decode(Standard(), "48200000000000000000");
    EXPECT_TRUE(decoded.valid);
    EXPECT_EQ(ToLocalFields(decoded.record.m_time), (CalendarFields{2024, 4, 1, 0, 0, 0}));
}

TEST(DecodeLine, ForcesALineOfZerosToNewYear)
{
    for (const RecorderStatus& status : {Oldest(), Standard(), Alpha()}) {
        const Decoded decoded = Decode(status, std::string(20, '0'));
        EXPECT_FALSE(decoded.valid);
        EXPECT_EQ(ToLocalFields(decoded.record.m_time), (CalendarFields{2024, 1, 1, 0, 0, 0}));
    }
}

TEST(DecodeLine, ForcesEachFieldToItsNearestEnd)
{
    // All time bits set: month 15, day 31, hour 31, minute 63, second 63.
    const Decoded decoded = Decode(Standard(), "FFFFFFF00000000000");
    EXPECT_FALSE(decoded.valid);
    EXPECT_EQ(ToLocalFields(decoded.record.m_time), (CalendarFields{2024, 12, 31, 23, 59, 59}));
}

TEST(DecodeLine, TellsEachFieldOutOfRange)
{
    const auto line = [](unsigned month, unsigned day, unsigned hour, unsigned minute,
                         unsigned second) {
        char text[24];
        std::snprintf(text, sizeof text, "%08X0000000000",
                      month << 28 | day << 21 | hour << 16 | minute << 10 | second << 4);
        return std::string(text);
    };
    EXPECT_TRUE(Decode(Standard(), line(1, 1, 0, 0, 0)).valid);
    EXPECT_TRUE(Decode(Standard(), line(12, 31, 23, 59, 59)).valid);
    EXPECT_FALSE(Decode(Standard(), line(0, 1, 0, 0, 0)).valid);
    EXPECT_FALSE(Decode(Standard(), line(13, 1, 0, 0, 0)).valid);
    EXPECT_FALSE(Decode(Standard(), line(1, 0, 0, 0, 0)).valid);
    EXPECT_FALSE(Decode(Standard(), line(1, 1, 24, 0, 0)).valid);
    EXPECT_FALSE(Decode(Standard(), line(1, 1, 0, 60, 0)).valid);
    EXPECT_FALSE(Decode(Standard(), line(1, 1, 0, 0, 60)).valid);
}

TEST(DecodeLine, IgnoresTheUnusedBits)
{
    EXPECT_EQ(Decode(Standard(), "5EADB7A00000000000").record.m_time,
              Decode(Standard(), "52ADB7A00000000000").record.m_time);
}

TEST(DecodeLine, RollsADayBeyondTheMonthOver)
{
    // February 30th of a leap year.
    const Decoded decoded = Decode(Standard(), "23C000000000000000");
    EXPECT_TRUE(decoded.valid);
    EXPECT_EQ(ToLocalFields(decoded.record.m_time), (CalendarFields{2024, 3, 1, 0, 0, 0}));
}

TEST(DecodeLine, ScalesTheAxesByTheModel)
{
    const Decoded ten = Decode(Standard(), Time + "7F80" + "010000");
    EXPECT_EQ(ten.record.m_x, 12.7);
    EXPECT_EQ(ten.record.m_y, -12.8);
    EXPECT_EQ(ten.record.m_z, 0.1);
    EXPECT_EQ(ten.record.m_resultant, std::sqrt(12.7 * 12.7 + -12.8 * -12.8 + 0.1 * 0.1));
    EXPECT_EQ(Decode(Alpha(1, 100), Time + "7F0000000000").record.m_x, 1.27);
    EXPECT_EQ(Decode(Alpha(50, 2), Time + "810000000000").record.m_x, -63.5);
    EXPECT_EQ(Decode(Alpha(50, 2), Time + "7F0000000000").record.m_x, 63.5);
    EXPECT_EQ(Decode(Alpha(3, 40), Time + "030000000000").record.m_x, 3 / 40.0);
}

TEST(DecodeLine, CountsANegativeTemperatureFromTheNextHigherDegree)
{
    const auto temperature = [](const std::string& tenths, const std::string& degrees) {
        return Decode(Standard(), "52ADB7A" + tenths + "000000" + degrees + "00")
            .record.m_temperature;
    };
    EXPECT_EQ(temperature("0", "19"), 25.0);
    EXPECT_EQ(temperature("5", "19"), 5 * 0.1 + 25);
    EXPECT_EQ(temperature("5", "FF"), -0.5);
    EXPECT_EQ(temperature("5", "FE"), -1.5);
    EXPECT_EQ(temperature("0", "FF"), 0.0);
    EXPECT_FALSE(std::signbit(temperature("0", "FF")));
    EXPECT_EQ(temperature("F", "80"), -15 * 0.1 + -127);
}

TEST(DecodeLine, TakesHundredthsAsMilliseconds)
{
    const auto decode = [](const std::string& hundredths) {
        return Decode(Standard(), Time + "00000000" + hundredths);
    };
    EXPECT_EQ(decode("01").record.m_msec, 10U);
    EXPECT_EQ(decode("63").record.m_msec, 990U);
    EXPECT_TRUE(decode("63").valid);
    EXPECT_EQ(decode("64").record.m_msec, 1000U);
    EXPECT_FALSE(decode("64").valid);
    EXPECT_EQ(decode("FF").record.m_msec, static_cast<std::uint32_t>(-10));
    EXPECT_FALSE(decode("FF").valid);
    // The date stays as it is where only the milliseconds are wrong.
    EXPECT_EQ(ToLocalFields(decode("64").record.m_time), (CalendarFields{2024, 5, 21, 13, 45, 58}));
}

TEST(DecodeLine, CutsTheHumidityToPercent)
{
    const auto humidity = [](const std::string& byte, bool hasHumidity) {
        return Decode(Alpha(), Time + "0000000000" + byte, hasHumidity).record.m_humidity;
    };
    EXPECT_EQ(humidity("2A", true), 42.0);
    EXPECT_EQ(humidity("FF", true), 0.0);
    EXPECT_EQ(humidity("00", true), 0.0);
    EXPECT_EQ(humidity("64", true), 100.0);
    EXPECT_EQ(humidity("7F", true), 100.0);
    EXPECT_EQ(humidity("2A", false), 0.0);
    // Without alpha firmware there is no such byte.
    EXPECT_EQ(Decode(Standard(), Time + "00000000002A", true).record.m_humidity, 0.0);
}

TEST(DecodeLine, ReadsTheOldestLayoutWithSixteenthsOfASecond)
{
    const auto decode = [](char sixteenths) {
        return Decode(Oldest(), std::string("52ADB7A") + sixteenths + "0AF605FE");
    };
    const Decoded decoded = decode('0');
    EXPECT_TRUE(decoded.valid);
    EXPECT_EQ(decoded.record.m_x, 10 * 0.1);
    EXPECT_EQ(decoded.record.m_y, -10 * 0.1);
    EXPECT_EQ(decoded.record.m_z, 5 * 0.1);
    EXPECT_EQ(decoded.record.m_temperature, -2.0);
    EXPECT_EQ(decoded.record.m_humidity, 0.0);
    const unsigned msec[] = {0,   63,  125, 188, 250, 313, 375, 438,
                             500, 563, 625, 688, 750, 813, 875, 938};
    for (unsigned i = 0; i < 16; ++i)
        EXPECT_EQ(decode("0123456789ABCDEF"[i]).record.m_msec, msec[i]) << i;
}

TEST(DecodeLine, ScalesTheOldestAlwaysByATenth)
{
    RecorderStatus status = Oldest();
    status.m_countsPerG = 2;
    EXPECT_EQ(Decode(status, Time + "7F000000").record.m_x, 127 * 0.1);
    EXPECT_NE(127 * 0.1, 127 / 10.0); // which is why the two scales are told apart
}

TEST(DecodeLine, TakesTheNewerLayoutOfAnAlphaRecorderWithoutType)
{
    const Decoded decoded = Decode(Recorder(0, 10, true, 22), Time + "00000000" + "0A" + "14");
    EXPECT_EQ(decoded.record.m_msec, 100U);
    EXPECT_EQ(decoded.record.m_humidity, 20.0);
}

TEST(DecodeLine, LeavesTheFlagsAlone)
{
    CRecordDecoder decoder(Standard(), false);
    CMeasureRecord record;
    record.SetFlags(RecordFlag::Abnormal | RecordFlag::Marked);
    EXPECT_TRUE(decoder.DecodeLine(Time + "0000000000", record));
    EXPECT_EQ(record.m_flags, RecordFlag::Abnormal | RecordFlag::Marked);
    EXPECT_EQ(record.m_checkKey, record.CheckKey());
}

TEST(DecodePlainLine, RefusesWhatIsNoUpperCaseDigit)
{
    using PlainLine = CRecordDecoder::PlainLine;
    for (const RecorderStatus& status : {Oldest(), Standard(), Alpha()}) {
        CRecordDecoder decoder(status, true);
        const std::string good = (Time + "0A0B0C190014").substr(0, decoder.LineDigits());
        for (std::size_t at = 0; at < good.size(); ++at) {
            for (int c = 0; c < 256; ++c) {
                std::string line = good;
                line[at] = static_cast<char>(c);
                CMeasureRecord record(5);
                const bool isDigit = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F');
                const PlainLine result = decoder.DecodePlainLine(line.data(), record);
                EXPECT_EQ(result == PlainLine::NotPlain, !isDigit) << at << ' ' << c;
                EXPECT_EQ(record.m_time == 5, !isDigit);
            }
        }
        CMeasureRecord record(5);
        EXPECT_EQ(decoder.DecodePlainLine(good.data(), record), PlainLine::Valid);
        EXPECT_EQ(record.m_z, status.m_type == 0 ? 12 * 0.1 : 1.2);
        const std::string zeros(20, '0');
        EXPECT_EQ(decoder.DecodePlainLine(zeros.data(), record), PlainLine::Invalid);
    }
}

TEST(DecodeLine, KnowsTheDayAgainAndTheNextDay)
{
    // One decoder over days, an impossible date, the days on which the clock is changed, and back.
    CRecordDecoder decoder(Standard(), false);
    const int dates[][2] = {{5, 6},   {5, 6},  {5, 7}, {2, 30}, {3, 1}, {2, 30}, {3, 31},
                            {10, 27}, {3, 31}, {5, 6}, {0, 6},  {5, 0}, {13, 1}, {5, 6}};
    for (const auto& date : dates) {
        for (const int hour : {0, 1, 2, 3, 23, 24}) {
            char line[24];
            std::snprintf(line, sizeof line, "%08X0000000000",
                          static_cast<unsigned>(date[0]) << 28 |
                              static_cast<unsigned>(date[1]) << 21 |
                              static_cast<unsigned>(hour) << 16 | 30U << 10 | 59U << 4);
            CMeasureRecord record(5);
            decoder.DecodeLine(line, record);
            EXPECT_EQ(record.m_time,
                      FromLocalFields({2024, std::clamp(date[0], 1, 12), std::max(date[1], 1),
                                       std::min(hour, 23), 30, 59}))
                << date[0] << '/' << date[1] << ' ' << hour;
        }
    }
}

} // namespace
} // namespace skeldon
