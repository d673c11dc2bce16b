#include "recorder/RecordStream.h"

#include "data/RecordFlags.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bitset>
#include <cstring>
#include <random>

namespace skeldon {
namespace {

RecorderStatus Recorder(int type, bool alpha)
{
    RecorderStatus status;
    status.m_type = type;
    status.m_alphaFirmware = alpha;
    status.m_lineLength = alpha ? 22 : type == 0 ? 18 : 20;
    status.m_year = 2023;
    return status;
}

RecordArray Decode(std::string_view bytes, const RecorderStatus& status = Recorder(10, false),
                   std::size_t most = 1000)
{
    RecordArray records;
    DecodeStream(bytes, CRecordDecoder(status, true), most, records);
    return records;
}

const std::string Line = "52ADB7A00102030405";

/// Gives a stream in pieces of the sizes named, over and over.
class CPieces final : public CByteStream
{
public:
    CPieces(std::string bytes, std::vector<std::size_t> sizes)
        : m_bytes(std::move(bytes))
        , m_sizes(std::move(sizes))
    {}

    std::string_view NextChunk() override
    {
        if (m_at == m_bytes.size())
            return "#";
        const std::size_t size =
            std::min(m_sizes[m_turn++ % m_sizes.size()], m_bytes.size() - m_at);
        m_at += size;
        // A piece of its own, so that looking beyond it is an error that the sanitizers see.
        m_piece.assign(m_bytes.begin() + static_cast<std::ptrdiff_t>(m_at - size),
                       m_bytes.begin() + static_cast<std::ptrdiff_t>(m_at));
        m_piece.shrink_to_fit();
        return {m_piece.data(), m_piece.size()};
    }

private:
    std::string m_bytes;
    std::vector<std::size_t> m_sizes;
    std::vector<char> m_piece;
    std::size_t m_at = 0;
    std::size_t m_turn = 0;
};

TEST(ReadLine, EndsAtEitherLineEndAndSkipsEmptyOnes)
{
    EXPECT_EQ(Decode(Line + "\r\n" + Line + "\n" + Line + "\r\r\n\n" + Line + "#").size(), 4U);
    EXPECT_EQ(Decode("\r\n\r\n" + Line + "\r\n").size(), 1U);
}

TEST(ReadLine, EndsTheStreamAtTheMark)
{
    EXPECT_EQ(Decode(Line + "\r\n#" + Line + "\r\n").size(), 1U);
    // Behind digits the mark ends the line alone.
    EXPECT_EQ(Decode(Line + "#" + Line + "\r\n").size(), 2U);
    EXPECT_TRUE(Decode("#").empty());
    EXPECT_TRUE(Decode("").empty());
    EXPECT_TRUE(Decode("\r\n\r\n").empty());
}

TEST(ReadLine, DropsEverythingElseWithoutATrace)
{
    using namespace std::string_literals;
    const std::string noisy = " 52AD\0B7gabcdef A00102\xFF"
                              "0304z05 \r\n"s;
    const RecordArray records = Decode(noisy);
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].m_checkKey, Decode(Line + "\r\n")[0].m_checkKey);
    EXPECT_EQ(records[0].m_flags, 0);
}

TEST(ReadLine, EndsWhenItIsFull)
{
    // 18 digits are a line; up to 20 are taken for it, of which the last two mean nothing.
    const RecordArray records = Decode(Line + "99" + Line + "\r\n");
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].m_x, records[1].m_x);
    EXPECT_EQ(records[1].m_flags, 0);
    // One digit more begins a line of its own.
    const RecordArray cut = Decode(Line + "999\r\n");
    ASSERT_EQ(cut.size(), 2U);
    EXPECT_EQ(cut[0].m_flags, 0);
    EXPECT_EQ(cut[1].m_flags, RecordFlag::Abnormal);
}

TEST(NextRecord, FillsAShortLineWithZerosAndFlagsIt)
{
    const RecordArray records = Decode("52ADB7\r\n");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].m_flags, RecordFlag::Abnormal);
    EXPECT_EQ(records[0].m_x, 0.0);
    EXPECT_EQ(records[0].m_y, 0.0);
    EXPECT_EQ(records[0].m_z, 0.0);
    EXPECT_EQ(ToLocalFields(records[0].m_time), (CalendarFields{2023, 5, 21, 13, 45, 48}));
    EXPECT_EQ(records[0].m_checkKey, records[0].CheckKey());
}

TEST(NextRecord, FlagsAShortLineEvenIfItsTimeIsGood)
{
    const RecordArray records = Decode(Line.substr(0, 17) + "\r\n");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].m_flags, RecordFlag::Abnormal);
}

