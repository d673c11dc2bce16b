// Any bytes as a recorder's memory, for the family that the first byte picks and the number of
// lines that the second announces: the download ends, gives no more lines than announced, and
// gives the same lines whether they come through the link or are decoded in memory.
#include "Check.h"
#include "recorder/ReadBack.h"
#include "recorder/ScriptedRecorder.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

using namespace skeldon;

namespace {

/// What tells the families apart in a status report.
constexpr std::array Families{
    "",
    "@Type=10\r\n@korvaPL RLS=1.0\r\n",
    "@Type=1\r\n@korvaPL_A RLS=1.0\r\n",
    "@Type=50\r\n@korvaQM_A RLS=1.0\r\n",
};

std::string StatusReply(std::uint8_t family, unsigned lines)
{
    return "@Count=" + std::to_string(lines) + " 60000\r\n@Year=2024/02/29\r\n" +
           Families[family % Families.size()] + '#';
}

/// What the link's buffer holds of the stream.
std::string_view Received(std::string_view stream, const RecorderStatus& status)
{
    const std::size_t room =
        static_cast<std::size_t>(status.m_lineLength) * static_cast<std::size_t>(status.m_count) +
        30;
    return stream.substr(0, std::min(stream.find('#'), room));
}

bool IsSame(const CMeasureRecord& one, const CMeasureRecord& other)
{
    return one.m_time == other.m_time && one.m_msec == other.m_msec && one.m_x == other.m_x &&
           one.m_y == other.m_y && one.m_z == other.m_z &&
           one.m_temperature == other.m_temperature && one.m_humidity == other.m_humidity &&
           one.m_flags == other.m_flags && one.m_checkKey == other.m_checkKey;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    if (count < 2)
        return 0;
    const unsigned lines = bytes[1];
    const std::string_view stream(reinterpret_cast<const char*>(bytes) + 2, count - 2);

    test::LinkFixture fixture;
    fixture.m_recorder.On("p", StatusReply(bytes[0], lines));
    // In two pieces, so that lines are cut by the transfer too.
    const std::size_t half = stream.size() / 2;
    std::vector<std::string> pieces{std::string(stream.substr(0, half)),
                                    std::string(stream.substr(half))};
    std::erase(pieces, std::string());
    fixture.m_recorder.On("D", pieces);
    fixture.m_recorder.On("G", pieces);
    FUZZ_CHECK(fixture.m_link.ReadStatus());
    const int expected = fixture.m_link.StartDownload();
    FUZZ_CHECK(expected == static_cast<int>(lines));
    if (expected == 0)
        return 0;
    CMeasureData data;
    const int received = ReadBack(fixture.m_link, expected, data);
    FUZZ_CHECK(received >= 0 && received <= expected);
    FUZZ_CHECK(data.GetSize() == static_cast<std::size_t>(received));
    FUZZ_CHECK(!fixture.m_link.m_busy && !fixture.m_link.IsOpen());

    RecordArray records;
    DecodeStream(Received(stream, fixture.m_link),
                 CRecordDecoder(fixture.m_link, fixture.m_link.m_hasHumidity), lines, records);
    FUZZ_CHECK(std::ranges::equal(records, data.Records(), IsSame));
    data.Analyse({.startMonth = 2, .startDay = 29, .now = 1'800'000'000});
    (void)data.RepairYear();
    return 0;
}
