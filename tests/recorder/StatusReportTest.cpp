#include "recorder/StatusReport.h"

#include <gtest/gtest.h>

#include <limits>

namespace skeldon {
namespace {

constexpr int CurrentYear = 2031;

RecorderStatus Read(std::string_view report, RecorderStatus status = {})
{
    EXPECT_TRUE(ReadStatusReport(report, CurrentYear, status)) << report;
    return status;
}

/// With the one key that makes a text a report.
RecorderStatus ReadKeys(const std::string& keys, const RecorderStatus& status = {})
{
    return Read("@Count=1 2\r\n" + keys, status);
}

TEST(StatusReport, IsNoneWithoutTheCountKey)
{
    RecorderStatus status;
    status.m_type = 20;
    for (const char* text : {"", "@Type=10\r\n", "@count=5 6\r\n", "Count=5", "@Count 5"})
        EXPECT_FALSE(ReadStatusReport(text, CurrentYear, status)) << text;
    EXPECT_EQ(status.m_type, 20);
}

TEST(StatusReport, ReadsAWholeReport)
{
    const RecorderStatus status = Read("@KORVA3 Ver= 1.23 \r\n"
                                       "@korvaPL_A RLS=A2.10\r\n"
                                       "@Count=1,234 2000\r\n"
                                       "@Ondo+offset=1 -2 3\t4\r\n"
                                       "@1G=10 11 12\r\n"
                                       "@P=20 21 22\r\n"
                                       "@ADJ h=30 31 1\r\n"
                                       "@ADJ L=40 41 42\r\n"
                                       "@Year=2024/05/06 07:08:09\r\n"
                                       "@My_ID=42\r\n"
                                       "@BZZ=0\r\n"
                                       "@Warn=1\r\n"
                                       "@Type=20\r\n"
                                       "@detect=1.0G\r\n"
                                       "@Record=a\r\n"
                                       "@Interval=9\r\n"
                                       "@wait=7\r\n"
                                       "@start=8\r\n"
                                       "@Lag=9\r\n");
    EXPECT_EQ(status.m_version, "1.23");
    EXPECT_EQ(status.m_release, "A2.10");
    EXPECT_TRUE(status.m_alphaFirmware);
    EXPECT_EQ(status.m_count, 1234);
    EXPECT_EQ(status.m_countLimit, 2000);
    EXPECT_EQ(status.m_tempOffset, (std::array{1, 0, 3, 4})); // a sign fails its word
    EXPECT_EQ(status.m_oneG, (std::array{10, 11, 12}));
    EXPECT_EQ(status.m_pValues, (std::array{20, 21, 22}));
    EXPECT_EQ(status.m_adjHigh, (std::array{30, 31, 1}));
    EXPECT_EQ(status.m_adjLow, (std::array{40, 41, 42}));
    EXPECT_EQ(status.m_year, 2024);
    EXPECT_EQ(status.m_month, 5);
    EXPECT_EQ(status.m_day, 6);
    EXPECT_EQ(status.m_hostNumber, 42);
    EXPECT_TRUE(status.m_buzzer);
    EXPECT_TRUE(status.m_hasBuzzerKey);
    EXPECT_TRUE(status.m_warn);
    EXPECT_EQ(status.m_type, 20);
    EXPECT_EQ(status.m_countsPerG, 5);
    EXPECT_EQ(status.m_threshold, 20); // 10 on the wire, half a count per tenth of G
    EXPECT_EQ(status.m_intervalRow, 14);
    EXPECT_EQ(status.m_samplingRow, 9);
    EXPECT_EQ(status.m_wait, 7);
    EXPECT_EQ(status.m_startOption, 8);
    EXPECT_EQ(status.m_lag, 9);
    EXPECT_EQ(status.m_hazard, 60);
    EXPECT_TRUE(status.m_endless);
    EXPECT_EQ(status.m_lineLength, 22);
    EXPECT_EQ(status.m_fieldCount, 9);
}

TEST(StatusReport, GivesEachMissingKeyItsFallback)
{
    const RecorderStatus before = Read("@Count=5 6\r@Ondo+offset=1 2 3 4\r@1G=1 2 3\r@P=1 2 3\r"
                                       "@ADJ h=1 2 3\r@ADJ L=1 2 3\r@Year=2020/11/12\r@My_ID=9\r"
                                       "@BZZ=0\r@Warn=1\r@Type=50\r@detect=9\r@Record=b\r"
                                       "@Interval=9\r@wait=1\r@start=1\r@Lag=1\r"
                                       "@KORVA3 Ver=1\r@korvaQM_A RLS=3\r");
    const RecorderStatus status = Read("@Count=\r\n", before);
    EXPECT_EQ(status.m_count, 0);
    EXPECT_EQ(status.m_countLimit, 0);
    EXPECT_EQ(status.m_tempOffset, (std::array<int, 4>{}));
    EXPECT_EQ(status.m_oneG, (std::array<int, 3>{}));
    EXPECT_EQ(status.m_pValues, (std::array<int, 3>{}));
    EXPECT_EQ(status.m_adjHigh, (std::array<int, 3>{}));
    EXPECT_EQ(status.m_adjLow, (std::array<int, 3>{}));
    EXPECT_EQ(status.m_year, CurrentYear);
    EXPECT_EQ(status.m_month, 11); // these two alone keep what an earlier report told
    EXPECT_EQ(status.m_day, 12);
    EXPECT_EQ(status.m_hostNumber, 0);
    EXPECT_FALSE(status.m_buzzer);
    EXPECT_FALSE(status.m_hasBuzzerKey);
    EXPECT_FALSE(status.m_warn);
    EXPECT_EQ(status.m_type, 0);
    EXPECT_EQ(status.m_countsPerG, 10);
    EXPECT_EQ(status.m_threshold, 0);
    EXPECT_EQ(status.m_intervalRow, 0);
    EXPECT_EQ(status.m_samplingRow, 4);
    EXPECT_EQ(status.m_wait, 5);
    EXPECT_EQ(status.m_startOption, 0);
    EXPECT_EQ(status.m_lag, 0);
    EXPECT_EQ(status.m_version, "");
    EXPECT_EQ(status.m_release, "");
    EXPECT_FALSE(status.m_alphaFirmware);
    EXPECT_EQ(status.m_hazard, 0);
    EXPECT_FALSE(status.m_endless);
    EXPECT_EQ(status.m_lineLength, 18);
    EXPECT_EQ(status.m_fieldCount, 8);
}

TEST(StatusReport, TakesTheFirstOfAKeyThatStandsTwice)
{
    EXPECT_EQ(ReadKeys("@My_ID=3\r\n@My_ID=4\r\n").m_hostNumber, 3);
    EXPECT_EQ(Read("@Count=7 8\n@Count=9 9\n").m_count, 7);
}

TEST(StatusReport, EndsAValueAtEitherLineEndAndAtTheEndOfTheText)
{
    EXPECT_EQ(ReadKeys("@My_ID=\t 3 \r@Lag=4\n@wait=6").m_hostNumber, 3);
    EXPECT_EQ(ReadKeys("@My_ID=3\r@Lag=4\n@wait=6").m_lag, 4);
    EXPECT_EQ(ReadKeys("@My_ID=3\r@Lag=4\n@wait=6").m_wait, 6);
}

TEST(StatusReport, CountsBothWordsByThemselves)
{
    EXPECT_EQ(Read("@Count=x 2000\r\n").m_count, 0);
    EXPECT_EQ(Read("@Count=x 2000\r\n").m_countLimit, 2000);
    EXPECT_EQ(Read("@Count=12 x\r\n").m_count, 12);
    EXPECT_EQ(Read("@Count=12 x\r\n").m_countLimit, 0);
    EXPECT_EQ(Read("@Count=12\r\n").m_countLimit, 0);
    EXPECT_EQ(Read("@Count=12\t \t34\r\n").m_countLimit, 34);
}

TEST(StatusReport, ReadsACountAboveTheRangeOfIntAsNegative)
{
    EXPECT_EQ(Read("@Count=2147483647 0\r\n").m_count, 2147483647);
    EXPECT_EQ(Read("@Count=2147483648 0\r\n").m_count, std::numeric_limits<int>::min());
    EXPECT_EQ(Read("@Count=4294967295 0\r\n").m_count, -1);
    EXPECT_EQ(Read("@Count=4294967296 0\r\n").m_count, 0);
    EXPECT_EQ(ReadKeys("@wait=4294967295\r\n").m_wait, -1);
}

TEST(StatusReport, TellsTheNineTypes)
{
    const struct
    {
        const char* key;
        int type;
        const char* model;
        double maxG;
        int countsPerG;
        double factor;
    } rows[] = {
        {"", 0, "", 10.0, 10, 1.0},
        {"@Type=\r", 0, "", 10.0, 10, 1.0},
        {"@Type=abc\r", 0, "", 10.0, 10, 1.0},
        {"@Type=-1\r", 0, "", 10.0, 10, 1.0},
        {"@Type=0\r", -2, "???", 10.0, 10, 1.0},
        {"@Type=7\r", -2, "???", 10.0, 10, 1.0},
        {"@Type=4294967294\r", -2, "???", 10.0, 10, 1.0},
        {"@Type=1\r", 1, "PL04", 1.0, 100, 10.0},
        {"@Type=2\r", 2, "PL04", 2.0, 50, 5.0},
        {"@Type=3\r", 3, "PL04", 2.5, 40, 4.0},
        {"@Type=5\r", 5, "PL20", 5.0, 20, 2.0},
        {"@Type=10\r", 10, "PL20", 10.0, 10, 1.0},
        {"@Type=20\r", 20, "PL20", 20.0, 5, 0.5},
        {"@Type=50\r", 50, "QM70", 50.0, 2, 0.2},
    };
    for (const auto& row : rows) {
        const RecorderStatus status = ReadKeys(row.key);
        EXPECT_EQ(status.m_type, row.type) << row.key;
        EXPECT_EQ(status.GetModelName(), row.model) << row.key;
        EXPECT_EQ(status.GetMaxG(), row.maxG) << row.key;
        EXPECT_EQ(status.m_countsPerG, row.countsPerG) << row.key;
        EXPECT_EQ(status.GetThresholdFactor(), row.factor) << row.key;
    }
}

TEST(StatusReport, ReadsTheThresholdByTypeWithUnitAndPointRemoved)
{
    EXPECT_EQ(ReadKeys("@Type=10\r@detect=1.0G\r").m_threshold, 10);
    EXPECT_EQ(ReadKeys("@Type=1\r@detect=50\r").m_threshold, 5);
    EXPECT_EQ(ReadKeys("@Type=1\r@detect=59g\r").m_threshold, 5);
    EXPECT_EQ(ReadKeys("@Type=20\r@detect=99\r").m_threshold, 198);
    EXPECT_EQ(ReadKeys("@Type=50\r@detect=1\r").m_threshold, 5);
    EXPECT_EQ(ReadKeys("@Type=10\r@detect=1.0X\r").m_threshold, 0);
    EXPECT_EQ(ReadKeys("@Type=10\r@detect=G.g\r").m_threshold, 0);
    // A blank is removed at the ends alone, before the unit is.
    EXPECT_EQ(ReadKeys("@Type=10\r@detect= 1.0G \r").m_threshold, 10);
    EXPECT_EQ(ReadKeys("@Type=10\r@detect=1.0 G\r").m_threshold, 0);
    // Which of the two keys counts depends on the type.
    EXPECT_EQ(ReadKeys("@Detect=30\r@detect=40\r").m_threshold, 30);
    EXPECT_EQ(ReadKeys("@Type=10\r@Detect=30\r@detect=40\r").m_threshold, 40);
    EXPECT_EQ(ReadKeys("@Type=7\r@Detect=30\r@detect=40\r").m_threshold, 40);
    // The other one never stands in for it.
    EXPECT_EQ(ReadKeys("@Type=10\r@Detect=30\r").m_threshold, 0);
    EXPECT_EQ(ReadKeys("@detect=40\r").m_threshold, 0);
}

TEST(StatusReport, KeepsAThresholdWithinIntWhateverTheFactor)
{
    EXPECT_EQ(ReadKeys("@Type=50\r@detect=2147483647\r").m_threshold,
              std::numeric_limits<int>::max());
    EXPECT_EQ(ReadKeys("@Type=50\r@detect=2147483648\r").m_threshold,
              std::numeric_limits<int>::min());
    EXPECT_EQ(ReadKeys("@Type=1\r@detect=4294967295\r").m_threshold, 0);
}

TEST(StatusReport, LooksTheRowsUpInTheColumnOfTheType)
{
    EXPECT_EQ(ReadKeys("@Interval=0\r").m_samplingRow, 0);
    EXPECT_EQ(ReadKeys("@Interval=5\r").m_samplingRow, 4);
    EXPECT_EQ(ReadKeys("@Interval=8\r").m_samplingRow, 4);
    EXPECT_EQ(ReadKeys("@Type=10\r@Interval=8x\r").m_samplingRow, 7);
    EXPECT_EQ(ReadKeys("@Type=10\r@Interval=0\r").m_samplingRow, 4);
    EXPECT_EQ(ReadKeys("@Type=10\r@Interval=\r").m_samplingRow, 4);
    EXPECT_EQ(ReadKeys("@Record=^\r").m_intervalRow, 0);
    EXPECT_EQ(ReadKeys("@Record=d\r").m_intervalRow, 11);
    EXPECT_EQ(ReadKeys("@Record=?\r").m_intervalRow, 0);
    // A zero byte stands for no setting in the table and must not find that.
    const std::string zero("@Interval=\0\r@Record=\0\r", 22);
    EXPECT_EQ(ReadKeys(zero).m_samplingRow, 4);
}

TEST(ReadStatus, KeepsMonthAndDayWhenTheYearValueHasFourDigits)
{
    RecorderStatus before;
    before.m_month = 3;
    before.m_day = 4;
    const RecorderStatus status = ReadKeys("@Year=2019\r", before);
    EXPECT_EQ(status.m_year, 2019);
    EXPECT_EQ(status.m_month, 3);
    EXPECT_EQ(status.m_day, 4);
}

TEST(ReadStatus, ReadsEachPartOfTheDateByItself)
{
    RecorderStatus before;
    before.m_month = 3;
    before.m_day = 4;
    const auto read = [&before](const std::string& value) {
        const RecorderStatus status = ReadKeys("@Year=" + value + "\r", before);
        return std::array{status.m_year, status.m_month, status.m_day};
    };
    EXPECT_EQ(read("2024/12/31"), (std::array{2024, 12, 31}));
    EXPECT_EQ(read("2024-+5--6"), (std::array{2024, 5, -6}));
    EXPECT_EQ(read("2024/ 5/06"), (std::array{2024, 3, 6}));
    EXPECT_EQ(read("20x4/05/06"), (std::array{CurrentYear, 5, 6}));
    EXPECT_EQ(read("2024/05/0"), (std::array{2024, 3, 4}));
    EXPECT_EQ(read("24"), (std::array{24, 3, 4}));
    EXPECT_EQ(read(""), (std::array{CurrentYear, 3, 4}));
}

TEST(StatusReport, InvertsTheBuzzer)
{
    EXPECT_TRUE(ReadKeys("@BZZ=0\r").m_buzzer);
    EXPECT_FALSE(ReadKeys("@BZZ=1\r").m_buzzer);
    EXPECT_TRUE(ReadKeys("@BZZ=1\r").m_hasBuzzerKey);
    EXPECT_FALSE(ReadKeys("@BZZ=\r").m_hasBuzzerKey);
    EXPECT_FALSE(ReadKeys("@BZZ=on\r").m_buzzer);
    EXPECT_FALSE(ReadKeys("@BZZ=on\r").m_hasBuzzerKey);
}

TEST(StatusReport, HasABuzzerByKeyOrOnTheLargestByFirmware)
{
    EXPECT_TRUE(ReadKeys("@Type=10\r@BZZ=1\r").HasBuzzer());
    EXPECT_FALSE(ReadKeys("@Type=10\r@korvaPL_A RLS=1\r").HasBuzzer());
    EXPECT_FALSE(ReadKeys("@Type=50\r@BZZ=1\r").HasBuzzer());
    EXPECT_TRUE(ReadKeys("@Type=50\r@korvaQM_A RLS=1\r").HasBuzzer());
}

TEST(StatusReport, TellsTheFirmwareByTheReleaseKeyThatAnswers)
{
    const auto read = [](const std::string& keys) {
        RecorderStatus before;
        before.m_alphaFirmware = true;
        before.m_release = "old";
        return ReadKeys(keys, before);
    };
    EXPECT_EQ(read("@korvaPL RLS=1\r@korvaPL_A RLS=2\r").m_release, "1");
    EXPECT_FALSE(read("@korvaPL RLS=1\r@korvaPL_A RLS=2\r").m_alphaFirmware);
    EXPECT_EQ(read("@korvaPL RLS=\r@korvaPL_A RLS=2\r").m_release, "2");
    EXPECT_TRUE(read("@korvaPL RLS=\r@korvaPL_A RLS=2\r").m_alphaFirmware);
    EXPECT_TRUE(read("@korvaPL_A RLS=\r").m_alphaFirmware);
    EXPECT_EQ(read("@korvaPL_A RLS=\r").m_release, "");
    EXPECT_FALSE(read("@korvaPL RLS=\r").m_alphaFirmware);
    EXPECT_EQ(read("@korvaPL RLS=\r").m_release, "");
    // Each family has its own keys.
    EXPECT_FALSE(read("@korvaQM_A RLS=2\r").m_alphaFirmware);
    EXPECT_TRUE(read("@Type=50\r@korvaQM_A RLS=2\r").m_alphaFirmware);
    EXPECT_FALSE(read("@Type=50\r@korvaPL_A RLS=2\r").m_alphaFirmware);
}

TEST(StatusReport, ReadsHazardAndEndlessOnAlphaFirmwareOnly)
{
    const RecorderStatus plain = ReadKeys("@Type=50\r@ADJ h=9 8 7\r@korvaQM RLS=1\r");
    EXPECT_EQ(plain.m_hazard, 0);
    EXPECT_FALSE(plain.m_endless);
    EXPECT_EQ(plain.m_lineLength, 20);
    const RecorderStatus alpha = ReadKeys("@Type=50\r@ADJ h=9 8 7\r@korvaQM_A RLS=1\r");
    EXPECT_EQ(alpha.m_hazard, 45);
    EXPECT_TRUE(alpha.m_endless);
    EXPECT_FALSE(ReadKeys("@Type=50\r@ADJ h=9 8 0\r@korvaQM_A RLS=1\r").m_endless);
}

TEST(StatusReport, ChoosesTheLineShape)
{
    EXPECT_EQ(ReadKeys("").m_lineLength, 18);
    EXPECT_EQ(ReadKeys("").m_fieldCount, 8);
    EXPECT_EQ(ReadKeys("@Type=7\r").m_lineLength, 20);
    EXPECT_EQ(ReadKeys("@Type=10\r").m_fieldCount, 9);
    EXPECT_EQ(ReadKeys("@korvaPL_A RLS=1\r").m_lineLength, 22);
}

TEST(RecorderStatus, SwitchesTheRangeOfFourAlphaTypesOnly)
{
    const struct
    {
        int type;
        double other;
    } rows[] = {{1, 2.0}, {2, 1.0}, {10, 20.0}, {20, 10.0}, {0, 0.0},
                {3, 0.0}, {5, 0.0}, {50, 0.0},  {-2, 0.0}};
    for (const auto& row : rows) {
        RecorderStatus status;
        status.m_type = row.type;
        EXPECT_FALSE(status.CanChangeRange()) << row.type;
        status.m_alphaFirmware = true;
        EXPECT_EQ(status.CanChangeRange(), row.other > 0.0) << row.type;
        EXPECT_EQ(status.GetOtherRange(), row.other) << row.type;
    }
}

TEST(RecorderStatus, StartsAsATypeTenRecorder)
{
    const RecorderStatus status;
    EXPECT_EQ(status.m_type, 10);
    EXPECT_EQ(status.m_samplingRow, 4);
    EXPECT_EQ(status.m_wait, 5);
    EXPECT_EQ(status.m_countsPerG, 10);
    EXPECT_EQ(status.m_lineLength, 20);
    EXPECT_EQ(status.m_fieldCount, 9);
    EXPECT_EQ(status.m_month, 0);
}

TEST(CutToInt, DropsTheFractionAndStaysInRange)
{
    EXPECT_EQ(CutToInt(2.9), 2);
    EXPECT_EQ(CutToInt(-2.9), -2);
    EXPECT_EQ(CutToInt(1e20), std::numeric_limits<int>::max());
    EXPECT_EQ(CutToInt(-1e20), std::numeric_limits<int>::min());
}

} // namespace
} // namespace skeldon
