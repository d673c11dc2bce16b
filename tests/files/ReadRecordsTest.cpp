#include "base/ZoneScope.h"
#include "files/FileTexts.h"

#include <cmath>

#include <gtest/gtest.h>

namespace skeldon::test {
namespace {

/// A line that no record of the file filled.
void ExpectFresh(const CMeasureRecord& record)
{
    EXPECT_LE(std::abs(record.m_time - Now()), 60);
    EXPECT_EQ(record.m_checkKey, 0);
    EXPECT_EQ(record.m_x, 0.0);
}

TEST(ReadRecords, OfAFileWithoutAnyGivesAnEmptyDataSet)
{
    CMeasureData data;
    data.SetSize(3);
    EXPECT_TRUE(ReadDataText(data, NewFile("")));
    EXPECT_TRUE(data.IsEmpty());
}

TEST(ReadRecords, TakesEveryElement)
{
    const CZoneScope zone(Zone::Tokyo);
    const CMeasureData data =
        DataOfText(NewFile("", Record("12.345", "<h>45.5</h>\n<flag>2064</flag>\n")));
    ASSERT_EQ(data.GetSize(), 1U);
    const CMeasureRecord record = data.GetRecord(0);
    EXPECT_EQ(record.m_time, FromLocalFields({2009, 5, 1, 12, 30, 15}));
    EXPECT_EQ(record.m_msec, 250U);
    EXPECT_EQ(record.m_x, 12.345 * 0.1);
    EXPECT_EQ(record.m_y, -2.0 * 0.1);
    EXPECT_EQ(record.m_z, 0.5 * 0.1);
    EXPECT_EQ(record.m_temperature, 21.5);
    EXPECT_EQ(record.m_humidity, 45.5);
    EXPECT_EQ(record.m_flags, 2064);
    EXPECT_EQ(record.m_checkKey, record.CheckKey());
    EXPECT_TRUE(data.m_hasHumidity);
}

TEST(ReadRecords, WithoutHumidityHasNone)
{
    const CMeasureData data = DataOfText(NewFile("", Record() + Record("1", "<h></h>\n")));
    EXPECT_FALSE(data.m_hasHumidity);
    EXPECT_EQ(data.GetRecord(0).m_humidity, 0.0);
    EXPECT_EQ(data.GetRecord(0).m_flags, 0);
}

TEST(ReadRecords, LeavesALineOfThePresentTimeForEachDroppedGroup)
{
    const std::string good = Record();
    for (const char* const element : {"date_time", "msec", "x", "y", "z", "t"}) {
        std::string bad = good;
        const std::size_t begin = bad.find('<' + std::string(element) + '>');
        bad.erase(begin, bad.find('\n', begin) - begin + 1);
        const CMeasureData data = DataOfText(NewFile("", bad + good + bad));
        ASSERT_EQ(data.GetSize(), 3U) << element;
        EXPECT_EQ(data.GetRecord(0).m_msec, 250U) << element;
        ExpectFresh(data.GetRecord(1));
        ExpectFresh(data.GetRecord(2));
    }
}

TEST(ReadRecords, TakesElementsInAnyOrderEachOnce)
{
    const CMeasureData data = DataOfText(
        NewFile("", "<record>\n<flag>1</flag>\n<t>5</t>\n<z>30</z>\n<z>99</z>\n<y>20</y>\n"
                    "<x>10</x>\n<msec>7</msec>\n<date_time>2009/05/01 12:30:15</date_time>\n"
                    "<flag>2</flag>\n</record>\n"));
    ASSERT_EQ(data.GetSize(), 1U);
    EXPECT_EQ(data.GetRecord(0).m_x, 1.0);
    EXPECT_EQ(data.GetRecord(0).m_z, 3.0);
    EXPECT_EQ(data.GetRecord(0).m_flags, 1);
}

TEST(ReadRecords, TriesAnElementWithoutValueAgain)
{
    const CMeasureData data = DataOfText(NewFile(
        "", "<record>\n<date_time>2009/05/01 12:30:15</date_time>\n<msec>7</msec>\n<x></x>\n"
            "<x>10</x>\n<x>20</x>\n<y>0</y>\n<z>0</z>\n<t>5</t>\n</record>\n"));
    EXPECT_EQ(data.GetRecord(0).m_x, 1.0);
}

TEST(ReadRecords, TakesTagsInAnyLetterCase)
{
    std::string upper = Record("10");
    for (char& c : upper)
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    const CMeasureData data = DataOfText(NewFile("", upper));
    ASSERT_EQ(data.GetSize(), 1U);
    EXPECT_EQ(data.GetRecord(0).m_x, 1.0);
}

TEST(ReadRecords, ReadsBothLineEndsAndAnyIndent)
{
    std::string crlf;
    for (const char c : Record("10"))
        crlf += c == '\n' ? std::string("\f \r\n\v\t") : std::string(1, c);
    const CMeasureData data = DataOfText(NewFile("", Record("20") + crlf + Record("30")));
    ASSERT_EQ(data.GetSize(), 3U);
    EXPECT_EQ(data.GetRecord(0).m_x, 2.0);
    EXPECT_EQ(data.GetRecord(1).m_x, 1.0);
    EXPECT_EQ(data.GetRecord(2).m_x, 30 * 0.1);
}

TEST(ReadRecords, TakesTheDateByItsPlacesAlone)
{
    const CZoneScope zone(Zone::Berlin);
    const auto timeOf = [](const std::string& date) {
        std::string text = Record();
        text.replace(text.find("2009/05/01 12:30:15"), 19, date);
        return DataOfText(NewFile("", text)).GetRecord(0).m_time;
    };
    const CalendarSeconds expected = FromLocalFields({2009, 5, 1, 12, 30, 15});
    EXPECT_EQ(timeOf("2009-05-01T12.30.15"), expected);
    EXPECT_EQ(timeOf("2009x05x01x12x30x15 and more"), expected);
    EXPECT_EQ(timeOf("2009/ 5/ 1 12:30:15"), expected);
    EXPECT_EQ(timeOf("2009/05/01"), FromLocalFields({2009, 5, 1, 0, 0, 0}));
    EXPECT_EQ(timeOf("2009/02/30 12:30:15"), FromLocalFields({2009, 3, 2, 12, 30, 15}));
    EXPECT_EQ(timeOf("2009/05/01 24:00:00"), FromLocalFields({2009, 5, 2, 0, 0, 0}));
    EXPECT_EQ(timeOf("?"), FromLocalFields({0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(timeOf("2050/05/01 00:00:00"), CalendarSeconds{2534968800});
}

TEST(ReadRecords, TakesAnyIntegerAsMilliseconds)
{
    const auto msecOf = [](const std::string& msec) {
        std::string text = Record();
        text.replace(text.find("250"), 3, msec);
        return DataOfText(NewFile("", text)).GetRecord(0).m_msec;
    };
    EXPECT_EQ(msecOf("1000"), 1000U);
    EXPECT_EQ(msecOf("-1"), 0xFFFFFFFFU);
    EXPECT_EQ(msecOf("4294967295"), 0xFFFFFFFFU);
    EXPECT_EQ(msecOf("x"), 0U);
}

TEST(ReadRecords, ReadsOddNumbersAsTheRuntimeDoes)
{
    const auto xOf = [](const std::string& x) {
        return DataOfText(NewFile("", Record(x))).GetRecord(0).m_x;
    };
    EXPECT_EQ(xOf("1e999"), INFINITY);
    EXPECT_TRUE(std::isnan(xOf("nan")));
    EXPECT_EQ(xOf("0x10"), 16 * 0.1);
    EXPECT_EQ(xOf("1,5"), 1 * 0.1);
    EXPECT_EQ(xOf("one"), 0.0);
    EXPECT_EQ(xOf(" 5 "), 5 * 0.1);
    EXPECT_EQ(xOf(std::string("1\0"
                              "5",
                              3)),
              1 * 0.1);
}

TEST(ReadRecords, CutsFlagsTo16Bits)
{
    const auto flagsOf = [](const std::string& flag) {
        return DataOfText(NewFile("", Record("1", "<flag>" + flag + "</flag>\n")))
            .GetRecord(0)
            .m_flags;
    };
    EXPECT_EQ(flagsOf("65535"), 65535);
    EXPECT_EQ(flagsOf("65537"), 1);
    EXPECT_EQ(flagsOf("-1"), 65535);
    EXPECT_EQ(flagsOf("x"), 0);
}

TEST(ReadRecords, IgnoresGroupsBeyondTheCountedNumber)
{
    // Records that stand before the end of the Configuration are read and not counted.
    const std::string early = Record("10", "<h>5</h>\n");
    const CMeasureData data = DataOfText(std::string(NewRoot) + Record("30") + early +
                                         std::string(EndOfConfiguration) + Record("20"));
    ASSERT_EQ(data.GetSize(), 1U);
    EXPECT_EQ(data.GetRecord(0).m_x, 30 * 0.1);
    EXPECT_FALSE(data.m_hasHumidity);
}

TEST(ReadRecords, ReadsRecordsBeforeTheRootLineWithItsVersion)
{
    const CMeasureData data =
        DataOfText(Record("10", "<flag>1</flag>\n") + NewFile("", Record("20")));
    ASSERT_EQ(data.GetSize(), 1U);
    EXPECT_EQ(data.GetRecord(0).m_x, 1.0);
    EXPECT_EQ(data.GetRecord(0).m_flags, 1);
}

TEST(ReadRecords, CountsARecordInARecordAndReadsOne)
{
    const CMeasureData data = DataOfText(NewFile("", "<record>\n<x>10</x>\n" + Record("20")));
    ASSERT_EQ(data.GetSize(), 2U);
    EXPECT_EQ(data.GetRecord(0).m_x, 1.0);
    ExpectFresh(data.GetRecord(1));
}

TEST(ReadRecords, TakesARecordThatTheEndOfTheFileEnds)
{
    std::string text = Record("10");
    text.erase(text.find("</record>"));
    const CMeasureData data = DataOfText(NewFile("", text));
    ASSERT_EQ(data.GetSize(), 1U);
    EXPECT_EQ(data.GetRecord(0).m_x, 1.0);
}

TEST(ReadRecords, DropsARecordCutInItsMiddle)
{
    std::string text = Record("10") + Record("20");
    text.erase(text.rfind("<t>") + 4);
    const CMeasureData data = DataOfText(NewFile("", text));
    ASSERT_EQ(data.GetSize(), 2U);
    EXPECT_EQ(data.GetRecord(0).m_x, 1.0);
    ExpectFresh(data.GetRecord(1));
}

TEST(ReadRecords, DoesNotTakeAnElementWithoutItsEnd)
{
    const CMeasureData data = DataOfText(NewFile("", Record("10</z>\n<x>5")));
    ASSERT_EQ(data.GetSize(), 1U);
    // The first line has another's end; what follows it is whole.
    EXPECT_EQ(data.GetRecord(0).m_x, 0.5);
}

TEST(ReadRecords, TakesNulAndSubstituteBytesAsAnyOther)
{
    const std::string odd("\0\x1A\xA0", 3);
    const CMeasureData data =
        DataOfText(odd + "\n" +
                   NewFile("<korva_rls>" + odd + "</korva_rls>\n",
                           odd + "\n" + Record("10") + odd + "<record>\n" + Record("20")));
    EXPECT_EQ(data.m_release, odd);
    ASSERT_EQ(data.GetSize(), 2U); // a line that begins with other bytes begins no record
    EXPECT_EQ(data.GetRecord(1).m_x, 2.0);
}

} // namespace
} // namespace skeldon::test