TEST(NextRecord, TakesADigitAtTheEndOfTheStreamForALine)
{
    const RecordArray records = Decode(Line + "\r\n5");
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].m_flags, 0);
    EXPECT_EQ(records[1].m_flags, RecordFlag::Abnormal);
}

TEST(NextRecord, KeepsTheAbnormalFlagForAllLinesThatFollow)
{
    const RecordArray records =
        Decode(Line + "\r\n" + "000000000000000000\r\n" + Line + "\r\n" + Line + "\r\n");
    ASSERT_EQ(records.size(), 4U);
    EXPECT_EQ(records[0].m_flags, 0);
    EXPECT_EQ(records[1].m_flags, RecordFlag::Abnormal);
    EXPECT_EQ(records[2].m_flags, RecordFlag::Abnormal);
    EXPECT_EQ(records[3].m_flags, RecordFlag::Abnormal);
    EXPECT_EQ(records[3].m_checkKey, records[3].CheckKey());
}

TEST(NextRecord, ReplacesTheWholeFlagWord)
{
    CMemoryStream stream("00\r\n");
    CRecordStream records(stream, CRecordDecoder(Recorder(10, false), false));
    CMeasureRecord record;
    record.SetFlags(RecordFlag::Marked);
    ASSERT_TRUE(records.NextRecord(record));
    EXPECT_EQ(record.m_flags, RecordFlag::Abnormal);
}

TEST(NextRecord, LeavesTheRecordAloneAtTheEndAndStaysThere)
{
    CMemoryStream stream("#");
    CRecordStream records(stream, CRecordDecoder(Recorder(10, false), false));
    CMeasureRecord record(7);
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(records.NextRecord(record));
        EXPECT_EQ(record.m_time, 7);
        EXPECT_EQ(record.m_flags, 0);
    }
}

TEST(DecodeStream, StopsAtTheNumberAskedFor)
{
    EXPECT_EQ(Decode(Line + "\r\n" + Line + "\r\n" + Line + "\r\n", Recorder(10, false), 2).size(),
              2U);
}

// --- the same, told in another way: by words cut out of the text and by bits of a number ---

struct PlainRecord
{
    CalendarSeconds time;
    std::uint32_t msec;
    double x, y, z, temperature, humidity;
    bool abnormal;
};

/// Splits the stream into the lines that stand for a record.
std::vector<std::string> PlainLines(const std::string& bytes, std::size_t longest)
{
    std::vector<std::string> lines;
    std::string line;
    for (const char c : bytes + "##") {
        const bool ends = c == '#' || ((c == '\r' || c == '\n') && !line.empty());
        if (c != '\0' && std::strchr("0123456789ABCDEF", c) != nullptr)
            line += c;
        if (c == '#' && line.empty())
            break;
        if (ends || line.size() == longest) {
            lines.push_back(line);
            line.clear();
        }
    }
    return lines;
}

PlainRecord PlainDecode(std::string line, const RecorderStatus& status, bool hasHumidity)
{
    const bool oldest = status.m_type == 0 && !status.m_alphaFirmware;
    const std::size_t full = oldest ? 16 : status.m_alphaFirmware ? 20 : 18;
    PlainRecord plain{};
    plain.abnormal = line.size() < full;
    line.resize(20, '0');
    std::bitset<80> bits;
    for (std::size_t i = 0; i < 80; ++i)
        bits[i] = (std::stoul(line.substr(i / 4, 1), nullptr, 16) >> (3 - i % 4) & 1) != 0;
    const auto field = [&bits](std::size_t from, std::size_t count, bool isSigned) {
        int value = 0;
        for (std::size_t i = 0; i < count; ++i)
            value = value * 2 + (bits[from + i] ? 1 : 0);
        return isSigned && bits[from] ? value - (1 << count) : value;
    };
    int parts[5] = {field(0, 4, false), field(6, 5, false), field(11, 5, false),
                    field(16, 6, false), field(22, 6, false)};
    const int lowest[5] = {1, 1, 0, 0, 0};
    const int highest[5] = {12, 31, 23, 59, 59};
    for (int i = 0; i < 5; ++i) {
        if (parts[i] < lowest[i] || parts[i] > highest[i])
            plain.abnormal = true;
        parts[i] = std::max(lowest[i], std::min(highest[i], parts[i]));
    }
    plain.time = FromLocalFields({status.m_year, parts[0], parts[1], parts[2], parts[3], parts[4]});
    const int rest = field(28, 4, false);
    const int axes[3] = {field(32, 8, true), field(40, 8, true), field(48, 8, true)};
    const int degrees = field(56, 8, true);
    double* const values[3] = {&plain.x, &plain.y, &plain.z};
    for (int i = 0; i < 3; ++i)
        *values[i] = oldest ? axes[i] * 0.1 : axes[i] / static_cast<double>(status.m_countsPerG);
    if (oldest) {
        plain.msec = static_cast<std::uint32_t>((rest * 625 + 5) / 10);
        plain.temperature = degrees;
        return plain;
    }
    const int msec = field(64, 8, true) * 10;
    plain.msec = static_cast<std::uint32_t>(msec);
    plain.abnormal = plain.abnormal || msec < 0 || msec > 999;
    plain.temperature = degrees < 0 ? (-rest) * 0.1 + (degrees + 1) : rest * 0.1 + degrees;
    if (status.m_alphaFirmware && hasHumidity)
        plain.humidity = std::max(0, std::min(100, field(72, 8, true)));
    return plain;
}

