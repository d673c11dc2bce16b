// Any bytes as a live stream of at most so many lines as the first byte says: the recording ends,
// and its lines are 5 ms apart.
#include "Check.h"
#include "recorder/ScriptedRecorder.h"

#include <cstddef>
#include <cstdint>
#include <string>

using namespace skeldon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    if (count < 1)
        return 0;
    const unsigned lines = bytes[0];
    test::LinkFixture fixture;
    fixture.m_recorder.On("x", std::string(reinterpret_cast<const char*>(bytes) + 1, count - 1));
    FUZZ_CHECK(fixture.m_link.StartOnline(lines));
    CMeasureData data;
    fixture.m_link.FinishOnline(data);
    FUZZ_CHECK(data.GetSize() <= lines || lines == 0);
    FUZZ_CHECK(!fixture.m_link.m_busy && !fixture.m_link.IsOpen());
    const auto records = data.Records();
    for (std::size_t i = 1; i < records.size(); ++i) {
        const bool isFilled = records[i].m_checkKey != 0;
        FUZZ_CHECK(!isFilled || records[i].TimeMs() == records[i - 1].TimeMs() + 5);
    }
    data.Analyse({.startMonth = 0, .startDay = 0, .now = 1'800'000'000});
    return 0;
}