/// Lines as a recorder sends them with every kind of damage between.
std::string RandomStream(std::mt19937& random, std::size_t digits)
{
    const auto below = [&random](std::size_t bound) { return random() % bound; };
    const std::string noise("abcdefghXYZ:;@/ \t.,-\0\x80\xFF\x11\x13", 25);
    const bool damaged = below(4) != 0;
    std::string stream;
    for (std::size_t i = 0; i < 60; ++i) {
        std::string line;
        for (std::size_t k = 0; k < digits; ++k)
            line += "0123456789ABCDEF"[below(16)];
        if (below(2) == 0) // a date that is likely to be good
            line.replace(0, 2, {"123456789ABC"[below(12)], "0123"[below(4)]});
        if (damaged && below(4) == 0)
            line.insert(below(line.size()), 1, noise[below(noise.size())]);
        if (damaged && below(6) == 0)
            line.resize(below(line.size() + 1));
        if (damaged && below(9) == 0)
            line += std::string(1 + below(9), 'A');
        const char* const ends[] = {"\r\n", "\r\n", "\r\n", "\r\n", "\r", "\n", "", "\n\r\r", "#"};
        stream += line + ends[damaged ? below(below(3) == 0 ? 9 : 8) : 0];
    }
    return stream;
}

class ManyStreams : public testing::TestWithParam<std::pair<int, bool>>
{};

TEST_P(ManyStreams, DecodeAsByThePlainReading)
{
    const auto [type, alpha] = GetParam();
    RecorderStatus status = Recorder(type, alpha);
    std::mt19937 random(static_cast<unsigned>(type + 100 * alpha));
    const auto digits = static_cast<std::size_t>(status.m_lineLength) - 2;
    for (int round = 0; round < 100; ++round) {
        const int countsPerG[] = {2, 5, 10, 20, 40, 50, 100};
        status.m_countsPerG = countsPerG[random() % 7];
        status.m_year = 2000 + static_cast<int>(random() % 60);
        const bool hasHumidity = random() % 2 == 0;
        const std::string bytes = RandomStream(random, digits);
        CPieces pieces(bytes, {1 + random() % 70, 1 + random() % 3, 1 + random() % 500});
        CRecordStream stream(pieces, CRecordDecoder(status, hasHumidity));
        CMeasureRecord record;
        bool sticky = false;
        for (const std::string& line : PlainLines(bytes, digits + 2)) {
            ASSERT_TRUE(stream.NextRecord(record)) << line;
            const PlainRecord plain = PlainDecode(line, status, hasHumidity);
            sticky = sticky || plain.abnormal;
            ASSERT_EQ(record.m_time, plain.time) << line;
            ASSERT_EQ(record.m_msec, plain.msec) << line;
            ASSERT_EQ(record.m_x, plain.x) << line;
            ASSERT_EQ(record.m_y, plain.y) << line;
            ASSERT_EQ(record.m_z, plain.z) << line;
            ASSERT_EQ(record.m_temperature, plain.temperature) << line;
            ASSERT_EQ(record.m_humidity, plain.humidity) << line;
            ASSERT_EQ(record.m_flags, sticky ? RecordFlag::Abnormal : 0) << line;
        }
        ASSERT_FALSE(stream.NextRecord(record));
    }
}

INSTANTIATE_TEST_SUITE_P(Families, ManyStreams,
                         testing::Values(std::pair(0, false), std::pair(0, true),
                                         std::pair(10, false), std::pair(50, true),
                                         std::pair(-2, false)));

} // namespace
} // namespace skeldon
